// tests/controls/tst_DTableView.cpp
#include "controls/EssaisTable.h"

using namespace EssaisTable;

class tst_DTableView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void doubleClic_data();
    void doubleClic();
    void deuxFoisLaCase();
    void caseApresDoubleClic();
    void troisEtats();
    void itemDesactive();
    void tableDesactivee();
    void boutonDroit();
    void reinitialisation_data();
    void reinitialisation();
    void clavier();
};

void tst_DTableView::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTableView::construction()
{
    QWidget parent;
    DTableView const vue(&parent);
    QCOMPARE(vue.parentWidget(), &parent);
    QVERIFY(vue.inherits("QTableView")); // which the style asks for by name
    QVERIFY(!vue.model());
}

void tst_DTableView::doubleClic_data()
{
    QTest::addColumn<int>("colonne");
    QTest::addColumn<bool>("surLaCase");
    QTest::addColumn<Comptes>("comptesDeQt");
    QTest::addColumn<Comptes>("comptes");
    QTest::newRow("on the box: two clicks")
        << kColonneCase << true << Comptes{0, 1, 1, 1} << Comptes{0, 2, 1, 2};
    QTest::newRow("on the text of an item with a box")
        << kColonneCase << false << Comptes{1, 1, 1, 0} << Comptes{2, 2, 1, 0};
    QTest::newRow("on an item without a box")
        << kColonneTexte << false << Comptes{1, 1, 1, 0} << Comptes{1, 1, 1, 0};
    QTest::newRow("on a box that the user may not change")
        << kColonneEtat << true << Comptes{1, 1, 1, 0} << Comptes{2, 2, 1, 0};
}

void tst_DTableView::doubleClic()
{
    QFETCH(int, colonne);
    QFETCH(bool, surLaCase);
    QFETCH(Comptes, comptesDeQt);
    QFETCH(Comptes, comptes);

    Banc<QTableView> plain;
    Espions const espionsDeQt(plain.vue, plain.modele);
    plain.DoubleClique(surLaCase ? plain.Case(1, colonne) : plain.Texte(1, colonne));
    QCOMPARE(espionsDeQt.Comptes(), comptesDeQt);

    Banc<DTableView> banc;
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(surLaCase ? banc.Case(1, colonne) : banc.Texte(1, colonne));
    QCOMPARE(espions.Comptes(), comptes);
    QCOMPARE(espions.doubles.at(0).at(0).toModelIndex(), banc.modele.index(1, colonne));
    QCOMPARE(espions.activations.count(), espionsDeQt.activations.count());
    QCOMPARE(banc.vue.currentIndex().row(), plain.vue.currentIndex().row());
    QCOMPARE(banc.vue.currentIndex().column(), plain.vue.currentIndex().column());
}

void tst_DTableView::deuxFoisLaCase()
{
    Banc<DTableView> banc;
    QList<Qt::CheckState> etats;
    connect(&banc.modele, &QStandardItemModel::itemChanged, this,
            [&etats](QStandardItem * item) { etats.append(item->checkState()); });
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(etats, (QList<Qt::CheckState>{Qt::Checked, Qt::Unchecked}));
    QCOMPARE(banc.Etat(1), Qt::Unchecked);
    QCOMPARE(banc.Etat(0), Qt::Unchecked);
}

// Nothing of the double click lasts into the next click.
void tst_DTableView::caseApresDoubleClic()
{
    Banc<DTableView> banc;
    for (auto const & premier : {banc.Case(1), banc.Texte(1), banc.Texte(1, kColonneTexte)}) {
        banc.DoubleClique(premier);
        QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Case(1));
        QCOMPARE(banc.Etat(1), Qt::Checked);
        QTest::mouseClick(banc.vue.viewport(), Qt::LeftButton, {}, banc.Case(1));
        QCOMPARE(banc.Etat(1), Qt::Unchecked);
    }
}

void tst_DTableView::troisEtats()
{
    Banc<DTableView> banc;
    banc.modele.item(1, kColonneCase)->setUserTristate(true);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(banc.Etat(1), Qt::Checked); // over the partial state
}

void tst_DTableView::itemDesactive()
{
    Banc<DTableView> banc;
    banc.modele.item(1, kColonneCase)->setEnabled(false);
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(banc.Case(1));
    QCOMPARE(espions.presses.count(), 0);
    QCOMPARE(espions.doubles.count(), 0);
    QCOMPARE(espions.changements.count(), 0);
}

void tst_DTableView::tableDesactivee()
{
    Banc<DTableView> banc;
    QPoint const position = banc.Case(1);
    banc.vue.setEnabled(false);
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(position);
    QCOMPARE(espions.Comptes(), (Comptes{0, 0, 0, 0}));
}

void tst_DTableView::boutonDroit()
{
    Banc<DTableView> banc;
    Espions const espions(banc.vue, banc.modele);
    banc.DoubleClique(Qt::RightButton, {}, banc.Case(1));
    QCOMPARE(espions.Comptes(), (Comptes{2, 0, 1, 0}));
}

void tst_DTableView::reinitialisation_data()
{
    QTest::addColumn<bool>("auDoubleClic");
    QTest::newRow("pressed") << false;
    QTest::newRow("doubleClicked") << true;
}

void tst_DTableView::reinitialisation()
{
    QFETCH(bool, auDoubleClic);
    Banc<DTableView> banc;
    auto const vide = [&banc] { banc.modele.clear(); };
    if (auDoubleClic)
        connect(&banc.vue, &DTableView::doubleClicked, &banc.modele, vide);
    else
        connect(&banc.vue, &DTableView::pressed, &banc.modele, vide);
    banc.DoubleClique(banc.Texte(1));
    QCOMPARE(banc.modele.rowCount(), 0);
}

void tst_DTableView::clavier()
{
    Banc<DTableView> banc;
    banc.vue.setCurrentIndex(banc.modele.index(1, kColonneCase));
    QTest::keyClick(&banc.vue, Qt::Key_Space);
    QCOMPARE(banc.Etat(1), Qt::Checked);
    QTest::keyClick(&banc.vue, Qt::Key_Right);
    QCOMPARE(banc.vue.currentIndex(), banc.modele.index(1, kColonneTexte));
}

QTEST_MAIN(tst_DTableView)
#include "tst_DTableView.moc"
