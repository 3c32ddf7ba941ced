// galerie/PageListeModifiable.cpp
#include "PageListeModifiable.h"

#include "Glossaire.h"
#include "MemoireListes.h"
#include "MotsFrancais.h"
#include "PageRecherche.h"
#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "lists/ListeChoixFlottante.h"
#include "lists/WidgetListeEditableAvecListeChoix.h"
#include "lists/WidgetListeEditableCochable.h"
#include "lists/WidgetListeEditableDragAndDrop.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QStandardItem>
#include <QToolButton>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurVariantes = 290;
constexpr int kHauteurTrace = 96;
constexpr int kMargeListe = 4;
constexpr int kCoteBouton = 24; // as the list's own

constexpr int kPropositions = 10;

QGroupBox * CreeGroupe(QString const & titre, QWidget * contenu)
{
    auto * const groupe = new QGroupBox(titre);
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(contenu);
    return groupe;
}

// A list in a group needs no frame of room of its own.
void Serre(WidgetListeEditable & liste)
{
    liste.layout()->setContentsMargins(kMargeListe, kMargeListe, kMargeListe, 0);
    liste.layout()->setSpacing(0);
    liste.DonneLayoutPied()->setContentsMargins({});
}

QToolButton * CreeFleche(QString const & nom, QString const & texte)
{
    auto * const bouton = new QToolButton;
    bouton->setObjectName(nom);
    bouton->setAutoRaise(true);
    bouton->setFixedSize(kCoteBouton, kCoteBouton);
    bouton->setIcon(QIcon(u":/images/"_s + nom + u".svg"_s));
    bouton->setAccessibleName(texte);
    bouton->setToolTip(texte);
    bouton->setEnabled(false);
    return bouton;
}

} // namespace

PageListeModifiable::PageListeModifiable(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Liste modifiable")),
        TraductionGalerie(TexteGalerie(
            "Le bouton + ajoute une ligne, qui se remplit sur place : Entrée passe à la cellule "
            "vide qui suit, Échap abandonne.")));
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeGlossaire(), 0, 0, 2, 1);
    grille->addWidget(CreeTrace(), 2, 0);
    grille->addWidget(CreeTaches(), 0, 1);
    grille->addWidget(CreeEtapes(), 1, 1);
    grille->addWidget(CreeMots(), 2, 1);
    grille->setColumnStretch(0, 1);
    disposition->addLayout(grille, 1);
    mesListes = {monGlossaire, mesTaches, mesEtapes, mesMots};
    for (WidgetListeEditable * const liste : std::as_const(mesListes))
        Serre(*liste);
    Branche();
    SuisSignaux();
}

PageListeModifiable::~PageListeModifiable()
{
    for (WidgetListeEditable const * const liste : std::as_const(mesListes))
        MemoireListes::Retiens(*liste);
}

void PageListeModifiable::showEvent(QShowEvent * evenement)
{
    QWidget::showEvent(evenement);
    // The words are read here, so that no keystroke waits for them.
    if (!PageRecherche::PreteMemoire().mots.Charge()) {
        monMessageMots->setText(TraductionGalerie(
            TexteGalerie("Les mots viennent du paquet {1}, qui n’est pas installé."),
            {UniChaine("wfrench")}));
        monMessageMots->show();
    }
}

QWidget * PageListeModifiable::CreeGlossaire()
{
    monGlossaire = new Glossaire({TraductionGalerie(TexteGalerie("Terme")),
                                  TraductionGalerie(TexteGalerie("Traduction")),
                                  TraductionGalerie(TexteGalerie("Genre"))});
    monGlossaire->setObjectName(u"glossaire"_s);
    monGlossaire->setAccessibleName(TraductionGalerie(TexteGalerie("Glossaire")));
    monGlossaire->MetsValeursParDefaut(MemoireListes::CreeLigne({QString(), QString(), QString()}));
    MemoireListes::Remplis(*monGlossaire, {{u"Bulle d’aide"_s, u"tool tip"_s, u"n. f."_s},
                                           {u"Case à cocher"_s, u"check box"_s, u"n. f."_s},
                                           {u"Glisser-déposer"_s, u"drag and drop"_s, u"n. m."_s},
                                           {u"Jeton"_s, u"token"_s, u"n. m."_s},
                                           {u"Presse-papiers"_s, u"clipboard"_s, u"n. m."_s},
                                           {u"Onglet"_s, u"tab"_s, u"n. m."_s}});
    CreeFleches();
    maCaseTri = new QCheckBox(TraductionGalerie(TexteGalerie("&Trier d’un clic sur l’en-tête")));
    maCaseTri->setObjectName(u"tri"_s);
    maCaseModifiable = new QCheckBox(TraductionGalerie(TexteGalerie("&Modifiable")));
    maCaseModifiable->setObjectName(u"modifiable"_s);
    maCaseModifiable->setChecked(true);
    ActualiseEntete();

    auto * const groupe = CreeGroupe(TraductionGalerie(TexteGalerie("Glossaire")), monGlossaire);
    auto * const cases = new QHBoxLayout;
    cases->addWidget(maCaseTri);
    cases->addWidget(maCaseModifiable);
    cases->addStretch();
    static_cast<QVBoxLayout *>(groupe->layout())->addLayout(cases);
    return groupe;
}

void PageListeModifiable::CreeFleches()
{
    monBoutonMonter = CreeFleche(u"monter"_s, TraductionGalerie(TexteGalerie("Monter")));
    monBoutonDescendre = CreeFleche(u"descendre"_s, TraductionGalerie(TexteGalerie("Descendre")));
    monGlossaire->DonneLayoutPied()->addWidget(monBoutonMonter);
    monGlossaire->DonneLayoutPied()->addWidget(monBoutonDescendre);
}

QWidget * PageListeModifiable::CreeTrace()
{
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Trace")));
    maTrace->setMinimumHeight(kHauteurTrace);
    return EncadreTrace(*maTrace);
}

QWidget * PageListeModifiable::CreeTaches()
{
    mesTaches = new WidgetListeEditableCochable(nullptr, 1, true, true, {}, false);
    mesTaches->setObjectName(u"taches"_s);
    MemoireListes::Remplis(*mesTaches, {{TraductionGalerie(TexteGalerie("Relire le texte"))},
                                        {TraductionGalerie(TexteGalerie("Vérifier les noms"))},
                                        {TraductionGalerie(TexteGalerie("Envoyer"))}});
    if (!MemoireListes::Connait(*mesTaches))
        mesTaches->MetsCochay(0, true);
    auto * const groupe =
        CreeGroupe(TraductionGalerie(TexteGalerie("À cocher : souris ou espace")), mesTaches);
    groupe->setFixedWidth(kLargeurVariantes);
    mesTaches->ActualiseEntete({}, {QHeaderView::Stretch}, false);
    mesTaches->setAccessibleName(groupe->title());
    return groupe;
}

QWidget * PageListeModifiable::CreeEtapes()
{
    mesEtapes = new WidgetListeEditableDragAndDrop(nullptr, 1, true, true, {}, true);
    mesEtapes->setObjectName(u"etapes"_s);
    MemoireListes::Remplis(*mesEtapes, {{TraductionGalerie(TexteGalerie("Lire"))},
                                        {TraductionGalerie(TexteGalerie("Écrire"))},
                                        {TraductionGalerie(TexteGalerie("Corriger"))},
                                        {TraductionGalerie(TexteGalerie("Publier"))}});
    auto * const groupe =
        CreeGroupe(TraductionGalerie(TexteGalerie("À déplacer : souris, Alt+↑, Alt+↓")), mesEtapes);
    groupe->setFixedWidth(kLargeurVariantes);
    mesEtapes->ActualiseEntete({}, {QHeaderView::Stretch}, false);
    mesEtapes->setAccessibleName(groupe->title());
    return groupe;
}

QWidget * PageListeModifiable::CreeMots()
{
    mesMots = new WidgetListeEditableAvecListeChoix(nullptr, 1, true, true, {}, false);
    mesMots->setObjectName(u"mots"_s);
    MemoireListes::Remplis(*mesMots, {{u"accent"_s}, {u"œuvre"_s}});
    mesMots->ActualiseEntete({}, {QHeaderView::Stretch}, false);
    mesMots->MetsProposant([](int, QString const & texte) {
        WidgetListeEditableAvecListeChoix::Propositions rangees;
        for (QString const & mot : PageRecherche::PreteMemoire().mots.Propose(texte, kPropositions))
            rangees.append({new QStandardItem(mot)});
        return rangees;
    });
    auto * const groupe = CreeGroupe(TraductionGalerie(TexteGalerie("Mots proposés")), mesMots);
    groupe->setFixedWidth(kLargeurVariantes);
    for (QWidget * const widget :
         {static_cast<QWidget *>(mesMots), static_cast<QWidget *>(mesMots->PreteListeChoix()),
          static_cast<QWidget *>(mesMots->PreteListeChoix()->PreteListeChoix())})
        widget->setAccessibleName(groupe->title());
    monMessageMots = new QLabel;
    monMessageMots->setObjectName(u"messageErreur"_s); // the sheet's colour for errors
    monMessageMots->setWordWrap(true);
    monMessageMots->hide();
    groupe->layout()->addWidget(monMessageMots);
    return groupe;
}

void PageListeModifiable::Branche()
{
    using Page = PageListeModifiable;
    connect(maCaseTri, &QCheckBox::toggled, this, &Page::PriseTri, Qt::UniqueConnection);
    connect(maCaseModifiable, &QCheckBox::toggled, this, &Page::PriseModifiable,
            Qt::UniqueConnection);
    connect(monBoutonMonter, &QToolButton::clicked, this, &Page::PriseMonter, Qt::UniqueConnection);
    connect(monBoutonDescendre, &QToolButton::clicked, this, &Page::PriseDescendre,
            Qt::UniqueConnection);
    connect(monGlossaire, &WidgetListeEditable::SignalSelectionChangay, this, &Page::PriseSelection,
            Qt::UniqueConnection);
    connect(monGlossaire, &WidgetListeEditable::SignalMenuContextuel, this, &Page::PriseMenu,
            Qt::UniqueConnection);
    for (WidgetListeEditable * const liste : std::as_const(mesListes))
        connect(liste, &WidgetListeEditable::SignalElementsModifiay, liste,
                [liste] { MemoireListes::MarqueModifiee(*liste); });
}

void PageListeModifiable::SuisSignaux()
{
    for (WidgetListeEditable * const liste : std::as_const(mesListes)) {
        maTrace->Suis(liste, &WidgetListeEditable::SignalAjout, u"SignalAjout"_s);
        maTrace->Suis(liste, &WidgetListeEditable::SignalEdition, u"SignalEdition"_s);
        maTrace->Suis(liste, &WidgetListeEditable::SignalEditionTerminay,
                      u"SignalEditionTerminay"_s);
        maTrace->Suis(liste, &WidgetListeEditable::SignalElementsModifiay,
                      u"SignalElementsModifiay"_s);
        maTrace->Suis(liste, &WidgetListeEditable::SignalSuppression, u"SignalSuppression"_s);
    }
    maTrace->Suis(mesTaches, &WidgetListeEditableCochable::SignalCocheModifiay,
                  u"SignalCocheModifiay"_s);
}

void PageListeModifiable::ActualiseEntete()
{
    monGlossaire->ActualiseEntete(
        {UniChaine(TraductionGalerie(TexteGalerie("Terme"))),
         UniChaine(TraductionGalerie(TexteGalerie("Traduction"))),
         UniChaine(TraductionGalerie(TexteGalerie("Genre")))},
        {QHeaderView::Stretch, QHeaderView::Stretch, QHeaderView::ResizeToContents},
        maCaseTri->isChecked());
}

void PageListeModifiable::PriseTri()
{
    ActualiseEntete();
}

void PageListeModifiable::PriseModifiable(bool modifiable)
{
    monGlossaire->MetsUtilisateurPeutChangerValeur(modifiable);
}

void PageListeModifiable::PriseSelection()
{
    bool const avecSelection = !monGlossaire->DonneRangeesSelectionnay().empty();
    monBoutonMonter->setEnabled(avecSelection);
    monBoutonDescendre->setEnabled(avecSelection);
}

void PageListeModifiable::PriseMonter()
{
    monGlossaire->PriseBougeElementSelectionner(true);
}

void PageListeModifiable::PriseDescendre()
{
    monGlossaire->PriseBougeElementSelectionner(false);
}

void PageListeModifiable::PriseMenu(QList<QStandardItem *> const & items, QPoint const & position)
{
    maLigneDuMenu = MemoireListes::DonneTextes(items);
    auto * const menu = new QMenu(this);
    menu->setObjectName(u"menuGlossaire"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(TraductionGalerie(TexteGalerie("&Copier")), this,
                    &PageListeModifiable::PriseCopier);
    menu->addAction(TraductionGalerie(TexteGalerie("&Dupliquer")), this,
                    &PageListeModifiable::PriseDupliquer);
    menu->addAction(TraductionGalerie(TexteGalerie("&Retirer")), monGlossaire->DonneBoutonRetirer(),
                    &QToolButton::click);
    menu->popup(position);
}

void PageListeModifiable::PriseCopier()
{
    QApplication::clipboard()->setText(maLigneDuMenu.join(u'\t'));
}

void PageListeModifiable::PriseDupliquer()
{
    monGlossaire->AjouteElement(MemoireListes::CreeLigne(maLigneDuMenu));
    MemoireListes::MarqueModifiee(*monGlossaire); // a row that is added tells of no change
}
