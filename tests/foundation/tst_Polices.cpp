// tests/foundation/tst_Polices.cpp
#include "foundation/Polices.h"
#include "foundation/ProgrammeEnfant.h"

#include <QtTest>

#include <QDialog>
#include <QFontInfo>
#include <QTemporaryFile>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr char kOptionModulateur[] = "--modulateur";

constexpr char kResolution[] = "QT_FONT_DPI"; // dots per inch, whatever the screen has

QFont FontEnPoints(double points)
{
    QFont font;
    font.setPointSizeF(points);
    return font;
}

QFont FontEnPixels(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

// Notes the widgets whose font changes, by name.
class EspionPolices : public QObject
{
public:
    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::FontChange && !noms.contains(objet->objectName()))
            noms.append(objet->objectName());
        return false;
    }

    QStringList noms;
};

// Takes a sibling with it when its font changes.
class WidgetDestructeur : public QWidget
{
public:
    using QWidget::QWidget;

    QPointer<QWidget> victime;

protected:
    void changeEvent(QEvent * evenement) override
    {
        if (evenement->type() == QEvent::FontChange)
            delete victime;
        QWidget::changeEvent(evenement);
    }
};

} // namespace

class tst_Polices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void instance();
    void libereInstance();
    void modulateurACalculer();
    void modulateurCalculeSelonResolution();
    void prendsModulateur();
    void pointsVersPixels_data();
    void pointsVersPixels();
    void pointsVersPixelsArrondisVersLeHaut();
    void pointsVersPixelsGardeLeReste();
    void pointsVersPixelsParFamille();
    void pointsVersPixelsAvecDiff();
    void pixelSize_data();
    void pixelSize();
    void pointSize_data();
    void pointSize();
    void unites();

    void ajusteTaille_data();
    void ajusteTaille();
    void metsTaille();
    void ajusterRecursivement();
    void ajusterRecursivementUnEnfantDisparait();
};

void tst_Polices::init()
{
    QCOMPARE(ModulateurFont::singletonModulateur, nullptr);
}

void tst_Polices::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_Polices::instance()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    QVERIFY(modulateur);
    QCOMPARE(ModulateurFont::singletonModulateur, modulateur);
    QCOMPARE(modulateur->DonneModulateurEffectif(), 1.0);
    QCOMPARE(ModulateurFont::Instance(), modulateur);
}

void tst_Polices::libereInstance()
{
    ModulateurFont::Instance()->PrendsModulateur(2.0);
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), 2.0);
    ModulateurFont::LibereInstance();
    QCOMPARE(ModulateurFont::singletonModulateur, nullptr);
    ModulateurFont::LibereInstance();
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), 1.0);
}

void tst_Polices::modulateurACalculer()
{
    QCOMPARE(ModulateurFont::DonneModulateurCalculee(), 1.0); // see below for another resolution

    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(-1.0);
    QCOMPARE(modulateur->DonneModulateurEffectif(), -1.0);
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), 1.0);
    QCOMPARE(modulateur->DonneModulateurEffectif(), 1.0);

    // Only exactly -1.0 asks for it.
    modulateur->PrendsModulateur(-1.5);
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), -1.5);
}

void tst_Polices::modulateurCalculeSelonResolution()
{
    // The base is the resolution that Qt scales by; the two equal leave it to the application.
    QTemporaryFile ecrans;
    QVERIFY(ecrans.open());
    ecrans.write(R"({"screens": [{"name": "dense", "x": 0, "y": 0, "width": 800, "height": 600,
                     "logicalDpi": 144, "logicalBaseDpi": 144, "dpr": 1}]})");
    ecrans.close();
    QCOMPARE(LanceEnfant({QString::fromLatin1(kOptionModulateur)},
                         {{u"QT_QPA_PLATFORM"_s, u"offscreen:configfile="_s + ecrans.fileName()}}),
             u"1.5"_s);
}

void tst_Polices::prendsModulateur()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(1.25);
    QCOMPARE(modulateur->DonneModulateurEffectif(), 1.25);
    QCOMPARE(modulateur->DonneValeurDeZoom(10.0), 8.0);
    QCOMPARE(modulateur->DonneValeurDeZoom(-5.0), -4.0);
    QCOMPARE(modulateur->DonneValeurDeZoom(0.0), 0.0);
}

void tst_Polices::pointsVersPixels_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<int>("pixels"); // what the font's info answers for these points
    QTest::addColumn<double>("modulateur");
    QTest::addColumn<int>("modules");
    struct
    {
        double points;
        int pixels;
        int modules[5];
    } const tailles[] = {
        {1.0, 1, {2, 1, 1, 1, 1}},       {8.0, 11, {22, 11, 9, 8, 6}},
        {10.0, 13, {26, 13, 11, 9, 7}},  {10.5, 14, {28, 14, 12, 10, 7}},
        {12.0, 16, {32, 16, 13, 11, 8}}, {36.0, 48, {96, 48, 39, 32, 24}},
    };
    double const modulateurs[] = {0.5, 1.0, 1.25, 1.5, 2.0};
    for (auto const & taille : tailles) {
        for (std::size_t i = 0; i < std::size(modulateurs); ++i)
            QTest::addRow("%g points at %g", taille.points, modulateurs[i])
                << taille.points << taille.pixels << modulateurs[i] << taille.modules[i];
    }
}

void tst_Polices::pointsVersPixels()
{
    QFETCH(double, points);
    QFETCH(int, pixels);
    QFETCH(double, modulateur);
    QFETCH(int, modules);
    QCOMPARE(QFontInfo(FontEnPoints(points)).pixelSize(), pixels);
    ModulateurFont::Instance()->PrendsModulateur(modulateur);
    QFont const font = ModulateurFont::Instance()->DonneFontPointVersPixels(points, QFont());
    QCOMPARE(font.pixelSize(), modules);
    QCOMPARE(font.pointSize(), -1);
}

void tst_Polices::pointsVersPixelsArrondisVersLeHaut()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    QCOMPARE(QFontInfo(FontEnPoints(10.0)).pixelSize(), 13);
    modulateur->PrendsModulateur(26.0); // half a pixel
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 1);
    modulateur->PrendsModulateur(13.0); // exactly one
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 1);
    modulateur->PrendsModulateur(12.9); // a little more than one
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 2);
    modulateur->PrendsModulateur(1.5); // 13 / 1.5 is 8.67
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 9);
}

void tst_Polices::pointsVersPixelsGardeLeReste()
{
    QFont source = FontEnPoints(30.0);
    source.setBold(true);
    source.setUnderline(true);
    QFont const font = ModulateurFont::Instance()->DonneFontPointVersPixels(10.0, source);
    QVERIFY(font.bold());
    QVERIFY(font.underline());
    QCOMPARE(font.families(), source.families());
    QCOMPARE(source.pointSize(), 30);
}

void tst_Polices::pointsVersPixelsParFamille()
{
    QFont const font = ModulateurFont::Instance()->DonneFontPointVersPixels(10.0, u"Une police"_s);
    QCOMPARE(font.family(), u"Une police"_s);
    QVERIFY(!font.italic());
    QCOMPARE(font.pixelSize(), 13);
}

void tst_Polices::pointsVersPixelsAvecDiff()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(1.5);
    QFont const enPoints = FontEnPoints(12.0);
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(enPoints, 2.5).pixelSize(),
             13); // 14.5 points are 19
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(enPoints, -4.0).pixelSize(),
             8); // 8 points are 11
    // A font in pixels is read with the modulator: 30 pixels are 22.5 points, and 25.5 points 34.
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(FontEnPixels(20), 3.0).pixelSize(), 23);
}

void tst_Polices::pixelSize_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("brute");
    QTest::addColumn<int>("avec");
    QTest::addColumn<int>("sansMod");
    // Deliberate: only a size that comes from points is modulated in the one, and any in the other.
    QTest::newRow("sized in pixels") << FontEnPixels(15) << 15 << 15 << 26;   // 25.5
    QTest::newRow("sized in points") << FontEnPoints(10.0) << 13 << 23 << 23; // 22.1
}

void tst_Polices::pixelSize()
{
    QFETCH(QFont, font);
    QFETCH(int, brute);
    QFETCH(int, avec);
    QFETCH(int, sansMod);
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(1.7);
    QCOMPARE(modulateur->DonnePixelSizeDeFont(font, false), brute);
    QCOMPARE(modulateur->DonnePixelSizeDeFont(font, true), avec);
    QCOMPARE(modulateur->DonnePixelSizeDeFontSansMod(font), sansMod);
}

void tst_Polices::pointSize_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<double>("sans");
    QTest::addColumn<double>("avec");
    QTest::newRow("whole points") << FontEnPoints(12.0) << 12.0 << 12.0;
    QTest::newRow("a fraction is not read") << FontEnPoints(10.25) << 10.0 << 10.0;
    double const demi = FontEnPoints(10.5).pointSize();
    QTest::newRow("a half becomes what the font answers") << FontEnPoints(10.5) << demi << demi;
    QTest::newRow("pixels, rounded up")
        << FontEnPixels(15) << 11.25 << 19.5; // 15 * 1.7 is 25.5: 26 pixels
}

void tst_Polices::pointSize()
{
    QFETCH(QFont, font);
    QFETCH(double, sans);
    QFETCH(double, avec);
    ModulateurFont::Instance()->PrendsModulateur(1.7);
    QCOMPARE(ModulateurFont::Instance()->DonnePointSizeFDeFont(font, false), sans);
    QCOMPARE(ModulateurFont::Instance()->DonnePointSizeFDeFont(font, true), avec);
}

void tst_Polices::unites()
{
    QCOMPARE(ptToPx(12.0, 1.5), 18.0);
    QCOMPARE(ptToPx(-2.0, 0.25), -0.5);
    QCOMPARE(pxToPt(18.0, 1.5), 12.0);
    QCOMPARE(pxToPt(ptToPx(7.0, 1.3), 1.3), 7.0);
    QVERIFY(std::isinf(pxToPt(1.0, 0.0)));
}

void tst_Polices::ajusteTaille_data()
{
    QTest::addColumn<int>("difference");
    QTest::addColumn<int>("pixels");
    QTest::newRow("larger") << 3 << 40;
    QTest::newRow("none") << 0 << 32;
    QTest::newRow("smaller") << -4 << 22;
    QTest::newRow("just above the least") << -10 << 6; // 2 points are 3
    QTest::newRow("the least") << -11 << 2;            // 1 point is 1
    QTest::newRow("never below the least") << -12 << 2;
    QTest::newRow("far below the least") << -100 << 2;
}

void tst_Polices::ajusteTaille()
{
    QFETCH(int, difference);
    QFETCH(int, pixels);
    ModulateurFont::Instance()->PrendsModulateur(0.5); // so that sizes of a point differ
    QWidget widget;
    widget.setFont(FontEnPoints(12.0));
    AjusteTaillePoliceWidget(&widget, difference);
    QCOMPARE(widget.font().pixelSize(), pixels);
}

void tst_Polices::metsTaille()
{
    ModulateurFont::Instance()->PrendsModulateur(1.5);
    QWidget widget;
    widget.setFont(FontEnPixels(50));
    MetsTaillePoliceWidget(&widget, 10U);
    QCOMPARE(widget.font().pixelSize(), 9);
    MetsTaillePoliceWidget(&widget, 72U);
    QCOMPARE(widget.font().pixelSize(), 64);
}

void tst_Polices::ajusterRecursivement()
{
    QWidget parent;
    parent.setObjectName(u"parent"_s);
    auto * const enfant = new QWidget(&parent);
    enfant->setObjectName(u"child"_s);
    auto * const petitEnfant = new QWidget(enfant);
    petitEnfant->setObjectName(u"grandchild"_s);
    auto * const dialogue = new QDialog(&parent); // a window, which inherits no font
    dialogue->setObjectName(u"dialog"_s);
    new QObject(&parent);
    EspionPolices espion;
    for (QWidget * const widget :
         {&parent, enfant, petitEnfant, static_cast<QWidget *>(dialogue)}) {
        widget->ensurePolished();
        widget->installEventFilter(&espion);
    }

    AjusterFontRecursivement(FontEnPixels(37), &parent);

    QCOMPARE(espion.noms, QStringList({u"grandchild"_s, u"child"_s, u"dialog"_s, u"parent"_s}));
    for (QWidget const * const widget :
         {&parent, enfant, petitEnfant, static_cast<QWidget *>(dialogue)})
        QCOMPARE(widget->font().pixelSize(), 37);
}

void tst_Polices::ajusterRecursivementUnEnfantDisparait()
{
    QWidget parent;
    auto * const premier = new WidgetDestructeur(&parent);
    auto * const deuxieme = new QWidget(&parent);
    auto * const dernier = new QWidget(&parent);
    premier->victime = deuxieme;

    AjusterFontRecursivement(FontEnPixels(37), &parent);

    QVERIFY(!premier->victime);
    QCOMPARE(premier->font().pixelSize(), 37);
    QCOMPARE(dernier->font().pixelSize(), 37);
    QCOMPARE(parent.font().pixelSize(), 37);
}

int main(int nombre, char ** arguments)
{
    // The resolution at which 10 points are 13 pixels; the child takes that of its screen.
    bool const estEnfant = nombre == 2 && qstrcmp(arguments[1], kOptionModulateur) == 0;
    qputenv(kResolution, estEnfant ? "" : "96");
    QApplication application(nombre, arguments);
    if (estEnfant) {
        ModulateurFont::Instance()->PrendsModulateur(-1.0);
        return Imprime(QString::number(ModulateurFont::Instance()->DonneModulateurEffectif()));
    }
    tst_Polices test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_Polices.moc"
