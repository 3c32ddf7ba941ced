// tests/desktop/tst_RoutinesFenetreRecherche.cpp
#include "desktop/RoutinesFenetre.h"
#include "outils/BureauSimulay.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace RoutinesFenetre;
using Fenetre = FenetresSimulees::Fenetre;

namespace {
// Not a number that Qt gives to a window offscreen, where it counts from 1.
// NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
HWND const kBureau = reinterpret_cast<HWND>(quintptr{0xB0B0B0});

constexpr DWORD kPrincipal = WS_VISIBLE | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME;
constexpr DWORD kSurgissant = WS_VISIBLE | WS_POPUP;

// Windows that a search passes over, or finds.
void AjouteGenres(bool couches, bool premierPlan)
{
    QTest::addColumn<DWORD>("style");
    QTest::addColumn<DWORD>("styleEtendu");
    QTest::addColumn<bool>("trouvee");
    QTest::newRow("a main window") << kPrincipal << WS_EX_APPWINDOW << true;
    QTest::newRow("without styles") << WS_VISIBLE << DWORD(0) << true;
    QTest::newRow("hidden") << (kPrincipal & ~WS_VISIBLE) << WS_EX_APPWINDOW << false;
    QTest::newRow("iconic") << (kPrincipal | WS_MINIMIZE) << WS_EX_APPWINDOW << false;
    QTest::newRow("a tool window") << kPrincipal << WS_EX_TOOLWINDOW << false;
    QTest::newRow("layered") << kPrincipal << WS_EX_LAYERED << couches;
    QTest::newRow("topmost") << kPrincipal << WS_EX_TOPMOST << premierPlan;
    QTest::newRow("the top bit") << kPrincipal << DWORD(0x80000000) << premierPlan;
}
} // namespace

// Walks through a desktop in memory. Windows are added from the lowest to the highest.
class tst_RoutinesFenetreRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void activeEstLAvantPlan();
    void activeParGenre_data();
    void activeParGenre();
    void activeArret();
    void activeSansAvantPlan();
    void secondeParGenre_data();
    void secondeParGenre();
    void secondeSens_data();
    void secondeSens();
    void secondeExclues();
    void secondeRien();
    void secondeEnRond();
    void avantPlanEtrangerIntact();
    void avantPlanNotreFenetre();
    void avantPlanNotreFenetreSeule();
    void avantPlanClasseExclue();
    void avantPlanNotreFenetreCachee();
    void avantPlanBureau();
    void avantPlanGenres_data();
    void avantPlanGenres();
    void avantPlanSansParentNiSuivante();
    void avantPlanGrimpe();
    void avantPlanProprietairesEnRond();
    void texteurAvantPlan();
    void texteurDepartDonnay();
    void texteurClasses_data();
    void texteurClasses();
    void texteurSeulDeSaFamille();
    void texteurIconique();
    void texteurBureau();
    void texteurFenetreLaPlusBasse();
    void texteurSansAvantPlan();
    void texteurDerriereNotreFenetre();
    void texteurPoigneeMorte();

private:
    HWND Ajoute(QString const & classe, DWORD style = kPrincipal,
                DWORD styleEtendu = WS_EX_APPWINDOW, HWND proprietaire = nullptr);
    /// A shown window of this program, put on top.
    HWND AjouteNotre(QWidget & widget);
    HWND DonneTexteur(HWND depart = nullptr, QSet<QString> const & classesExclues = {});

    FenetresSimulees * mesFenetres = nullptr; // owned by the library while it is in place
    BureauSimulay * monBureau = nullptr;
    std::unique_ptr<PlateformeFenetres> mesFenetresAvant;
    std::unique_ptr<PlateformeBureau> monBureauAvant;
};

void tst_RoutinesFenetreRecherche::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    mesFenetres->bureau = kBureau;
    mesFenetresAvant = PlateformeFenetres::Installe(std::move(fenetres));
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    monBureauAvant = PlateformeBureau::Installe(std::move(bureau));
}

void tst_RoutinesFenetreRecherche::cleanup()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    PlateformeBureau::Installe(std::move(monBureauAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_RoutinesFenetreRecherche::Ajoute(QString const & classe, DWORD style, DWORD styleEtendu,
                                          HWND proprietaire)
{
    Fenetre fenetre;
    fenetre.classe = classe;
    fenetre.style = style;
    fenetre.styleEtendu = styleEtendu;
    fenetre.proprietaire = proprietaire;
    return mesFenetres->Ajoute(fenetre);
}

HWND tst_RoutinesFenetreRecherche::AjouteNotre(QWidget & widget)
{
    Fenetre fenetre;
    fenetre.classe = u"Notre"_s;
    fenetre.processus = FenetresSimulees::kNotreProcessus;
    fenetre.thread = FenetresSimulees::kNotreThread;
    widget.show();
    HWND const poignee = DonneHandleFenetre(&widget);
    mesFenetres->Ajoute(poignee, fenetre);
    return poignee;
}

HWND tst_RoutinesFenetreRecherche::DonneTexteur(HWND depart, QSet<QString> const & classesExclues)
{
    DonneTexteurCourant(depart, classesExclues);
    return depart;
}

void tst_RoutinesFenetreRecherche::activeEstLAvantPlan()
{
    Ajoute(u"Dessous"_s);
    mesFenetres->avantPlan = Ajoute(u"Devant"_s);
    Ajoute(u"Dessus"_s); // above, but not the foreground
    QCOMPARE(RechercheFenetreActive(), mesFenetres->avantPlan);
}

void tst_RoutinesFenetreRecherche::activeParGenre_data()
{
    AjouteGenres(false, true);
}

void tst_RoutinesFenetreRecherche::activeParGenre()
{
    QFETCH(DWORD, style);
    QFETCH(DWORD, styleEtendu);
    QFETCH(bool, trouvee);
    HWND const dessous = Ajoute(u"Dessous"_s);
    HWND const devant = Ajoute(u"Devant"_s);
    mesFenetres->avantPlan = devant;
    mesFenetres->Prete(devant).style = style;
    mesFenetres->Prete(devant).styleEtendu = styleEtendu;

    QCOMPARE(RechercheFenetreActive(), trouvee ? devant : dessous);
    mesFenetres->Retire(dessous);
    QCOMPARE(RechercheFenetreActive(), trouvee ? devant : nullptr);
}

void tst_RoutinesFenetreRecherche::activeArret()
{
    Ajoute(u"Dessous"_s);
    HWND const arret = Ajoute(u"Arret"_s, WS_MINIMIZE, WS_EX_TOOLWINDOW);
    mesFenetres->avantPlan = Ajoute(u"Outil"_s, kPrincipal, WS_EX_TOOLWINDOW);
    QCOMPARE(RechercheFenetreActive(arret), arret);
    QCOMPARE(RechercheFenetreActive(mesFenetres->avantPlan), mesFenetres->avantPlan);
    // Above the foreground window: never reached.
    HWND const dessus = Ajoute(u"Dessus"_s);
    HWND const avant = RechercheFenetreActive();
    QVERIFY(avant);
    QCOMPARE(RechercheFenetreActive(dessus), avant);
}

void tst_RoutinesFenetreRecherche::activeSansAvantPlan()
{
    HWND const fenetre = Ajoute(u"Editeur"_s);
    QCOMPARE(RechercheFenetreActive(), nullptr);
    QCOMPARE(RechercheFenetreActive(fenetre), nullptr);
}

void tst_RoutinesFenetreRecherche::secondeParGenre_data()
{
    AjouteGenres(true, false);
}

void tst_RoutinesFenetreRecherche::secondeParGenre()
{
    QFETCH(DWORD, style);
    QFETCH(DWORD, styleEtendu);
    QFETCH(bool, trouvee);
    HWND const voisine = Ajoute(u"Voisine"_s);
    HWND const depart = Ajoute(u"Depart"_s);
    mesFenetres->Prete(voisine).style = style;
    mesFenetres->Prete(voisine).styleEtendu = styleEtendu;

    HWND fenetre = depart;
    QCOMPARE(TrouveSecondeFenActive(&fenetre, {}, 0), trouvee);
    QCOMPARE(fenetre, trouvee ? voisine : depart);
}

void tst_RoutinesFenetreRecherche::secondeSens_data()
{
    QTest::addColumn<unsigned>("sens");
    QTest::addColumn<QString>("attendue"); // empty: none
    QTest::newRow("down") << 0U << u"Dessous"_s;
    QTest::newRow("up") << 1U << u"Dessus"_s;
    QTest::newRow("next, as the platform says it") << unsigned{GW_HWNDNEXT} << u"Dessous"_s;
    QTest::newRow("previous, as the platform says it") << unsigned{GW_HWNDPREV} << u"Dessus"_s;
    QTest::newRow("owner") << unsigned{GW_OWNER} << u"Bas"_s;
    QTest::newRow("child") << unsigned{GW_CHILD} << QString();
    QTest::newRow("no relation of the platform") << 99U << QString();
}

void tst_RoutinesFenetreRecherche::secondeSens()
{
    QFETCH(unsigned, sens);
    QFETCH(QString, attendue);
    HWND const bas = Ajoute(u"Bas"_s);
    Ajoute(u"Dessous"_s);
    HWND const depart = Ajoute(u"Depart"_s, kPrincipal, WS_EX_APPWINDOW, bas);
    Ajoute(u"Dessus"_s);
    Ajoute(u"Haut"_s);

    HWND fenetre = depart;
    QCOMPARE(TrouveSecondeFenActive(&fenetre, {}, sens), !attendue.isEmpty());
    QCOMPARE(mesFenetres->DonneNomClasse(fenetre), attendue.isEmpty() ? u"Depart"_s : attendue);
}

void tst_RoutinesFenetreRecherche::secondeExclues()
{
    HWND const troisieme = Ajoute(u"Troisieme"_s);
    HWND const seconde = Ajoute(u"Seconde"_s);
    HWND const depart = Ajoute(u"Depart"_s);

    HWND fenetre = depart;
    QVERIFY(TrouveSecondeFenActive(&fenetre, {seconde}, 0));
    QCOMPARE(fenetre, troisieme);
    fenetre = depart;
    QVERIFY(!TrouveSecondeFenActive(&fenetre, {seconde, troisieme}, 0));
    QCOMPARE(fenetre, depart);
}

void tst_RoutinesFenetreRecherche::secondeRien()
{
    Ajoute(u"Editeur"_s);
    QVERIFY(!TrouveSecondeFenActive(nullptr, {}, 0));
    HWND fenetre = nullptr;
    QVERIFY(!TrouveSecondeFenActive(&fenetre, {}, 0));
    QCOMPARE(fenetre, nullptr);
    HWND const morte = Ajoute(u"Morte"_s);
    mesFenetres->Retire(morte);
    fenetre = morte;
    QVERIFY(!TrouveSecondeFenActive(&fenetre, {}, 0));
    QCOMPARE(fenetre, morte);
}

void tst_RoutinesFenetreRecherche::secondeEnRond()
{
    // Two windows that own each other: nonsense that a program may set up all the same.
    HWND const un = Ajoute(u"Un"_s, kPrincipal & ~WS_VISIBLE);
    HWND const deux = Ajoute(u"Deux"_s, kPrincipal & ~WS_VISIBLE, WS_EX_APPWINDOW, un);
    mesFenetres->Prete(un).proprietaire = deux;

    HWND fenetre = un;
    QVERIFY(!TrouveSecondeFenActive(&fenetre, {}, GW_OWNER));
    QCOMPARE(fenetre, un);
}

void tst_RoutinesFenetreRecherche::avantPlanEtrangerIntact()
{
    HWND const proprietaire = Ajoute(u"Proprietaire"_s);
    HWND const editeur = Ajoute(u"Editeur"_s, kPrincipal, 0, proprietaire);
    HWND fenetre = editeur;
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, editeur); // with a system menu: no transient, though it has an owner
}

void tst_RoutinesFenetreRecherche::avantPlanNotreFenetre()
{
    HWND const editeur = Ajoute(u"Editeur"_s);
    QWidget palette;
    AjouteNotre(palette);
    QWidget principale;
    HWND fenetre = AjouteNotre(principale);

    DonneFenetreAvantPlan(fenetre, {});

    QCOMPARE(fenetre, editeur); // past the palette, which is ours too
}

void tst_RoutinesFenetreRecherche::avantPlanNotreFenetreSeule()
{
    QWidget widget;
    HWND fenetre = AjouteNotre(widget);
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, nullptr);
}

void tst_RoutinesFenetreRecherche::avantPlanClasseExclue()
{
    Ajoute(u"Editeur"_s);
    QWidget widget;
    HWND const notre = AjouteNotre(widget);
    HWND fenetre = notre;
    DonneFenetreAvantPlan(fenetre, {u"Notre"_s});
    QCOMPARE(fenetre, notre); // its class takes it out of ours

    // Its case counts.
    DonneFenetreAvantPlan(fenetre, {u"NOTRE"_s});
    QVERIFY(fenetre != notre);
}

void tst_RoutinesFenetreRecherche::avantPlanNotreFenetreCachee()
{
    Ajoute(u"Editeur"_s);
    QWidget widget;
    HWND const notre = AjouteNotre(widget);
    widget.hide();
    HWND fenetre = notre;
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, notre);
}

void tst_RoutinesFenetreRecherche::avantPlanBureau()
{
    Ajoute(u"Editeur"_s);
    QWidget widget;
    HWND const notre = AjouteNotre(widget);
    mesFenetres->bureau = notre;
    HWND fenetre = notre;
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, notre);
}

void tst_RoutinesFenetreRecherche::avantPlanGenres_data()
{
    QTest::addColumn<DWORD>("style");
    QTest::addColumn<DWORD>("styleEtendu");
    QTest::addColumn<bool>("avecProprietaire");
    QTest::addColumn<QString>("attendue");
    QTest::newRow("a dialog") << kSurgissant << DWORD(0) << true << u"Proprietaire"_s;
    QTest::newRow("a menu without owner") << kSurgissant << DWORD(0) << false << u"Suivante"_s;
    QTest::newRow("a popup with a place in the task bar")
        << kSurgissant << WS_EX_APPWINDOW << true << u"Surgissante"_s;
    QTest::newRow("a popup with a system menu")
        << (kSurgissant | WS_SYSMENU) << DWORD(0) << true << u"Surgissante"_s;
    QTest::newRow("no popup") << WS_VISIBLE << DWORD(0) << true << u"Surgissante"_s;
}

void tst_RoutinesFenetreRecherche::avantPlanGenres()
{
    QFETCH(DWORD, style);
    QFETCH(DWORD, styleEtendu);
    QFETCH(bool, avecProprietaire);
    QFETCH(QString, attendue);
    HWND const proprietaire = Ajoute(u"Proprietaire"_s);
    Ajoute(u"Suivante"_s);
    QWidget palette;
    AjouteNotre(palette); // ours: passed over on the way down
    HWND fenetre =
        Ajoute(u"Surgissante"_s, style, styleEtendu, avecProprietaire ? proprietaire : nullptr);

    DonneFenetreAvantPlan(fenetre, {});

    QCOMPARE(mesFenetres->DonneNomClasse(fenetre), attendue);
}

void tst_RoutinesFenetreRecherche::avantPlanSansParentNiSuivante()
{
    HWND const menu = Ajoute(u"Menu"_s, kSurgissant, 0);
    HWND fenetre = menu;
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, menu);
}

void tst_RoutinesFenetreRecherche::avantPlanGrimpe()
{
    HWND const racine = Ajoute(u"Racine"_s);
    HWND const dialogue = Ajoute(u"Dialogue"_s, kSurgissant, 0, racine);
    HWND const question = Ajoute(u"Question"_s, kSurgissant, 0, dialogue);
    HWND fenetre = Ajoute(u"Menu"_s, kSurgissant, 0, question);

    DonneFenetreAvantPlan(fenetre, {});

    QCOMPARE(fenetre, racine);

    // From the next window below as well, when there is no owner.
    HWND const solitaire = Ajoute(u"Solitaire"_s, kSurgissant, 0);
    fenetre = solitaire;
    mesFenetres->Retire(mesFenetres->GetWindow(solitaire, GW_HWNDNEXT)); // the menu
    DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, racine);
}

void tst_RoutinesFenetreRecherche::avantPlanProprietairesEnRond()
{
    HWND const un = Ajoute(u"Un"_s, kSurgissant, 0);
    HWND const deux = Ajoute(u"Deux"_s, kSurgissant, 0, un);
    mesFenetres->Prete(un).proprietaire = deux;
    HWND fenetre = un;
    DonneFenetreAvantPlan(fenetre, {});
    QVERIFY(fenetre == un || fenetre == deux);
}

void tst_RoutinesFenetreRecherche::texteurAvantPlan()
{
    Ajoute(u"Dessous"_s);
    mesFenetres->avantPlan = Ajoute(u"Editeur"_s);
    Ajoute(u"Dessus"_s);
    QCOMPARE(DonneTexteur(), mesFenetres->avantPlan);
}

void tst_RoutinesFenetreRecherche::texteurDepartDonnay()
{
    HWND const editeur = Ajoute(u"Editeur"_s);
    mesFenetres->avantPlan = Ajoute(u"Devant"_s);
    QCOMPARE(DonneTexteur(editeur), editeur);
    mesFenetres->Prete(editeur).style |= WS_MINIMIZE; // asked of the foreground window only
    QCOMPARE(DonneTexteur(editeur), editeur);
}

void tst_RoutinesFenetreRecherche::texteurClasses_data()
{
    QTest::addColumn<QString>("classe");
    QTest::addColumn<bool>("passee");
    for (auto const * const classe :
         {"ConsoleWindowClass", "Prive_PanacelQ", "PanacelConfigQ", "PanQ", "PanQPalette",
          "PanQPaletteNonGraphique", "ConnectivConfigQ"})
        QTest::newRow(classe) << QString::fromLatin1(classe) << true;
    QTest::newRow("the case counts") << u"panq"_s << false;
    QTest::newRow("the beginning of a name") << u"PanQPal"_s << false;
    QTest::newRow("a longer name") << u"PanQPalettes"_s << false;
    QTest::newRow("no name") << QString() << false;
}

void tst_RoutinesFenetreRecherche::texteurClasses()
{
    QFETCH(QString, classe);
    QFETCH(bool, passee);
    HWND const editeur = Ajoute(u"Editeur"_s);
    Ajoute(u"Iconique"_s, kPrincipal | WS_MINIMIZE);
    HWND const devant = Ajoute(classe);
    mesFenetres->avantPlan = devant;

    QCOMPARE(DonneTexteur(), passee ? editeur : devant);
    QCOMPARE(DonneTexteur(devant), passee ? editeur : devant);

    // Round again while the next is one of them too.
    mesFenetres->avantPlan = Ajoute(u"PanQ"_s);
    QCOMPARE(DonneTexteur(), passee ? editeur : devant);
}

void tst_RoutinesFenetreRecherche::texteurSeulDeSaFamille()
{
    Ajoute(u"Outil"_s, kPrincipal, WS_EX_TOOLWINDOW);
    mesFenetres->avantPlan = Ajoute(u"PanQPalette"_s);
    QCOMPARE(DonneTexteur(), nullptr);
}

void tst_RoutinesFenetreRecherche::texteurIconique()
{
    Ajoute(u"Editeur"_s);
    mesFenetres->avantPlan = Ajoute(u"Iconique"_s, kPrincipal | WS_MINIMIZE);
    QCOMPARE(DonneTexteur(), nullptr);
}

void tst_RoutinesFenetreRecherche::texteurBureau()
{
    Ajoute(u"Fond"_s);
    HWND const bureau = Ajoute(u"WorkerW"_s);
    Fenetre enfant;
    enfant.classe = u"SHELLDLL_DefView"_s;
    enfant.parent = bureau;
    enfant.parent = mesFenetres->Ajoute(enfant);
    enfant.classe = u"SysListView32"_s;
    mesFenetres->Ajoute(enfant);
    HWND const editeur = Ajoute(u"Editeur"_s);
    mesFenetres->avantPlan = bureau;

    QCOMPARE(DonneTexteur(), bureau); // elsewhere it is a window like another
    monBureau->versionWindows = {6, 1, 7600};
    QCOMPARE(DonneTexteur(), editeur);
}

void tst_RoutinesFenetreRecherche::texteurFenetreLaPlusBasse()
{
    mesFenetres->avantPlan = Ajoute(u"Progman"_s);
    HWND const editeur = Ajoute(u"Editeur"_s);
    QCOMPARE(DonneTexteur(), editeur);
    mesFenetres->Retire(editeur);
    QCOMPARE(DonneTexteur(), mesFenetres->avantPlan);
}

void tst_RoutinesFenetreRecherche::texteurSansAvantPlan()
{
    QCOMPARE(DonneTexteur(), nullptr);
    Ajoute(u"Dessous"_s);
    HWND const editeur = Ajoute(u"Editeur"_s);
    Ajoute(u"PanQ"_s);
    QCOMPARE(DonneTexteur(), editeur);
}

void tst_RoutinesFenetreRecherche::texteurDerriereNotreFenetre()
{
    Ajoute(u"Fond"_s);
    HWND const editeur = Ajoute(u"Editeur"_s);
    Ajoute(u"Dialogue"_s, kSurgissant, 0, editeur);
    QWidget widget;
    mesFenetres->avantPlan = AjouteNotre(widget);

    QCOMPARE(DonneTexteur(), editeur); // behind ours is its dialog, and behind that the editor

    QCOMPARE(DonneTexteur(nullptr, {u"Notre"_s}), mesFenetres->avantPlan);
}

void tst_RoutinesFenetreRecherche::texteurPoigneeMorte()
{
    Ajoute(u"Editeur"_s);
    HWND const morte = Ajoute(u"Morte"_s);
    mesFenetres->Retire(morte);
    QCOMPARE(DonneTexteur(morte), nullptr);
}

QTEST_MAIN(tst_RoutinesFenetreRecherche)
#include "tst_RoutinesFenetreRecherche.moc"
