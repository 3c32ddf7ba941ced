// tests/galerie/tst_PagePolices.cpp
#include "PagePolices.h"

#include "foundation/Polices.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {
// A logical resolution whose factor, 1.1770833..., no field shows in full; the base is the
// resolution that Qt scales by.
constexpr char kEcran[] =
    R"({"screens": [{"name": "A", "x": 0, "y": 0, "width": 1280, "height": 800,
                              "logicalDpi": 113, "logicalBaseDpi": 113, "dpr": 1}]})";
constexpr double kModulateur = 113.0 / 96.0;
} // namespace

class tst_PagePolices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void calculGardeLeFacteur();
    void facteurSaisi();
    void pointsSuiventLesBoutons_data();
    void pointsSuiventLesBoutons();
    void limites();
};

void tst_PagePolices::cleanup()
{
    ModulateurFont::LibereInstance();
}

void tst_PagePolices::calculGardeLeFacteur()
{
    PagePolices page;
    auto const * const champ = page.findChild<QDoubleSpinBox *>();
    QCOMPARE(champ->value(), 1.0);

    page.findChild<QPushButton *>(u"boutonCalcul"_s)->click();

    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), kModulateur);
    QVERIFY(std::abs(champ->value() - kModulateur) < 0.001);
    // A new page shows the factor, and leaves it as it is too.
    PagePolices const autre;
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), kModulateur);
}

void tst_PagePolices::facteurSaisi()
{
    PagePolices const page;
    auto const * const widget = page.findChild<QLabel *>(u"widgetAjustable"_s);
    int const avant = widget->font().pixelSize();

    page.findChild<QDoubleSpinBox *>()->setValue(2.0);

    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), 2.0);
    QCOMPARE(widget->font().pixelSize(), (avant + 1) / 2);
}

void tst_PagePolices::pointsSuiventLesBoutons_data()
{
    QTest::addColumn<double>("modulateur");
    for (double const modulateur : {0.5, 1.0, 1.25, 2.0})
        QTest::addRow("%g", modulateur) << modulateur;
}

void tst_PagePolices::pointsSuiventLesBoutons()
{
    QFETCH(double, modulateur);
    ModulateurFont::Instance()->PrendsModulateur(modulateur);
    PagePolices const page;
    auto const * const points = page.findChild<QSpinBox *>(u"points"_s);
    auto const * const widget = page.findChild<QLabel *>(u"widgetAjustable"_s);

    for (QString const & nom : {u"boutonPlus"_s, u"boutonPlus"_s, u"boutonMoins"_s}) {
        int const pixels = widget->font().pixelSize();

        page.findChild<QPushButton *>(nom)->click();

        QCOMPARE(points->value(),
                 qRound(ModulateurFont::Instance()->DonnePointSizeFDeFont(widget->font(), true)));
        QVERIFY(nom == u"boutonPlus" ? widget->font().pixelSize() >= pixels
                                     : widget->font().pixelSize() <= pixels);
    }
}

void tst_PagePolices::limites()
{
    PagePolices const page;
    auto * const points = page.findChild<QSpinBox *>(u"points"_s);

    points->setValue(points->minimum());
    QVERIFY(!page.findChild<QPushButton *>(u"boutonMoins"_s)->isEnabled());
    QVERIFY(page.findChild<QPushButton *>(u"boutonPlus"_s)->isEnabled());
    points->setValue(points->maximum());
    QVERIFY(page.findChild<QPushButton *>(u"boutonMoins"_s)->isEnabled());
    QVERIFY(!page.findChild<QPushButton *>(u"boutonPlus"_s)->isEnabled());
}

int main(int nombre, char ** arguments)
{
    QTemporaryFile ecran;
    if (!ecran.open() || ecran.write(kEcran) < 0 || !ecran.flush())
        return 1;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + ecran.fileName().toLocal8Bit());
    QApplication application(nombre, arguments);
    tst_PagePolices test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_PagePolices.moc"
