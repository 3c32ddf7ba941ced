// search/BarreRecherche.cpp
#include "search/BarreRecherche.h"

#include "search/AlerteIntrouvable_p.h"

#include "foundation/TraductionGui.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
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

BarreRecherche::BarreRecherche(QWidget * parent, bool remplacer, bool commencePar, bool occurrences,
                               bool motEntier)
    : QFrame(parent)
    , WidgetRechercheAbstrait(remplacer)
    , monGroupeModes(this)
{
    setObjectName(u"BandeauRecherche"_s); // applications style it under this name
    setFocusPolicy(Qt::ClickFocus);
    setAccessibleName(TraductionGui(TexteGui("Barre de recherche")));
    CreeBoutons();
    CreeChamps(occurrences);
    CreeBoutonsRemplacement();
    CreeMenu(commencePar, motEntier);
    PoseGrille();
    OrdonneTabulation();
    MontreRemplacement(false);
    if (occurrences)
        BarreRecherche::ActualiseOccurrences(0, 0);
    Branche(); // last: no slot may run on a half-built bar
    QMetaObject::connectSlotsByName(this);
}

BarreRecherche::~BarreRecherche()
{
    delete monActionRespecterCasse;
    delete monActionCommencePar;
    delete monActionMotEntier;
    delete monActionContient;
}

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
    struct
    {
        QToolButton * bouton;
        void (BarreRecherche::*prise)();
    } const boutons[] = {
        {monBoutonFermer, &BarreRecherche::PriseBoutonFermer},
        {monBoutonSuivant, &BarreRecherche::PriseChercherSuivant},
        {monBoutonPrecedent, &BarreRecherche::PriseChercherPrecedent},
        {monBoutonRemplacer, &BarreRecherche::PriseBoutonRemplacer},
        {monBoutonRemplacerTout, &BarreRecherche::PriseBoutonRemplacerTout},
        {monBoutonAnnuler, &BarreRecherche::PriseBoutonAnnuler},
    };
    for (auto const & [bouton, prise] : boutons)
        connect(bouton, &QToolButton::clicked, this, prise, Qt::UniqueConnection);

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
        if (moi != nullptr)
            moi->MontreRemplacement(visible);
    };
    connect(monActionRemplacer, &QAction::triggered, monActionRemplacer, montre,
            Qt::DirectConnection);
}

void BarreRecherche::AfficheMessageTexteIntrouvable(bool pourListe) const
{
    AlerteIntrouvable(parentWidget(), DonneOptions(), pourListe, TexteGui("Texte introuvable."));
}

void BarreRecherche::AfficheToi()
{
    show();
}

void BarreRecherche::ActualiseOccurrences(int const & position, int const & total)
{
    if (monEtiquetteOccurrences == nullptr)
        return;
    monEtiquetteOccurrences->setVisible(total >= 1);
    monEtiquetteOccurrences->setText(u"%1/%2"_s.arg(position).arg(total));
    bool const actif = total > 0 && !monEnCoursDeRemplacerTout;
    monBoutonPrecedent->setEnabled(actif);
    monBoutonSuivant->setEnabled(actif);
}

void BarreRecherche::MetEnCoursDeRemplacerTout(bool enCours)
{
    monEnCoursDeRemplacerTout = enCours;
    monBoutonAnnuler->setEnabled(enCours);
    for (QToolButton * const bouton :
         {monBoutonRemplacer, monBoutonRemplacerTout, monBoutonPrecedent, monBoutonSuivant})
        bouton->setEnabled(!enCours);
}

void BarreRecherche::CacheToi()
{
    QPointer<BarreRecherche> const moi(this);
    Q_EMIT SignalFermeture();
    if (moi != nullptr)
        hide();
}

QWidget * BarreRecherche::DonneMoiEnWidget()
{
    return this;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void BarreRecherche::MetsChaineAChercher(UniChaine chaine)
{
    monChampRecherche->setText(chaine);
    RetiensChaineRecherche(chaine);
}

void BarreRecherche::ModifieSensRecherche(CstRecherche::eTypeRecherche type)
{
    RetiensSensRecherche(type);
    ActualiserEtatPanneau();
}

void BarreRecherche::PrendsChaineRecherche(QString const & chaine)
{
    RetiensChaineRecherche(chaine);
    monChampRecherche->setText(chaine);
}

void BarreRecherche::PrendsChaineRemplacement(QString const & chaine)
{
    RetiensChaineRemplacement(chaine);
}

void BarreRecherche::PrendsFocus()
{
    monChampRecherche->setFocus();
}

void BarreRecherche::PriseBoutonFermer()
{
    QPointer<BarreRecherche> const moi(this);
    BoutonAnnulerRemplacerTout();
    if (moi != nullptr)
        Q_EMIT SignalBarreRechercheFermay();
    if (moi != nullptr)
        CacheToi();
}

void BarreRecherche::PriseActualiserEtatPanneau()
{
    ActualiserEtatPanneau();
}

void BarreRecherche::PriseBoutonChercher()
{
    BoutonChercher();
}

void BarreRecherche::PriseChercherSuivant()
{
    ChercherSuivant();
}

void BarreRecherche::PriseChercherPrecedent()
{
    ChercherPrecedent();
}

void BarreRecherche::PriseBoutonRemplacerTout()
{
    BoutonRemplacerTout();
}

void BarreRecherche::PriseBoutonRemplacer()
{
    BoutonRemplacer();
}

void BarreRecherche::PriseBoutonAnnuler()
{
    BoutonAnnulerRemplacerTout();
}

void BarreRecherche::PriseTexteEditer()
{
    TexteDeRechercheChanger();
}

bool BarreRecherche::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const estUnChamp = objet == monChampRecherche || objet == monChampRemplacement;
    if (!estUnChamp || evenement->type() != QEvent::KeyRelease ||
        static_cast<QKeyEvent *>(evenement)->key() != Qt::Key_Escape)
        return false;
    QPointer<BarreRecherche> const moi(this);
    // Deliberate: unlike the close button, Escape cancels nothing and tells of the closing last.
    CacheToi();
    if (moi != nullptr)
        Q_EMIT SignalBarreRechercheFermay();
    // Nothing is swallowed; but a field that went with the bar must not get the event any more.
    return moi == nullptr;
}

void BarreRecherche::showEvent(QShowEvent * evenement)
{
    QFrame::showEvent(evenement);
    activateWindow();
    monChampRecherche->selectAll();
    monChampRecherche->setFocus();
}

void BarreRecherche::ActualiserEtatPanneau()
{
    RetiensChaineRecherche(monChampRecherche->text());
    RetiensChaineRemplacement(monChampRemplacement->text());
    // Deliberate: a new search counts as downward, and the bar always wraps around.
    short options = CstRecherche::kBoucler;
    options |=
        DonneSensRecherche() < CstRecherche::kVersLeHaut ? CstRecherche::kBas : CstRecherche::kHaut;
    if (monActionRespecterCasse->isChecked())
        options |= CstRecherche::kRespecterCasse;
    if (monActionCommencePar != nullptr && monActionCommencePar->isChecked())
        options |= CstRecherche::kCommencePar;
    else if (monActionMotEntier != nullptr && monActionMotEntier->isChecked())
        options |= CstRecherche::kMotEntier;
    PrendsOptions(options);
}

void BarreRecherche::PriseActualiseEtatPanneau()
{
    ActualiserEtatPanneau();
}

void BarreRecherche::MontreRemplacement(bool visible)
{
    monChampRemplacement->setVisible(visible);
    monCadreBoutonsRemplacement->setVisible(visible);
    QMargins const marges = layout()->contentsMargins();
    int const hauteurRemplacement = visible ? monChampRemplacement->height() : 0;
    // Deliberate: the spacing between the rows is not counted, the band is that tight.
    setFixedHeight(hauteurRemplacement + monChampRecherche->height() + marges.top() +
                   marges.bottom());
}
