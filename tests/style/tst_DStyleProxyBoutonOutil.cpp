// tests/style/tst_DStyleProxyBoutonOutil.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

constexpr QRect kRect(10, 10, 80, 30);
constexpr QSize kTaille(100, 50);
constexpr QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;

QStyleOptionToolButton DonneOutil(QStyle::State etat = kNormal)
{
    QStyleOptionToolButton option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;
    return option;
}

} // namespace

// The complex control of tool buttons.
class tst_DStyleProxyBoutonOutil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void enfonce_data();
    void enfonce();
    void sansFleche_data();
    void sansFleche();
    void partieMenuPressee_data();
    void partieMenuPressee();
    void trait_data();
    void trait();
    void peintreRendu();
    void sansPartieMenu();
    void autreWidget();

private:
    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyBoutonOutil::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyBoutonOutil::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyBoutonOutil::enfonce_data()
{
    QTest::addColumn<bool>("enfonce");
    QTest::addColumn<bool>("releve");
    QTest::addColumn<bool>("coche");
    QTest::newRow("down and raised automatically") << true << true << false;
    QTest::newRow("down") << true << false << true;
    QTest::newRow("raised automatically") << false << true << true;
    QTest::newRow("neither") << false << false << true;
}

void tst_DStyleProxyBoutonOutil::enfonce()
{
    QFETCH(bool, enfonce);
    QFETCH(bool, releve);
    QFETCH(bool, coche);
    QToolButton bouton;
    bouton.setDown(enfonce);
    bouton.setAutoRaise(releve);
    QStyleOptionToolButton const option = DonneOutil(kNormal | QStyle::State_On);

    PeinsComplexe(*monBanc, kTaille, QStyle::CC_ToolButton, &option, &bouton);

    AppelStyle const appel = PrendsAppel(*monBanc, QStyle::CC_ToolButton);
    QCOMPARE(appel.option.state.testFlag(QStyle::State_On), coche);
    QCOMPARE(appel.option.state | QStyle::State_On, option.state);
    QCOMPARE(appel.sousControles, option.subControls);
    QVERIFY(option.state.testFlag(QStyle::State_On));
}

void tst_DStyleProxyBoutonOutil::sansFleche_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxyBoutonOutil::sansFleche()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QToolButton bouton;
    bouton.setProperty(DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton(), valeur);
    QStyleOptionToolButton const option = DonneOutil();

    PeinsComplexe(*monBanc, kTaille, QStyle::CC_ToolButton, &option, &bouton);

    AppelStyle const appel = PrendsAppel(*monBanc, QStyle::CC_ToolButton);
    QCOMPARE(appel.sousControles.testFlag(QStyle::SC_ToolButtonMenu), !compte);
    QVERIFY(appel.sousControles.testFlag(QStyle::SC_ToolButton));
}

void tst_DStyleProxyBoutonOutil::partieMenuPressee_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QStyle::SubControls>("actifs");
    QTest::addColumn<bool>("cadre");
    QStyle::State const presse = kNormal | QStyle::State_Sunken;
    QStyle::SubControls const menu = QStyle::SC_ToolButtonMenu;
    QTest::newRow("the menu part is pressed") << presse << menu << true;
    QTest::newRow("the button is pressed")
        << presse << QStyle::SubControls(QStyle::SC_ToolButton) << false;
    QTest::newRow("the menu part is under the mouse")
        << QStyle::State(kNormal | QStyle::State_MouseOver) << menu << false;
}

void tst_DStyleProxyBoutonOutil::partieMenuPressee()
{
    QFETCH(QStyle::State, etat);
    QFETCH(QStyle::SubControls, actifs);
    QFETCH(bool, cadre);
    QToolButton bouton;
    QStyleOptionToolButton option = DonneOutil(etat);
    option.activeSubControls = actifs;

    PeinsComplexe(*monBanc, kTaille, QStyle::CC_ToolButton, &option, &bouton);

    auto const appels =
        monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_IndicatorButtonDropDown);
    QCOMPARE(appels.size(), cadre ? 1 : 0);
    if (cadre) {
        QCOMPARE(appels.first().rect,
                 monBanc->style.subControlRect(QStyle::CC_ToolButton, &option,
                                               QStyle::SC_ToolButtonMenu, &bouton));
        QVERIFY(appels.first().option.state.testFlag(QStyle::State_Sunken));
    }
    QVERIFY(PrendsAppel(*monBanc, QStyle::CC_ToolButton)
                .sousControles.testFlag(QStyle::SC_ToolButtonMenu));
}

void tst_DStyleProxyBoutonOutil::trait_data()
{
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_DStyleProxyBoutonOutil::trait()
{
    QFETCH(Qt::LayoutDirection, sens);
    QToolButton bouton;
    QStyleOptionToolButton option = DonneOutil();
    option.direction = sens;

    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        peintre.setRenderHint(QPainter::Antialiasing);
        monBanc->style.drawComplexControl(QStyle::CC_ToolButton, &option, &peintre, &bouton);
    });

    QRect const partie = monBanc->style.subControlRect(QStyle::CC_ToolButton, &option,
                                                       QStyle::SC_ToolButtonMenu, &bouton);
    int const colonne = sens == Qt::LeftToRight ? partie.left() : partie.right();
    QCOMPARE(Encre(image), QRect(colonne, partie.top(), 1, partie.height()));
    QCOMPARE(image.pixelColor(colonne, partie.center().y()), QColor(0, 0, 0, 20));
    QCOMPARE(CouvertureColonne(image, colonne, 20), double(partie.height())); // not smoothed
}

void tst_DStyleProxyBoutonOutil::peintreRendu()
{
    QToolButton bouton;
    QStyleOptionToolButton const option = DonneOutil();
    QPen const plume(Qt::green, 3.0);
    Peins(kTaille, [&](QPainter & peintre) {
        peintre.setPen(plume);
        peintre.setRenderHint(QPainter::Antialiasing);
        monBanc->style.drawComplexControl(QStyle::CC_ToolButton, &option, &peintre, &bouton);
        QCOMPARE(peintre.pen(), plume);
        QVERIFY(peintre.testRenderHint(QPainter::Antialiasing));
    });
}

void tst_DStyleProxyBoutonOutil::sansPartieMenu()
{
    QToolButton bouton;
    QStyleOptionToolButton option = DonneOutil();
    option.features = {};
    option.subControls = QStyle::SC_ToolButton;

    QVERIFY(EstVide(PeinsComplexe(*monBanc, kTaille, QStyle::CC_ToolButton, &option, &bouton)));

    QCOMPARE(PrendsAppel(*monBanc, QStyle::CC_ToolButton).sousControles, QStyle::SC_ToolButton);
}

void tst_DStyleProxyBoutonOutil::autreWidget()
{
    QWidget autre;
    autre.setProperty(DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton(), true);
    QStyleOptionToolButton option = DonneOutil(kNormal | QStyle::State_Sunken);
    option.activeSubControls = QStyle::SC_ToolButtonMenu;
    for (QWidget const * widget :
         {static_cast<QWidget const *>(&autre), static_cast<QWidget const *>(nullptr)}) {
        QVERIFY(EstVide(PeinsComplexe(*monBanc, kTaille, QStyle::CC_ToolButton, &option, widget)));
        QCOMPARE(monBanc->espion->appels.size(), 1);
        QCOMPARE(PrendsAppel(*monBanc, QStyle::CC_ToolButton).sousControles, option.subControls);
    }
}

QTEST_MAIN(tst_DStyleProxyBoutonOutil)
#include "tst_DStyleProxyBoutonOutil.moc"
