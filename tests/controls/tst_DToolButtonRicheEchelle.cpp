// tests/controls/tst_DToolButtonRicheEchelle.cpp
#include "controls/DToolButtonRiche.h"

#include "controls/Encre.h"

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

private:
    void Ecran(double ratio);

    std::unique_ptr<QApplication> monApplication;
};

// An application whose only screen has the ratio.
void tst_DToolButtonRicheEchelle::Ecran(double ratio)
{
    static int compte = 1;
    static char nom[] = "tst_DToolButtonRicheEchelle";
    static char * arguments[] = {nom, nullptr};
    monApplication.reset();
    qputenv("QT_SCALE_FACTOR", QByteArray::number(ratio));
    monApplication = std::make_unique<QApplication>(compte, arguments);
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

// A picture with a column of each colour per device pixel: a blurred one mixes them.
void tst_DToolButtonRicheEchelle::nettetay()
{
    QFETCH(double, ratio);
    Ecran(ratio);
    QTemporaryDir dossier;
    QString const fichier = dossier.filePath(u"rayures.png"_s);
    QImage rayures(40, 40, QImage::Format_RGB32);
    for (int x = 0; x < rayures.width(); ++x)
        for (int y = 0; y < rayures.height(); ++y)
            rayures.setPixelColor(x, y, x % 2 ? Qt::red : Qt::blue);
    QVERIFY(rayures.save(fichier));

    DToolButtonRiche bouton;
    bouton.setHtml(u"<img src=\"%1\" width=%2>"_s.arg(fichier).arg(40 / ratio));
    bouton.resize(120, 100);
    QImage const image = bouton.grab().toImage();
    QCOMPARE(image.devicePixelRatio(), ratio);
    QVERIFY(Encre::BornesDe(image, Qt::red).width() >= 38);
    QVERIFY(Encre::BornesDe(image, Qt::blue).width() >= 38);
}

QTEST_APPLESS_MAIN(tst_DToolButtonRicheEchelle)
#include "tst_DToolButtonRicheEchelle.moc"
