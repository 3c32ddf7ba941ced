// navigation/tst_DTabBarInterneFins.cpp
// The endings of a drag, and what happens to the tabs while one is under way.
#include "RangeeDEssai.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QPoint kPlaceCible(40, 300);

/// A bar of four tabs whose tab 1 is being dragged, over the second bar.
struct Scene
{
    Scene()
    {
        source.Expose();
        cible->Expose();
        infobulles = source.DonneInfobulles();
        source.Presse(1);
        source.Deplace(cible->DonnePoint(1));
    }
    bool EstEnCours() const
    {
        return source.barre->EstEnDeplacementExterne() && TrouveFantome() &&
               !cible->barre->DonnePositionIndicateur().isNull();
    }
    /// All but the tool tips.
    bool EstAuRepos() const
    {
        return !source.barre->EstEnDeplacementExterne() && !TrouveFantome() &&
               (!cible || cible->barre->DonnePositionIndicateur().isNull());
    }
    int CompteSignaux() const { return depots.count() + fenetres.count(); }

    RangeeDEssai source{4};
    std::unique_ptr<RangeeDEssai> cible = std::make_unique<RangeeDEssai>(3, "groupe", kPlaceCible);
    QStringList infobulles;
    QSignalSpy depots{source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne};
    QSignalSpy fenetres{source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre};
};

// The picture that Qt moves inside the row: the only child without a class of its own.
QWidget * TrouveOngletQtEnMouvement(QTabBar const & barre)
{
    auto const enfants = barre.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget * const enfant : enfants)
        if (enfant->isVisible() && enfant->metaObject() == &QWidget::staticMetaObject)
            return enfant;
    return nullptr;
}

} // namespace

class tst_DTabBarInterneFins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void relacheSurUneCible();
    void relacheAilleurs();
    void relacheDUnAutreBouton();
    void retourDansLaBarre();
    void retourPuisNouvelleSortie();
    void echappement_data();
    void echappement();
    void echappementSansDeplacement();
    void finForcee_data();
    void finForcee();
    void permissionRetiree();
    void cibleDetruite();
    void cibleFermee();
    void barreDetruiteEnDeplacement();
    void ongletTraineRetire();
    void dernierOngletRetire();
    void ongletsAvantRetiresEtInseres();
    void ongletsDeplacesParLHote_data();
    void ongletsDeplacesParLHote();
    void deplacementDansLaRangeePuisDehors();
    void deplacementQtNeLaisseRien_data();
    void deplacementQtNeLaisseRien();
    void retraitPendantLaPresseDansLaRangee();
    void autrePressePendantLeDeplacement();
    void presseGauchePerdue();
    void receveurDetruitLaBarre_data();
    void receveurDetruitLaBarre();
    void receveurRetireLOnglet();
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

void tst_DTabBarInterneFins::permissionRetiree()
{
    Scene scene;

    scene.source.barre->MetsPeutGlisserDeposer(false);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
}

void tst_DTabBarInterneFins::cibleDetruite()
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

void tst_DTabBarInterneFins::cibleFermee()
{
    Scene scene;
    QPoint const point = scene.cible->DonnePoint(1);

    scene.cible->close();
    scene.source.Relache(point);

    QVERIFY(scene.EstAuRepos());
    QCOMPARE(scene.depots.count(), 0); // a page would vanish in it
    QCOMPARE(scene.fenetres.count(), 1);
}

void tst_DTabBarInterneFins::barreDetruiteEnDeplacement()
{
    auto source = std::make_unique<RangeeDEssai>(2);
    RangeeDEssai cible(2, "groupe", kPlaceCible);
    source->Expose();
    cible.Expose();
    source->Presse(1);
    source->Deplace(cible.DonnePoint(1));
    QPointer<QWidget> const fantome = TrouveFantome();
    QVERIFY(fantome);

    source.reset();

    QVERIFY(!fantome);
    QVERIFY(cible.barre->DonnePositionIndicateur().isNull());
    QTest::keyClick(&cible, Qt::Key_Escape); // nobody is left to catch it
}

void tst_DTabBarInterneFins::ongletTraineRetire()
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

void tst_DTabBarInterneFins::dernierOngletRetire()
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

void tst_DTabBarInterneFins::ongletsAvantRetiresEtInseres()
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

void tst_DTabBarInterneFins::ongletsDeplacesParLHote_data()
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

void tst_DTabBarInterneFins::ongletsDeplacesParLHote()
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

void tst_DTabBarInterneFins::deplacementQtNeLaisseRien_data()
{
    QTest::addColumn<QString>("fin");
    for (auto const * fin : {"release", "Escape", "hidden", "disabled", "dragged tab removed",
                             "tab before it removed", "tab inserted before it"})
        QTest::newRow(fin) << QString::fromLatin1(fin);
}

void tst_DTabBarInterneFins::deplacementQtNeLaisseRien()
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
void tst_DTabBarInterneFins::retraitPendantLaPresseDansLaRangee()
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

void tst_DTabBarInterneFins::receveurDetruitLaBarre_data()
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

void tst_DTabBarInterneFins::receveurDetruitLaBarre()
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

void tst_DTabBarInterneFins::receveurRetireLOnglet()
{
    Scene scene;
    connect(scene.source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne, &scene.source,
            [&scene](int index) { scene.source.barre->removeTab(index); });
    scene.infobulles.removeAt(1);

    scene.source.Relache(scene.cible->DonnePoint(1));

    QCOMPARE(scene.source.DonneInfobulles(), scene.infobulles);
    QVERIFY(scene.EstAuRepos());
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
