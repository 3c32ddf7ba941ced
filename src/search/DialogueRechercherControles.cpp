// search/DialogueRechercherControles.cpp
//
// What the search dialog is made of.
#include "search/DialogueRechercher.h"

#include "foundation/TraductionGui.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

// Average characters.
constexpr int kLargeurChamp = 30; // the least that a field shows
constexpr int kEcartColonnes = 1; // on top of that of the style: each column is a group

void AjouteColonne(QHBoxLayout & rangee, int ecart, std::initializer_list<QWidget *> widgets)
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
    if (!rangee.isEmpty())
        rangee.addSpacing(ecart);
    rangee.addLayout(colonne);
}

} // namespace

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

void DialogueRechercher::CreeOptions(short masque)
{
    constexpr short kSens = CstRecherche::kHaut | CstRecherche::kBas;
    auto * const modes = (masque & CstRecherche::kContient) != 0 ? new QButtonGroup(this) : nullptr;
    auto * const sens = (masque & kSens) == kSens ? new QButtonGroup(this) : nullptr;
    struct
    {
        QAbstractButton *& bouton;
        short bit;
        QString nom;
        ChaineLocalisable texte;
        QButtonGroup * groupe; // null where it is switched on and off by itself
    } const descriptions[] = {
        {maCaseMotEntier, CstRecherche::kMotEntier, u"CaseMotEntier"_s, TexteGui("mot entier"),
         nullptr},
        {maCaseCasse, CstRecherche::kRespecterCasse, u"CaseCasse"_s,
         TexteGui("sensible à la casse"), nullptr},
        {maCaseBoucler, CstRecherche::kBoucler, u"CaseBoucler"_s, TexteGui("boucler"), nullptr},
        {monChoixContient, CstRecherche::kContient, u"ChoixContient"_s, TexteGui("contient"),
         modes},
        {monChoixCommencePar, CstRecherche::kCommencePar, u"ChoixCommencePar"_s,
         TexteGui("commence par"), modes},
        {monChoixBas, CstRecherche::kBas, u"ChoixBas"_s, TexteGui("vers le bas"), sens},
        {monChoixHaut, CstRecherche::kHaut, u"ChoixHaut"_s, TexteGui("vers le haut"), sens},
    };
    for (auto const & [bouton, bit, nom, texte, groupe] : descriptions)
        if ((masque & bit) != 0)
            bouton = CreeOption(nom, texte, groupe);
    for (QAbstractButton * const bouton : {maCaseBoucler, monChoixContient, monChoixBas})
        if (bouton)
            bouton->setChecked(true);
}

QAbstractButton * DialogueRechercher::CreeOption(QString const & nom,
                                                 ChaineLocalisable const & texte,
                                                 QButtonGroup * groupe)
{
    QAbstractButton * bouton = nullptr;
    if (groupe) {
        bouton = new QRadioButton(this);
        groupe->addButton(bouton);
    } else {
        bouton = new QCheckBox(this);
    }
    bouton->setObjectName(nom);
    bouton->setText(TraductionGui(texte));
    return bouton;
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
    AjouteColonne(*options, ecart, {maCaseMotEntier, maCaseCasse, maCaseBoucler});
    AjouteColonne(*options, ecart, {monChoixContient, monChoixCommencePar});
    AjouteColonne(*options, ecart, {monChoixBas, monChoixHaut});
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
    racine->addLayout(formulaire, 1);
    racine->addSpacing(ecart);
    racine->addLayout(boutons);
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
