// tests/galerie/tst_FenetreOngletsMenus.cpp
#include "BancOnglets.h"

using namespace Qt::StringLiterals;

namespace {

// As the platforms that have the key do.
void EnvoieToucheMenu(QWidget & fenetre)
{
    QPoint const point = fenetre.rect().center();
    QContextMenuEvent evenement(QContextMenuEvent::Keyboard, point, fenetre.mapToGlobal(point));
    QCoreApplication::sendEvent(fenetre.windowHandle(), &evenement);
}

} // namespace

// The menu of a tab, and where the window that it opens stands.
class tst_FenetreOngletsMenus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void menuAuClavier_data();
    void menuAuClavier();
    void menuDunAutreOnglet();
    void entreesDuMenu();
    void positions();

private:
    QMenu * OuvreMenu(OngletsGalerie & onglets, int index);

    BancOnglets monBanc;
};

void tst_FenetreOngletsMenus::init()
{
    monBanc.Prepare();
}

void tst_FenetreOngletsMenus::cleanup()
{
    monBanc.Range();
}

QMenu * tst_FenetreOngletsMenus::OuvreMenu(OngletsGalerie & onglets, int index)
{
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QPoint const point = barre.tabRect(index).center();
    QContextMenuEvent evenement(QContextMenuEvent::Mouse, point, barre.mapToGlobal(point));
    QCoreApplication::sendEvent(&barre, &evenement);
    return BancOnglets::PreteMenu();
}

void tst_FenetreOngletsMenus::menuAuClavier_data()
{
    QTest::addColumn<bool>("toucheMenu");
    QTest::addColumn<bool>("surUnBouton");
    QTest::newRow("Menu key, on the bar") << true << false;
    QTest::newRow("Shift+F10, on the bar") << false << false;
    QTest::newRow("Menu key, on a close button") << true << true;
    QTest::newRow("Shift+F10, on a close button") << false << true;
}

void tst_FenetreOngletsMenus::menuAuClavier()
{
    QFETCH(bool, toucheMenu);
    QFETCH(bool, surUnBouton);
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    onglets.MetsIndexCourant(surUnBouton ? 0 : 1);
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QWidget * const foyer = surUnBouton ? barre.tabButton(1, QTabBar::RightSide) : &barre;
    foyer->setFocus();
    QVERIFY(foyer->hasFocus());

    if (toucheMenu)
        EnvoieToucheMenu(*fenetre);
    else
        QTest::keyClick(foyer, Qt::Key_F10, Qt::ShiftModifier);

    QTRY_VERIFY(BancOnglets::PreteMenu());
    QMenu * const menu = BancOnglets::PreteMenu();
    QCOMPARE(menu->activeAction(), menu->actions().constFirst());
    QRect const onglet(barre.mapToGlobal(barre.tabRect(1).topLeft()), barre.tabRect(1).size());
    QVERIFY(menu->geometry().intersects(onglet.adjusted(0, 0, 0, 2)));

    BancOnglets::Choisis(menu, u"&Détacher dans une nouvelle fenêtre"_s);

    QCOMPARE(BancOnglets::DonneDetachees().size(), 1);
    QCOMPARE(BancOnglets::DonnePages(BancOnglets::DonneDetachees().first()->PreteOnglets()),
             QList<int>{BancOnglets::kTextes});
}

// The mouse need not make a tab current to ask for its menu.
void tst_FenetreOngletsMenus::menuDunAutreOnglet()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();

    BancOnglets::Choisis(OuvreMenu(onglets, 0), u"&Fermer"_s);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kPolices}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);

    BancOnglets::Choisis(OuvreMenu(onglets, 0), u"&Détacher dans une nouvelle fenêtre"_s);
    QCOMPARE(BancOnglets::DonneDetachees().size(), 1);
    FenetreOnglets * const detachee = BancOnglets::DonneDetachees().first();

    QMenu * const menu = OuvreMenu(onglets, 0);
    QVERIFY(menu);
    QMenu * const envois = menu->actions().at(1)->menu();
    QVERIFY(envois);
    QCOMPARE(BancOnglets::DonneTextes(*envois), QStringList{detachee->windowTitle()});
    envois->actions().constFirst()->trigger();
    menu->close();
    QCOMPARE(BancOnglets::DonnePages(detachee->PreteOnglets()),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kPolices}));
    QCOMPARE(detachee->PreteOnglets().DonneIndexCourant(), 1);

    // Beside the tabs there is none.
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QContextMenuEvent evenement(QContextMenuEvent::Mouse, QPoint(-5, 5), QPoint());
    QCoreApplication::sendEvent(&barre, &evenement);
    QVERIFY(!BancOnglets::PreteMenu());
}

void tst_FenetreOngletsMenus::entreesDuMenu()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QMenu * menu = OuvreMenu(onglets, 0);
    QVERIFY(menu);
    // No other window to send it to.
    QCOMPARE(BancOnglets::DonneTextes(*menu),
             (QStringList{u"&Détacher dans une nouvelle fenêtre"_s, u"&Fermer"_s}));
    menu->close();

    FenetreOnglets * const premiere = BancOnglets::Detache(onglets, BancOnglets::kTextes);
    FenetreOnglets const * const seconde = BancOnglets::Detache(onglets, BancOnglets::kPolices);
    menu = OuvreMenu(premiere->PreteOnglets(), 0);
    QVERIFY(menu);
    QCOMPARE(BancOnglets::DonneTextes(*menu), (QStringList{u"&Détacher dans une nouvelle fenêtre"_s,
                                                           u"&Envoyer vers"_s, u"&Fermer"_s}));
    QVERIFY(!menu->actions().constFirst()->isEnabled()); // it has a window of its own
    QCOMPARE(BancOnglets::DonneTextes(*menu->actions().at(1)->menu()),
             (QStringList{fenetre->windowTitle(), seconde->windowTitle()}));
    menu->actions().at(1)->menu()->actions().constFirst()->trigger();
    menu->close();
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTheme, BancOnglets::kTextes}));
    QCOMPARE(onglets.DonneIndexCourant(), 1);
}

void tst_FenetreOngletsMenus::positions()
{
    auto const fenetre =
        monBanc.Ouvre({BancOnglets::kTheme, BancOnglets::kTextes, BancOnglets::kPolices});
    OngletsGalerie & onglets = fenetre->PreteOnglets();
    QRect const ecran = fenetre->screen()->availableGeometry();
    fenetre->move(ecran.topLeft() + QPoint(10, 10));

    // By the keyboard it stands beside the window, not over it.
    BancOnglets::Choisis(OuvreMenu(onglets, 1), u"&Détacher dans une nouvelle fenêtre"_s);
    QCOMPARE(BancOnglets::DonneDetachees().size(), 1);
    FenetreOnglets const * const premiere = BancOnglets::DonneDetachees().first();
    QVERIFY(premiere->pos() != fenetre->pos());
    QVERIFY(ecran.contains(premiere->frameGeometry()));

    // By the mouse it stands at the mouse, as far as it is on the screen.
    QCursor::setPos(ecran.bottomRight());
    FenetreOnglets const * const seconde = BancOnglets::Detache(onglets, BancOnglets::kPolices);
    QVERIFY(ecran.contains(seconde->frameGeometry()));
}

QTEST_MAIN(tst_FenetreOngletsMenus)
#include "tst_FenetreOngletsMenus.moc"
