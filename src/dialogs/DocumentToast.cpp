// dialogs/DocumentToast.cpp
#include "dialogs/DocumentToast_p.h"

#include "noyau/plateforme/ReferenceComptay.h"

using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
HRESULT DonneElement(IXmlNodeList * elements, UINT indice, ReferenceComptay<IXmlNode> & element)
{
    return ExigeObjet(elements->Item(indice, element.Recois()), element);
}

HRESULT DonnePremierElement(IXmlDocument * document, QString const & nom,
                            ReferenceComptay<IXmlNode> & element)
{
    ReferenceComptay<IXmlNodeList> elements;
    HRESULT const resultat =
        ExigeObjet(document->GetElementsByTagName(nom, elements.Recois()), elements);
    return FAILED(resultat) ? resultat : DonneElement(elements.Prete(), 0, element);
}

HRESULT Ajoute(IXmlNode * parent, IXmlNode * enfant)
{
    ReferenceComptay<IXmlNode> ajoutay;
    return parent->AppendChild(enfant, ajoutay.Recois());
}

HRESULT AjouteTexte(IXmlDocument * document, IXmlNode * parent, QString const & texte)
{
    ReferenceComptay<IXmlText> noeudTexte;
    HRESULT resultat = ExigeObjet(document->CreateTextNode(texte, noeudTexte.Recois()), noeudTexte);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IXmlNode> noeud;
    resultat = ExigeObjet(noeudTexte->QueryInterface(noeud.Recois()), noeud);
    return FAILED(resultat) ? resultat : Ajoute(parent, noeud.Prete());
}

HRESULT MetsImage(IXmlDocument * document, QString const & image)
{
    ReferenceComptay<IXmlNode> element;
    HRESULT resultat = DonnePremierElement(document, u"image"_s, element);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IXmlNamedNodeMap> attributs;
    resultat = ExigeObjet(element->get_Attributes(attributs.Recois()), attributs);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IXmlNode> source;
    resultat = ExigeObjet(attributs->GetNamedItem(u"src"_s, source.Recois()), source);
    return FAILED(resultat) ? resultat : AjouteTexte(document, source.Prete(), image);
}

HRESULT MetsTextes(IXmlDocument * document, QList<QString> const & textes)
{
    ReferenceComptay<IXmlNodeList> elements;
    HRESULT resultat =
        ExigeObjet(document->GetElementsByTagName(u"text"_s, elements.Recois()), elements);
    UINT longueur = 0;
    if (SUCCEEDED(resultat))
        resultat = elements->get_Length(&longueur);
    // Texts that do not fit are left out, all of them: the toast still has its image and actions.
    if (FAILED(resultat) || textes.size() > longueur)
        return resultat;
    for (UINT i = 0; i < static_cast<UINT>(textes.size()) && SUCCEEDED(resultat); ++i) {
        ReferenceComptay<IXmlNode> element;
        resultat = DonneElement(elements.Prete(), i, element);
        if (SUCCEEDED(resultat))
            resultat = AjouteTexte(document, element.Prete(), textes.at(i));
    }
    return resultat;
}

// Creates the element, gives it its attributes and puts it under `parent`; `noeud` receives it.
HRESULT AjouteElement(IXmlDocument * document, IXmlNode * parent, QString const & nom,
                      QList<std::pair<QString, QString>> const & attributs,
                      ReferenceComptay<IXmlNode> & noeud)
{
    ReferenceComptay<IXmlElement> element;
    HRESULT resultat = ExigeObjet(document->CreateElement(nom, element.Recois()), element);
    for (auto const & [attribut, valeur] : attributs) {
        if (SUCCEEDED(resultat))
            resultat = element->SetAttribute(attribut, valeur);
    }
    if (SUCCEEDED(resultat))
        resultat = ExigeObjet(element->QueryInterface(noeud.Recois()), noeud);
    return FAILED(resultat) ? resultat : Ajoute(parent, noeud.Prete());
}

HRESULT MetsActions(IXmlDocument * document, QList<ContenuToast::Action> const & actions)
{
    ReferenceComptay<IXmlNode> racine;
    HRESULT resultat = DonnePremierElement(document, u"toast"_s, racine);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IXmlElement> toast;
    resultat = ExigeObjet(racine->QueryInterface(toast.Recois()), toast);
    // Someone has to read the toast and to choose.
    if (SUCCEEDED(resultat))
        resultat = toast->SetAttribute(u"duration"_s, u"long"_s);
    if (FAILED(resultat))
        return resultat;
    ReferenceComptay<IXmlNode> parent;
    resultat = AjouteElement(document, racine.Prete(), u"actions"_s, {}, parent);
    for (qsizetype i = 0; i < actions.size() && SUCCEEDED(resultat); ++i) {
        ReferenceComptay<IXmlNode> noeud;
        resultat = AjouteElement(document, parent.Prete(), u"action"_s,
                                 {{u"content"_s, actions.at(i).libelle},
                                  {u"arguments"_s, actions.at(i).arguments},
                                  {u"activationType"_s, u"foreground"_s}},
                                 noeud);
    }
    return resultat;
}
} // namespace

HRESULT RemplisDocumentToast(IXmlDocument * document, ContenuToast const & contenu)
{
    HRESULT resultat = MetsImage(document, contenu.image);
    if (SUCCEEDED(resultat))
        resultat = MetsTextes(document, contenu.textes);
    if (SUCCEEDED(resultat) && !contenu.actions.isEmpty())
        resultat = MetsActions(document, contenu.actions);
    return resultat;
}
