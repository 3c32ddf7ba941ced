// tests/style/tst_DStyleProxyIndicateur.cpp
#include "style/EssaisPeinture.h"

#include <QtTest>

namespace {

constexpr QSize kTaille(80, 60);

} // namespace

// The arrow of buttons, with the picture that an application brings.
class tst_DStyleProxyIndicateur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void absent_data();
    void absent();
    void aussiSurLaPartieDuMenu();
    void taille_data();
    void taille();
    void sansPlace();
    void etatInerte();
    void etatEnfoncay();
    void imageTardive();
    void ratio_data();
    void ratio();

private:
    QList<AppelStyle> PeinsFleche(QRect const & rect, QWidget const * widget = nullptr,
                                  QStyle::State etat = QStyle::State_Enabled) const;

    std::unique_ptr<BancStyle> monBanc;
};

void tst_DStyleProxyIndicateur::init()
{
    monBanc = std::make_unique<BancStyle>();
}

void tst_DStyleProxyIndicateur::cleanup()
{
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

// What reaches the base.
QList<AppelStyle> tst_DStyleProxyIndicateur::PeinsFleche(QRect const & rect, QWidget const * widget,
                                                         QStyle::State etat) const
{
    QStyleOption option;
    option.rect = rect;
    option.state = etat;
    monBanc->espion->appels.clear();
    Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &peintre, widget);
    });
    return monBanc->espion->appels;
}

void tst_DStyleProxyIndicateur::absent_data()
{
    AjouteValeurs(kToutVrai);
}

void tst_DStyleProxyIndicateur::absent()
{
    QFETCH(QVariant, valeur);
    QFETCH(bool, compte);
    QToolButton bouton;
    bouton.setProperty(DStyleProxy::DonneNomStyleDesactiveFlecheMenuBouton(), valeur);

    auto const appels = PeinsFleche(QRect(0, 0, 16, 24), &bouton);

    QCOMPARE(appels.size(), compte ? 0 : 1);
    if (!compte)
        QCOMPARE(appels.first().fonction, AppelStyle::kPixmap);
}

void tst_DStyleProxyIndicateur::aussiSurLaPartieDuMenu()
{
    QToolButton bouton;
    QStyleOptionToolButton option;
    option.rect = QRect(0, 0, 16, 24);
    option.state = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_On;
    Peins(kTaille, [&](QPainter & peintre) {
        monBanc->style.drawPrimitive(QStyle::PE_IndicatorButtonDropDown, &option, &peintre,
                                     &bouton);
    });

    auto const & appels = monBanc->espion->appels;
    QCOMPARE(appels.size(), 2);
    QCOMPARE(appels.at(0).fonction, AppelStyle::kPrimitive); // the base first
    QCOMPARE(appels.at(0).option.state, QStyle::State(QStyle::State_Enabled));
    QCOMPARE(appels.at(1).fonction, AppelStyle::kPixmap);
}

void tst_DStyleProxyIndicateur::taille_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<int>("cote");
    QTest::newRow("narrow") << QRect(4, 6, 12, 30) << 10;
    QTest::newRow("a button's drop-down part") << QRect(30, 0, 16, 24) << 10;
    QTest::newRow("wide") << QRect(0, 0, 60, 40) << 10;
    QTest::newRow("the width without margins") << QRect(4, 6, 9, 30) << 7;
}

void tst_DStyleProxyIndicateur::taille()
{
    QFETCH(QRect, rect);
    QFETCH(int, cote);

    auto const appels = PeinsFleche(rect);

    QCOMPARE(appels.size(), 1);
    AppelStyle const & appel = appels.first();
    QCOMPARE(appel.drapeaux, int(Qt::AlignHCenter | Qt::AlignVCenter));
    QCOMPARE(appel.drapeaux, 0x84);
    QVERIFY(rect.contains(appel.rect));
    QVERIFY(!appel.image.isNull());
    QCOMPARE(appel.image.deviceIndependentSize(), QSizeF(cote, cote));
    QCOMPARE(appel.image.toImage().pixelColor(0, 0), QColor(Qt::red));
}

void tst_DStyleProxyIndicateur::sansPlace()
{
    for (int const largeur : {-3, 0, 1, 2})
        QVERIFY(PeinsFleche(QRect(0, 0, largeur, 20)).isEmpty());
    QCOMPARE(PeinsFleche(QRect(0, 0, 3, 20)).size(), 1);
    QVERIFY(PeinsFleche(QRect()).isEmpty());
}

void tst_DStyleProxyIndicateur::etatInerte()
{
    QRect const rect(0, 0, 16, 24);

    auto const actifs = PeinsFleche(rect);
    auto const inertes = PeinsFleche(rect, nullptr, QStyle::State_None);

    QCOMPARE(actifs.size(), 1);
    QCOMPARE(inertes.size(), 1);
    QVERIFY(actifs.first().image.toImage() != inertes.first().image.toImage());
}

// No other picture: the file has one for all states.
void tst_DStyleProxyIndicateur::etatEnfoncay()
{
    QRect const rect(0, 0, 16, 24);

    auto const leves = PeinsFleche(rect);
    auto const enfonces = PeinsFleche(rect, nullptr, QStyle::State_Enabled | QStyle::State_On);

    QCOMPARE(leves.size(), 1);
    QCOMPARE(enfonces.size(), 1);
    QCOMPARE(enfonces.first().image.toImage(), leves.first().image.toImage());
}

// An application may load its resources when there are buttons already.
void tst_DStyleProxyIndicateur::imageTardive()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QRect const rect(0, 0, 16, 24);
    Q_CLEANUP_RESOURCE(ChevronBouton);
    bool const vides = PeinsFleche(rect).isEmpty() && PeinsFleche(rect).isEmpty();
    Q_INIT_RESOURCE(ChevronBouton);
    QVERIFY(vides);

    auto const appels = PeinsFleche(rect);

    QCOMPARE(appels.size(), 1);
    QCOMPARE(appels.first().image.toImage().pixelColor(0, 0), QColor(Qt::red));
}

void tst_DStyleProxyIndicateur::ratio_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("pixels"); // of the side of the picture
    QTest::newRow("1") << 1.0 << 10;
    QTest::newRow("1.25") << 1.25 << 13;
    QTest::newRow("2") << 2.0 << 20;
}

// As sharp as what it is drawn on, and as big to the eye.
void tst_DStyleProxyIndicateur::ratio()
{
    QFETCH(double, ratio);
    QFETCH(int, pixels);
    QStyleOption option;
    option.rect = QRect(0, 0, 16, 24);
    option.state = QStyle::State_Enabled;
    Peins(
        kTaille,
        [&](QPainter & peintre) {
            monBanc->style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &peintre);
        },
        ratio);

    QCOMPARE(monBanc->espion->appels.size(), 1);
    QPixmap const image = monBanc->espion->appels.first().image;
    QCOMPARE(image.size(), QSize(pixels, pixels));
    QVERIFY(qAbs(image.deviceIndependentSize().width() - 10.0) < 0.5);
    QCOMPARE(image.toImage().pixelColor(0, 0), QColor(Qt::red));
}

QTEST_MAIN(tst_DStyleProxyIndicateur)
#include "tst_DStyleProxyIndicateur.moc"
