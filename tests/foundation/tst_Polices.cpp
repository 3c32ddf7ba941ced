// tests/foundation/tst_Polices.cpp
#include "foundation/Polices.h"
#include "foundation/ProgrammeEnfant.h"

#include <QtTest>

#include <QFontInfo>
#include <QTemporaryFile>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr char kOptionModulateur[] = "--modulateur";

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

int PixelsPour(double points, double modulateur)
{
    return static_cast<int>(std::ceil(QFontInfo(FontEnPoints(points)).pixelSize() / modulateur));
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
    double const calcule = QGuiApplication::primaryScreen()->logicalDotsPerInchX() / 96.0;
    QCOMPARE(ModulateurFont::DonneModulateurCalculee(), calcule);

    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(-1.0);
    QCOMPARE(modulateur->DonneModulateurEffectif(), -1.0);
    QCOMPARE(ModulateurFont::Instance()->DonneModulateurEffectif(), calcule);
    QCOMPARE(modulateur->DonneModulateurEffectif(), calcule);

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
    QTest::addColumn<double>("modulateur");
    for (double const points : {1.0, 8.0, 10.0, 10.5, 12.0, 36.0}) {
        for (double const modulateur : {0.5, 1.0, 1.25, 1.5, 2.0})
            QTest::addRow("%g points at %g", points, modulateur) << points << modulateur;
    }
}

void tst_Polices::pointsVersPixels()
{
    QFETCH(double, points);
    QFETCH(double, modulateur);
    ModulateurFont::Instance()->PrendsModulateur(modulateur);
    QFont const font = ModulateurFont::Instance()->DonneFontPointVersPixels(points, QFont());
    QCOMPARE(font.pixelSize(), PixelsPour(points, modulateur));
    QCOMPARE(font.pointSize(), -1);
}

void tst_Polices::pointsVersPixelsArrondisVersLeHaut()
{
    int const pixels = QFontInfo(FontEnPoints(10.0)).pixelSize();
    QVERIFY(pixels > 1);
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(pixels * 2.0); // half a pixel
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 1);
    modulateur->PrendsModulateur(pixels); // exactly one
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 1);
    modulateur->PrendsModulateur(pixels / 1.01); // a little more than one
    QCOMPARE(modulateur->DonneFontPointVersPixels(10.0, QFont()).pixelSize(), 2);
    modulateur->PrendsModulateur(1.5);
    if (pixels == 13) // at 96 dots per inch
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
    QFont attendue(u"Une police"_s, -1, -1, false);
    attendue.setPointSizeF(10.0);
    QCOMPARE(font.pixelSize(), QFontInfo(attendue).pixelSize());
}

void tst_Polices::pointsVersPixelsAvecDiff()
{
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(1.5);
    QFont const enPoints = FontEnPoints(12.0);
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(enPoints, 2.5).pixelSize(),
             PixelsPour(14.5, 1.5));
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(enPoints, -4.0).pixelSize(),
             PixelsPour(8.0, 1.5));
    // A font in pixels is read with the modulator.
    QFont const enPixels = FontEnPixels(20);
    double const points = QFontInfo(FontEnPixels(30)).pointSizeF();
    QCOMPARE(modulateur->DonneFontPointVersPixelsAvecDiff(enPixels, 3.0).pixelSize(),
             PixelsPour(points + 3.0, 1.5));
}

void tst_Polices::pixelSize_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("brute");
    QTest::addColumn<bool>("enPixels");
    QTest::newRow("sized in pixels") << FontEnPixels(15) << 15 << true;
    QTest::newRow("sized in points")
        << FontEnPoints(10.0) << QFontInfo(FontEnPoints(10.0)).pixelSize() << false;
}

void tst_Polices::pixelSize()
{
    QFETCH(QFont, font);
    QFETCH(int, brute);
    QFETCH(bool, enPixels);
    ModulateurFont * const modulateur = ModulateurFont::Instance();
    modulateur->PrendsModulateur(1.7);
    int const modulee = static_cast<int>(std::ceil(brute * 1.7));
    QVERIFY(modulee != brute);
    QCOMPARE(modulateur->DonnePixelSizeDeFont(font, false), brute);
    // Deliberate: only a size that comes from points is modulated here, and any size there.
    QCOMPARE(modulateur->DonnePixelSizeDeFont(font, true), enPixels ? brute : modulee);
    QCOMPARE(modulateur->DonnePixelSizeDeFontSansMod(font), modulee);
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
        << FontEnPixels(15) << QFontInfo(FontEnPixels(15)).pointSizeF()
        << QFontInfo(FontEnPixels(26)).pointSizeF(); // 15 * 1.7 is 25.5
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
    QTest::addColumn<double>("points");
    QTest::newRow("larger") << 3 << 15.0;
    QTest::newRow("none") << 0 << 12.0;
    QTest::newRow("smaller") << -4 << 8.0;
    QTest::newRow("just above the least") << -10 << 2.0;
    QTest::newRow("the least") << -11 << 1.0;
    QTest::newRow("never below the least") << -12 << 1.0;
    QTest::newRow("far below the least") << -100 << 1.0;
}

void tst_Polices::ajusteTaille()
{
    QFETCH(int, difference);
    QFETCH(double, points);
    ModulateurFont::Instance()->PrendsModulateur(0.5); // so that sizes of a point differ
    QWidget widget;
    widget.setFont(FontEnPoints(12.0));
    AjusteTaillePoliceWidget(&widget, difference);
    QCOMPARE(widget.font().pixelSize(), PixelsPour(points, 0.5));
}

void tst_Polices::metsTaille()
{
    ModulateurFont::Instance()->PrendsModulateur(1.5);
    QWidget widget;
    widget.setFont(FontEnPixels(50));
    MetsTaillePoliceWidget(&widget, 10U);
    QCOMPARE(widget.font().pixelSize(), PixelsPour(10.0, 1.5));
    MetsTaillePoliceWidget(&widget, 72U);
    QCOMPARE(widget.font().pixelSize(), PixelsPour(72.0, 1.5));
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
    QApplication application(nombre, arguments);
    QStringList const options = QCoreApplication::arguments();
    if (options.size() == 2 && options[1] == QLatin1String(kOptionModulateur)) {
        ModulateurFont::Instance()->PrendsModulateur(-1.0);
        return Imprime(QString::number(ModulateurFont::Instance()->DonneModulateurEffectif()));
    }
    tst_Polices test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_Polices.moc"
