// navigation/tst_DTabBarInterneDeplacement.cpp
// When a drag begins, and where the tab goes.
#include "RangeeDEssai.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint kPlaceCible(40, 300);

struct Depot
{
    int index = -1;
    QWidget * barre = nullptr;
    int position = -1;
};

Depot DonneDepot(QSignalSpy const & espion)
{
    if (espion.count() != 1)
        return {};
    QVariantList const arguments = espion.at(0);
    return {arguments.at(0).toInt(), arguments.at(1).value<QWidget *>(), arguments.at(2).toInt()};
}

class CompteurDePeintures : public QObject
{
public:
    int nombre = 0;

protected:
    bool eventFilter(QObject *, QEvent * evenement) override
    {
        nombre += evenement->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

class tst_DTabBarInterneDeplacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void rienSansPermission();
    void limitesDeLaBarre_data();
    void limitesDeLaBarre();
    void sansPresseLePremierOngletPart();
    void sansOngletRienNePart();
    void cibleRedessinee();
    void partSeulementDUneBonnePresse_data();
    void partSeulementDUneBonnePresse();
    void positionDansLaCible_data();
    void positionDansLaCible();
    void positionDeDroiteAGauche_data();
    void positionDeDroiteAGauche();
    void moitieEntiere_data();
    void moitieEntiere();
    void cibleSansOnglet();
    void boutonsDeDefilement_data();
    void boutonsDeDefilement();
    void boutonsDeDefilementDeDroiteAGauche();
    void ongletCoupeAGauche();
    void ongletCoupeADroite();
    void ongletPlusLargeQueLaBarre();
    void autreGroupe();
    void memeBarre();
    void dUneCibleALAutre();
    void horsDeTouteFenetre();
    void indexCibleSuitLesFermetures();
    void boutonsDuMouvementNeComptentPas();
};

void tst_DTabBarInterneDeplacement::rienSansPermission()
{
    RangeeDEssai source(3);
    source.barre->MetsPeutGlisserDeposer(false);
    source.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(1);
    source.Deplace(source.DonneAuDessous());

    QVERIFY(!source.barre->EstEnDeplacementExterne());
    QVERIFY(!TrouveFantome());
    QCOMPARE(source.barre->tabToolTip(1), u"Infobulle de Onglet 1"_s);
    source.Relache(source.DonneAuDessous());
    QCOMPARE(espion.count(), 0);
}

void tst_DTabBarInterneDeplacement::limitesDeLaBarre_data()
{
    QTest::addColumn<int>("x"); // from the left, or the right where negative
    QTest::addColumn<int>("y");
    QTest::addColumn<bool>("dehors");
    QTest::newRow("in the middle") << 100 << 10 << false;
    QTest::newRow("the first column is outside") << 0 << 10 << true;
    QTest::newRow("the second column is inside") << 1 << 10 << false;
    QTest::newRow("the last column is inside") << -1 << 10 << false;
    QTest::newRow("behind the last column") << -1000 << 10 << true;
    QTest::newRow("the first row is outside") << 100 << 0 << true;
    QTest::newRow("the second row is inside") << 100 << 1 << false;
    QTest::newRow("the last row is inside") << 100 << 28 << false;
    QTest::newRow("below the last row") << 100 << 29 << true;
    QTest::newRow("above") << 100 << -1 << true;
    QTest::newRow("to the left") << -2000 << 10 << true;
}

void tst_DTabBarInterneDeplacement::limitesDeLaBarre()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(bool, dehors);
    RangeeDEssai source(2);
    source.Expose();
    int const largeur = source.barre->width();
    int const colonne = x == -1 ? largeur - 1 : x == -1000 ? largeur : x == -2000 ? -1 : x;

    source.Presse(0);
    source.Deplace(source.barre->mapToGlobal(QPoint(colonne, y)));

    QCOMPARE(source.barre->EstEnDeplacementExterne(), dehors);
}

void tst_DTabBarInterneDeplacement::sansPresseLePremierOngletPart()
{
    RangeeDEssai source(3);
    source.barre->setCurrentIndex(2);
    source.Expose();

    source.Deplace(source.DonneAuDessous());

    QVERIFY(source.barre->EstEnDeplacementExterne());
    QCOMPARE(source.barre->tabToolTip(0), QString());
    QCOMPARE(source.barre->tabToolTip(2), u"Infobulle de Onglet 2"_s);
}

void tst_DTabBarInterneDeplacement::sansOngletRienNePart()
{
    RangeeDEssai source;
    source.Expose();

    source.Deplace(source.DonneAuDessous());

    QVERIFY(!source.barre->EstEnDeplacementExterne());
}

// When a tab comes over it, moves there and has gone: for hosts that draw the place.
void tst_DTabBarInterneDeplacement::cibleRedessinee()
{
    RangeeDEssai source(2);
    RangeeDEssai cible(2, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    CompteurDePeintures compteur;
    cible.barre->installEventFilter(&compteur);
    source.Presse(1);
    auto const calme = [&compteur] { // no painting is due
        int const nombre = compteur.nombre;
        QCoreApplication::processEvents();
        return compteur.nombre == nombre;
    };
    QVERIFY(QTest::qWaitFor(calme));
    int avant = compteur.nombre;

    source.Deplace(cible.DonnePoint(1));
    QTRY_VERIFY(compteur.nombre > avant);
    QVERIFY(QTest::qWaitFor(calme));
    avant = compteur.nombre;
    source.Deplace(cible.DonnePoint(1, 0.75)); // the picture is there already
    QTRY_VERIFY(compteur.nombre > avant);
    QVERIFY(QTest::qWaitFor(calme));
    avant = compteur.nombre;
    source.Deplace(source.DonneAuDessous());
    QTRY_VERIFY(compteur.nombre > avant);
}

void tst_DTabBarInterneDeplacement::partSeulementDUneBonnePresse_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::addColumn<int>("nombre");
    QTest::addColumn<bool>("surUnOnglet");
    QTest::addColumn<bool>("part");
    QTest::newRow("left on a tab") << Qt::LeftButton << 2 << true << true;
    QTest::newRow("right on a tab") << Qt::RightButton << 2 << true << false;
    QTest::newRow("middle on a tab") << Qt::MiddleButton << 2 << true << false;
    QTest::newRow("left on a disabled tab") << Qt::LeftButton << 3 << true << false;
    QTest::newRow("left beside the tabs") << Qt::LeftButton << 2 << false << false;
    QTest::newRow("left in a bar without tabs") << Qt::LeftButton << 0 << false << false;
}

void tst_DTabBarInterneDeplacement::partSeulementDUneBonnePresse()
{
    QFETCH(Qt::MouseButton, bouton);
    QFETCH(int, nombre);
    QFETCH(bool, surUnOnglet);
    QFETCH(bool, part);
    RangeeDEssai source(nombre);
    source.barre->setMinimumWidth(600); // room beside the tabs
    source.barre->setTabEnabled(1, nombre < 3);
    source.Expose();
    QPoint const aCote = source.barre->mapToGlobal(QPoint(580, 15));

    source.Envoie(QEvent::MouseButtonPress, surUnOnglet ? source.DonnePoint(1) : aCote, bouton,
                  bouton);
    source.Deplace(source.DonneAuDessous());

    QCOMPARE(source.barre->EstEnDeplacementExterne(), part);
    QCOMPARE(TrouveFantome() != nullptr, part);
}

void tst_DTabBarInterneDeplacement::positionDansLaCible_data()
{
    QTest::addColumn<int>("x"); // in the target bar of three tabs of 100
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("indicateur");
    QTest::newRow("left end") << 0 << 0 << 1;
    QTest::newRow("first half of the first tab") << 49 << 0 << 1;
    QTest::newRow("second half of the first tab") << 50 << 1 << 100;
    QTest::newRow("first half of the second tab") << 149 << 1 << 100;
    QTest::newRow("second half of the second tab") << 150 << 2 << 200;
    QTest::newRow("first half of the last tab") << 249 << 2 << 200;
    QTest::newRow("second half of the last tab") << 250 << 3 << 299;
    QTest::newRow("past the last tab, over the row") << 320 << 3 << 299;
}

void tst_DTabBarInterneDeplacement::positionDansLaCible()
{
    QFETCH(int, x);
    QFETCH(int, position);
    QFETCH(int, indicateur);
    RangeeDEssai source(3);
    RangeeDEssai cible(3, "groupe", kPlaceCible);
    cible.barre->MetsTailleOnglets(100);
    source.Expose();
    cible.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QSignalSpy espionFenetre(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);
    QPoint const point = cible.barre->mapToGlobal(QPoint(x, 10));

    source.Presse(1);
    source.Deplace(point);
    QCOMPARE(cible.barre->DonnePositionIndicateur(), QPoint(indicateur, 0));
    source.Relache(point);

    QCOMPARE(espionFenetre.count(), 0);
    Depot const depot = DonneDepot(espion);
    QCOMPARE(depot.index, 1);
    QCOMPARE(depot.barre, cible.barre);
    QCOMPARE(depot.position, position);
    QCOMPARE(cible.barre->DonnePositionIndicateur(), QPoint());
}

void tst_DTabBarInterneDeplacement::positionDeDroiteAGauche_data()
{
    QTest::addColumn<int>("x"); // from the right end of the target bar of three tabs of 100
    QTest::addColumn<int>("position");
    QTest::newRow("right half of the first tab") << 49 << 0;
    QTest::newRow("left half of the first tab") << 51 << 1;
    QTest::newRow("right half of the last tab") << 249 << 2;
    QTest::newRow("left half of the last tab") << 251 << 3;
}

void tst_DTabBarInterneDeplacement::positionDeDroiteAGauche()
{
    QFETCH(int, x);
    QFETCH(int, position);
    RangeeDEssai source(3);
    RangeeDEssai cible(3, "groupe", kPlaceCible);
    cible.barre->MetsTailleOnglets(100);
    cible.setLayoutDirection(Qt::RightToLeft);
    source.Expose();
    cible.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    int const fin = cible.barre->width();
    QPoint const point = cible.barre->mapToGlobal(QPoint(fin - 1 - x, 10));

    source.Presse(1);
    source.Deplace(point);
    int const indicateur = cible.barre->DonnePositionIndicateur().x();
    QVERIFY(qAbs(indicateur - (fin - 100 * position)) <= 2); // at the edge, or beside it
    source.Relache(point);

    QCOMPARE(DonneDepot(espion).position, position);
}

void tst_DTabBarInterneDeplacement::boutonsDeDefilementDeDroiteAGauche()
{
    RangeeDEssai source(1);
    RangeeDEssai cible(10, "groupe", kPlaceCible, 500);
    cible.setLayoutDirection(Qt::RightToLeft);
    cible.Expose();
    source.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);
    QPoint const surLeBouton = cible.barre->mapToGlobal(QPoint(6, 14));
    QVERIFY(qobject_cast<QToolButton *>(QApplication::widgetAt(surLeBouton)));

    source.Presse(0);
    source.Deplace(cible.barre->mapToGlobal(QPoint(cible.barre->width() - 6, 14)));
    QVERIFY(!cible.barre->DonnePositionIndicateur().isNull());
    source.Deplace(surLeBouton);
    QVERIFY(cible.barre->DonnePositionIndicateur().isNull());
    source.Relache(surLeBouton);

    QCOMPARE(espion.count(), 1);
}

void tst_DTabBarInterneDeplacement::moitieEntiere_data()
{
    QTest::addColumn<int>("x"); // over a tab of 185: its half is 92
    QTest::addColumn<int>("position");
    QTest::newRow("91 of 92") << 91 << 0;
    QTest::newRow("92 of 92") << 92 << 1;
}

void tst_DTabBarInterneDeplacement::moitieEntiere()
{
    QFETCH(int, x);
    QFETCH(int, position);
    RangeeDEssai source(1);
    RangeeDEssai cible(1, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QPoint const point = cible.barre->mapToGlobal(QPoint(x, 10));

    source.Presse(0);
    source.Deplace(point);
    source.Relache(point);

    QCOMPARE(DonneDepot(espion).position, position);
}

void tst_DTabBarInterneDeplacement::cibleSansOnglet()
{
    RangeeDEssai source(2);
    RangeeDEssai cible(0, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QPoint const point = cible.barre->mapToGlobal(QPoint(50, 10));

    source.Presse(0);
    source.Deplace(point);
    QCOMPARE(cible.barre->DonnePositionIndicateur(), QPoint(-1, 0));
    source.Relache(point);

    QCOMPARE(DonneDepot(espion).barre, cible.barre);
    QCOMPARE(DonneDepot(espion).position, 0);
}

void tst_DTabBarInterneDeplacement::boutonsDeDefilement_data()
{
    QTest::addColumn<int>("courant");  // the bar is scrolled to it
    QTest::addColumn<int>("ecart");    // from where the buttons begin
    QTest::addColumn<int>("position"); // -1: a new window
    QTest::newRow("at the left end, before the buttons") << 0 << -1 << 2;
    QTest::newRow("at the left end, on the buttons") << 0 << 0 << -1;
    QTest::newRow("at the left end, on the right button") << 0 << 20 << -1;
    QTest::newRow("at the right end, before the buttons") << 9 << -1 << 10;
    QTest::newRow("at the right end, on the buttons") << 9 << 0 << -1;
    QTest::newRow("at the right end, on the right button") << 9 << 20 << -1;
}

void tst_DTabBarInterneDeplacement::boutonsDeDefilement()
{
    QFETCH(int, courant);
    QFETCH(int, ecart);
    QFETCH(int, position);
    RangeeDEssai source(1);
    RangeeDEssai cible(10, "groupe", kPlaceCible, 500);
    cible.Expose();
    source.Expose();
    cible.barre->setCurrentIndex(courant);
    int const boutons =
        2 * cible.style()->pixelMetric(QStyle::PM_TabBarScrollButtonWidth, nullptr, cible.barre);
    QPoint const point =
        cible.barre->mapToGlobal(QPoint(cible.barre->width() - boutons + ecart, 10));
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QSignalSpy espionFenetre(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(0);
    source.Deplace(cible.DonnePoint(courant)); // a target that is to be forgotten
    QVERIFY(cible.barre->DonnePositionIndicateur().x() > 0);
    source.Deplace(point);
    QCOMPARE(cible.barre->DonnePositionIndicateur().isNull(), position < 0);
    source.Relache(point);

    QCOMPARE(espionFenetre.count(), position < 0 ? 1 : 0);
    QCOMPARE(DonneDepot(espion).position, position);
}

void tst_DTabBarInterneDeplacement::ongletCoupeAGauche()
{
    RangeeDEssai source(1);
    RangeeDEssai cible(10, "groupe", kPlaceCible, 500);
    cible.Expose();
    source.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    // Of which less than half is cut off.
    auto const coupe = [&cible] {
        int index = 0;
        while (cible.barre->tabRect(index).right() < 0)
            ++index;
        return index;
    };
    for (int largeur = 120; largeur < 180; largeur += 5) {
        cible.barre->MetsTailleOnglets(largeur);
        QTRY_VERIFY(cible.barre->width() < 500);
        cible.barre->setCurrentIndex(0);
        cible.barre->setCurrentIndex(9);
        QRect const rect = cible.barre->tabRect(coupe());
        if (rect.left() < -2 && rect.left() > -rect.width() / 2 + 2)
            break;
    }
    QRect const rect = cible.barre->tabRect(coupe());
    QVERIFY(rect.left() < -2 && rect.left() > -rect.width() / 2 + 2);
    QPoint const point = cible.barre->mapToGlobal(QPoint(1, 10));

    source.Presse(0);
    source.Deplace(point);
    QCOMPARE(cible.barre->DonnePositionIndicateur().x(), rect.left() + rect.width());
    source.Relache(point);

    // Never before it, though the mouse is in its first half.
    QCOMPARE(DonneDepot(espion).position, coupe() + 1);
}

void tst_DTabBarInterneDeplacement::ongletCoupeADroite()
{
    RangeeDEssai source(1);
    RangeeDEssai cible(10, "groupe", kPlaceCible, 500);
    cible.Expose();
    source.Expose();
    int const boutons =
        2 * cible.style()->pixelMetric(QStyle::PM_TabBarScrollButtonWidth, nullptr, cible.barre);
    // Of which more than half is to be seen.
    int fin = 0;
    QRect rect;
    for (int largeur = 120; largeur < 180; largeur += 5) {
        cible.barre->MetsTailleOnglets(largeur);
        QTRY_VERIFY(cible.barre->width() < 500);
        fin = cible.barre->width() - boutons - 1;
        rect = cible.barre->tabRect(cible.barre->tabAt(QPoint(fin, 10)));
        if (fin - rect.left() > rect.width() / 2 + 2 && rect.right() > fin + 2)
            break;
    }
    QVERIFY(fin - rect.left() > rect.width() / 2 + 2 && rect.right() > fin + 2);
    int const coupe = cible.barre->tabAt(QPoint(fin, 10));
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);

    source.Presse(0);
    source.Deplace(cible.barre->mapToGlobal(QPoint(fin, 10)));
    source.Relache(cible.barre->mapToGlobal(QPoint(fin, 10)));

    // Never behind it: that would be under the buttons.
    QCOMPARE(DonneDepot(espion).position, coupe);
}

void tst_DTabBarInterneDeplacement::ongletPlusLargeQueLaBarre()
{
    RangeeDEssai source(1);
    RangeeDEssai cible(3, "groupe", kPlaceCible, 300);
    cible.barre->MetsTailleOnglets(400);
    cible.Expose();
    source.Expose();
    cible.barre->setCurrentIndex(1);
    QRect const rect = cible.barre->tabRect(1);
    QVERIFY(rect.left() < 0);
    QPoint const point = cible.barre->mapToGlobal(QPoint(20, 10));

    source.Presse(0);
    source.Deplace(point);

    // At its right edge, which is out of sight.
    QCOMPARE(cible.barre->DonnePositionIndicateur().x(), rect.left() + rect.width() - 1);
}

void tst_DTabBarInterneDeplacement::autreGroupe()
{
    RangeeDEssai source(2);
    RangeeDEssai autre(2, "autre groupe", kPlaceCible);
    source.Expose();
    autre.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QSignalSpy espionFenetre(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(0);
    source.Deplace(autre.DonnePoint(1));
    QCOMPARE(autre.barre->DonnePositionIndicateur(), QPoint());
    source.Relache(autre.DonnePoint(1));

    QCOMPARE(espion.count(), 0);
    QCOMPARE(espionFenetre.count(), 1);
}

void tst_DTabBarInterneDeplacement::memeBarre()
{
    RangeeDEssai source(2);
    source.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QSignalSpy espionFenetre(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(0);
    QPoint const aCote = source.rangee->PreteBoutonAjout()->mapToGlobal(QPoint(5, 5));
    source.Deplace(aCote); // out of the bar, but in its row
    QVERIFY(source.barre->EstEnDeplacementExterne());
    QCOMPARE(source.barre->DonnePositionIndicateur(), QPoint());
    source.Relache(aCote);

    QCOMPARE(espion.count(), 0);
    QCOMPARE(espionFenetre.count(), 1);
}

void tst_DTabBarInterneDeplacement::dUneCibleALAutre()
{
    RangeeDEssai source(2);
    RangeeDEssai premiere(2, "groupe", kPlaceCible);
    RangeeDEssai seconde(2, "groupe", {40, 500});
    source.Expose();
    premiere.Expose();
    seconde.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);

    source.Presse(0);
    source.Deplace(premiere.DonnePoint(1));
    QVERIFY(!premiere.barre->DonnePositionIndicateur().isNull());
    source.Deplace(seconde.DonnePoint(1));
    QCOMPARE(premiere.barre->DonnePositionIndicateur(), QPoint());
    QVERIFY(!seconde.barre->DonnePositionIndicateur().isNull());
    source.Relache(seconde.DonnePoint(1));

    QCOMPARE(DonneDepot(espion).barre, seconde.barre);
}

void tst_DTabBarInterneDeplacement::horsDeTouteFenetre()
{
    RangeeDEssai source(2);
    RangeeDEssai cible(2, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    QSignalSpy espionFenetre(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);
    QPoint const bureau(700, 700);
    QVERIFY(!QApplication::widgetAt(bureau));

    source.Presse(0);
    source.Deplace(cible.DonnePoint(1));
    QVERIFY(!cible.barre->DonnePositionIndicateur().isNull());
    source.Deplace(bureau);
    QCOMPARE(cible.barre->DonnePositionIndicateur(), QPoint());
    source.Relache(bureau);

    QCOMPARE(espionFenetre.count(), 1);
}

void tst_DTabBarInterneDeplacement::indexCibleSuitLesFermetures()
{
    RangeeDEssai source(2);
    RangeeDEssai cible(3, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    QSignalSpy espion(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne);
    QPoint const point = cible.DonnePoint(2, 0.75);

    source.Presse(0);
    source.Deplace(point);
    cible.barre->removeTab(0);
    cible.barre->removeTab(0);
    source.Relache(point);

    QCOMPARE(DonneDepot(espion).position, 1);
}

void tst_DTabBarInterneDeplacement::boutonsDuMouvementNeComptentPas()
{
    RangeeDEssai source(2);
    source.barre->setMouseTracking(true); // else Qt delivers no such move
    source.Expose();

    source.Presse(1);
    source.Envoie(QEvent::MouseMove, source.DonneAuDessous(), Qt::NoButton, Qt::NoButton);

    QVERIFY(source.barre->EstEnDeplacementExterne());
}

QTEST_MAIN(tst_DTabBarInterneDeplacement)
#include "tst_DTabBarInterneDeplacement.moc"
