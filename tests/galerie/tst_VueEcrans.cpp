// tests/galerie/tst_VueEcrans.cpp
#include "VueEcrans.h"

#include "foundation/ThemesQt.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
// Drawn with a tenth of its size as a border at each side: half the size of the desktop.
constexpr QRect kEcran(100, 50, 1000, 500);
constexpr QSize kTaille(600, 300);
constexpr QRect kRectangle(300, 200, 400, 200);
} // namespace

class tst_VueEcrans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanupTestCase();

    void fleches_data();
    void fleches();
    void autreTouche();
    void glisse();
    void presseHorsDuRectangle();
    void boutonDroit();
    void sansEcran();
    void nomAuDessusDesContours();

private:
    VueEcrans maVue;
};

void tst_VueEcrans::init()
{
    maVue.resize(kTaille);
    maVue.MetsEcrans({{u"A"_s, kEcran, kEcran}});
    maVue.MetsRectangle(kRectangle);
}

void tst_VueEcrans::cleanupTestCase()
{
    ThemesQt::DetruisToi();
}

void tst_VueEcrans::fleches_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<QPoint>("direction");
    QTest::newRow("left") << Qt::Key_Left << QPoint(-1, 0);
    QTest::newRow("right") << Qt::Key_Right << QPoint(1, 0);
    QTest::newRow("up") << Qt::Key_Up << QPoint(0, -1);
    QTest::newRow("down") << Qt::Key_Down << QPoint(0, 1);
}

void tst_VueEcrans::fleches()
{
    QFETCH(Qt::Key, touche);
    QFETCH(QPoint, direction);
    QSignalSpy espion(&maVue, &VueEcrans::SignalRectangleDeplacay);

    QTest::keyClick(&maVue, touche);

    QPoint const pas = maVue.DonneRectangle().topLeft() - kRectangle.topLeft();
    QCOMPARE(pas, direction * pas.manhattanLength());
    QVERIFY(!pas.isNull());
    QCOMPARE(maVue.DonneRectangle().size(), kRectangle.size());
    QCOMPARE(espion.count(), 1);
}

void tst_VueEcrans::autreTouche()
{
    QSignalSpy espion(&maVue, &VueEcrans::SignalRectangleDeplacay);

    QTest::keyClick(&maVue, Qt::Key_A);

    QCOMPARE(maVue.DonneRectangle(), kRectangle);
    QCOMPARE(espion.count(), 0);
}

void tst_VueEcrans::glisse()
{
    QSignalSpy espion(&maVue, &VueEcrans::SignalRectangleDeplacay);

    QTest::mousePress(&maVue, Qt::LeftButton, {}, QPoint(250, 150));
    QTest::mouseMove(&maVue, QPoint(300, 130));
    QTest::mouseRelease(&maVue, Qt::LeftButton, {}, QPoint(300, 130));
    QTest::mouseMove(&maVue, QPoint(10, 10));

    // Twice the way of the mouse: the view is half the size of the desktop.
    QCOMPARE(maVue.DonneRectangle(), kRectangle.translated(100, -40));
    QCOMPARE(espion.count(), 1);
}

void tst_VueEcrans::presseHorsDuRectangle()
{
    QTest::mousePress(&maVue, Qt::LeftButton, {}, QPoint(5, 5));
    QTest::mouseMove(&maVue, QPoint(100, 100));
    QTest::mouseRelease(&maVue, Qt::LeftButton, {}, QPoint(100, 100));

    QCOMPARE(maVue.DonneRectangle(), kRectangle);
}

void tst_VueEcrans::boutonDroit()
{
    QTest::mousePress(&maVue, Qt::RightButton, {}, QPoint(250, 150));
    QTest::mouseMove(&maVue, QPoint(300, 130));
    QTest::mouseRelease(&maVue, Qt::RightButton, {}, QPoint(300, 130));

    QCOMPARE(maVue.DonneRectangle(), kRectangle);
}

void tst_VueEcrans::sansEcran()
{
    maVue.MetsEcrans({});

    QVERIFY(!maVue.grab().isNull());
}

void tst_VueEcrans::nomAuDessusDesContours()
{
    maVue.MetsPlacements({}, {});
    maVue.MetsRectangle({});
    QImage const seul = maVue.grab().toImage();
    // A corner right through the first letter.
    maVue.MetsPlacements(QRect(kEcran.topLeft() + QPoint(24, 24), kEcran.size() / 2), {});
    QImage const traverse = maVue.grab().toImage();

    QVERIFY(traverse != seul);
    QRect const coin(58, 33, 8, 8); // in the view: where the text begins, and the edge would be
    QCOMPARE(traverse.copy(coin), seul.copy(coin));
}

QTEST_MAIN(tst_VueEcrans)
#include "tst_VueEcrans.moc"
