// tests/controls/tst_DTreeViewColonnesEtirees.cpp
#include "controls/EssaisColonnes.h"

#include <QRandomGenerator>
#include <QScrollBar>

using namespace EssaisColonnes;

// The columns that share the width of a tree are among those that Qt stretches, or a scroll bar
// takes its part.
class tst_DTreeViewColonnesEtirees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void partage_data();
    void partage();
    void derniereDeplacee();
    void derniereFixe();
    void sectionsEtirees();
    void barreQuiApparait();
    void sommeExacte_data();
    void sommeExacte();
};

void tst_DTreeViewColonnesEtirees::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeViewColonnesEtirees::partage_data()
{
    AjoutePartages();
}

// As a tree is made. Qt alone would give the last column all of it.
void tst_DTreeViewColonnesEtirees::partage()
{
    QFETCH(int, delta);
    QFETCH(Largeurs, attendues);
    Banc banc({100, 100, 100}, true);
    banc.Change(delta);
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), attendues);
    QCOMPARE(banc.vue.header()->length(), 300 + delta);
    banc.Change(-delta);
    QCoreApplication::processEvents();
    QCOMPARE(banc.vue.header()->length(), 300);
}

// The stretched section is the last one that is seen, and gets its new width before others.
void tst_DTreeViewColonnesEtirees::derniereDeplacee()
{
    Banc banc({100, 100, 100}, true);
    banc.vue.header()->moveSection(0, 2);
    banc.vue.header()->resizeSection(0, 100);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100, 100}));
    QSignalSpy const espion(banc.vue.header(), &QHeaderView::sectionResized);
    for (int const delta : {30, -60}) {
        Largeurs const attendues(3, (banc.vue.width() + delta) / 3);
        banc.Change(delta);
        QCOMPARE(DonneLargeurs(banc.vue), attendues);
        QCoreApplication::processEvents();
        QCOMPARE(DonneLargeurs(banc.vue), attendues);
    }
    QCOMPARE(espion.count(), 7); // one for each column, and the base has widened the last once
}

// What Qt stretches is no exception for a column that keeps its width.
void tst_DTreeViewColonnesEtirees::derniereFixe()
{
    Banc banc({100, 100, 100}, true);
    banc.vue.header()->setSectionResizeMode(2, QHeaderView::Fixed);
    banc.Change(30);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{115, 115, 100}));
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{115, 115, 100}));
}

void tst_DTreeViewColonnesEtirees::sectionsEtirees()
{
    Banc banc({100, 100, 100});
    banc.vue.header()->setSectionResizeMode(1, QHeaderView::Stretch);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100, 100}));
    for (int const delta : {31, -62, 7}) {
        int const avant = Somme(banc.vue);
        banc.Change(delta);
        QCOMPARE(Somme(banc.vue), avant + delta);
        QCoreApplication::processEvents();
        QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
    }
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{94, 91, 91}));
}

void tst_DTreeViewColonnesEtirees::barreQuiApparait()
{
    for (bool const etireLaDerniere : {false, true}) {
        Banc banc({100, 100, 100}, etireLaDerniere);
        banc.vue.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        banc.modele.setRowCount(20);
        QTRY_VERIFY(banc.vue.verticalScrollBar()->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
        for (int const hauteur : {2000, 100, 1800, kHauteur}) {
            banc.vue.resize(banc.vue.width() + 17, hauteur);
            QCoreApplication::processEvents();
            QCOMPARE(Somme(banc.vue), banc.vue.viewport()->width());
        }
    }
}

void tst_DTreeViewColonnesEtirees::sommeExacte_data()
{
    QTest::addColumn<bool>("etireLaDerniere");
    QTest::newRow("as they are") << false;
    QTest::newRow("the last one stretched") << true;
}

void tst_DTreeViewColonnesEtirees::sommeExacte()
{
    QFETCH(bool, etireLaDerniere);
    Banc banc({120, 80, 200, 100, 90}, etireLaDerniere);
    banc.vue.header()->setSectionResizeMode(1, QHeaderView::Fixed);
    banc.vue.setColumnHidden(2, true);
    banc.vue.MetsRedimensionnementAvecResizeEvent(false);
    banc.Change(-200);
    banc.vue.MetsRedimensionnementAvecResizeEvent(true);
    int attendue = Somme(banc.vue);
    QCOMPARE(attendue, banc.vue.viewport()->width());
    QRandomGenerator hasard(20);
    for (int essai = 0; essai < 10000; ++essai) {
        int const largeur = hasard.bounded(80 + 3 * kMinimum, 1500);
        attendue += largeur - banc.vue.viewport()->width();
        banc.vue.resize(largeur, kHauteur);
        QCOMPARE(Somme(banc.vue), attendue);
        if (essai % 100 == 0) {
            QCoreApplication::processEvents();
            QCOMPARE(Somme(banc.vue), attendue);
        }
        QCOMPARE(banc.vue.header()->sectionSize(1), 80);
    }
}

QTEST_MAIN(tst_DTreeViewColonnesEtirees)
#include "tst_DTreeViewColonnesEtirees.moc"
