// galerie/ProprietesMontrees.cpp
#include "ProprietesMontrees.h"

#include "TraductionGalerie.h"

#include "style/DStyleProxy.h"

#include <QWidget>

QList<ProprieteMontree> const & DonneProprietesMontrees()
{
    using Style = DStyleProxy;
    using enum eDessin;
    char const * const pourStyle = Style::DonneNomAttributPourStyle();
    char const * const regles = Style::DonneNomProprieteEnsembleReglesTexteRiche();
    char const * const riche = Style::DonneNomProprietePossedeRegleTexteRiche();
    static QList<ProprieteMontree> const proprietes = {
        {Style::DonneNomStyleCouleurBordure(),
         TexteGalerie("Lue par les seules feuilles de style."),
         {kBouton}},
        {Style::DonneNomStyleListSeparateur(),
         TexteGalerie("Un pixel reste libre sous le rang, pour un séparateur."),
         {kRangDeCellules, kRangSeul}},
        {Style::DonneNomAttributMenuCochableSansLaSectionACocher(),
         TexteGalerie("Un menu balisé sans colonne à cocher."),
         {kItemMenuRiche},
         {riche, regles}},
        {Style::DonneNomStyleFocusSansRect(),
         TexteGalerie("Pas de rectangle autour de ce qui a le focus."),
         {kBouton, kCaseACocher, kReglette}},
        {pourStyle,
         TexteGalerie("L’image d’un bouton inactif ou non cochable pâlit ; les fonds des boutons, "
                      "des onglets et des rangs sont ceux du style de base."),
         {kBoutonDefaut, kBouton, kBoutonOutil, kOnglet, kRangSeul, kSectionEntete}},
        {Style::DonneNomAttributStyleBoutonSansDecalage(),
         TexteGalerie("Le contenu d’un bouton enfoncé ne bouge pas, sur un style de base qui le "
                      "décale."),
         {kBouton}},
        {Style::DonneNomAttributPourStyleBoutonCheckable(),
         TexteGalerie("L’image d’un bouton actif ne pâlit pas, même s’il n’est pas cochable."),
         {kBouton, kBoutonOutil},
         {pourStyle}},
        {Style::DonneNomStyleBoutonsStyleHomographes(),
         TexteGalerie("Le survol et le choix se voient à la couleur du texte, pas au fond."),
         {kBouton}},
        {Style::DonneNomStyleDesactiveBevelBouton(),
         TexteGalerie("Un bouton sans fond ni bord."),
         {kBouton, kBoutonDefaut}},
        {Style::DonneNomStyleDesactiveFlecheMenuBouton(),
         TexteGalerie("Un bouton à menu sans flèche."),
         {kBoutonAvecMenu, kBoutonOutilAvecMenu}},
        {Style::DonneNomAttributStyleChampTexteSansLigneDecoratrice(),
         TexteGalerie("Aucun élément du champ n’est dessiné, ni cadre ni ligne."),
         {kChampSurPlusieursLignes}},
        {Style::DonneNomAttributStyleComboBoxSansFleche(),
         TexteGalerie("Une liste déroulante sans flèche : le texte en prend la place."),
         {kListeDeroulante}},
        {Style::DonneNomStyleComboBoxSansFrame(),
         TexteGalerie("Une liste déroulante sans cadre."),
         {kListeDeroulante}},
        {Style::DonneNomAttributStyleCrochetMenu(),
         TexteGalerie("Tous les éléments d’un menu se cochent."),
         {kItemMenu}},
        {regles,
         TexteGalerie("Les règles des balises : italique d’ordinaire, gras à la sélection, "
                      "souligné au survol."),
         {kRangRiche, kItemMenuRiche},
         {riche}},
        {Style::DonneNomStyleEspacementReduitCaseCochay(),
         TexteGalerie("Deux fois moins d’espace entre une case et son texte."),
         {kCaseACocher},
         {pourStyle}},
        {Style::DonneNomAttributPourStyleMonochrome(),
         TexteGalerie("Plus pâle quand il est désactivé."),
         {kBoutonDefaut, kCaseACocher, kProgression}},
        {Style::DonneNomAttributPourStyleScrolling(),
         TexteGalerie("Un menu défile et ne dépasse pas la hauteur maximale du widget."),
         {}},
        {Style::DonneNomStyleSelecteurDictionnaires(),
         TexteGalerie("La marque du rang choisi a la couleur des dictionnaires."),
         {kRangSeul, kRangDeCellules}},
        {Style::DonneNomStyleSelecteurGuides(),
         TexteGalerie("La marque du rang choisi a la couleur des guides."),
         {kRangSeul, kRangDeCellules}},
        {riche,
         TexteGalerie("Les textes suivent les règles de leurs balises."),
         {kRangRiche, kItemMenuRiche},
         {regles}},
    };
    return proprietes;
}

void MetsPropriete(QWidget & widget, char const * nom)
{
    bool const sontDesRegles =
        qstrcmp(nom, DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche()) == 0;
    widget.setProperty(nom,
                       sontDesRegles ? QVariant::fromValue(DonneReglesExemple()) : QVariant(true));
}
