// tests/controls/tst_DImageCliquable.cpp
#include "controls/DImageCliquable.h"

#include <QtTest>

#include <QPainter>

using namespace Qt::StringLiterals;

class tst_DImageCliquable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void constructeurs();
    void changeImage();
    void imageNulle();
    void ratio();
    void signaux_data();
    void signaux();
    void evenementGarday_data();
    void evenementGarday();
    void desactivay();
    void suppressionParUnReceveur_data();
    void suppressionParUnReceveur();
};

namespace {

QPixmap Image(QSize const & taille, QColor const & couleur)
{
    QPixmap image(taille);
    image.fill(couleur);
    return image;
}

} // namespace

void tst_DImageCliquable::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DImageCliquable::constructeurs()
{
    QWidget parent;
    DImageCliquable const image(Image({20, 10}, Qt::red), &parent);
    QCOMPARE(image.parentWidget(), &parent);
    QCOMPARE(image.pixmap().size(), QSize(20, 10));
    QCOMPARE(image.sizeHint(), QSize(20, 10));
    QCOMPARE(DImageCliquable(QPixmap()).parentWidget(), nullptr);
}

void tst_DImageCliquable::changeImage()
{
    DImageCliquable image(Image({20, 10}, Qt::red));
    image.ChangeImage(Image({30, 40}, Qt::blue));
    QCOMPARE(image.sizeHint(), QSize(30, 40));
    image.resize(30, 40);
    QCOMPARE(image.grab().toImage().pixelColor(15, 20), QColor(Qt::blue));
}

void tst_DImageCliquable::imageNulle()
{
    DImageCliquable image{QPixmap()};
    QVERIFY(image.pixmap().isNull());
    image.resize(20, 20);
    QSignalSpy const clics(&image, &DImageCliquable::SignalImageCliquee);
    QTest::mousePress(&image, Qt::LeftButton);
    QCOMPARE(clics.count(), 1);
    image.ChangeImage(Image({20, 10}, Qt::red));
    image.ChangeImage(QPixmap());
    QVERIFY(image.pixmap().isNull());
}

void tst_DImageCliquable::ratio()
{
    QPixmap fine = Image({40, 20}, Qt::red);
    fine.setDevicePixelRatio(2.0);
    DImageCliquable image(fine);
    QCOMPARE(image.sizeHint(), QSize(20, 10));
    image.ChangeImage(Image({40, 20}, Qt::red));
    QCOMPARE(image.sizeHint(), QSize(40, 20));
    image.ChangeImage(fine);
    QCOMPARE(image.sizeHint(), QSize(20, 10));
}

void tst_DImageCliquable::signaux_data()
{
    QTest::addColumn<Qt::MouseButton>("bouton");
    QTest::addColumn<bool>("doubleClic");
    QTest::addColumn<QStringList>("attendus");
    QStringList const simple{u"clic"_s};
    QStringList const deux{u"clic"_s, u"double"_s};
    QTest::newRow("left") << Qt::LeftButton << false << simple;
    QTest::newRow("right") << Qt::RightButton << false << simple;
    QTest::newRow("middle") << Qt::MiddleButton << false << simple;
    QTest::newRow("left double click") << Qt::LeftButton << true << deux;
    QTest::newRow("right double click") << Qt::RightButton << true << deux;
}

void tst_DImageCliquable::signaux()
{
    QFETCH(Qt::MouseButton, bouton);
    QFETCH(bool, doubleClic);
    QFETCH(QStringList, attendus);
    DImageCliquable image(Image({20, 20}, Qt::red));
    QStringList entendus;
    connect(&image, &DImageCliquable::SignalImageCliquee, this, [&] { entendus << u"clic"_s; });
    connect(&image, &DImageCliquable::SignalImageDoubleCliquee, this,
            [&] { entendus << u"double"_s; });
    QTest::mousePress(&image, bouton);
    QCOMPARE(entendus, QStringList{u"clic"_s});
    QTest::mouseRelease(&image, bouton);
    if (doubleClic) {
        // As the window system has it: the second press is the double click.
        QTest::mouseDClick(&image, bouton);
        QTest::mouseRelease(&image, bouton);
    }
    QCOMPARE(entendus, attendus);
}

void tst_DImageCliquable::evenementGarday_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("press") << int(QEvent::MouseButtonPress);
    QTest::newRow("double click") << int(QEvent::MouseButtonDblClick);
}

// Deliberate: no parent takes the click for its own.
void tst_DImageCliquable::evenementGarday()
{
    QFETCH(int, type);
    QWidget parent;
    DImageCliquable cadre(Image({40, 40}, Qt::blue), &parent);
    DImageCliquable image(Image({20, 20}, Qt::red), &cadre);
    QSignalSpy const clics(&cadre, &DImageCliquable::SignalImageCliquee);
    QSignalSpy const doubles(&cadre, &DImageCliquable::SignalImageDoubleCliquee);
    QMouseEvent evenement(QEvent::Type(type), QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::LeftButton, {});
    QCoreApplication::sendEvent(&image, &evenement);
    QVERIFY(evenement.isAccepted());
    QCOMPARE(clics.count() + doubles.count(), 0);
}

void tst_DImageCliquable::desactivay()
{
    DImageCliquable image(Image({20, 20}, Qt::red));
    image.setEnabled(false);
    QSignalSpy const clics(&image, &DImageCliquable::SignalImageCliquee);
    QMouseEvent evenement(QEvent::MouseButtonPress, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                          Qt::LeftButton, {});
    QCoreApplication::sendEvent(&image, &evenement);
    QCOMPARE(clics.count(), 0);
}

void tst_DImageCliquable::suppressionParUnReceveur_data()
{
    QTest::addColumn<bool>("doubleClic");
    QTest::newRow("click") << false;
    QTest::newRow("double click") << true;
}

void tst_DImageCliquable::suppressionParUnReceveur()
{
    QFETCH(bool, doubleClic);
    QPointer<DImageCliquable> const image = new DImageCliquable(Image({20, 20}, Qt::red));
    auto const signal = doubleClic ? &DImageCliquable::SignalImageDoubleCliquee
                                   : &DImageCliquable::SignalImageCliquee;
    connect(image, signal, this, [&] { delete image.data(); });
    if (doubleClic)
        QTest::mouseDClick(image, Qt::LeftButton);
    else
        QTest::mousePress(image, Qt::LeftButton);
    QVERIFY(!image);
}

QTEST_MAIN(tst_DImageCliquable)
#include "tst_DImageCliquable.moc"
