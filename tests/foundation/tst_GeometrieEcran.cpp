// tests/foundation/tst_GeometrieEcran.cpp
#include "foundation/GeometrieEcran.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>

#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QTemporaryFile>

#include <optional>

using namespace Qt::StringLiterals;
using namespace RoutinesFenetre;
using namespace RoutinesGeneralesQt;

namespace {

constexpr char kPropriete[] = "DoitRefaireAjusteDansEcran";

// The screens of this test, wherever it runs; Qt puts them in the order of their names. Between the
// second and the third lies a gap.
constexpr char kEcrans[] = R"({"screens": [
    {"name": "main", "x": 0, "y": 0, "width": 1600, "height": 1400,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "small", "x": 1600, "y": 0, "width": 1024, "height": 800,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
    {"name": "twice", "x": 4000, "y": 0, "width": 1280, "height": 900,
     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}]})";

// What the functions answer where there is neither an application nor a screen.
struct Reponses
{
    QScreen * ecran = nullptr;
    QRect ajuste{-9, -9, 5, 5};
    QRect centre{-9, -9, 5, 5};
    int hauteur = 0;
    QSize taille;
    bool basse = true;
} reponsesSansApplication;

void DemandeSansApplication()
{
    Reponses & reponses = reponsesSansApplication;
    reponses.ecran = EcranLePlusProche(QPoint(1, 1));
    AjusteDansEcran(reponses.ajuste, true, true, true);
    CentreDansEcranActif(reponses.centre, true);
    reponses.hauteur = TrouveHauteurMaxSelonPositionDansEcran(QRect(0, 0, 5, 9999), true);
    reponses.taille = DonneTailleOptimaleFenetrePourEcran(QPoint(), QSize(9999, 9999));
    reponses.basse = EcranEstEnBasseResolution(QPoint());
}

int HauteurTitre()
{
    return QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

HWND Poignee(QWidget & widget)
{
    return reinterpret_cast<HWND>(widget.winId());
}

// Counts its moves and the announcements that it gets, and does something at each of these.
class FenetreTemoin : public QWidget
{
public:
    using QWidget::QWidget;

    int deplacements = 0;
    int annonces = 0;
    std::function<void()> surAnnonce;

protected:
    void moveEvent(QMoveEvent *) override { ++deplacements; }
    void customEvent(QEvent * evenement) override
    {
        if (evenement->type() != 1000)
            return;
        ++annonces;
        if (surAnnonce)
            surAnnonce();
    }
};

// A layer with a main window of another program at (200, 100), 600 by 500 inside.
class AvecParentNatif
{
public:
    explicit AvecParentNatif(QString const & moniteur = u"main"_s)
    {
        auto fenetres = std::make_unique<FenetresSimulees>();
        simulees = fenetres.get();
        FenetresSimulees::Fenetre parent;
        parent.client = QRect(200, 100, 600, 500);
        if (!moniteur.isEmpty())
            parent.moniteur = fenetres->AjouteMoniteur({moniteur, {}, {}});
        poignee = fenetres->Ajoute(parent);
        PlateformeFenetres::Installe(std::move(fenetres));
    }

    void Adopte(QWidget & widget)
    {
        FenetresSimulees::Fenetre enfant;
        enfant.proprietaire = poignee;
        simulees->Ajoute(Poignee(widget), enfant);
    }

    FenetresSimulees * simulees = nullptr;
    HWND poignee = nullptr;
};

// Names an owner that it does not take for a window, but tells its place all the same.
class ProprietaireRefuse : public FenetresSimulees
{
public:
    HWND GetWindow(HWND, UINT) override { return proprietaire; }
    bool IsWindow(HWND fenetre) override
    {
        return fenetre != proprietaire && FenetresSimulees::IsWindow(fenetre);
    }

    HWND proprietaire = nullptr;
};

} // namespace

class tst_GeometrieEcran : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void sansApplication();
    void ecranLePlusProche_data();
    void ecranLePlusProche();
    void resolution();

    void ajusteRect();
    void ajusteRectSelonSonCentre();
    void ajusteWidget();
    void ajusteWidgetInchangay();
    void ajusteWidgetRedimensionne_data();
    void ajusteWidgetRedimensionne();
    void ajusteCadreDeFenetre();
    void annonceAjustement();
    void annonceNeBouclePas();
    void annonceDetruitUneFenetre();

    void centreDansEcranDeLaSouris();
    void centreWidget();
    void hauteurMax();

    void centrageDansParentFenetre();
    void centrageDansParentEnfant();
    void centrageAjusteDansEcran();
    void centrageDansParentNatif_data();
    void centrageDansParentNatif();
    void centrageParentNatifMort();
    void centrageParentNatifRefuse();
    void centrageSansFenetreNative();
    void centrageSansParent();

    void deplaceSurAutreEcran();
    void deplaceSelonCadre();
    void deplaceAuDessusForce();
    void tailleOptimaleEtBasseResolution();

private:
    // Events of earlier tests that are still on their way.
    void VideFile() { QCoreApplication::processEvents(); }
};

void tst_GeometrieEcran::initTestCase()
{
    QStringList noms;
    for (QScreen const * const ecran : QGuiApplication::screens())
        noms.append(ecran->name());
    QCOMPARE(noms, QStringList({u"main"_s, u"small"_s, u"twice"_s}));
    QVERIFY(HauteurTitre() > 0);
}

void tst_GeometrieEcran::init()
{
    VideFile();
    QCursor::setPos(800, 700);
}

void tst_GeometrieEcran::cleanup()
{
    PlateformeFenetres::Installe(nullptr);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_GeometrieEcran::sansApplication()
{
    Reponses const & reponses = reponsesSansApplication;
    QCOMPARE(reponses.ecran, nullptr);
    QCOMPARE(reponses.ajuste, QRect(-9, -9, 5, 5));
    QCOMPARE(reponses.centre, QRect(-9, -9, 5, 5));
    QCOMPARE(reponses.hauteur, 9999);
    QCOMPARE(reponses.taille, QSize(9999, 9999));
    QVERIFY(!reponses.basse);
    QCOMPARE(DonneResolutionEcran(nullptr), QSize());
}

void tst_GeometrieEcran::ecranLePlusProche_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<QString>("nom");
    QTest::newRow("on the first") << QPoint(0, 0) << u"main"_s;
    QTest::newRow("its last pixel") << QPoint(1599, 1399) << u"main"_s;
    QTest::newRow("on the second") << QPoint(1600, 799) << u"small"_s;
    QTest::newRow("on the third") << QPoint(4000, 0) << u"twice"_s;
    QTest::newRow("above the first") << QPoint(500, -50) << u"main"_s;
    QTest::newRow("under the second, beside the first") << QPoint(1900, 900) << u"small"_s;
    // Centres at (2111, 399) and (4639, 449).
    QTest::newRow("in the gap, near the second") << QPoint(3300, 400) << u"small"_s;
    QTest::newRow("in the gap, near the third") << QPoint(3450, 400) << u"twice"_s;
}

void tst_GeometrieEcran::ecranLePlusProche()
{
    QFETCH(QPoint, point);
    QFETCH(QString, nom);
    QCOMPARE(EcranLePlusProche(point)->name(), nom);
}

void tst_GeometrieEcran::resolution()
{
    QCOMPARE(DonneResolutionEcran(EcranLePlusProche(QPoint(1700, 10))), QSize(1024, 800));
    QCOMPARE(DonneResolutionEcran(EcranLePlusProche(QPoint(4100, 10))), QSize(1280, 900));
}

void tst_GeometrieEcran::ajusteRect()
{
    QRect rect(-50, -60, 300, 200);
    AjusteDansEcran(rect, true, false, false);
    QCOMPARE(rect, QRect(5, 5, 300, 200));

    rect = QRect(10, 10, 3000, 3000);
    AjusteDansEcran(rect, false, true, true); // its centre is nearest to the first screen
    QCOMPARE(rect, QRect(0, 0, 1600, 1400 - HauteurTitre()));

    rect = QRect(0, 0, 3000, 3000);
    AjusteDansEcran(rect, true, false, true);
    QCOMPARE(rect, QRect(0, 0, 1590, 1390 - HauteurTitre()));
}

void tst_GeometrieEcran::ajusteRectSelonSonCentre()
{
    // More to the right than to the left: the second screen's.
    QRect rect(1500, -10, 400, 200);
    AjusteDansEcran(rect, false, false, false);
    QCOMPARE(rect, QRect(1600, 0, 400, 200));
    rect = QRect(1300, -10, 400, 200);
    AjusteDansEcran(rect, false, false, false);
    QCOMPARE(rect, QRect(1200, 0, 400, 200));
}

void tst_GeometrieEcran::ajusteWidget()
{
    FenetreTemoin fenetre;
    fenetre.setGeometry(1400, 1390, 300, 200);
    AjusteDansEcran(fenetre, false, true, false);
    QCOMPARE(fenetre.pos(), QPoint(1300, 1200));
    QCOMPARE(fenetre.size(), QSize(300, 200));
}

void tst_GeometrieEcran::ajusteWidgetInchangay()
{
    FenetreTemoin fenetre;
    fenetre.setGeometry(100, 1300, 300, 200);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    VideFile();
    fenetre.deplacements = 0;
    QPoint const avant = fenetre.pos();
    AjusteDansEcran(fenetre, true, false, false);
    VideFile();
    QCOMPARE(fenetre.pos(), avant);
    QCOMPARE(fenetre.deplacements, 0);
}

void tst_GeometrieEcran::ajusteWidgetRedimensionne_data()
{
    QTest::addColumn<QRect>("geometrie");
    QTest::addColumn<bool>("force");
    QTest::addColumn<bool>("redimensionne");
    QTest::addColumn<QRect>("resultat");
    // The screen is 1600 by 1400.
    QRect const large(100, 100, 2000, 300);
    QTest::newRow("too wide, flag off") << large << false << false << large;
    QTest::newRow("too wide, flag on") << large << false << true << QRect(100, 100, 1590, 300);
    QTest::newRow("too wide and moved, flag off")
        << large << true << false << QRect(5, 100, 2000, 300);
    QTest::newRow("too wide and moved, flag on")
        << large << true << true << QRect(5, 100, 1585, 300);
    QRect const haute(100, -10, 300, 2000);
    QTest::newRow("too high, flag off") << haute << false << false << QRect(100, 5, 300, 2000);
    QTest::newRow("too high, flag on")
        << haute << false << true << QRect(100, 5, 300, 1385 - HauteurTitre());
    QRect const petite(100, 100, 300, 200);
    QTest::newRow("fits, flag off") << petite << false << false << petite;
    QTest::newRow("fits, flag on") << petite << false << true << petite;
}

void tst_GeometrieEcran::ajusteWidgetRedimensionne()
{
    QFETCH(QRect, geometrie);
    QFETCH(bool, force);
    QFETCH(bool, redimensionne);
    QFETCH(QRect, resultat);
    FenetreTemoin fenetre;
    fenetre.setGeometry(geometrie);
    AjusteDansEcran(fenetre, true, force, redimensionne);
    QCOMPARE(fenetre.geometry(), resultat);
}

void tst_GeometrieEcran::ajusteCadreDeFenetre()
{
    QDialog dialogue;
    dialogue.setGeometry(100, 100, 300, 200);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));
    QSize const cadre = dialogue.frameSize();
    QVERIFY(cadre.width() > 300);
    dialogue.move(1500, 1390);
    AjusteDansEcran(dialogue, true, true, false);
    QCOMPARE(dialogue.pos(), QPoint(1600 - 5 - cadre.width(), 1400 - 5 - cadre.height()));

    dialogue.move(10, 10);
    dialogue.resize(3000, 300);
    AjusteDansEcran(dialogue, false, true, true);
    QCOMPARE(dialogue.frameSize().width(), 1600);
    QCOMPARE(dialogue.height(), 300);
}

void tst_GeometrieEcran::annonceAjustement()
{
    FenetreTemoin ancienne;
    FenetreTemoin sansAvis;
    sansAvis.setProperty(kPropriete, false);
    FenetreTemoin enfant(&ancienne);
    QRect rect(0, 0, 10, 10);

    AjusteDansEcran(rect, false, false, false);

    QVERIFY(!ancienne.property(kPropriete).isValid());
    QTRY_COMPARE(ancienne.annonces, 1);
    QCOMPARE(ancienne.property(kPropriete), QVariant(true));
    QCOMPARE(sansAvis.annonces, 0);
    QCOMPARE(sansAvis.property(kPropriete), QVariant(false));
    QCOMPARE(enfant.annonces, 0);
    QVERIFY(!enfant.property(kPropriete).isValid());
    QCOMPARE(ancienne.deplacements, 0);
}

void tst_GeometrieEcran::annonceNeBouclePas()
{
    FenetreTemoin fenetre;
    fenetre.surAnnonce = [&fenetre] { AjusteDansEcran(fenetre, true, false, false); };
    AjusteDansEcran(fenetre, true, false, false);
    QTRY_COMPARE(fenetre.annonces, 1);
    for (int i = 0; i < 10; ++i)
        VideFile();
    QCOMPARE(fenetre.annonces, 1);
    AjusteDansEcran(fenetre, true, false, false);
    QTRY_COMPARE(fenetre.annonces, 2);
}

void tst_GeometrieEcran::annonceDetruitUneFenetre()
{
    // Each destroys the other, whichever is told first.
    QPointer<FenetreTemoin> const premiere = new FenetreTemoin;
    QPointer<FenetreTemoin> const deuxieme = new FenetreTemoin;
    premiere->surAnnonce = [deuxieme] { delete deuxieme; };
    deuxieme->surAnnonce = [premiere] { delete premiere; };
    QRect rect(0, 0, 10, 10);
    AjusteDansEcran(rect, false, false, false);
    QTRY_VERIFY(!premiere || !deuxieme);
    FenetreTemoin * const reste = premiere ? premiere : deuxieme;
    QVERIFY(reste);
    QCOMPARE(reste->annonces, 1);
    delete reste;
}

void tst_GeometrieEcran::centreDansEcranDeLaSouris()
{
    QRect rect(0, 0, 400, 200);
    CentreDansEcranActif(rect, false);
    QCOMPARE(rect, QRect(600, 600, 400, 200));
    CentreDansEcranActif(rect, true); // 1400 in height
    QCOMPARE(rect, QRect(600, 300, 400, 200));

    QCursor::setPos(1700, 10);
    CentreDansEcranActif(rect, false);
    QCOMPARE(rect, QRect(1912, 300, 400, 200));
}

void tst_GeometrieEcran::centreWidget()
{
    FenetreTemoin fenetre;
    fenetre.resize(400, 200);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    QSize const cadre = fenetre.frameSize();
    CentreDansEcranActif(fenetre, true);
    QCOMPARE(fenetre.pos(), QPoint(800 - cadre.width() / 2, 400 - cadre.height() / 2));
    VideFile();
    fenetre.deplacements = 0;
    CentreDansEcranActif(fenetre, true);
    VideFile();
    QCOMPARE(fenetre.deplacements, 0);
}

void tst_GeometrieEcran::hauteurMax()
{
    QCOMPARE(TrouveHauteurMaxSelonPositionDansEcran(QRect(10, 0, 100, 1400), false), 1400);
    QCOMPARE(TrouveHauteurMaxSelonPositionDansEcran(QRect(10, 0, 100, 1401), false), 1399);
    QCOMPARE(TrouveHauteurMaxSelonPositionDansEcran(QRect(10, 0, 100, 1400), true), 1389);
    // The second screen is lower.
    QCOMPARE(TrouveHauteurMaxSelonPositionDansEcran(QRect(1610, 0, 100, 1400), false), 799);
    // On no screen: the primary one.
    QCOMPARE(TrouveHauteurMaxSelonPositionDansEcran(QRect(3000, 0, 100, 1401), false), 1399);
}

void tst_GeometrieEcran::centrageDansParentFenetre()
{
    QWidget parent;
    parent.setGeometry(300, 400, 600, 500);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QSize const cadre = parent.frameSize();
    QVERIFY(cadre.height() > 500);
    QDialog dialogue(&parent);
    dialogue.resize(200, 100);
    QPoint const origine = parent.mapToGlobal(QPoint(0, 0));
    QCOMPARE(origine, QPoint(300, 400));

    CentrageWidgetDansParentOuEcran(&dialogue, false);
    QPoint const centre = origine + QPoint((cadre.width() - 200) / 2, (cadre.height() - 100) / 2);
    QCOMPARE(dialogue.pos(), centre);

    CentrageWidgetDansParentOuEcran(&dialogue, true);
    QCOMPARE(dialogue.pos(), centre - QPoint(0, 107)); // 500 * 3 / 14 = 107.1
}

void tst_GeometrieEcran::centrageDansParentEnfant()
{
    QWidget parent;
    parent.setGeometry(300, 400, 600, 500);
    QWidget enfant(&parent);
    enfant.resize(200, 100);
    CentrageWidgetDansParentOuEcran(&enfant, false);
    QCOMPARE(enfant.pos(), QPoint(200, 200)); // in the parent
    CentrageWidgetDansParentOuEcran(&enfant, true);
    QCOMPARE(enfant.pos(), QPoint(200, 93));
}

void tst_GeometrieEcran::centrageAjusteDansEcran()
{
    QWidget parent;
    parent.setGeometry(0, -300, 400, 100);
    QDialog dialogue(&parent);
    dialogue.resize(200, 200);
    CentrageWidgetDansParentOuEcran(&dialogue, false);
    QCOMPARE(dialogue.pos(), QPoint(100, 5));
}

void tst_GeometrieEcran::centrageDansParentNatif_data()
{
    QTest::addColumn<QString>("moniteur");
    QTest::addColumn<int>("echelle");
    QTest::newRow("on a screen of the same ratio") << u"small"_s << 1;
    QTest::newRow("on a screen of twice the ratio") << u"twice"_s << 2;
    QTest::newRow("on a monitor that is no screen") << u"elsewhere"_s << 1;
    QTest::newRow("on no monitor") << QString() << 1;
}

void tst_GeometrieEcran::centrageDansParentNatif()
{
    QFETCH(QString, moniteur);
    QFETCH(int, echelle);
    AvecParentNatif natif(moniteur);
    QDialog dialogue;
    dialogue.resize(200, 100);
    natif.Adopte(dialogue);
    QSize const cadre = dialogue.frameSize() * echelle;
    QPoint const centre(200 + (600 - cadre.width()) / 2, 100 + (500 - cadre.height()) / 2);
    for (bool const plusHaut : {false, true}) {
        dialogue.move(0, 0);
        CentrageWidgetDansParentOuEcran(&dialogue, plusHaut);
        QCOMPARE(dialogue.pos(), centre);
    }
}

void tst_GeometrieEcran::centrageParentNatifMort()
{
    AvecParentNatif natif;
    QDialog dialogue;
    dialogue.resize(200, 100);
    natif.Adopte(dialogue);
    natif.simulees->Retire(natif.poignee);
    QRect attendu(QPoint(), dialogue.frameSize());
    CentreDansEcranActif(attendu, true);
    CentrageWidgetDansParentOuEcran(&dialogue, true);
    QCOMPARE(dialogue.pos(), attendu.topLeft());
}

void tst_GeometrieEcran::centrageParentNatifRefuse()
{
    auto plateforme = std::make_unique<ProprietaireRefuse>();
    FenetresSimulees::Fenetre parent;
    parent.client = QRect(200, 100, 600, 500);
    plateforme->proprietaire = plateforme->Ajoute(parent);
    PlateformeFenetres::Installe(std::move(plateforme));
    QDialog dialogue;
    dialogue.resize(200, 100);
    dialogue.winId();
    QRect attendu(QPoint(), dialogue.frameSize());
    CentreDansEcranActif(attendu, false);
    CentrageWidgetDansParentOuEcran(&dialogue, false);
    QCOMPARE(dialogue.pos(), attendu.topLeft());
}

void tst_GeometrieEcran::centrageSansFenetreNative()
{
    AvecParentNatif const natif;
    QDialog dialogue; // without a window, it has no owner either
    dialogue.resize(200, 100);
    CentrageWidgetDansParentOuEcran(&dialogue, false);
    QVERIFY(!dialogue.windowHandle());
    QCOMPARE(dialogue.pos(), QPoint(700, 650));
}

void tst_GeometrieEcran::centrageSansParent()
{
    QCursor::setPos(1700, 10);
    QDialog dialogue;
    dialogue.resize(200, 100);
    CentrageWidgetDansParentOuEcran(&dialogue, false);
    QCOMPARE(dialogue.pos(), QPoint(2012, 350));
}

void tst_GeometrieEcran::deplaceSurAutreEcran()
{
    QWidget fenetre(nullptr, Qt::Popup);
    // Its top left corner is on the second screen, though most of it hangs out below.
    auto const direction = DeplaceFenetreSiSorsDeLecranOuSurRect(
        &fenetre, QRect(2600, 790, 100, 300), {}, {}, {}, 10, kDirectionAucune);
    QCOMPARE(direction, kEnDessous);
    QCOMPARE(fenetre.pos(), QPoint(2524, 500));
}

void tst_GeometrieEcran::deplaceSelonCadre()
{
    QDialog dialogue;
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));
    int const bordGauche = dialogue.geometry().left() - dialogue.frameGeometry().left();
    int const bordDroit = dialogue.frameGeometry().right() - dialogue.geometry().right();
    QVERIFY(bordGauche > 0);
    QVERIFY(bordDroit > 0);

    DeplaceFenetreSiSorsDeLecranOuSurRect(&dialogue, QRect(0, 10, 100, 80), {}, {}, {}, 10,
                                          kAuDessusForce);
    QCOMPARE(dialogue.pos(), QPoint(bordGauche, 10));
    DeplaceFenetreSiSorsDeLecranOuSurRect(&dialogue, QRect(1599, 10, 100, 80), {}, {}, {}, 10,
                                          kAuDessusForce);
    QCOMPARE(dialogue.pos(), QPoint(1500 - bordDroit, 10));
}

void tst_GeometrieEcran::deplaceAuDessusForce()
{
    QWidget fenetre(nullptr, Qt::Popup);
    QRect const ancre(100, 500, 300, 40);
    auto const direction = DeplaceFenetreSiSorsDeLecranOuSurRect(&fenetre, QRect(150, 510, 100, 80),
                                                                 ancre, {}, {}, 10, kAuDessusForce);
    QCOMPARE(direction, kAuDessusForce);
    QCOMPARE(fenetre.pos(), QPoint(150, 410));
}

void tst_GeometrieEcran::tailleOptimaleEtBasseResolution()
{
    QSize const grande(5000, 600);
    QCOMPARE(DonneTailleOptimaleFenetrePourEcran(QPoint(5, 5), grande), QSize(1520, 600));
    QCOMPARE(DonneTailleOptimaleFenetrePourEcran(QPoint(1700, 5), grande), QSize(944, 600));
    QCOMPARE(DonneTailleOptimaleFenetrePourEcran(QPoint(1700, 700), QSize(900, 600)),
             QSize(900, 600));
    QVERIFY(!EcranEstEnBasseResolution(QPoint(5, 5)));
    QVERIFY(EcranEstEnBasseResolution(QPoint(1700, 5)));
    QVERIFY(EcranEstEnBasseResolution(QPoint(2700, 5))); // on none, nearest to the second
    QVERIFY(!EcranEstEnBasseResolution(QPoint(4100, 5)));
}

int main(int nombre, char ** arguments)
{
    DemandeSansApplication();
    QTemporaryFile ecrans;
    if (!ecrans.open() || ecrans.write(kEcrans) < 0 || !ecrans.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + ecrans.fileName().toLocal8Bit());
    QApplication application(nombre, arguments);
    tst_GeometrieEcran test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_GeometrieEcran.moc"
