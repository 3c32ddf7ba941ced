// navigation/tst_DTabBarInterneFins.cpp
// The endings of a drag.
#include "SceneDeDeplacement.h"

using namespace Qt::StringLiterals;

class tst_DTabBarInterneFins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void relacheSurUneCible();
    void relacheAilleurs();
    void infobulleChangeeEnChemin();
    void ordreDuDepot_data();
    void ordreDuDepot();
    void relacheDUnAutreBouton();
    void retourDansLaBarre();
    void retourPuisNouvelleSortie();
    void echappement_data();
    void echappement();
    void echappementSansDeplacement();
    void finForcee_data();
    void finForcee();
    void evenementFabriquayAilleurs();
    void permissionRetiree();
    void deplacementDansLaRangeePuisDehors();
    void autrePressePendantLeDeplacement();
    void autrePresseDeLaSouris();
    void dialogueSurUneAutreFenetre();
    void receveurQuiRecommence();
    void presseGauchePerdue();
    void boutonDuMilieu();
    void boutonDuMilieuPendantLeDeplacement();
};

void tst_DTabBarInterneFins::relacheSurUneCible()
{
    Scene scene;
    QVERIFY(scene.EstEnCours());
    QVERIFY(scene.source.DonneInfobulles() != scene.infobulles);

    scene.source.Relache(scene.cible->DonnePoint(1));

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QCOMPARE(scene.depots.count(), 1);
    QCOMPARE(scene.fenetres.count(), 0);
    // The tab goes when the owner moves it, not by itself.
    QCOMPARE(scene.source.barre->count(), 4);
    // That drag is over, and with it what the press has begun.
    scene.source.Deplace(scene.cible->DonnePoint(1));
    QVERIFY(scene.EstAuRepos());
}

void tst_DTabBarInterneFins::relacheAilleurs()
{
    Scene scene;

    scene.source.Deplace(scene.source.DonneAuDessous());
    scene.source.Relache(scene.source.DonneAuDessous());

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QCOMPARE(scene.depots.count(), 0);
    QCOMPARE(scene.fenetres.count(), 1);
}

void tst_DTabBarInterneFins::infobulleChangeeEnChemin()
{
    for (bool const bougeEncore : {false, true}) {
        Scene scene;
        scene.source.barre->setTabToolTip(1, u"Neuve"_s);
        if (bougeEncore) {
            scene.source.Deplace(scene.cible->DonnePoint(2));
            QVERIFY(scene.source.barre->tabToolTip(1).isEmpty());
        }
        scene.source.Relache(scene.cible->DonnePoint(1));
        QCOMPARE(scene.source.barre->tabToolTip(1), u"Neuve"_s);
    }
}

void tst_DTabBarInterneFins::ordreDuDepot_data()
{
    QTest::addColumn<bool>("surLaCible");
    QTest::newRow("on a bar of the group") << true;
    QTest::newRow("elsewhere") << false;
}

// A receiver finds the tab as it was before, but the target still marked, and Qt's own move not yet
// over.
void tst_DTabBarInterneFins::ordreDuDepot()
{
    QFETCH(bool, surLaCible);
    RangeeDEssai source(3);
    RangeeDEssai cible(3, "groupe", kPlaceCible);
    source.Expose();
    cible.Expose();
    QStringList const infobulles = source.DonneInfobulles();
    QPoint const point = surLaCible ? cible.DonnePoint(1) : source.DonneAuDessous();
    int recus = 0;
    auto const verifie = [&] {
        ++recus;
        QVERIFY(!source.barre->EstEnDeplacementExterne());
        QVERIFY(!TrouveFantome());
        QCOMPARE(source.DonneInfobulles(), infobulles);
        QCOMPARE(!cible.barre->DonnePositionIndicateur().isNull(), surLaCible);
        QVERIFY(TrouveOngletQtEnMouvement(*source.barre));
    };
    connect(source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne, this, verifie);
    connect(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre, this, verifie);

    source.Presse(1);
    source.Deplace(source.DonnePoint(1) + QPoint(QApplication::startDragDistance() + 5, 0));
    source.Deplace(point);
    source.Relache(point);

    QCOMPARE(recus, 1);
    QVERIFY(cible.barre->DonnePositionIndicateur().isNull());
    QTRY_VERIFY(!TrouveOngletQtEnMouvement(*source.barre));
}

void tst_DTabBarInterneFins::relacheDUnAutreBouton()
{
    Scene scene;

    scene.source.Relache(scene.cible->DonnePoint(1), Qt::RightButton);
    QCOMPARE(scene.depots.count(), 1);
    // The left button is still down.
    scene.source.Deplace(scene.source.DonneAuDessous());

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneFins::retourDansLaBarre()
{
    Scene scene;

    scene.source.Deplace(scene.source.DonnePoint(1));
    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    scene.source.Relache(scene.source.DonnePoint(1));

    QCOMPARE(scene.CompteSignaux(), 0);
    QCOMPARE(scene.source.DonneTitre(1), u"Onglet 1"_s);
}

void tst_DTabBarInterneFins::retourPuisNouvelleSortie()
{
    Scene scene;

    scene.source.Deplace(scene.source.DonnePoint(1));
    scene.source.Deplace(scene.cible->DonnePoint(1));
    QVERIFY(scene.EstEnCours());
    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.depots.count(), 1);
    QCOMPARE(scene.depots.at(0).at(0).toInt(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneFins::echappement_data()
{
    QTest::addColumn<bool>("dansLaCible"); // has the keyboard focus
    QTest::newRow("the focus is in the bar") << false;
    QTest::newRow("the focus is elsewhere") << true;
}

void tst_DTabBarInterneFins::echappement()
{
    QFETCH(bool, dansLaCible);
    Scene scene;
    QShortcut raccourci(Qt::Key_Escape, scene.cible.get());
    QSignalSpy espion(&raccourci, &QShortcut::activated);
    QWidget * const destination =
        dansLaCible ? static_cast<QWidget *>(scene.cible.get()) : scene.source.barre;

    QTest::keyClick(destination, Qt::Key_Escape);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QCOMPARE(espion.count(), 0);
    // Until the next press, there is nothing to drag.
    scene.source.Deplace(scene.cible->DonnePoint(2));
    QVERIFY(scene.EstAuRepos());
    scene.source.Relache(scene.cible->DonnePoint(2));
    QCOMPARE(scene.CompteSignaux(), 0);
    scene.source.Presse(1);
    scene.source.Deplace(scene.cible->DonnePoint(2));
    QVERIFY(scene.EstEnCours());
}

void tst_DTabBarInterneFins::echappementSansDeplacement()
{
    Scene scene;
    scene.source.Relache(scene.cible->DonnePoint(1));
    QShortcut raccourci(Qt::Key_Escape, scene.cible.get());
    QSignalSpy espion(&raccourci, &QShortcut::activated);
    scene.cible->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(scene.cible.get()));

    QTest::keyClick(scene.cible.get(), Qt::Key_Escape);

    QCOMPARE(espion.count(), 1); // nothing is caught between drags
}

void tst_DTabBarInterneFins::finForcee_data()
{
    QTest::addColumn<QString>("fin");
    for (auto const * fin :
         {"bar hidden", "window hidden", "window closed", "bar disabled", "window disabled",
          "grab lost", "pop-up opened", "dialog opened", "button released elsewhere"})
        QTest::newRow(fin) << QString::fromLatin1(fin);
}

void tst_DTabBarInterneFins::finForcee()
{
    QFETCH(QString, fin);
    Scene scene;
    QMenu menu;
    menu.addAction(u"Action"_s);
    QDialog dialogue(&scene.source);
    dialogue.setModal(true);
    QPushButton ailleurs;
    ailleurs.show();
    QVERIFY(scene.EstEnCours());

    if (fin == "bar hidden"_L1)
        scene.source.barre->hide();
    else if (fin == "window hidden"_L1)
        scene.source.hide();
    else if (fin == "window closed"_L1)
        scene.source.close();
    else if (fin == "bar disabled"_L1)
        scene.source.barre->setEnabled(false);
    else if (fin == "window disabled"_L1)
        scene.source.setEnabled(false);
    else if (fin == "pop-up opened"_L1)
        menu.popup({600, 600});
    else if (fin == "dialog opened"_L1)
        dialogue.open();
    else if (fin == "button released elsewhere"_L1)
        QTest::mouseRelease(&ailleurs, Qt::LeftButton);
    else {
        QEvent perte(QEvent::UngrabMouse);
        QApplication::sendEvent(scene.source.barre, &perte);
    }

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    menu.close();
    dialogue.close();
    scene.source.setEnabled(true);
    scene.source.barre->setEnabled(true);
    scene.source.barre->show();
    scene.source.show();
    scene.source.Deplace(scene.cible->DonnePoint(1));
    QVERIFY(scene.EstAuRepos());
    scene.source.Relache(scene.cible->DonnePoint(1));
    QCOMPARE(scene.CompteSignaux(), 0);
}

// A host that plays an event to a widget of its own takes no mouse away.
void tst_DTabBarInterneFins::evenementFabriquayAilleurs()
{
    Scene scene;
    QPushButton ailleurs;
    ailleurs.show();
    QMouseEvent relache(QEvent::MouseButtonRelease, QPoint(1, 1), QPoint(1, 1), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);

    QApplication::sendEvent(&ailleurs, &relache);

    QVERIFY(scene.EstEnCours());
}

void tst_DTabBarInterneFins::permissionRetiree()
{
    Scene scene;

    scene.source.barre->MetsPeutGlisserDeposer(false);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneFins::deplacementDansLaRangeePuisDehors()
{
    RangeeDEssai source(3);
    source.Expose();
    QSignalSpy mouvements(source.barre, &QTabBar::tabMoved);
    QSignalSpy fenetres(source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre);

    source.Presse(0);
    QPoint const suivant = source.DonnePoint(1, 0.1);
    for (int x = source.DonnePoint(0).x(); x < suivant.x(); x += 10)
        source.Deplace(QPoint(x, suivant.y()));
    QCOMPARE(mouvements.count(), 1);
    source.Deplace(source.DonneAuDessous());
    QCOMPARE(source.barre->tabToolTip(1), QString());
    QCOMPARE(source.DonneTitre(1), u"Onglet 0"_s);
    source.Relache(source.DonneAuDessous());

    QCOMPARE(fenetres.count(), 1);
    QCOMPARE(source.barre->currentIndex(), 1);
    QCOMPARE(source.barre->tabToolTip(1), u"Infobulle de Onglet 0"_s);
    QTRY_VERIFY(!TrouveOngletQtEnMouvement(*source.barre));
}

void tst_DTabBarInterneFins::autrePressePendantLeDeplacement()
{
    Scene scene;

    scene.source.Envoie(QEvent::MouseButtonPress, scene.cible->DonnePoint(1), Qt::RightButton,
                        Qt::LeftButton | Qt::RightButton);
    QVERIFY(scene.EstEnCours());
    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.depots.count(), 1);
    QCOMPARE(scene.depots.at(0).at(0).toInt(), 1);
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

// As the mouse itself sends it: the bar ignores it, and it goes on to the parents.
void tst_DTabBarInterneFins::autrePresseDeLaSouris()
{
    Scene scene;
    QPoint const point = scene.source.barre->mapFromGlobal(scene.cible->DonnePoint(1));

    QTest::mousePress(scene.source.barre, Qt::RightButton, {}, point);

    QVERIFY(scene.EstEnCours());
    QTest::mouseRelease(scene.source.barre, Qt::RightButton, {}, point);
}

void tst_DTabBarInterneFins::dialogueSurUneAutreFenetre()
{
    Scene scene;
    QDialog dialogue(scene.cible.get());

    dialogue.open(); // which blocks only that window

    QVERIFY(scene.EstEnCours());
}

void tst_DTabBarInterneFins::receveurQuiRecommence()
{
    Scene scene;
    QPoint const point = scene.cible->DonnePoint(2);
    connect(scene.source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre, &scene.source, [&] {
        scene.source.Presse(0);
        scene.source.Deplace(point);
    });

    scene.source.Deplace(scene.source.DonneAuDessous());
    scene.source.Relache(scene.source.DonneAuDessous());

    QVERIFY(scene.EstEnCours()); // the second one has kept its target
}

void tst_DTabBarInterneFins::presseGauchePerdue()
{
    Scene scene;

    scene.source.Presse(2); // the release never came
    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    scene.source.Relache(scene.source.DonnePoint(2));

    QCOMPARE(scene.CompteSignaux(), 0);
    QCOMPARE(scene.source.barre->currentIndex(), 2);
}

void tst_DTabBarInterneFins::boutonDuMilieu()
{
    RangeeDEssai source(2);
    source.barre->setMinimumWidth(500);
    source.Expose();
    QSignalSpy espion(source.barre, &QTabBar::tabCloseRequested);

    source.Presse(1, Qt::MiddleButton);
    source.Relache(source.DonnePoint(1), Qt::MiddleButton);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toInt(), 1);
    QCOMPARE(source.barre->count(), 2);

    source.Relache(source.barre->mapToGlobal(QPoint(480, 10)), Qt::MiddleButton);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).toInt(), -1);
}

void tst_DTabBarInterneFins::boutonDuMilieuPendantLeDeplacement()
{
    Scene scene;
    QSignalSpy espion(scene.source.barre, &QTabBar::tabCloseRequested);

    scene.source.Relache(scene.cible->DonnePoint(1), Qt::MiddleButton);

    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toInt(), -1);
    QVERIFY(scene.EstEnCours()); // the left button is still down
}

QTEST_MAIN(tst_DTabBarInterneFins)
#include "tst_DTabBarInterneFins.moc"
