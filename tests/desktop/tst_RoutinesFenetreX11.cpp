// tests/desktop/tst_RoutinesFenetreX11.cpp
#include "desktop/RoutinesFenetre.h"
#include "dialogs/DAlerte.h"
#include "dialogs/StockageReponse.h"
#include "noyau/Contournement.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/plateforme/PlateformeFenetres.h"
#include "outils/ProgrammeEtranger.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace RoutinesFenetre;

namespace {
constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time
} // namespace

// Beside a text editor that is another process, under a real window manager.
class tst_RoutinesFenetreX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void trouveLeTexteur();
    void trouveLeTexteurDerriereNous();
    void passeLaFamille();
    void texteurIconique();
    void dialogueMeneAuTexteur();
    void metsLAutreDevant();
    void metsUneFenetreIconiqueDevant();
    void reprendsLAvantPlan_data();
    void reprendsLAvantPlan();
    void reprendsLAvantPlanALUnGele();
    void boiteDevantDesQuElleParait();
    void alerteDevantDesQuElleParait_data();
    void alerteDevantDesQuElleParait();
    void levayeSansActiver();
    void envoieUnCaractere();
    void focusDeLAutre();
    void gel_data();
    void gel();
    void marqueurTrouvayParUnAutre();
    void minimise();

private:
    /// A foreign window, shown and in front; null when that did not come about.
    HWND Ouvre(QString const & titre, QString const & genre = u"fenetre"_s);
    bool EstDevant(HWND fenetre) const;
    bool EstPremierPlan(HWND fenetre) const;
    /// Shows a window of ours and waits until it is in front.
    HWND Montre(QWidget & widget);
    static HWND DonneTexteur();

    PlateformeFenetres & maPlateforme = PlateformeFenetres::Courante();
    std::unique_ptr<ProgrammeEtranger> monProgramme;
};

void tst_RoutinesFenetreX11::initTestCase()
{
    if (QGuiApplication::platformName() != "xcb"_L1)
        QSKIP("Needs an X server.");
}

void tst_RoutinesFenetreX11::init()
{
    monProgramme = std::make_unique<ProgrammeEtranger>(u"EditeurEtranger"_s);
}

void tst_RoutinesFenetreX11::cleanup()
{
    monProgramme.reset();
    Contournement::Efface(u"UtiliserSendMessageTimeout"_s, u"Choix"_s);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
}

HWND tst_RoutinesFenetreX11::Ouvre(QString const & titre, QString const & genre)
{
    HWND const fenetre = monProgramme->DemandePoignee(genre + u' ' + titre);
    return QTest::qWaitFor([&] { return EstDevant(fenetre); }, kDelai) ? fenetre : nullptr;
}

bool tst_RoutinesFenetreX11::EstDevant(HWND fenetre) const
{
    return maPlateforme.GetForegroundWindow() == fenetre &&
           maPlateforme.GetTopWindow(nullptr) == fenetre && maPlateforme.IsWindowVisible(fenetre);
}

bool tst_RoutinesFenetreX11::EstPremierPlan(HWND fenetre) const
{
    return maPlateforme.GetWindowLongPtrW(fenetre, GWL_EXSTYLE) & LONG_PTR{WS_EX_TOPMOST};
}

HWND tst_RoutinesFenetreX11::Montre(QWidget & widget)
{
    widget.show();
    HWND const fenetre = DonneHandleFenetre(&widget);
    return QTest::qWaitFor([&] { return EstDevant(fenetre); }, kDelai) ? fenetre : nullptr;
}

HWND tst_RoutinesFenetreX11::DonneTexteur()
{
    HWND fenetre = nullptr;
    DonneTexteurCourant(fenetre, {});
    return fenetre;
}

void tst_RoutinesFenetreX11::trouveLeTexteur()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QCOMPARE(DonneTexteur(), editeur);
    QCOMPARE(RechercheFenetreActive(), editeur);

    HWND const autre = Ouvre(u"Autre"_s);
    QVERIFY(autre);
    QCOMPARE(DonneTexteur(), autre);
    HWND seconde = autre;
    QVERIFY(TrouveSecondeFenActive(&seconde, {}, 0));
    QCOMPARE(seconde, editeur);
    QVERIFY(!TrouveSecondeFenActive(&seconde, {}, 0));
    QVERIFY(TrouveSecondeFenActive(&seconde, {}, 1));
    QCOMPARE(seconde, autre);
}

void tst_RoutinesFenetreX11::trouveLeTexteurDerriereNous()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    HWND const palette = monProgramme->DemandePoignee(u"outil Palette"_s);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), palette, kDelai);
    QWidget notre;
    QWidget autreNotre;
    QVERIFY(Montre(autreNotre));
    QVERIFY(Montre(notre));

    QCOMPARE(DonneTexteur(), editeur);

    monProgramme.reset();
    QTRY_COMPARE_WITH_TIMEOUT(DonneTexteur(), nullptr, kDelai);
}

void tst_RoutinesFenetreX11::passeLaFamille()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    ProgrammeEtranger famille(u"PanQ"_s);
    HWND const parent = famille.DemandePoignee(u"fenetre Parent"_s);
    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(parent), kDelai);

    QCOMPARE(DonneTexteur(), editeur);

    maPlateforme.ShowWindow(editeur, SW_MINIMIZE);
    QTRY_COMPARE_WITH_TIMEOUT(DonneTexteur(), nullptr, kDelai);
}

void tst_RoutinesFenetreX11::texteurIconique()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    maPlateforme.ShowWindow(editeur, SW_MINIMIZE);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(editeur), kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(RechercheFenetreActive(), nullptr, kDelai);
    // Deliberate: with nothing in front the search starts at the top of the stack, iconic or not.
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetForegroundWindow(), nullptr, kDelai);
    QCOMPARE(DonneTexteur(), editeur);
}

void tst_RoutinesFenetreX11::dialogueMeneAuTexteur()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QVERIFY(Ouvre(u"Question"_s, u"dialogue"_s));
    QCOMPARE(DonneTexteur(), editeur);
}

void tst_RoutinesFenetreX11::metsLAutreDevant()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QWidget notre;
    QVERIFY(Montre(notre));

    MetsFenetreEnAvantPlanEtActive(editeur, false);
    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(editeur), kDelai);

    HWND const autre = Ouvre(u"Autre"_s);
    QVERIFY(autre);
    MetsFenetreEnAvantPlanEtActive(editeur, true);
    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(editeur), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!EstPremierPlan(editeur), kDelai);
    // Without staying topmost: another one still comes in front of it.
    MetsFenetreEnAvantPlanEtActive(autre, false);
    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(autre), kDelai);
}

void tst_RoutinesFenetreX11::metsUneFenetreIconiqueDevant()
{
    QVERIFY(Ouvre(u"Brouillon"_s));
    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    MinimiserFenetre(&notre);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(fenetre), kDelai);

    MetsFenetreEnAvantPlanEtActive(&notre, true);

    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(fenetre), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!notre.isMinimized(), kDelai);

    MinimiserFenetre(&notre);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(fenetre), kDelai);
    MetsFenetreEnAvantPlan(fenetre);
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsIconic(fenetre), kDelai);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), fenetre, kDelai);
}

void tst_RoutinesFenetreX11::reprendsLAvantPlan_data()
{
    QTest::addColumn<bool>("forcer");
    QTest::newRow("by force") << true;
    QTest::newRow("without force") << false;
}

void tst_RoutinesFenetreX11::reprendsLAvantPlan()
{
    QFETCH(bool, forcer);
    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    QVERIFY(Ouvre(u"Brouillon"_s));

    MetsFenetreEnAvantPlanEtActive(&notre, forcer);

    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(fenetre), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(notre.isActiveWindow(), kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(!EstPremierPlan(fenetre), kDelai);
}

void tst_RoutinesFenetreX11::reprendsLAvantPlanALUnGele()
{
    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    QVERIFY(Ouvre(u"Brouillon"_s));
    monProgramme->Arrete();

    MetsFenetreEnAvantPlanEtActive(&notre, true);

    QTRY_VERIFY_WITH_TIMEOUT(EstDevant(fenetre), kDelai);
    monProgramme->Reprend();
}

void tst_RoutinesFenetreX11::boiteDevantDesQuElleParait()
{
    class Boite : public QDialog
    {
    protected:
        void showEvent(QShowEvent * evenement) override
        {
            QDialog::showEvent(evenement);
            MetsFenetreEnAvantPlanEtActive(this, true);
        }
    };
    QVERIFY(Ouvre(u"Brouillon"_s));
    Boite boite;
    QVERIFY(Montre(boite));
    boite.hide();
    QVERIFY(Ouvre(u"Autre"_s));
    QVERIFY(Montre(boite)); // a second time, when its window is there already
}

void tst_RoutinesFenetreX11::alerteDevantDesQuElleParait_data()
{
    QTest::addColumn<bool>("avecParent");
    QTest::addColumn<bool>("parentIconique");
    QTest::newRow("no parent") << false << false;
    QTest::newRow("a parent behind") << true << false;
    QTest::newRow("a minimised parent") << true << true;
}

void tst_RoutinesFenetreX11::alerteDevantDesQuElleParait()
{
    QFETCH(bool, avecParent);
    QFETCH(bool, parentIconique);
    QWidget notre;
    QVERIFY(Montre(notre));
    if (parentIconique) {
        MinimiserFenetre(&notre);
        QTRY_VERIFY_WITH_TIMEOUT(notre.isMinimized(), kDelai);
    }
    QVERIFY(Ouvre(u"Brouillon"_s));
    bool devant = false;
    bool premierPlan = true;
    QTimer minuteur;
    connect(&minuteur, &QTimer::timeout, this, [&] {
        auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite || !QTest::qWaitForWindowExposed(boite, kDelai))
            return;
        minuteur.stop();
        HWND const fenetre = DonneHandleFenetre(boite);
        devant = QTest::qWaitFor([&] { return EstDevant(fenetre); }, kDelai);
        premierPlan = !QTest::qWaitFor([&] { return !EstPremierPlan(fenetre); }, kDelai);
        boite->buttons().constFirst()->click();
    });
    minuteur.start(20);

    DAlerteInfo const info(DAlerteInfo::kInformation, "Message", kUniChaineNulle, "Titre");
    QCOMPARE(DAlerte(avecParent ? &notre : nullptr, info), DDialogue::kBoutonOk);

    QVERIFY(devant);
    QVERIFY(!premierPlan);
}

void tst_RoutinesFenetreX11::levayeSansActiver()
{
    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);

    MetsFenetreEnAvantPlan(&notre);

    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), fenetre, kDelai);
    MetsFenetreEnAvantPlan(editeur); // not ours
    QCOMPARE(maPlateforme.GetTopWindow(nullptr), fenetre);
}

void tst_RoutinesFenetreX11::envoieUnCaractere()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QLineEdit notre;
    QVERIFY(Montre(notre));

    for (char32_t const caractere : {U'a', U'\u00e9'})
        RoutinesGeneralesQt::InsereCaractereDansTexteur(editeur, caractere);

    QTRY_COMPARE_WITH_TIMEOUT(monProgramme->Demande(u"texte Brouillon"_s), u"<aé>"_s, kDelai);
    QCOMPARE(notre.text(), QString());
}

void tst_RoutinesFenetreX11::focusDeLAutre()
{
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QTRY_COMPARE_WITH_TIMEOUT(DonneControleEnFocusClavier(editeur), editeur, kDelai);

    ProgrammeEtranger tiers(u"Tiers"_s);
    HWND const autre = tiers.DemandePoignee(u"fenetre Tiers"_s);
    QTRY_COMPARE_WITH_TIMEOUT(DonneControleEnFocusClavier(autre), autre, kDelai);
    QCOMPARE(DonneControleEnFocusClavier(editeur), nullptr); // the focus is not the editor's

    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    // Deliberate: the focus in our own program is Qt's to tell.
    QCOMPARE(DonneControleEnFocusClavier(fenetre), nullptr);
}

void tst_RoutinesFenetreX11::gel_data()
{
    QTest::addColumn<bool>("parMessage");
    QTest::newRow("as the system knows") << false;
    QTest::newRow("asked by a message") << true;
}

void tst_RoutinesFenetreX11::gel()
{
    QFETCH(bool, parMessage);
    if (parMessage)
        Contournement::EcrisBool(u"UtiliserSendMessageTimeout"_s, u"Choix"_s, true);
    HWND const editeur = Ouvre(u"Brouillon"_s);
    QVERIFY(editeur);
    QTRY_VERIFY_WITH_TIMEOUT(!FenetreEstGelee(editeur), kDelai);

    monProgramme->Arrete();
    QElapsedTimer chronometre;
    chronometre.start();
    QVERIFY(FenetreEstGelee(editeur));
    QVERIFY(!parMessage || chronometre.elapsed() >= 5000); // the time that it is given

    monProgramme->Reprend();
    QTRY_VERIFY_WITH_TIMEOUT(!FenetreEstGelee(editeur), kDelai);
}

void tst_RoutinesFenetreX11::marqueurTrouvayParUnAutre()
{
    UniChaine const classe("MarqueurDesRoutines");
    QString const question = u"trouve MarqueurDesRoutines"_s;
    QCOMPARE(monProgramme->Demande(question), u"0"_s);
    QVERIFY(!SingletonApplicationFenetreExiste(classe, nullptr));

    HWND const marqueur = SingletonApplicationCreeFenetre(classe, "Titre");

    QVERIFY(marqueur);
    QCOMPARE(monProgramme->DemandePoignee(question), marqueur);
    HWND trouvee = nullptr;
    QVERIFY(SingletonApplicationFenetreExiste(classe, &trouvee));
    QCOMPARE(trouvee, marqueur);
    QVERIFY(!maPlateforme.IsWindowVisible(marqueur));

    SingletonApplicationDetruitFenetre(classe);
    QCOMPARE(monProgramme->Demande(question), u"0"_s);
    QVERIFY(!SingletonApplicationFenetreExiste(classe, &trouvee));
    QCOMPARE(trouvee, nullptr);
}

void tst_RoutinesFenetreX11::minimise()
{
    QWidget notre;
    HWND const fenetre = Montre(notre);
    QVERIFY(fenetre);
    MinimiserFenetre(&notre);
    QTRY_VERIFY_WITH_TIMEOUT(notre.isMinimized(), kDelai);
    QVERIFY(maPlateforme.IsIconic(fenetre));
}

QTEST_MAIN(tst_RoutinesFenetreX11)
#include "tst_RoutinesFenetreX11.moc"
