// galerie/PageAssistant.cpp
#include "PageAssistant.h"

#include "ApercuFenetre.h"
#include "AssistantImport.h"
#include "ImportMots.h"
#include "MemoireImports.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "controls/DTreeView.h"
#include "navigation/DFilAriane.h"
#include "navigation/ElementFilAriane.h"

#include <QFrame>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kHauteurListes = 96; // logical pixels
constexpr int kPremiersMots = 8;
constexpr int kEtapeMontree = 2; // in the picture, with three to come or done around it

enum eColonne
{
    kNom,
    kNombre,
    kPremiers
};

// Words that show what the steps do, as if they had been pasted.
SaisieImport DonneSaisieMontree()
{
    SaisieImport saisie;
    saisie.etape = saisie.etapeMax = kEtapeMontree;
    saisie.options = {{OptionsImport::kEstColle, true},
                      {OptionsImport::kTexte,
                       u"arbre;n. m.\nbateau;n. m.\nété;n. m.\narbre;n. m.\ny;adv.\n"
                       "cœur;n. m.\nA4;n. m.\ndemain;adv.\nété;n. m.\nétoile;n. f.\n"
                       "mp3;n. m.\nécole;n. f.\nà;prép.\nforêt;n. f.\n"_s}};
    return saisie;
}

ElementFilAriane::eEtat DonneEtat(int etape, int courante)
{
    if (etape == courante)
        return ElementFilAriane::kEnCours;
    return etape < courante ? ElementFilAriane::kFait : ElementFilAriane::kAVenir;
}

QString DonneTexteEtat(ElementFilAriane::eEtat etat)
{
    switch (etat) {
    case ElementFilAriane::kFait:
        return TraductionGalerie(TexteGalerie("étape faite"));
    case ElementFilAriane::kEnCours:
        return TraductionGalerie(TexteGalerie("étape en cours"));
    default:
        return TraductionGalerie(TexteGalerie("étape à venir"));
    }
}

} // namespace

PageAssistant::PageAssistant(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Assistant")),
        TraductionGalerie(TexteGalerie(
            "Une liste de mots s’importe en cinq étapes, que le fil d’Ariane suit. Chacune peut "
            "refuser d’avancer ; celles qui sont atteintes se choisissent dans la liste.")));
    disposition->addWidget(CreeFil());
    auto * const rangee = new QHBoxLayout;
    rangee->addWidget(CreeApercu());
    rangee->addWidget(CreeCommandes(), 1);
    disposition->addLayout(rangee);
    disposition->addWidget(CreeListes());
    disposition->addStretch();

    MontreListes();
    MontreEtape(PreteMemoire().importFini ? static_cast<int>(AssistantImport::DonneTitres().size())
                                          : kEtapeMontree);
}

PageAssistant::~PageAssistant()
{
    if (monAssistant)
        PreteMemoire().saisie = monAssistant->DonneSaisie();
}

PageAssistant::Memoire & PageAssistant::PreteMemoire()
{
    static Memoire memoire;
    return memoire;
}

AssistantImport * PageAssistant::PreteAssistant() const
{
    return monAssistant;
}

bool PageAssistant::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == maVue && evenement->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(evenement)->matches(QKeySequence::Delete)) {
        PriseRetirer();
        return true;
    }
    return QWidget::eventFilter(objet, evenement);
}

void PageAssistant::showEvent(QShowEvent * evenement)
{
    QWidget::showEvent(evenement);
    // Not before: a wizard over a window that is not there would stand anywhere.
    if (auto const saisie = std::exchange(PreteMemoire().saisie, {}))
        OuvreAssistant(*saisie);
}

DFilAriane * PageAssistant::CreeFil()
{
    monFil = new DFilAriane(this);
    monFil->setAccessibleName(TraductionGalerie(TexteGalerie("Fil d’Ariane")));
    QStringList const titres = AssistantImport::DonneTitres();
    for (int etape = 0; etape < titres.size(); ++etape) {
        monFil->CreeUnElement(etape);
        monFil->PreteUnElement(etape)->PrendChaine(titres.at(etape));
    }
    return monFil;
}

QWidget * PageAssistant::CreeApercu()
{
    monModele = new AssistantImport(this);
    monModele->OuvrePourApercu(DonneSaisieMontree());
    monApercu = new ApercuFenetre(TraductionGalerie(TexteGalerie("Ce qui s’ouvre")), *monModele,
                                  [this] { return monModele->size(); });
    auto * const cadre = new QFrame; // for the white window on a page that is nearly white
    cadre->setObjectName(u"cadreApercu"_s);
    auto * const disposition = new QVBoxLayout(cadre);
    disposition->setContentsMargins(1, 1, 1, 1);
    disposition->addWidget(monApercu);
    return cadre;
}

QWidget * PageAssistant::CreeCommandes()
{
    monBoutonImporter = new QPushButton(TraductionGalerie(TexteGalerie("&Importer une liste…")));
    monBoutonImporter->setObjectName(u"importer"_s);
    connect(monBoutonImporter, &QPushButton::clicked, this, &PageAssistant::PriseImporter,
            Qt::UniqueConnection);
    auto * const explication = new QLabel(TraductionGalerie(TexteGalerie(
        "L’image montre l’étape du milieu, avec une liste courte. Échap referme l’assistant ; si "
        "quelque chose y est entré, il demande d’abord. Annuler ne demande rien.")));
    explication->setObjectName(u"explicationPage"_s);
    explication->setWordWrap(true);
    auto * const commandes = new QWidget;
    auto * const disposition = new QVBoxLayout(commandes);
    disposition->setContentsMargins({});
    disposition->addWidget(monBoutonImporter);
    disposition->addWidget(explication);
    disposition->addStretch();
    return commandes;
}

QWidget * PageAssistant::CreeListes()
{
    mesListes = new QStandardItemModel(this);
    maVue = new DTreeView;
    maVue->setObjectName(u"listesImportees"_s);
    maVue->setAccessibleName(TraductionGalerie(TexteGalerie("Listes importées")));
    maVue->setModel(mesListes);
    maVue->setRootIsDecorated(false);
    maVue->setUniformRowHeights(true);
    maVue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maVue->setFixedHeight(kHauteurListes);
    maVue->AfficheMessageSiVide(
        TraductionGalerie(TexteGalerie("Aucune liste n’est encore importée.")));
    maVue->installEventFilter(this);
    monBoutonRetirer = new QPushButton(TraductionGalerie(TexteGalerie("&Retirer")));
    monBoutonRetirer->setObjectName(u"retirerListe"_s);
    connect(monBoutonRetirer, &QPushButton::clicked, this, &PageAssistant::PriseRetirer,
            Qt::UniqueConnection);
    connect(maVue->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &PageAssistant::PriseSelection, Qt::UniqueConnection);

    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Listes importées")));
    auto * const disposition = new QHBoxLayout(groupe);
    disposition->addWidget(maVue, 1);
    disposition->addWidget(monBoutonRetirer, 0, Qt::AlignTop);
    return groupe;
}

// Before the window of the page: what the language and the theme are chosen in waits until it is
// closed.
void PageAssistant::OuvreAssistant(SaisieImport const & saisie)
{
    monAssistant = new AssistantImport(this);
    monAssistant->setWindowModality(Qt::WindowModal);
    connect(monAssistant, &AssistantImport::SignalEtapeChangee, this, &PageAssistant::MontreEtape,
            Qt::UniqueConnection);
    connect(monAssistant, &QDialog::finished, this, &PageAssistant::PriseFini,
            Qt::UniqueConnection);
    monAssistant->Ouvre(saisie);
}

// Beyond the last step, all are done.
void PageAssistant::MontreEtape(int courante)
{
    for (int etape = 0; etape < AssistantImport::DonneTitres().size(); ++etape) {
        ElementFilAriane::eEtat const etat = DonneEtat(etape, courante);
        ElementFilAriane * const element = monFil->PreteUnElement(etape);
        element->MetsEtat(etat);
        // To the eye, the icons alone tell some states from each other.
        element->findChild<QLabel *>()->setAccessibleDescription(DonneTexteEtat(etat));
    }
}

void PageAssistant::MontreListes()
{
    mesListes->clear();
    if (MemoireImports::DonneListes().isEmpty()) {
        PriseSelection();
        return;
    }
    mesListes->setHorizontalHeaderLabels({TraductionGalerie(TexteGalerie("Nom")),
                                          TraductionGalerie(TexteGalerie("Mots")),
                                          TraductionGalerie(TexteGalerie("Premiers mots"))});
    for (MemoireImports::Liste const & liste : MemoireImports::DonneListes()) {
        auto * const nombre = new QStandardItem(QLocale().toString(liste.mots.size()));
        nombre->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        mesListes->appendRow({new QStandardItem(liste.nom), nombre,
                              new QStandardItem(liste.mots.mid(0, kPremiersMots).join(u", "_s))});
    }
    maVue->header()->setSectionResizeMode(kNom, QHeaderView::ResizeToContents);
    maVue->header()->setSectionResizeMode(kNombre, QHeaderView::ResizeToContents);
    maVue->header()->setSectionResizeMode(kPremiers, QHeaderView::Stretch);
    PriseSelection();
}

void PageAssistant::PriseImporter()
{
    if (!monAssistant)
        OuvreAssistant({});
    monAssistant->activateWindow();
}

void PageAssistant::PriseRetirer()
{
    int const rangee = maVue->selectionModel()->hasSelection() ? maVue->currentIndex().row() : -1;
    if (rangee < 0)
        return;
    MemoireImports::Retire(rangee);
    MontreListes();
    // The one that has moved up is next.
    maVue->setCurrentIndex(mesListes->index(std::min(rangee, mesListes->rowCount() - 1), kNom));
}

void PageAssistant::PriseSelection()
{
    monBoutonRetirer->setEnabled(maVue->selectionModel()->hasSelection());
}

void PageAssistant::PriseFini(int resultat)
{
    bool const importFini = resultat == QDialog::Accepted;
    if (importFini)
        MemoireImports::Ajoute(monAssistant->DonneListe());
    PreteMemoire().importFini = importFini;
    monAssistant->disconnect(this); // what it waits for may still move it on before it goes
    monAssistant->deleteLater();    // it is telling this
    monAssistant = nullptr;
    MontreListes();
    MontreEtape(importFini ? static_cast<int>(AssistantImport::DonneTitres().size())
                           : kEtapeMontree);
}
