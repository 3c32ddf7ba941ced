#include "navigation/DTabWidget.h"

#include "navigation/EssaisOnglets.h"

#include <QtTest>

using namespace EssaisOnglets;
using namespace Qt::StringLiterals;

// The move of a page into another widget, by the mouse and by the keyboard.
class tst_DTabWidgetEnvoi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void versUnAutreWidget();
    void versUnAutreWidgetEtatPendantLesSignaux();
    void versUnAutreWidgetPlace_data();
    void versUnAutreWidgetPlace();
    void donneesApresDeplacement();
    void envoie_data();
    void envoie();
    void envoieRefuse();
    void sansWidgetCible();
};

void tst_DTabWidgetEnvoi::cleanup()
{
    EnvoieSuppressions();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DTabWidgetEnvoi::versUnAutreWidget()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    cible.setObjectName(u"cible"_s);
    Remplis(source, u"a b c"_s);
    Journal journal;
    journal.Ecoute(source, u"source"_s);
    journal.Ecoute(cible, u"cible"_s);
    QWidget * const page = source.DonneWidget(0);

    // As the bar does on release.
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(0, &Barre(cible), 0);
    QCOMPARE(journal.Prends(), (QStringList{u"cible courant 0"_s, u"source courant 0"_s,
                                            u"source parti 0 0 cible"_s}));
    QCOMPARE(Titres(source), u"b c"_s);
    QCOMPARE(Titres(cible), u"a"_s);
    QCOMPARE(page->parentWidget(), &Pile(cible));
    QCOMPARE(Barre(cible).tabToolTip(0), u"a"_s);

    // Found above the widget that is given. The index is that before the move, when those behind
    // it had not yet moved up; the tab that arrives does not become the current one.
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(1, cible.DonneWidget(0), 0);
    QCOMPARE(journal.Prends(), QStringList(u"source parti 1 0 cible"_s));
    QCOMPARE(Titres(source), u"b"_s);
    QCOMPARE(Titres(cible), u"c a"_s);
    QCOMPARE(cible.DonneIndexCourant(), 1);
    QVERIFY(cible.DonneWidget(0)->isHidden());

    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(0, &Barre(cible), 2);
    QCOMPARE(journal.Prends(), (QStringList{u"source courant -1"_s, u"source parti 0 2 cible"_s}));
    QCOMPARE(source.DonneTotalOnglet(), 0);
    QCOMPARE(Titres(cible), u"c a b"_s);
}

// At each signal, bar and pages are in step on both sides.
void tst_DTabWidgetEnvoi::versUnAutreWidgetEtatPendantLesSignaux()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    Remplis(source, u"a b c"_s);
    source.MetsIndexCourant(1);
    QStringList vus;
    auto const note = [&] {
        vus.append(Titres(source) + u" | "_s + Titres(cible));
        QCOMPARE(Pile(source).count(), source.DonneTotalOnglet());
        QCOMPARE(Pile(cible).count(), cible.DonneTotalOnglet());
    };
    QVariantList retraits; // from the pages of the source
    connect(&Pile(source), &QStackedWidget::widgetRemoved, &source,
            [&](int index) { retraits.append(index); });
    connect(&source, &DTabWidget::SignalOngletCourantChangay, &source, note);
    connect(&cible, &DTabWidget::SignalOngletCourantChangay, &cible, note);
    connect(&source, &DTabWidget::SignalOngletDeplacayVersBarreExterne, &source, note);

    QVERIFY(source.EnvoieOnglet(1, &cible, 0));
    QCOMPARE(vus, (QStringList{u"a c | b"_s, u"a c | b"_s, u"a c | b"_s}));
    QCOMPARE(retraits, (QVariantList{1}));
    QCOMPARE(source.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
    QCOMPARE(Pile(source).findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(), 2);
}

void tst_DTabWidgetEnvoi::versUnAutreWidgetPlace_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("arrivee");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("amid") << 1 << 1;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("past the end") << 9 << 2;
    QTest::newRow("negative") << -1 << 2;
}

void tst_DTabWidgetEnvoi::versUnAutreWidgetPlace()
{
    QFETCH(int, position);
    QFETCH(int, arrivee);
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    Remplis(source, u"a b"_s);
    Remplis(cible, u"c d"_s);
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::blue);
    source.MetsIconeOnglet(1, pixmap);
    source.MetsDataOnglet(1, u"donnee"_s, 5);
    QSignalSpy const espion(&source, &DTabWidget::SignalOngletDeplacayVersBarreExterne);

    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(1, &Barre(cible), position);

    QCOMPARE(cible.DonneWidget(arrivee)->objectName(), u"b"_s);
    QCOMPARE(cible.DonneTitre(arrivee), u"b"_s);
    QVERIFY(!cible.DonneIconeOnglet(arrivee).isNull());
    QVERIFY(!Barre(cible).DonneInfos(arrivee).etiquetteIcone->isHidden());
    QCOMPARE(cible.DonneDataOnglet(arrivee, 257), QVariant(u"donnee"_s));
    QCOMPARE(espion.at(0), (QVariantList{1, arrivee, QVariant::fromValue(&cible)}));
}

void tst_DTabWidgetEnvoi::donneesApresDeplacement()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    Remplis(source, u"a"_s);
    source.MetsDataOnglet(0, u"dernier"_s, 1'000);
    source.MetsDataOnglet(0, u"premier"_s, -3);
    source.MetsDataOnglet(0, u"milieu"_s, Qt::UserRole + 1);
    QVERIFY(source.EnvoieOnglet(0, &cible, 0));
    // Only the value of the greatest key is left, under another key.
    QCOMPARE(cible.DonneDataOnglet(0, Qt::UserRole + 1), QVariant(u"dernier"_s));
    QVERIFY(!cible.DonneDataOnglet(0, 1'000).isValid());
    QVERIFY(!cible.DonneDataOnglet(0, -3).isValid());

    QVERIFY(cible.EnvoieOnglet(0, &source, 0));
    QCOMPARE(source.DonneDataOnglet(0, Qt::UserRole + 1), QVariant(u"dernier"_s));
}

void tst_DTabWidgetEnvoi::envoie_data()
{
    QTest::addColumn<bool>("glisse");
    QTest::newRow("a drop") << true;
    QTest::newRow("the keyboard") << false;
}

// Both ways give the same.
void tst_DTabWidgetEnvoi::envoie()
{
    QFETCH(bool, glisse);
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget cible(nullptr, u"g"_s);
    cible.setObjectName(u"cible"_s);
    Remplis(source, u"a b c"_s);
    Remplis(cible, u"d e"_s);
    source.MetsIndexCourant(1);
    Journal journal;
    journal.Ecoute(source, u"source"_s);
    journal.Ecoute(cible, u"cible"_s);
    if (glisse)
        Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(1, &Barre(cible), 1);
    else
        QVERIFY(source.EnvoieOnglet(1, &cible, 1));
    QCOMPARE(journal.lignes, (QStringList{u"source courant 1"_s, u"source parti 1 1 cible"_s}));
    QCOMPARE(Titres(source), u"a c"_s);
    QCOMPARE(Titres(cible), u"d b e"_s);
    QCOMPARE(source.DonneIndexCourant(), 1);
    QCOMPARE(cible.DonneIndexCourant(), 0);
}

void tst_DTabWidgetEnvoi::envoieRefuse()
{
    DTabWidget source(nullptr, u"g"_s);
    DTabWidget etranger(nullptr, u"autre"_s);
    Remplis(source, u"a b"_s);
    auto * const dedans = new DTabWidget(source.DonneWidget(1), u"g"_s);
    Journal journal;
    journal.Ecoute(source, u"source"_s);
    QVERIFY(!source.EnvoieOnglet(0, nullptr, 0));
    QVERIFY(!source.EnvoieOnglet(0, &source, 0));
    QVERIFY(!source.EnvoieOnglet(0, &etranger, 0));
    QVERIFY(!source.EnvoieOnglet(1, dedans, 0)); // into its own page
    QVERIFY(!source.EnvoieOnglet(2, dedans, 0));
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(1, dedans, 0);
    dedans->setWindowFlag(Qt::Dialog); // a window of that page
    QVERIFY(!source.EnvoieOnglet(1, dedans, 0));
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(1, dedans, 0);
    QVERIFY(journal.lignes.isEmpty());
    QCOMPARE(Titres(source), u"a b"_s);

    QVERIFY(source.EnvoieOnglet(0, dedans, 0)); // into that of a neighbour
    QCOMPARE(Titres(source), u"b"_s);
    QCOMPARE(Titres(*dedans), u"a"_s);
}

void tst_DTabWidgetEnvoi::sansWidgetCible()
{
    DTabWidget source(nullptr, u"g"_s);
    Remplis(source, u"a b"_s);
    QWidget ailleurs;
    Journal journal;
    journal.Ecoute(source, u"source"_s);
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(0, &ailleurs, 0);
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(0, nullptr, 0);
    Q_EMIT Barre(source).SignalAjouteOngletBarreExterne(0, &Barre(source), 1);
    QVERIFY(journal.lignes.isEmpty());
    QCOMPARE(Titres(source), u"a b"_s);
}

QTEST_MAIN(tst_DTabWidgetEnvoi)
#include "tst_DTabWidgetEnvoi.moc"
