// tests/controls/tst_DTableViewSelection.cpp
#include "controls/EssaisTable.h"

using namespace EssaisTable;

using Cellules = QSet<QPair<int, int>>; // row and column

namespace {

Cellules DonneSelection(QTableView const & vue)
{
    Cellules cellules;
    for (auto const & index : vue.selectionModel()->selectedIndexes())
        cellules.insert({index.row(), index.column()});
    return cellules;
}

/// What is selected after a double click in the second row, beside its box if it has one; the cell
/// was selected before or not.
template <typename Vue>
Cellules SelectionneParDoubleClic(QAbstractItemView::SelectionMode mode, int colonne,
                                  Qt::KeyboardModifiers touches, bool estSelectionnay,
                                  bool glissable = false)
{
    Banc<Vue> banc;
    banc.vue.setDragEnabled(glissable);
    banc.vue.setSelectionMode(mode);
    auto * const selection = banc.vue.selectionModel();
    selection->setCurrentIndex(banc.modele.index(0, colonne), QItemSelectionModel::Select);
    if (estSelectionnay)
        selection->select(banc.modele.index(1, colonne), QItemSelectionModel::Select);
    banc.DoubleClique(banc.Texte(1, colonne), touches);
    return DonneSelection(banc.vue);
}

} // namespace

// What a double click selects.
class tst_DTableViewSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void commeQt_data();
    void commeQt();
    void deuxFois_data();
    void deuxFois();
    void autresBoutons_data();
    void autresBoutons();
};

void tst_DTableViewSelection::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTableViewSelection::commeQt_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("colonne");
    QTest::addColumn<Qt::KeyboardModifiers>("touches");
    auto const ajoute = [](char const * nom, QAbstractItemView::SelectionMode mode, int colonne,
                           Qt::KeyboardModifiers touches) {
        QTest::newRow(nom) << static_cast<int>(mode) << colonne << touches;
    };
    Qt::KeyboardModifiers const aucune;
    auto const etendue = QAbstractItemView::ExtendedSelection;
    ajoute("box", etendue, kColonneCase, aucune);
    ajoute("box with Shift", etendue, kColonneCase, Qt::ShiftModifier);
    ajoute("box, single", QAbstractItemView::SingleSelection, kColonneCase, aucune);
    ajoute("box, contiguous", QAbstractItemView::ContiguousSelection, kColonneCase, aucune);
    ajoute("box, none", QAbstractItemView::NoSelection, kColonneCase, aucune);
    ajoute("no box", etendue, kColonneTexte, aucune);
    ajoute("no box with Shift", etendue, kColonneTexte, Qt::ShiftModifier);
    ajoute("no box with Ctrl", etendue, kColonneTexte, Qt::ControlModifier);
    ajoute("no box, multi", QAbstractItemView::MultiSelection, kColonneTexte, aucune);
}

void tst_DTableViewSelection::commeQt()
{
    QFETCH(int, mode);
    QFETCH(int, colonne);
    QFETCH(Qt::KeyboardModifiers, touches);
    auto const modeDeVue = static_cast<QAbstractItemView::SelectionMode>(mode);
    for (bool const avant : {false, true})
        QCOMPARE(SelectionneParDoubleClic<DTableView>(modeDeVue, colonne, touches, avant),
                 SelectionneParDoubleClic<QTableView>(modeDeVue, colonne, touches, avant));
}

void tst_DTableViewSelection::deuxFois_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<Qt::KeyboardModifiers>("touches");
    QTest::addColumn<bool>("glissable");
    for (bool const glissable : {false, true}) {
        char const * const fin = glissable ? " of items that can be dragged" : "";
        QTest::addRow("Ctrl%s", fin) << static_cast<int>(QAbstractItemView::ExtendedSelection)
                                     << Qt::KeyboardModifiers(Qt::ControlModifier) << glissable;
        QTest::addRow("multi selection%s", fin)
            << static_cast<int>(QAbstractItemView::MultiSelection) << Qt::KeyboardModifiers()
            << glissable;
    }
}

// Deliberate: the press of the second click counts for the selection as well, which Qt toggles
// only once. An item with a box ends as it began.
void tst_DTableViewSelection::deuxFois()
{
    QFETCH(int, mode);
    QFETCH(Qt::KeyboardModifiers, touches);
    QFETCH(bool, glissable);
    auto const modeDeVue = static_cast<QAbstractItemView::SelectionMode>(mode);
    Cellules const sans{{0, kColonneCase}};
    Cellules const avec{{0, kColonneCase}, {1, kColonneCase}};
    for (bool const avant : {false, true}) {
        QCOMPARE(SelectionneParDoubleClic<QTableView>(modeDeVue, kColonneCase, touches, avant,
                                                      glissable),
                 avant ? sans : avec);
        QCOMPARE(SelectionneParDoubleClic<DTableView>(modeDeVue, kColonneCase, touches, avant,
                                                      glissable),
                 avant ? avec : sans);
    }
}

void tst_DTableViewSelection::autresBoutons_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::addColumn<bool>("surLaCase");
    for (bool const surLaCase : {false, true}) {
        char const * const lieu = surLaCase ? "on the box" : "beside the box";
        QTest::addRow("right, %s", lieu) << Qt::RightButton << surLaCase;
        QTest::addRow("middle, %s", lieu) << Qt::MiddleButton << surLaCase;
    }
}

// Another button than the left one leaves the rows selected that a context menu is meant for.
void tst_DTableViewSelection::autresBoutons()
{
    QFETCH(Qt::MouseButton, bouton);
    QFETCH(bool, surLaCase);
    Banc<QTableView> plain;
    Banc<DTableView> banc;
    plain.vue.selectAll();
    banc.vue.selectAll();
    plain.DoubleClique(bouton, {}, surLaCase ? plain.Case(1) : plain.Texte(1));
    banc.DoubleClique(bouton, {}, surLaCase ? banc.Case(1) : banc.Texte(1));
    QCOMPARE(DonneSelection(banc.vue), DonneSelection(plain.vue));
    if (bouton == Qt::RightButton)
        QCOMPARE(DonneSelection(banc.vue).size(), 9);
}

QTEST_MAIN(tst_DTableViewSelection)
#include "tst_DTableViewSelection.moc"
