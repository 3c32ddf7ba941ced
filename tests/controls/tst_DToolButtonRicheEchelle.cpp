// tests/controls/tst_DToolButtonRicheEchelle.cpp
#include "controls/DToolButtonRiche.h"

#include "controls/RenduBoutons.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_DToolButtonRicheEchelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void nettetay_data();
    void nettetay();
    void ratioDeLEcranLePlusProche();

private:
    void Demarre();
    void Ecran(double ratio);
    QString EcrisRayures() const;

    QTemporaryDir monDossier;
    std::unique_ptr<QApplication> monApplication;
};

void tst_DToolButtonRicheEchelle::Demarre()
{
    static int compte = 1;
    static char nom[] = "tst_DToolButtonRicheEchelle";
    static char * arguments[] = {nom, nullptr};
    monApplication = std::make_unique<QApplication>(compte, arguments);
}

// An application whose only screen has the ratio.
void tst_DToolButtonRicheEchelle::Ecran(double ratio)
{
    monApplication.reset();
    qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
    Demarre();
}

// A picture with a column of each colour per device pixel: a blurred one mixes them.
QString tst_DToolButtonRicheEchelle::EcrisRayures() const
{
    QString const fichier = monDossier.filePath(u"rayures.png"_s);
    QImage rayures(40, 40, QImage::Format_RGB32);
    for (int x = 0; x < rayures.width(); ++x)
        for (int y = 0; y < rayures.height(); ++y)
            rayures.setPixelColor(x, y, x % 2 ? Qt::red : Qt::blue);
    return rayures.save(fichier) ? fichier : QString();
}

void tst_DToolButtonRicheEchelle::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DToolButtonRicheEchelle::nettetay_data()
{
    QTest::addColumn<double>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("2") << 2.0;
}

void tst_DToolButtonRicheEchelle::nettetay()
{
    QFETCH(double, ratio);
    Ecran(ratio);
    QString const fichier = EcrisRayures();

    DToolButtonRiche bouton;
    bouton.setHtml(u"<img src=\"%1\" width=%2>"_s.arg(fichier).arg(40 / ratio));
    bouton.resize(120, 100);
    QImage const image = bouton.grab().toImage();
    QCOMPARE(image.devicePixelRatio(), ratio);
    QVERIFY(Encre::BornesDe(image, Qt::red).width() >= 38);
    QVERIFY(Encre::BornesDe(image, Qt::blue).width() >= 38);
}

// Not the button's own, which is that of the screen where its window is for the most part.
void tst_DToolButtonRicheEchelle::ratioDeLEcranLePlusProche()
{
    QByteArray const plateforme = qgetenv("QT_QPA_PLATFORM");
    auto const rends = qScopeGuard([&] {
        monApplication.reset();
        qputenv("QT_QPA_PLATFORM", plateforme);
        qunsetenv("QT_SCREEN_SCALE_FACTORS");
    });
    QFile ecrans(monDossier.filePath(u"ecrans.json"_s));
    QVERIFY(ecrans.open(QIODevice::WriteOnly));
    ecrans.write(
        R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [
        {"name": "A", "x": 0, "y": 0, "width": 800, "height": 600,
         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
        {"name": "B", "x": 800, "y": 0, "width": 800, "height": 600,
         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    ecrans.close();
    monApplication.reset();
    qunsetenv("QT_SCALE_FACTOR");
    qputenv("QT_SCREEN_SCALE_FACTORS", "A=2;B=1");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + ecrans.fileName().toLocal8Bit());
    Demarre();

    QWidget fenetre; // on the first screen, and so is all that it holds
    fenetre.resize(1500, 200);
    DToolButtonRiche bouton(&fenetre);
    bouton.setHtml(u"<img src=\"%1\" width=20>"_s.arg(EcrisRayures()));
    bouton.resize(120, 100);
    auto const estNet = [&](QPoint const & position) {
        bouton.move(position);
        return !Encre::BornesDe(RenduBoutons::Rendu(bouton, 2.0), Qt::red).isNull();
    };
    QVERIFY(estNet(QPoint(100, 0)));
    QVERIFY(!estNet(QPoint(1000, 0)));
    QCOMPARE(bouton.devicePixelRatioF(), 2.0);
}

QTEST_APPLESS_MAIN(tst_DToolButtonRicheEchelle)
#include "tst_DToolButtonRicheEchelle.moc"
