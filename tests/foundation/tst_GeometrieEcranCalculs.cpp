// tests/foundation/tst_GeometrieEcranCalculs.cpp
#include "foundation/GeometrieEcranCalculs_p.h"

#include <QtTest>

using namespace RoutinesFenetre;
using namespace RoutinesGeometrie;

Q_DECLARE_METATYPE(RoutinesFenetre::eDirectionAffichage)

class tst_GeometrieEcranCalculs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ecranLePlusProche_data();
    void ecranLePlusProche();
    void ramene_data();
    void ramene();
    void ajuste_data();
    void ajuste();
    void centre_data();
    void centre();
    void hauteurMax_data();
    void hauteurMax();
    void dansParent_data();
    void dansParent();
    void dansParentNatif_data();
    void dansParentNatif();
    void placeDansEcran_data();
    void placeDansEcran();
    void direction_data();
    void direction();
    void directionRectangleNul_data();
    void directionRectangleNul();
    void placeHorsDeBEtC_data();
    void placeHorsDeBEtC();
    void tailleOptimale_data();
    void tailleOptimale();
    void basseResolution_data();
    void basseResolution();
};

void tst_GeometrieEcranCalculs::ecranLePlusProche_data()
{
    QTest::addColumn<QList<QRect>>("ecrans");
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<qsizetype>("indice");
    QRect const gauche(0, 0, 1000, 800);
    QRect const droite(1000, 200, 400, 300);
    QRect const loin(3000, 0, 1000, 800);
    QList<QRect> const trois = {gauche, droite, loin};
    QTest::newRow("no screen") << QList<QRect>() << QPoint(0, 0) << qsizetype(-1);
    QTest::newRow("one screen, point on it") << QList{gauche} << QPoint(1, 1) << qsizetype(0);
    QTest::newRow("one screen, point off it") << QList{gauche} << QPoint(-9, 9999) << qsizetype(0);
    QTest::newRow("last pixel of the first") << trois << QPoint(999, 300) << qsizetype(0);
    QTest::newRow("first pixel of the second") << trois << QPoint(1000, 200) << qsizetype(1);
    // The centre of the second is nearer, but the point is on the first.
    QTest::newRow("containing wins over near") << trois << QPoint(990, 350) << qsizetype(0);
    // At the edge of the third, but the centre of the second is nearer.
    QTest::newRow("the centre counts, not the edge")
        << QList{loin, droite} << QPoint(2300, 350) << qsizetype(1);
    QTest::newRow("far to the right") << trois << QPoint(9000, 100) << qsizetype(2);
    QTest::newRow("on both of two copies") << QList{gauche, gauche} << QPoint(5, 5) << qsizetype(0);
    QTest::newRow("equally far") << QList{QRect(0, 0, 101, 101), QRect(200, 0, 101, 101)}
                                 << QPoint(150, 50) << qsizetype(0);
}

void tst_GeometrieEcranCalculs::ecranLePlusProche()
{
    QFETCH(QList<QRect>, ecrans);
    QFETCH(QPoint, point);
    QFETCH(qsizetype, indice);
    QCOMPARE(DonneIndiceLePlusProche(ecrans, point), indice);
}

void tst_GeometrieEcranCalculs::ramene_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("attendu");
    QTest::newRow("inside") << QRect(10, 20, 30, 40) << QRect(10, 20, 30, 40);
    QTest::newRow("at the bottom right") << QRect(970, 760, 30, 40) << QRect(970, 760, 30, 40);
    QTest::newRow("one pixel beyond") << QRect(971, 761, 30, 40) << QRect(970, 760, 30, 40);
    QTest::newRow("off the top left") << QRect(-1, -99, 30, 40) << QRect(0, 0, 30, 40);
    QTest::newRow("too large") << QRect(50, 60, 1200, 900) << QRect(0, 0, 1200, 900);
}

void tst_GeometrieEcranCalculs::ramene()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, attendu);
    QPoint const ailleurs(300, -200);
    QRect const limites(0, 0, 1000, 800);
    QCOMPARE(RameneDans(limites, rect), attendu);
    QCOMPARE(RameneDans(limites.translated(ailleurs), rect.translated(ailleurs)),
             attendu.translated(ailleurs));
}

void tst_GeometrieEcranCalculs::ajuste_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("marge");
    QTest::addColumn<bool>("force");
    QTest::addColumn<bool>("redimensionne");
    QTest::addColumn<QRect>("resultat");
    // The screen is 1000 by 800 at (100, 50): its last pixel is (1099, 849). A title has 20.
    QRect const dedans(300, 300, 200, 100);
    QTest::newRow("inside") << dedans << false << false << false << dedans;
    QTest::newRow("inside, with all flags") << dedans << true << true << true << dedans;

    QRect const titreVisible(300, 849, 200, 100);
    QTest::newRow("only the top edge on the screen")
        << titreVisible << true << false << false << titreVisible;
    QTest::newRow("the same, forced")
        << titreVisible << false << true << false << QRect(300, 750, 200, 100);
    QTest::newRow("one pixel lower")
        << QRect(300, 850, 200, 100) << false << false << false << QRect(300, 750, 200, 100);
    QTest::newRow("one pixel above the screen")
        << QRect(300, 49, 200, 100) << false << false << false << QRect(300, 50, 200, 100);
    // The middle of a width of 200 is 99 pixels from the left edge.
    QTest::newRow("middle of the top edge on the last column")
        << QRect(1000, 300, 200, 100) << false << false << false << QRect(1000, 300, 200, 100);
    QTest::newRow("middle of the top edge behind the last column")
        << QRect(1001, 300, 200, 100) << false << false << false << QRect(900, 300, 200, 100);
    QTest::newRow("middle of the top edge on the first column")
        << QRect(1, 300, 200, 100) << false << false << false << QRect(1, 300, 200, 100);
    QTest::newRow("middle of the top edge before the first column")
        << QRect(0, 300, 200, 100) << false << false << false << QRect(100, 300, 200, 100);

    QTest::newRow("margin at the right and bottom")
        << QRect(1050, 900, 200, 100) << true << false << false << QRect(895, 745, 200, 100);
    QTest::newRow("margin at the left and top")
        << QRect(-500, -500, 200, 100) << true << false << false << QRect(105, 55, 200, 100);
    QTest::newRow("forced into the margin")
        << QRect(100, 50, 200, 100) << true << true << false << QRect(105, 55, 200, 100);
    QTest::newRow("wider than the screen")
        << QRect(0, 0, 2000, 100) << false << true << false << QRect(100, 50, 2000, 100);
    QTest::newRow("higher than the screen")
        << QRect(300, 60, 100, 2000) << false << true << false << QRect(300, 50, 100, 2000);
    QTest::newRow("larger both ways, with a margin")
        << QRect(5000, 5000, 2000, 2000) << true << false << false << QRect(105, 55, 2000, 2000);

    QTest::newRow("resized: room for the title")
        << QRect(100, 50, 1000, 781) << false << false << true << QRect(100, 50, 1000, 780);
    QTest::newRow("not resized at the limit")
        << QRect(100, 50, 1000, 780) << false << false << true << QRect(100, 50, 1000, 780);
    QTest::newRow("resized in width")
        << QRect(100, 50, 1200, 100) << false << false << true << QRect(100, 50, 1000, 100);
    QTest::newRow("resized where it stands, with a margin")
        << QRect(100, 50, 1200, 900) << true << false << true << QRect(100, 50, 990, 770);
    QTest::newRow("moved and resized")
        << QRect(90, 40, 1200, 900) << false << false << true << QRect(100, 50, 1000, 780);
    QTest::newRow("moved and resized, with a margin")
        << QRect(90, 40, 1200, 900) << true << false << true << QRect(105, 55, 985, 765);
    QTest::newRow("moved in place and resized, with a margin")
        << QRect(105, 55, 986, 766) << true << true << true << QRect(105, 55, 985, 765);
}

void tst_GeometrieEcranCalculs::ajuste()
{
    QFETCH(QRect, rect);
    QFETCH(bool, marge);
    QFETCH(bool, force);
    QFETCH(bool, redimensionne);
    QFETCH(QRect, resultat);
    QCOMPARE(AjusteDans(QRect(100, 50, 1000, 800), rect, {20, marge, force, redimensionne}),
             resultat);
}

void tst_GeometrieEcranCalculs::centre_data()
{
    QTest::addColumn<QRect>("disponible");
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<bool>("plusHaut");
    QTest::addColumn<QPoint>("coin");
    QTest::newRow("even") << QRect(0, 0, 1000, 800) << QSize(200, 100) << false << QPoint(400, 350);
    QTest::newRow("screen elsewhere")
        << QRect(-1000, 50, 1000, 800) << QSize(200, 100) << false << QPoint(-600, 400);
    QTest::newRow("the half of an odd size is cut")
        << QRect(0, 0, 1000, 800) << QSize(201, 101) << false << QPoint(400, 350);
    QTest::newRow("the half of an odd screen is not")
        << QRect(0, 0, 1001, 801) << QSize(200, 100) << false << QPoint(401, 351);
    QTest::newRow("halves go away from zero")
        << QRect(-1000, -800, 1001, 801) << QSize(200, 100) << false << QPoint(-600, -450);
    QTest::newRow("larger than the screen")
        << QRect(0, 0, 100, 100) << QSize(300, 500) << false << QPoint(-100, -200);
    QTest::newRow("300 higher on 1400")
        << QRect(0, 0, 1400, 1400) << QSize(400, 200) << true << QPoint(500, 300);
    QTest::newRow("the higher place is rounded with the rest") // 350 - 800 * 3 / 14 = 178.57
        << QRect(0, 0, 1000, 800) << QSize(200, 100) << true << QPoint(400, 179);
    QTest::newRow("empty size") << QRect(0, 0, 1000, 800) << QSize(0, 0) << false
                                << QPoint(500, 400);
}

void tst_GeometrieEcranCalculs::centre()
{
    QFETCH(QRect, disponible);
    QFETCH(QSize, taille);
    QFETCH(bool, plusHaut);
    QFETCH(QPoint, coin);
    QCOMPARE(DonneCoinCentre(disponible, taille, plusHaut), coin);
}

void tst_GeometrieEcranCalculs::hauteurMax_data()
{
    QTest::addColumn<QRect>("disponible");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<bool>("marge");
    QTest::addColumn<int>("hauteur");
    QRect const ecran(0, 0, 1000, 800); // its bottom is 799
    QTest::newRow("fits") << ecran << QRect(0, 0, 10, 300) << false << 300;
    QTest::newRow("at the limit") << ecran << QRect(0, 0, 10, 800) << false << 800;
    // 799 - 800 - 0 + 0 = -1, from a bottom of 800
    QTest::newRow("one too many") << ecran << QRect(0, 0, 10, 801) << false << 799;
    QTest::newRow("margin, at the limit") << ecran << QRect(0, 0, 10, 790) << true << 790;
    QTest::newRow("margin, one too many") << ecran << QRect(0, 0, 10, 791) << true << 789;
    // The top counts beside the bottom: 799 - 499 - 300 = 0
    QTest::newRow("lower down, at the limit") << ecran << QRect(0, 300, 10, 200) << false << 200;
    QTest::newRow("lower down, one too many") << ecran << QRect(0, 300, 10, 201) << false << 499;
    // 849 - 10 - 849 - 100 + 50 = -60
    QTest::newRow("screen elsewhere")
        << QRect(0, 50, 1000, 800) << QRect(0, 100, 10, 750) << true << 789;
}

void tst_GeometrieEcranCalculs::hauteurMax()
{
    QFETCH(QRect, disponible);
    QFETCH(QRect, rect);
    QFETCH(bool, marge);
    QFETCH(int, hauteur);
    QCOMPARE(DonneHauteurMax(disponible, rect, marge), hauteur);
}

void tst_GeometrieEcranCalculs::dansParent_data()
{
    QTest::addColumn<QSize>("cadreParent");
    QTest::addColumn<int>("hauteurParent");
    QTest::addColumn<QSize>("cadre");
    QTest::addColumn<bool>("plusHaut");
    QTest::addColumn<QPoint>("coin");
    QTest::newRow("even") << QSize(500, 400) << 400 << QSize(100, 200) << false << QPoint(200, 100);
    QTest::newRow("odd") << QSize(501, 401) << 401 << QSize(100, 200) << false << QPoint(200, 100);
    QTest::newRow("larger than the parent")
        << QSize(100, 100) << 100 << QSize(301, 200) << false << QPoint(-100, -50);
    QTest::newRow("300 higher in 1400")
        << QSize(500, 1400) << 1400 << QSize(100, 200) << true << QPoint(200, 300);
    QTest::newRow("rounded up") // 400 * -3 / 14 = -85.7
        << QSize(500, 400) << 400 << QSize(100, 200) << true << QPoint(200, 15);
    QTest::newRow("of the height without the frame") // 1400 * -3 / 14 = -300
        << QSize(500, 1430) << 1400 << QSize(100, 200) << true << QPoint(200, 315);
}

void tst_GeometrieEcranCalculs::dansParent()
{
    QFETCH(QSize, cadreParent);
    QFETCH(int, hauteurParent);
    QFETCH(QSize, cadre);
    QFETCH(bool, plusHaut);
    QFETCH(QPoint, coin);
    QCOMPARE(DonneCoinDansParent(cadreParent, hauteurParent, cadre, plusHaut), coin);
}

void tst_GeometrieEcranCalculs::dansParentNatif_data()
{
    QTest::addColumn<QRect>("interieur");
    QTest::addColumn<QSizeF>("cadre");
    QTest::addColumn<QPoint>("coin");
    QTest::newRow("even") << QRect(50, 60, 500, 400) << QSizeF(100, 200) << QPoint(250, 160);
    QTest::newRow("halves go away from zero")
        << QRect(0, -1000, 501, 401) << QSizeF(100, 200) << QPoint(201, -900);
    QTest::newRow("a half below zero")
        << QRect(-1000, 0, 501, 400) << QSizeF(100, 200) << QPoint(-800, 100);
    QTest::newRow("fractions") << QRect(0, 0, 500, 400) << QSizeF(100.4, 201.8) << QPoint(200, 99);
}

void tst_GeometrieEcranCalculs::dansParentNatif()
{
    QFETCH(QRect, interieur);
    QFETCH(QSizeF, cadre);
    QFETCH(QPoint, coin);
    QCOMPARE(DonneCoinDansParentNatif(interieur, cadre), coin);
}

void tst_GeometrieEcranCalculs::placeDansEcran_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QPoint>("coin");
    // The screen is 1000 by 800 at the origin, the frame 3 at the left and 7 at the right.
    QTest::newRow("inside") << QRect(100, 100, 50, 40) << QPoint(100, 100);
    QTest::newRow("right edge and frame at the limit")
        << QRect(943, 100, 50, 40) << QPoint(943, 100);
    QTest::newRow("right frame outside") << QRect(944, 100, 50, 40) << QPoint(943, 100);
    QTest::newRow("left edge and frame at the limit") << QRect(3, 100, 50, 40) << QPoint(3, 100);
    QTest::newRow("left frame outside") << QRect(2, 100, 50, 40) << QPoint(3, 100);
    // Of the frame, only its sides count.
    QTest::newRow("bottom at the limit") << QRect(100, 760, 50, 40) << QPoint(100, 760);
    QTest::newRow("bottom outside") << QRect(100, 761, 50, 40) << QPoint(100, 760);
    QTest::newRow("top at the limit") << QRect(100, 0, 50, 40) << QPoint(100, 0);
    QTest::newRow("top outside") << QRect(100, -1, 50, 40) << QPoint(100, 0);
    QTest::newRow("larger than the screen") << QRect(50, 50, 2000, 2000) << QPoint(3, 0);
}

void tst_GeometrieEcranCalculs::placeDansEcran()
{
    QFETCH(QRect, rect);
    QFETCH(QPoint, coin);
    Obstacles const obstacles = {QRect(0, 0, 1000, 800), QMargins(3, 11, 7, 13), {}, {}, {}, 10};
    Placement const placement = PlaceHorsDe(obstacles, rect, kAuDessusForce);
    QCOMPARE(placement.coin, coin);
    QCOMPARE(placement.direction, kAuDessusForce);
}

void tst_GeometrieEcranCalculs::direction_data()
{
    QTest::addColumn<eDirectionAffichage>("voulue");
    QTest::addColumn<bool>("touche");
    QTest::addColumn<bool>("deplacee");
    QTest::addColumn<eDirectionAffichage>("prise");
    QTest::newRow("none, clear: below") << kDirectionAucune << false << false << kEnDessous;
    QTest::newRow("none, in the way: above") << kDirectionAucune << true << true << kAuDessus;
    QTest::newRow("above by force, clear: stays")
        << kAuDessusForce << false << false << kAuDessusForce;
    QTest::newRow("above by force, in the way") << kAuDessusForce << true << true << kAuDessusForce;
    QTest::newRow("above, clear: above all the same") << kAuDessus << false << true << kAuDessus;
    QTest::newRow("above, in the way") << kAuDessus << true << true << kAuDessus;
    QTest::newRow("below, clear") << kEnDessous << false << false << kEnDessous;
    QTest::newRow("below, in the way: stays") << kEnDessous << true << false << kEnDessous;
}

void tst_GeometrieEcranCalculs::direction()
{
    QFETCH(eDirectionAffichage, voulue);
    QFETCH(bool, touche);
    QFETCH(bool, deplacee);
    QFETCH(eDirectionAffichage, prise);
    QRect const rectA(100, 400, 200, 20);
    // The last row of A, or the first below it.
    QRect const rect(120, touche ? 419 : 420, 50, 40);
    Obstacles const obstacles = {QRect(0, 0, 1000, 800), {}, rectA, {}, {}, 10};
    Placement const placement = PlaceHorsDe(obstacles, rect, voulue);
    QCOMPARE(placement.direction, prise);
    // Ten free rows between the two.
    QCOMPARE(placement.coin, deplacee ? QPoint(120, 350) : rect.topLeft());
}

void tst_GeometrieEcranCalculs::directionRectangleNul_data()
{
    QTest::addColumn<eDirectionAffichage>("voulue");
    QTest::addColumn<QPoint>("coin");
    QTest::addColumn<eDirectionAffichage>("prise");
    QPoint const surPlace(120, 420);
    QTest::newRow("none: below") << kDirectionAucune << surPlace << kEnDessous;
    QTest::newRow("above by force: stays") << kAuDessusForce << surPlace << kAuDessusForce;
    // Deliberate: above is above, though there is nothing to be above of. The top of a null
    // rectangle is 0, so the last row is ten above that, out of the screen.
    QTest::newRow("above: above the origin all the same")
        << kAuDessus << QPoint(120, -50) << kAuDessus;
    QTest::newRow("below") << kEnDessous << surPlace << kEnDessous;
}

void tst_GeometrieEcranCalculs::directionRectangleNul()
{
    QFETCH(eDirectionAffichage, voulue);
    QFETCH(QPoint, coin);
    QFETCH(eDirectionAffichage, prise);
    Obstacles const obstacles = {QRect(0, 0, 1000, 800), {}, QRect(), QRect(), QRect(), 10};
    Placement const placement = PlaceHorsDe(obstacles, QRect(120, 420, 50, 40), voulue);
    QCOMPARE(placement.coin, coin);
    QCOMPARE(placement.direction, prise);
}

void tst_GeometrieEcranCalculs::placeHorsDeBEtC_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("rectA");
    QTest::addColumn<QRect>("rectB");
    QTest::addColumn<QRect>("rectC");
    QTest::addColumn<QPoint>("coin");
    QRect const rect(500, 400, 50, 40);
    QTest::newRow("nothing in the way")
        << rect << QRect() << QRect() << QRect() << QPoint(500, 400);
    QTest::newRow("beside all three") << rect << QRect(0, 0, 500, 800) << QRect(550, 0, 50, 800)
                                      << QRect(500, 440, 50, 10) << QPoint(500, 400);
    QTest::newRow("to the left of B")
        << rect << QRect() << QRect(549, 0, 50, 800) << QRect() << QPoint(499, 400);
    // The bottom comes to 10 above 420.
    QTest::newRow("above C") << rect << QRect() << QRect() << QRect(0, 420, 1000, 10)
                             << QPoint(500, 371);
    QTest::newRow("above C and then above A")
        << rect << QRect(0, 380, 1000, 5) << QRect() << QRect(0, 420, 1000, 10) << QPoint(500, 330);
    QTest::newRow("above C, which clears A")
        << rect << QRect(0, 430, 1000, 5) << QRect() << QRect(0, 420, 1000, 10) << QPoint(500, 371);
    QTest::newRow("above A, which brings it upon B")
        << rect << QRect(0, 420, 1000, 10) << QRect(520, 0, 10, 380) << QRect() << QPoint(470, 370);
    QTest::newRow("brought into the screen, upon C")
        << QRect(500, 790, 50, 40) << QRect() << QRect() << QRect(0, 780, 1000, 20)
        << QPoint(500, 731);
    // Deliberate: what comes last is not brought into the screen again.
    QTest::newRow("out of the screen for B")
        << rect << QRect() << QRect(20, 0, 900, 800) << QRect() << QPoint(-30, 400);
}

void tst_GeometrieEcranCalculs::placeHorsDeBEtC()
{
    QFETCH(QRect, rect);
    QFETCH(QRect, rectA);
    QFETCH(QRect, rectB);
    QFETCH(QRect, rectC);
    QFETCH(QPoint, coin);
    Obstacles const obstacles = {QRect(0, 0, 1000, 800), {}, rectA, rectB, rectC, 10};
    Placement const placement = PlaceHorsDe(obstacles, rect, kAuDessusForce);
    QCOMPARE(placement.coin, coin);
    QRect const place(placement.coin, rect.size());
    QVERIFY(!place.intersects(rectA));
    QVERIFY(!place.intersects(rectB));
    QVERIFY(!place.intersects(rectC));
}

void tst_GeometrieEcranCalculs::tailleOptimale_data()
{
    QTest::addColumn<QSize>("taille");
    QTest::addColumn<QSize>("optimale");
    QTest::newRow("fits") << QSize(400, 300) << QSize(400, 300);
    QTest::newRow("at the limit") << QSize(920, 700) << QSize(920, 700);
    QTest::newRow("too wide") << QSize(921, 300) << QSize(920, 300);
    QTest::newRow("too high") << QSize(400, 701) << QSize(400, 700);
    QTest::newRow("both") << QSize(5000, 5000) << QSize(920, 700);
    QTest::newRow("empty") << QSize(0, 0) << QSize(0, 0);
}

void tst_GeometrieEcranCalculs::tailleOptimale()
{
    QFETCH(QSize, taille);
    QFETCH(QSize, optimale);
    QCOMPARE(DonneTailleOptimale(QSize(1000, 800), taille), optimale);
}

void tst_GeometrieEcranCalculs::basseResolution_data()
{
    QTest::addColumn<QSize>("resolution");
    QTest::addColumn<bool>("basse");
    QTest::newRow("narrow is enough") << QSize(1024, 800) << true;
    QTest::newRow("one wider") << QSize(1025, 800) << false;
    QTest::newRow("low is enough") << QSize(1920, 768) << true;
    QTest::newRow("one higher") << QSize(1920, 769) << false;
    QTest::newRow("both") << QSize(800, 600) << true;
    QTest::newRow("both at one above") << QSize(1025, 769) << false;
}

void tst_GeometrieEcranCalculs::basseResolution()
{
    QFETCH(QSize, resolution);
    QFETCH(bool, basse);
    QCOMPARE(EstBasseResolution(resolution), basse);
}

QTEST_APPLESS_MAIN(tst_GeometrieEcranCalculs)
#include "tst_GeometrieEcranCalculs.moc"
