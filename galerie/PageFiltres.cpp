// galerie/PageFiltres.cpp
#include "PageFiltres.h"

#include "ApercuFenetre.h"
#include "ChargementMots.h"
#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "controls/DTableView.h"

#include <QActionGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kLargeurCote = 270;
constexpr int kLargeurColonne = 110;

constexpr int kVisites = 20; // remembered

struct Ordre
{
    FiltreMots::eTri tri;
    QString nom;
    ChaineLocalisable texte;
};

QList<Ordre> DonneOrdres()
{
    return {{FiltreMots::kOrdreDeLaListe, u"ordreDeLaListe"_s, TexteGalerie("Ordre de la liste")},
            {FiltreMots::kCourtsDAbord, u"courtsDAbord"_s, TexteGalerie("Les plus courts d’abord")},
            {FiltreMots::kLongsDAbord, u"longsDAbord"_s, TexteGalerie("Les plus longs d’abord")}};
}

QString DonneMessage(LectureTexte const & lecture)
{
    QString const paquet = PageFiltres::PreteMemoire().paquet;
    if (lecture.DonneResultat() != LectureTexte::kAbsent || paquet.isEmpty())
        return lecture.DonneMessage();
    return TraductionGalerie(
        TexteGalerie("Les mots viennent du paquet {1}, qui n’est pas installé."),
        {UniChaine(paquet)});
}

} // namespace

PageFiltres::PageFiltres(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition = CreeMiseEnPage(
        this, TraductionGalerie(TexteGalerie("Filtres")),
        TraductionGalerie(TexteGalerie(
            "Les mots du français, filtrés pendant la frappe. Entrée fait du texte une pastille de "
            "plus ; la barre du bas règle l’ordre et les colonnes.")));
    disposition->addWidget(CreeMessage());
    maBarre = new BarreFiltreMots;
    disposition->addWidget(maBarre);
    disposition->addLayout(CreeGrille(), 1);

    PriseColonnes();
    MontreOrdre();
    maBarre->MetsEtat(PreteMemoire().etat);
    Branche();
    DemandeMots();
}

PageFiltres::Memoire & PageFiltres::PreteMemoire()
{
    static Memoire memoire;
    return memoire;
}

bool PageFiltres::eventFilter(QObject * objet, QEvent * evenement)
{
    auto const * const touche = dynamic_cast<QKeyEvent const *>(evenement);
    if (!touche || touche->type() != QEvent::KeyPress || touche->key() != Qt::Key_Down ||
        (touche->modifiers() & ~Qt::KeypadModifier) || monModele->rowCount() == 0)
        return QWidget::eventFilter(objet, evenement);
    // From the field, which has no list of its own to walk through.
    maListe->setFocus(Qt::TabFocusReason);
    if (!maListe->currentIndex().isValid())
        maListe->setCurrentIndex(monModele->index(0, ModeleMots::kMot));
    return true;
}

QWidget * PageFiltres::CreeMessage()
{
    monMessage = new QLabel;
    monMessage->setObjectName(u"messageErreur"_s); // the sheet's colour for errors
    monMessage->setTextFormat(Qt::PlainText);      // it may name a file
    monMessage->setWordWrap(true);
    monMessage->hide();
    return monMessage;
}

// In the order of the Tab key.
QLayout * PageFiltres::CreeGrille()
{
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeListe(), 0, 0, 2, 1);
    grille->addWidget(CreeOrdre(), 2, 0);
    grille->addWidget(CreeApercu(), 0, 1);
    grille->addWidget(CreeTrace(), 1, 1, 2, 1);
    grille->setColumnStretch(0, 1);
    grille->setRowStretch(1, 1);
    return grille;
}

QWidget * PageFiltres::CreeListe()
{
    monModele = new ModeleMots(this);
    maListe = new DTableView;
    maListe->setObjectName(u"mots"_s);
    maListe->setAccessibleName(TraductionGalerie(TexteGalerie("Mots")));
    PrepareTable(*maListe);
    maListe->setModel(monModele);
    QHeaderView & entete = *maListe->horizontalHeader();
    entete.setDefaultSectionSize(kLargeurColonne);
    entete.setSectionResizeMode(QHeaderView::Fixed);
    entete.setSectionResizeMode(ModeleMots::kMot, QHeaderView::Stretch);
    return maListe;
}

QWidget * PageFiltres::CreeOrdre()
{
    maBarreDOrdre = new BarreDeFiltre(true, false);
    maBarreDOrdre->setAccessibleName(TraductionGalerie(TexteGalerie("Ordre et colonnes")));
    maBarreDOrdre->AjouterMenu(CreeMenu());
    maBarreDOrdre->CacheIconeFlecheToolButton();
    auto & champ = *maBarreDOrdre->PreteComboDeRecherche();
    QString const invite = TraductionGalerie(TexteGalerie("Aller au mot"));
    champ.addItems(PreteMemoire().visites);
    champ.setCurrentIndex(-1);
    champ.setEditText(PreteMemoire().allerA);
    champ.lineEdit()->setPlaceholderText(invite);
    champ.setAccessibleName(invite);
    return maBarreDOrdre;
}

QMenu * PageFiltres::CreeMenu()
{
    auto * const menu = new QMenu(this);
    auto * const groupe = new QActionGroup(menu);
    for (Ordre const & ordre : DonneOrdres()) {
        auto * const action = groupe->addAction(TraductionGalerie(ordre.texte));
        action->setObjectName(ordre.nom);
        action->setCheckable(true);
        action->setData(ordre.tri);
        action->setChecked(ordre.tri == PreteMemoire().tri);
    }
    menu->addActions(groupe->actions());
    menu->addSeparator();
    maColonneLettres =
        CreeColonne(*menu, u"colonneLettres"_s, ModeleMots::kLettres, PreteMemoire().avecLettres);
    maColonneAccents =
        CreeColonne(*menu, u"colonneAccents"_s, ModeleMots::kAccents, PreteMemoire().avecAccents);
    connect(groupe, &QActionGroup::triggered, this, &PageFiltres::PriseTri, Qt::UniqueConnection);
    return menu;
}

QAction * PageFiltres::CreeColonne(QMenu & menu, QString const & nom, ModeleMots::eColonne colonne,
                                   bool montree)
{
    QString const titre = monModele->headerData(colonne, Qt::Horizontal).toString();
    auto * const action =
        menu.addAction(TraductionGalerie(TexteGalerie("Colonne « {1} »"), {UniChaine(titre)}));
    action->setObjectName(nom);
    action->setCheckable(true);
    action->setChecked(montree);
    connect(action, &QAction::toggled, this, &PageFiltres::PriseColonnes, Qt::UniqueConnection);
    return action;
}

QWidget * PageFiltres::CreeApercu()
{
    QString const nom = TraductionGalerie(TexteGalerie("Ce qui s’ouvre"));
    auto * const groupe = new QGroupBox(nom);
    groupe->setFixedWidth(kLargeurCote);
    monApercu = new ApercuFenetre(nom, maBarre->PreteFenetre());
    auto * const disposition = new QVBoxLayout(groupe);
    disposition->addWidget(monApercu);
    return groupe;
}

QWidget * PageFiltres::CreeTrace()
{
    maTrace = new TraceSignaux(TraductionGalerie(TexteGalerie("Trace")));
    auto * const groupe = EncadreTrace(*maTrace);
    groupe->setFixedWidth(kLargeurCote);
    return groupe;
}

void PageFiltres::Branche()
{
    connect(maBarre, &BarreFiltreMots::SignalCriteresChanges, this, &PageFiltres::Filtre,
            Qt::UniqueConnection);
    // Later: the pop-up has yet to hear of the choice.
    connect(maBarre, &BarreDeFiltre::SignalValeurChanger, monApercu, &ApercuFenetre::Actualise,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    maBarre->PreteComboDeRecherche()->installEventFilter(this);
    connect(maListe->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &PageFiltres::PriseMotCourant, Qt::UniqueConnection);
    connect(maBarreDOrdre->PreteComboDeRecherche(), &QComboBox::editTextChanged, this,
            &PageFiltres::PriseAllerA, Qt::UniqueConnection);
    connect(maBarreDOrdre->PreteComboDeRecherche()->lineEdit(), &QLineEdit::returnPressed, this,
            &PageFiltres::PriseMotVisitay, Qt::UniqueConnection);
    BrancheTrace();
}

void PageFiltres::BrancheTrace()
{
    maTrace->Suis(static_cast<BarreDeFiltre *>(maBarre), &BarreDeFiltre::SignalValeurChanger,
                  u"SignalValeurChanger"_s);
    maTrace->Suis(static_cast<BarreDeFiltre *>(maBarre), &BarreDeFiltre::PastilleASupprimer,
                  u"PastilleASupprimer"_s);
    maTrace->Suis(maBarre->PreteComboDeRecherche(), &DChampRecherche::SignalModeChangay,
                  u"SignalModeChangay"_s);
}

void PageFiltres::DemandeMots()
{
    if (PreteMemoire().mots) {
        MetsMots(PreteMemoire().mots);
        return;
    }
    maBarre->MetsTexteCardinalitay(TraductionGalerie(TexteGalerie("Lecture des mots…")));
    monChargement = new ChargementMots(PreteMemoire().fichier, this);
    connect(monChargement, &ChargementMots::SignalTermine, this, &PageFiltres::PriseMotsLus,
            Qt::UniqueConnection);
}

void PageFiltres::MetsMots(std::shared_ptr<TableMots const> mots)
{
    maTable = std::move(mots);
    monFiltre = std::make_unique<FiltreMots>(maTable);
    Filtre();
}

void PageFiltres::Filtre()
{
    Memoire & memoire = PreteMemoire();
    memoire.etat = maBarre->DonneEtat();
    if (!monFiltre)
        return;
    monModele->Montre(maTable,
                      monFiltre->Trie(monFiltre->Filtre(maBarre->DonneCriteres()), memoire.tri));
    auto const & indices = monModele->DonneIndices();
    maBarre->MetsTexteCardinalitay(TraductionPlurielGalerie(
        TextePlurielGalerie("{1} mot", "{1} mots"), static_cast<int>(indices.size())));
    // A reset takes the current word away, without a signal; it comes back with its place.
    auto const trouvay = std::find(indices.cbegin(), indices.cend(), memoire.motCourant);
    if (trouvay != indices.cend())
        maListe->setCurrentIndex(
            monModele->index(static_cast<int>(trouvay - indices.cbegin()), ModeleMots::kMot));
}

void PageFiltres::MontreOrdre()
{
    for (Ordre const & ordre : DonneOrdres())
        if (ordre.tri == PreteMemoire().tri)
            maBarreDOrdre->MetsTexteCardinalitay(TraductionGalerie(ordre.texte));
    maBarreDOrdre->MetsBoutonFiltreActif(PreteMemoire().tri != FiltreMots::kOrdreDeLaListe);
}

void PageFiltres::PriseMotsLus()
{
    auto const table = monChargement->DonneTable();
    QString const message = DonneMessage(*monChargement->DonneLecture());
    monMessage->setText(message);
    monMessage->setVisible(!message.isEmpty());
    MetsMots(table);
    if (table->DonneNombre() > 0) // or the next page tries again
        PreteMemoire().mots = table;
    monChargement->deleteLater();
}

void PageFiltres::PriseTri(QAction * action)
{
    PreteMemoire().tri = static_cast<FiltreMots::eTri>(action->data().toInt());
    MontreOrdre();
    Filtre();
}

void PageFiltres::PriseColonnes()
{
    PreteMemoire().avecLettres = maColonneLettres->isChecked();
    PreteMemoire().avecAccents = maColonneAccents->isChecked();
    maListe->setColumnHidden(ModeleMots::kLettres, !maColonneLettres->isChecked());
    maListe->setColumnHidden(ModeleMots::kAccents, !maColonneAccents->isChecked());
}

void PageFiltres::PriseAllerA(QString const & debut)
{
    PreteMemoire().allerA = debut;
    int const place = monFiltre ? monFiltre->ChercheDebut(monModele->DonneIndices(), debut) : -1;
    if (place < 0)
        return;
    QModelIndex const index = monModele->index(place, ModeleMots::kMot);
    maListe->setCurrentIndex(index);
    maListe->scrollTo(index, QAbstractItemView::PositionAtTop);
}

// The word that was found, not the few letters that led to it.
void PageFiltres::PriseMotVisitay()
{
    auto & champ = *maBarreDOrdre->PreteComboDeRecherche();
    int const place =
        monFiltre ? monFiltre->ChercheDebut(monModele->DonneIndices(), champ.currentText()) : -1;
    if (place < 0)
        return;
    QString const mot = monModele->index(place, ModeleMots::kMot).data().toString();
    QStringList & visites = PreteMemoire().visites;
    visites.removeAll(mot);
    visites.prepend(mot);
    visites.resize(std::min<qsizetype>(visites.size(), kVisites));
    champ.clear();
    champ.addItems(visites);
    champ.setCurrentIndex(0);
}

void PageFiltres::PriseMotCourant(QModelIndex const & courant)
{
    auto const & indices = monModele->DonneIndices();
    PreteMemoire().motCourant =
        courant.isValid() ? indices[static_cast<std::size_t>(courant.row())] : -1;
}
