// navigation/tst_DTabBarInterneVies.cpp
// Tabs, bars and windows that come, go and move while one tab is being dragged.
#include "SceneDeDeplacement.h"

using namespace Qt::StringLiterals;

class tst_DTabBarInterneVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void cibleDetruite();
    void cibleFermee();
    void barreDetruiteEnDeplacement_data();
    void barreDetruiteEnDeplacement();
    void ongletTraineRetire();
    void dernierOngletRetire();
    void ongletsAvantRetiresEtInseres();
    void ongletsDeplacesParLHote_data();
    void ongletsDeplacesParLHote();
    void deplacementQtNeLaisseRien_data();
    void deplacementQtNeLaisseRien();
    void retraitPendantLaPresseDansLaRangee();
    void retraitPendantLeGlissement_data();
    void retraitPendantLeGlissement();
    void receveurDetruitLaBarre_data();
    void receveurDetruitLaBarre();
    void receveurRetireLOnglet();
};

void tst_DTabBarInterneVies::cibleDetruite()
{
    Scene scene;
    QPoint const point = scene.cible->DonnePoint(1);

    scene.cible.reset();
    scene.source.Relache(point);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
}

void tst_DTabBarInterneVies::cibleFermee()
{
    Scene scene;
    QPoint const point = scene.cible->DonnePoint(1);

    scene.cible->close();
    scene.source.Relache(point);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.depots.count(), 0); // a page would vanish in it
    QCOMPARE(scene.fenetres.count(), 1);
}

void tst_DTabBarInterneVies::barreDetruiteEnDeplacement_data()
{
    QTest::addColumn<bool>("fenetreEntiere");
    QTest::newRow("with its window") << true;
    QTest::newRow("alone") << false;
}

void tst_DTabBarInterneVies::barreDetruiteEnDeplacement()
{
    QFETCH(bool, fenetreEntiere);
    auto source = std::make_unique<RangeeDEssai>(2);
    RangeeDEssai cible(2, "groupe", kPlaceCible);
    source->Expose();
    cible.Expose();
    source->Presse(1);
    source->Deplace(cible.DonnePoint(1));
    QPointer<QWidget> const fantome = TrouveFantome();
    QVERIFY(fantome);

    if (fenetreEntiere)
        source.reset();
    else
        delete source->rangee;

    QVERIFY(!fantome);
    QVERIFY(cible.barre->DonnePositionIndicateur().isNull());
    QTest::keyClick(&cible, Qt::Key_Escape); // nobody is left to catch it
}

void tst_DTabBarInterneVies::ongletTraineRetire()
{
    Scene scene;
    scene.infobulles.removeAt(1);

    scene.source.barre->removeTab(1);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    scene.source.Deplace(scene.cible->DonnePoint(1));
    scene.source.Relache(scene.cible->DonnePoint(1));
    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.CompteSignaux(), 0);
}

void tst_DTabBarInterneVies::dernierOngletRetire()
{
    RangeeDEssai source(1);
    source.Expose();
    source.Presse(0);
    source.Deplace(source.DonneAuDessous());

    source.barre->removeTab(0);
    source.Deplace(source.DonneAuDessous());
    source.Deplace(source.barre->mapToGlobal(QPoint(50, 10)));
    source.Relache(source.DonneAuDessous());

    QVERIFY(!TrouveFantome());
    QCOMPARE(source.AjouteOnglet(u"Neuf"_s), 0);
    QCOMPARE(source.barre->tabToolTip(0), u"Infobulle de Neuf"_s);
}

void tst_DTabBarInterneVies::ongletsAvantRetiresEtInseres()
{
    Scene scene;

    scene.source.barre->removeTab(0);
    scene.source.barre->removeTab(2);         // behind it
    scene.source.InsereOnglet(0, u"Avant"_s); // the dragged one is 1 again
    scene.source.InsereOnglet(1, u"Juste avant"_s);
    scene.source.InsereOnglet(3, u"Derriere"_s);
    scene.source.Deplace(scene.cible->DonnePoint(1));
    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.depots.count(), 1);
    int const index = scene.depots.at(0).at(0).toInt();
    QCOMPARE(scene.source.DonneTitre(index), u"Onglet 1"_s);
    for (int i = 0; i < scene.source.barre->count(); ++i)
        QCOMPARE(scene.source.barre->tabToolTip(i),
                 u"Infobulle de "_s + scene.source.DonneTitre(i));
}

void tst_DTabBarInterneVies::ongletsDeplacesParLHote_data()
{
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::newRow("the dragged one to the right") << 1 << 3;
    QTest::newRow("the dragged one to the left") << 1 << 0;
    QTest::newRow("over it to the right") << 0 << 3;
    QTest::newRow("over it to the left") << 3 << 0;
    QTest::newRow("into its place from the left") << 0 << 1;
    QTest::newRow("into its place from the right") << 3 << 1;
    QTest::newRow("behind it") << 2 << 3;
}

void tst_DTabBarInterneVies::ongletsDeplacesParLHote()
{
    QFETCH(int, de);
    QFETCH(int, vers);
    Scene scene;

    scene.source.barre->moveTab(de, vers);
    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.depots.count(), 1);
    QCOMPARE(scene.source.DonneTitre(scene.depots.at(0).at(0).toInt()), u"Onglet 1"_s);
    for (int i = 0; i < scene.source.barre->count(); ++i)
        QCOMPARE(scene.source.barre->tabToolTip(i),
                 u"Infobulle de "_s + scene.source.DonneTitre(i));
}

void tst_DTabBarInterneVies::deplacementQtNeLaisseRien_data()
{
    QTest::addColumn<QString>("fin");
    for (auto const * fin : {"release", "Escape", "hidden", "disabled", "dragged tab removed",
                             "tab before it removed", "tab inserted before it"})
        QTest::newRow(fin) << QString::fromLatin1(fin);
}

void tst_DTabBarInterneVies::deplacementQtNeLaisseRien()
{
    QFETCH(QString, fin);
    RangeeDEssai source(3);
    source.Expose();
    source.Presse(1);
    QPoint const depart = source.DonnePoint(1);
    source.Deplace(depart + QPoint(QApplication::startDragDistance() + 5, 0));
    QVERIFY(TrouveOngletQtEnMouvement(*source.barre));
    source.Deplace(source.DonneAuDessous());

    if (fin == "release"_L1)
        source.Relache(source.DonneAuDessous());
    else if (fin == "Escape"_L1)
        QTest::keyClick(&source, Qt::Key_Escape);
    else if (fin == "hidden"_L1)
        source.hide();
    else if (fin == "disabled"_L1)
        source.setEnabled(false);
    else if (fin == "dragged tab removed"_L1)
        source.barre->removeTab(1);
    else if (fin == "tab before it removed"_L1)
        source.barre->removeTab(0);
    else
        source.InsereOnglet(0, u"Avant"_s);

    source.setEnabled(true);
    source.show();
    QTRY_VERIFY(!TrouveOngletQtEnMouvement(*source.barre));
    // Nor does anything move with the mouse, back in the bar.
    source.Relache(source.DonneAuDessous());
    source.Envoie(QEvent::MouseMove, source.DonnePoint(0), Qt::NoButton, Qt::LeftButton);
    source.Deplace(source.DonnePoint(1, 0.9));
    QVERIFY(!TrouveOngletQtEnMouvement(*source.barre));
    auto const places = [&source](int i) {
        return source.barre->DonneInfos(i).cadre->x() - source.barre->tabRect(i).x();
    };
    for (int i = 1; i < source.barre->count(); ++i)
        QTRY_COMPARE(places(i), places(0));
}

// Qt keeps the index of the pressed tab whatever happens to the tabs, and would go past the end.
void tst_DTabBarInterneVies::retraitPendantLaPresseDansLaRangee()
{
    RangeeDEssai source(3);
    source.Expose();

    source.Presse(2);
    source.barre->removeTab(0);
    source.Deplace(source.DonnePoint(1, 0.9));
    source.Deplace(source.DonnePoint(0));
    source.Relache(source.DonnePoint(0));

    QCOMPARE(source.barre->count(), 2);
    QVERIFY(!TrouveOngletQtEnMouvement(*source.barre));
}

void tst_DTabBarInterneVies::retraitPendantLeGlissement_data()
{
    QTest::addColumn<int>("retiray"); // -1: one is inserted in front
    QTest::addColumn<bool>("dehors");
    QTest::addColumn<bool>("parLaBase");
    QTest::addColumn<QString>("courant");
    QTest::newRow("before it") << 0 << false << false << u"Onglet 1"_s;
    QTest::newRow("before it, outside") << 0 << true << false << u"Onglet 1"_s;
    QTest::newRow("itself") << 2 << false << false << u"Onglet 2"_s;
    QTest::newRow("itself, outside") << 2 << true << false << u"Onglet 2"_s;
    QTest::newRow("itself, by the base") << 2 << false << true << u"Onglet 2"_s;
    QTest::newRow("inserted in front") << -1 << false << false << u"Onglet 1"_s;
    QTest::newRow("inserted in front, outside") << -1 << true << false << u"Onglet 1"_s;
}

// While others still slide aside for it, Qt neither ends the move of a tab nor keeps the current
// one.
void tst_DTabBarInterneVies::retraitPendantLeGlissement()
{
    QFETCH(int, retiray);
    QFETCH(bool, dehors);
    QFETCH(bool, parLaBase);
    QFETCH(QString, courant);
    RangeeDEssai source(3);
    source.Expose();
    source.Presse(1);
    for (int x = 0; source.barre->currentIndex() != 2 && x < 300; x += 5)
        source.Deplace(source.barre->mapToGlobal(QPoint(185 + x, 14)));
    QCOMPARE(source.DonneTitre(2), u"Onglet 1"_s);
    if (dehors)
        source.Deplace(source.DonneAuDessous());

    if (retiray < 0)
        source.InsereOnglet(0, u"Avant"_s);
    else if (parLaBase)
        static_cast<QTabBar *>(source.barre)->removeTab(retiray);
    else
        source.barre->removeTab(retiray);

    QVERIFY(source.barre->currentIndex() >= 0);
    QCOMPARE(source.DonneTitre(source.barre->currentIndex()), courant);
    source.grab(); // painted without a tab that is no more
    source.Deplace(source.DonnePoint(0));
    source.Relache(source.DonnePoint(0));
    if (parLaBase) { // Qt believes in its move until the next press has been released
        source.Presse(0);
        source.Relache(source.DonnePoint(0));
    }
    source.Presse(0);
    QCOMPARE(source.barre->currentIndex(), 0); // free to change
    source.Relache(source.DonnePoint(0));
    QTRY_VERIFY(!TrouveOngletQtEnMouvement(*source.barre));
}

void tst_DTabBarInterneVies::receveurDetruitLaBarre_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("dropped on a bar")
        << QByteArray(SIGNAL(SignalAjouteOngletBarreExterne(int, QWidget *, int)));
    QTest::newRow("dropped elsewhere") << QByteArray(SIGNAL(SignalOngletNouvelleFenetre()));
    QTest::newRow("middle button") << QByteArray(SIGNAL(tabCloseRequested(int)));
}

namespace {

class Destructeur : public QObject
{
    Q_OBJECT

public:
    QPointer<QWidget> victime;

public Q_SLOTS:
    void Detruis() { delete victime; }
};

} // namespace

void tst_DTabBarInterneVies::receveurDetruitLaBarre()
{
    QFETCH(QByteArray, signal);
    RangeeDEssai source(3);
    RangeeDEssai cible(3, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    Destructeur destructeur;
    destructeur.victime = source.rangee;
    QPoint const point = signal.contains("Fenetre") ? source.DonneAuDessous() : cible.DonnePoint(1);
    connect(source.barre, signal.constData(), &destructeur, SLOT(Detruis()));

    source.Presse(1);
    if (signal.contains("tabClose")) {
        source.Relache(source.DonnePoint(1), Qt::MiddleButton);
    } else {
        source.Deplace(point);
        source.Relache(point);
    }

    QVERIFY(!destructeur.victime);
    QVERIFY(!TrouveFantome());
}

void tst_DTabBarInterneVies::receveurRetireLOnglet()
{
    Scene scene;
    connect(scene.source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne, &scene.source,
            [&scene](int index) { scene.source.barre->removeTab(index); });
    scene.infobulles.removeAt(1);

    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QVERIFY(scene.EstAuRepos());
}

QTEST_MAIN(tst_DTabBarInterneVies)
#include "tst_DTabBarInterneVies.moc"
