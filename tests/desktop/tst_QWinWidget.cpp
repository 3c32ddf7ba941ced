// tests/desktop/tst_QWinWidget.cpp
#include "desktop/QWinWidget.h"
#include "foundation/GeometrieEcran.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
constexpr QRect kClient(120, 130, 400, 300); // inside the offscreen screen

// Places itself like the windows of the library, when it is shown.
class Dialogue : public QDialog
{
public:
    explicit Dialogue(QWidget * parent)
        : QDialog(parent)
    {
        resize(200, 100);
    }

    QStringList appelsAvant; // of the platform, when it was last shown

protected:
    void showEvent(QShowEvent * evenement) override
    {
        auto const * const fenetres =
            dynamic_cast<FenetresSimulees *>(&PlateformeFenetres::Courante());
        appelsAvant = fenetres ? fenetres->appels : QStringList();
        QDialog::showEvent(evenement);
        RoutinesFenetre::CentrageWidgetDansParentOuEcran(this, false);
    }
};

// Halves are rounded on the way.
bool EstCentreSur(QWidget const & fenetre, QRect const & rect)
{
    QPoint const ecart = fenetre.frameGeometry().center() - rect.center();
    return qAbs(ecart.x()) <= 1 && qAbs(ecart.y()) <= 1;
}
} // namespace

class tst_QWinWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void reconnu();
    void prendLaPlaceDeLaFenetre();
    void placeSurUnEcranAgrandi();
    void jamaisMontre();
    void proprietaireNatif_data();
    void proprietaireNatif();
    void sansFenetresEtrangeresPourQt();
    void centreLesDialogues();
    void suitLaFenetre();
    void suitSansEnfantDirect();
    void survitALaFenetre();
    void sansFenetre_data();
    void sansFenetre();
    void detruitSesEnfants();
    void enfantPartiAilleurs();

private:
    HWND AjouteFenetre(QRect const & client = kClient);

    FenetresSimulees * mesFenetres = nullptr; // owned by the library while it is in place
    std::unique_ptr<PlateformeFenetres> mesFenetresAvant;
};

void tst_QWinWidget::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    mesFenetresAvant = PlateformeFenetres::Installe(std::move(fenetres));
}

void tst_QWinWidget::cleanup()
{
    PlateformeFenetres::Installe(std::move(mesFenetresAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

HWND tst_QWinWidget::AjouteFenetre(QRect const & client)
{
    FenetresSimulees::Fenetre fenetre;
    fenetre.classe = u"Editeur"_s;
    fenetre.client = client;
    return mesFenetres->Ajoute(fenetre);
}

void tst_QWinWidget::reconnu()
{
    HWND const fenetre = AjouteFenetre();
    QWinWidget hote(fenetre);
    QDialog dialogue(&hote);
    auto const * const parent = qobject_cast<QWinWidget *>(dialogue.parentWidget());
    QVERIFY(parent);
    QCOMPARE(parent->DonneFenetreNative(), fenetre);
    QVERIFY(!qobject_cast<QWinWidget *>(&dialogue));
    QVERIFY(hote.isWindow());
}

void tst_QWinWidget::prendLaPlaceDeLaFenetre()
{
    QWinWidget const hote(AjouteFenetre());
    QCOMPARE(hote.geometry(), kClient);
    QCOMPARE(hote.mapToGlobal(QPoint(0, 0)), kClient.topLeft());
}

void tst_QWinWidget::placeSurUnEcranAgrandi()
{
    HWND const fenetre = AjouteFenetre();
    // A monitor that Qt does not know leaves native pixels as they are.
    mesFenetres->Prete(fenetre).moniteur =
        mesFenetres->AjouteMoniteur({u"unknown"_s, QRect(0, 0, 800, 800), QRect(0, 0, 800, 800)});
    QCOMPARE(QWinWidget(fenetre).geometry(), kClient);

    QScreen const * const ecran = QGuiApplication::primaryScreen();
    mesFenetres->Prete(fenetre).moniteur =
        mesFenetres->AjouteMoniteur({ecran->name(), ecran->geometry(), ecran->geometry()});
    qreal const echelle = ecran->devicePixelRatio();
    QPoint const coin = (QPointF(kClient.topLeft()) / echelle).toPoint();
    QCOMPARE(QWinWidget(fenetre).geometry(),
             QRect(coin, (QSizeF(kClient.size()) / echelle).toSize()));
}

void tst_QWinWidget::jamaisMontre()
{
    QWinWidget hote(AjouteFenetre());
    hote.show();
    hote.setVisible(true);
    QVERIFY(!hote.isVisible());

    Dialogue dialogue(&hote);
    dialogue.show();
    QVERIFY(dialogue.isVisible());
    QVERIFY(!hote.isVisible());
    QVERIFY(!hote.windowHandle() || !hote.windowHandle()->isVisible());
    QVERIFY(mesFenetres->appels.filter(u"(Editeur"_s).isEmpty()); // nothing was done to it
}

void tst_QWinWidget::proprietaireNatif_data()
{
    QTest::addColumn<bool>("estControle");
    QTest::newRow("a window") << false;
    QTest::newRow("a control in a window") << true; // owns nothing, its window does
}

void tst_QWinWidget::proprietaireNatif()
{
    QFETCH(bool, estControle);
    HWND const fenetre = AjouteFenetre();
    HWND controle = fenetre;
    for (int etage = 0; estControle && etage < 2; ++etage) {
        FenetresSimulees::Fenetre description;
        description.classe = u"Controle"_s;
        description.client = kClient;
        description.parent = controle;
        controle = mesFenetres->Ajoute(description);
    }
    QWinWidget hote(controle);
    Dialogue dialogue(&hote);
    auto const poignee = reinterpret_cast<HWND>(dialogue.winId());
    mesFenetres->Ajoute(poignee, {.classe = u"Dialogue"_s});
    QStringList const appels{u"SetWindowLongPtrW(Dialogue, -8, Editeur)"_s};

    dialogue.show();
    QCOMPARE(mesFenetres->GetWindow(poignee, GW_OWNER), fenetre);
    QCOMPARE(mesFenetres->appels, appels);
    QCOMPARE(dialogue.appelsAvant, QStringList()); // Qt would undo it as the window comes up

    dialogue.hide();
    mesFenetres->Prete(poignee).proprietaire = nullptr;
    dialogue.show();
    QCOMPARE(mesFenetres->GetWindow(poignee, GW_OWNER), fenetre);

    mesFenetres->appels.clear();
    dialogue.hide();
    mesFenetres->Retire(fenetre);
    dialogue.show();
    QCOMPARE(mesFenetres->appels, QStringList());
}

void tst_QWinWidget::sansFenetresEtrangeresPourQt()
{
    // The platform of this test has none, and Qt says so when it is asked: once.
    QRegularExpression const avertissement(u"foreign windows"_s);
    QTest::ignoreMessage(QtWarningMsg, avertissement);
    QTest::failOnWarning(avertissement);
    QWinWidget hote(AjouteFenetre());
    for (int fois = 0; fois < 2; ++fois) {
        Dialogue dialogue(&hote);
        dialogue.show();
        QVERIFY(dialogue.isVisible());
    }
}

void tst_QWinWidget::centreLesDialogues()
{
    QWinWidget hote(AjouteFenetre());
    Dialogue dialogue(&hote);
    dialogue.show();
    QVERIFY(EstCentreSur(dialogue, kClient));
    QCOMPARE(dialogue.size(), QSize(200, 100));
}

void tst_QWinWidget::suitLaFenetre()
{
    HWND const fenetre = AjouteFenetre();
    QWinWidget hote(fenetre);
    Dialogue dialogue(&hote);
    mesFenetres->Prete(fenetre).client.translate(60, 70);
    dialogue.show();
    QVERIFY(EstCentreSur(dialogue, kClient.translated(60, 70)));

    // Another child, which centres itself before it is shown.
    mesFenetres->Prete(fenetre).client = kClient;
    QDialog autre(&hote);
    autre.resize(200, 100);
    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&autre, false);
    QVERIFY(EstCentreSur(autre, kClient));
}

void tst_QWinWidget::suitSansEnfantDirect()
{
    // A child that is no window of its own disturbs nothing.
    QWinWidget hote(AjouteFenetre());
    auto * const enfant = new QLabel(&hote);
    enfant->show();
    QVERIFY(!enfant->isVisible());
    new QTimer(&hote); // nor does one that is no widget
    QCOMPARE(hote.geometry(), kClient);
}

void tst_QWinWidget::survitALaFenetre()
{
    HWND const fenetre = AjouteFenetre();
    QWinWidget hote(fenetre);
    Dialogue premier(&hote);
    premier.show();
    mesFenetres->Retire(fenetre);

    QVERIFY(premier.isVisible());
    Dialogue second(&hote);
    second.show();
    QVERIFY(second.isVisible());
    QVERIFY(EstCentreSur(second, kClient)); // where it was last
    QCOMPARE(hote.DonneFenetreNative(), fenetre);
}

void tst_QWinWidget::sansFenetre_data()
{
    QTest::addColumn<bool>("nulle");
    QTest::addColumn<bool>("sansSysteme");
    QTest::newRow("null") << true << false;
    QTest::newRow("the window has gone") << false << false;
    QTest::newRow("null, no window system") << true << true;
    QTest::newRow("no window system") << false << true;
}

void tst_QWinWidget::sansFenetre()
{
    QFETCH(bool, nulle);
    QFETCH(bool, sansSysteme);
    HWND fenetre = nullptr;
    if (!nulle) {
        fenetre = AjouteFenetre();
        mesFenetres->Retire(fenetre);
    }
    if (sansSysteme)
        PlateformeFenetres::Installe(std::move(mesFenetresAvant)); // offscreen: the null one
    QWinWidget hote(fenetre);
    Dialogue dialogue(&hote);
    dialogue.show();
    QVERIFY(dialogue.isVisible());
    QVERIFY(!hote.isVisible());
    QVERIFY(!dialogue.windowHandle()->transientParent());
}

void tst_QWinWidget::detruitSesEnfants()
{
    auto hote = std::make_unique<QWinWidget>(AjouteFenetre());
    QPointer<QDialog> const dialogue = new Dialogue(hote.get());
    dialogue->show();
    hote.reset();
    QVERIFY(dialogue.isNull());
}

void tst_QWinWidget::enfantPartiAilleurs()
{
    HWND const fenetre = AjouteFenetre();
    QWinWidget hote(fenetre);
    Dialogue dialogue(&hote);
    dialogue.setParent(nullptr, dialogue.windowFlags());
    mesFenetres->Prete(fenetre).client.translate(60, 70);
    dialogue.show();
    QCOMPARE(hote.geometry(), kClient); // it is no longer told of it
    QVERIFY(!dialogue.windowHandle()->transientParent());
}

QTEST_MAIN(tst_QWinWidget)
#include "tst_QWinWidget.moc"
