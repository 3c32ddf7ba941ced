#include "lists/WidgetListeEditableCochable.h"

#include "lists/EssaisCochable.h"

#include <QtTest>

#include <algorithm>
#include <memory>

using namespace EssaisCochable;
using namespace EssaisVariantes;
using namespace Qt::StringLiterals;

// The space bar.
class tst_WidgetListeEditableCochableClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void espace_data();
    void espace();
    void espaceSurUnItemInactif();
    void espaceDansUneListeVide();
    void espaceAvecModificateur();
    void listeNonEditable();
    void cocherNeFinitAucuneEdition();

private:
    std::unique_ptr<Liste> maListe;
};

void tst_WidgetListeEditableCochableClavier::init()
{
    maListe = std::make_unique<Liste>();
    maListe->Remplis({u"a"_s, u"b"_s, u"c"_s, u"d"_s});
    maListe->Montre();
}

void tst_WidgetListeEditableCochableClavier::cleanup()
{
    maListe.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetListeEditableCochableClavier::espace_data()
{
    QTest::addColumn<QList<int>>("cochees");
    QTest::addColumn<QList<int>>("choisies"); // the first is current
    QTest::addColumn<QList<int>>("attendues");
    QTest::addColumn<int>("changements");
    QTest::newRow("one row") << QList<int>{} << QList<int>{1} << QList<int>{1} << 1;
    QTest::newRow("a checked row") << QList<int>{1} << QList<int>{1} << QList<int>{} << 1;
    QTest::newRow("several rows") << QList<int>{} << QList<int>{0, 2} << QList<int>{0, 2} << 2;
    QTest::newRow("all take the state of the current row")
        << QList<int>{2, 3} << QList<int>{0, 2, 3} << QList<int>{0, 2, 3} << 1;
    QTest::newRow("a current row that is checked unchecks all")
        << QList<int>{3} << QList<int>{3, 0, 1} << QList<int>{} << 1;
    QTest::newRow("other rows keep their state")
        << QList<int>{0, 1} << QList<int>{1} << QList<int>{0} << 1;
}

void tst_WidgetListeEditableCochableClavier::espace()
{
    QFETCH(QList<int>, cochees);
    QFETCH(QList<int>, choisies);
    QFETCH(QList<int>, attendues);
    QFETCH(int, changements);
    for (int const rangee : cochees)
        maListe->MetsCochay(rangee, true);
    maListe->Choisis(choisies);
    QSignalSpy const coches(maListe.get(), &Liste::SignalCocheModifiay);
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);

    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);

    QCOMPARE(Cochees(*maListe), attendues);
    QCOMPARE(coches.count(), changements);
    QCOMPARE(modifications.count(), 1);
    std::sort(choisies.begin(), choisies.end());
    QCOMPARE(maListe->Choisies(), choisies);
}

void tst_WidgetListeEditableCochableClavier::espaceSurUnItemInactif()
{
    maListe->DonneElement(1, 0)->setEnabled(false);
    maListe->DonneElement(2, 0)->setCheckable(false);
    maListe->Choisis({0, 1, 2, 3});
    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);
    QCOMPARE(Cochees(*maListe), (QList<int>{0, 3}));
}

void tst_WidgetListeEditableCochableClavier::espaceDansUneListeVide()
{
    while (maListe->RetireRangee(0, false)) {
    }
    QSignalSpy const modifications(maListe.get(), &Liste::SignalElementsModifiay);
    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);
    QCOMPARE(modifications.count(), 0);
}

void tst_WidgetListeEditableCochableClavier::espaceAvecModificateur()
{
    // The view's own keys, which toggle the current row alone.
    maListe->Choisis({1, 2});
    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space, Qt::ShiftModifier);
    QCOMPARE(Cochees(*maListe), QList<int>{1});
}

void tst_WidgetListeEditableCochableClavier::listeNonEditable()
{
    Liste liste(2, false);
    liste.Remplis({u"a"_s, u"b"_s});
    liste.Montre();
    liste.Choisis({1});
    QTest::keyClick(liste.PreteVue(), Qt::Key_Space);
    QCOMPARE(Cochees(liste), QList<int>{1});
    QVERIFY(!liste.DonneElement(0, 0)->isEditable());
}

void tst_WidgetListeEditableCochableClavier::cocherNeFinitAucuneEdition()
{
    maListe->AjouteElement(Ligne({u""_s, u""_s}));
    maListe->AjouteElement(Ligne({u"f"_s, u""_s}));
    QSignalSpy const fins(maListe.get(), &Liste::SignalEditionTerminay);
    maListe->Choisis({4, 5});

    QTest::keyClick(maListe->PreteVue(), Qt::Key_Space);
    maListe->MetsCochay(4, false);
    QCoreApplication::processEvents();

    QCOMPARE(fins.count(), 0);
    QCOMPARE(maListe->DonneNbRangee(), 6); // the empty row too
    QVERIFY(maListe->Editeurs().isEmpty());
    QCOMPARE(maListe->Choisies(), (QList<int>{4, 5}));
}

QTEST_MAIN(tst_WidgetListeEditableCochableClavier)
#include "tst_WidgetListeEditableCochableClavier.moc"
