// tests/noyau/tst_PlateformeFenetresX11Seul.cpp
#include "noyau/plateforme/PlateformeFenetres.h"
#include "outils/ProgrammeEtranger.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDelai = 30'000; // ms
}

// An X server without a window manager, as in a kiosk: the server itself does what it can.
class tst_PlateformeFenetresX11Seul : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ordreZ();
    void avantPlan();
    void styles();
    void deplaceEtCache();
    void sansGestionnaireRienNEstIconique();

private:
    /// The next lower window that is shown: programs keep others, which only a manager leaves out.
    HWND DonneSuivante(HWND fenetre) const;

    PlateformeFenetres & maPlateforme = PlateformeFenetres::Courante();
    std::unique_ptr<ProgrammeEtranger> monProgramme;
    HWND maPremiere = nullptr;
    HWND maSeconde = nullptr; // opened last: on top
};

void tst_PlateformeFenetresX11Seul::init()
{
    monProgramme = std::make_unique<ProgrammeEtranger>(u"EditeurEtranger"_s);
    maPremiere = monProgramme->DemandePoignee(u"fenetre Premiere"_s);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(maPremiere), kDelai);
    maSeconde = monProgramme->DemandePoignee(u"fenetre Seconde"_s);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(maSeconde), kDelai);
}

void tst_PlateformeFenetresX11Seul::cleanup()
{
    monProgramme.reset();
}

HWND tst_PlateformeFenetresX11Seul::DonneSuivante(HWND fenetre) const
{
    do
        fenetre = maPlateforme.GetWindow(fenetre, GW_HWNDNEXT);
    while (fenetre && !maPlateforme.IsWindowVisible(fenetre));
    return fenetre;
}

void tst_PlateformeFenetresX11Seul::ordreZ()
{
    QCOMPARE(DonneSuivante(maSeconde), maPremiere);
    QCOMPARE(maPlateforme.GetTopWindow(nullptr), maSeconde);

    QVERIFY(maPlateforme.BringWindowToTop(maPremiere));
    QCOMPARE(DonneSuivante(maPremiere), maSeconde);
    QVERIFY(maPlateforme.SetWindowPos(maPremiere, maSeconde, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    QCOMPARE(DonneSuivante(maSeconde), maPremiere);
}

void tst_PlateformeFenetresX11Seul::avantPlan()
{
    QVERIFY(maPlateforme.SetForegroundWindow(maPremiere));
    QCOMPARE(maPlateforme.GetForegroundWindow(), maPremiere);
    QCOMPARE(maPlateforme.GetFocus(), maPremiere);
    QVERIFY(maPlateforme.SetForegroundWindow(maSeconde));
    QCOMPARE(maPlateforme.GetForegroundWindow(), maSeconde);
}

void tst_PlateformeFenetresX11Seul::styles()
{
    QCOMPARE(static_cast<DWORD>(maPlateforme.GetWindowLongPtrW(maPremiere, GWL_EXSTYLE)),
             WS_EX_APPWINDOW);
    auto const style = static_cast<DWORD>(maPlateforme.GetWindowLongPtrW(maPremiere, GWL_STYLE));
    QCOMPARE(style & (WS_POPUP | WS_CHILD | WS_SYSMENU | WS_VISIBLE), WS_SYSMENU | WS_VISIBLE);
}

void tst_PlateformeFenetresX11Seul::deplaceEtCache()
{
    QVERIFY(maPlateforme.SetWindowPos(maPremiere, nullptr, 12, 34, 156, 178, SWP_NOZORDER));
    POINT point{};
    RECT rect{};
    QVERIFY(maPlateforme.ClientToScreen(maPremiere, &point));
    QVERIFY(maPlateforme.GetClientRect(maPremiere, &rect));
    QCOMPARE(QRect(point.x, point.y, rect.right, rect.bottom), QRect(12, 34, 156, 178));

    QVERIFY(maPlateforme.ShowWindow(maPremiere, SW_HIDE));
    QVERIFY(!maPlateforme.IsWindowVisible(maPremiere));
    QVERIFY(!maPlateforme.ShowWindow(maPremiere, SW_RESTORE));
    QVERIFY(maPlateforme.IsWindowVisible(maPremiere));
}

void tst_PlateformeFenetresX11Seul::sansGestionnaireRienNEstIconique()
{
    QVERIFY(maPlateforme.ShowWindow(maPremiere, SW_MINIMIZE));
    QVERIFY(!maPlateforme.IsIconic(maPremiere));
    // Nobody keeps a window above the others.
    QVERIFY(
        !maPlateforme.SetWindowPos(maPremiere, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
}

QTEST_MAIN(tst_PlateformeFenetresX11Seul)
#include "tst_PlateformeFenetresX11Seul.moc"
