// noyau/plateforme/DocumentWinRTWin32.cpp
#include "noyau/plateforme/DocumentWinRT_p.h"

namespace {
class NoeudWinRT;

class AttributsWinRT final : public Enveloppe<Toasts::IXmlNamedNodeMap, AbiWinRT::IXmlNamedNodeMap>
{
public:
    using Enveloppe::Enveloppe;
    HRESULT GetNamedItem(QString const & nom, Toasts::IXmlNode ** noeud) override;
};

class ElementWinRT final : public Enveloppe<Toasts::IXmlElement, AbiWinRT::IXmlElement>
{
public:
    using Enveloppe::Enveloppe;
    HRESULT SetAttribute(QString const & nom, QString const & valeur) override;
    HRESULT QueryInterface(Toasts::IXmlNode ** noeud) override;
};

class NoeudWinRT final : public Enveloppe<Toasts::IXmlNode, AbiWinRT::IXmlNode>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT get_Attributes(Toasts::IXmlNamedNodeMap ** attributs) override
    {
        ReferenceComptay<AbiWinRT::IXmlNamedNodeMap> objet;
        return Rends<AttributsWinRT>(Prete()->get_Attributes(objet.Recois()), objet, attributs);
    }

    HRESULT AppendChild(Toasts::IXmlNode * enfant, Toasts::IXmlNode ** ajoutay) override
    {
        auto * const noeud = static_cast<NoeudWinRT *>(enfant)->Prete();
        ReferenceComptay<AbiWinRT::IXmlNode> objet;
        return Rends<NoeudWinRT>(Prete()->AppendChild(noeud, objet.Recois()), objet, ajoutay);
    }

    HRESULT QueryInterface(Toasts::IXmlElement ** element) override
    {
        ReferenceComptay<AbiWinRT::IXmlElement> objet;
        return Rends<ElementWinRT>(Interroge(Prete(), objet.Recois()), objet, element);
    }
};

HRESULT AttributsWinRT::GetNamedItem(QString const & nom, Toasts::IXmlNode ** noeud)
{
    *noeud = nullptr;
    ChaineWinRT const chaine(nom);
    if (FAILED(chaine.DonneResultat()))
        return chaine.DonneResultat();
    ReferenceComptay<AbiWinRT::IXmlNode> objet;
    return Rends<NoeudWinRT>(Prete()->GetNamedItem(chaine.Prete(), objet.Recois()), objet, noeud);
}

HRESULT ElementWinRT::SetAttribute(QString const & nom, QString const & valeur)
{
    ChaineWinRT const chaineNom(nom);
    if (FAILED(chaineNom.DonneResultat()))
        return chaineNom.DonneResultat();
    ChaineWinRT const chaineValeur(valeur);
    if (FAILED(chaineValeur.DonneResultat()))
        return chaineValeur.DonneResultat();
    return Prete()->SetAttribute(chaineNom.Prete(), chaineValeur.Prete());
}

HRESULT ElementWinRT::QueryInterface(Toasts::IXmlNode ** noeud)
{
    ReferenceComptay<AbiWinRT::IXmlNode> objet;
    return Rends<NoeudWinRT>(Interroge(Prete(), objet.Recois()), objet, noeud);
}

class TexteWinRT final : public Enveloppe<Toasts::IXmlText, AbiWinRT::IXmlText>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT QueryInterface(Toasts::IXmlNode ** noeud) override
    {
        ReferenceComptay<AbiWinRT::IXmlNode> objet;
        return Rends<NoeudWinRT>(Interroge(Prete(), objet.Recois()), objet, noeud);
    }
};

class ListeWinRT final : public Enveloppe<Toasts::IXmlNodeList, AbiWinRT::IXmlNodeList>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT get_Length(UINT * longueur) override { return Prete()->get_Length(longueur); }

    HRESULT Item(UINT indice, Toasts::IXmlNode ** noeud) override
    {
        ReferenceComptay<AbiWinRT::IXmlNode> objet;
        return Rends<NoeudWinRT>(Prete()->Item(indice, objet.Recois()), objet, noeud);
    }
};

template <typename Adaptateur, typename Com, typename Operation, typename Interface>
HRESULT Cree(AbiWinRT::IXmlDocument * document, Operation operation, QString const & texte,
             Interface ** sortie)
{
    *sortie = nullptr;
    ChaineWinRT const chaine(texte);
    if (FAILED(chaine.DonneResultat()))
        return chaine.DonneResultat();
    ReferenceComptay<Com> objet;
    return Rends<Adaptateur>((document->*operation)(chaine.Prete(), objet.Recois()), objet, sortie);
}
} // namespace

HRESULT DocumentWinRT::CreateElement(QString const & nom, Toasts::IXmlElement ** element)
{
    return Cree<ElementWinRT, AbiWinRT::IXmlElement>(
        Prete(), &AbiWinRT::IXmlDocument::CreateElement, nom, element);
}

HRESULT DocumentWinRT::CreateTextNode(QString const & texte, Toasts::IXmlText ** noeud)
{
    return Cree<TexteWinRT, AbiWinRT::IXmlText>(Prete(), &AbiWinRT::IXmlDocument::CreateTextNode,
                                                texte, noeud);
}

HRESULT DocumentWinRT::GetElementsByTagName(QString const & nom, Toasts::IXmlNodeList ** elements)
{
    return Cree<ListeWinRT, AbiWinRT::IXmlNodeList>(
        Prete(), &AbiWinRT::IXmlDocument::GetElementsByTagName, nom, elements);
}
