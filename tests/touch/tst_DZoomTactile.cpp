// tests/touch/tst_DZoomTactile.cpp
#include "touch/DZoomTactile.h"

#include "touch/EssaisTactiles.h"

#include <cmath>
#include <numeric>

using namespace EssaisTactiles;

class tst_DZoomTactile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void construction();
    void sansWidget();
    void facteur_data();
    void facteur();
    void parLApplication();
    void autresEvenements();
    void deuxDoigts_data();
    void deuxDoigts();
    void destructionParLeReceveur();
};

void tst_DZoomTactile::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DZoomTactile::construction()
{
    auto * const widget = new QWidget;
    QPointer<DZoomTactile> const zoom = new DZoomTactile(widget);
    QCOMPARE(zoom->parent(), widget);
    QVERIFY(widget->testAttribute(Qt::WA_AcceptTouchEvents));
    delete widget;
    QVERIFY(!zoom);
}

void tst_DZoomTactile::sansWidget()
{
    DZoomTactile const zoom(nullptr);
    QCOMPARE(zoom.parent(), nullptr);
}

void tst_DZoomTactile::facteur_data()
{
    QTest::addColumn<double>("facteur");
    QTest::addColumn<int>("signaux");
    QTest::newRow("larger") << 1.25 << 1;
    QTest::newRow("smaller") << 0.5 << 1;
    QTest::newRow("exactly one is consumed without a signal") << 1.0 << 0;
    QTest::newRow("hardly more than one") << std::nextafter(1.0, 2.0) << 1;
    QTest::newRow("zero") << 0.0 << 1;
}

void tst_DZoomTactile::facteur()
{
    QFETCH(double, facteur);
    QFETCH(int, signaux);
    QWidget widget;
    DZoomTactile zoom(&widget);
    QSignalSpy espion(&zoom, &DZoomTactile::SignalZoomTactile);
    QPinchGesture pincement; // in no state: the state does not count
    pincement.setScaleFactor(facteur);
    QGestureEvent evenement({&pincement});
    QVERIFY(zoom.eventFilter(&widget, &evenement));
    QCOMPARE(espion.count(), signaux);
    if (signaux)
        QVERIFY(espion.first().first().toDouble() == facteur);
}

void tst_DZoomTactile::parLApplication()
{
    QWidget widget;
    Temoin const temoin(&widget, {QEvent::Gesture});
    DZoomTactile zoom(&widget);
    QSignalSpy espion(&zoom, &DZoomTactile::SignalZoomTactile);
    QPinchGesture pincement;
    pincement.setScaleFactor(2.0);
    QGestureEvent evenement({&pincement});
    QCoreApplication::sendEvent(&widget, &evenement);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(temoin.Compte(), 0); // consumed
}

void tst_DZoomTactile::autresEvenements()
{
    QWidget widget;
    DZoomTactile zoom(&widget);
    QSignalSpy espion(&zoom, &DZoomTactile::SignalZoomTactile);
    QTapGesture tap;
    QGestureEvent geste({&tap});
    QVERIFY(!zoom.eventFilter(&widget, &geste));
    QMouseEvent souris = FaisSouris(QEvent::MouseButtonPress, Qt::MouseEventSynthesizedByQt);
    QVERIFY(!zoom.eventFilter(&widget, &souris));
    QTouchEvent toucher = FaisToucher(QEvent::TouchBegin);
    QVERIFY(!zoom.eventFilter(&widget, &toucher));
    QCOMPARE(espion.count(), 0);
}

void tst_DZoomTactile::deuxDoigts_data()
{
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("fin");
    QTest::newRow("fingers part") << 20 << 60;
    QTest::newRow("fingers meet") << 60 << 20;
}

void tst_DZoomTactile::deuxDoigts()
{
    QFETCH(int, debut);
    QFETCH(int, fin);
    QWidget fenetre;
    fenetre.resize(300, 300);
    QWidget widget(&fenetre);
    widget.resize(300, 300);
    DZoomTactile zoom(&widget);
    QSignalSpy espion(&zoom, &DZoomTactile::SignalZoomTactile);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    auto const doigts = [](int ecart) {
        return std::pair(QPoint(150 - ecart, 150), QPoint(150 + ecart, 150));
    };

    auto [gauche, droite] = doigts(debut);
    QTest::touchEvent(&widget, DonneEcranTactile())
        .press(0, gauche, &widget)
        .press(1, droite, &widget);
    int const pas = fin > debut ? 5 : -5;
    for (int ecart = debut; ecart != fin + pas; ecart += pas) {
        std::tie(gauche, droite) = doigts(ecart);
        QTest::touchEvent(&widget, DonneEcranTactile())
            .move(0, gauche, &widget)
            .move(1, droite, &widget);
    }
    QTest::touchEvent(&widget, DonneEcranTactile())
        .release(0, gauche, &widget)
        .release(1, droite, &widget);

    // The first event of the fingers begins the pinch with the factor 1, which is not told. The end
    // of it tells the last step again, since the state does not count.
    QCOMPARE(espion.count(), qAbs(fin - debut) / 5 + 1);
    QList<double> facteurs;
    for (QList<QVariant> const & signal : espion)
        facteurs.append(signal.first().toDouble());
    QCOMPARE(facteurs.last(), facteurs.at(facteurs.size() - 2));
    facteurs.removeLast();
    double const produit =
        std::accumulate(facteurs.cbegin(), facteurs.cend(), 1.0, std::multiplies<>());
    QVERIFY2(qAbs(produit - double(fin) / debut) < 0.01, qPrintable(QString::number(produit)));
}

void tst_DZoomTactile::destructionParLeReceveur()
{
    auto * const widget = new QWidget;
    QPointer<DZoomTactile> const zoom = new DZoomTactile(widget);
    connect(zoom, &DZoomTactile::SignalZoomTactile, qApp, [widget] { delete widget; });
    QPinchGesture pincement;
    pincement.setScaleFactor(2.0);
    QGestureEvent evenement({&pincement});
    QCoreApplication::sendEvent(widget, &evenement);
    QVERIFY(!zoom);
}

QTEST_MAIN(tst_DZoomTactile)
#include "tst_DZoomTactile.moc"
