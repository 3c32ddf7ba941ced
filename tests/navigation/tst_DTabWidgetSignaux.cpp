#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

// Everything that a host hears, in order.
class tst_DTabWidgetSignaux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void boutonAjout();
    void ajouts();
    void changements();
    void boutonDeFermeture();
    void boutonDuMilieu();
    void boutonDuMilieuACotayDesOnglets();
    void retraits_data();
    void retraits();
    void dernierOnglet();
    void deplacementDansLaBarre_data();
    void deplacementDansLaBarre();
    void pileDejaJustePendantLeSignal();
    void nouvelleFenetre();
    void detache();
    void glisseDansLaBarre();
};

void tst_DTabWidgetSignaux::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetSignaux::boutonAjout()
{
    DTabWidget onglets(nullptr, {});
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    onglets.PreteBarre()->PreteBoutonAjout()->click();
    QCOMPARE(journal.lignes, QStringList(u"x ajoute"_s));
    QCOMPARE(onglets.DonneTotalOnglet(), 0); // the host adds the page
}

void tst_DTabWidgetSignaux::ajouts()
{
    DTabWidget onglets(nullptr, {});
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    Remplis(onglets, u"a b c"_s);
    QCOMPARE(journal.lignes, QStringList(u"x courant 0"_s));
}

void tst_DTabWidgetSignaux::changements()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    onglets.MetsIndexCourant(2);
    onglets.MetsIndexCourant(2);
    Barre(onglets).setCurrentIndex(0);
    QCOMPARE(Pile(onglets).currentIndex(), 0);
    QCOMPARE(journal.lignes, (QStringList{u"x courant 2"_s, u"x courant 0"_s}));
}

void tst_DTabWidgetSignaux::boutonDeFermeture()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    Fermeture(onglets, 1)->click();
    QCOMPARE(journal.Prends(), QStringList(u"x ferme 1"_s));
    QCOMPARE(Titres(onglets), u"a b c"_s); // until the host removes it

    Barre(onglets).moveTab(1, 2);
    journal.Prends();
    Fermeture(onglets, 2)->click();
    QCOMPARE(journal.Prends(), QStringList(u"x ferme 2"_s));
}

void tst_DTabWidgetSignaux::boutonDuMilieu()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.resize(800, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QTest::mouseClick(&Barre(onglets), Qt::MiddleButton, {}, Barre(onglets).tabRect(1).center());
    QCOMPARE(journal.lignes, QStringList(u"x ferme 1"_s));
    QCOMPARE(Titres(onglets), u"a b c"_s);
}

void tst_DTabWidgetSignaux::boutonDuMilieuACotayDesOnglets()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a"_s);
    onglets.resize(800, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QPoint const dehors = Barre(onglets).tabRect(0).center() + QPoint(5'000, 0);
    QTest::mouseClick(&Barre(onglets), Qt::MiddleButton, {}, dehors);
    QCOMPARE(journal.lignes, QStringList(u"x ferme -1"_s));
    onglets.RetireOnglet(-1); // what a host without a check answers
    QCOMPARE(onglets.DonneTotalOnglet(), 1);
}

void tst_DTabWidgetSignaux::retraits_data()
{
    QTest::addColumn<int>("courant");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("page"); // that is shown afterwards
    QTest::addColumn<QStringList>("signaux");
    QTest::newRow("before the active one") << 2 << 0 << u"c"_s << QStringList{u"x courant 1"_s};
    QTest::newRow("behind the active one") << 1 << 3 << u"b"_s << QStringList{};
    QTest::newRow("the active one, first") << 0 << 0 << u"b"_s << QStringList{u"x courant 0"_s};
    QTest::newRow("the active one, amid") << 1 << 1 << u"c"_s << QStringList{u"x courant 1"_s};
    QTest::newRow("the active one, last") << 3 << 3 << u"c"_s << QStringList{u"x courant 2"_s};
}

void tst_DTabWidgetSignaux::retraits()
{
    QFETCH(int, courant);
    QFETCH(int, index);
    QFETCH(QString, page);
    QFETCH(QStringList, signaux);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.MetsIndexCourant(courant);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);

    QScopedPointer<QWidget> const retiree(onglets.DonneWidget(index));
    onglets.RetireOnglet(index);

    QCOMPARE(journal.lignes, signaux);
    QCOMPARE(onglets.DonneTotalOnglet(), 3);
    QCOMPARE(onglets.DonneWidgetCourant()->objectName(), page);
    QCOMPARE(onglets.DonneTitre(onglets.DonneIndexCourant()), page);
    QCOMPARE(Pile(onglets).currentIndex(), onglets.DonneIndexCourant());
}

void tst_DTabWidgetSignaux::dernierOnglet()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a"_s);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QScopedPointer<QWidget> const page(onglets.DonneWidget(0));
    onglets.RetireOnglet(0);
    QCOMPARE(journal.Prends(), QStringList(u"x courant -1"_s));
    QCOMPARE(onglets.DonneIndexCourant(), -1);
    QCOMPARE(onglets.DonneWidgetCourant(), nullptr);

    Remplis(onglets, u"b"_s);
    QCOMPARE(journal.Prends(), QStringList(u"x courant 0"_s));
}

void tst_DTabWidgetSignaux::deplacementDansLaBarre_data()
{
    QTest::addColumn<int>("courant");
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::addColumn<QString>("titres");
    QTest::addColumn<QStringList>("signaux");
    QTest::newRow("the active one to the right")
        << 0 << 0 << 2 << u"b c a d"_s << QStringList{u"x deplacay 0 2"_s, u"x courant 2"_s};
    QTest::newRow("the active one to the left")
        << 3 << 3 << 1 << u"a d b c"_s << QStringList{u"x deplacay 3 1"_s, u"x courant 1"_s};
    QTest::newRow("past the active one, to the right")
        << 1 << 0 << 2 << u"b c a d"_s << QStringList{u"x deplacay 0 2"_s, u"x courant 0"_s};
    QTest::newRow("past the active one, to the left")
        << 1 << 3 << 0 << u"d a b c"_s << QStringList{u"x deplacay 3 0"_s, u"x courant 2"_s};
    QTest::newRow("beside the active one")
        << 0 << 1 << 3 << u"a c d b"_s << QStringList{u"x deplacay 1 3"_s};
    QTest::newRow("to the same place") << 0 << 1 << 1 << u"a b c d"_s << QStringList{};
    QTest::newRow("out of range") << 0 << 1 << 4 << u"a b c d"_s << QStringList{};
}

void tst_DTabWidgetSignaux::deplacementDansLaBarre()
{
    QFETCH(int, courant);
    QFETCH(int, de);
    QFETCH(int, vers);
    QFETCH(QString, titres);
    QFETCH(QStringList, signaux);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.MetsIndexCourant(courant);
    QWidget * const montree = onglets.DonneWidgetCourant();
    QSignalSpy const changementsDePage(&Pile(onglets), &QStackedWidget::currentChanged);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);

    Barre(onglets).moveTab(de, vers);

    QCOMPARE(journal.lignes, signaux);
    QCOMPARE(Titres(onglets), titres);
    QCOMPARE(onglets.DonneWidgetCourant(), montree);
    QCOMPARE(Pile(onglets).currentIndex(), onglets.DonneIndexCourant());
    QVERIFY(!montree->isHidden());
    QCOMPARE(changementsDePage.count(), 0);
    QVERIFY(!Pile(onglets).signalsBlocked());
}

void tst_DTabWidgetSignaux::pileDejaJustePendantLeSignal()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    QStringList vus;
    connect(&onglets, &DTabWidget::SignalOngletDeplacay, &onglets, [&](int, int vers) {
        vus = {Titres(onglets), onglets.DonneWidgetCourant()->objectName(), QString::number(vers)};
    });
    Barre(onglets).moveTab(0, 1);
    QCOMPARE(vus, (QStringList{u"b a c"_s, u"a"_s, u"1"_s}));
}

void tst_DTabWidgetSignaux::nouvelleFenetre()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    Q_EMIT Barre(onglets).SignalOngletNouvelleFenetre();
    QCOMPARE(journal.lignes, QStringList(u"x fenetre 1 b"_s));
    QCOMPARE(Titres(onglets), u"a b c"_s); // the host takes the page out
}

void tst_DTabWidgetSignaux::detache()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    onglets.DetacheOnglet(2);
    QCOMPARE(journal.Prends(), (QStringList{u"x courant 2"_s, u"x fenetre 2 c"_s}));
    onglets.DetacheOnglet(2);
    QCOMPARE(journal.Prends(), QStringList(u"x fenetre 2 c"_s));

    // Not another one, which a receiver prefers.
    onglets.MetsIndexCourant(0);
    connect(&onglets, &DTabWidget::SignalOngletCourantChangay, this,
            [&] { onglets.MetsIndexCourant(0); });
    journal.Prends();
    onglets.DetacheOnglet(1);
    QVERIFY(journal.Prends().filter(u"fenetre"_s).isEmpty());
}

// With the mouse, as Qt's bar does it.
void tst_DTabWidgetSignaux::glisseDansLaBarre()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    onglets.resize(800, 200);
    onglets.show();
    QVERIFY(QTest::qWaitForWindowExposed(&onglets));
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    DTabBarInterne & barre = Barre(onglets);
    QPoint const depart = barre.tabRect(0).center();
    QTest::mousePress(&barre, Qt::LeftButton, {}, depart);
    QTest::mouseMove(&barre, depart + QPoint(30, 0));
    QTest::mouseMove(&barre, depart + QPoint(140, 0));
    // Under the mouse, Qt moves the neighbour past the tab that is dragged.
    QCOMPARE(journal.lignes, (QStringList{u"x deplacay 1 0"_s, u"x courant 1"_s}));
    QCOMPARE(Titres(onglets), u"b a c"_s);
    QTest::mouseRelease(&barre, Qt::LeftButton, {}, depart + QPoint(140, 0));
    QCOMPARE(onglets.DonneWidgetCourant()->objectName(), u"a"_s);
}

QTEST_MAIN(tst_DTabWidgetSignaux)
#include "tst_DTabWidgetSignaux.moc"
