// search/DialogueRechercher.cpp
#include "search/DialogueRechercher.h"

#include "search/AlerteIntrouvable_p.h"

#include "foundation/GeometrieEcran.h"
#include "foundation/TraductionGui.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QVBoxLayout>
#include <QWindow>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr short kSens = CstRecherche::kHaut | CstRecherche::kBas;
// Average characters.
constexpr int kLargeurChamp = 30; // the least that a field shows
constexpr int kEcartColonnes = 2; // wider than that of a style: each column is a group

// Where the last dialog of the process stood, with its frame.
std::optional<QPoint> & DernierePosition()
{
    static std::optional<QPoint> position;
    return position;
}

// What is checked and counts.
bool EstCochay(QAbstractButton const * bouton)
{
    return bouton && bouton->isEnabled() && bouton->isChecked();
}

// Gives a text the first of its letters that is neither taken nor hard to type.
QString AjouteLettre(QString texte, QString & prises)
{
    for (qsizetype place = 0; place < texte.size(); ++place) {
        QChar const lettre = texte.at(place).toLower();
        if (lettre < u'a' || lettre > u'z' || prises.contains(lettre))
            continue;
        prises += lettre;
        return texte.insert(place, u'&');
    }
    return texte;
}

void AjouteColonne(QHBoxLayout & rangee, std::initializer_list<QWidget *> widgets)
{
    auto * const colonne = new QVBoxLayout;
    for (QWidget * const widget : widgets)
        if (widget)
            colonne->addWidget(widget);
    if (colonne->isEmpty()) {
        delete colonne;
        return;
    }
    colonne->addStretch();
    rangee.addLayout(colonne);
}

} // namespace

DialogueRechercher::DialogueRechercher(QWidget * parent, bool remplacer, short masque)
    : QDialog(parent)
    , WidgetRechercheAbstrait(remplacer)
    , monMasque(masque)
{
    setObjectName(u"DialogueRechercher"_s); // applications style it under this name
    setWindowTitle(TraductionGui(remplacer ? TexteGui("Remplacer") : TexteGui("Rechercher")));
    CreeChamps();
    CreeOptions();
    CreeBoutons();
    Dispose();
    DonneLettres();
    Branche();
    PriseActualiserBoutons();
}

DialogueRechercher::~DialogueRechercher()
{
    // A window that is deleted while it shows gets no hide event of ours.
    if (isVisible())
        RetiensPosition();
}

void DialogueRechercher::AfficheMessageTexteIntrouvable(bool pourListe) const
{
    // The widget of the field is the way to this dialog as something that is not const.
    QWidget * const parent = isVisible() ? monChampRecherche->window() : parentWidget();
    AlerteIntrouvable(parent, DonneOptions(), pourListe,
                      TexteGui("Texte introuvable dans le texte."));
}

void DialogueRechercher::AfficheToi()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void DialogueRechercher::MetEnCoursDeRemplacerTout(bool enCours)
{
    monRemplacementEnCours = enCours;
    PriseActualiserBoutons();
}

void DialogueRechercher::CacheToi()
{
    QPointer<DialogueRechercher> const vivant(this);
    Q_EMIT SignalFermeture();
    if (vivant && !isHidden())
        done(Rejected);
}

QWidget * DialogueRechercher::DonneMoiEnWidget()
{
    return this;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void DialogueRechercher::MetsChaineAChercher(UniChaine chaine)
{
    PrendsChaineRecherche(chaine);
    // Not a refresh: a host that sets a text of its own gets the options of the last gesture. But
    // it may have set a direction with it, which the user has to see.
    SuisSens();
}

void DialogueRechercher::ModifieSensRecherche(CstRecherche::eTypeRecherche type)
{
    RetiensSensRecherche(type);
    ActualiserEtatPanneau();
}

void DialogueRechercher::PrendsChaineRecherche(QString const & chaine)
{
    RetiensChaineRecherche(chaine);
    monChampRecherche->setText(chaine);
}

void DialogueRechercher::PrendsChaineRemplacement(QString const & chaine)
{
    RetiensChaineRemplacement(chaine);
    if (monChampRemplacement)
        monChampRemplacement->setText(chaine);
}

void DialogueRechercher::PrendsFocus()
{
    monChampRecherche->setFocus();
    monChampRecherche->selectAll();
}

// Not the events: when a window is told that it shows, its frame is not known any more as part of
// its position, nor yet by its size.
void DialogueRechercher::setVisible(bool visible)
{
    if (visible && isHidden())
        ReprendsPosition();
    else if (!visible && isVisible())
        RetiensPosition();
    QDialog::setVisible(visible);
}

void DialogueRechercher::PriseBoutonFermer()
{
    QPointer<DialogueRechercher> const vivant(this);
    BoutonAnnulerRemplacerTout();
    if (vivant)
        Q_EMIT SignalDialogueRechercheFermay();
    if (vivant)
        CacheToi();
}

void DialogueRechercher::reject()
{
    PriseBoutonFermer();
}

void DialogueRechercher::PriseActualiserEtatPanneau()
{
    ActualiserEtatPanneau();
}

void DialogueRechercher::PriseBoutonChercher()
{
    if (EstCochay(monChoixHaut))
        ChercherPrecedent();
    else
        BoutonChercher();
}

void DialogueRechercher::PriseChercherSuivant()
{
    ChercherSuivant();
}

void DialogueRechercher::PriseChercherPrecedent()
{
    ChercherPrecedent();
}

void DialogueRechercher::PriseBoutonRemplacerTout()
{
    BoutonRemplacerTout();
}

void DialogueRechercher::PriseBoutonRemplacer()
{
    BoutonRemplacer();
}

void DialogueRechercher::PriseBoutonAnnuler()
{
    BoutonAnnulerRemplacerTout();
}

void DialogueRechercher::ActualiserEtatPanneau()
{
    RetiensChaineRecherche(monChampRecherche->text());
    if (monChampRemplacement)
        RetiensChaineRemplacement(monChampRemplacement->text());
    int options = 0;
    if (EstCochay(maCaseMotEntier))
        options |= CstRecherche::kMotEntier;
    if (EstCochay(maCaseCasse))
        options |= CstRecherche::kRespecterCasse;
    if (EstCochay(maCaseBoucler))
        options |= CstRecherche::kBoucler;
    if (EstCochay(monChoixCommencePar))
        options |= CstRecherche::kCommencePar;
    PrendsOptions(static_cast<short>(options));
    SuisSens();
}

// Return presses the button of the field that it is pressed in.
bool DialogueRechercher::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monChampRemplacement && evenement->type() == QEvent::FocusIn)
        monBoutonRemplacer->setDefault(true);
    else if (objet == monChampRemplacement && evenement->type() == QEvent::FocusOut)
        monBoutonChercher->setDefault(true);
    return QDialog::eventFilter(objet, evenement);
}

void DialogueRechercher::showEvent(QShowEvent * evenement)
{
    QDialog::showEvent(evenement);
    if (!evenement->spontaneous())
        PrendsFocus();
}

void DialogueRechercher::PriseSensChoisi()
{
    RetiensSensRecherche(EstCochay(monChoixHaut) ? CstRecherche::kVersLeHaut
                                                 : CstRecherche::kVersLeBas);
    ActualiserEtatPanneau();
}

void DialogueRechercher::PriseActualiserBoutons()
{
    bool const peutChercher = !monChampRecherche->text().isEmpty() && !monRemplacementEnCours;
    // Whoever works from the keyboard is led from "Tout remplacer" to "Annuler" and back, so the
    // button that takes the focus is enabled before the other is disabled.
    if (monBoutonAnnuler && monRemplacementEnCours)
        monBoutonAnnuler->setEnabled(true);
    for (QPushButton * const bouton :
         {monBoutonRemplacerTout, monBoutonRemplacer, monBoutonChercher})
        if (bouton)
            bouton->setEnabled(peutChercher);
    if (!monBoutonAnnuler || monRemplacementEnCours)
        return;
    if (focusWidget() == monBoutonAnnuler)
        monBoutonRemplacerTout->setFocus();
    monBoutonAnnuler->setEnabled(false);
}

QLineEdit * DialogueRechercher::CreeChamp(QString const & nom)
{
    auto * const champ = new QLineEdit(this);
    champ->setObjectName(nom);
    champ->setClearButtonEnabled(true);
    champ->setMinimumWidth(kLargeurChamp * champ->fontMetrics().averageCharWidth());
    return champ;
}

void DialogueRechercher::CreeChamps()
{
    monChampRecherche = CreeChamp(u"ChampRecherche"_s);
    if (DonnePermetRemplacer())
        monChampRemplacement = CreeChamp(u"ChampRemplacement"_s);
}

template <typename Bouton>
Bouton * DialogueRechercher::CreeOption(short bit, QString const & nom,
                                        ChaineLocalisable const & texte)
{
    if ((monMasque & bit) == 0)
        return nullptr;
    auto * const bouton = new Bouton(TraductionGui(texte), this);
    bouton->setObjectName(nom);
    return bouton;
}

void DialogueRechercher::CreeOptions()
{
    maCaseMotEntier =
        CreeOption<QCheckBox>(CstRecherche::kMotEntier, u"CaseMotEntier"_s, TexteGui("mot entier"));
    maCaseCasse = CreeOption<QCheckBox>(CstRecherche::kRespecterCasse, u"CaseCasse"_s,
                                        TexteGui("sensible à la casse"));
    maCaseBoucler =
        CreeOption<QCheckBox>(CstRecherche::kBoucler, u"CaseBoucler"_s, TexteGui("boucler"));
    monChoixContient =
        CreeOption<QRadioButton>(CstRecherche::kContient, u"ChoixContient"_s, TexteGui("contient"));
    ChaineLocalisable const commencePar = TexteGui("commence par");
    QString const nomCommencePar = u"ChoixCommencePar"_s;
    if (monChoixContient)
        monChoixCommencePar =
            CreeOption<QRadioButton>(CstRecherche::kCommencePar, nomCommencePar, commencePar);
    else
        monChoixCommencePar =
            CreeOption<QCheckBox>(CstRecherche::kCommencePar, nomCommencePar, commencePar);
    monChoixBas =
        CreeOption<QRadioButton>(CstRecherche::kBas, u"ChoixBas"_s, TexteGui("vers le bas"));
    monChoixHaut =
        CreeOption<QRadioButton>(CstRecherche::kHaut, u"ChoixHaut"_s, TexteGui("vers le haut"));

    // A group each, also for one button: it makes a choice that is checked stay so.
    Groupe({monChoixContient, monChoixContient ? monChoixCommencePar : nullptr});
    Groupe({monChoixBas, monChoixHaut});
    if (maCaseBoucler)
        maCaseBoucler->setChecked(true);
}

// The first of the buttons that there are begins checked.
void DialogueRechercher::Groupe(std::initializer_list<QAbstractButton *> boutons)
{
    auto * const groupe = new QButtonGroup(this);
    for (QAbstractButton * const bouton : boutons)
        if (bouton)
            groupe->addButton(bouton);
    if (!groupe->buttons().isEmpty())
        groupe->buttons().constFirst()->setChecked(true);
}

QPushButton * DialogueRechercher::CreeBouton(QString const & nom, ChaineLocalisable const & texte)
{
    auto * const bouton = new QPushButton(TraductionGui(texte), this);
    bouton->setObjectName(nom);
    return bouton;
}

void DialogueRechercher::CreeBoutons()
{
    monBoutonChercher = CreeBouton(u"BoutonChercher"_s, TexteGui("&Chercher"));
    monBoutonChercher->setDefault(true);
    if (DonnePermetRemplacer()) {
        monBoutonRemplacer = CreeBouton(u"BoutonRemplacer"_s, TexteGui("&Remplacer"));
        monBoutonRemplacerTout = CreeBouton(u"BoutonRemplacerTout"_s, TexteGui("&Tout remplacer"));
        monBoutonAnnuler = CreeBouton(u"BoutonAnnuler"_s, TexteGui("Annuler"));
    }
    monBoutonFermer = CreeBouton(u"BoutonFermer"_s, TexteGui("&Fermer"));
}

void DialogueRechercher::Dispose()
{
    auto * const formulaire = new QFormLayout;
    formulaire->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    formulaire->addRow(TraductionGui(TexteGui("Rechercher")), monChampRecherche);
    if (monChampRemplacement)
        formulaire->addRow(TraductionGui(TexteGui("Remplacer")), monChampRemplacement);

    int const ecart = kEcartColonnes * fontMetrics().averageCharWidth();
    auto * const options = new QHBoxLayout;
    options->setSpacing(ecart);
    AjouteColonne(*options, {maCaseMotEntier, maCaseCasse, maCaseBoucler});
    AjouteColonne(*options, {monChoixContient, monChoixCommencePar});
    AjouteColonne(*options, {monChoixBas, monChoixHaut});
    options->addStretch();
    formulaire->setLayout(formulaire->rowCount(), QFormLayout::FieldRole, options);

    auto * const boutons = new QVBoxLayout;
    for (QPushButton * const bouton :
         {monBoutonChercher, monBoutonRemplacer, monBoutonRemplacerTout, monBoutonAnnuler})
        if (bouton)
            boutons->addWidget(bouton);
    boutons->addStretch();
    boutons->addWidget(monBoutonFermer);

    auto * const racine = new QHBoxLayout(this);
    racine->setSpacing(ecart);
    racine->addLayout(formulaire, 1);
    racine->addLayout(boutons);
}

// Most texts have no letter for the keyboard, and which are free depends on the language and on
// what is offered.
void DialogueRechercher::DonneLettres()
{
    QString prises;
    auto const boutons = findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractButton const * const bouton : boutons)
        if (qsizetype const place = bouton->text().indexOf(u'&'); place >= 0)
            prises += bouton->text().at(place + 1).toLower();
    for (QLabel * const etiquette : findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly))
        etiquette->setText(AjouteLettre(etiquette->text(), prises));
    for (QAbstractButton * const bouton : boutons)
        if (!bouton->text().contains(u'&'))
            bouton->setText(AjouteLettre(bouton->text(), prises));
}

void DialogueRechercher::Branche()
{
    using Dialogue = DialogueRechercher;
    auto const branche = [this](auto * objet, auto signal, void (Dialogue::*prise)()) {
        if (objet)
            connect(objet, signal, this, prise, Qt::UniqueConnection);
    };
    for (QLineEdit * const champ : {monChampRecherche, monChampRemplacement})
        branche(champ, &QLineEdit::textEdited, &Dialogue::PriseActualiserEtatPanneau);
    branche(monChampRecherche, &QLineEdit::textChanged, &Dialogue::PriseActualiserBoutons);
    for (QAbstractButton * const option : std::initializer_list<QAbstractButton *>{
             maCaseMotEntier, maCaseCasse, maCaseBoucler, monChoixContient, monChoixCommencePar})
        branche(option, &QAbstractButton::clicked, &Dialogue::PriseActualiserEtatPanneau);
    for (QAbstractButton * const sens : {monChoixHaut, monChoixBas})
        branche(sens, &QAbstractButton::clicked, &Dialogue::PriseSensChoisi);
    branche(monBoutonChercher, &QAbstractButton::clicked, &Dialogue::PriseBoutonChercher);
    branche(monBoutonRemplacer, &QAbstractButton::clicked, &Dialogue::PriseBoutonRemplacer);
    branche(monBoutonRemplacerTout, &QAbstractButton::clicked, &Dialogue::PriseBoutonRemplacerTout);
    branche(monBoutonAnnuler, &QAbstractButton::clicked, &Dialogue::PriseBoutonAnnuler);
    branche(monBoutonFermer, &QAbstractButton::clicked, &Dialogue::PriseBoutonFermer);
    if (monChoixCommencePar && maCaseMotEntier)
        connect(monChoixCommencePar, &QAbstractButton::toggled, maCaseMotEntier,
                &QWidget::setDisabled, Qt::UniqueConnection);
    if (monChampRemplacement)
        monChampRemplacement->installEventFilter(this);
}

// A new search has the direction of a choice that is already made, otherwise down.
bool DialogueRechercher::EstVersLeHaut() const
{
    if (DonneSensRecherche() == CstRecherche::kNouvelleRecherche)
        return (monMasque & kSens) == CstRecherche::kHaut;
    return DonneSensRecherche() == CstRecherche::kVersLeHaut;
}

void DialogueRechercher::SuisSens()
{
    bool const versLeHaut = EstVersLeHaut();
    if (monChoixHaut && monChoixBas)
        (versLeHaut ? monChoixHaut : monChoixBas)->setChecked(true);
    int const sens = versLeHaut ? CstRecherche::kHaut : CstRecherche::kBas;
    PrendsOptions(static_cast<short>((DonneOptions() & ~kSens) | sens));
}

void DialogueRechercher::RetiensPosition()
{
    // So that the base does not centre this dialog the next time.
    setAttribute(Qt::WA_Moved);
    // Not `pos()`: where the frame comes late, as on X11, a widget may never hear of its size.
    if (windowHandle() && !isMinimized() && !isMaximized())
        DernierePosition() = windowHandle()->framePosition();
}

void DialogueRechercher::ReprendsPosition()
{
    // A place that the application chose is left to it, and a dialog that was open stays.
    if (DernierePosition() && !testAttribute(Qt::WA_Moved))
        move(*DernierePosition());
    if (!testAttribute(Qt::WA_Moved))
        return;
    if (!testAttribute(Qt::WA_Resized)) {
        adjustSize();
        setAttribute(Qt::WA_Resized, false); // no size that anybody asked for
    }
    RoutinesGeneralesQt::AjusteDansEcran(*this, true, false, false);
}
