// tests/galerie/tst_PlacementEcrans.cpp
#include "PlacementEcrans.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kGrand(0, 0, 1920, 1080);
constexpr QRect kPetit(1920, 312, 1024, 768);
constexpr int kBarre = 40; // desktop pixels that a task bar takes of the large screen
constexpr OptionsPlacement kForce{false, true, false, false};

QList<EcranDessinay> DonneEcrans()
{
    return {{u"A"_s, kGrand, kGrand.adjusted(0, 0, 0, -kBarre)}, {u"B"_s, kPetit, kPetit}};
}

} // namespace

class tst_PlacementEcrans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plusProche_data();
    void plusProche();
    void ajustement();
    void reduction();
    void centrage();
    void sansEcran();
    void ordinateur();
};

void tst_PlacementEcrans::plusProche_data()
{
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("basseResolution");
    QTest::newRow("inside the first screen") << kGrand.center() << u"A"_s << false;
    QTest::newRow("inside the second screen") << kPetit.center() << u"B"_s << true;
    QTest::newRow("far to the right") << QPoint(9000, 500) << u"B"_s << true;
    QTest::newRow("far to the left") << QPoint(-9000, 500) << u"A"_s << false;
}

void tst_PlacementEcrans::plusProche()
{
    QFETCH(QPoint, centre);
    QRect rectangle(0, 0, 101, 101);
    rectangle.moveCenter(centre);

    PlacementEcrans const placement = PlaceSur(DonneEcrans(), rectangle, kForce);

    QTEST(placement.ecran, "nom");
    QTEST(placement.basseResolution, "basseResolution");
    QCOMPARE(placement.resolution, placement.ecran == u"A" ? kGrand.size() : kPetit.size());
    QVERIFY((placement.ecran == u"A" ? kGrand : kPetit).contains(placement.ajustay));
}

void tst_PlacementEcrans::ajustement()
{
    QRect const rectangle(1500, 700, 600, 400); // out at the right edge and at the bottom

    QRect const sansMarge = PlaceSur(DonneEcrans(), rectangle, kForce).ajustay;
    QRect const avecMarge = PlaceSur(DonneEcrans(), rectangle, {true, true, false, false}).ajustay;
    QRect const sansForce =
        PlaceSur(DonneEcrans(), rectangle, {false, false, false, false}).ajustay;

    QCOMPARE(sansMarge.bottomRight(), QPoint(1919, 1079 - kBarre));
    QCOMPARE(sansMarge.size(), rectangle.size());
    QVERIFY(avecMarge.right() < sansMarge.right() && avecMarge.bottom() < sansMarge.bottom());
    QCOMPARE(sansForce, rectangle); // its title bar can be reached
}

void tst_PlacementEcrans::reduction()
{
    QRect const rectangle(0, 0, 4000, 3000);

    QCOMPARE(PlaceSur(DonneEcrans(), rectangle, kForce).ajustay.size(), rectangle.size());
    QRect const reduit = PlaceSur(DonneEcrans(), rectangle, {false, true, true, false}).ajustay;

    QVERIFY(kPetit.contains(reduit) || kGrand.contains(reduit));
}

void tst_PlacementEcrans::centrage()
{
    QRect const rectangle(2000, 400, 200, 100); // on the second screen: the mouse is on the first

    QRect const centray = PlaceSur(DonneEcrans(), rectangle, kForce).centray;
    QRect const haut = PlaceSur(DonneEcrans(), rectangle, {false, true, false, true}).centray;

    QPoint const ecart = centray.center() - kGrand.adjusted(0, 0, 0, -kBarre).center();
    QVERIFY(ecart.manhattanLength() <= 2);
    QCOMPARE(centray.size(), rectangle.size());
    QCOMPARE(haut.left(), centray.left());
    QVERIFY(haut.top() < centray.top());
}

void tst_PlacementEcrans::sansEcran()
{
    QRect const rectangle(10, 20, 300, 200);

    PlacementEcrans const placement = PlaceSur({}, rectangle, {true, true, true, true});

    QVERIFY(placement.ecran.isNull());
    QCOMPARE(placement.ajustay, rectangle);
    QCOMPARE(placement.centray, rectangle);
    QCOMPARE(placement.hauteurMax, 200);
    QCOMPARE(placement.tailleOptimale, QSize(300, 200));
}

void tst_PlacementEcrans::ordinateur()
{
    // The arithmetic on this machine's screens is what the library does.
    QList<EcranDessinay> ecrans;
    for (QScreen const * const ecran : QGuiApplication::screens())
        ecrans.append({ecran->name(), ecran->geometry(), ecran->availableGeometry()});
    QVERIFY(!ecrans.isEmpty());
    QRect const rectangle(QPoint(ecrans.first().geometrie.right() - 50, 60), QSize(300, 200));
    for (OptionsPlacement const & options :
         {kForce, OptionsPlacement{true, true, true, false}, OptionsPlacement{}}) {
        PlacementEcrans const voulu = PlaceSur(ecrans, rectangle, options);
        PlacementEcrans const obtenu = PlaceSurOrdinateur(rectangle, options);

        QCOMPARE(obtenu.ecran, voulu.ecran);
        QCOMPARE(obtenu.resolution, voulu.resolution);
        QCOMPARE(obtenu.ajustay, voulu.ajustay);
        QCOMPARE(obtenu.hauteurMax, voulu.hauteurMax);
        QCOMPARE(obtenu.tailleOptimale, voulu.tailleOptimale);
        QCOMPARE(obtenu.centray.size(), rectangle.size()); // its place is up to the mouse
    }
}

QTEST_MAIN(tst_PlacementEcrans)
#include "tst_PlacementEcrans.moc"
