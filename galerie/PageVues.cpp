// galerie/PageVues.cpp
#include "PageVues.h"

#include "Pages.h"
#include "TraceSignaux.h"
#include "TraductionGalerie.h"

#include "controls/DListView.h"
#include "controls/DListViewClique.h"
#include "controls/DTableView.h"
#include "controls/DTreeView.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QResizeEvent>
#include <QSplitter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kHauteurTrace = 66; // logical pixels

constexpr int kChapitres = 100;
constexpr int kSections = PageVues::kRangsDeLArbre / kChapitres - 1; // of each chapter

QList<QStandardItem *> CreeRang(QStringList const & textes)
{
    QList<QStandardItem *> rang;
    for (QString const & texte : textes) {
        rang.append(new QStandardItem(texte));
        rang.last()->setEditable(false);
    }
    return rang;
}

} // namespace

PageVues::PageVues(QWidget * parent)
    : QWidget(parent)
{
    auto * const disposition =
        CreeMiseEnPage(this, TraductionGalerie(TexteGalerie("Vues")),
                       TraductionGalerie(TexteGalerie(
                           "Les vues de la bibliothèque. Un double clic sur une case la coche deux "
                           "fois, un doigt fait défiler les arbres.")));
    disposition->addWidget(CreeArbresRedimensionnables(), 1);
    auto * const grille = new QGridLayout;
    grille->addWidget(CreeTable(), 0, 0);
    grille->addWidget(CreeListeCliquee(), 1, 0);
    grille->addWidget(CreeListe(), 0, 1);
    grille->addWidget(CreeLongArbre(), 1, 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnStretch(1, 1);
    disposition->addLayout(grille, 4);
}

bool PageVues::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() == QEvent::Resize) {
        auto const & changement = *static_cast<QResizeEvent *>(evenement);
        if (!changement.oldSize().isValid())
            EgaliseColonnes(changement.size().width());
    }
    return QWidget::eventFilter(objet, evenement);
}

QWidget * PageVues::CreeArbresRedimensionnables()
{
    auto * const separateur = new QSplitter(Qt::Horizontal);
    separateur->setObjectName(u"separateur"_s);

    monArbreReparti = new DTreeView(separateur);
    monArbreReparti->setObjectName(u"arbreReparti"_s);
    monArbreReparti->setAccessibleName(TraductionGalerie(TexteGalerie("Colonnes réparties")));
    QStringList const noms = {TraductionGalerie(TexteGalerie("Première colonne")),
                              TraductionGalerie(TexteGalerie("Deuxième colonne")),
                              TraductionGalerie(TexteGalerie("Troisième colonne"))};
    mesColonnes.appendRow(CreeRang(noms));
    mesColonnes.item(0)->appendRow(CreeRang({u"1.1"_s, u"1.2"_s, u"1.3"_s}));
    mesColonnes.item(0)->appendRow(CreeRang({u"2.1"_s, u"2.2"_s, u"2.3"_s}));
    monArbreReparti->setModel(&mesColonnes);
    monArbreReparti->setHeaderHidden(true);
    monArbreReparti->setAlternatingRowColors(true);
    monArbreReparti->header()->setStretchLastSection(false);
    monArbreReparti->MetsRedimensionnementAvecResizeEvent(true);
    monArbreReparti->expandAll();
    monArbreReparti->viewport()->installEventFilter(this);

    auto * const vide = new DTreeView(separateur);
    vide->setObjectName(u"arbreVide"_s);
    vide->setAccessibleName(TraductionGalerie(TexteGalerie("Arbre vide")));
    vide->setHeaderHidden(true);
    vide->AfficheMessageSiVide(TraductionGalerie(
        TexteGalerie("Cet arbre est vide. Son message passe à la ligne à la largeur de la vue : "
                     "déplacez la barre qui sépare les deux arbres.")));
    return separateur;
}

QWidget * PageVues::CreeTable()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Table à cocher")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const table = new DTableView(groupe);
    table->setObjectName(u"tableACocher"_s);
    table->setAccessibleName(groupe->title());
    mesTaches.setHorizontalHeaderLabels(
        {TraductionGalerie(TexteGalerie("Tâche")), TraductionGalerie(TexteGalerie("Pour"))});
    QStringList const taches[] = {
        {TraductionGalerie(TexteGalerie("Relire le texte")),
         TraductionGalerie(TexteGalerie("lundi"))},
        {TraductionGalerie(TexteGalerie("Vérifier les noms")),
         TraductionGalerie(TexteGalerie("mardi"))},
        {TraductionGalerie(TexteGalerie("Envoyer")), TraductionGalerie(TexteGalerie("vendredi"))},
    };
    for (QStringList const & tache : taches) {
        mesTaches.appendRow(CreeRang(tache));
        auto * const premiere = mesTaches.item(mesTaches.rowCount() - 1);
        premiere->setCheckable(true);
        premiere->setCheckState(mesTaches.rowCount() == 1 ? Qt::Checked : Qt::Unchecked);
    }
    table->setModel(&mesTaches);
    PrepareTable(*table);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    disposition->addWidget(table);
    return groupe;
}

QWidget * PageVues::CreeListeCliquee()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Liste à cliquer")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const liste = new DListViewClique(groupe);
    liste->setObjectName(u"listeCliquee"_s);
    liste->setAccessibleName(groupe->title());
    liste->addItems({TraductionGalerie(TexteGalerie("Appuyez sur un rang")),
                     TraductionGalerie(TexteGalerie("et relâchez au même endroit")),
                     TraductionGalerie(TexteGalerie("ou sur un autre"))});
    auto * const etiquette = new QLabel(TraductionGalerie(TexteGalerie("&Signaux")));
    auto * const trace = new TraceSignaux(TraductionGalerie(TexteGalerie("Signaux")));
    trace->setFixedHeight(kHauteurTrace);
    etiquette->setBuddy(trace);
    disposition->addWidget(liste);
    disposition->addWidget(etiquette);
    disposition->addWidget(trace);
    trace->Suis(liste, &QAbstractItemView::pressed, u"pressed"_s);
    trace->Suis(liste, &QAbstractItemView::clicked, u"clicked"_s);
    return groupe;
}

QWidget * PageVues::CreeListe()
{
    auto * const groupe = new QGroupBox(TraductionGalerie(TexteGalerie("Liste")));
    auto * const disposition = new QVBoxLayout(groupe);
    auto * const liste = new DListView(groupe);
    liste->setObjectName(u"listeSimple"_s);
    liste->setAccessibleName(groupe->title());
    for (char16_t lettre = u'A'; lettre <= u'Z'; ++lettre)
        mesLettres.appendRow(CreeRang(
            {TraductionGalerie(TexteGalerie("Mots en {1}"), {UniChaine(QString(QChar(lettre)))})}));
    liste->setModel(&mesLettres);
    liste->setCurrentIndex(mesLettres.index(1, 0));
    disposition->addWidget(liste);
    return groupe;
}

QWidget * PageVues::CreeLongArbre()
{
    auto * const groupe = new QGroupBox(TraductionPlurielGalerie(
        TextePlurielGalerie("Un arbre de {1} rang", "Un arbre de {1} rangs"), kRangsDeLArbre));
    auto * const disposition = new QVBoxLayout(groupe);
    for (int chapitre = 1; chapitre <= kChapitres; ++chapitre) {
        QString const numero = locale().toString(chapitre);
        QList<QStandardItem *> sections;
        for (int section = 1; section <= kSections; ++section)
            sections.append(new QStandardItem(numero + u'.' + locale().toString(section)));
        auto * const rang =
            new QStandardItem(TraductionGalerie(TexteGalerie("Chapitre {1}"), {UniChaine(numero)}));
        rang->appendRows(sections);
        monLongArbre.appendRow(rang);
    }
    auto * const arbre = new DTreeView(groupe);
    arbre->setObjectName(u"longArbre"_s);
    arbre->setAccessibleName(groupe->title());
    arbre->setModel(&monLongArbre);
    arbre->setEditTriggers(QAbstractItemView::NoEditTriggers);
    arbre->setHeaderHidden(true);
    arbre->setUniformRowHeights(true); // or the view would measure every row
    arbre->expandAll();
    disposition->addWidget(arbre);
    return groupe;
}

void PageVues::EgaliseColonnes(int largeur)
{
    int const colonnes = mesColonnes.columnCount();
    for (int colonne = 0; colonne < colonnes; ++colonne)
        monArbreReparti->setColumnWidth(colonne, largeur / colonnes +
                                                     (colonne < largeur % colonnes ? 1 : 0));
}
