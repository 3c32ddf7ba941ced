// tests/desktop/tst_RoutinesFenetre.cpp
#include "desktop/RoutinesFenetre.h"
#include "noyau/Contournement.h"
#include "outils/BureauSimulay.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace RoutinesFenetre;

namespace {
// Not a number that Qt gives to a window offscreen, where it counts from 1.
// NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
HWND const kBureau = reinterpret_cast<HWND>(quintptr{0xB0B0B0});

// A widget that counts how often it was raised.
class Levay : public QWidget
{
public:
    using QWidget::QWidget;
    int compte = 0;

protected:
    bool event(QEvent * evenement) override
    {
        compte += evenement->type() == QEvent::ZOrderChange;
        return QWidget::event(evenement);
    }
};
} // namespace

// Handles, the foreground, hung windows, markers, on a desktop in memory.
class tst_RoutinesFenetre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void poigneeDUnWidget();
    void minimise();
    void avantPlanSansActiver_data();
    void avantPlanSansActiver();
    void avantPlanParPoignee();
    void activeSansForcer();
    void activeSansAvantPlan();
    void activeDepuisNotreThread();
    void activeDepuisUneFenetreGelee();
    void activeDepuisUnAutreProgramme();
    void activeMalgreUnAttachementRefusay();
    void premierPlanIntact();
    void activeUnWidget();
    void activeUnWidgetIconique_data();
    void activeUnWidgetIconique();
    void activePendantShowEvent();
    void gel_data();
    void gel();
    void focusClavier();
    void focusClavierSansAttachement();
    void focusClavierDeNotreThread();
    void bureauWindows_data();
    void bureauWindows();
    void marqueur();
    void marqueurSansClasse();
    void marqueurDUnAutre();
    void marqueurDerriereUnAutre();
    void insereCaractere();
    void enumere();
    void rienSurPoigneesMortes_data();
    void rienSurPoigneesMortes();
    void rienSansSysteme();

private:
    HWND AjouteFenetre(QString const & classe);
    /// A window of this program on the simulated desktop, under the handle of the widget.
    HWND AjouteWidget(QWidget & widget, QString const & classe = u"Notre"_s);

    FenetresSimulees * mesFenetres = nullptr; // owned by the library while it is in place
    BureauSimulay * monBureau = nullptr;
    std::unique_ptr<PlateformeFenetres> mesFenetresAvant;
    std::unique_ptr<PlateformeBureau> monBureauAvant;
};

void tst_RoutinesFenetre::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    mesFenetres->bureau = kBureau;
    mesFenetresAvant = PlateformeFenetres::Installe(std::move(fenetres));
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    monBureauAvant = PlateformeBureau::Installe(std::move(bureau));
}

void tst_RoutinesFenetre::cleanup()
{
    Contournement::Efface(u"UtiliserSendMessageTimeout"_s, u"Choix"_s);
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    PlateformeBureau::Installe(std::move(monBureauAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_RoutinesFenetre::AjouteFenetre(QString const & classe)
{
    FenetresSimulees::Fenetre fenetre;
    fenetre.classe = classe;
    return mesFenetres->Ajoute(fenetre);
}

HWND tst_RoutinesFenetre::AjouteWidget(QWidget & widget, QString const & classe)
{
    FenetresSimulees::Fenetre fenetre;
    fenetre.classe = classe;
    fenetre.processus = FenetresSimulees::kNotreProcessus;
    fenetre.thread = FenetresSimulees::kNotreThread;
    HWND const poignee = DonneHandleFenetre(&widget);
    mesFenetres->Ajoute(poignee, fenetre);
    return poignee;
}

void tst_RoutinesFenetre::poigneeDUnWidget()
{
    QWidget widget;
    QCOMPARE(widget.internalWinId(), WId(0));
    HWND const poignee = DonneHandleFenetre(&widget);
    QVERIFY(poignee);
    QCOMPARE(reinterpret_cast<WId>(poignee), widget.internalWinId());
    QCOMPARE(DonneHandleFenetre(nullptr), nullptr);
}

void tst_RoutinesFenetre::minimise()
{
    QWidget widget;
    HWND const fenetre = AjouteWidget(widget);
    MinimiserFenetre(&widget);
    QCOMPARE(mesFenetres->appels, QStringList{u"ShowWindow(Notre, 6)"_s});
    QVERIFY(mesFenetres->IsIconic(fenetre));
}

void tst_RoutinesFenetre::avantPlanSansActiver_data()
{
    QTest::addColumn<bool>("iconiquePourQt");
    QTest::addColumn<bool>("iconiquePourLeSysteme");
    QTest::addColumn<QStringList>("appels");
    QStringList const restaure{u"ShowWindow(Notre, 9)"_s};
    QTest::newRow("open") << false << false << QStringList();
    QTest::newRow("minimised says Qt") << true << false << restaure;
    QTest::newRow("minimised says the platform") << false << true << restaure;
    QTest::newRow("minimised say both") << true << true << restaure;
}

void tst_RoutinesFenetre::avantPlanSansActiver()
{
    QFETCH(bool, iconiquePourQt);
    QFETCH(bool, iconiquePourLeSysteme);
    QFETCH(QStringList, appels);
    Levay widget;
    HWND const fenetre = AjouteWidget(widget);
    if (iconiquePourQt)
        widget.setWindowState(Qt::WindowMinimized);
    if (iconiquePourLeSysteme)
        mesFenetres->Prete(fenetre).style |= WS_MINIMIZE;
    int const avant = widget.compte;

    MetsFenetreEnAvantPlan(&widget);

    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(widget.compte, avant + 1);
    QCOMPARE(mesFenetres->avantPlan, nullptr);
}

void tst_RoutinesFenetre::avantPlanParPoignee()
{
    QWidget autre;
    Levay widget;
    HWND const fenetre = AjouteWidget(widget);
    mesFenetres->Prete(fenetre).style |= WS_MINIMIZE;
    HWND const etrangere = AjouteFenetre(u"Editeur"_s);
    mesFenetres->Prete(etrangere).style |= WS_MINIMIZE;
    int const avant = widget.compte;

    MetsFenetreEnAvantPlan(etrangere);
    QCOMPARE(mesFenetres->appels, QStringList());

    MetsFenetreEnAvantPlan(fenetre);
    QCOMPARE(mesFenetres->appels, QStringList{u"ShowWindow(Notre, 9)"_s});
    QCOMPARE(widget.compte, avant + 1);
    // The search makes no windows.
    QCOMPARE(autre.internalWinId(), WId(0));
}

void tst_RoutinesFenetre::activeSansForcer()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    HWND const autre = AjouteFenetre(u"Autre"_s);
    mesFenetres->avantPlan = autre;

    MetsFenetreEnAvantPlanEtActive(editeur, false);

    QStringList const appels{u"SetForegroundWindow(Editeur)"_s, u"BringWindowToTop(Editeur)"_s};
    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(mesFenetres->avantPlan, editeur);
    QCOMPARE(mesFenetres->DonnePile().front(), editeur);
}

void tst_RoutinesFenetre::activeSansAvantPlan()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);

    MetsFenetreEnAvantPlanEtActive(editeur, true);

    QStringList const appels{u"SetWindowPos(Editeur, HWND_TOPMOST, 0x3)"_s,
                             u"SetWindowPos(Editeur, HWND_NOTOPMOST, 0x3)"_s};
    QCOMPARE(mesFenetres->appels, appels);
}

void tst_RoutinesFenetre::activeDepuisNotreThread()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    QWidget widget;
    mesFenetres->avantPlan = AjouteWidget(widget);
    mesFenetres->Prete(mesFenetres->avantPlan).gelee = true; // does not count for our own

    MetsFenetreEnAvantPlanEtActive(editeur, true);

    QStringList const appels{u"SetForegroundWindow(Editeur)"_s, u"BringWindowToTop(Editeur)"_s,
                             u"SetWindowPos(Editeur, HWND_TOPMOST, 0x3)"_s,
                             u"SetWindowPos(Editeur, HWND_NOTOPMOST, 0x3)"_s};
    QCOMPARE(mesFenetres->appels, appels);
}

void tst_RoutinesFenetre::activeDepuisUneFenetreGelee()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->avantPlan = AjouteFenetre(u"Gelee"_s);
    mesFenetres->Prete(mesFenetres->avantPlan).gelee = true;

    MetsFenetreEnAvantPlanEtActive(editeur, true);

    QStringList const appels{u"SetForegroundWindow(Editeur)"_s, u"BringWindowToTop(Editeur)"_s,
                             u"SetWindowPos(Editeur, HWND_TOPMOST, 0x3)"_s,
                             u"SetWindowPos(Editeur, HWND_NOTOPMOST, 0x3)"_s};
    QCOMPARE(mesFenetres->appels, appels);
}

void tst_RoutinesFenetre::activeDepuisUnAutreProgramme()
{
    QWidget widget;
    HWND const notre = AjouteWidget(widget);
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->avantPlan = editeur;

    MetsFenetreEnAvantPlanEtActive(notre, true);

    QStringList const appels{u"AttachThreadInput(201, 101, true)"_s,
                             u"SetForegroundWindow(Notre)"_s,
                             u"BringWindowToTop(Notre)"_s,
                             u"AttachThreadInput(201, 101, false)"_s,
                             u"SetWindowPos(Notre, HWND_TOPMOST, 0x3)"_s,
                             u"SetWindowPos(Notre, HWND_NOTOPMOST, 0x3)"_s};
    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(mesFenetres->avantPlan, notre);
    QCOMPARE(mesFenetres->DonnePile().front(), notre);
    QVERIFY(!(mesFenetres->Prete(notre).styleEtendu & WS_EX_TOPMOST));
}

void tst_RoutinesFenetre::activeMalgreUnAttachementRefusay()
{
    QWidget widget;
    HWND const notre = AjouteWidget(widget);
    mesFenetres->avantPlan = AjouteFenetre(u"Editeur"_s);
    mesFenetres->refuseAttachement = true;

    MetsFenetreEnAvantPlanEtActive(notre, true);

    QCOMPARE(mesFenetres->avantPlan, notre);
}

void tst_RoutinesFenetre::premierPlanIntact()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->Prete(editeur).styleEtendu |= WS_EX_TOPMOST;

    MetsFenetreEnAvantPlanEtActive(editeur, true);

    QCOMPARE(mesFenetres->appels, QStringList());
    QVERIFY(mesFenetres->Prete(editeur).styleEtendu & WS_EX_TOPMOST);
}

void tst_RoutinesFenetre::activeUnWidget()
{
    QWidget widget;
    HWND const notre = AjouteWidget(widget);
    AjouteFenetre(u"Editeur"_s);

    MetsFenetreEnAvantPlanEtActive(&widget, false);

    QStringList const appels{u"SetForegroundWindow(Notre)"_s, u"BringWindowToTop(Notre)"_s};
    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(mesFenetres->avantPlan, notre);
}

void tst_RoutinesFenetre::activeUnWidgetIconique_data()
{
    QTest::addColumn<bool>("pourQt");
    QTest::newRow("minimised says Qt") << true;
    QTest::newRow("minimised says the platform") << false;
}

void tst_RoutinesFenetre::activeUnWidgetIconique()
{
    QFETCH(bool, pourQt);
    QWidget widget;
    HWND const notre = AjouteWidget(widget);
    if (pourQt)
        widget.setWindowState(Qt::WindowMinimized);
    else
        mesFenetres->Prete(notre).style |= WS_MINIMIZE;

    MetsFenetreEnAvantPlanEtActive(&widget, false);

    QStringList const appels{u"SetForegroundWindow(Notre)"_s, u"BringWindowToTop(Notre)"_s,
                             u"ShowWindow(Notre, 9)"_s};
    QCOMPARE(mesFenetres->appels, appels);
    QVERIFY(!mesFenetres->IsIconic(notre));
}

void tst_RoutinesFenetre::activePendantShowEvent()
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
    // Without a window system, as for every alert of a test.
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    Boite boite;
    boite.show();
    QVERIFY(boite.isVisible());
    QVERIFY(!boite.isMinimized());
}

void tst_RoutinesFenetre::gel_data()
{
    QTest::addColumn<QVariant>("contournement");
    QTest::addColumn<bool>("gelee");
    QTest::addColumn<bool>("parMessage");
    QTest::newRow("the system knows, answers") << QVariant() << false << false;
    QTest::newRow("the system knows, hung") << QVariant() << true << false;
    QTest::newRow("the workaround is off, hung") << QVariant(false) << true << false;
    QTest::newRow("asked by a message, answers") << QVariant(true) << false << true;
    QTest::newRow("asked by a message, hung") << QVariant(true) << true << true;
}

void tst_RoutinesFenetre::gel()
{
    QFETCH(QVariant, contournement);
    QFETCH(bool, gelee);
    QFETCH(bool, parMessage);
    if (contournement.isValid())
        Contournement::EcrisBool(u"UtiliserSendMessageTimeout"_s, u"Choix"_s,
                                 contournement.toBool());
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->Prete(editeur).gelee = gelee;

    QCOMPARE(FenetreEstGelee(editeur), gelee);

    QStringList const message{u"SendMessageTimeoutW(Editeur, 0x0, 0x2, 5000)"_s};
    QCOMPARE(mesFenetres->appels, parMessage ? message : QStringList());
}

void tst_RoutinesFenetre::focusClavier()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    FenetresSimulees::Fenetre champ;
    champ.classe = u"Champ"_s;
    champ.parent = editeur;
    mesFenetres->focus = mesFenetres->Ajoute(champ);

    QCOMPARE(DonneControleEnFocusClavier(editeur), mesFenetres->focus);

    QStringList const appels{u"AttachThreadInput(101, 201, true)"_s,
                             u"AttachThreadInput(101, 201, false)"_s};
    QCOMPARE(mesFenetres->appels, appels);
}

void tst_RoutinesFenetre::focusClavierSansAttachement()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->focus = editeur;
    mesFenetres->refuseAttachement = true;

    QCOMPARE(DonneControleEnFocusClavier(editeur), nullptr);

    // What was not attached is not detached either.
    QCOMPARE(mesFenetres->appels, QStringList{u"AttachThreadInput(101, 201, true)"_s});
}

void tst_RoutinesFenetre::focusClavierDeNotreThread()
{
    // Deliberate: a thread can't be attached to itself.
    QWidget widget;
    mesFenetres->focus = AjouteWidget(widget);
    QCOMPARE(DonneControleEnFocusClavier(mesFenetres->focus), nullptr);
}

void tst_RoutinesFenetre::bureauWindows_data()
{
    QTest::addColumn<int>("versionMajeure");
    QTest::addColumn<QString>("classe");
    QTest::addColumn<QStringList>("enfants"); // each below the one before
    QTest::addColumn<bool>("estBureau");
    QStringList const icones{u"SHELLDLL_DefView"_s, u"SysListView32"_s};
    QTest::newRow("the host of the icons") << 10 << u"WorkerW"_s << icones << true;
    QTest::newRow("no Windows") << 0 << u"WorkerW"_s << icones << false;
    QTest::newRow("another class") << 10 << u"Progman"_s << icones << false;
    QTest::newRow("without the view") << 10 << u"WorkerW"_s << QStringList() << false;
    QTest::newRow("a view without icons") << 10 << u"WorkerW"_s << icones.mid(0, 1) << false;
    QTest::newRow("icons without the view") << 10 << u"WorkerW"_s << icones.mid(1) << false;
}

void tst_RoutinesFenetre::bureauWindows()
{
    QFETCH(int, versionMajeure);
    QFETCH(QString, classe);
    QFETCH(QStringList, enfants);
    QFETCH(bool, estBureau);
    monBureau->versionWindows = {versionMajeure, 0, 0};
    HWND const fenetre = AjouteFenetre(classe);
    HWND parent = fenetre;
    for (QString const & enfant : enfants) {
        FenetresSimulees::Fenetre description;
        description.classe = enfant;
        description.parent = parent;
        parent = mesFenetres->Ajoute(description);
    }

    QCOMPARE(TypIdFenetreEstBureauWindows7(fenetre), estBureau);
}

void tst_RoutinesFenetre::marqueur()
{
    HWND trouvee = kBureau;
    QVERIFY(!SingletonApplicationFenetreExiste("Unique", &trouvee));
    QCOMPARE(trouvee, nullptr);

    HWND const marqueur = SingletonApplicationCreeFenetre("Unique", "Titre");

    QVERIFY(marqueur);
    QStringList const creation{
        u"RegisterClassW(Unique, 0x200, 6)"_s,
        u"CreateWindowExW(0x80, Unique, Titre, 0x8000000, -11211, -11211, 1, 1)"_s};
    QCOMPARE(mesFenetres->appels, creation);
    QVERIFY(!mesFenetres->IsWindowVisible(marqueur));
    QVERIFY(SingletonApplicationFenetreExiste("Unique", &trouvee));
    QCOMPARE(trouvee, marqueur);
    QVERIFY(SingletonApplicationFenetreExiste("Unique", nullptr));
    QVERIFY(!SingletonApplicationFenetreExiste("Autre", nullptr));

    mesFenetres->appels.clear();
    SingletonApplicationDetruitFenetre("Unique");
    QStringList const fin{u"DestroyWindow(Unique)"_s, u"UnregisterClassW(Unique)"_s};
    QCOMPARE(mesFenetres->appels, fin);
    QVERIFY(!SingletonApplicationFenetreExiste("Unique", nullptr));

    mesFenetres->appels.clear();
    SingletonApplicationDetruitFenetre("Unique");
    QCOMPARE(mesFenetres->appels, QStringList());
    QVERIFY(SingletonApplicationCreeFenetre("Unique", "Titre"));
}

void tst_RoutinesFenetre::marqueurSansClasse()
{
    HWND const notre = SingletonApplicationCreeFenetre("Unique", "Titre");
    HWND trouvee = notre;
    QVERIFY(!SingletonApplicationFenetreExiste({}, &trouvee));
    QCOMPARE(trouvee, nullptr);
    SingletonApplicationDetruitFenetre({});
    QVERIFY(mesFenetres->IsWindow(notre));
    QCOMPARE(SingletonApplicationCreeFenetre({}, "Titre"), nullptr);
}

void tst_RoutinesFenetre::marqueurDUnAutre()
{
    HWND const autre = AjouteFenetre(u"Unique"_s);
    SingletonApplicationDetruitFenetre("Unique");
    QVERIFY(mesFenetres->IsWindow(autre));
}

void tst_RoutinesFenetre::marqueurDerriereUnAutre()
{
    // Deliberate: the first window of the class decides, and no process destroys another's.
    HWND const notre = SingletonApplicationCreeFenetre("Unique", "Titre");
    HWND const autre = AjouteFenetre(u"Unique"_s);

    SingletonApplicationDetruitFenetre("Unique");

    QVERIFY(mesFenetres->IsWindow(autre));
    QVERIFY(mesFenetres->IsWindow(notre));
    mesFenetres->Retire(autre);
    SingletonApplicationDetruitFenetre("Unique");
    QVERIFY(!mesFenetres->IsWindow(notre));
}

void tst_RoutinesFenetre::insereCaractere()
{
    HWND const editeur = AjouteFenetre(u"Editeur"_s);

    RoutinesGeneralesQt::InsereCaractereDansTexteur(editeur, 0xe9);

    // Deliberate: the scan code is 30, whatever the character is.
    QStringList const appels{u"PostMessageW(Editeur, 0x100, 0xe9, 0x1e0001)"_s,
                             u"PostMessageW(Editeur, 0x101, 0xe9, 0xc01e0001)"_s};
    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(mesFenetres->DonneTexteRecu(editeur), u"é"_s);
}

void tst_RoutinesFenetre::enumere()
{
    QWidget visible;
    auto * const enfant = new QLabel(&visible);
    auto * const enfantCache = new QLabel(&visible);
    enfantCache->hide();
    QWidget cachee;
    QWidget bureau;
    visible.show();
    bureau.show();
    mesFenetres->bureau = DonneHandleFenetre(&bureau);
    QSet<HWND> fenetres{kBureau};

    RoutinesGeneralesQt::EnumereFenMonApplication(&fenetres);

    // Deliberate: the child is asked for a window too, and so has one from here on.
    QSet<HWND> const attendues{kBureau, DonneHandleFenetre(&visible),
                               reinterpret_cast<HWND>(enfant->internalWinId())};
    QVERIFY(enfant->internalWinId());
    QCOMPARE(fenetres, attendues);
    QCOMPARE(cachee.internalWinId(), WId(0));
    RoutinesGeneralesQt::EnumereFenMonApplication(nullptr);
}

void tst_RoutinesFenetre::rienSurPoigneesMortes_data()
{
    QTest::addColumn<bool>("nulle");
    QTest::newRow("null") << true;
    QTest::newRow("the window has gone") << false;
}

void tst_RoutinesFenetre::rienSurPoigneesMortes()
{
    QFETCH(bool, nulle);
    HWND morte = nullptr;
    if (!nulle) {
        morte = AjouteFenetre(u"Morte"_s);
        mesFenetres->Retire(morte);
    }
    HWND const editeur = AjouteFenetre(u"Editeur"_s);
    mesFenetres->avantPlan = editeur;
    mesFenetres->focus = editeur;

    MetsFenetreEnAvantPlan(morte);
    MetsFenetreEnAvantPlanEtActive(morte, false);
    MetsFenetreEnAvantPlanEtActive(morte, true);
    QCOMPARE(mesFenetres->avantPlan, editeur);
    QStringList const tentatives{u"SetForegroundWindow(dead)"_s,
                                 u"BringWindowToTop(dead)"_s,
                                 u"AttachThreadInput(201, 0, true)"_s,
                                 u"SetForegroundWindow(dead)"_s,
                                 u"BringWindowToTop(dead)"_s,
                                 u"AttachThreadInput(201, 0, false)"_s,
                                 u"SetWindowPos(dead, HWND_TOPMOST, 0x3)"_s,
                                 u"SetWindowPos(dead, HWND_NOTOPMOST, 0x3)"_s};
    QCOMPARE(mesFenetres->appels, nulle ? QStringList() : tentatives);
    MetsFenetreEnAvantPlan(static_cast<QWidget *>(nullptr));
    MetsFenetreEnAvantPlanEtActive(static_cast<QWidget *>(nullptr), true);
    MinimiserFenetre(nullptr);
    QCOMPARE(DonneControleEnFocusClavier(morte), nullptr);
    QVERIFY(!TypIdFenetreEstBureauWindows7(morte));
    RoutinesGeneralesQt::InsereCaractereDansTexteur(morte, 'a');
    QVERIFY(!FenetreEstGelee(morte));
    // Deliberate: it does not answer.
    Contournement::EcrisBool(u"UtiliserSendMessageTimeout"_s, u"Choix"_s, true);
    QVERIFY(FenetreEstGelee(morte));
}

void tst_RoutinesFenetre::rienSansSysteme()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant)); // offscreen: the null one
    QWidget widget;
    widget.showMinimized();
    MetsFenetreEnAvantPlan(&widget);
    MetsFenetreEnAvantPlanEtActive(&widget, true);
    MinimiserFenetre(&widget);
    HWND const fenetre = DonneHandleFenetre(&widget);
    QVERIFY(!FenetreEstGelee(fenetre));
    QCOMPARE(DonneControleEnFocusClavier(fenetre), nullptr);
    QCOMPARE(SingletonApplicationCreeFenetre("Unique", "Titre"), nullptr);
    QVERIFY(!SingletonApplicationFenetreExiste("Unique", nullptr));
    SingletonApplicationDetruitFenetre("Unique");
    QCOMPARE(RechercheFenetreActive(), nullptr);
    HWND texteur = nullptr;
    DonneTexteurCourant(texteur, {});
    QCOMPARE(texteur, nullptr);
    QSet<HWND> fenetres;
    RoutinesGeneralesQt::EnumereFenMonApplication(&fenetres);
    QCOMPARE(fenetres, QSet<HWND>{fenetre});
}

QTEST_MAIN(tst_RoutinesFenetre)
#include "tst_RoutinesFenetre.moc"
