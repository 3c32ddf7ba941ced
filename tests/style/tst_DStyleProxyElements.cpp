// tests/style/tst_DStyleProxyElements.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRect kRect(10, 10, 60, 24);
constexpr QSize kTaille(80, 44);

} // namespace

// The other control elements with a case of their own, and those without.
class tst_DStyleProxyElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void flecheOutil_data();
    void flecheOutil();
    void enTeteSeparateur_data();
    void enTeteSeparateur();
    void enTeteVertical();
    void enTeteSurvolay();
    void progressionActive();
    void cadres_data();
    void cadres();
    void autresALaBase();
    void optionDuMauvaisType();

private:
    QImage PeinsControle(QStyle::ControlElement element, QStyleOption const * option,
                         QWidget const * widget = nullptr) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyElements::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyElements::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QImage tst_DStyleProxyElements::PeinsControle(QStyle::ControlElement element,
                                              QStyleOption const * option,
                                              QWidget const * widget) const
{
    return Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawControl(element, option, &peintre, widget);
    });
}

void tst_DStyleProxyElements::flecheOutil_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("sansFleche");
    QTest::newRow("favourites") << u"BoutonFavorisChevronnable"_s << true;
    QTest::newRow("rewording") << u"DBoutonReformulation"_s << true;
    QTest::newRow("another name") << u"DBoutonReformulation2"_s << false;
    QTest::newRow("another case") << u"dboutonreformulation"_s << false;
    QTest::newRow("no name") << QString() << false;
}

void tst_DStyleProxyElements::flecheOutil()
{
    QFETCH(QString, nom);
    QFETCH(bool, sansFleche);
    QToolButton bouton;
    bouton.setObjectName(nom);
    QStyleOptionToolButton option;
    option.rect = kRect;
    option.features = QStyleOptionToolButton::Arrow | QStyleOptionToolButton::HasMenu;

    QVERIFY(EstVide(PeinsControle(QStyle::CE_ToolButtonLabel, &option, &bouton)));

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ToolButtonLabel);
    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().caracteristiques,
             quint32(sansFleche ? QStyleOptionToolButton::HasMenu : option.features));
    QVERIFY(option.features.testFlag(QStyleOptionToolButton::Arrow));
}

void tst_DStyleProxyElements::enTeteSeparateur_data()
{
    using EnTete = QStyleOptionHeader;
    QTest::addColumn<EnTete::SectionPosition>("position");
    QTest::addColumn<Qt::LayoutDirection>("sens");
    QTest::addColumn<bool>("separateur");
    QTest::newRow("beginning") << EnTete::Beginning << Qt::LeftToRight << false;
    QTest::newRow("middle") << EnTete::Middle << Qt::LeftToRight << true;
    QTest::newRow("end") << EnTete::End << Qt::LeftToRight << true;
    QTest::newRow("only one") << EnTete::OnlyOneSection << Qt::LeftToRight << false;
    QTest::newRow("beginning, right to left") << EnTete::Beginning << Qt::RightToLeft << false;
    QTest::newRow("middle, right to left") << EnTete::Middle << Qt::RightToLeft << true;
}

void tst_DStyleProxyElements::enTeteSeparateur()
{
    QFETCH(QStyleOptionHeader::SectionPosition, position);
    QFETCH(Qt::LayoutDirection, sens);
    QFETCH(bool, separateur);
    QStyleOptionHeader option;
    option.rect = kRect;
    option.state = QStyle::State_Enabled;
    option.direction = sens;
    option.position = position;

    QImage const image = PeinsControle(QStyle::CE_HeaderSection, &option);

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(!EstVide(image), separateur);
    if (separateur) {
        int const y = kRect.center().y();
        int const colonne = sens == Qt::LeftToRight ? kRect.left() : kRect.right();
        QCOMPARE(image.pixelColor(colonne, y), QColor(0, 0, 0, 50));
        QCOMPARE(CouvertureLigne(image, y, 50), 1.0);
        QVERIFY(Encre(image).height() >= kRect.height() / 2);
    }
}

// There the section in front is the one above.
void tst_DStyleProxyElements::enTeteVertical()
{
    QStyleOptionHeader option;
    option.rect = kRect;
    option.state = QStyle::State_Enabled;
    option.orientation = Qt::Vertical;
    option.position = QStyleOptionHeader::Middle;

    QImage const image = PeinsControle(QStyle::CE_HeaderSection, &option);

    QCOMPARE(Encre(image), QRect(kRect.left(), kRect.top(), kRect.width(), 1));
    QCOMPARE(image.pixelColor(kRect.center().x(), kRect.top()), QColor(0, 0, 0, 50));
}

void tst_DStyleProxyElements::enTeteSurvolay()
{
    QStyleOptionHeader option;
    option.rect = kRect;
    option.state = QStyle::State_Enabled | QStyle::State_MouseOver;
    option.position = QStyleOptionHeader::Beginning;

    QImage const image = PeinsControle(QStyle::CE_HeaderSection, &option);

    QVERIFY(monBanc->espion->appels.isEmpty());
    QCOMPARE(Encre(image), kRect);
    QCOMPARE(Couverture(image, kRect, 10), double(kRect.width() * kRect.height())); // no pen
    QCOMPARE(image.pixelColor(kRect.center()), QColor(0, 0, 0, 10));

    option.position = QStyleOptionHeader::Middle;
    QImage const autre = PeinsControle(QStyle::CE_HeaderSection, &option);
    QCOMPARE(autre.pixelColor(kRect.center()), QColor(0, 0, 0, 10));
    QVERIFY(Alpha(autre, kRect.left(), kRect.center().y()) >= 50); // the separator as well
}

void tst_DStyleProxyElements::progressionActive()
{
    QStyleOptionProgressBar option;
    option.rect = kRect;
    option.palette = DonnePaletteEssai();
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        option.palette.setCurrentColorGroup(groupe);
        PeinsControle(QStyle::CE_ProgressBarContents, &option);
        PeinsControle(QStyle::CE_ProgressBarGroove, &option);
        QCOMPARE(option.palette.currentColorGroup(), groupe);
    }

    auto const appels =
        monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ProgressBarContents);
    QCOMPARE(appels.size(), 3);
    QCOMPARE(appels.at(0).palette.currentColorGroup(), QPalette::Active);
    QCOMPARE(appels.at(1).palette.currentColorGroup(), QPalette::Active);
    QCOMPARE(appels.at(2).palette.currentColorGroup(), QPalette::Disabled);
    QCOMPARE(appels.at(1).typeOption, int(QStyleOption::SO_ProgressBar));
    auto const autres = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_ProgressBarGroove);
    QCOMPARE(autres.at(1).palette.currentColorGroup(), QPalette::Inactive);
}

void tst_DStyleProxyElements::cadres_data()
{
    QTest::addColumn<int>("forme");
    QTest::addColumn<bool>("sansLaBase");
    QTest::newRow("styled panel") << int(QFrame::StyledPanel) << true;
    QTest::newRow("panel") << int(QFrame::Panel) << true;
    QTest::newRow("box") << int(QFrame::Box) << false;
    QTest::newRow("no frame") << int(QFrame::NoFrame) << false;
    QTest::newRow("horizontal line") << int(QFrame::HLine) << false;
    QTest::newRow("vertical line") << int(QFrame::VLine) << false;
    QTest::newRow("window panel") << int(QFrame::WinPanel) << false;
}

void tst_DStyleProxyElements::cadres()
{
    QFETCH(int, forme);
    QFETCH(bool, sansLaBase);
    QFrame cadre;
    cadre.setStyle(&monBanc->style); // the common style asks the widget's
    monBanc->espion->appels.clear();
    QStyleOptionFrame option;
    option.rect = kRect;
    option.frameShape = QFrame::Shape(forme);
    option.state = QStyle::State_Sunken;
    option.lineWidth = 1;

    QImage const image = PeinsControle(QStyle::CE_ShapedFrame, &option, &cadre);

    QCOMPARE(monBanc->espion->Donne(AppelStyle::kControle).isEmpty(), sansLaBase);
    if (forme == QFrame::Panel)
        QVERIFY(!EstVide(image));
    // This frame is a primitive of the base.
    QCOMPARE(monBanc->espion->Donne(AppelStyle::kPrimitive, QStyle::PE_Frame).size(),
             forme == QFrame::StyledPanel ? 1 : 0);
}

void tst_DStyleProxyElements::autresALaBase()
{
    static constexpr QStyle::ControlElement kNommes[] = {
        QStyle::CE_PushButtonBevel, QStyle::CE_PushButtonLabel,    QStyle::CE_TabBarTabShape,
        QStyle::CE_ItemViewItem,    QStyle::CE_ToolButtonLabel,    QStyle::CE_HeaderSection,
        QStyle::CE_ShapedFrame,     QStyle::CE_ProgressBarContents};
    QWidget widget;
    QStyleOption option;
    option.rect = kRect;
    option.palette = DonnePaletteEssai(QPalette::Inactive);
    option.state = QStyle::State_MouseOver | QStyle::State_On | QStyle::State_Selected;
    for (int element = 0; element <= int(QStyle::CE_ShapedFrame); ++element) {
        if (std::find(std::begin(kNommes), std::end(kNommes), element) != std::end(kNommes))
            continue;
        monBanc->espion->appels.clear();
        QVERIFY(EstVide(PeinsControle(QStyle::ControlElement(element), &option, &widget)));
        QCOMPARE(monBanc->espion->appels.size(), 1);
        AppelStyle const appel = monBanc->espion->appels.first();
        QCOMPARE(appel.element, element);
        QCOMPARE(appel.option.state, option.state);
        QCOMPARE(appel.palette.currentColorGroup(), QPalette::Inactive);
        QCOMPARE(appel.opacite, 1.0);
        QCOMPARE(appel.widget, &widget);
    }
}

// Nor does a missing option stop the base from being asked.
void tst_DStyleProxyElements::optionDuMauvaisType()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QTabBar barre;
    QStyleOption option;
    option.rect = kRect;
    option.state = QStyle::State_MouseOver | QStyle::State_Selected;
    for (QStyleOption const * donnee :
         {static_cast<QStyleOption const *>(&option), static_cast<QStyleOption const *>(nullptr)}) {
        for (int element = 0; element <= int(QStyle::CE_ShapedFrame); ++element) {
            monBanc->espion->appels.clear();
            QVERIFY(EstVide(PeinsControle(QStyle::ControlElement(element), donnee, &barre)));
            QCOMPARE(monBanc->espion->appels.size(), 1);
            QCOMPARE(monBanc->espion->appels.first().element, element);
            QCOMPARE(monBanc->espion->appels.first().avecOption, donnee != nullptr);
        }
    }
}

QTEST_MAIN(tst_DStyleProxyElements)
#include "tst_DStyleProxyElements.moc"
