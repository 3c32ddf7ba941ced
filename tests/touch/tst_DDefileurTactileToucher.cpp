// tests/touch/tst_DDefileurTactileToucher.cpp
//
// What a person with a finger gets: touches that take Qt's whole way from the window on.
#include "touch/DDefileurTactile.h"

#include "touch/AireTouchee.h"

using namespace AireTouchee;
using namespace EssaisTactiles;
using namespace Qt::StringLiterals;

namespace {

constexpr int kEssais = 10;

} // namespace

class tst_DDefileurTactileToucher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void defilementCinetique_data();
    void defilementCinetique();
    void rienADefiler();
    void glissementSansRienADefiler();
    void tapEnUnClic_data();
    void tapEnUnClic();
    void tapDansUnMenu();
    void ligneSousLeDoigt();
    void pasDeDepassementVertical();
};

void tst_DDefileurTactileToucher::initTestCase()
{
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(60'000);
}

void tst_DDefileurTactileToucher::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(QScroller::activeScrollers().isEmpty());
}

void tst_DDefileurTactileToucher::defilementCinetique_data()
{
    QTest::addColumn<bool>("fenetre");
    QTest::newRow("an area in a window") << false;
    QTest::newRow("an area that is a window") << true;
}

void tst_DDefileurTactileToucher::defilementCinetique()
{
    QFETCH(bool, fenetre);
    QWidget parent;
    QListWidget * const liste = CreeListe(fenetre ? nullptr : &parent);
    std::unique_ptr<QListWidget> const aDetruire(fenetre ? liste : nullptr);
    auto * const defileur = new DDefileurTactile(liste);
    QSignalSpy espion(defileur, &DDefileurTactile::SignalChangementEtat);
    QVERIFY(Montre(*liste->window()));
    QScrollBar const * const barre = liste->verticalScrollBar();

    int auRelache = 0;
    // On a machine that is too busy, the finger stands still before it leaves.
    for (int essai = 0; essai < kEssais && Etat(liste) != QScroller::Scrolling; ++essai) {
        espion.clear();
        Doigt(liste).press(0, QPoint(50, 280), liste->viewport());
        QCOMPARE(liste->property("tactile"), QVariant(true));
        QCOMPARE(Etat(liste), QScroller::Pressed);
        for (int y = 240; y >= 80; y -= 40) {
            int const avant = barre->value();
            Doigt(liste).move(0, QPoint(50, y), liste->viewport());
            QTRY_VERIFY(barre->value() > avant); // the view follows the finger
        }
        QCOMPARE(Etat(liste), QScroller::Dragging);
        auRelache = barre->value();
        Doigt(liste).move(0, QPoint(50, 40), liste->viewport());
        Doigt(liste).release(0, QPoint(50, 40), liste->viewport());
    }
    QCOMPARE(Etat(liste), QScroller::Scrolling);
    QCOMPARE(liste->property("tactile"), QVariant(true));
    QTRY_COMPARE(Etat(liste), QScroller::Inactive);
    QCOMPARE_GT(barre->value(), auRelache); // it went on without the finger
    QCOMPARE(liste->property("tactile"), QVariant(false));
    QCOMPARE(espion.first().first().value<QScroller::State>(), QScroller::Pressed);
    QCOMPARE(espion.last().first().value<QScroller::State>(), QScroller::Inactive);
    QCOMPARE(espion.count(), 4);
}

void tst_DDefileurTactileToucher::rienADefiler()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent, 1);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    Temoin const temoin(liste->viewport(), {QEvent::HoverLeave});
    Doigt(liste).press(0, QPoint(50, 200), liste->viewport());
    QCOMPARE(liste->property("tactile"), QVariant(true));
    QCOMPARE(Etat(liste), QScroller::Inactive);
    Doigt(liste).release(0, QPoint(50, 200), liste->viewport());
    QCOMPARE(liste->property("tactile"), QVariant(false));
    QTRY_COMPARE_GE(temoin.Compte(), 1);
}

void tst_DDefileurTactileToucher::glissementSansRienADefiler()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent, 1);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    Doigt(liste).press(0, QPoint(50, 250), liste->viewport());
    for (int y = 240; y > 50; y -= 10) {
        Doigt(liste).move(0, QPoint(50, y), liste->viewport());
        QCOMPARE(liste->property("tactile"), QVariant(true));
    }
    Doigt(liste).release(0, QPoint(50, 50), liste->viewport());
    QCOMPARE(liste->property("tactile"), QVariant(false));
}

void tst_DDefileurTactileToucher::tapEnUnClic_data()
{
    QTest::addColumn<bool>("fenetre");
    QTest::addColumn<bool>("arret");
    QTest::newRow("an area in a window") << false << false;
    QTest::newRow("an area that is a window") << true << false;
    QTest::newRow("an area that keeps the mouse from its parents") << false << true;
}

void tst_DDefileurTactileToucher::tapEnUnClic()
{
    QFETCH(bool, fenetre);
    QFETCH(bool, arret);
    QWidget parent;
    QListWidget * const liste = CreeListe(fenetre ? nullptr : &parent);
    std::unique_ptr<QListWidget> const aDetruire(fenetre ? liste : nullptr);
    new DDefileurTactile(liste);
    liste->setAttribute(Qt::WA_NoMousePropagation, arret);
    QVERIFY(Montre(*liste->window()));
    QSignalSpy const presses(liste, &QListWidget::pressed);
    QSignalSpy const clics(liste, &QListWidget::clicked);
    QSignalSpy const doubles(liste, &QListWidget::doubleClicked);
    QPoint const point = liste->visualItemRect(liste->item(2)).center();

    Tape(liste->viewport(), point);
    QCOMPARE(liste->currentRow(), 2);
    QCOMPARE(presses.count(), 1);
    QCOMPARE(clics.count(), 1);
    QCOMPARE(doubles.count(), 0);
    QCOMPARE(liste->property("tactile"), QVariant(false));
    Tape(liste->viewport(), point);
    QCOMPARE(presses.count(), 1);
    QCOMPARE(doubles.count(), 1);
}

void tst_DDefileurTactileToucher::tapDansUnMenu()
{
    QWidget menu(nullptr, Qt::Popup);
    QListWidget * const liste = CreeListe(&menu);
    new DDefileurTactile(liste);
    QVERIFY(Montre(menu));
    QSignalSpy const clics(liste, &QListWidget::clicked);
    QSignalSpy const doubles(liste, &QListWidget::doubleClicked);
    QPoint const point = liste->visualItemRect(liste->item(2)).center();
    Tape(liste->viewport(), point);
    QCOMPARE(liste->currentRow(), 2);
    QCOMPARE(clics.count(), 1);
    Tape(liste->viewport(), point);
    QCOMPARE(doubles.count(), 1);
}

void tst_DDefileurTactileToucher::ligneSousLeDoigt()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent);
    new DDefileurTactile(liste);
    liste->setStyleSheet(u"QListWidget[tactile=\"false\"]::item:hover { background: #ff0000; }"_s);
    QVERIFY(Montre(parent));
    QRect const rectangle = liste->visualItemRect(liste->item(2));
    auto const estRouge = [&] {
        QImage const image = liste->viewport()->grab(rectangle).toImage();
        return image.pixelColor(image.width() - 2, image.height() / 2) == QColor(255, 0, 0);
    };
    auto const survole = [&] {
        QHoverEvent survol(QEvent::HoverMove, rectangle.center(), rectangle.center(), QPointF());
        QCoreApplication::sendEvent(liste->viewport(), &survol);
    };
    survole();
    QVERIFY(estRouge());

    Doigt(liste).press(0, rectangle.center(), liste->viewport());
    QVERIFY(!estRouge());
    for (int y = 0; y < 60; y += 10)
        Doigt(liste).move(0, rectangle.center() + QPoint(0, y), liste->viewport());
    survole();
    QVERIFY(!estRouge());
    Doigt(liste).release(0, rectangle.center() + QPoint(0, 50), liste->viewport());
    QScroller::scroller(liste->viewport())->stop();
    QCOMPARE(liste->property("tactile"), QVariant(false));
    QCoreApplication::sendPostedEvents();
    QVERIFY(!estRouge()); // the row that the finger left
    survole();
    QVERIFY(estRouge()); // the mouse is back
}

void tst_DDefileurTactileToucher::pasDeDepassementVertical()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    QPoint const place = liste->viewport()->pos();
    Doigt(liste).press(0, QPoint(50, 50), liste->viewport());
    for (int y = 60; y < 250; y += 10) { // above the first row
        Doigt(liste).move(0, QPoint(50, y), liste->viewport());
        QCoreApplication::processEvents();
        QCOMPARE(liste->viewport()->pos(), place);
    }
    Doigt(liste).release(0, QPoint(50, 250), liste->viewport());
    QTRY_COMPARE(Etat(liste), QScroller::Inactive);
    QCOMPARE(liste->verticalScrollBar()->value(), 0);
    QCOMPARE(liste->viewport()->pos(), place);
}

QTEST_MAIN(tst_DDefileurTactileToucher)
#include "tst_DDefileurTactileToucher.moc"
