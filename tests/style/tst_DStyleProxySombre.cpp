// tests/style/tst_DStyleProxySombre.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

constexpr QRect kRect(10, 10, 60, 24);
constexpr QSize kTaille(80, 44);
constexpr QStyle::State kSurvol = QStyle::State_Enabled | QStyle::State_MouseOver;

template <typename Option>
Option DonneOption(QStyle::State etat)
{
    Option option;
    option.rect = kRect;
    option.state = etat;
    option.palette = DonnePaletteSombre();
    return option;
}

QColor Blanc(int alpha)
{
    return {255, 255, 255, alpha};
}

} // namespace

// On dark backgrounds the overlays are white, as black wouldn't be seen, and texts are readable.
class tst_DStyleProxySombre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void biseau_data();
    void biseau();
    void ligneDeFocusDuBouton();
    void ongletSurvolay();
    void ongletSelectionnay_data();
    void ongletSelectionnay();
    void item();
    void panneauItem();
    void panneauOutil();
    void enTete();
    void partieMenu();

private:
    template <typename Option>
    QImage PeinsControle(QStyle::ControlElement element, Option const & option,
                         QWidget const * widget = nullptr) const
    {
        return Peins(kTaille, [&](QPainter & peintre) {
            monBanc->style.drawControl(element, &option, &peintre, widget);
        });
    }

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxySombre::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxySombre::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DStyleProxySombre::biseau_data()
{
    QTest::addColumn<bool>("fusion");
    QTest::addColumn<bool>("survol");
    QTest::addColumn<QColor>("attendue");
    QColor const bouton(53, 53, 53);
    QTest::newRow("its own") << false << false << bouton;
    QTest::newRow("its own on Fusion") << true << false << bouton;
    QTest::newRow("under the mouse") << false << true << Blanc(15);
    // 53 + (255 - 53) * 15 / 255
    QTest::newRow("under the mouse on Fusion") << true << true << QColor(65, 65, 65);
}

void tst_DStyleProxySombre::biseau()
{
    QFETCH(bool, fusion);
    QFETCH(bool, survol);
    QFETCH(QColor, attendue);
    QPushButton bouton;
    monBanc->espion->seDitFusion = fusion;

    PeinsControle(
        QStyle::CE_PushButtonBevel,
        DonneOption<QStyleOptionButton>(survol ? kSurvol : QStyle::State(QStyle::State_Enabled)),
        &bouton);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle);
    QCOMPARE(appels.size(), 1);
    QColor const couleur = appels.first().palette.button().color();
    QVERIFY2(SontProches(couleur, attendue, 1), qPrintable(couleur.name(QColor::HexArgb)));
}

void tst_DStyleProxySombre::ligneDeFocusDuBouton()
{
    QPushButton bouton;
    auto option = DonneOption<QStyleOptionButton>(QStyle::State_Enabled);
    option.features = QStyleOptionButton::DefaultButton;
    QImage const sans = PeinsControle(QStyle::CE_PushButtonBevel, option, &bouton);
    option.state |= QStyle::State_HasFocus;
    QImage const avec = PeinsControle(QStyle::CE_PushButtonBevel, option, &bouton);

    int plusClairs = 0;
    for (int y = 0; y < kTaille.height(); ++y) {
        int const avant = qGreen(sans.pixel(kRect.center().x(), y));
        int const apres = qGreen(avec.pixel(kRect.center().x(), y));
        QVERIFY(apres >= avant);
        plusClairs += apres > avant ? 1 : 0;
    }
    QVERIFY(plusClairs >= 1 && plusClairs <= 2);
}

void tst_DStyleProxySombre::ongletSurvolay()
{
    QImage const image =
        PeinsControle(QStyle::CE_TabBarTabShape, DonneOption<QStyleOptionTab>(kSurvol));

    QCOMPARE(image.pixelColor(kRect.center()), Blanc(15));
}

void tst_DStyleProxySombre::ongletSelectionnay_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QStyle::State>("etat");
    QTest::addColumn<QColor>("texte");
    QStyle::State const selection = QStyle::State_Enabled | QStyle::State_Selected;
    QStyle::State const normal = QStyle::State_Enabled;
    QTest::newRow("dark, selected") << DonnePaletteSombre() << selection << QColor(Qt::black);
    QTest::newRow("dark") << DonnePaletteSombre() << normal << QColor(Qt::white);
    QTest::newRow("light, selected") << DonnePaletteEssai() << selection << QColor(10, 20, 30);
}

// The selected tab is white on all backgrounds.
void tst_DStyleProxySombre::ongletSelectionnay()
{
    QFETCH(QPalette, palette);
    QFETCH(QStyle::State, etat);
    QFETCH(QColor, texte);
    auto option = DonneOption<QStyleOptionTab>(etat);
    option.palette = palette;
    QImage const image = PeinsControle(QStyle::CE_TabBarTabShape, option);
    if (etat & QStyle::State_Selected)
        QCOMPARE(image.pixelColor(kRect.center()), QColor(Qt::white));

    PeinsControle(QStyle::CE_TabBarTabLabel, option);

    auto const appels = monBanc->espion->Donne(AppelStyle::kControle, QStyle::CE_TabBarTabLabel);
    QCOMPARE(appels.size(), 1);
    QPalette const recue = appels.first().palette;
    QCOMPARE(recue.buttonText().color(), texte);
    bool const noire = texte == QColor(Qt::black);
    for (auto const role : {QPalette::WindowText, QPalette::Text})
        QCOMPARE(recue.color(role), noire ? QColor(Qt::black) : palette.color(role));
    QCOMPARE(option.palette, palette);
}

void tst_DStyleProxySombre::item()
{
    QTreeView arbre;

    QImage const image =
        PeinsControle(QStyle::CE_ItemViewItem, DonneOption<QStyleOptionViewItem>(kSurvol), &arbre);

    QCOMPARE(image.pixelColor(kRect.center()), Blanc(18));
}

void tst_DStyleProxySombre::panneauItem()
{
    QListView liste;
    auto const option = DonneOption<QStyleOptionViewItem>(kSurvol);

    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_PanelItemViewItem, &option, &peintre, &liste);
    });

    QCOMPARE(image.pixelColor(kRect.center()), Blanc(18));
}

void tst_DStyleProxySombre::panneauOutil()
{
    auto const option = DonneOption<QStyleOptionToolButton>(kSurvol);

    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_PanelButtonTool, &option, &peintre);
    });

    QCOMPARE(image.pixelColor(kRect.center()), Blanc(20));
}

void tst_DStyleProxySombre::enTete()
{
    auto option = DonneOption<QStyleOptionHeader>(kSurvol);
    option.position = QStyleOptionHeader::Middle;
    QImage const survol = PeinsControle(QStyle::CE_HeaderSection, option);
    option.state = QStyle::State_Enabled;
    QImage const separateur = PeinsControle(QStyle::CE_HeaderSection, option);

    QCOMPARE(survol.pixelColor(kRect.center()), Blanc(10));
    QCOMPARE(separateur.pixelColor(kRect.left(), kRect.center().y()), Blanc(50));
}

void tst_DStyleProxySombre::partieMenu()
{
    QToolButton bouton;
    auto option = DonneOption<QStyleOptionToolButton>(QStyle::State_Enabled);
    option.subControls = QStyle::SC_ToolButton | QStyle::SC_ToolButtonMenu;
    option.features = QStyleOptionToolButton::MenuButtonPopup | QStyleOptionToolButton::HasMenu;

    QImage const image = Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawComplexControl(QStyle::CC_ToolButton, &option, &peintre, &bouton);
    });

    QCOMPARE(image.pixelColor(Encre(image).center()), Blanc(20));
}

QTEST_MAIN(tst_DStyleProxySombre)
#include "tst_DStyleProxySombre.moc"
