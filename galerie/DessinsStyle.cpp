// galerie/DessinsStyle.cpp
#include "DessinsStyle.h"

#include "DessinsElements.h"
#include "TraductionGalerie.h"

#include "style/InterpreteurChaineSemantiqueT.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

using namespace DessinsElements;

namespace {

template <typename Widget>
QWidget * Cree(QWidget * parent)
{
    return new Widget(parent);
}

QWidget * CreeBoutonDefaut(QWidget * parent)
{
    auto * const bouton = new QPushButton(parent);
    bouton->setDefault(true);
    return bouton;
}

QWidget * CreeBoutonAvecMenu(QWidget * parent)
{
    auto * const bouton = new QPushButton(parent);
    bouton->setMenu(new QMenu(bouton));
    return bouton;
}

QWidget * CreeBoutonOutil(QWidget * parent)
{
    auto * const bouton = new QToolButton(parent);
    bouton->setAutoRaise(true);
    return bouton;
}

QWidget * CreeBoutonOutilAvecMenu(QWidget * parent)
{
    auto * const bouton = new QToolButton(parent);
    bouton->setPopupMode(QToolButton::MenuButtonPopup);
    bouton->setMenu(new QMenu(bouton));
    return bouton;
}

QWidget * CreeOnglets(QWidget * parent)
{
    auto * const barre = new QTabBar(parent);
    for (int i = 0; i < kOnglets; ++i)
        barre->addTab(TraductionGalerie(TexteGalerie("Onglet")));
    barre->resize(barre->sizeHint());
    return barre;
}

QWidget * CreeEntete(QWidget * parent)
{
    return new QHeaderView(Qt::Horizontal, parent);
}

constexpr DessinStyle kDessins[] = {
    {eDessin::kBouton, TexteGalerie("Bouton"), &Cree<QPushButton>, &DessineBouton},
    {eDessin::kBoutonDefaut, TexteGalerie("Bouton par défaut"), &CreeBoutonDefaut, &DessineBouton},
    {eDessin::kBoutonAvecMenu, TexteGalerie("Bouton à menu"), &CreeBoutonAvecMenu, &DessineBouton},
    {eDessin::kBoutonOutil, TexteGalerie("Bouton d’outil"), &CreeBoutonOutil, &DessineBoutonOutil},
    {eDessin::kBoutonOutilAvecMenu, TexteGalerie("Bouton d’outil à menu"), &CreeBoutonOutilAvecMenu,
     &DessineBoutonOutil},
    {eDessin::kCaseACocher, TexteGalerie("Case à cocher"), &Cree<QCheckBox>, &DessineCaseACocher},
    {eDessin::kBoutonRadio, TexteGalerie("Bouton radio"), &Cree<QRadioButton>, &DessineBoutonRadio},
    {eDessin::kListeDeroulante, TexteGalerie("Liste déroulante"), &Cree<QComboBox>,
     &DessineListeDeroulante},
    {eDessin::kChamp, TexteGalerie("Champ"), &Cree<QLineEdit>, &DessineChamp},
    {eDessin::kChampSurPlusieursLignes, TexteGalerie("Champ de plusieurs lignes"),
     &Cree<QPlainTextEdit>, &DessineChampSurPlusieursLignes},
    {eDessin::kOnglet, TexteGalerie("Onglet"), &CreeOnglets, &DessineOnglet},
    {eDessin::kRangDeCellules, TexteGalerie("Rang de trois cellules"), &Cree<QTreeView>,
     &DessineRangDeCellules},
    {eDessin::kRangSeul, TexteGalerie("Rang d’une cellule"), &Cree<QTreeView>, &DessineRangSeul},
    {eDessin::kRangRiche, TexteGalerie("Rang balisé"), &Cree<QTreeView>, &DessineRangRiche},
    {eDessin::kSectionEntete, TexteGalerie("Section d’en-tête"), &CreeEntete,
     &DessineSectionEntete},
    {eDessin::kItemMenu, TexteGalerie("Élément de menu"), &Cree<QMenu>, &DessineItemMenuSimple},
    {eDessin::kItemMenuRiche, TexteGalerie("Élément de menu balisé"), &Cree<QMenu>,
     &DessineItemMenuRiche},
    {eDessin::kItemBarreMenu, TexteGalerie("Barre de menus"), &Cree<QMenuBar>,
     &DessineItemBarreMenu},
    {eDessin::kProgression, TexteGalerie("Barre de progression"), &Cree<QProgressBar>,
     &DessineProgression},
    {eDessin::kReglette, TexteGalerie("Réglette"), &Cree<QSlider>, &DessineReglette},
};

EnsembleRegles RemplaceExemple(UniChaine const & ouvrant, UniChaine const & fermant)
{
    using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
    return {
        {UniChaine("ex"), Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(ouvrant, fermant)}};
}

} // namespace

DessinStyle const & DonneDessin(eDessin sorte)
{
    return *std::find_if(std::begin(kDessins), std::end(kDessins),
                         [sorte](DessinStyle const & dessin) { return dessin.sorte == sorte; });
}

MapDeRegles DonneReglesExemple()
{
    EnsembleRegles const italique = RemplaceExemple("<i>", "</i>");
    EnsembleRegles const gras = RemplaceExemple("<b>", "</b>");
    return {{kContexteNormal, italique},
            {kContexteSelectionnay, gras},
            {kContexteSurvolay, RemplaceExemple("<u>", "</u>")},
            {kContexteMenuSelectionnay, gras}};
}
