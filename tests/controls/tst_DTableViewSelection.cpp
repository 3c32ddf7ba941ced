// tests/controls/tst_DTableViewSelection.cpp
#include "controls/EssaisTable.h"

using namespace EssaisTable;

// What a double click selects.
class tst_DTableViewSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void selection();
};

void tst_DTableViewSelection::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// The same rows as in a plain table, whichever cell was selected before.
void tst_DTableViewSelection::selection()
{
    for (auto const touches : {Qt::NoModifier, Qt::ControlModifier}) {
        for (int const colonne : {kColonneCase, kColonneTexte}) {
            Banc<QTableView> plain;
            Banc<DTableView> banc;
            plain.vue.selectRow(1);
            banc.vue.selectRow(1);
            plain.DoubleClique(plain.Texte(1, colonne), touches);
            banc.DoubleClique(banc.Texte(1, colonne), touches);
            if (touches == Qt::NoModifier)
                QCOMPARE(banc.vue.selectionModel()->selectedIndexes().size(),
                         plain.vue.selectionModel()->selectedIndexes().size());
            QCOMPARE(banc.vue.currentIndex(), banc.modele.index(1, colonne));
        }
    }
}

QTEST_MAIN(tst_DTableViewSelection)
#include "tst_DTableViewSelection.moc"
