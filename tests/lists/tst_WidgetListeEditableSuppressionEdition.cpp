#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Rows that leave while an editor is open, or while receivers change the rows.

class tst_WidgetListeEditableSuppressionEdition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void recepteurQuiChangeLesRangees_data();
    void recepteurQuiChangeLesRangees();
    void recepteurQuiRemplitToujours();
    void pendantLEdition_data();
    void pendantLEdition();
    void editionAilleurs_data();
    void editionAilleurs();
};

namespace {

using Action = std::function<void(ListeEssai &)>;

QStringList CreeTextes(int nombre)
{
    QStringList textes;
    for (int i = 0; i < nombre; ++i)
        textes.append(QString::number(i));
    return textes;
}

} // namespace

Q_DECLARE_METATYPE(Action)

void tst_WidgetListeEditableSuppressionEdition::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableSuppressionEdition::recepteurQuiChangeLesRangees_data()
{
    QTest::addColumn<Action>("action"); // at each removed row
    QTest::addColumn<QStringList>("restent");
    QTest::newRow("adds at the top")
        << Action([](ListeEssai & l) { l.AjouteElement({new QStandardItem(u"x"_s)}, 0); })
        << QStringList{u"x"_s, u"x"_s, u"x"_s, u"0"_s, u"2"_s, u"4"_s};
    QTest::newRow("adds at the end") << Action([](ListeEssai & l) { l.Remplis({u"x"_s}); })
                                     << QStringList{u"0"_s, u"2"_s, u"4"_s, u"x"_s, u"x"_s, u"x"_s};
    QTest::newRow("removes the first row")
        << Action([](ListeEssai & l) { l.RetireRangee(0, false); }) << QStringList{u"2"_s, u"4"_s};
    QTest::newRow("removes the last row")
        << Action([](ListeEssai & l) { l.RetireRangee(l.DonneNbRangee() - 1, false); })
        << QStringList{};
    QTest::newRow("sorts the other way")
        << Action([](ListeEssai & l) { l.PreteModele()->sort(0, Qt::DescendingOrder); })
        << QStringList{u"4"_s, u"2"_s, u"0"_s};
    QTest::newRow("empties the list")
        << Action([](ListeEssai & l) { l.Vide(false); }) << QStringList{};
    QTest::newRow("clears the model")
        << Action([](ListeEssai & l) { l.PreteModele()->removeRows(0, l.DonneNbRangee()); })
        << QStringList{};
}

// Rows 1, 3 and 5 of six are removed; only those, whatever else happens meanwhile.
void tst_WidgetListeEditableSuppressionEdition::recepteurQuiChangeLesRangees()
{
    QFETCH(Action, action);
    QFETCH(QStringList, restent);
    for (int const moment : {0, 1, 2}) {
        ListeEssai liste;
        liste.Remplis(CreeTextes(6));
        liste.SelectionneRangees({1, 3, 5});
        bool occupay = false;
        auto const reponds = [&] {
            if (!std::exchange(occupay, true)) {
                action(liste);
                occupay = false;
            }
        };
        if (moment == 0)
            connect(&liste, &WidgetListeEditable::SignalElementsModifiay, this, reponds);
        else if (moment == 1)
            connect(&liste, &WidgetListeEditable::SignalRangeeSupprimay, this, reponds);
        else
            connect(liste.PreteModele(), &QAbstractItemModel::rowsRemoved, this, reponds);
        Q_EMIT liste.SignalSuppression();
        liste.disconnect(this);
        liste.PreteModele()->disconnect(this);
        QCOMPARE(liste.Textes(), restent);
    }
}

void tst_WidgetListeEditableSuppressionEdition::recepteurQuiRemplitToujours()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    connect(&liste, &WidgetListeEditable::SignalRangeeSupprimay, this,
            [&liste] { liste.Remplis({u"x"_s}); });
    liste.Vide(true);
    QCOMPARE(liste.Textes(), (QStringList{u"x"_s, u"x"_s}));
}

void tst_WidgetListeEditableSuppressionEdition::pendantLEdition_data()
{
    QTest::addColumn<Action>("retrait");
    QTest::newRow("button") << Action([](ListeEssai & l) { l.Clique(l.DonneBoutonRetirer()); });
    QTest::newRow("signal") << Action([](ListeEssai & l) { Q_EMIT l.SignalSuppression(); });
    QTest::newRow("by the host") << Action([](ListeEssai & l) { l.RetireRangee(1, true); });
    QTest::newRow("by the host, silently")
        << Action([](ListeEssai & l) { l.RetireRangee(1, false); });
    QTest::newRow("in the model") << Action([](ListeEssai & l) { l.PreteModele()->removeRow(1); });
}

// The row goes with what is typed in it; the list can be edited on.
void tst_WidgetListeEditableSuppressionEdition::pendantLEdition()
{
    QFETCH(Action, retrait);
    ListeEssai liste(2);
    QVERIFY(liste.Montre());
    liste.AjouteElement(CreeValeurs({u"a"_s, u"1"_s}));
    liste.AjouteElement(CreeValeurs({u"b"_s, u"2"_s}));
    liste.AjouteElement(CreeValeurs({u"c"_s, u"3"_s}));
    liste.DoubleCliqueCellule(1);
    liste.Tape(u"x"_s);
    QPointer<QLineEdit> const editeur = liste.Editeur();
    QVERIFY(editeur);
    retrait(liste);
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"c"_s}));
    VideLaFile();
    QCOMPARE(liste.Textes(), (QStringList{u"a"_s, u"c"_s}));
    QCOMPARE(liste.NombreEditeurs(), 0);
    QTRY_VERIFY(!editeur);
    QCOMPARE(QApplication::focusWidget(), liste.PreteVue());
    liste.DoubleCliqueCellule(0);
    QCOMPARE(liste.CelluleEditee(), liste.Index(0));
}

void tst_WidgetListeEditableSuppressionEdition::editionAilleurs_data()
{
    QTest::addColumn<Action>("retrait");
    QTest::addColumn<QStringList>("restent");
    QTest::newRow("selected rows") << Action([](ListeEssai & l) {
        l.Selectionne(0, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        l.Clique(l.DonneBoutonRetirer());
    }) << QStringList{u"x"_s, u"c"_s};
    QTest::newRow("row above") << Action([](ListeEssai & l) { l.RetireRangee(0, true); })
                               << QStringList{u"x"_s, u"c"_s};
    QTest::newRow("row below") << Action([](ListeEssai & l) { l.RetireRangee(2, true); })
                               << QStringList{u"a"_s, u"x"_s};
    QTest::newRow("row added above")
        << Action([](ListeEssai & l) { l.AjouteElement({new QStandardItem(u"n"_s)}, 0); })
        << QStringList{u"n"_s, u"a"_s, u"x"_s, u"c"_s};
}

// What is typed in another row stays there.
void tst_WidgetListeEditableSuppressionEdition::editionAilleurs()
{
    QFETCH(Action, retrait);
    QFETCH(QStringList, restent);
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.DoubleCliqueCellule(1);
    liste.Tape(u"x"_s);
    retrait(liste);
    VideLaFile();
    if (liste.Editeur() != nullptr) {
        QCOMPARE(liste.Editeur()->text(), u"x"_s);
        liste.Touche(Qt::Key_Return);
    }
    QTRY_COMPARE(liste.Textes(), restent);
    VideLaFile();
    QCOMPARE(liste.NombreEditeurs(), 0);
}

QTEST_MAIN(tst_WidgetListeEditableSuppressionEdition)
#include "tst_WidgetListeEditableSuppressionEdition.moc"
