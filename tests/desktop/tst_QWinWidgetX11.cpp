// tests/desktop/tst_QWinWidgetX11.cpp
#include "desktop/DorvelWidgetCentrageNatif.h"
#include "desktop/QWinWidget.h"
#include "desktop/RoutinesFenetre.h"
#include "dialogs/DAlerte.h"
#include "dialogs/DDialogueProgressionInfinie.h"
#include "dialogs/StockageReponse.h"
#include "foundation/GeometrieEcran.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/plateforme/PlateformeFenetres.h"
#include "outils/ProgrammeEtranger.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDelai = 30'000; // ms; for what the window manager does in its own time

// Places itself like the windows of the library, when it is shown.
class Dialogue : public QDialog
{
public:
    explicit Dialogue(QWidget * parent = nullptr)
        : QDialog(parent)
    {
        resize(200, 100);
    }

protected:
    void showEvent(QShowEvent * evenement) override
    {
        QDialog::showEvent(evenement);
        RoutinesFenetre::CentrageWidgetDansParentOuEcran(this, false);
    }
};

// Looks at the first alert that comes onto the screen, then leaves it by its first button.
class Utilisateur : public QObject
{
public:
    explicit Utilisateur(std::function<void(QMessageBox const &)> regarde)
        : monRegard(std::move(regarde))
    {
        connect(&monMinuteur, &QTimer::timeout, this, &Utilisateur::Repond);
        monMinuteur.start(20);
    }

private:
    void Repond()
    {
        auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite || !QTest::qWaitForWindowExposed(boite, kDelai))
            return;
        monMinuteur.stop();
        monRegard(*boite);
        boite->buttons().constFirst()->click();
    }

    std::function<void(QMessageBox const &)> monRegard;
    QTimer monMinuteur;
};
} // namespace

// Dialogs of ours on a window of another process.
class tst_QWinWidgetX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void dialogueAttachay();
    void dialogueDejaCreay();
    void alerteCentreeSurLAutre();
    void alerteSurUneFenetreIconique();
    void finDuProgrammePendantUneAlerte();
    void finDuProgramme();
    void hoteDetruitAvant();
    void fermeAvecLAutre();

private:
    HWND Ouvre(QString const & titre);
    QRect DonneInterieur() const;
    bool EstCentreSurLAutre(QWidget const & fenetre) const;
    bool EstPremierPlan(HWND fenetre) const;
    static DAlerteInfo DonneAlerte();

    PlateformeFenetres & maPlateforme = PlateformeFenetres::Courante();
    std::unique_ptr<ProgrammeEtranger> monProgramme;
    HWND maFenetre = nullptr; // of the other program
};

void tst_QWinWidgetX11::initTestCase()
{
    if (QGuiApplication::platformName() != "xcb"_L1)
        QSKIP("Needs an X server.");
}

void tst_QWinWidgetX11::init()
{
    monProgramme = std::make_unique<ProgrammeEtranger>(u"EditeurEtranger"_s);
    maFenetre = Ouvre(u"Brouillon"_s);
    QVERIFY(maFenetre);
}

void tst_QWinWidgetX11::cleanup()
{
    monProgramme.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
}

HWND tst_QWinWidgetX11::Ouvre(QString const & titre)
{
    HWND const fenetre = monProgramme->DemandePoignee(u"fenetre "_s + titre);
    bool const devant = QTest::qWaitFor(
        [&] {
            return maPlateforme.GetForegroundWindow() == fenetre &&
                   maPlateforme.GetTopWindow(nullptr) == fenetre;
        },
        kDelai);
    return devant ? fenetre : nullptr;
}

QRect tst_QWinWidgetX11::DonneInterieur() const
{
    RECT client{};
    POINT coin{};
    maPlateforme.GetClientRect(maFenetre, &client);
    maPlateforme.ClientToScreen(maFenetre, &coin);
    return {coin.x, coin.y, client.right, client.bottom};
}

bool tst_QWinWidgetX11::EstCentreSurLAutre(QWidget const & fenetre) const
{
    // The frame is not known yet when a window places itself, so it may be off by a part of it.
    QPoint const ecart = fenetre.geometry().center() - DonneInterieur().center();
    QMargins const cadre = QMargins(30, 30, 30, 30);
    return QRect(0, 0, 1, 1).marginsAdded(cadre).contains(ecart);
}

bool tst_QWinWidgetX11::EstPremierPlan(HWND fenetre) const
{
    return maPlateforme.GetWindowLongPtrW(fenetre, GWL_EXSTYLE) & LONG_PTR{WS_EX_TOPMOST};
}

DAlerteInfo tst_QWinWidgetX11::DonneAlerte()
{
    return {DAlerteInfo::kInformation, "Message", kUniChaineNulle, "Titre"};
}

void tst_QWinWidgetX11::dialogueAttachay()
{
    QWinWidget hote(maFenetre);
    Dialogue dialogue(&hote);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue, kDelai));

    HWND const poignee = RoutinesFenetre::DonneHandleFenetre(&dialogue);
    QCOMPARE(maPlateforme.GetWindow(poignee, GW_OWNER), maFenetre);
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), poignee, kDelai);
    QTRY_VERIFY_WITH_TIMEOUT(EstCentreSurLAutre(dialogue), kDelai);
    QVERIFY(!hote.isVisible());
    QVERIFY(!maPlateforme.IsWindowVisible(RoutinesFenetre::DonneHandleFenetre(&hote)));

    // It stays in front of what it belongs to.
    QVERIFY(maPlateforme.BringWindowToTop(maFenetre));
    HWND const autre = Ouvre(u"Autre"_s);
    QVERIFY(autre);
    QVERIFY(maPlateforme.SetForegroundWindow(maFenetre));
    QTRY_COMPARE_WITH_TIMEOUT(maPlateforme.GetTopWindow(nullptr), poignee, kDelai);

    // From our dialog the search goes to what it stands on, or behind.
    HWND fenetre = poignee;
    RoutinesFenetre::DonneFenetreAvantPlan(fenetre, {});
    QCOMPARE(fenetre, maFenetre);
}

void tst_QWinWidgetX11::dialogueDejaCreay()
{
    // The dialog had a window before it had this parent.
    QWinWidget hote(maFenetre);
    Dialogue dialogue;
    dialogue.winId();
    dialogue.setParent(&hote, dialogue.windowFlags());
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue, kDelai));
    QCOMPARE(maPlateforme.GetWindow(RoutinesFenetre::DonneHandleFenetre(&dialogue), GW_OWNER),
             maFenetre);
}

void tst_QWinWidgetX11::alerteCentreeSurLAutre()
{
    bool attachee = false;
    bool centree = false;
    bool auDessus = false;
    Utilisateur const utilisateur([&](QMessageBox const & boite) {
        HWND const poignee = RoutinesFenetre::DonneHandleFenetre(&boite);
        attachee = maPlateforme.GetWindow(poignee, GW_OWNER) == maFenetre;
        centree = QTest::qWaitFor([&] { return EstCentreSurLAutre(boite); }, kDelai);
        auDessus = QTest::qWaitFor([&] { return EstPremierPlan(poignee); }, kDelai);
    });

    QCOMPARE(DAlerteCentrageNatif(maFenetre, DonneAlerte()), DDialogue::kBoutonOk);

    QVERIFY(attachee);
    QVERIFY(centree);
    QVERIFY(auDessus); // of the other program's windows, and not only while it comes up
}

void tst_QWinWidgetX11::alerteSurUneFenetreIconique()
{
    maPlateforme.ShowWindow(maFenetre, SW_MINIMIZE);
    QTRY_VERIFY_WITH_TIMEOUT(maPlateforme.IsIconic(maFenetre), kDelai);
    bool devant = false;
    Utilisateur const utilisateur([&](QMessageBox const & boite) {
        HWND const poignee = RoutinesFenetre::DonneHandleFenetre(&boite);
        devant =
            QTest::qWaitFor([&] { return maPlateforme.GetForegroundWindow() == poignee; }, kDelai);
    });
    QCOMPARE(DAlerteCentrageNatif(maFenetre, DonneAlerte()), DDialogue::kBoutonOk);
    QVERIFY(devant);
}

void tst_QWinWidgetX11::finDuProgrammePendantUneAlerte()
{
    bool survit = false;
    Utilisateur const utilisateur([&](QMessageBox const & boite) {
        monProgramme.reset();
        bool const finie =
            QTest::qWaitFor([&] { return !maPlateforme.IsWindow(maFenetre); }, kDelai);
        survit = finie && boite.isVisible();
    });
    QCOMPARE(DAlerteCentrageNatif(maFenetre, DonneAlerte()), DDialogue::kBoutonOk);
    QVERIFY(survit);
}

void tst_QWinWidgetX11::finDuProgramme()
{
    QWinWidget hote(maFenetre);
    Dialogue premier(&hote);
    premier.show();
    QVERIFY(QTest::qWaitForWindowExposed(&premier, kDelai));

    monProgramme.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!maPlateforme.IsWindow(maFenetre), kDelai);

    QVERIFY(premier.isVisible());
    Dialogue second(&hote);
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&second, kDelai));
    premier.hide();
    premier.show();
    QVERIFY(QTest::qWaitForWindowExposed(&premier, kDelai));
}

void tst_QWinWidgetX11::hoteDetruitAvant()
{
    auto hote = std::make_unique<QWinWidget>(maFenetre);
    Dialogue dialogue(hote.get());
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue, kDelai));
    dialogue.setParent(nullptr, dialogue.windowFlags());
    hote.reset();
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue, kDelai));
    // The native window is none of ours to destroy.
    QCOMPARE(monProgramme->Demande(u"visible Brouillon"_s), u"oui"_s);
    QVERIFY(maPlateforme.IsWindowVisible(maFenetre));
}

void tst_QWinWidgetX11::fermeAvecLAutre()
{
    DorvelWidgetCentrageNatif hote(maFenetre);
    QPointer<QDialog> const attente =
        new DDialogueProgressionInfinie(&hote, u"Un moment"_s, QString(), Qt::Dialog);
    attente->show();
    QVERIFY(QTest::qWaitForWindowExposed(attente, kDelai));
    QCOMPARE(maPlateforme.GetWindow(RoutinesFenetre::DonneHandleFenetre(attente), GW_OWNER),
             maFenetre);

    monProgramme.reset();

    QTRY_VERIFY_WITH_TIMEOUT(attente.isNull(), kDelai);
}

QTEST_MAIN(tst_QWinWidgetX11)
#include "tst_QWinWidgetX11.moc"
