// tests/noyau/tst_PlateformeFenetresX11.cpp
#include "noyau/plateforme/PlateformeFenetres.h"
#include "outils/ProgrammeEtranger.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time

HWND DonnePoignee(QWidget const & widget)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(static_cast<quintptr>(widget.winId()));
}
} // namespace

class tst_PlateformeFenetresX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void trouveParClasseEtTitre();
    void identifieLeProgramme();
    void parcourtOrdreZ();
    void changeAvantPlan();
    void empileSansActiver();
    void premierPlanPuisNormal();
    void iconiseEtRestaure();
    void cacheEtMontre();
    void styles();
    void chefVisible();
    void chefGereSansEtreAffiche();
    void activeQuandRienNEstActif();
    void enfants();
    void gel();
    void gelNotrePropreFenetre();
    void envoieCaractere_data();
    void envoieCaractere();
    void appuiPuisRelachement();
    void fermeParMessage();
    void marqueur();
    void marqueurDesAutres();
    void geometrie();
    void deplace();
    void moniteur();
    void focusEtAttachement();
    void fenetreToutJusteCreee();
    void poigneesMortes_data();
    void poigneesMortes();

private:
    /// A foreign window, shown and in front; null when that did not come about.
    HWND Ouvre(QString const & titre, QString const & genre = u"fenetre"_s);
    DWORD DonneStyle(HWND fenetre) const;
    DWORD DonneStyleEtendu(HWND fenetre) const;

    PlateformeFenetres & maPlateforme = PlateformeFenetres::Courante();
    std::unique_ptr<ProgrammeEtranger> monProgramme;
};

void tst_PlateformeFenetresX11::init()
{
    monProgramme = std::make_unique<ProgrammeEtranger>(u"EditeurEtranger"_s);
}

void tst_PlateformeFenetresX11::cleanup()
{
    monProgramme.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_PlateformeFenetresX11::Ouvre(QString const & titre, QString const & genre)
{
    HWND const fenetre = monProgramme->DemandePoignee(genre + u' ' + titre);
    // The manager says these in an order of its own.
    bool const devant = QTest::qWaitFor(
        [&] {
            return maPlateforme.GetForegroundWindow() == fenetre &&
                   maPlateforme.GetTopWindow(nullptr) == fenetre &&
                   maPlateforme.IsWindowVisible(fenetre);
        },
        kDelai);
    return devant ? fenetre : nullptr;
}

DWORD tst_PlateformeFenetresX11::DonneStyle(HWND fenetre) const
{
    return static_cast<DWORD>(maPlateforme.GetWindowLongPtrW(fenetre, GWL_STYLE));
}

DWORD tst_PlateformeFenetresX11::DonneStyleEtendu(HWND fenetre) const
{
    return static_cast<DWORD>(maPlateforme.GetWindowLongPtrW(fenetre, GWL_EXSTYLE));
}

void tst_PlateformeFenetresX11::trouveParClasseEtTitre()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);

    QCOMPARE(maPlateforme.DonneNomClasse(fenetre), u"EditeurEtranger"_s);
    QCOMPARE(maPlateforme.GetWindowTextW(fenetre), u"Brouillon"_s);
    QCOMPARE(maPlateforme.FindWindowW(u"EditeurEtranger"_s, {}), fenetre);
    QCOMPARE(maPlateforme.FindWindowW(u"editeurETRANGER"_s, u"brouillon"_s), fenetre);
    QCOMPARE(maPlateforme.FindWindowW({}, u"Brouillon"_s), fenetre);
    QCOMPARE(maPlateforme.FindWindowW(u"EditeurEtranger"_s, u"Autre"_s), nullptr);
    QVERIFY(maPlateforme.IsWindow(fenetre));
    QVERIFY(maPlateforme.IsWindowVisible(fenetre));
    QVERIFY(!maPlateforme.IsIconic(fenetre));
}

void tst_PlateformeFenetresX11::identifieLeProgramme()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);

    DWORD processus = 0;
    DWORD const thread = maPlateforme.GetWindowThreadProcessId(fenetre, &processus);
    QCOMPARE(processus, monProgramme->DonneNumero());
    QCOMPARE(thread, processus);
    QVERIFY(thread != maPlateforme.GetCurrentThreadId());
    QCOMPARE(QFileInfo(maPlateforme.DonneExecutable(fenetre)).canonicalFilePath(),
             QFileInfo(monProgramme->DonneChemin()).canonicalFilePath());
}

void tst_PlateformeFenetresX11::parcourtOrdreZ()
{
    HWND const dessous = Ouvre(u"Dessous"_s);
    HWND const milieu = Ouvre(u"Milieu"_s);
    HWND const dessus = Ouvre(u"Dessus"_s);
    QVERIFY(dessous && milieu && dessus);

    QTRY_COMPARE(maPlateforme.GetTopWindow(nullptr), dessus);
    QCOMPARE(maPlateforme.GetTopWindow(maPlateforme.GetDesktopWindow()), dessus);
    QCOMPARE(maPlateforme.GetWindow(dessus, GW_HWNDNEXT), milieu);
    QCOMPARE(maPlateforme.GetWindow(milieu, GW_HWNDNEXT), dessous);
    QCOMPARE(maPlateforme.GetWindow(dessous, GW_HWNDNEXT), nullptr);
    QCOMPARE(maPlateforme.GetWindow(dessous, GW_HWNDPREV), milieu);
    QCOMPARE(maPlateforme.GetWindow(dessus, GW_HWNDPREV), nullptr);
    QCOMPARE(maPlateforme.GetWindow(milieu, GW_HWNDFIRST), dessus);
    QCOMPARE(maPlateforme.GetWindow(milieu, GW_HWNDLAST), dessous);
    QCOMPARE(maPlateforme.GetWindow(milieu, 99), nullptr);
}

void tst_PlateformeFenetresX11::changeAvantPlan()
{
    HWND const premiere = Ouvre(u"Premiere"_s);
    HWND const seconde = Ouvre(u"Seconde"_s);
    QVERIFY(premiere && seconde);

    QVERIFY(maPlateforme.SetForegroundWindow(premiere));

    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetForegroundWindow(), premiere, kDelai);
}

void tst_PlateformeFenetresX11::empileSansActiver()
{
    HWND const premiere = Ouvre(u"Premiere"_s);
    HWND const seconde = Ouvre(u"Seconde"_s);
    QVERIFY(premiere && seconde);
    constexpr UINT kRien = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

    QVERIFY(maPlateforme.BringWindowToTop(premiere));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), premiere, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(premiere, HWND_BOTTOM, 0, 0, 0, 0, kRien));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), seconde, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(premiere, HWND_TOP, 0, 0, 0, 0, kRien));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), premiere, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(premiere, seconde, 0, 0, 0, 0, kRien));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), seconde, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(premiere, HWND_TOP, 0, 0, 0, 0, kRien | SWP_NOZORDER));

    QCOMPARE(maPlateforme.GetForegroundWindow(), seconde);
    QCOMPARE(maPlateforme.GetTopWindow(nullptr), seconde);
}

void tst_PlateformeFenetresX11::premierPlanPuisNormal()
{
    HWND const premiere = Ouvre(u"Premiere"_s);
    HWND const seconde = Ouvre(u"Seconde"_s);
    QVERIFY(premiere && seconde);
    constexpr UINT kRien = SWP_NOMOVE | SWP_NOSIZE;

    QVERIFY(maPlateforme.SetWindowPos(premiere, HWND_TOPMOST, 0, 0, 0, 0, kRien));
    QTRY_VERIFY_WITH_TIMEOUT(DonneStyleEtendu(premiere) & WS_EX_TOPMOST, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(premiere, HWND_NOTOPMOST, 0, 0, 0, 0, kRien));
    QTRY_VERIFY_WITH_TIMEOUT(!(DonneStyleEtendu(premiere) & WS_EX_TOPMOST), kDelai);
    QCOMPARE(maPlateforme.GetTopWindow(nullptr), premiere);

    // The pair in one go, before the manager has come to the first of the two.
    QVERIFY(maPlateforme.SetWindowPos(seconde, HWND_TOPMOST, 0, 0, 0, 0, kRien));
    QVERIFY(maPlateforme.SetWindowPos(seconde, HWND_NOTOPMOST, 0, 0, 0, 0, kRien));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), seconde, kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!(DonneStyleEtendu(seconde) & WS_EX_TOPMOST), kDelai);
}

void tst_PlateformeFenetresX11::iconiseEtRestaure()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    HWND const autre = Ouvre(u"Autre"_s);
    QVERIFY(fenetre && autre);

    QVERIFY(maPlateforme.ShowWindow(fenetre, SW_MINIMIZE));
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(fenetre), kDelai);
    QVERIFY(maPlateforme.IsWindowVisible(fenetre));
    QCOMPARE(DonneStyle(fenetre) & (WS_MINIMIZE | WS_VISIBLE), WS_MINIMIZE | WS_VISIBLE);

    QVERIFY(maPlateforme.ShowWindow(fenetre, SW_RESTORE));
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsIconic(fenetre), kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetForegroundWindow(), fenetre, kDelai);
}

void tst_PlateformeFenetresX11::cacheEtMontre()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);

    QVERIFY(maPlateforme.ShowWindow(fenetre, SW_HIDE));
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsWindowVisible(fenetre), kDelai);
    QVERIFY(maPlateforme.IsWindow(fenetre));
    // The manager lets go of the window in its own time; until then it would take the wish to show
    // it again for its own doing.
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), nullptr, kDelai);
    QVERIFY(!maPlateforme.ShowWindow(fenetre, SW_SHOW));
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(fenetre), kDelai);
}

void tst_PlateformeFenetresX11::styles()
{
    constexpr DWORD kGenre = WS_POPUP | WS_CHILD | WS_SYSMENU;
    HWND const principale = Ouvre(u"Principale"_s);
    QVERIFY(principale);
    QCOMPARE(DonneStyle(principale) & kGenre, WS_SYSMENU);
    QCOMPARE(DonneStyleEtendu(principale), WS_EX_APPWINDOW);
    QCOMPARE(maPlateforme.GetParent(principale), nullptr);

    HWND const dialogue = Ouvre(u"Question"_s, u"dialogue"_s);
    QVERIFY(dialogue);
    QCOMPARE(DonneStyle(dialogue) & kGenre, WS_POPUP);
    QCOMPARE(DonneStyleEtendu(dialogue), DWORD(0));
    QCOMPARE(maPlateforme.GetParent(dialogue), principale);
    QCOMPARE(maPlateforme.GetWindow(dialogue, GW_OWNER), principale);

    // A dialog without a parent belongs to no window, as on the other platform.
    HWND const orphelin = Ouvre(u"Avis"_s, u"orphelin"_s);
    QVERIFY(orphelin);
    QCOMPARE(maPlateforme.GetParent(orphelin), nullptr);
    QCOMPARE(maPlateforme.GetWindow(orphelin, GW_OWNER), nullptr);

    HWND const outil = monProgramme->DemandePoignee(u"outil Palette"_s);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(outil), kDelai);
    QVERIFY(DonneStyleEtendu(outil) & WS_EX_TOOLWINDOW);
    QVERIFY(!(DonneStyleEtendu(outil) & WS_EX_APPWINDOW));

    HWND const menu = monProgramme->DemandePoignee(u"menu Contextuel"_s);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(menu), kDelai);
    QCOMPARE(DonneStyle(menu) & kGenre, WS_POPUP);
    QCOMPARE(DonneStyleEtendu(menu), WS_EX_TOOLWINDOW | WS_EX_TOPMOST);
    QCOMPARE(maPlateforme.GetWindow(menu, GW_HWNDNEXT), maPlateforme.GetTopWindow(nullptr));
    QCOMPARE(maPlateforme.GetWindow(menu, GW_HWNDPREV), nullptr);

    QCOMPARE(monProgramme->Demande(u"opacite Principale"_s), u"ok"_s);
    QTRY_VERIFY_WITH_TIMEOUT(DonneStyleEtendu(principale) & WS_EX_LAYERED, kDelai);
}

void tst_PlateformeFenetresX11::chefVisible()
{
    HWND const principale = Ouvre(u"Principale"_s);
    QVERIFY(principale);
    HWND const dialogue = Ouvre(u"Question"_s, u"dialogue"_s);
    QVERIFY(dialogue);

    QCOMPARE(monProgramme->Demande(u"chef Principale"_s), u"ok"_s);

    QCOMPARE(maPlateforme.GetWindow(dialogue, GW_OWNER), principale);
    QCOMPARE(maPlateforme.GetParent(dialogue), principale);
    QCOMPARE(DonneStyle(dialogue) & (WS_POPUP | WS_CHILD | WS_SYSMENU), WS_POPUP);
    QCOMPARE(maPlateforme.GetWindow(principale, GW_OWNER), nullptr);

    // Iconic is not hidden.
    maPlateforme.ShowWindow(principale, SW_MINIMIZE);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(principale), kDelai);
    QCOMPARE(maPlateforme.GetWindow(dialogue, GW_OWNER), principale);

    // A hidden leader stands for its program and owns nothing.
    QVERIFY(maPlateforme.ShowWindow(principale, SW_HIDE));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetWindow(dialogue, GW_OWNER), nullptr, kDelai);
}

void tst_PlateformeFenetresX11::chefGereSansEtreAffiche()
{
    HWND const fenetre = Ouvre(u"Question"_s);
    QVERIFY(fenetre);
    QCOMPARE(maPlateforme.GetWindow(fenetre, GW_OWNER), nullptr);

    HWND const chef = monProgramme->DemandePoignee(u"reserve"_s);

    QVERIFY(chef);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetWindow(fenetre, GW_OWNER), chef, kDelai);
    QVERIFY(!maPlateforme.IsWindowVisible(chef));
    QVERIFY(!maPlateforme.IsIconic(chef));
}

void tst_PlateformeFenetresX11::activeQuandRienNEstActif()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    HWND const autre = Ouvre(u"Autre"_s);
    QVERIFY(autre);
    QVERIFY(maPlateforme.SetWindowPos(fenetre, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), fenetre, kDelai);
    QCOMPARE(maPlateforme.GetForegroundWindow(), autre); // which it is not taken from

    maPlateforme.ShowWindow(fenetre, SW_MINIMIZE);
    maPlateforme.ShowWindow(autre, SW_MINIMIZE);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetForegroundWindow(), nullptr, kDelai);
    QVERIFY(maPlateforme.SetWindowPos(autre, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetForegroundWindow(), autre, kDelai);
}

void tst_PlateformeFenetresX11::enfants()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    QCOMPARE(maPlateforme.GetWindow(fenetre, GW_CHILD), nullptr);
    HWND const enfant = monProgramme->DemandePoignee(u"enfant Brouillon"_s);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsWindowVisible(enfant), kDelai);

    QCOMPARE(maPlateforme.GetParent(enfant), fenetre);
    QCOMPARE(maPlateforme.GetWindow(fenetre, GW_CHILD), enfant);
    QCOMPARE(maPlateforme.GetTopWindow(fenetre), enfant);
    QCOMPARE(maPlateforme.GetWindow(enfant, GW_HWNDNEXT), nullptr);
    QCOMPARE(maPlateforme.GetWindow(enfant, GW_HWNDFIRST), enfant);
    QVERIFY(DonneStyle(enfant) & WS_CHILD);
    DWORD processus = 0;
    maPlateforme.GetWindowThreadProcessId(enfant, &processus);
    QCOMPARE(processus, monProgramme->DonneNumero());

    QString const classe = maPlateforme.DonneNomClasse(enfant);
    QVERIFY(!classe.isEmpty());
    QCOMPARE(maPlateforme.DonneEnfantDeClasse(fenetre, classe), enfant);
    QCOMPARE(maPlateforme.DonneEnfantDeClasse(fenetre, u"Absente"_s), nullptr);
    QCOMPARE(maPlateforme.DonneEnfantDeClasse(nullptr, classe), nullptr);
    // The frame around the window and the frame's parent are above it: found at any depth.
    QCOMPARE(maPlateforme.DonneEnfantDeClasse(maPlateforme.GetDesktopWindow(), classe), fenetre);
}

void tst_PlateformeFenetresX11::gel()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    // Its event loop may be starting still.
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsHungAppWindow(fenetre), kDelai);
    DWORD_PTR resultat = 7;
    QVERIFY(maPlateforme.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 30'000,
                                             &resultat) != 0);
    QCOMPARE(resultat, DWORD_PTR(0));

    monProgramme->Arrete();
    QVERIFY(maPlateforme.IsHungAppWindow(fenetre));
    QElapsedTimer chronometre;
    chronometre.start();
    QCOMPARE(
        maPlateforme.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 150, nullptr),
        LRESULT(0));
    QVERIFY(chronometre.elapsed() >= 150);

    monProgramme->Reprend();
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsHungAppWindow(fenetre), kDelai);
}

void tst_PlateformeFenetresX11::gelNotrePropreFenetre()
{
    // Deliberate: the thread that would have to answer is the one that asks.
    QWidget fenetre;
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre, kDelai));
    QVERIFY(!maPlateforme.IsHungAppWindow(DonnePoignee(fenetre)));
    QVERIFY(maPlateforme.SendMessageTimeoutW(DonnePoignee(fenetre), WM_NULL, 0, 0, 0, 0, nullptr) !=
            0);
}

void tst_PlateformeFenetresX11::envoieCaractere_data()
{
    QTest::addColumn<char32_t>("caractere");
    QTest::addColumn<QString>("recu");
    QTest::newRow("a bare key") << U'a' << u"a"_s;
    QTest::newRow("a key with Shift") << U'A' << u"A"_s;
    QTest::newRow("a digit") << U'7' << u"7"_s;
    QTest::newRow("a blank") << U' ' << u" "_s;
    QTest::newRow("no key of the layout, Latin-1") << U'\u00e9' << u"é"_s;
    QTest::newRow("no key of the layout, beyond Latin-1") << U'\u0153' << u"œ"_s;
    QTest::newRow("no key of the layout, another script") << U'\u0436' << u"ж"_s;
    QTest::newRow("beyond the first plane") << U'\U0001f600' << u"\U0001f600"_s;
    QTest::newRow("no character") << U'\u0001' << QString();
}

void tst_PlateformeFenetresX11::envoieCaractere()
{
    QFETCH(char32_t, caractere);
    QFETCH(QString, recu);
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);

    QCOMPARE(maPlateforme.PostMessageW(fenetre, WM_CHAR, caractere, 0), !recu.isEmpty());
    // Comes after the character, and once.
    QVERIFY(maPlateforme.PostMessageW(fenetre, WM_CHAR, U'z', 0));

    QString const attendu = u'<' + recu + u"z>"_s;
    QTRY_COMPARE_WITH_TIMEOUT(monProgramme->Demande(u"texte Brouillon"_s), attendu, kDelai);
}

void tst_PlateformeFenetresX11::appuiPuisRelachement()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    // Ours is in front meanwhile: the character goes to the window named, not to the focus.
    QLineEdit champ;
    champ.show();
    champ.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&champ, kDelai));

    for (WPARAM const caractere : {U'b', U'\u00e7'}) {
        QVERIFY(maPlateforme.PostMessageW(fenetre, WM_KEYDOWN, caractere, 0x1E0001));
        QVERIFY(maPlateforme.PostMessageW(fenetre, WM_KEYUP, caractere,
                                          static_cast<LPARAM>(0xC01E0001)));
    }

    QTRY_COMPARE_WITH_TIMEOUT(monProgramme->Demande(u"texte Brouillon"_s), u"<bç>"_s, kDelai);
    QCOMPARE(champ.text(), QString());
}

void tst_PlateformeFenetresX11::fermeParMessage()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    QVERIFY(maPlateforme.PostMessageW(fenetre, WM_NULL, 0, 0));

    QVERIFY(maPlateforme.PostMessageW(fenetre, WM_CLOSE, 0, 0));

    QTRY_COMPARE_WITH_TIMEOUT(monProgramme->Demande(u"visible Brouillon"_s), u"non"_s, kDelai);
    QVERIFY(!maPlateforme.PostMessageW(fenetre, 0x7fff, 0, 0));
}

void tst_PlateformeFenetresX11::marqueur()
{
    QString const classe = u"MarqueurDeTest"_s;
    HINSTANCE const module = maPlateforme.GetModuleHandleW();
    QCOMPARE(maPlateforme.CreateWindowExW(0, classe, {}, 0, 0, 0, 1, 1, module), nullptr);
    QVERIFY(maPlateforme.RegisterClassW(classe, CS_NOCLOSE, module, 6));
    QVERIFY(!maPlateforme.RegisterClassW(classe.toUpper(), CS_NOCLOSE, module, 6));

    HWND const marqueur = maPlateforme.CreateWindowExW(WS_EX_TOOLWINDOW, classe, u"Étiquette"_s,
                                                       WS_DISABLED, -11211, -11211, 1, 1, module);

    QVERIFY(marqueur);
    QVERIFY(!maPlateforme.IsWindowVisible(marqueur));
    QCOMPARE(DonneStyle(marqueur), WS_DISABLED);
    QCOMPARE(DonneStyleEtendu(marqueur), WS_EX_TOOLWINDOW);
    QCOMPARE(maPlateforme.FindWindowW(classe, {}), marqueur);
    QCOMPARE(maPlateforme.FindWindowW(classe, u"Étiquette"_s), marqueur);
    QCOMPARE(maPlateforme.DonneNomClasse(marqueur), classe);
    QCOMPARE(maPlateforme.GetWindowThreadProcessId(marqueur, nullptr),
             maPlateforme.GetCurrentThreadId());
    QCOMPARE(monProgramme->DemandePoignee(u"trouve "_s + classe), marqueur);

    QVERIFY(!maPlateforme.UnregisterClassW(classe, module));
    QVERIFY(maPlateforme.DestroyWindow(marqueur));
    QVERIFY(!maPlateforme.DestroyWindow(marqueur));
    QVERIFY(maPlateforme.UnregisterClassW(classe, module));
    QVERIFY(!maPlateforme.UnregisterClassW(classe, module));
    QCOMPARE(maPlateforme.FindWindowW(classe, {}), nullptr);
    QCOMPARE(monProgramme->Demande(u"trouve "_s + classe), u"0"_s);
}

void tst_PlateformeFenetresX11::marqueurDesAutres()
{
    HWND const fenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(fenetre);
    QVERIFY(!maPlateforme.DestroyWindow(fenetre));
    QVERIFY(maPlateforme.IsWindow(fenetre));
}

void tst_PlateformeFenetresX11::geometrie()
{
    QWidget fenetre;
    fenetre.setGeometry(150, 120, 320, 240);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre, kDelai));

    RECT rect{};
    QVERIFY(maPlateforme.GetClientRect(DonnePoignee(fenetre), &rect));
    QCOMPARE(QRect(rect.left, rect.top, rect.right, rect.bottom), QRect(0, 0, 320, 240));
    QVERIFY(!maPlateforme.GetClientRect(DonnePoignee(fenetre), nullptr));
    auto const coin = [&] {
        POINT point{5, 7};
        maPlateforme.ClientToScreen(DonnePoignee(fenetre), &point);
        return QPoint(point.x, point.y);
    };
    QTRY_COMPARE_WITH_TIMEOUT(coin(), fenetre.mapToGlobal(QPoint(5, 7)), kDelai);
}

void tst_PlateformeFenetresX11::deplace()
{
    QWidget fenetre;
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre, kDelai));

    QVERIFY(maPlateforme.SetWindowPos(DonnePoignee(fenetre), nullptr, 222, 111, 333, 244,
                                      SWP_NOZORDER));

    QTRY_COMPARE_WITH_TIMEOUT(fenetre.size(), QSize(333, 244), kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(fenetre.frameGeometry().topLeft(), QPoint(222, 111), kDelai);
}

void tst_PlateformeFenetresX11::moniteur()
{
    QWidget fenetre;
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre, kDelai));

    HMONITOR const moniteur =
        maPlateforme.MonitorFromWindow(DonnePoignee(fenetre), MONITOR_DEFAULTTONULL);
    QVERIFY(moniteur);
    PlateformeFenetres::InfosMoniteur infos;
    QVERIFY(maPlateforme.GetMonitorInfoW(moniteur, &infos));
    QCOMPARE(infos.nom, fenetre.screen()->name());
    QCOMPARE(infos.geometrie, fenetre.screen()->geometry());
    QCOMPARE(infos.zoneTravail, fenetre.screen()->availableGeometry());

    QVERIFY(!maPlateforme.GetMonitorInfoW(nullptr, &infos));
    QVERIFY(!maPlateforme.GetMonitorInfoW(moniteur, nullptr));
    QCOMPARE(maPlateforme.MonitorFromWindow(nullptr, MONITOR_DEFAULTTONULL), nullptr);
    QCOMPARE(maPlateforme.MonitorFromWindow(nullptr, MONITOR_DEFAULTTOPRIMARY), moniteur);
    QCOMPARE(maPlateforme.MonitorFromWindow(nullptr, MONITOR_DEFAULTTONEAREST), moniteur);
}

void tst_PlateformeFenetresX11::focusEtAttachement()
{
    HWND const etrangere = Ouvre(u"Brouillon"_s);
    QVERIFY(etrangere);
    DWORD const nous = maPlateforme.GetCurrentThreadId();
    DWORD const eux = maPlateforme.GetWindowThreadProcessId(etrangere, nullptr);

    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetFocus(), etrangere, kDelai);
    QVERIFY(maPlateforme.AttachThreadInput(nous, eux, true));
    QCOMPARE(maPlateforme.GetFocus(), etrangere);
    QVERIFY(maPlateforme.AttachThreadInput(nous, eux, false));
    QVERIFY(!maPlateforme.AttachThreadInput(nous, nous, true));
    QVERIFY(!maPlateforme.AttachThreadInput(nous, 0, true));
    monProgramme.reset();
    QVERIFY(!maPlateforme.AttachThreadInput(nous, eux, true));
}

void tst_PlateformeFenetresX11::fenetreToutJusteCreee()
{
    QWidget fenetre;
    QVERIFY(maPlateforme.IsWindow(DonnePoignee(fenetre)));
    QVERIFY(!maPlateforme.IsWindowVisible(DonnePoignee(fenetre)));

    // Qt keeps such a request for later, on a connection of its own.
    fenetre.setWindowOpacity(0.5);
    QVERIFY(DonneStyleEtendu(DonnePoignee(fenetre)) & WS_EX_LAYERED);
}

void tst_PlateformeFenetresX11::poigneesMortes_data()
{
    QTest::addColumn<bool>("nulle");
    QTest::newRow("null") << true;
    QTest::newRow("the window has gone") << false;
}

void tst_PlateformeFenetresX11::poigneesMortes()
{
    QFETCH(bool, nulle);
    HWND fenetre = nullptr;
    if (!nulle) {
        fenetre = Ouvre(u"Brouillon"_s);
        QVERIFY(fenetre);
    }
    monProgramme.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsWindow(fenetre), kDelai);

    for (UINT const relation :
         {GW_HWNDFIRST, GW_HWNDLAST, GW_HWNDNEXT, GW_HWNDPREV, GW_OWNER, GW_CHILD})
        QCOMPARE(maPlateforme.GetWindow(fenetre, relation), nullptr);
    QCOMPARE(maPlateforme.GetParent(fenetre), nullptr);
    QVERIFY(!maPlateforme.IsWindowVisible(fenetre));
    QVERIFY(!maPlateforme.IsIconic(fenetre));
    QVERIFY(!maPlateforme.IsHungAppWindow(fenetre));
    QCOMPARE(maPlateforme.GetWindowLongPtrW(fenetre, GWL_STYLE), LONG_PTR(0));
    QCOMPARE(maPlateforme.GetWindowLongPtrW(fenetre, GWL_EXSTYLE), LONG_PTR(0));
    DWORD processus = 7;
    QCOMPARE(maPlateforme.GetWindowThreadProcessId(fenetre, &processus), DWORD(0));
    QCOMPARE(processus, DWORD(0));
    RECT rect{};
    POINT point{};
    QVERIFY(!maPlateforme.GetClientRect(fenetre, &rect));
    QVERIFY(!maPlateforme.ClientToScreen(fenetre, &point));
    QVERIFY(!maPlateforme.SetForegroundWindow(fenetre));
    QVERIFY(!maPlateforme.BringWindowToTop(fenetre));
    for (int const commande : {SW_HIDE, SW_SHOWNORMAL, SW_SHOW, SW_MINIMIZE, SW_RESTORE})
        QVERIFY(!maPlateforme.ShowWindow(fenetre, commande));
    QVERIFY(!maPlateforme.SetWindowPos(fenetre, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE));
    for (UINT const message : {WM_NULL, WM_CLOSE, WM_KEYDOWN, WM_KEYUP, WM_CHAR})
        QVERIFY(!maPlateforme.PostMessageW(fenetre, message, U'a', 0));
    QCOMPARE(maPlateforme.SendMessageTimeoutW(fenetre, WM_NULL, 0, 0, 0, 100, nullptr), LRESULT(0));
    QVERIFY(!maPlateforme.DestroyWindow(fenetre));
    QCOMPARE(maPlateforme.DonneNomClasse(fenetre), QString());
    QCOMPARE(maPlateforme.GetWindowTextW(fenetre), QString());
    QCOMPARE(maPlateforme.DonneExecutable(fenetre), QString());
    QCOMPARE(maPlateforme.DonneEnfantDeClasse(fenetre, u"EditeurEtranger"_s), nullptr);
}

QTEST_MAIN(tst_PlateformeFenetresX11)
#include "tst_PlateformeFenetresX11.moc"
