#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The selected row moves by one place.

class tst_WidgetListeEditableDeplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void deplacement_data();
    void deplacement();
    void bords_data();
    void bords();
    void sansSelection();
    void memesItems();
    void signaux();
    void pendantLEdition();
    void recepteur_data();
    void recepteur();
};

namespace {

using Action = std::function<void(ListeEssai &)>;

} // namespace

Q_DECLARE_METATYPE(Action)

void tst_WidgetListeEditableDeplacement::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableDeplacement::deplacement_data()
{
    QTest::addColumn<QList<int>>("selection");
    QTest::addColumn<bool>("versLeHaut");
    QTest::addColumn<QStringList>("textes");
    QTest::addColumn<int>("rangee");
    QTest::newRow("up") << QList<int>{1} << true << QStringList{u"b"_s, u"a"_s, u"c"_s} << 0;
    QTest::newRow("down") << QList<int>{1} << false << QStringList{u"a"_s, u"c"_s, u"b"_s} << 2;
    QTest::newRow("last up") << QList<int>{2} << true << QStringList{u"a"_s, u"c"_s, u"b"_s} << 1;
    QTest::newRow("first down") << QList<int>{0} << false << QStringList{u"b"_s, u"a"_s, u"c"_s}
                                << 1;
    QTest::newRow("of two, the first selected")
        << QList<int>{2, 0} << true << QStringList{u"a"_s, u"c"_s, u"b"_s} << 1;
}

// Deliberate: in a multi-selection one row moves, and alone is selected then.
void tst_WidgetListeEditableDeplacement::deplacement()
{
    QFETCH(QList<int>, selection);
    QFETCH(bool, versLeHaut);
    QFETCH(QStringList, textes);
    QFETCH(int, rangee);
    ListeEssai liste(2);
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.SelectionneRangees(selection);
    liste.PriseBougeElementSelectionner(versLeHaut);
    QCOMPARE(liste.Textes(), textes);
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{rangee});
    QCOMPARE(liste.PreteVue()->currentIndex(), liste.Index(rangee));
    QVERIFY(liste.DonneBoutonRetirer()->isEnabled());
}

void tst_WidgetListeEditableDeplacement::bords_data()
{
    QTest::addColumn<QList<int>>("selection");
    QTest::addColumn<bool>("versLeHaut");
    QTest::newRow("top row up") << QList<int>{0} << true;
    QTest::newRow("bottom row down") << QList<int>{2} << false;
    QTest::newRow("top row up, with another") << QList<int>{0, 2} << true;
}

void tst_WidgetListeEditableDeplacement::bords()
{
    QFETCH(QList<int>, selection);
    QFETCH(bool, versLeHaut);
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.SelectionneRangees(selection);
    JournalSignaux journal(liste);
    liste.PriseBougeElementSelectionner(versLeHaut);
    QCOMPARE(journal.Prends(), QStringList());
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(liste.RangeesSelectionnay(), selection);
}

void tst_WidgetListeEditableDeplacement::sansSelection()
{
    ListeEssai liste;
    liste.PriseBougeElementSelectionner(true);
    liste.Remplis({u"a"_s, u"b"_s});
    JournalSignaux journal(liste);
    liste.PriseBougeElementSelectionner(true);
    liste.PriseBougeElementSelectionner(false);
    QCOMPARE(journal.Prends(), QStringList());
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"b"_s}));
}

void tst_WidgetListeEditableDeplacement::memesItems()
{
    ListeEssai liste(3);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s}));
    QList<QList<QStandardItem *>> items = liste.DonneListeStandardItems();
    liste.SelectionneRangees({0});
    liste.PriseBougeElementSelectionner(false);
    items.swapItemsAt(0, 1);
    QCOMPARE(liste.DonneListeStandardItems(), items);
}

void tst_WidgetListeEditableDeplacement::signaux()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    liste.SelectionneRangees({0});
    JournalSignaux journal(liste);
    liste.PriseBougeElementSelectionner(false);
    VideLaFile();
    // Once as the row leaves its place, once at the end.
    QCOMPARE(journal.Prends(), (QStringList{u"modifies"_s, u"modifies"_s}));
}

void tst_WidgetListeEditableDeplacement::pendantLEdition()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s, u"2"_s}));
    liste.DoubleCliqueCellule(0);
    liste.Tape(u"x"_s);
    liste.PriseBougeElementSelectionner(false);
    QCOMPARE(liste.Textes(), (QStringList{u"b"_s, u"x"_s})); // nothing typed is lost
    QCOMPARE(liste.NombreEditeurs(), 0);
    // The second cell, whose row is current through the first.
    liste.Clique(liste.DonneBoutonAjouter());
    liste.Tape(u"c"_s);
    liste.Touche(Qt::Key_Return);
    QTRY_COMPARE(liste.CelluleEditee(), liste.Index(2, 1));
    liste.Tape(u"y"_s);
    liste.PriseBougeElementSelectionner(true);
    QCOMPARE(liste.Texte(1, 0), u"c"_s);
    QCOMPARE(liste.Texte(1, 1), u"y"_s);
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
    QCOMPARE(liste.DonneNbRangee(), 3);
}

void tst_WidgetListeEditableDeplacement::recepteur_data()
{
    QTest::addColumn<Action>("action"); // at the first change
    QTest::addColumn<QStringList>("textes");
    QTest::newRow("empties the list")
        << Action([](ListeEssai & l) { l.Vide(false); }) << QStringList{u"b"_s};
    QTest::newRow("adds a row") << Action([](ListeEssai & l) { l.Remplis({u"x"_s}); })
                                << QStringList{u"a"_s, u"c"_s, u"b"_s, u"x"_s};
    QTest::newRow("moves again") << Action([](ListeEssai & l) {
        l.SelectionneRangees({0});
        l.PriseBougeElementSelectionner(false);
    }) << QStringList{u"c"_s, u"a"_s, u"b"_s};
    QTest::newRow("clears the selection")
        << Action([](ListeEssai & l) { l.VideSelection(); }) << QStringList{u"a"_s, u"c"_s, u"b"_s};
}

void tst_WidgetListeEditableDeplacement::recepteur()
{
    QFETCH(Action, action);
    QFETCH(QStringList, textes);
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.SelectionneRangees({1});
    bool premiere = true;
    connect(&liste, &WidgetListeEditable::SignalElementsModifiay, this, [&] {
        if (std::exchange(premiere, false))
            action(liste);
    });
    liste.PriseBougeElementSelectionner(false);
    QCOMPARE(liste.Textes(), textes);
}

QTEST_MAIN(tst_WidgetListeEditableDeplacement)
#include "tst_WidgetListeEditableDeplacement.moc"
