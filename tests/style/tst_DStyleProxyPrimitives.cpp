// tests/style/tst_DStyleProxyPrimitives.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

constexpr QRect kRect(10, 10, 40, 20);
constexpr QSize kTaille(60, 40);
constexpr QStyle::State kTout = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On |
                                QStyle::State_Sunken | QStyle::State_HasFocus;

} // namespace

class tst_DStyleProxyPrimitives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void focusRect_data();
    void focusRect();
    void etatsRetires_data();
    void etatsRetires();
    void panneauOutil_data();
    void panneauOutil();
    void panneauOutilForme();
    void flecheSansImage();
    void autresALaBase();
    void peintreRendu();
    void optionNulle();

private:
    QImage PeinsPrimitive(QStyle::PrimitiveElement element, QStyleOption const * option,
                          QWidget const * widget = nullptr) const;

    std::unique_ptr<BancStyle> monBanc;
    QStyleOption monOption;
};

void tst_DStyleProxyPrimitives::init()
{
    monBanc = std::make_unique<BancStyle>();
    monOption = QStyleOption();
    monOption.rect = kRect;
    monOption.palette = DonnePaletteEssai();
    monOption.state = kTout;
}

void tst_DStyleProxyPrimitives::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyPrimitives::PeinsPrimitive(QStyle::PrimitiveElement element,
                                                 QStyleOption const * option,
                                                 QWidget const * widget) const
{
    return Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(element, option, &peintre, widget);
    });
}

void tst_DStyleProxyPrimitives::focusRect_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyPrimitives::focusRect()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QWidget widget;
    widget.setProperty(DStyleProxy::DonneNomStyleFocusSansRect(), valeur);
    QStyleOptionFocusRect option;
    option.rect = kRect;
    option.state = kTout;

    QVERIFY(EstVide(PeinsPrimitive(QStyle::PE_FrameFocusRect, &option, &widget)));

    auto const appels = monBanc->espion->Donne(AppelStyle::kPrimitive);
    QCOMPARE(appels.size(), compte ? 0 : 1);
    if (!compte) {
        QCOMPARE(appels.first().element, int(QStyle::PE_FrameFocusRect));
        QCOMPARE(appels.first().option.state, kTout);
        QCOMPARE(appels.first().typeOption, int(QStyleOption::SO_FocusRect));
    }
}

void tst_DStyleProxyPrimitives::etatsRetires_data()
{
    QTest::addColumn<int>("element");
    QTest::addColumn<QStyle::State>("retires");
    QTest::addColumn<int>("type");
    QStyle::State const survol = QStyle::State_MouseOver;
    QStyle::State const survolEtCoche = survol | QStyle::State_On;
    QTest::newRow("frame of a line edit")
        << int(QStyle::PE_FrameLineEdit) << survol << int(QStyleOption::SO_Frame);
    QTest::newRow("panel of a tool button")
        << int(QStyle::PE_PanelButtonTool) << survolEtCoche << int(QStyleOption::SO_ToolButton);
    QTest::newRow("drop-down part of a tool button")
        << int(QStyle::PE_IndicatorButtonDropDown) << survolEtCoche
        << int(QStyleOption::SO_ToolButton);
    QTest::newRow("drop-down part of a button")
        << int(QStyle::PE_IndicatorButtonDropDown) << survolEtCoche << int(QStyleOption::SO_Button);
    QTest::newRow("panel of a line edit")
        << int(QStyle::PE_PanelLineEdit) << QStyle::State() << int(QStyleOption::SO_Frame);
    QTest::newRow("check box") << int(QStyle::PE_IndicatorCheckBox) << QStyle::State()
                               << int(QStyleOption::SO_Button);
    QTest::newRow("radio button") << int(QStyle::PE_IndicatorRadioButton) << QStyle::State()
                                  << int(QStyleOption::SO_Button);
}

void tst_DStyleProxyPrimitives::etatsRetires()
{
    QFETCH(int, element);
    QFETCH(QStyle::State, retires);
    QFETCH(int, type);
    QWidget widget;
    QStyleOptionFrame cadre;
    QStyleOptionToolButton outil;
    QStyleOptionButton bouton;
    QStyleOption * typee = &monOption;
    for (QStyleOption * candidate :
         std::initializer_list<QStyleOption *>{&cadre, &outil, &bouton}) {
        candidate->state = kTout;
        candidate->rect = kRect;
        candidate->palette = monOption.palette;
        if (candidate->type == type)
            typee = candidate;
    }

    PeinsPrimitive(QStyle::PrimitiveElement(element), &monOption, &widget);
    PeinsPrimitive(QStyle::PrimitiveElement(element), typee, &widget);

    auto const appels = monBanc->espion->Donne(AppelStyle::kPrimitive);
    QCOMPARE(appels.size(), 2);
    for (AppelStyle const & appel : appels) {
        QCOMPARE(appel.element, element);
        QCOMPARE(appel.option.state, kTout & ~retires);
        QCOMPARE(appel.rect, kRect);
        QCOMPARE(appel.palette, monOption.palette);
        QCOMPARE(appel.widget, &widget);
    }
    QCOMPARE(appels.at(1).typeOption, type); // copies keep their class
    QCOMPARE(monOption.state, kTout);
}

void tst_DStyleProxyPrimitives::panneauOutil_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<int>("alpha");
    QStyle::State const survol = QStyle::State_MouseOver;
    QStyle::State const coche = QStyle::State_On;
    QStyle::State const presse = QStyle::State_Sunken;
    QTest::newRow("normal") << QStyle::State() << 15;
    QTest::newRow("on") << coche << 15;
    QTest::newRow("under the mouse") << survol << 20;
    QTest::newRow("on under the mouse") << QStyle::State(coche | survol) << 30;
    QTest::newRow("sunken") << presse << 35;
    QTest::newRow("sunken, on and under the mouse") << QStyle::State(presse | coche | survol) << 35;
}

void tst_DStyleProxyPrimitives::panneauOutil()
{
    QFETCH(QStyle::State, etat);
    QFETCH(int, alpha);
    monOption.state = QStyle::State_Enabled | etat;

    QImage const image = PeinsPrimitive(QStyle::PE_PanelButtonTool, &monOption);

    QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, alpha));
    QCOMPARE(Alpha(image, kRect.left(), kRect.center().y()), alpha); // no outline
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_PanelButtonTool).size(), 1);
}

void tst_DStyleProxyPrimitives::panneauOutilForme()
{
    QImage const image = PeinsPrimitive(QStyle::PE_PanelButtonTool, &monOption);

    QCOMPARE(Encre(image), kRect);
    // The area outside of an arc is (1 - pi / 4) of its radius' square.
    for (QPoint const coin : {QPoint(10, 10), QPoint(46, 10), QPoint(10, 26), QPoint(46, 26)}) {
        double const vide = 16.0 - Couverture(image, QRect(coin, QSize(4, 4)), 35);
        QVERIFY2(qAbs(vide - 0.2146 * 3.0 * 3.0) < 0.4, qPrintable(QString::number(vide)));
    }
}

// The picture of the arrow is the application's, and this one has none.
void tst_DStyleProxyPrimitives::flecheSansImage()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));

    QVERIFY(EstVide(PeinsPrimitive(QStyle::PE_IndicatorArrowDown, &monOption)));
    QVERIFY(EstVide(PeinsPrimitive(QStyle::PE_IndicatorButtonDropDown, &monOption)));

    // Only the frame of the drop-down part goes to the base.
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kPrimitive).size(), 1);
}

void tst_DStyleProxyPrimitives::autresALaBase()
{
    QWidget widget;
    static constexpr QStyle::PrimitiveElement kNommes[] = {
        QStyle::PE_FrameFocusRect,    QStyle::PE_FrameLineEdit,
        QStyle::PE_PanelButtonTool,   QStyle::PE_IndicatorArrowDown,
        QStyle::PE_PanelItemViewRow,  QStyle::PE_IndicatorButtonDropDown,
        QStyle::PE_IndicatorCheckBox, QStyle::PE_PanelLineEdit,
        QStyle::PE_FrameTabBarBase,   QStyle::PE_IndicatorRadioButton,
        QStyle::PE_PanelItemViewItem};
    monOption.palette.setCurrentColorGroup(QPalette::Inactive);
    for (int element = 0; element <= int(QStyle::PE_PanelMenu); ++element) {
        if (std::find(std::begin(kNommes), std::end(kNommes), element) != std::end(kNommes))
            continue;
        for (QWidget const * donne :
             {static_cast<QWidget const *>(&widget), static_cast<QWidget const *>(nullptr)}) {
            monBanc->espion->appels.clear();
            QVERIFY(EstVide(PeinsPrimitive(QStyle::PrimitiveElement(element), &monOption, donne)));
            QCOMPARE(monBanc->espion->appels.size(), 1);
            AppelStyle const appel = monBanc->espion->appels.first();
            QCOMPARE(appel.element, element);
            QCOMPARE(appel.option.state, kTout);
            QCOMPARE(appel.palette.currentColorGroup(), QPalette::Inactive);
            QCOMPARE(appel.widget, donne);
            QCOMPARE(appel.opacite, 1.0);
        }
    }
}

void tst_DStyleProxyPrimitives::peintreRendu()
{
    QListView vue;
    QStyleOptionTabBarBase barre;
    barre.rect = kRect;
    QStyleOptionViewItem item;
    item.rect = kRect;
    item.state = kTout | QStyle::State_Selected;
    QPen const plume(Qt::green, 3.0);
    Peins(kTaille, [&](QPainter & peintre) {
        peintre.setPen(plume);
        peintre.setBrush(Qt::yellow);
        for (int element = 0; element <= int(QStyle::PE_PanelMenu); ++element) {
            for (QStyleOption const * option :
                 std::initializer_list<QStyleOption const *>{&monOption, &barre, &item}) {
                monBanc->style.drawPrimitive(QStyle::PrimitiveElement(element), option, &peintre,
                                             &vue);
                QCOMPARE(peintre.pen(), plume);
                QCOMPARE(peintre.brush(), QBrush(Qt::yellow));
                QCOMPARE(peintre.opacity(), 1.0);
                QVERIFY(!peintre.testRenderHint(QPainter::Antialiasing));
            }
        }
    });
}

// Without an option the base alone decides.
void tst_DStyleProxyPrimitives::optionNulle()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QTreeView vue;
    for (int element = 0; element <= int(QStyle::PE_PanelMenu); ++element) {
        monBanc->espion->appels.clear();
        QVERIFY(EstVide(PeinsPrimitive(QStyle::PrimitiveElement(element), nullptr, &vue)));
        QCOMPARE(monBanc->espion->appels.size(), 1);
        QCOMPARE(monBanc->espion->appels.first().element, element);
    }
}

QTEST_MAIN(tst_DStyleProxyPrimitives)
#include "tst_DStyleProxyPrimitives.moc"
