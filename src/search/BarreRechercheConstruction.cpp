// search/BarreRechercheConstruction.cpp
#include "search/BarreRecherche.h"

#include "foundation/TraductionGui.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kHauteurChamp = 20;
constexpr int kLargeurMinChamp = 100;
constexpr int kMargeVerticale = 5;
constexpr int kEspacement = 3;
constexpr QSize kCotesBouton(20, 20);
constexpr QSize kCotesCroix(10, 8);

QToolButton * CreeBouton(QWidget * parent)
{
    auto * const bouton = new QToolButton(parent);
    bouton->setAutoRaise(true);
    return bouton;
}

QToolButton * CreeBoutonIcone(QWidget * parent, QString const & icone,
                              ChaineLocalisable const & infobulle)
{
    QToolButton * const bouton = CreeBouton(parent);
    bouton->setIcon(QIcon(icone));
    bouton->setToolTip(TraductionGui(infobulle));
    bouton->setAccessibleName(bouton->toolTip()); // it shows no text that could name it
    return bouton;
}

QToolButton * CreeBoutonTexte(QWidget * parent, ChaineLocalisable const & texte)
{
    QToolButton * const bouton = CreeBouton(parent);
    bouton->setText(TraductionGui(texte));
    return bouton;
}

QLineEdit * CreeChamp(QWidget * parent, ChaineLocalisable const & invite)
{
    auto * const champ = new QLineEdit(parent);
    champ->setObjectName(u"ChampTexteRecherche"_s); // applications style both fields under it
    champ->setFixedHeight(kHauteurChamp);
    champ->setMinimumWidth(kLargeurMinChamp);
    champ->setPlaceholderText(TraductionGui(invite));
    champ->setAccessibleName(champ->placeholderText()); // which goes once there is a text
    champ->setClearButtonEnabled(true);
    return champ;
}

QAction * CreeAction(QObject * parent, ChaineLocalisable const & texte)
{
    auto * const action = new QAction(TraductionGui(texte), parent);
    action->setCheckable(true);
    return action;
}

} // namespace

void BarreRecherche::CreeBoutons()
{
    monBoutonFermer = CreeBoutonIcone(this, u":/Images/rechercheX.svg"_s,
                                      TexteGui("Fermer la barre de recherche"));
    monBoutonFermer->setIconSize(kCotesCroix);
    monBoutonFermer->setFixedSize(kCotesBouton);
    monBoutonFermer->setToolButtonStyle(Qt::ToolButtonIconOnly);

    monBoutonOptions =
        CreeBoutonIcone(this, u":/Images/Options_Recherche.svg"_s, TexteGui("Options"));
    monBoutonOptions->setFixedSize(kCotesBouton);
    monBoutonOptions->setCheckable(true);
    monBoutonOptions->setToolButtonStyle(Qt::ToolButtonIconOnly);
    monBoutonOptions->setPopupMode(QToolButton::InstantPopup);
    monBoutonOptions->setObjectName(u"ToolButtonSansFleche"_s); // style sheets drop its arrow

    monBoutonPrecedent = CreeBoutonIcone(this, u":/Images/recherchePrecedente.svg"_s,
                                         TexteGui("Occurrence précédente"));
    monBoutonSuivant =
        CreeBoutonIcone(this, u":/Images/rechercheSuivante.svg"_s, TexteGui("Occurrence suivante"));
}

void BarreRecherche::CreeChamps(bool avecCompteur)
{
    monChampRecherche = CreeChamp(this, TexteGui("Rechercher"));
    monChampRecherche->setToolTip(TraductionGui(TexteGui("Chercher un mot")));
    if (avecCompteur)
        monEtiquetteOccurrences = new QLabel(this);
    monChampRemplacement = CreeChamp(this, TexteGui("Remplacer"));
    monChampRecherche->installEventFilter(this);
    monChampRemplacement->installEventFilter(this);
}

void BarreRecherche::CreeBoutonsRemplacement()
{
    monCadreBoutonsRemplacement = new QFrame(this);
    monBoutonRemplacer = CreeBoutonTexte(monCadreBoutonsRemplacement, TexteGui("Remplacer"));
    monBoutonRemplacerTout = CreeBoutonTexte(monCadreBoutonsRemplacement, TexteGui("Tout"));
    monBoutonAnnuler = CreeBoutonTexte(monCadreBoutonsRemplacement, TexteGui("Annuler"));
    monBoutonAnnuler->setEnabled(false);

    auto * const rangee = new QHBoxLayout(monCadreBoutonsRemplacement);
    rangee->setContentsMargins({}); // the row is as high as a field: margins would eat the buttons
    rangee->setSpacing(kEspacement);
    for (QToolButton * const bouton :
         {monBoutonRemplacer, monBoutonRemplacerTout, monBoutonAnnuler})
        rangee->addWidget(bouton);
}

void BarreRecherche::CreeMenu(bool commencePar, bool motEntier)
{
    monActionContient = CreeAction(&monGroupeModes, TexteGui("contient"));
    monActionContient->setChecked(true);
    if (commencePar)
        monActionCommencePar = CreeAction(&monGroupeModes, TexteGui("commence par"));
    if (motEntier)
        monActionMotEntier = CreeAction(&monGroupeModes, TexteGui("Mot entier"));
    monActionRespecterCasse = CreeAction(nullptr, TexteGui("respecter la casse"));

    monMenuOptions = new QMenu;
    if (DonnePermetRemplacer()) {
        monActionRemplacer = CreeAction(nullptr, TexteGui("Remplacer"));
        monMenuOptions->addAction(monActionRemplacer);
        monMenuOptions->addSeparator();
    }
    monMenuOptions->addActions(monGroupeModes.actions());
    monMenuOptions->addSeparator();
    monMenuOptions->addAction(monActionRespecterCasse);
    monBoutonOptions->setMenu(monMenuOptions);
}

void BarreRecherche::PoseGrille()
{
    auto * const grille = new QGridLayout(this);
    grille->setContentsMargins(0, kMargeVerticale, 0, kMargeVerticale);
    grille->setSpacing(kEspacement);
    grille->setVerticalSpacing(kEspacement);
    // The empty column 2 takes half of the spare width, and so keeps the field from filling a wide
    // window.
    grille->setColumnStretch(1, 1);
    grille->setColumnStretch(2, 1);

    int const colonne = monEtiquetteOccurrences == nullptr ? 3 : 4;
    grille->addWidget(monBoutonOptions, 0, 0);
    grille->addWidget(monChampRecherche, 0, 1);
    if (monEtiquetteOccurrences != nullptr)
        grille->addWidget(monEtiquetteOccurrences, 0, 3);
    grille->addWidget(monBoutonPrecedent, 0, colonne);
    grille->addWidget(monBoutonSuivant, 0, colonne + 1);
    grille->addWidget(monBoutonFermer, 0, colonne + 2, Qt::AlignRight);
    grille->addWidget(monChampRemplacement, 1, 1);
    grille->addWidget(monCadreBoutonsRemplacement, 1, colonne, 1, 3);
}

void BarreRecherche::OrdonneTabulation()
{
    QWidget * precedent = monBoutonOptions;
    for (QWidget * const suivant : std::initializer_list<QWidget *>{
             monChampRecherche, monChampRemplacement, monBoutonPrecedent, monBoutonSuivant,
             monBoutonRemplacer, monBoutonRemplacerTout, monBoutonAnnuler, monBoutonFermer}) {
        setTabOrder(precedent, suivant);
        precedent = suivant;
    }
}

void BarreRecherche::Branche()
{
    connect(monBoutonFermer, &QToolButton::clicked, this, &BarreRecherche::PriseBoutonFermer,
            Qt::UniqueConnection);
    connect(monBoutonSuivant, &QToolButton::clicked, this, &BarreRecherche::PriseChercherSuivant,
            Qt::UniqueConnection);
    connect(monBoutonPrecedent, &QToolButton::clicked, this,
            &BarreRecherche::PriseChercherPrecedent, Qt::UniqueConnection);
    connect(monBoutonRemplacer, &QToolButton::clicked, this, &BarreRecherche::PriseBoutonRemplacer,
            Qt::UniqueConnection);
    connect(monBoutonRemplacerTout, &QToolButton::clicked, this,
            &BarreRecherche::PriseBoutonRemplacerTout, Qt::UniqueConnection);
    connect(monBoutonAnnuler, &QToolButton::clicked, this, &BarreRecherche::PriseBoutonAnnuler,
            Qt::UniqueConnection);

    connect(monChampRecherche, &QLineEdit::returnPressed, this,
            &BarreRecherche::PriseBoutonChercher, Qt::UniqueConnection);
    connect(monChampRecherche, &QLineEdit::textEdited, this, &BarreRecherche::PriseTexteEditer,
            Qt::UniqueConnection);
    connect(monChampRemplacement, &QLineEdit::returnPressed, this,
            &BarreRecherche::PriseBoutonRemplacer, Qt::UniqueConnection);

    // A change of mode searches again at once.
    for (QAction * const action :
         {monActionContient, monActionCommencePar, monActionMotEntier, monActionRespecterCasse}) {
        if (action != nullptr)
            connect(action, &QAction::triggered, this, &BarreRecherche::PriseBoutonChercher,
                    Qt::UniqueConnection);
    }
    BrancheRemplacement();
}

void BarreRecherche::BrancheRemplacement()
{
    // The menu and its item outlive the destructor: what was chosen in the open menu may be what
    // deletes the bar.
    connect(this, &QObject::destroyed, monMenuOptions, &QObject::deleteLater, Qt::UniqueConnection);
    if (monActionRemplacer == nullptr)
        return;
    connect(this, &QObject::destroyed, monActionRemplacer, &QObject::deleteLater,
            Qt::UniqueConnection);
    auto const montre = [moi = QPointer<BarreRecherche>(this)](bool visible) {
        if (moi != nullptr) {
            moi->MontreRemplacement(visible);
            moi->updateGeometry();
        }
    };
    connect(monActionRemplacer, &QAction::triggered, monActionRemplacer, montre,
            Qt::DirectConnection);
}
