#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Selection, state and sizes.

class tst_WidgetListeEditableProprietes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void defilement_data();
    void defilement();
    void rangeesSelectionnay();
    void rangeesSousUneCellule();
    void selection();
    void signalSelection();
    void etatBoutonRetirer();
    void desactivation();
    void deleguayDeColonne();
    void largeurs();
    void hauteurFixe();
    void nombreDeRangees_data();
    void nombreDeRangees();
    void nombreDeRangeesSansEffet();
    void colonneCachee();
};

void tst_WidgetListeEditableProprietes::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableProprietes::defilement_data()
{
    QTest::addColumn<bool>("apresSelection");
    QTest::newRow("at the end") << false;
    QTest::newRow("after the selection") << true;
}

void tst_WidgetListeEditableProprietes::defilement()
{
    QFETCH(bool, apresSelection);
    ListeEssai liste(1, false, true, {}, apresSelection);
    QVERIFY(liste.Montre());
    for (int i = 0; i < 100; ++i)
        liste.Remplis({QString::number(i)});
    QScrollBar & barre = *liste.PreteVue()->verticalScrollBar();
    VideLaFile();
    barre.setValue(0);
    Q_EMIT liste.SignalAjout();
    QCOMPARE(barre.value() > 0, !apresSelection);
    barre.setValue(0);
    liste.Remplis({u"fin"_s});
    QCOMPARE(barre.value() > 0, apresSelection);
}

void tst_WidgetListeEditableProprietes::rangeesSelectionnay()
{
    ListeEssai liste(3);
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>());
    liste.SelectionneRangees({2, 0, 3});
    QCOMPARE(liste.RangeesSelectionnay(), (QList<int>{2, 0, 3}));
    QCOMPARE(liste.DonneElementsSelectionnays().size(), 9);
    QCOMPARE(liste.DonneElementsSelectionnays().first(), liste.Index(2));
    liste.VideSelection();
    QVERIFY(liste.DonneElementsSelectionnays().isEmpty());
}

// What a host has put under a cell can be selected, but is no row of the list.
void tst_WidgetListeEditableProprietes::rangeesSousUneCellule()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    for (int i = 0; i < 1000; ++i)
        liste.DonneElement(0, 0)->appendRow(new QStandardItem(u"sous a"_s));
    liste.PreteVue()->expandAll();
    liste.PreteVue()->selectAll();
    QCOMPARE(liste.RangeesSelectionnay(), (QList<int>{0, 1}));
}

void tst_WidgetListeEditableProprietes::selection()
{
    ListeEssai liste(2);
    liste.Remplis({u"a"_s, u"b"_s});
    liste.Selectionne(1, 1, QItemSelectionModel::Select);
    QCOMPARE(liste.DonneElementsSelectionnays(), QModelIndexList{liste.Index(1, 1)});
    Commande const seule = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    liste.Selectionne(0, 0, seule);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
    for (QPoint const hors : {QPoint(-1, 0), QPoint(0, -1), QPoint(2, 0), QPoint(0, 2)})
        liste.Selectionne(hors.x(), hors.y(), seule);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
    QVERIFY(!liste.PreteVue()->currentIndex().isValid()); // which selecting does not move
}

void tst_WidgetListeEditableProprietes::signalSelection()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    QSignalSpy const espion(&liste, &WidgetListeEditable::SignalSelectionChangay);
    liste.SelectionneRangees({0});
    liste.Selectionne(1, 0, QItemSelectionModel::ClearAndSelect);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).value<QItemSelection>().indexes(), QModelIndexList{liste.Index(1)});
    QCOMPARE(espion.at(1).at(1).value<QItemSelection>().indexes(), QModelIndexList{liste.Index(0)});
}

void tst_WidgetListeEditableProprietes::etatBoutonRetirer()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s});
    QToolButton & bouton = *liste.DonneBoutonRetirer();
    liste.SelectionneRangees({0});
    QVERIFY(bouton.isEnabled());
    liste.VideSelection();
    QVERIFY(!bouton.isEnabled());
    bouton.setEnabled(true);
    liste.PriseActualiseEtatBoutonSupprimer();
    QVERIFY(!bouton.isEnabled());
}

void tst_WidgetListeEditableProprietes::desactivation()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    liste.SelectionneRangees({0, 1});
    liste.MetsUtilisateurPeutChangerValeur(false);
    QVERIFY(!liste.isEnabled());
    QVERIFY(liste.RangeesSelectionnay().isEmpty());
    liste.MetsUtilisateurPeutChangerValeur(true);
    QVERIFY(liste.isEnabled());
    QVERIFY(!liste.DonneBoutonRetirer()->isEnabled());
    // A part of the list alone clears nothing.
    liste.SelectionneRangees({0});
    liste.DonneBoutonAjouter()->setEnabled(false);
    liste.PreteVue()->setEnabled(false);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
}

void tst_WidgetListeEditableProprietes::deleguayDeColonne()
{
    ListeEssai liste(2);
    QStyledItemDelegate deleguay;
    liste.MetsDeleguaySurColonne(1, &deleguay);
    QCOMPARE(liste.PreteVue()->itemDelegateForColumn(1), &deleguay);
    QVERIFY(liste.PreteVue()->itemDelegateForColumn(0) == nullptr);
}

void tst_WidgetListeEditableProprietes::largeurs()
{
    ListeEssai liste(2);
    liste.MetsLargeurColonneFixe(0, 77);
    QCOMPARE(liste.DonneLargeurColonne(0), 77);
    QCOMPARE(liste.PreteVue()->columnWidth(0), 77);
    liste.MetsLargeurColonneFixe(2, 55);
    liste.MetsLargeurColonneFixe(-1, 55);
    QCOMPARE(liste.DonneLargeurColonne(0), 77);
    QCOMPARE(liste.DonneLargeurColonne(2), 0);
}

void tst_WidgetListeEditableProprietes::hauteurFixe()
{
    ListeEssai liste;
    liste.MetsHauteurListeFixe(123);
    QCOMPARE(liste.PreteVue()->minimumHeight(), 123);
    QCOMPARE(liste.PreteVue()->maximumHeight(), 123);
}

void tst_WidgetListeEditableProprietes::nombreDeRangees_data()
{
    QTest::addColumn<int>("n");
    QTest::addColumn<bool>("entete");
    QTest::newRow("one row") << 1 << false;
    QTest::newRow("five rows") << 5 << false;
    QTest::newRow("one row under a header") << 1 << true;
    QTest::newRow("five rows under a header") << 5 << true;
}

void tst_WidgetListeEditableProprietes::nombreDeRangees()
{
    QFETCH(int, n);
    QFETCH(bool, entete);
    ListeEssai liste;
    liste.DonneEntete()->setHidden(!entete);
    liste.Remplis({u"a"_s, u"b"_s});
    QVERIFY(liste.Montre());
    int const rangee = liste.PreteVue()->visualRect(liste.Index(0)).height();
    QVERIFY(rangee > 0);
    liste.MetsNombreDeRangeesVisibles(n);
    int attendue = (n - 1) * rangee + 24;
    if (entete)
        attendue += liste.DonneEntete()->height() - 6;
    QCOMPARE(liste.PreteVue()->minimumHeight(), attendue);
    QCOMPARE(liste.PreteVue()->maximumHeight(), attendue);
}

void tst_WidgetListeEditableProprietes::nombreDeRangeesSansEffet()
{
    ListeEssai sansBouton(1, true, false);
    sansBouton.Remplis({u"a"_s});
    ListeEssai sansRangee;
    ListeEssai sansColonne(0);
    for (ListeEssai * const liste : {&sansBouton, &sansRangee, &sansColonne}) {
        int const minimum = liste->PreteVue()->minimumHeight();
        liste->MetsNombreDeRangeesVisibles(4);
        QCOMPARE(liste->PreteVue()->minimumHeight(), minimum);
        QCOMPARE(liste->PreteVue()->maximumHeight(), QWIDGETSIZE_MAX);
    }
}

void tst_WidgetListeEditableProprietes::colonneCachee()
{
    ListeEssai liste(2);
    liste.ToggleAffichageDeColonne(1, true);
    QVERIFY(liste.PreteVue()->isColumnHidden(1));
    QVERIFY(!liste.PreteVue()->isColumnHidden(0));
    liste.ToggleAffichageDeColonne(1, false);
    QVERIFY(!liste.PreteVue()->isColumnHidden(1));
    liste.ToggleAffichageDeColonne(2, true);
    liste.ToggleAffichageDeColonne(-1, true);
    QVERIFY(!liste.PreteVue()->isColumnHidden(0));
}

QTEST_MAIN(tst_WidgetListeEditableProprietes)
#include "tst_WidgetListeEditableProprietes.moc"
