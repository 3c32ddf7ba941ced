// tests/outils/DocumentSimulay.cpp
#include "outils/DocumentSimulay_p.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
class ElementSimulay;

class NoeudSimulay final : public Simulay<IXmlNode>
{
public:
    NoeudSimulay(PointeurEtat etat, QDomNode noeud)
        : Simulay(std::move(etat))
        , monNoeud(std::move(noeud))
    {
    }

    HRESULT get_Attributes(IXmlNamedNodeMap ** attributs) override;
    HRESULT AppendChild(IXmlNode * enfant, IXmlNode ** ajoutay) override;
    HRESULT QueryInterface(IXmlElement ** element) override;

private:
    QDomNode monNoeud;
};

class AttributsSimules final : public Simulay<IXmlNamedNodeMap>
{
public:
    AttributsSimules(PointeurEtat etat, QDomNamedNodeMap attributs)
        : Simulay(std::move(etat))
        , mesAttributs(std::move(attributs))
    {
    }

    HRESULT GetNamedItem(QString const & nom, IXmlNode ** noeud) override
    {
        HRESULT const resultat = monEtat->Passe(u"GetNamedItem"_s, nom);
        QDomNode const trouvay = mesAttributs.namedItem(nom);
        *noeud = nullptr;
        if (trouvay.isNull()) // as on the platform, that is no failure
            return resultat;
        return monEtat->Rend(resultat, u"GetNamedItem"_s, noeud,
                             [&] { return new NoeudSimulay(monEtat, trouvay); });
    }

private:
    QDomNamedNodeMap mesAttributs;
};

class ElementSimulay final : public Simulay<IXmlElement>
{
public:
    ElementSimulay(PointeurEtat etat, QDomElement element)
        : Simulay(std::move(etat))
        , monElement(std::move(element))
    {
    }

    HRESULT SetAttribute(QString const & nom, QString const & valeur) override
    {
        HRESULT const resultat = monEtat->Passe(u"SetAttribute"_s, nom + u'=' + valeur);
        if (SUCCEEDED(resultat))
            monElement.setAttribute(nom, valeur);
        return resultat;
    }

    HRESULT QueryInterface(IXmlNode ** noeud) override
    {
        return monEtat->Rend(monEtat->Passe(u"QueryInterface"_s, u"IXmlNode"_s),
                             u"QueryInterface"_s, noeud,
                             [&] { return new NoeudSimulay(monEtat, monElement); });
    }

private:
    QDomElement monElement;
};

HRESULT NoeudSimulay::get_Attributes(IXmlNamedNodeMap ** attributs)
{
    return monEtat->Rend(monEtat->Passe(u"get_Attributes"_s), u"get_Attributes"_s, attributs,
                         [&] { return new AttributsSimules(monEtat, monNoeud.attributes()); });
}

HRESULT NoeudSimulay::AppendChild(IXmlNode * enfant, IXmlNode ** ajoutay)
{
    HRESULT const resultat = monEtat->Passe(u"AppendChild"_s, monNoeud.nodeName());
    QDomNode noeud = static_cast<NoeudSimulay *>(enfant)->monNoeud;
    if (SUCCEEDED(resultat) && monNoeud.isAttr()) // whose children Qt does not write out
        monNoeud.setNodeValue(monNoeud.nodeValue() + noeud.nodeValue());
    else if (SUCCEEDED(resultat))
        noeud = monNoeud.appendChild(noeud);
    return monEtat->Rend(resultat, u"AppendChild"_s, ajoutay,
                         [&] { return new NoeudSimulay(monEtat, noeud); });
}

HRESULT NoeudSimulay::QueryInterface(IXmlElement ** element)
{
    HRESULT resultat = monEtat->Passe(u"QueryInterface"_s, u"IXmlElement"_s);
    if (SUCCEEDED(resultat) && !monNoeud.isElement())
        resultat = E_NOINTERFACE;
    return monEtat->Rend(resultat, u"QueryInterface"_s, element,
                         [&] { return new ElementSimulay(monEtat, monNoeud.toElement()); });
}

class TexteSimulay final : public Simulay<IXmlText>
{
public:
    TexteSimulay(PointeurEtat etat, QDomText texte)
        : Simulay(std::move(etat))
        , monTexte(std::move(texte))
    {
    }

    HRESULT QueryInterface(IXmlNode ** noeud) override
    {
        return monEtat->Rend(monEtat->Passe(u"QueryInterface"_s, u"IXmlNode"_s),
                             u"QueryInterface"_s, noeud,
                             [&] { return new NoeudSimulay(monEtat, monTexte); });
    }

private:
    QDomText monTexte;
};

class ListeSimulee final : public Simulay<IXmlNodeList>
{
public:
    ListeSimulee(PointeurEtat etat, QDomNodeList noeuds)
        : Simulay(std::move(etat))
        , mesNoeuds(std::move(noeuds))
    {
    }

    HRESULT get_Length(UINT * longueur) override
    {
        HRESULT const resultat = monEtat->Passe(u"get_Length"_s);
        if (SUCCEEDED(resultat))
            *longueur = static_cast<UINT>(mesNoeuds.size());
        return resultat;
    }

    HRESULT Item(UINT indice, IXmlNode ** noeud) override
    {
        HRESULT const resultat = monEtat->Passe(u"Item"_s, QString::number(indice));
        QDomNode const trouvay = mesNoeuds.item(static_cast<int>(indice));
        *noeud = nullptr;
        if (trouvay.isNull()) // as on the platform, that is no failure
            return resultat;
        return monEtat->Rend(resultat, u"Item"_s, noeud,
                             [&] { return new NoeudSimulay(monEtat, trouvay); });
    }

private:
    QDomNodeList mesNoeuds;
};
} // namespace

DocumentSimulay::DocumentSimulay(PointeurEtat etat, QString const & texte)
    : Simulay(std::move(etat))
{
    if (!document.setContent(texte))
        qFatal("The template is no XML.");
}

HRESULT DocumentSimulay::CreateElement(QString const & nom, IXmlElement ** element)
{
    return monEtat->Rend(monEtat->Passe(u"CreateElement"_s, nom), u"CreateElement"_s, element,
                         [&] { return new ElementSimulay(monEtat, document.createElement(nom)); });
}

HRESULT DocumentSimulay::CreateTextNode(QString const & texte, IXmlText ** noeud)
{
    return monEtat->Rend(monEtat->Passe(u"CreateTextNode"_s, texte), u"CreateTextNode"_s, noeud,
                         [&] { return new TexteSimulay(monEtat, document.createTextNode(texte)); });
}

HRESULT DocumentSimulay::GetElementsByTagName(QString const & nom, IXmlNodeList ** elements)
{
    return monEtat->Rend(
        monEtat->Passe(u"GetElementsByTagName"_s, nom), u"GetElementsByTagName"_s, elements,
        [&] { return new ListeSimulee(monEtat, document.elementsByTagName(nom)); });
}
