// galerie/PageCombos.cpp
#include "PageCombos.h"

#include "ApercuFenetre.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "controls/DCheckBox.h"
#include "controls/DComboBoxAvecDLabelElision.h"
#include "controls/DComboSansDeco.h"
#include "controls/DMenuAction.h"
#include "controls/DPopUpMenu.h"
#include "controls/DToggleButton.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurElision = 230;
constexpr int kLargeurFleche = 16;
constexpr int kRayonPiste = 10;
constexpr int kRayonPouce = 8;

// As wide as the combo box and as high as its rows.
QSize DonneTailleListe(DComboBox & combo)
{
    QAbstractItemView const & vue = *combo.view();
    int hauteur = 0;
    for (int ligne = combo.PremierElementCachay() ? 1 : 0; ligne < combo.count(); ++ligne)
        hauteur += vue.sizeHintForIndex(combo.model()->index(ligne, 0)).height();
    auto const & fenetre = *qobject_cast<QFrame *>(vue.window());
    return {combo.sizeHint().width(), hauteur + 2 * (vue.frameWidth() + fenetre.frameWidth())};
}

ApercuFenetre * CreeApercuListe(DComboBox & combo)
{
    return new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")),
                             *combo.view()->window(), [&combo] { return DonneTailleListe(combo); });
}

DCheckBox * CreeOption(QString const & nom, ChaineLocalisable texte, bool cochay)
{
    auto * const option = new DCheckBox(TraductionGalerie(texte), nullptr, cochay);
    option->setObjectName(nom);
    return option;
}

QLabel * CreeEtiquette(QString const & texte, QWidget * compagnon)
{
    auto * const etiquette = new QLabel(texte);
    etiquette->setBuddy(compagnon);
    return etiquette;
}

QLabel * CreeLegende()
{
    auto * const legende = new QLabel(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")));
    legende->setObjectName(u"explicationPage"_s); // the sheet's colour for explanations
    return legende;
}

} // namespace

PageCombos::PageCombos(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Combos et menus")),
        TraductionGalerie(TexteGalerie(
            "Les listes déroulantes, une fenêtre qui s’ouvre à côté de son bouton et un menu fait "
            "de rangées. La plupart ont à côté l’image de ce qui s’ouvre.")));
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeAvecSeparateurs(), 0, 0);
    grille->addWidget(CreePremierCachay(), 0, 1);
    grille->addWidget(CreeElision(), 1, 0);
    grille->addWidget(CreeSansDeco(), 1, 1);
    grille->addWidget(CreePopUp(), 2, 0);
    grille->addWidget(CreeMenuAction(), 2, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    disposition->addLayout(grille);
    disposition->addStretch();

    PriseRangChangay();
    PriseMoisChoisi();
    Branche();
}

QWidget * PageCombos::CreeAvecSeparateurs()
{
    auto * const combo = new DComboBox;
    combo->setObjectName(u"avecSeparateurs"_s);
    combo->addItems(
        {TraductionGalerie(TexteGalerie("Français")), TraductionGalerie(TexteGalerie("Anglais"))});
    combo->insertSeparator(combo->count());
    combo->addItems(
        {TraductionGalerie(TexteGalerie("Allemand")), TraductionGalerie(TexteGalerie("Espagnol"))});
    combo->insertSeparator(combo->count());
    combo->addItem(TraductionGalerie(TexteGalerie("Autre langue…")));

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Avec séparateurs")));
    auto * const grille = new QGridLayout(groupe);
    grille->addWidget(CreeEtiquette(TraductionGalerie(TexteGalerie("Lan&gue du texte")), combo), 0,
                      0);
    grille->addWidget(combo, 1, 0, Qt::AlignTop | Qt::AlignLeading);
    grille->addWidget(CreeLegende(), 0, 1);
    grille->addWidget(CreeApercuListe(*combo), 1, 1, Qt::AlignTop | Qt::AlignLeading);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(1, 1);
    return groupe;
}

QWidget * PageCombos::CreePremierCachay()
{
    monPremierCachay = new DComboBox;
    monPremierCachay->setObjectName(u"premierCachay"_s);
    monPremierCachay->addItems({TraductionGalerie(TexteGalerie("(plusieurs modèles)")),
                                TraductionGalerie(TexteGalerie("Lettre")),
                                TraductionGalerie(TexteGalerie("Rapport")),
                                TraductionGalerie(TexteGalerie("Courriel"))});
    monPremierCachay->CachePremierElement();
    monBoutonPremier = new QPushButton(TraductionGalerie(TexteGalerie("Choisir le rang &0")));
    monRang = new QLabel;

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Premier rang caché")));
    auto * const grille = new QGridLayout(groupe);
    grille->addWidget(CreeEtiquette(TraductionGalerie(TexteGalerie("&Modèle")), monPremierCachay),
                      0, 0);
    grille->addWidget(monPremierCachay, 1, 0, Qt::AlignTop | Qt::AlignLeading);
    grille->addWidget(monBoutonPremier, 2, 0, Qt::AlignLeading);
    grille->addWidget(monRang, 3, 0);
    grille->addWidget(CreeLegende(), 0, 1);
    grille->addWidget(CreeApercuListe(*monPremierCachay), 1, 1, 3, 1,
                      Qt::AlignTop | Qt::AlignLeading);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(4, 1);
    return groupe;
}

QWidget * PageCombos::CreeElision()
{
    auto * const combo = new DComboBoxAvecDLabelElision;
    combo->setObjectName(u"avecElision"_s);
    combo->addItems(
        {TraductionGalerie(TexteGalerie("<b>Le dictionnaire</b> de tous les mots, de leurs formes "
                                        "et de leur <i>histoire</i>")),
         TraductionGalerie(TexteGalerie("<i>Un guide</i> court")),
         TraductionGalerie(TexteGalerie("Le <b>correcteur</b> et ses nombreux réglages, du plus "
                                        "simple au plus savant"))});
    combo->setFixedWidth(kLargeurElision);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Textes riches abrégés")));
    auto * const grille = new QGridLayout(groupe);
    grille->addWidget(CreeEtiquette(TraductionGalerie(TexteGalerie("&Outil")), combo), 0, 0);
    grille->addWidget(combo, 1, 0);
    grille->setColumnStretch(1, 1);
    return groupe;
}

QWidget * PageCombos::CreeSansDeco()
{
    monSansDeco = new DComboSansDeco;
    monSansDeco->setObjectName(u"sansDeco"_s);
    monSansDeco->setAccessibleName(TraductionGalerie(TexteGalerie("Mois")));
    for (int mois = 1; mois <= 12; ++mois)
        monSansDeco->addItem(locale().standaloneMonthName(mois));
    // Its list is as wide as the names, the combo box no wider than the arrow.
    monSansDeco->view()->setMinimumWidth(monSansDeco->sizeHint().width());
    monSansDeco->setFixedWidth(kLargeurFleche);
    monMois = new QLabel;

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("La flèche seule")));
    auto * const disposition = new QHBoxLayout(groupe);
    disposition->addWidget(
        CreeEtiquette(TraductionGalerie(TexteGalerie("Moi&s choisi")), monSansDeco));
    disposition->addWidget(monMois);
    disposition->addWidget(monSansDeco);
    disposition->addStretch();
    return groupe;
}

QWidget * PageCombos::CreePopUp()
{
    monBoutonPopUp = new QPushButton(TraductionGalerie(TexteGalerie("Ouvrir à &côté")));
    mesFermetures = new QLabel(TraductionGalerie(TexteGalerie("Pas encore fermée")));
    mesFermetures->setMinimumWidth(mesFermetures->sizeHint().width()); // other texts are shorter
    monPopUp = new DPopUpMenu(this);
    monPopUp->setFrameShape(QFrame::StyledPanel);
    auto * const contenu = new QVBoxLayout(monPopUp);
    contenu->addWidget(
        new QLabel(TraductionGalerie(TexteGalerie("Ce que la recherche regarde :"))));
    contenu->addWidget(CreeOption(u"chercheTitres"_s, TexteGalerie("Les <b>titres</b>"), true));
    contenu->addWidget(CreeOption(u"chercheNotes"_s, TexteGalerie("Les <i>notes</i>"), false));

    auto * const groupe =
        new QGroupBox(TraductionGalerie(TexteGalerie("Fenêtre à côté de son bouton")));
    auto * const grille = new QGridLayout(groupe);
    grille->addWidget(monBoutonPopUp, 0, 0, Qt::AlignLeading);
    grille->addWidget(mesFermetures, 1, 0, Qt::AlignTop);
    grille->addWidget(CreeLegende(), 0, 1);
    grille->addWidget(
        new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")), *monPopUp), 1, 1,
        Qt::AlignTop | Qt::AlignLeading);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(1, 1);
    return groupe;
}

QWidget * PageCombos::CreeMenuAction()
{
    monMenu = new DMenuAction(this);
    auto * const taille = new QSpinBox;
    taille->setObjectName(u"taille"_s);
    taille->setRange(6, 72); // points
    taille->setValue(12);
    taille->setAccessibleName(TraductionGalerie(TexteGalerie("Taille")));
    auto * const bascule = new DToggleButton(kRayonPiste, kRayonPouce);
    bascule->setObjectName(u"cesure"_s);
    bascule->setAccessibleName(TraductionGalerie(TexteGalerie("Césure")));
    bascule->setChecked(true);
    monWidgetDeRangee = new QLineEdit;
    monWidgetDeRangee->setObjectName(u"remarque"_s);
    monWidgetDeRangee->setAccessibleName(TraductionGalerie(TexteGalerie("Remarque")));
    monMenu->AjouteWidget(new QLabel(TraductionGalerie(TexteGalerie("Taille"))), taille);
    monMenu->AjouteWidget(new QLabel(TraductionGalerie(TexteGalerie("Césure"))), bascule);
    monMenu->AjouteSeparateur();
    monMenu->AjouteWidget(new QLabel(TraductionGalerie(TexteGalerie("Remarque"))),
                          monWidgetDeRangee);
    monBoutonMenu = new QPushButton(TraductionGalerie(TexteGalerie("Ouvrir le m&enu")));
    maRangeeAffichee = new QCheckBox(TraductionGalerie(TexteGalerie("&Rangée de la remarque")));
    maRangeeAffichee->setObjectName(u"rangeeAffichee"_s);
    maRangeeAffichee->setChecked(true);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Menu de rangées")));
    auto * const grille = new QGridLayout(groupe);
    monApercuMenu =
        new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")), *monMenu->window());
    grille->addWidget(monBoutonMenu, 0, 0, Qt::AlignLeading);
    grille->addWidget(maRangeeAffichee, 1, 0, Qt::AlignTop);
    grille->addWidget(CreeLegende(), 0, 1);
    grille->addWidget(monApercuMenu, 1, 1, Qt::AlignTop | Qt::AlignLeading);
    grille->setColumnStretch(2, 1);
    grille->setRowStretch(1, 1);
    return groupe;
}

void PageCombos::Branche()
{
    connect(monBoutonPremier, &QPushButton::clicked, this, &PageCombos::PrisePremierRang,
            Qt::UniqueConnection);
    connect(monPremierCachay, &QComboBox::currentIndexChanged, this, &PageCombos::PriseRangChangay,
            Qt::UniqueConnection);
    connect(monSansDeco, &QComboBox::currentIndexChanged, this, &PageCombos::PriseMoisChoisi,
            Qt::UniqueConnection);
    connect(monBoutonPopUp, &QPushButton::clicked, this, &PageCombos::PriseOuvrePopUp,
            Qt::UniqueConnection);
    connect(monPopUp, &DPopUpMenu::SignalPopupEnFermeture, this, &PageCombos::PrisePopUpEnFermeture,
            Qt::UniqueConnection);
    connect(monBoutonMenu, &QPushButton::clicked, this, &PageCombos::PriseOuvreMenu,
            Qt::UniqueConnection);
    connect(maRangeeAffichee, &QCheckBox::toggled, this, &PageCombos::PriseRangeeAffichee,
            Qt::UniqueConnection);
}

void PageCombos::PrisePremierRang()
{
    monPremierCachay->setCurrentIndex(0);
}

void PageCombos::PriseRangChangay()
{
    monRang->setText(
        TraductionGalerie(TexteGalerie("Rang courant : {1}"),
                          {UniChaine(locale().toString(monPremierCachay->currentIndex()))}));
}

void PageCombos::PriseMoisChoisi()
{
    monMois->setText(monSansDeco->currentText());
}

void PageCombos::PriseOuvrePopUp()
{
    monPopUp->AfficheToi(monBoutonPopUp->mapToGlobal(QPoint()), monBoutonPopUp->size());
}

void PageCombos::PrisePopUpEnFermeture()
{
    ++monNombreDeFermetures;
    mesFermetures->setText(TraductionPlurielGalerie(
        TextePlurielGalerie("Fermée {1} fois", "Fermée {1} fois"), monNombreDeFermetures));
}

void PageCombos::PriseOuvreMenu()
{
    monMenu->OuvrirMenuALaPosition(monBoutonMenu->mapToGlobal(QPoint(0, monBoutonMenu->height())));
}

void PageCombos::PriseRangeeAffichee()
{
    monMenu->AfficherRangeeDuWidget(monWidgetDeRangee, maRangeeAffichee->isChecked());
    monApercuMenu->Actualise();
}
