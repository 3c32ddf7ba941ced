// tests/galerie/tst_FenetreOngletsX11.cpp
#include "BancOnglets.h"

#include "outils/EntreeX11.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDelai = 30'000;           // ms; for what the window manager does in its own time
constexpr unsigned kToucheMenu = 0xff67; // keysym

} // namespace

// Under a real window manager, with a mouse and a keyboard that it sees.
class tst_FenetreOngletsX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void tireDehorsEtRamene();
    void menuAuClavier();

private:
    bool Amene(std::function<QPoint()> const & point, std::function<bool()> const & condition);
    bool Tire(OngletsGalerie & onglets, int index);
    void Montre(FenetreGalerie & fenetre);

    EntreeX11 monEntree;
    BancOnglets monBanc;
};

void tst_FenetreOngletsX11::initTestCase()
{
    QVERIFY(monEntree.EstPrete());
}

void tst_FenetreOngletsX11::init()
{
    monBanc.Prepare();
}

void tst_FenetreOngletsX11::cleanup()
{
    monBanc.Range();
}

// The mouse goes there until that has the effect: the manager may still be moving a window.
bool tst_FenetreOngletsX11::Amene(std::function<QPoint()> const & point,
                                  std::function<bool()> const & condition)
{
    int essais = 0;
    auto const amene = [&] {
        monEntree.Deplace(point() + QPoint(++essais % 2, 0));
        return condition();
    };
    return QTest::qWaitFor(amene, kDelai);
}

// Presses the mouse on the tab, which becomes the current one.
bool tst_FenetreOngletsX11::Tire(OngletsGalerie & onglets, int index)
{
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QSignalSpy const presses(&barre, &QTabBar::tabBarClicked);
    auto const surLOnglet = [&] { return barre.mapToGlobal(barre.tabRect(index).center()); };
    auto const dessus = [&] {
        QWidget const * const widget = QApplication::widgetAt(QCursor::pos());
        return widget && (widget == &barre || barre.isAncestorOf(widget)) &&
               barre.tabAt(barre.mapFromGlobal(QCursor::pos())) == index;
    };
    if (!Amene(surLOnglet, dessus))
        return false;
    monEntree.Presse();
    return QTest::qWaitFor([&] { return presses.count() == 1; }, kDelai);
}

void tst_FenetreOngletsX11::Montre(FenetreGalerie & fenetre)
{
    fenetre.MontrePage(BancOnglets::kTextes);
    fenetre.setGeometry(60, 60, 700, 400);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre, kDelai));
    // A window that is torn off is given room for the frame that this one has: a busy window
    // manager may tell of it late.
    QTRY_VERIFY_WITH_TIMEOUT(fenetre.frameGeometry().height() > fenetre.height(), kDelai);
}

void tst_FenetreOngletsX11::tireDehorsEtRamene()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    Montre(fenetre);
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    DTabBarInterne & barre = BancOnglets::PreteBarre(onglets);
    QPointer<QLineEdit> const champ = fenetre.findChild<QLineEdit *>(u"filtreMessages"_s);
    champ->setFocus();
    champ->setText(u"ferme"_s);

    // Out of the window, to the bare desktop.
    QVERIFY(Tire(onglets, 1));
    QPoint const bureau = fenetre.screen()->geometry().bottomRight() - QPoint(500, 150);
    QVERIFY(Amene([&] { return bureau; }, [&] { return barre.EstEnDeplacementExterne(); }));
    monEntree.Relache();
    QTRY_COMPARE_WITH_TIMEOUT(BancOnglets::DonneDetachees().size(), 1, kDelai);
    QPointer<FenetreOnglets> const detachee = BancOnglets::DonneDetachees().first();
    QVERIFY(QTest::qWaitForWindowActive(detachee, kDelai));
    QVERIFY(champ);
    QCOMPARE(champ->window(), detachee);
    QTRY_VERIFY_WITH_TIMEOUT(champ->hasFocus(), kDelai);
    monEntree.Frappe('r'); // goes on where it was
    QTRY_COMPARE_WITH_TIMEOUT(champ->text(), u"fermer"_s, kDelai);
    QCOMPARE(BancOnglets::PreteListe(fenetre).currentRow(), int{BancOnglets::kTextes});
    QTRY_VERIFY_WITH_TIMEOUT(detachee->screen()->geometry().contains(detachee->frameGeometry()),
                             kDelai);

    // And back, onto the first tab's left half.
    DTabBarInterne & ailleurs = BancOnglets::PreteBarre(detachee->PreteOnglets());
    QPoint const acote = fenetre.frameGeometry().topRight() + QPoint(20, 0);
    detachee->move(acote);
    QTRY_COMPARE_WITH_TIMEOUT(detachee->pos(), acote, kDelai);
    QVERIFY(Tire(detachee->PreteOnglets(), 0));
    auto const devant = [&] { return barre.mapToGlobal(QPoint(15, barre.height() / 2)); };
    QVERIFY(Amene(devant, [&] { return !barre.DonnePositionIndicateur().isNull(); }));
    QVERIFY(ailleurs.EstEnDeplacementExterne());
    monEntree.Relache();
    QTRY_VERIFY_WITH_TIMEOUT(!detachee, kDelai);
    QCOMPARE(BancOnglets::DonnePages(onglets),
             (QList<int>{BancOnglets::kTextes, BancOnglets::kTheme}));
    QCOMPARE(onglets.DonneIndexCourant(), 0);
    QVERIFY(champ);
    QTRY_VERIFY_WITH_TIMEOUT(champ->hasFocus(), kDelai);
    monEntree.Frappe('e');
    QTRY_COMPARE_WITH_TIMEOUT(champ->text(), u"fermere"_s, kDelai);
}

void tst_FenetreOngletsX11::menuAuClavier()
{
    FenetreGalerie fenetre(monBanc.PreteTheme());
    Montre(fenetre);
    DTabBarInterne & barre = BancOnglets::PreteBarre(fenetre.PreteOnglets());
    barre.setFocus();
    QTRY_VERIFY_WITH_TIMEOUT(barre.hasFocus(), kDelai);

    monEntree.Frappe(kToucheMenu);
    QTRY_VERIFY_WITH_TIMEOUT(BancOnglets::PreteMenu(), kDelai);
    QVERIFY(QTest::qWaitForWindowExposed(BancOnglets::PreteMenu(), kDelai));
    monEntree.Frappe(EntreeX11::kRetour); // tears off, which is chosen already

    QTRY_COMPARE_WITH_TIMEOUT(BancOnglets::DonneDetachees().size(), 1, kDelai);
    QVERIFY(QTest::qWaitForWindowActive(BancOnglets::DonneDetachees().first(), kDelai));
    QCOMPARE(BancOnglets::DonnePages(BancOnglets::DonneDetachees().first()->PreteOnglets()),
             QList<int>{BancOnglets::kTextes});
}

QTEST_MAIN(tst_FenetreOngletsX11)
#include "tst_FenetreOngletsX11.moc"
