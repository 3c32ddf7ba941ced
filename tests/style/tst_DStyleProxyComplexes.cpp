// tests/style/tst_DStyleProxyComplexes.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

constexpr QRect kRect(10, 10, 80, 30);
constexpr QSize kTaille(100, 50);
constexpr QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;

QStyleOptionComboBox DonneCombo(QStyle::State etat = kNormal)
{
    QStyleOptionComboBox option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteEssai();
    option.subControls = QStyle::SC_All;
    return option;
}

} // namespace

class tst_DStyleProxyComplexes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void comboSansCadre_data();
    void comboSansCadre();
    void comboLigneDeFocus_data();
    void comboLigneDeFocus();
    void comboLigneDeFocusPlace();
    void regletteActive();
    void autresALaBase();
    void optionDuMauvaisType();
    void peintreRendu();

private:
    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyComplexes::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyComplexes::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxyComplexes::comboSansCadre_data()
{
    AjouteValeurs(kBooleenSeul);
}

void tst_DStyleProxyComplexes::comboSansCadre()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QComboBox combo;
    combo.setProperty(DStyleProxy::DonneNomStyleComboBoxSansFrame(), valeur);
    QStyleOptionComboBox const option = DonneCombo(kNormal | QStyle::State_MouseOver);

    PeinsComplexe(*monBanc, kTaille, QStyle::CC_ComboBox, &option, &combo);

    AppelStyle const appel = PrendsAppel(*monBanc, QStyle::CC_ComboBox);
    QCOMPARE(appel.option.state.testFlag(QStyle::State_MouseOver), !compte);
    QCOMPARE(appel.cadre, !compte);
    QCOMPARE(appel.sousControles.testFlag(QStyle::SC_ComboBoxFrame), !compte);
    QVERIFY(appel.sousControles.testFlag(QStyle::SC_ComboBoxArrow));
    QVERIFY(option.frame);
}

void tst_DStyleProxyComplexes::comboLigneDeFocus_data()
{
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<bool>("modifiable");
    QTest::addColumn<bool>("ligne");
    QStyle::State const focus = kNormal | QStyle::State_HasFocus;
    QTest::newRow("focused") << focus << false << true;
    QTest::newRow("focused and editable") << focus << true << false;
    QTest::newRow("not focused") << kNormal << false << false;
    QTest::newRow("under the mouse")
        << QStyle::State(kNormal | QStyle::State_MouseOver) << false << false;
}

void tst_DStyleProxyComplexes::comboLigneDeFocus()
{
    QFETCH(QStyle::State, etat);
    QFETCH(bool, modifiable);
    QFETCH(bool, ligne);
    QComboBox combo;
    QStyleOptionComboBox option = DonneCombo(etat);
    option.editable = modifiable;

    QCOMPARE(!EstVide(PeinsComplexe(*monBanc, kTaille, QStyle::CC_ComboBox, &option, &combo)),
             ligne);
    PrendsAppel(*monBanc, QStyle::CC_ComboBox);

    combo.setProperty(DStyleProxy::DonneNomStyleComboBoxSansFrame(), true);
    QCOMPARE(!EstVide(PeinsComplexe(*monBanc, kTaille, QStyle::CC_ComboBox, &option, &combo)),
             ligne);
}

void tst_DStyleProxyComplexes::comboLigneDeFocusPlace()
{
    QComboBox combo;
    QStyleOptionComboBox const option = DonneCombo(kNormal | QStyle::State_HasFocus);

    QImage const image = PeinsComplexe(*monBanc, kTaille, QStyle::CC_ComboBox, &option, &combo);

    int const milieu = kRect.center().x();
    QCOMPARE(CouvertureColonne(image, milieu), 2.0);
    QRect const encre = Encre(image);
    QCOMPARE(encre.left(), kRect.left() + 2);
    // A flat cap ends on the last point, on this side of its pixel or on that.
    QVERIFY(encre.right() == kRect.right() - 3 || encre.right() == kRect.right() - 2);
    QVERIFY(encre.top() >= kRect.bottom() - 2 && encre.bottom() <= kRect.bottom() + 1);
    QCOMPARE(image.pixelColor(milieu, encre.top()), kAccentActif);
}

void tst_DStyleProxyComplexes::regletteActive()
{
    QSlider reglette;
    QStyleOptionSlider option;
    option.rect = kRect;
    option.palette = DonnePaletteEssai();
    for (auto const groupe : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        option.palette.setCurrentColorGroup(groupe);
        auto const attendu = groupe == QPalette::Inactive ? QPalette::Active : groupe;

        QVERIFY(EstVide(PeinsComplexe(*monBanc, kTaille, QStyle::CC_Slider, &option, &reglette)));
        QCOMPARE(PrendsAppel(*monBanc, QStyle::CC_Slider).palette.currentColorGroup(), attendu);

        PeinsComplexe(*monBanc, kTaille, QStyle::CC_ScrollBar, &option, &reglette);
        QCOMPARE(PrendsAppel(*monBanc, QStyle::CC_ScrollBar).palette.currentColorGroup(), groupe);
    }
}

void tst_DStyleProxyComplexes::autresALaBase()
{
    QWidget widget;
    QStyleOptionSlider option;
    option.rect = kRect;
    option.palette = DonnePaletteEssai(QPalette::Inactive);
    option.state = kNormal | QStyle::State_MouseOver | QStyle::State_HasFocus;
    for (auto const controle : {QStyle::CC_SpinBox, QStyle::CC_ScrollBar, QStyle::CC_TitleBar,
                                QStyle::CC_Dial, QStyle::CC_GroupBox, QStyle::CC_MdiControls}) {
        QVERIFY(EstVide(PeinsComplexe(*monBanc, kTaille, controle, &option, &widget)));
        QCOMPARE(monBanc->espion->appels.size(), 1);
        AppelStyle const appel = PrendsAppel(*monBanc, controle);
        QCOMPARE(appel.option.state, option.state);
        QCOMPARE(appel.palette.currentColorGroup(), QPalette::Inactive);
        QCOMPARE(appel.typeOption, int(QStyleOption::SO_Slider));
        QCOMPARE(appel.sousControles, option.subControls);
    }
}

void tst_DStyleProxyComplexes::optionDuMauvaisType()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QToolButton outil;
    QStyleOptionComplex option;
    option.rect = kRect;
    option.state = QStyle::State_HasFocus;
    for (QStyleOptionComplex const * donnee :
         {&option, static_cast<QStyleOptionComplex *>(nullptr)}) {
        for (int controle = 0; controle <= int(QStyle::CC_MdiControls); ++controle) {
            auto const element = QStyle::ComplexControl(controle);
            QVERIFY(EstVide(PeinsComplexe(*monBanc, kTaille, element, donnee, &outil)));
            QCOMPARE(PrendsAppel(*monBanc, element).avecOption, donnee != nullptr);
        }
    }
}

void tst_DStyleProxyComplexes::peintreRendu()
{
    QStyleOptionComboBox const combo = DonneCombo(kNormal | QStyle::State_HasFocus);
    QPen const plume(Qt::green, 3.0);
    Peins(kTaille, [&](QPainter & peintre) {
        peintre.setPen(plume);
        peintre.setRenderHint(QPainter::Antialiasing);
        monBanc->style.drawComplexControl(QStyle::CC_ComboBox, &combo, &peintre, nullptr);
        QCOMPARE(peintre.pen(), plume);
        QVERIFY(peintre.testRenderHint(QPainter::Antialiasing));
    });
}

QTEST_MAIN(tst_DStyleProxyComplexes)
#include "tst_DStyleProxyComplexes.moc"
