// tests/foundation/tst_ImageCommune.cpp
#include "foundation/ImageCommune.h"

#include <QtTest>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

QImage Unie(QSize const & taille, QColor const & couleur = Qt::red, double ratio = 1.0)
{
    QImage image(taille, QImage::Format_ARGB32);
    image.fill(couleur);
    image.setDevicePixelRatio(ratio);
    return image;
}

// The part of the picture that is not transparent, in its own pixels.
QRect Visible(QPixmap const & image)
{
    return QRegion(QBitmap::fromImage(image.toImage().createAlphaMask())).boundingRect();
}

} // namespace

class tst_ImageCommune : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nulle();
    void tailleImpossible_data();
    void tailleImpossible();
    void proportions_data();
    void proportions();
    void couleurs();
    void ratioDeLaSourceSansEffet();
    void ratioDeLEcran();
    void depuisUnPixmap();
    void copieIndependante();
    void avantLApplication();

private:
    void Ecran(double ratio);
    std::unique_ptr<QGuiApplication> monApplication;

public:
    tst_ImageCommune() { Ecran(1.0); }
};

// An application whose only screen has the ratio.
void tst_ImageCommune::Ecran(double ratio)
{
    static int compte = 1;
    static char nom[] = "tst_ImageCommune";
    static char * arguments[] = {nom, nullptr};
    monApplication.reset();
    qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
    monApplication = std::make_unique<QGuiApplication>(compte, arguments);
}

void tst_ImageCommune::nulle()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QVERIFY(ImageCommune().EstNulle());
    QVERIFY(ImageCommune().Prete(32, 32).isNull());
    QVERIFY(ImageCommune(QPixmap()).EstNulle());
    QVERIFY(ImageCommune(QImage()).Prete(32, 32).isNull());
}

void tst_ImageCommune::tailleImpossible_data()
{
    constexpr int kTropGrand = std::numeric_limits<int>::max();
    QTest::addColumn<int>("largeur");
    QTest::addColumn<int>("hauteur");
    QTest::newRow("no width") << 0 << 32;
    QTest::newRow("no height") << 32 << 0;
    QTest::newRow("negative") << -32 << -32;
    QTest::newRow("width beyond all screens") << kTropGrand << 32;
    QTest::newRow("height beyond all screens") << 32 << kTropGrand;
    QTest::newRow("negative beyond all screens") << -kTropGrand - 1 << 32;
}

void tst_ImageCommune::tailleImpossible()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QFETCH(int, largeur);
    QFETCH(int, hauteur);
    QVERIFY(ImageCommune(Unie({8, 8})).Prete(largeur, hauteur).isNull());
}

void tst_ImageCommune::proportions_data()
{
    QTest::addColumn<QSize>("source");
    QTest::addColumn<QSize>("demande");
    QTest::addColumn<QRect>("visible");
    QTest::newRow("same size") << QSize(32, 32) << QSize(32, 32) << QRect(0, 0, 32, 32);
    QTest::newRow("smaller") << QSize(64, 64) << QSize(32, 32) << QRect(0, 0, 32, 32);
    QTest::newRow("larger") << QSize(8, 8) << QSize(32, 32) << QRect(0, 0, 32, 32);
    QTest::newRow("wide one in the middle")
        << QSize(64, 32) << QSize(32, 32) << QRect(0, 8, 32, 16);
    QTest::newRow("high one in the middle")
        << QSize(32, 64) << QSize(32, 32) << QRect(8, 0, 16, 32);
    QTest::newRow("line keeps a pixel") << QSize(900, 1) << QSize(32, 32) << QRect(0, 15, 32, 1);
    QTest::newRow("asked for is wide") << QSize(16, 16) << QSize(64, 16) << QRect(24, 0, 16, 16);
}

void tst_ImageCommune::proportions()
{
    QFETCH(QSize, source);
    QFETCH(QSize, demande);
    QPixmap const image = ImageCommune(Unie(source)).Prete(demande.width(), demande.height());
    QCOMPARE(image.size(), demande);
    QTEST(Visible(image), "visible");
}

void tst_ImageCommune::couleurs()
{
    QImage moities = Unie({40, 40}, QColor(0, 0, 255, 255));
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 20; ++x)
            moities.setPixelColor(x, y, QColor(255, 0, 0, 128));

    QImage const image = ImageCommune(moities).Prete(20, 20).toImage();
    QCOMPARE(image.pixelColor(15, 10), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(5, 10).alpha(), 128);
    QVERIFY(image.pixelColor(5, 10).red() >= 254); // what premultiplying loses
}

void tst_ImageCommune::ratioDeLaSourceSansEffet()
{
    QPixmap const image = ImageCommune(Unie({64, 64}, Qt::red, 2.0)).Prete(32, 32);
    QCOMPARE(image.size(), QSize(32, 32));
    QCOMPARE(image.devicePixelRatio(), 1.0);
    QCOMPARE(Visible(image), QRect(0, 0, 32, 32));
}

void tst_ImageCommune::ratioDeLEcran()
{
    Ecran(2.0);
    {
        QPixmap const image = ImageCommune(Unie({64, 32})).Prete(32, 32);
        QCOMPARE(image.devicePixelRatio(), 2.0);
        QCOMPARE(image.size(), QSize(64, 64));
        QCOMPARE(image.deviceIndependentSize(), QSizeF(32, 32));
        QCOMPARE(Visible(image), QRect(0, 16, 64, 32));
    }
    Ecran(1.0);
}

void tst_ImageCommune::depuisUnPixmap()
{
    QPixmap source(16, 16);
    source.fill(Qt::green);
    ImageCommune const image = source;
    QVERIFY(!image.EstNulle());
    QCOMPARE(image.Prete(4, 4).toImage().pixelColor(2, 2), QColor(Qt::green));
}

void tst_ImageCommune::copieIndependante()
{
    ImageCommune originale(Unie({8, 8}, Qt::red));
    ImageCommune const copie = originale;
    originale = Unie({8, 8}, Qt::blue);
    QCOMPARE(copie.Prete(8, 8).toImage().pixelColor(4, 4), QColor(Qt::red));
    QCOMPARE(originale.Prete(8, 8).toImage().pixelColor(4, 4), QColor(Qt::blue));
}

void tst_ImageCommune::avantLApplication()
{
    monApplication.reset();
    ImageCommune const image(Unie({8, 8}, Qt::blue));
    QVERIFY(!image.EstNulle());
    Ecran(1.0);
    QCOMPARE(image.Prete(8, 8).toImage().pixelColor(4, 4), QColor(Qt::blue));
}

QTEST_APPLESS_MAIN(tst_ImageCommune)
#include "tst_ImageCommune.moc"
