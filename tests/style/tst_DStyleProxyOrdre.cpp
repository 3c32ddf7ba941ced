// tests/style/tst_DStyleProxyOrdre.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(0, 0, 60, 24);

QStyleOptionMenuItem DonneItem(QStyle::State etat)
{
    QStyleOptionMenuItem option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.text = u"Couper\tCtrl+X"_s;
    option.checkType = QStyleOptionMenuItem::Exclusive;
    return option;
}

} // namespace

// What drawControl reads first, for all elements, and in which order.
class tst_DStyleProxyOrdre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rienPourChampSansLigne_data();
    void rienPourChampSansLigne();
    void rienPourTousLesElements();
    void monochrome_data();
    void monochrome();
    void monochromeEtats_data();
    void monochromeEtats();
    void monochromeAvantMenu();
    void monochromeAvantWidgetDeStyle();
    void menuAvantWidgetDeStyle();
    void widgetDeStyleSansCasParticuliers_data();
    void widgetDeStyleSansCasParticuliers();
    void peintreRendu_data();
    void peintreRendu();
    void widgetNul();

private:
    QImage PeinsControle(QStyle::ControlElement element, QStyleOption const & option) const;

    std::unique_ptr<BancStyle> monBanc;
    std::unique_ptr<QWidget> monWidget;
};

void tst_DStyleProxyOrdre::init()
{
    monBanc = std::make_unique<BancStyle>();
    monWidget = std::make_unique<QWidget>();
}

void tst_DStyleProxyOrdre::cleanup()
{
    monWidget.reset();
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyOrdre::PeinsControle(QStyle::ControlElement element,
                                           QStyleOption const & option) const
{
    return Peins(kRect.size(), [&](QPainter & peintre) {
        monBanc->style.drawControl(element, &option, &peintre, monWidget.get());
    });
}

void tst_DStyleProxyOrdre::rienPourChampSansLigne_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyOrdre::rienPourChampSansLigne()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monWidget->setProperty(DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice(),
                           valeur);
    QStyleOptionFrame option;
    option.rect = kRect;

    PeinsControle(QStyle::CE_ShapedFrame, option);

    QCOMPARE(monBanc->espion->appels.isEmpty(), compte);
}

// Before the menu items, before the widgets of the style and before every special case.
void tst_DStyleProxyOrdre::rienPourTousLesElements()
{
    monWidget->setProperty(DStyleProxy::DonneNomAttributStyleChampTexteSansLigneDecoratrice(),
                           true);
    monWidget->setProperty(DStyleProxy::DonneNomProprietePossedeRegleTexteRiche(), true);
    QVERIFY(EstVide(PeinsControle(QStyle::CE_MenuItem, DonneItem(QStyle::State_Enabled))));

    QStyleOptionTab onglet;
    onglet.rect = kRect;
    onglet.state = QStyle::State_Selected;
    for (bool const deStyle : {false, true}) {
        monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyle(), deStyle);
        for (int element = QStyle::CE_PushButton; element <= int(QStyle::CE_ShapedFrame); ++element)
            QVERIFY(EstVide(PeinsControle(QStyle::ControlElement(element), onglet)));
    }
    QVERIFY(monBanc->espion->appels.isEmpty());
}

void tst_DStyleProxyOrdre::monochrome_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyOrdre::monochrome()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), valeur);

    PeinsControle(QStyle::CE_CheckBoxLabel, QStyleOptionButton());

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().opacite, compte ? 0.55 : 1.0);
}

void tst_DStyleProxyOrdre::monochromeEtats_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<double>("opacite");
    QTest::newRow("disabled") << QStyle::State() << 0.55;
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << 1.0;
    QTest::newRow("disabled but active and focused")
        << QStyle::State(QStyle::State_Active | QStyle::State_HasFocus) << 0.55;
    QTest::newRow("enabled and pressed")
        << QStyle::State(QStyle::State_Enabled | QStyle::State_Sunken) << 1.0;
}

void tst_DStyleProxyOrdre::monochromeEtats()
{
    QFETCH(QStyle::State, etat);
    QFETCH(double, opacite);
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), true);
    QStyleOptionToolButton option;
    option.state = etat;

    PeinsControle(QStyle::CE_ToolButtonLabel, option);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().opacite, opacite);
}

void tst_DStyleProxyOrdre::monochromeAvantMenu()
{
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), true);

    PeinsControle(QStyle::CE_MenuItem, DonneItem(QStyle::State()));
    PeinsControle(QStyle::CE_MenuItem, DonneItem(QStyle::State_Enabled));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_MenuItem);
    QCOMPARE(appels.size(), 2);
    QCOMPARE(appels.at(0).opacite, 0.55);
    QCOMPARE(appels.at(1).opacite, 1.0);
}

void tst_DStyleProxyOrdre::monochromeAvantWidgetDeStyle()
{
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), true);
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);

    PeinsControle(QStyle::CE_PushButtonLabel, QStyleOptionButton());

    QCOMPARE(monBanc->espion->appels.size(), 1);
    QCOMPARE(monBanc->espion->appels.first().opacite, 0.55);
}

void tst_DStyleProxyOrdre::menuAvantWidgetDeStyle()
{
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyle(), true);
    monWidget->setProperty(DStyleProxy::DonneNomAttributStyleCrochetMenu(), true);

    PeinsControle(QStyle::CE_MenuItem, DonneItem(QStyle::State_Enabled));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_MenuItem);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().typeCoche, int(QStyleOptionMenuItem::NonExclusive));
}

void tst_DStyleProxyOrdre::widgetDeStyleSansCasParticuliers_data()
{
    AjouteValeurs(kBooleenSeul);
}

// A selected tab and a header section are painted without the base, unless the widget is the
// style's.
void tst_DStyleProxyOrdre::widgetDeStyleSansCasParticuliers()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyle(), valeur);
    QStyleOptionTab onglet;
    onglet.rect = kRect;
    onglet.state = QStyle::State_Enabled | QStyle::State_Selected;
    QStyleOptionHeader entete;
    entete.rect = kRect;
    entete.state = QStyle::State_Enabled | QStyle::State_MouseOver;
    QStyleOptionFrame cadre;
    cadre.rect = kRect;
    cadre.frameShape = QFrame::StyledPanel;

    QCOMPARE(EstVide(PeinsControle(QStyle::CE_TabBarTabShape, onglet)), compte);
    QCOMPARE(EstVide(PeinsControle(QStyle::CE_HeaderSection, entete)), compte);
    PeinsControle(QStyle::CE_ShapedFrame, cadre);

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle).size(), compte ? 3 : 0);
}

void tst_DStyleProxyOrdre::peintreRendu_data()
{
    QTest::addColumn<int>("conduite");
    QTest::addColumn<bool>("monochrome");
    QTest::addColumn<bool>("actif");
    for (bool const derange : {false, true}) {
        for (bool const monochrome : {false, true}) {
            for (bool const actif : {false, true})
                QTest::addRow("the base %s%s%s",
                              derange ? "leaves the painter in disorder" : "draws nothing",
                              monochrome ? ", pale" : "", actif ? ", enabled" : ", disabled")
                    << int(derange ? StyleEspion::kDerange : StyleEspion::kMuet) << monochrome
                    << actif;
        }
    }
}

void tst_DStyleProxyOrdre::peintreRendu()
{
    QFETCH(int, conduite);
    QFETCH(bool, monochrome);
    QFETCH(bool, actif);
    monBanc = std::make_unique<BancStyle>(StyleEspion::eConduite(conduite));
    monWidget->setProperty(DStyleProxy::DonneNomAttributPourStyleMonochrome(), monochrome);
    QStyleOptionButton option;
    option.rect = kRect;
    option.state.setFlag(QStyle::State_Enabled, actif);
    QPen const plume(Qt::green, 3.0);
    Peins(kRect.size(), [&](QPainter & peintre) {
        peintre.setPen(plume);
        peintre.setBrush(Qt::yellow);
        peintre.setOpacity(0.75);
        for (int element = QStyle::CE_PushButton; element <= int(QStyle::CE_ShapedFrame);
             ++element) {
            monBanc->style.drawControl(QStyle::ControlElement(element), &option, &peintre,
                                       monWidget.get());
            QCOMPARE(peintre.pen(), plume);
            QCOMPARE(peintre.brush(), QBrush(Qt::yellow));
            QCOMPARE(peintre.opacity(), 0.75);
            QVERIFY(peintre.worldTransform().isIdentity());
            QVERIFY(!peintre.testRenderHint(QPainter::Antialiasing));
        }
    });
}

// Nothing but the state is read without a widget.
void tst_DStyleProxyOrdre::widgetNul()
{
    monWidget.reset();
    QStyleOptionMenuItem const item = DonneItem(QStyle::State());

    PeinsControle(QStyle::CE_MenuItem, item);
    PeinsControle(QStyle::CE_CheckBoxLabel, QStyleOptionButton());

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 2);
    QCOMPARE(appels.at(0).opacite, 1.0);
    QCOMPARE(appels.at(0).texte, item.text);
    QCOMPARE(appels.at(0).typeCoche, int(QStyleOptionMenuItem::Exclusive));
    QCOMPARE(appels.at(1).widget, nullptr);
}

QTEST_MAIN(tst_DStyleProxyOrdre)
#include "tst_DStyleProxyOrdre.moc"
