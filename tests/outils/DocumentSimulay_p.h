// tests/outils/DocumentSimulay_p.h
#pragma once

#include "outils/ObjetSimulay_p.h"

/// The document of a simulated toast.
class DocumentSimulay final : public Simulay<Toasts::IXmlDocument>
{
public:
    /// A text that is no XML ends the test program.
    DocumentSimulay(PointeurEtat etat, QString const & texte);

    HRESULT CreateElement(QString const & nom, Toasts::IXmlElement ** element) override;
    HRESULT CreateTextNode(QString const & texte, Toasts::IXmlText ** noeud) override;
    HRESULT GetElementsByTagName(QString const & nom, Toasts::IXmlNodeList ** elements) override;

    QDomDocument document;
};
