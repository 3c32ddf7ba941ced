// tests/controls/tst_DTableViewEditeur.cpp
#include "controls/EssaisTable.h"

#include <QLineEdit>

using namespace EssaisTable;

namespace {

class TableTemoin : public DTableView
{
public:
    bool Edite() const { return state() == EditingState; }
};

} // namespace

// The editors that a double click opens, or not.
class tst_DTableViewEditeur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void editeur_data();
    void editeur();
    void editeurOuvertAilleurs();
};

void tst_DTableViewEditeur::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTableViewEditeur::editeur_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("surLaCase");
    QTest::addColumn<bool>("ouvert");
    QTest::newRow("on the box: none") << kColonneCase << true << false;
    QTest::newRow("beside the box") << kColonneCase << false << true;
    QTest::newRow("without a box") << kColonneTexte << false << true;
}

void tst_DTableViewEditeur::editeur()
{
    QFETCH(int, colonne);
    QFETCH(bool, surLaCase);
    QFETCH(bool, ouvert);
    for (auto const declencheurs :
         {QAbstractItemView::EditTriggers(QAbstractItemView::DoubleClicked),
          QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked}) {
        Banc<TableTemoin> banc;
        banc.vue.setEditTriggers(declencheurs);
        Espions const espions(banc.vue, banc.modele);
        banc.DoubleClique(surLaCase ? banc.Case(1, colonne) : banc.Texte(1, colonne));
        QCOMPARE(banc.vue.Edite(), ouvert);
        QCOMPARE(banc.vue.viewport()->findChild<QLineEdit *>() != nullptr, ouvert);
        QCOMPARE(espions.doubles.count(), 1);
        QCOMPARE(espions.changements.count(), surLaCase ? 2 : 0);
    }
}

void tst_DTableViewEditeur::editeurOuvertAilleurs()
{
    Banc<DTableView> banc;
    banc.vue.edit(banc.modele.index(0, kColonneTexte));
    QVERIFY(banc.vue.viewport()->findChild<QLineEdit *>());
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(espions.changements.count(), 2);
    QCOMPARE(banc.Etat(1), Qt::Unchecked);
}

QTEST_MAIN(tst_DTableViewEditeur)
#include "tst_DTableViewEditeur.moc"
