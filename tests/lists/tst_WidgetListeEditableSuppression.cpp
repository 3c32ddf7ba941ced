#include "lists/WidgetListeEditable.h"

#include "lists/EssaisListeEditable.h"

#include <QRandomGenerator>

using namespace EssaisListeEditable;
using namespace Qt::StringLiterals;

// Rows that leave: by the button, by the keys, by the host.

class tst_WidgetListeEditableSuppression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void selection_data();
    void selection();
    void auHasard();
    void parTouche_data();
    void parTouche();
    void parBouton();
    void signalDejaTraitay();
    void ordreDesSignaux();
    void sansSelection();
    void boutonDesactivay();
    void retireRangee();
    void retraitParLHote();
    void retraitPendantUnRetrait();
    void modeleMuet();
    void retireRangeeHorsBornes_data();
    void retireRangeeHorsBornes();
    void itemsVivants();
    void vide();
    void formesDuSignal();
    void grandNombre();
};

namespace {

QStringList CreeTextes(int nombre)
{
    QStringList textes;
    for (int i = 0; i < nombre; ++i)
        textes.append(QString::number(i));
    return textes;
}

} // namespace

void tst_WidgetListeEditableSuppression::cleanup()
{
    QVERIFY(ToutEstParti());
}

void tst_WidgetListeEditableSuppression::selection_data()
{
    QTest::addColumn<QList<int>>("rangees"); // in the order of selection
    QTest::addColumn<QStringList>("restent");
    QTest::addColumn<QList<int>>("selection");
    QTest::newRow("first") << QList<int>{0} << QStringList{u"1"_s, u"2"_s, u"3"_s} << QList<int>{0};
    QTest::newRow("middle") << QList<int>{2} << QStringList{u"0"_s, u"1"_s, u"3"_s}
                            << QList<int>{1};
    QTest::newRow("last") << QList<int>{3} << QStringList{u"0"_s, u"1"_s, u"2"_s} << QList<int>{2};
    QTest::newRow("from the top down")
        << QList<int>{1, 2} << QStringList{u"0"_s, u"3"_s} << QList<int>{0};
    QTest::newRow("from the bottom up")
        << QList<int>{2, 1} << QStringList{u"0"_s, u"3"_s} << QList<int>{1};
    QTest::newRow("apart") << QList<int>{3, 0} << QStringList{u"1"_s, u"2"_s} << QList<int>{};
    QTest::newRow("all") << QList<int>{1, 0, 3, 2} << QStringList{} << QList<int>{};
}

// The row above the first selected one is selected afterwards, if there is one.
void tst_WidgetListeEditableSuppression::selection()
{
    QFETCH(QList<int>, rangees);
    QFETCH(QStringList, restent);
    QFETCH(QList<int>, selection);
    ListeEssai liste(2);
    liste.Remplis(CreeTextes(4));
    liste.SelectionneRangees(rangees);
    liste.PreteVue()->selectionModel()->setCurrentIndex(liste.Index(rangees.first()),
                                                        QItemSelectionModel::NoUpdate);
    Q_EMIT liste.SignalSuppression();
    QCOMPARE(liste.Textes(), restent);
    QCOMPARE(liste.RangeesSelectionnay(), selection);
    QCOMPARE(liste.DonneBoutonRetirer()->isEnabled(), !selection.isEmpty());
}

void tst_WidgetListeEditableSuppression::auHasard()
{
    QRandomGenerator hasard(7); // the same rows each time
    for (int tour = 0; tour < 300; ++tour) {
        ListeEssai liste(1 + tour % 3);
        int const nombre = hasard.bounded(1, 20);
        liste.Remplis(CreeTextes(nombre));
        QList<int> rangees;
        for (int i = hasard.bounded(1, 12); i > 0; --i)
            if (int const rangee = hasard.bounded(nombre); !rangees.contains(rangee))
                rangees.append(rangee);
        liste.SelectionneRangees(rangees);
        int const cible = std::max(0, liste.RangeesSelectionnay().first() - 1);
        QStringList attendus = CreeTextes(nombre);
        for (int const rangee : rangees)
            attendus.removeOne(QString::number(rangee));
        Q_EMIT liste.SignalSuppression();
        QCOMPARE(liste.Textes(), attendus);
        QCOMPARE(liste.RangeesSelectionnay(),
                 cible < attendus.size() ? QList<int>{cible} : QList<int>{});
    }
}

void tst_WidgetListeEditableSuppression::parTouche_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<bool>("retire");
    QTest::newRow("delete") << Qt::Key_Delete << true;
    QTest::newRow("backspace") << Qt::Key_Backspace << true;
    QTest::newRow("other key") << Qt::Key_F5 << false;
}

void tst_WidgetListeEditableSuppression::parTouche()
{
    QFETCH(Qt::Key, touche);
    QFETCH(bool, retire);
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.CliqueCellule(1);
    JournalSignaux journal(liste);
    QTest::keyPress(liste.windowHandle(), touche);
    QCOMPARE(liste.DonneNbRangee(), 3); // the release counts
    QTest::keyRelease(liste.windowHandle(), touche);
    QCOMPARE(liste.DonneNbRangee(), retire ? 2 : 3);
    QCOMPARE(journal.lignes.contains(u"suppression"_s), retire);
}

void tst_WidgetListeEditableSuppression::parBouton()
{
    ListeEssai liste;
    QVERIFY(liste.Montre());
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.CliqueCellule(0);
    liste.CliqueCellule(2, 0, Qt::ControlModifier);
    liste.Clique(liste.DonneBoutonRetirer());
    QCOMPARE(liste.Textes(), QStringList{u"b"_s});
    QCOMPARE(liste.RangeesSelectionnay(), QList<int>{0});
    liste.Clique(liste.DonneBoutonRetirer());
    QVERIFY(liste.Textes().isEmpty());
    QVERIFY(liste.RangeesSelectionnay().isEmpty());
    QVERIFY(!liste.DonneBoutonRetirer()->isEnabled());
}

void tst_WidgetListeEditableSuppression::signalDejaTraitay()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    liste.SelectionneRangees({0});
    QSignalSpy const suppressions(&liste, &WidgetListeEditable::SignalSuppression);
    liste.DonneBoutonRetirer()->click();
    QCOMPARE(suppressions.count(), 1);
    QCOMPARE(liste.DonneNbRangee(), 1);
}

void tst_WidgetListeEditableSuppression::ordreDesSignaux()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    liste.SelectionneRangees({0, 2});
    JournalSignaux journal(liste);
    liste.DonneBoutonRetirer()->click();
    QCOMPARE(journal.Prends(), (QStringList{u"supprimee 2 c"_s, u"modifies"_s, u"supprimee 0 a"_s,
                                            u"modifies"_s, u"suppression"_s}));
}

void tst_WidgetListeEditableSuppression::sansSelection()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s});
    liste.PreteVue()->selectionModel()->setCurrentIndex(liste.Index(0),
                                                        QItemSelectionModel::NoUpdate);
    Q_EMIT liste.SignalSuppression();
    QCOMPARE(liste.DonneNbRangee(), 1);
    QCOMPARE(liste.PreteVue()->currentIndex(), liste.Index(0));
    QTest::keyClick(liste.PreteVue(), Qt::Key_Delete);
    QCOMPARE(liste.DonneNbRangee(), 1);
}

void tst_WidgetListeEditableSuppression::boutonDesactivay()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s});
    liste.SelectionneRangees({0});
    liste.DonneBoutonRetirer()->setEnabled(false); // the host's way to forbid it
    QTest::keyClick(liste.PreteVue(), Qt::Key_Delete);
    QCOMPARE(liste.DonneNbRangee(), 1);
}

void tst_WidgetListeEditableSuppression::retireRangee()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    JournalSignaux journal(liste);
    QVERIFY(liste.RetireRangee(1, true));
    QCOMPARE(journal.Prends(), (QStringList{u"supprimee 1 b"_s, u"modifies"_s}));
    QVERIFY(liste.RetireRangee(0, false));
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s});
    QCOMPARE(liste.Textes(), QStringList{u"c"_s});
}

// Nobody tells of the single rows then.
void tst_WidgetListeEditableSuppression::retraitParLHote()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    JournalSignaux journal(liste);
    QVERIFY(liste.RetireRangee(0, true));
    journal.Prends();
    liste.PreteModele()->removeRow(0);
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s});
    qDeleteAll(liste.PreteModele()->takeRow(0));
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s});
}

// Only the row that is told of by itself waits: what a host removes meanwhile is told at once.
void tst_WidgetListeEditableSuppression::retraitPendantUnRetrait()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    JournalSignaux journal(liste);
    auto const retire = [&] {
        if (liste.DonneNbRangee() == 2)
            liste.PreteModele()->removeRow(1);
    };
    connect(liste.PreteModele(), &QAbstractItemModel::rowsRemoved, this, retire);
    QVERIFY(liste.RetireRangee(0, true));
    QCOMPARE(journal.Prends(), (QStringList{u"modifies"_s, u"supprimee 0 a"_s, u"modifies"_s}));
    QCOMPARE(liste.Textes(), QStringList{u"b"_s});
}

void tst_WidgetListeEditableSuppression::modeleMuet()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    JournalSignaux journal(liste);
    {
        QSignalBlocker const silence(liste.PreteModele());
        QVERIFY(liste.RetireRangee(2, true));
    }
    QCOMPARE(journal.Prends(), (QStringList{u"supprimee 2 c"_s, u"modifies"_s}));
    liste.PreteModele()->removeRow(0);
    QCOMPARE(journal.Prends(), QStringList{u"modifies"_s});
}

void tst_WidgetListeEditableSuppression::retireRangeeHorsBornes_data()
{
    QTest::addColumn<int>("rangee");
    QTest::newRow("negative") << -1;
    QTest::newRow("behind the last") << 2;
    QTest::newRow("far behind") << 1000;
}

void tst_WidgetListeEditableSuppression::retireRangeeHorsBornes()
{
    QFETCH(int, rangee);
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s});
    JournalSignaux journal(liste);
    QVERIFY(!liste.RetireRangee(rangee, true));
    QCOMPARE(journal.Prends(), QStringList());
    QCOMPARE(liste.DonneNbRangee(), 2);
}

void tst_WidgetListeEditableSuppression::itemsVivants()
{
    ListeEssai liste(3);
    liste.AjouteElement(CreeValeurs({u"a"_s, u"b"_s}));
    QList<QStandardItem *> const items = {liste.DonneElement(0, 0), liste.DonneElement(0, 1),
                                          nullptr};
    QStringList textes;
    connect(&liste, &WidgetListeEditable::SignalRangeeSupprimay, this,
            [&](QList<QStandardItem *> const & recus, int rangee) {
                QCOMPARE(rangee, 0);
                QCOMPARE(recus, items);
                textes = {recus[0]->text(), recus[1]->text()};
            });
    liste.RetireRangee(0, true);
    QCOMPARE(textes, (QStringList{u"a"_s, u"b"_s}));
}

void tst_WidgetListeEditableSuppression::vide()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s, u"b"_s, u"c"_s});
    JournalSignaux journal(liste);
    liste.Vide(true);
    QCOMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"supprimee 2 c"_s, u"modifies"_s, u"supprimee 1 b"_s,
                                            u"modifies"_s, u"supprimee 0 a"_s, u"modifies"_s}));
    liste.Vide(true);
    QCOMPARE(journal.Prends(), QStringList());
    liste.Remplis({u"a"_s, u"b"_s});
    liste.Vide(false);
    QCOMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"modifies"_s, u"modifies"_s}));
}

void tst_WidgetListeEditableSuppression::formesDuSignal()
{
    ListeEssai liste;
    liste.Remplis({u"a"_s});
    QMetaObject const & meta = *liste.metaObject();
    QVERIFY(meta.indexOfSignal("SignalRangeeSupprimay(QList<QStandardItem*>,int)") >= 0);
    QVERIFY(meta.indexOfSignal("SignalRangeeSupprimay(QList<QStandardItem*>)") >= 0);
    QSignalSpy const longue(&liste, SIGNAL(SignalRangeeSupprimay(QList<QStandardItem *>, int)));
    QSignalSpy const courte(&liste, SIGNAL(SignalRangeeSupprimay(QList<QStandardItem *>)));
    liste.RetireRangee(0, true);
    QCOMPARE(longue.count(), 1);
    QCOMPARE(longue.at(0).size(), 2);
    QCOMPARE(courte.count(), 1);
    QCOMPARE(courte.at(0).size(), 1);
}

void tst_WidgetListeEditableSuppression::grandNombre()
{
    constexpr int kNombre = 10'000;
    ListeEssai liste(2);
    liste.Remplis(CreeTextes(kNombre));
    liste.PreteVue()->selectAll();
    QCOMPARE(static_cast<int>(liste.DonneRangeesSelectionnay().size()), kNombre);
    QSignalSpy const suppressions(&liste, &WidgetListeEditable::SignalRangeeSupprimay);
    Q_EMIT liste.SignalSuppression();
    QCOMPARE(liste.DonneNbRangee(), 0);
    QCOMPARE(suppressions.count(), kNombre);
}

QTEST_MAIN(tst_WidgetListeEditableSuppression)
#include "tst_WidgetListeEditableSuppression.moc"
