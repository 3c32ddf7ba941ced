#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

namespace {

// The object names of the pages, as the pile has them.
QString Pages(DTabWidget const & onglets)
{
    QStringList noms;
    for (int i = 0; i < Pile(onglets).count(); ++i)
        noms.append(Pile(onglets).widget(i)->objectName());
    return noms.join(u' ');
}

} // namespace

// The slots one by one, called by their names.
class tst_DTabWidgetPrises : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void changement();
    void laPageAvantLOnglet();
    void boutonDeLHote();
    void deplacement_data();
    void deplacement();
    void deplacementGardeLeSilenceDeLaPile();
    void deplacementHorsBornes_data();
    void deplacementHorsBornes();
    void versUneBarreExterne();
    void nouvelleFenetreSansOnglet();
    void fermetureParUnInconnu();
};

void tst_DTabWidgetPrises::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetPrises::changement()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    for (int tour = 0; tour < 2; ++tour) { // once more changes nothing, but is told
        QVERIFY(QMetaObject::invokeMethod(&onglets, "PriseOngletChangay", Q_ARG(int, 1)));
        QCOMPARE(Pile(onglets).currentIndex(), 1);
        QCOMPARE(Couleurs(onglets), u"gAg"_s);
        QCOMPARE(Fermeture(onglets, 0)->property("selectionnay"), QVariant(false));
        QCOMPARE(Fermeture(onglets, 1)->property("selectionnay"), QVariant(true));
        QVERIFY(!Fermeture(onglets, 2)->property("selectionnay").isValid());
        QCOMPARE(journal.Prends(), QStringList(u"x courant 1"_s));
    }
}

void tst_DTabWidgetPrises::laPageAvantLOnglet()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    QStringList vus;
    connect(&Pile(onglets), &QStackedWidget::currentChanged, this, [&](int index) {
        vus.append(u"pile %1, barre %2"_s.arg(index).arg(onglets.DonneIndexCourant()));
    });
    connect(&onglets, &DTabWidget::SignalOngletCourantChangay, this,
            [&](int index) { vus.append(u"widget %1"_s.arg(index)); });
    connect(&Barre(onglets), &QTabBar::currentChanged, this,
            [&](int index) { vus.append(u"barre %1"_s.arg(index)); });
    onglets.MetsIndexCourant(1);
    QCOMPARE(vus, (QStringList{u"pile 1, barre 0"_s, u"widget 1"_s, u"barre 1"_s}));
}

// Whatever a host has put in the place of the close button.
void tst_DTabWidgetPrises::boutonDeLHote()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c"_s);
    auto * const etiquette = new QLabel;
    Barre(onglets).setTabButton(1, QTabBar::RightSide, etiquette);
    Barre(onglets).setTabButton(2, QTabBar::RightSide, nullptr);
    onglets.MetsIndexCourant(1);
    QCOMPARE(etiquette->property("selectionnay"), QVariant(true));
    QCOMPARE(Couleurs(onglets), u"gAg"_s);
    onglets.MetsIndexCourant(2);
    QCOMPARE(etiquette->property("selectionnay"), QVariant(false));
    QCOMPARE(Couleurs(onglets), u"ggg"_s); // only a tab with one takes the active colour
    onglets.MetsIndexCourant(0);
    Barre(onglets).setTabButton(0, QTabBar::RightSide, nullptr);
    QCOMPARE(Couleurs(onglets), u"Agg"_s);
    onglets.MetsIndexCourant(1);
    QCOMPARE(Couleurs(onglets), u"gAg"_s); // but any loses it
}

void tst_DTabWidgetPrises::deplacement_data()
{
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::addColumn<QString>("pages");
    QTest::newRow("the page on show, to the right") << 1 << 3 << u"a c d b"_s;
    QTest::newRow("the page on show, to the left") << 1 << 0 << u"b a c d"_s;
    QTest::newRow("past the page on show, to the right") << 0 << 2 << u"b c a d"_s;
    QTest::newRow("past the page on show, to the left") << 3 << 0 << u"d a b c"_s;
    QTest::newRow("beside the page on show") << 3 << 2 << u"a b d c"_s;
}

void tst_DTabWidgetPrises::deplacement()
{
    QFETCH(int, de);
    QFETCH(int, vers);
    QFETCH(QString, pages);
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b c d"_s);
    onglets.MetsIndexCourant(1);
    QSignalSpy const changements(&Pile(onglets), &QStackedWidget::currentChanged);
    QSignalSpy const retraits(&Pile(onglets), &QStackedWidget::widgetRemoved);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QVERIFY(QMetaObject::invokeMethod(&onglets, "PriseOngletDeplacay", Q_ARG(int, de),
                                      Q_ARG(int, vers)));
    QCOMPARE(Pages(onglets), pages);
    QCOMPARE(onglets.DonneWidgetCourant()->objectName(), u"b"_s);
    QCOMPARE(changements.count(), 0);
    QCOMPARE(retraits.count(), 0);
    QVERIFY(!Pile(onglets).signalsBlocked());
    QCOMPARE(journal.lignes, QStringList(u"x deplacay %1 %2"_s.arg(de).arg(vers)));
}

void tst_DTabWidgetPrises::deplacementGardeLeSilenceDeLaPile()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    Pile(onglets).blockSignals(true);
    Barre(onglets).moveTab(0, 1);
    QVERIFY(Pile(onglets).signalsBlocked());
}

void tst_DTabWidgetPrises::deplacementHorsBornes_data()
{
    QTest::addColumn<QString>("noms");
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::newRow("from a negative index") << u"a b"_s << -1 << 1;
    QTest::newRow("from past the end") << u"a b"_s << 2 << 0;
    QTest::newRow("to a negative index") << u"a b"_s << 0 << -1;
    QTest::newRow("to past the end") << u"a b"_s << 0 << 2;
    QTest::newRow("without tabs") << QString() << -1 << 0;
}

void tst_DTabWidgetPrises::deplacementHorsBornes()
{
    QFETCH(QString, noms);
    QFETCH(int, de);
    QFETCH(int, vers);
    DTabWidget onglets(nullptr, {});
    if (!noms.isEmpty())
        Remplis(onglets, noms);
    Journal journal;
    journal.Ecoute(onglets, u"x"_s);
    QVERIFY(QMetaObject::invokeMethod(&onglets, "PriseOngletDeplacay", Q_ARG(int, de),
                                      Q_ARG(int, vers)));
    QCOMPARE(Pages(onglets), noms);
    QVERIFY(journal.lignes.isEmpty());
}

// What those hear who listen to the bars: the tab stands in both while the page has moved.
void tst_DTabWidgetPrises::versUneBarreExterne()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    Remplis(source, u"a b c"_s);
    QStringList vus;
    auto const note = [&](QString const & qui) {
        vus.append(qui + u" %1/%2 %3/%4"_s.arg(source.DonneTotalOnglet())
                             .arg(Pile(source).count())
                             .arg(cible.DonneTotalOnglet())
                             .arg(Pile(cible).count()));
    };
    connect(&Barre(source), &QTabBar::currentChanged, this, [&] { note(u"barre source"_s); });
    connect(&Barre(cible), &QTabBar::currentChanged, this, [&] { note(u"barre cible"_s); });
    connect(&source, &DTabWidget::SignalOngletCourantChangay, this, [&] { note(u"source"_s); });
    connect(&cible, &DTabWidget::SignalOngletCourantChangay, this, [&] { note(u"cible"_s); });
    connect(&source, &DTabWidget::SignalOngletDeplacayVersBarreExterne, this,
            [&] { note(u"parti"_s); });
    QVERIFY(QMetaObject::invokeMethod(&source, "PriseDeplaceOngletVersBarreExterne", Q_ARG(int, 0),
                                      Q_ARG(QWidget *, Barre(cible).parentWidget()),
                                      Q_ARG(int, 0)));
    QCOMPARE(vus, (QStringList{u"barre cible 3/2 1/1"_s, u"barre source 2/2 1/1"_s,
                               u"cible 2/2 1/1"_s, u"source 2/2 1/1"_s, u"parti 2/2 1/1"_s}));
}

void tst_DTabWidgetPrises::nouvelleFenetreSansOnglet()
{
    DTabWidget onglets(nullptr, {});
    QSignalSpy const espion(&onglets, &DTabWidget::SignalOngletNouvelleFenetre);
    QVERIFY(QMetaObject::invokeMethod(&onglets, "PriseNouvelleFenetreOngletExistant"));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0), (QVariantList{-1, QVariant::fromValue<QWidget *>(nullptr)}));
}

void tst_DTabWidgetPrises::fermetureParUnInconnu()
{
    DTabWidget onglets(nullptr, {});
    Remplis(onglets, u"a b"_s);
    Barre(onglets).setTabButton(0, QTabBar::RightSide, nullptr);
    QSignalSpy const espion(&onglets, &DTabWidget::SignalDemandeFermetureOnglet);
    // Nobody sends it, as nothing is the button of the first tab.
    QVERIFY(QMetaObject::invokeMethod(&onglets, "PriseBoutonFermeture"));
    QCOMPARE(espion.count(), 0);
}

QTEST_MAIN(tst_DTabWidgetPrises)
#include "tst_DTabWidgetPrises.moc"
