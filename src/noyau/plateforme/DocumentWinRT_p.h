// noyau/plateforme/DocumentWinRT_p.h
#pragma once

#include "noyau/plateforme/EnveloppeWinRT_p.h"
#include "noyau/plateforme/InterfacesToasts.h"
#include "noyau/plateforme/InterfacesWinRT_p.h"

/// The XML document of a toast; the classes of its nodes are its own affair.
class DocumentWinRT final : public Enveloppe<Toasts::IXmlDocument, AbiWinRT::IXmlDocument>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT CreateElement(QString const & nom, Toasts::IXmlElement ** element) override;
    HRESULT CreateTextNode(QString const & texte, Toasts::IXmlText ** noeud) override;
    HRESULT GetElementsByTagName(QString const & nom, Toasts::IXmlNodeList ** elements) override;
};
