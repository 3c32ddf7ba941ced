#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QIntValidator>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// The end of an edit comes from the event loop, and finds its cell again whatever happened to the
// rows in between.

class tst_WidgetListeEditableFins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void finApresCoup();
    void validationDeLaBonneCellule_data();
    void validationDeLaBonneCellule();
    void retraitDeLaBonneRangee_data();
    void retraitDeLaBonneRangee();
    void celluleSuivanteDeLaBonneRangee_data();
    void celluleSuivanteDeLaBonneRangee();
    void celluleRetiree_data();
    void celluleRetiree();
    void plusieursFins();
    void finDemandeeParLHote();
    void autreModele();
    void suiteApresRetrait();
    void hoteQuiTrieAuSignal();
    void hoteQuiRetireAuSignal();
};

namespace {

using Action = std::function<void(ListeEssai &)>;

// Each leaves the cell of "x" or of the empty text somewhere else than row 1.
void AjouteDeplacements()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("rangee");
    auto const ajoute = [](char const * nom, Action const & action, int rangee) {
        QTest::newRow(nom) << action << rangee;
    };
    ajoute(
        "nothing", [](ListeEssai &) {}, 1);
    ajoute(
        "row removed above", [](ListeEssai & l) { l.RetireRangee(0, false); }, 0);
    ajoute(
        "row removed below", [](ListeEssai & l) { l.RetireRangee(2, false); }, 1);
    ajoute(
        "row added above", [](ListeEssai & l) { l.AjouteElement({new QStandardItem(u"5"_s)}, 0); },
        2);
    ajoute(
        "sorted", [](ListeEssai & l) { l.PreteModele()->sort(1, Qt::DescendingOrder); }, 0);
    ajoute(
        "moved up",
        [](ListeEssai & l) {
            l.Selectionne(1, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            l.PriseBougeElementSelectionner(true);
        },
        0);
    ajoute(
        "moved down",
        [](ListeEssai & l) {
            l.Selectionne(1, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            l.PriseBougeElementSelectionner(false);
        },
        2);
    ajoute(
        "its neighbour moved down",
        [](ListeEssai & l) {
            l.Selectionne(0, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            l.PriseBougeElementSelectionner(false);
        },
        0);
}

// The second column tells the rows apart, and sorts them.
void Remplis(ListeEssai & liste)
{
    liste.AjouteElement(CreeValeurs({u"1"_s, u"a"_s, u"-"_s}));
    liste.AjouteElement(CreeValeurs({u"2"_s, u"z"_s, u"-"_s}));
    liste.AjouteElement(CreeValeurs({u"3"_s, u"b"_s, u"-"_s}));
}

// Writes into a cell as a host does that goes behind the back of the list.
void Ecris(ListeEssai & liste, int rangee, int colonne, QString const & texte)
{
    liste.DonneElement(rangee, colonne)->setText(texte);
}

} // namespace

Q_DECLARE_METATYPE(Action)

void tst_WidgetListeEditableFins::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableFins::finApresCoup()
{
    ListeEssai liste(1, true, true, {new QIntValidator(1, 9, nullptr)});
    liste.Remplis({u"1"_s});
    JournalSignaux journal(liste);
    Ecris(liste, 0, 0, QString());
    QCOMPARE(journal.Prends(), QStringList{u"terminee 0,0"_s});
    QCOMPARE(liste.DonneNbRangee(), 1);
    VideLaFile();
    QCOMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"supprimee 0 "_s, u"modifies"_s}));
}

void tst_WidgetListeEditableFins::validationDeLaBonneCellule_data()
{
    AjouteDeplacements();
}

void tst_WidgetListeEditableFins::validationDeLaBonneCellule()
{
    class Correcteur : public QValidator
    {
    public:
        State validate(QString & texte, int &) const override
        {
            return texte == u"corrected"_s ? Acceptable : Intermediate;
        }
        void fixup(QString & texte) const override { texte = u"corrected"_s; }
    };
    QFETCH(Action, action);
    QFETCH(int, rangee);
    ListeEssai liste(3, true, true, {new Correcteur});
    Remplis(liste);
    Ecris(liste, 1, 0, u"x"_s);
    action(liste);
    VideLaFile();
    for (int i = 0; i < liste.DonneNbRangee(); ++i)
        QCOMPARE(liste.Texte(i) == u"corrected"_s, i == rangee);
    QCOMPARE(liste.Texte(rangee, 1), u"z"_s);
}

void tst_WidgetListeEditableFins::retraitDeLaBonneRangee_data()
{
    AjouteDeplacements();
}

void tst_WidgetListeEditableFins::retraitDeLaBonneRangee()
{
    QFETCH(Action, action);
    QFETCH(int, rangee);
    ListeEssai liste(3);
    Remplis(liste);
    Ecris(liste, 1, 0, QString());
    action(liste);
    QStringList attendus = liste.Textes(1);
    QCOMPARE(attendus.takeAt(rangee), u"z"_s);
    VideLaFile();
    QCOMPARE(liste.Textes(1), attendus);
}

void tst_WidgetListeEditableFins::celluleSuivanteDeLaBonneRangee_data()
{
    AjouteDeplacements();
}

void tst_WidgetListeEditableFins::celluleSuivanteDeLaBonneRangee()
{
    QFETCH(Action, action);
    QFETCH(int, rangee);
    ListeEssai liste(4); // the last column is empty
    QVERIFY(liste.Montre());
    Remplis(liste);
    Ecris(liste, 1, 2, u"x"_s);
    action(liste);
    VideLaFile();
    QCOMPARE(liste.CelluleEditee(), liste.Index(rangee, 3));
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{rangee});
    QCOMPARE(liste.Texte(rangee, 2), u"x"_s);
}

void tst_WidgetListeEditableFins::celluleRetiree_data()
{
    QTest::addColumn<Action>("action");
    QTest::newRow("the row") << Action([](ListeEssai & l) { l.RetireRangee(1, false); });
    QTest::newRow("all rows") << Action([](ListeEssai & l) { l.Vide(false); });
    QTest::newRow("the row, and another in its place") << Action([](ListeEssai & l) {
        l.RetireRangee(1, false);
        l.AjouteElement({new QStandardItem, new QStandardItem}, 1);
    });
    QTest::newRow("the column") << Action([](ListeEssai & l) {
        l.PreteModele()->removeColumn(0);
        l.PreteModele()->insertColumn(0);
    });
}

void tst_WidgetListeEditableFins::celluleRetiree()
{
    QFETCH(Action, action);
    ListeEssai liste(3);
    QVERIFY(liste.Montre());
    Remplis(liste);
    Ecris(liste, 1, 0, QString());
    action(liste);
    QStringList const restent = liste.Textes(1);
    JournalSignaux journal(liste);
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList());
    QCOMPARE(liste.Textes(1), restent);
    QCOMPARE(liste.NombreEditeurs(), 0);
}

void tst_WidgetListeEditableFins::plusieursFins()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    for (int const rangee : {0, 1, 3})
        Ecris(liste, rangee, 0, QString());
    VideLaFile();
    QCOMPARE(liste.Textes(), QStringList{u"c"_s});
}

// A host or a subclass may emit the signal itself.
void tst_WidgetListeEditableFins::finDemandeeParLHote()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    JournalSignaux journal(liste);
    Q_EMIT liste.SignalEditionTerminay(liste.Index(1), u"b"_s);
    Q_EMIT liste.SignalEditionTerminay(liste.Index(0), u"avant"_s);
    Q_EMIT liste.SignalEditionTerminay(QModelIndex(), QString());
    journal.Prends();
    VideLaFile();
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s}); // of the row whose text differs
}

void tst_WidgetListeEditableFins::autreModele()
{
    ListeEssai liste(2);
    QStandardItemModel autre(1, 2);
    liste.AjouteElement(CreeValeurs({u"a"_s, QString()}));
    JournalSignaux journal(liste);
    liste.PriseElementModifiay(autre.index(0, 0), QString());
    liste.PriseElementModifiay(QModelIndex(), QString());
    Q_EMIT liste.SignalEditionTerminay(autre.index(0, 0), QString());
    VideLaFile();
    QCOMPARE(liste.DonneNbRangee(), 1);
    QVERIFY(liste.RangeesSelectionnay().isEmpty());
    QVERIFY(!journal.lignes.contains(u"modifies"_s));
}

// Deliberate: once its row is gone, the edit goes on in the row that stands there.
void tst_WidgetListeEditableFins::suiteApresRetrait()
{
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s, u"2"_s}));
    liste.AjouteElement(CreeValeurs({u"c"_s, QString()}));
    Ecris(liste, 0, 0, QString());
    VideLaFile();
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
    QCOMPARE(liste.NombreEditeurs(), 0);
    Ecris(liste, 0, 0, QString());
    VideLaFile();
    QCOMPARE(liste.Textes(), QStringList{u"c"_s});
    QCOMPARE(liste.CelluleEditee(), liste.Index(0, 1));
}

void tst_WidgetListeEditableFins::hoteQuiTrieAuSignal()
{
    ListeEssai liste(4);
    QVERIFY(liste.Montre());
    Remplis(liste);
    connect(&liste, &WidgetListeEditable::SignalElementsModifiay, this,
            [&] { liste.PreteModele()->sort(1, Qt::DescendingOrder); });
    Ecris(liste, 1, 2, u"x"_s);
    VideLaFile();
    QCOMPARE(liste.Texte(0, 2), u"x"_s);
    QCOMPARE(liste.CelluleEditee(), liste.Index(0, 3));
}

void tst_WidgetListeEditableFins::hoteQuiRetireAuSignal()
{
    ListeEssai liste(4);
    QVERIFY(liste.Montre());
    Remplis(liste);
    bool premiere = true;
    connect(&liste, &WidgetListeEditable::SignalElementsModifiay, this, [&] {
        if (std::exchange(premiere, false))
            liste.RetireRangee(1, false);
    });
    Ecris(liste, 1, 2, u"x"_s);
    VideLaFile();
    QCOMPARE(liste.Textes(), (QStringList{u"1"_s, u"3"_s}));
    QCOMPARE(liste.NombreEditeurs(), 0);
    QVERIFY(liste.RangeesSelectionnay().isEmpty());
}

QTEST_MAIN(tst_WidgetListeEditableFins)
#include "tst_WidgetListeEditableFins.moc"
