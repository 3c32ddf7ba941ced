// tests/controls/tst_DTreeViewColonnesLimites.cpp
#include "controls/EssaisColonnes.h"

using namespace EssaisColonnes;

// The columns that do not share what the width of a tree gains or loses, or not all of it.
class tst_DTreeViewColonnesLimites : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void colonneIgnoree_data();
    void colonneIgnoree();
    void colonneCachee();
    void aucuneColonneNePeut();
    void minimumPartout();
    void minimumParcouru();
    void maximum();
    void horsLimites();
    void grandDelta();
};

void tst_DTreeViewColonnesLimites::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTreeViewColonnesLimites::colonneIgnoree_data()
{
    QTest::addColumn<QHeaderView::ResizeMode>("mode");
    QTest::newRow("fixed") << QHeaderView::Fixed;
    QTest::newRow("resized to its contents") << QHeaderView::ResizeToContents;
}

void tst_DTreeViewColonnesLimites::colonneIgnoree()
{
    QFETCH(QHeaderView::ResizeMode, mode);
    Banc banc({100, 100, 100});
    banc.vue.header()->setSectionResizeMode(0, mode);
    QCoreApplication::processEvents();
    int const largeur = banc.vue.header()->sectionSize(0);
    banc.Change(20);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{largeur, 110, 110}));
    banc.Change(-40);
    QCoreApplication::processEvents();
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{largeur, 90, 90}));
}

void tst_DTreeViewColonnesLimites::colonneCachee()
{
    Banc banc({100, 100, 100});
    banc.vue.setColumnHidden(1, true);
    banc.Change(20);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{110, 0, 110}));
    banc.vue.setColumnHidden(1, false);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{110, 100, 110}));
}

void tst_DTreeViewColonnesLimites::aucuneColonneNePeut()
{
    Banc banc({100, 100});
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.vue.header()->setSectionResizeMode(QHeaderView::Fixed);
    banc.Change(50);
    banc.Change(-70);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{100, 100}));
    QCOMPARE(espion.count(), 0);
    banc.vue.setColumnHidden(0, true);
    banc.vue.setColumnHidden(1, true);
    espion.clear();
    banc.Change(50);
    QCOMPARE(espion.count(), 0);
    banc.vue.header()->setSectionResizeMode(QHeaderView::Interactive);
    banc.vue.setColumnHidden(0, false);
    banc.Change(5); // what was dropped is not caught up
    QCOMPARE(banc.vue.header()->sectionSize(0), 105);
}

void tst_DTreeViewColonnesLimites::minimumPartout()
{
    Banc banc({kMinimum, kMinimum + 3, kMinimum});
    banc.Change(-10); // only three of them can be taken
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum}));
    banc.Change(-10);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum}));
    banc.Change(1); // to the column after the last that gave a pixel
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum, kMinimum, kMinimum + 1}));
}

void tst_DTreeViewColonnesLimites::minimumParcouru()
{
    Banc banc({100, kMinimum + 1, 100});
    banc.Change(-11);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{95, kMinimum, 95}));
}

void tst_DTreeViewColonnesLimites::maximum()
{
    Banc banc({100, 100});
    banc.vue.header()->setMaximumSectionSize(103);
    banc.Change(5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{103, 102}));
    banc.Change(5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{103, 103}));
}

// A column without any width goes to the smallest one at once, and pays for it.
void tst_DTreeViewColonnesLimites::horsLimites()
{
    Banc banc({100, 100});
    banc.vue.header()->resizeSection(0, 0);
    banc.Change(kMinimum - 1); // too little for the first
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{0, 99 + kMinimum}));
    banc.Change(kMinimum + 5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{kMinimum + 2, 102 + kMinimum}));
    banc.vue.header()->resizeSection(0, 0);
    banc.Change(-5);
    QCOMPARE(DonneLargeurs(banc.vue), (Largeurs{0, 97 + kMinimum}));
}

void tst_DTreeViewColonnesLimites::grandDelta()
{
    Banc banc(Largeurs(100, 30));
    for (int colonne = 0; colonne < 99; ++colonne)
        banc.vue.header()->setSectionResizeMode(colonne, QHeaderView::Fixed);
    QSignalSpy espion(banc.vue.header(), &QHeaderView::sectionResized);
    banc.Change(5000);
    QCOMPARE(banc.vue.header()->sectionSize(99), 5030);
    QCOMPARE(espion.count(), 1);
}

QTEST_MAIN(tst_DTreeViewColonnesLimites)
#include "tst_DTreeViewColonnesLimites.moc"
