// tests/noyau/tst_PlateformeFenetres.cpp
#include "noyau/plateforme/PlateformeFenetres.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
DWORD DonneMot(QColor const & couleur)
{
    return static_cast<DWORD>(couleur.red() | couleur.green() << 8 | couleur.blue() << 16);
}
} // namespace

class tst_PlateformeFenetres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void installeEtRemet();
    void coucheNulle();
    void couleurDePalette_data();
    void couleurDePalette();
    void couleurSansRole();
    void ordreZSimulay();
    void premierPlanSimulay();
    void fenetreLieesSimulees();
    void etatsSimules();
    void messagesSimules();
    void marqueurSimulay();
    void moniteursSimules();
    void poigneeMorteSimulee();
};

void tst_PlateformeFenetres::cleanup()
{
    PlateformeFenetres::Installe(nullptr);
}

void tst_PlateformeFenetres::installeEtRemet()
{
    PlateformeFenetres * const dorigine = &PlateformeFenetres::Courante();
    auto simulee = std::make_unique<FenetresSimulees>();
    PlateformeFenetres * const adresse = simulee.get();

    auto remplacee = PlateformeFenetres::Installe(std::move(simulee));
    QCOMPARE(remplacee.get(), dorigine);
    QCOMPARE(&PlateformeFenetres::Courante(), adresse);

    auto retiree = PlateformeFenetres::Installe(std::move(remplacee));
    QCOMPARE(retiree.get(), adresse);
    QCOMPARE(&PlateformeFenetres::Courante(), dorigine);

    // Null puts back a layer of the system, and the one that it replaces still comes out.
    QCOMPARE(PlateformeFenetres::Installe(nullptr).get(), dorigine);
    QVERIFY(PlateformeFenetres::Installe(nullptr) != nullptr);
}

void tst_PlateformeFenetres::coucheNulle()
{
    if (QSysInfo::kernelType() == "winnt"_L1)
        QSKIP("there is a layer whatever the plugin");
    PlateformeFenetres & couche = PlateformeFenetres::Courante();
    QWidget widget;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    HWND const fenetre = reinterpret_cast<HWND>(static_cast<quintptr>(widget.winId()));

    QCOMPARE(couche.GetForegroundWindow(), nullptr);
    QCOMPARE(couche.GetTopWindow(nullptr), nullptr);
    QCOMPARE(couche.GetWindow(fenetre, GW_HWNDNEXT), nullptr);
    QVERIFY(!couche.IsWindow(fenetre));
    QVERIFY(!couche.IsHungAppWindow(fenetre));
    QVERIFY(!couche.SetForegroundWindow(fenetre));
    QVERIFY(!couche.RegisterClassW(u"Marqueur"_s, CS_NOCLOSE, nullptr, 6));
    QCOMPARE(couche.CreateWindowExW(0, u"Marqueur"_s, {}, 0, 0, 0, 1, 1, nullptr), nullptr);
    QCOMPARE(couche.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, 0, 10'000, nullptr), LRESULT(0));
    DWORD processus = 7;
    QCOMPARE(couche.GetWindowThreadProcessId(fenetre, &processus), DWORD(0));
    QCOMPARE(processus, DWORD(0));
    QCOMPARE(couche.MonitorFromWindow(fenetre, MONITOR_DEFAULTTOPRIMARY), nullptr);
    QCOMPARE(couche.SetWindowLongPtrW(fenetre, GWLP_HWNDPARENT, 0), LONG_PTR(0));
    QCOMPARE(couche.DonneNomClasse(fenetre), QString());
    QCOMPARE(couche.GetWindowTextW(fenetre), QString());
    QCOMPARE(couche.DonneExecutable(fenetre), QString());
}

void tst_PlateformeFenetres::couleurDePalette_data()
{
    QTest::addColumn<int>("indice");
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::newRow("text") << COLOR_WINDOWTEXT << QPalette::Text;
    QTest::newRow("highlight") << COLOR_HIGHLIGHT << QPalette::Highlight;
    QTest::newRow("highlighted text") << COLOR_HIGHLIGHTTEXT << QPalette::HighlightedText;
}

void tst_PlateformeFenetres::couleurDePalette()
{
    QFETCH(int, indice);
    QFETCH(QPalette::ColorRole, role);
    QPalette const avant = QApplication::palette();
    QPalette palette = avant;
    palette.setColor(role, QColor(0x12, 0x34, 0x56));
    QApplication::setPalette(palette);

    FenetresSimulees couche;
    DWORD const couleur = couche.GetSysColor(indice);
    couche.couleurs.insert(indice, 0x00abcdef);

    QApplication::setPalette(avant);
    QCOMPARE(couleur, DWORD(0x00563412)); // red is in the low byte
    QCOMPARE(couche.GetSysColor(indice), DWORD(0x00abcdef));
    if (QSysInfo::kernelType() != "winnt"_L1)
        QCOMPARE(PlateformeFenetres::Courante().GetSysColor(indice),
                 DonneMot(avant.color(QPalette::Active, role)));
}

void tst_PlateformeFenetres::couleurSansRole()
{
    FenetresSimulees couche;
    QCOMPARE(couche.GetSysColor(99), DWORD(0));
}

void tst_PlateformeFenetres::ordreZSimulay()
{
    FenetresSimulees couche;
    HWND const dessous = couche.Ajoute({u"Dessous"_s});
    HWND const milieu = couche.Ajoute({u"Milieu"_s});
    HWND const dessus = couche.Ajoute({u"Dessus"_s});
    QCOMPARE(couche.DonnePile(), (std::vector<HWND>{dessus, milieu, dessous}));
    QCOMPARE(couche.GetTopWindow(nullptr), dessus);
    QCOMPARE(couche.GetWindow(dessus, GW_HWNDNEXT), milieu);
    QCOMPARE(couche.GetWindow(dessous, GW_HWNDNEXT), nullptr);
    QCOMPARE(couche.GetWindow(milieu, GW_HWNDPREV), dessus);
    QCOMPARE(couche.GetWindow(dessus, GW_HWNDPREV), nullptr);
    QCOMPARE(couche.GetWindow(milieu, GW_HWNDFIRST), dessus);
    QCOMPARE(couche.GetWindow(milieu, GW_HWNDLAST), dessous);

    QVERIFY(couche.BringWindowToTop(dessous));
    QVERIFY(couche.SetWindowPos(dessus, milieu, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));

    QCOMPARE(couche.DonnePile(), (std::vector<HWND>{dessous, milieu, dessus}));
    QCOMPARE(couche.appels,
             (QStringList{u"BringWindowToTop(Dessous)"_s, u"SetWindowPos(Dessus, Milieu, 0x3)"_s}));
}

void tst_PlateformeFenetres::premierPlanSimulay()
{
    FenetresSimulees couche;
    HWND const dessous = couche.Ajoute({u"Dessous"_s});
    HWND const dessus = couche.Ajoute({u"Dessus"_s});
    constexpr UINT kRien = SWP_NOMOVE | SWP_NOSIZE;

    QVERIFY(couche.SetWindowPos(dessous, HWND_TOPMOST, 0, 0, 0, 0, kRien));
    QVERIFY(couche.BringWindowToTop(dessus)); // stays under the topmost one
    QCOMPARE(couche.DonnePile(), (std::vector<HWND>{dessous, dessus}));
    QVERIFY(couche.GetWindowLongPtrW(dessous, GWL_EXSTYLE) & WS_EX_TOPMOST);
    QVERIFY(couche.SetWindowPos(dessous, HWND_NOTOPMOST, 0, 0, 0, 0, kRien));
    QVERIFY(!(couche.GetWindowLongPtrW(dessous, GWL_EXSTYLE) & WS_EX_TOPMOST));
    QCOMPARE(couche.GetTopWindow(nullptr), dessous);
    QCOMPARE(couche.appels.last(), u"SetWindowPos(Dessous, HWND_NOTOPMOST, 0x3)"_s);

    QVERIFY(couche.SetForegroundWindow(dessus));
    QCOMPARE(couche.GetForegroundWindow(), dessus);
    couche.refuseAvantPlan = true;
    QVERIFY(!couche.SetForegroundWindow(dessous));
    QCOMPARE(couche.GetForegroundWindow(), dessus);
}

void tst_PlateformeFenetres::fenetreLieesSimulees()
{
    FenetresSimulees couche;
    HWND const principale = couche.Ajoute({u"Principale"_s});
    HWND const dialogue = couche.Ajoute({.classe = u"Dialogue"_s, .proprietaire = principale});
    HWND const cadre = couche.Ajoute({.classe = u"Cadre"_s, .parent = principale});
    HWND const liste = couche.Ajoute({.classe = u"Liste"_s, .parent = cadre});

    QCOMPARE(couche.GetParent(principale), nullptr);
    QCOMPARE(couche.GetParent(dialogue), principale);
    QCOMPARE(couche.GetWindow(dialogue, GW_OWNER), principale);
    QCOMPARE(couche.GetParent(liste), cadre);
    QCOMPARE(couche.GetWindow(liste, GW_OWNER), nullptr);
    QCOMPARE(couche.GetWindow(principale, GW_CHILD), cadre);
    QCOMPARE(couche.DonnePile(), (std::vector<HWND>{dialogue, principale}));
    QVERIFY(couche.GetWindowLongPtrW(liste, GWL_STYLE) & WS_CHILD);
    QCOMPARE(couche.DonneEnfantDeClasse(principale, u"liste"_s), liste);
    QCOMPARE(couche.DonneEnfantDeClasse(principale, u"Dialogue"_s), nullptr);
    QCOMPARE(couche.DonneEnfantDeClasse(nullptr, u"Liste"_s), nullptr);

    HWND const autre = couche.Ajoute({u"Autre"_s});
    QCOMPARE(couche.SetWindowLongPtrW(dialogue, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(autre)),
             reinterpret_cast<LONG_PTR>(principale));
    QCOMPARE(couche.GetWindow(dialogue, GW_OWNER), autre);
    QCOMPARE(couche.appels, QStringList{u"SetWindowLongPtrW(Dialogue, -8, Autre)"_s});
}

void tst_PlateformeFenetres::etatsSimules()
{
    FenetresSimulees couche;
    HWND const fenetre = couche.Ajoute({.classe = u"Editeur"_s, .client = {10, 20, 300, 200}});
    QVERIFY(couche.IsWindowVisible(fenetre));
    QVERIFY(couche.ShowWindow(fenetre, SW_MINIMIZE));
    QVERIFY(couche.IsIconic(fenetre));
    QVERIFY(couche.IsWindowVisible(fenetre));
    QVERIFY(couche.ShowWindow(fenetre, SW_RESTORE));
    QVERIFY(!couche.IsIconic(fenetre));
    QVERIFY(couche.ShowWindow(fenetre, SW_HIDE));
    QVERIFY(!couche.IsWindowVisible(fenetre));
    QVERIFY(!couche.ShowWindow(fenetre, SW_SHOW));
    QVERIFY(couche.IsWindowVisible(fenetre));

    RECT rect{};
    QVERIFY(couche.GetClientRect(fenetre, &rect));
    QCOMPARE(QSize(rect.right, rect.bottom), QSize(300, 200));
    POINT point{1, 2};
    QVERIFY(couche.ClientToScreen(fenetre, &point));
    QCOMPARE(QPoint(point.x, point.y), QPoint(11, 22));
    DWORD processus = 0;
    QCOMPARE(couche.GetWindowThreadProcessId(fenetre, &processus), FenetresSimulees::kAutreThread);
    QCOMPARE(processus, FenetresSimulees::kAutreProcessus);
}

void tst_PlateformeFenetres::messagesSimules()
{
    FenetresSimulees couche;
    HWND const fenetre = couche.Ajoute({u"Editeur"_s});
    QVERIFY(couche.PostMessageW(fenetre, WM_KEYDOWN, 0xe9, 0x1E0001));
    QVERIFY(couche.PostMessageW(fenetre, WM_KEYUP, 0xe9, LPARAM(0xC01E0001)));
    QCOMPARE(couche.DonneTexteRecu(fenetre), u"é"_s);
    QCOMPARE(couche.appels, (QStringList{u"PostMessageW(Editeur, 0x100, 0xe9, 0x1e0001)"_s,
                                         u"PostMessageW(Editeur, 0x101, 0xe9, 0xc01e0001)"_s}));

    QVERIFY(couche.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr));
    couche.Prete(fenetre).gelee = true;
    QVERIFY(couche.IsHungAppWindow(fenetre));
    QVERIFY(!couche.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr));
    QCOMPARE(couche.appels.last(), u"SendMessageTimeoutW(Editeur, 0x0, 0x2, 5000)"_s);

    QVERIFY(couche.AttachThreadInput(101, 201, true));
    QVERIFY(!couche.AttachThreadInput(101, 101, true));
    couche.refuseAttachement = true;
    QVERIFY(!couche.AttachThreadInput(101, 201, false));
    QCOMPARE(couche.appels.last(), u"AttachThreadInput(101, 201, false)"_s);
}

void tst_PlateformeFenetres::marqueurSimulay()
{
    FenetresSimulees couche;
    HINSTANCE const module = couche.GetModuleHandleW();
    QCOMPARE(couche.CreateWindowExW(0, u"Marqueur"_s, {}, 0, 0, 0, 1, 1, module), nullptr);
    QVERIFY(couche.RegisterClassW(u"Marqueur"_s, CS_NOCLOSE, module, 6));
    QVERIFY(!couche.RegisterClassW(u"marqueur"_s, CS_NOCLOSE, module, 6));
    HWND const marqueur = couche.CreateWindowExW(WS_EX_TOOLWINDOW, u"Marqueur"_s, u"Titre"_s,
                                                 WS_DISABLED, -11211, -11211, 1, 1, module);
    QVERIFY(marqueur);
    QCOMPARE(couche.appels.last(),
             u"CreateWindowExW(0x80, Marqueur, Titre, 0x8000000, -11211, -11211, 1, 1)"_s);
    QVERIFY(!couche.IsWindowVisible(marqueur));
    QCOMPARE(couche.FindWindowW(u"MARQUEUR"_s, {}), marqueur);
    QCOMPARE(couche.FindWindowW(u"Marqueur"_s, u"Autre"_s), nullptr);
    QVERIFY(!couche.UnregisterClassW(u"Marqueur"_s, module));
    QVERIFY(couche.DestroyWindow(marqueur));
    QVERIFY(couche.UnregisterClassW(u"Marqueur"_s, module));

    HWND const etrangere = couche.Ajoute({u"Editeur"_s});
    QVERIFY(!couche.DestroyWindow(etrangere));
}

void tst_PlateformeFenetres::moniteursSimules()
{
    FenetresSimulees couche;
    HWND const fenetre = couche.Ajoute({u"Editeur"_s});
    QCOMPARE(couche.MonitorFromWindow(fenetre, MONITOR_DEFAULTTOPRIMARY), nullptr);
    HMONITOR const premier =
        couche.AjouteMoniteur({u"DP-1"_s, {0, 0, 1920, 1080}, {0, 0, 1920, 1040}});
    HMONITOR const second =
        couche.AjouteMoniteur({u"DP-2"_s, {1920, 0, 800, 600}, {1920, 0, 800, 600}});
    QCOMPARE(couche.MonitorFromWindow(fenetre, MONITOR_DEFAULTTONULL), nullptr);
    QCOMPARE(couche.MonitorFromWindow(fenetre, MONITOR_DEFAULTTONEAREST), premier);
    couche.Prete(fenetre).moniteur = second;
    QCOMPARE(couche.MonitorFromWindow(fenetre, MONITOR_DEFAULTTONULL), second);

    PlateformeFenetres::InfosMoniteur infos;
    QVERIFY(couche.GetMonitorInfoW(second, &infos));
    QCOMPARE(infos.nom, u"DP-2"_s);
    QCOMPARE(infos.geometrie, QRect(1920, 0, 800, 600));
    QVERIFY(!couche.GetMonitorInfoW(nullptr, &infos));
}

void tst_PlateformeFenetres::poigneeMorteSimulee()
{
    FenetresSimulees couche;
    HWND const fenetre = couche.Ajoute({u"Editeur"_s});
    couche.SetForegroundWindow(fenetre);
    couche.Retire(fenetre);
    QVERIFY(!couche.IsWindow(fenetre));
    QCOMPARE(couche.GetForegroundWindow(), nullptr);
    QCOMPARE(couche.GetFocus(), nullptr);
    QCOMPARE(couche.GetWindow(fenetre, GW_HWNDNEXT), nullptr);
    QCOMPARE(couche.GetParent(fenetre), nullptr);
    QVERIFY(!couche.SetForegroundWindow(fenetre));
    QVERIFY(!couche.PostMessageW(fenetre, WM_CHAR, U'a', 0));
    QCOMPARE(couche.DonneNomClasse(fenetre), QString());
    QCOMPARE(couche.GetWindowTextW(fenetre), QString());
}

QTEST_MAIN(tst_PlateformeFenetres)
#include "tst_PlateformeFenetres.moc"
