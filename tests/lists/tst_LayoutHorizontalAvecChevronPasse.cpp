#include "lists/LayoutHorizontalAvecChevron.h"

#include "lists/EssaisChevron.h"

#include <QtTest>

using namespace EssaisChevron;

// One layout of the row: who has room, and where everything stands.

class tst_LayoutHorizontalAvecChevronPasse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void place_data();
    void place();
    void toutEntre();
    void dernierALaPlaceDuChevron();
    void premierSansPlace();
    void suiteCachee();
    void sansChevron();
    void origineEtMarges();
    void centrage_data();
    void centrage();
    void centrageDuChevron_data();
    void centrageDuChevron();
    void deDroiteAGauche();
    void espacementDuStyle();
    void ressort();
    void ressortRendLEspacement();
    void ressorts_data();
    void ressorts();
    void ressortApresDebordement();
    void ressortRefaitAChaqueFois();
    void tailleMinimale();
    void tailleMinimaleDuChevron();
    void cachayResteVisible();
    void widgetCachayParLHote();
    void widgetCachayParLHoteSousLeChevron();
    void rangeeVide();
    void signal();
};

void tst_LayoutHorizontalAvecChevronPasse::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_LayoutHorizontalAvecChevronPasse::place_data()
{
    QTest::addColumn<QList<int>>("largeurs");
    QTest::addColumn<int>("espacement");
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("visibles");
    QTest::addColumn<int>("chevron"); // its place, -1 for none
    // The chevron is 20 wide. Deliberate: a row that ends on the last pixel has no room for it.
    QTest::newRow("one, on the last pixel") << QList{50} << 0 << 50 << 0 << 0;
    QTest::newRow("one, a pixel more") << QList{50} << 0 << 51 << 1 << -1;
    QTest::newRow("two, last ends on the last pixel") << QList{50, 30} << 0 << 80 << 1 << 50;
    QTest::newRow("two, a pixel more") << QList{50, 30} << 0 << 81 << 2 << -1;
    QTest::newRow("chevron ends on the last pixel") << QList{50, 30} << 0 << 70 << 0 << 0;
    QTest::newRow("chevron, a pixel more") << QList{50, 30} << 0 << 71 << 1 << 50;
    QTest::newRow("spacing before the chevron") << QList{50, 30} << 5 << 75 << 0 << 0;
    QTest::newRow("spacing, a pixel more") << QList{50, 30} << 5 << 76 << 1 << 55;
    QTest::newRow("no spacing after the last") << QList{50, 30} << 5 << 86 << 2 << -1;
    QTest::newRow("spacing, last has no room") << QList{50, 30} << 5 << 85 << 1 << 55;
    QTest::newRow("narrow last, chevron has no room") << QList{50, 5} << 0 << 70 << 0 << 0;
    QTest::newRow("narrow last, all have room") << QList{50, 5} << 0 << 71 << 2 << -1;
    QTest::newRow("no width at all") << QList{50, 5} << 0 << 0 << 0 << 0;
    QTest::newRow("items of no width, a pixel") << QList{0, 0} << 0 << 21 << 2 << -1;
}

void tst_LayoutHorizontalAvecChevronPasse::place()
{
    QFETCH(QList<int>, largeurs);
    QFETCH(int, espacement);
    QFETCH(int, largeur);
    QFETCH(int, visibles);
    QFETCH(int, chevron);
    Rangee rangee(largeurs);
    rangee.layout->setSpacing(espacement);

    rangee.Place(largeur);

    QCOMPARE(rangee.DonneVisibles().count(true), visibles);
    QCOMPARE(rangee.chevron->geometry(), chevron < 0 ? QRect() : QRect(chevron, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::toutEntre()
{
    Rangee rangee({30, 40, 50});
    rangee.layout->setSpacing(5);

    rangee.Place(300, 30);

    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, true}));
    QCOMPARE(rangee.DonneGeometries(),
             (QList{QRect(0, 10, 30, 10), QRect(35, 10, 40, 10), QRect(80, 10, 50, 10)}));
    QCOMPARE(rangee.chevron->geometry(), QRect(0, 0, 0, 0));
}

void tst_LayoutHorizontalAvecChevronPasse::dernierALaPlaceDuChevron()
{
    Rangee rangee({30, 40, 30});

    rangee.Place(101); // 120 with the chevron

    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, true}));
    QCOMPARE(rangee.paves.at(2)->geometry(), QRect(70, 0, 30, 10));
    QCOMPARE(rangee.chevron->geometry(), QRect());
}

void tst_LayoutHorizontalAvecChevronPasse::premierSansPlace()
{
    Rangee rangee({100, 10, 10}, true, 2);

    rangee.Place(60, 14);

    QCOMPARE(rangee.DonneVisibles(), (QList{false, false, false}));
    QCOMPARE(rangee.DonneGeometries(), (QList{QRect(), QRect(), QRect()}));
    QCOMPARE(rangee.chevron->geometry(), QRect(2, 2, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::suiteCachee()
{
    Rangee rangee({30, 100, 5, 5});

    rangee.Place(90);

    // The narrow ones would have room.
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false, false}));
    QCOMPARE(rangee.DonneGeometries(), (QList{QRect(0, 0, 30, 10), QRect(), QRect(), QRect()}));
    // Just behind the last visible one.
    QCOMPARE(rangee.chevron->geometry(), QRect(30, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::sansChevron()
{
    Rangee rangee({30, 100, 5}, false);

    rangee.Place(90);

    // Deliberate: without a chevron what has no room stands where the row ran out of it.
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));
    QCOMPARE(rangee.DonneGeometries(),
             (QList{QRect(0, 0, 30, 10), QRect(30, 0, 100, 10), QRect(30, 0, 5, 10)}));
}

void tst_LayoutHorizontalAvecChevronPasse::origineEtMarges()
{
    Rangee rangee({30, 30, 30});
    rangee.layout->setContentsMargins(1, 2, 4, 8);

    rangee.layout->setGeometry({100, 50, 85, 20});

    // The last pixel of the row is 180, which the chevron would pass behind the second.
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));
    // Deliberate: the bottom margin has no part in the centring of an item.
    QCOMPARE(rangee.paves.at(0)->geometry(), QRect(101, 56, 30, 10));
    QCOMPARE(rangee.chevron->geometry(), QRect(131, 52, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::centrage_data()
{
    QTest::addColumn<int>("hauteur");
    QTest::addColumn<QRect>("geometrie");
    QTest::newRow("as high as the row") << 10 << QRect(0, 0, 30, 10);
    QTest::newRow("higher row") << 20 << QRect(0, 5, 30, 10);
    QTest::newRow("odd rest above") << 21 << QRect(0, 5, 30, 10);
}

void tst_LayoutHorizontalAvecChevronPasse::centrage()
{
    QFETCH(int, hauteur);
    QFETCH(QRect, geometrie);
    Rangee rangee({30});

    rangee.Place(100, hauteur);

    QCOMPARE(rangee.paves.at(0)->geometry(), geometrie);
}

void tst_LayoutHorizontalAvecChevronPasse::centrageDuChevron_data()
{
    QTest::addColumn<int>("hauteur");
    QTest::addColumn<int>("y");
    QTest::newRow("lower row") << 6 << 0;
    QTest::newRow("as high as the row") << 10 << 0;
    QTest::newRow("higher row") << 20 << 5;
    QTest::newRow("odd rest below") << 21 << 5;
}

void tst_LayoutHorizontalAvecChevronPasse::centrageDuChevron()
{
    QFETCH(int, hauteur);
    QFETCH(int, y);
    Rangee rangee({100});

    rangee.Place(50, hauteur);

    QCOMPARE(rangee.chevron->geometry(), QRect(0, y, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::deDroiteAGauche()
{
    Rangee rangee({30, 100});
    rangee.fenetre.setLayoutDirection(Qt::RightToLeft);

    rangee.Place(90);

    // Deliberate: the row runs from left to right in every language.
    QCOMPARE(rangee.paves.at(0)->geometry(), QRect(0, 0, 30, 10));
    QCOMPARE(rangee.chevron->geometry(), QRect(30, 0, 20, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::espacementDuStyle()
{
    StyleEspace fenetre(4);
    StyleEspace premier(7);
    Rangee rangee({30, 30});
    rangee.layout->setSpacing(-1);
    rangee.fenetre.setStyle(&fenetre);
    rangee.paves.at(0)->setStyle(&premier);
    rangee.layout->insertItem(1, CreeRessort(), 0);
    QCOMPARE(rangee.layout->spacing(), -1);

    rangee.Place(100);

    // 7 behind the first, 4, that of the window, behind the spacer, which has 100 - 37 - 1 for
    // itself but for the 30 of the last, less the spacing.
    QCOMPARE(rangee.layout->itemAt(1)->sizeHint(), QSize(36, 1));
    QCOMPARE(rangee.layout->itemAt(1)->geometry().x(), 37);
}

void tst_LayoutHorizontalAvecChevronPasse::ressort()
{
    Rangee rangee({30, 30});
    rangee.layout->insertItem(1, CreeRessort(), 0);

    rangee.Place(200);

    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, true}));
    QCOMPARE(rangee.layout->itemAt(1)->sizeHint(), QSize(139, 1));
    QCOMPARE(rangee.layout->itemAt(1)->geometry(), QRect(30, 5, 139, 1));
    QCOMPARE(rangee.paves.at(1)->geometry(), QRect(169, 0, 30, 10));
    QSizePolicy const politique = rangee.layout->itemAt(1)->spacerItem()->sizePolicy();
    QCOMPARE(politique.horizontalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(politique.verticalPolicy(), QSizePolicy::Minimum);
}

void tst_LayoutHorizontalAvecChevronPasse::ressortRendLEspacement()
{
    Rangee rangee({30, 30});
    rangee.layout->setSpacing(10);
    rangee.layout->insertItem(1, CreeRessort(), 0);

    rangee.Place(200);

    // Deliberate: 200 - 40 - 1 - (30 - 10), so that the last has no room: a row with spacers shows
    // all its items only without spacing.
    QCOMPARE(rangee.layout->itemAt(1)->sizeHint(), QSize(139, 1));
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));
}

void tst_LayoutHorizontalAvecChevronPasse::ressorts_data()
{
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("ressort");
    QTest::newRow("shared") << 101 << 20;
    QTest::newRow("rounded down") << 102 << 20;
    QTest::newRow("one pixel for each") << 63 << 1;
    // Deliberate: the nothing that the first works out is what the second has too, although the
    // one pixel that is left would do for it.
    QTest::newRow("one pixel for both") << 62 << 0;
    QTest::newRow("nothing left") << 61 << 0;
    QTest::newRow("less than nothing left") << 40 << 0;
}

void tst_LayoutHorizontalAvecChevronPasse::ressorts()
{
    QFETCH(int, largeur);
    QFETCH(int, ressort);
    Rangee rangee({20, 20, 20}, false);
    rangee.layout->insertItem(1, CreeRessort(), 0);
    rangee.layout->insertItem(3, CreeRessort(), 0);

    rangee.Place(largeur);

    QCOMPARE(rangee.layout->itemAt(1)->sizeHint(), QSize(ressort, 1));
    QCOMPARE(rangee.layout->itemAt(3)->sizeHint(), QSize(ressort, 1));
}

void tst_LayoutHorizontalAvecChevronPasse::ressortApresDebordement()
{
    Rangee rangee({100, 10});
    rangee.layout->insertItem(1, CreeRessort(), 0);

    rangee.Place(50);

    QCOMPARE(rangee.DonneVisibles(), (QList{false, false, false}));
    QCOMPARE(rangee.layout->itemAt(1)->sizeHint(), QSize(0, 1));
    QCOMPARE(rangee.layout->itemAt(1)->geometry(), QRect());
}

void tst_LayoutHorizontalAvecChevronPasse::ressortRefaitAChaqueFois()
{
    Rangee rangee({30, 30});
    rangee.layout->insertItem(1, CreeRessort(), 0);

    rangee.Place(200);
    rangee.Place(100);

    QCOMPARE(rangee.paves.at(1)->geometry(), QRect(69, 0, 30, 10));
    QCOMPARE(rangee.layout->count(), 3);
}

void tst_LayoutHorizontalAvecChevronPasse::tailleMinimale()
{
    Rangee rangee({30, 100, 100});
    rangee.paves.at(1)->setFixedSize(40, 10);
    rangee.paves.at(2)->setMinimumHeight(10);
    rangee.fenetre.resize(60, 10);
    rangee.fenetre.show();

    QVERIFY(!rangee.layout->ItemEstVisible(1));
    QCOMPARE(rangee.paves.at(1)->size(), QSize(40, 10));
    // Nothing of it stands over the first.
    for (int const i : {1, 2}) {
        QVERIFY(rangee.paves.at(i)->isVisible());
        QVERIFY(!rangee.paves.at(i)->geometry().intersects(rangee.fenetre.rect()));
    }
    QCOMPARE(rangee.fenetre.childAt(5, 5), rangee.paves.at(0));

    rangee.fenetre.resize(300, 10);
    QTRY_COMPARE(rangee.paves.at(1)->geometry(), QRect(30, 0, 40, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::tailleMinimaleDuChevron()
{
    Rangee rangee({30});
    rangee.chevron->setFixedSize(20, 10);
    rangee.fenetre.resize(60, 10);
    rangee.fenetre.show();

    QVERIFY(rangee.chevron->isVisible());
    QVERIFY(!rangee.chevron->geometry().intersects(rangee.fenetre.rect()));
    QCOMPARE(rangee.fenetre.childAt(5, 5), rangee.paves.at(0));
}

void tst_LayoutHorizontalAvecChevronPasse::cachayResteVisible()
{
    Rangee rangee({30, 100});
    rangee.fenetre.resize(60, 10);
    rangee.fenetre.show();

    QCOMPARE(rangee.paves.at(1)->geometry(), QRect(0, 0, 0, 0));
    QVERIFY(rangee.paves.at(1)->isVisible());
    QVERIFY(!rangee.paves.at(1)->isHidden());
}

void tst_LayoutHorizontalAvecChevronPasse::widgetCachayParLHote()
{
    Rangee rangee({30, 100, 30});
    rangee.layout->setSpacing(5);
    rangee.paves.at(1)->hide();

    rangee.Place(100);

    // It takes its spacing all the same.
    QCOMPARE(rangee.DonneVisibles(), (QList{true, true, true}));
    QCOMPARE(rangee.paves.at(2)->geometry(), QRect(40, 0, 30, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::widgetCachayParLHoteSousLeChevron()
{
    Rangee rangee({30, 100, 30});
    rangee.paves.at(2)->setGeometry(40, 0, 10, 10);
    rangee.paves.at(2)->hide();

    rangee.Place(60);

    // Nothing is seen of it, so it stays where its host has put it.
    QCOMPARE(rangee.DonneVisibles(), (QList{true, false, false}));
    QCOMPARE(rangee.paves.at(2)->geometry(), QRect(40, 0, 10, 10));
}

void tst_LayoutHorizontalAvecChevronPasse::rangeeVide()
{
    Rangee rangee({100});
    rangee.Place(50);
    QCOMPARE(rangee.chevron->geometry(), QRect(0, 0, 20, 10));

    delete rangee.paves.takeFirst();
    rangee.Place(50);

    QCOMPARE(rangee.chevron->geometry(), QRect());
}

void tst_LayoutHorizontalAvecChevronPasse::signal()
{
    Rangee rangee({30, 100});
    QSignalSpy espion(rangee.layout, &LayoutHorizontalAvecChevron::SignalMiseEnPlace);

    rangee.layout->heightForWidth(50);
    QCOMPARE(espion.count(), 0);

    rangee.Place(60);
    QCOMPARE(espion.count(), 1);
}

QTEST_MAIN(tst_LayoutHorizontalAvecChevronPasse)
#include "tst_LayoutHorizontalAvecChevronPasse.moc"
