// tests/controls/tst_DTreeViewTactile.cpp
#include "controls/DTreeView.h"
#include "touch/DDefileurTactile.h"
#include "touch/DZoomTactile.h"

#include "touch/EssaisTactiles.h"

#include <QGestureEvent>
#include <QPinchGesture>
#include <QStandardItemModel>
#include <QtTest>

using EssaisTactiles::DonneEcranTactile;

namespace {

int CompteDefileurs(DTreeView const & vue)
{
    return static_cast<int>(
        vue.findChildren<DDefileurTactile *>(QString(), Qt::FindDirectChildrenOnly).size());
}

int CompteZooms(DTreeView const & vue)
{
    return static_cast<int>(vue.viewport()->findChildren<DZoomTactile *>().size());
}

void EnvoiePincement(QWidget * widget, double facteur)
{
    QPinchGesture pincement;
    pincement.setScaleFactor(facteur);
    QGestureEvent evenement({&pincement});
    QCoreApplication::sendEvent(widget, &evenement);
}

} // namespace

// What a tree gets at its first show.
class tst_DTreeViewTactile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sansAffichage();
    void unSeulDefileur();
    void parentPasEncoreMontray();
    void changementDeParent();
    void miseEnIcone();
    void defilementParPixel();
    void pincement();
    void deuxDoigts();
    void unDoigt();
    void pincementAvantAffichage();
    void autreViewport_data();
    void autreViewport();
    void destructionParLeReceveur();
};

void tst_DTreeViewTactile::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
}

void tst_DTreeViewTactile::sansAffichage()
{
    DTreeView vue;
    vue.resize(100, 100);
    vue.grab();
    QCOMPARE(CompteDefileurs(vue), 0);
    QCOMPARE(CompteZooms(vue), 0);
    QVERIFY(!vue.property("tactile").isValid());
}

void tst_DTreeViewTactile::unSeulDefileur()
{
    DTreeView vue;
    for (int fois = 0; fois < 3; ++fois) {
        vue.show();
        QCOMPARE(CompteDefileurs(vue), 1);
        QCOMPARE(CompteZooms(vue), 1);
        vue.hide();
    }
    QCOMPARE(vue.property("tactile"), QVariant(false));
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.contains(vue.viewport()));
}

void tst_DTreeViewTactile::parentPasEncoreMontray()
{
    QWidget fenetre;
    DTreeView vue(&fenetre);
    vue.setVisible(true);
    QCOMPARE(CompteDefileurs(vue), 0);
    fenetre.show();
    QCOMPARE(CompteDefileurs(vue), 1);
    fenetre.hide();
    fenetre.show();
    QCOMPARE(CompteDefileurs(vue), 1);
}

void tst_DTreeViewTactile::changementDeParent()
{
    QWidget premiere;
    QWidget seconde;
    premiere.show();
    seconde.show();
    DTreeView vue(&premiere);
    vue.show();
    vue.setParent(&seconde);
    vue.show();
    QCOMPARE(CompteDefileurs(vue), 1);
    QCOMPARE(CompteZooms(vue), 1);
}

// The window system shows what it had hidden.
void tst_DTreeViewTactile::miseEnIcone()
{
    DTreeView vue;
    vue.show();
    QShowEvent evenement;
    QCoreApplication::sendEvent(&vue, &evenement);
    QCOMPARE(CompteDefileurs(vue), 1);
    QCOMPARE(CompteZooms(vue), 1);
}

void tst_DTreeViewTactile::defilementParPixel()
{
    DTreeView vue;
    vue.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    vue.show();
    QCOMPARE(vue.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    vue.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    vue.hide();
    vue.show();
    QCOMPARE(vue.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
}

void tst_DTreeViewTactile::pincement()
{
    DTreeView vue;
    vue.show();
    QSignalSpy espion(&vue, &DTreeView::SignalZoomTactile);
    EnvoiePincement(vue.viewport(), 1.25);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toDouble(), 1.25);
    EnvoiePincement(vue.viewport(), 1.0);
    QCOMPARE(espion.count(), 1);
    vue.hide();
    vue.show();
    EnvoiePincement(vue.viewport(), 0.5);
    QCOMPARE(espion.count(), 2);
}

// From the touch itself, which the scroller and the taps see too.
void tst_DTreeViewTactile::deuxDoigts()
{
    DTreeView vue;
    vue.resize(300, 300);
    vue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vue));
    QSignalSpy espion(&vue, &DTreeView::SignalZoomTactile);
    QWidget * const cible = vue.viewport();
    auto const doigts = [cible] { return QTest::touchEvent(cible, DonneEcranTactile()); };
    doigts().press(0, QPoint(130, 100), cible).press(1, QPoint(170, 100), cible);
    for (int ecart = 30; ecart <= 90; ecart += 20)
        doigts().move(0, QPoint(150 - ecart, 100), cible).move(1, QPoint(150 + ecart, 100), cible);
    doigts().release(0, QPoint(60, 100), cible).release(1, QPoint(240, 100), cible);
    QVERIFY(espion.count() > 0);
    for (auto const & arguments : espion)
        QVERIFY(arguments.at(0).toDouble() > 1.0);
}

void tst_DTreeViewTactile::unDoigt()
{
    QStandardItemModel modele(3, 1);
    DTreeView vue;
    vue.setModel(&modele);
    vue.resize(300, 300);
    vue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&vue));
    QSignalSpy const zooms(&vue, &DTreeView::SignalZoomTactile);
    QSignalSpy const clics(&vue, &DTreeView::clicked);
    QPoint const position = vue.visualRect(modele.index(1, 0)).center();
    QTest::touchEvent(vue.viewport(), DonneEcranTactile()).press(0, position, vue.viewport());
    QTest::touchEvent(vue.viewport(), DonneEcranTactile()).release(0, position, vue.viewport());
    QCOMPARE(clics.count(), 1);
    QCOMPARE(vue.currentIndex(), modele.index(1, 0));
    QCOMPARE(zooms.count(), 0);
}

void tst_DTreeViewTactile::pincementAvantAffichage()
{
    DTreeView vue;
    QSignalSpy espion(&vue, &DTreeView::SignalZoomTactile);
    EnvoiePincement(vue.viewport(), 2.0);
    QCOMPARE(espion.count(), 0);
}

void tst_DTreeViewTactile::autreViewport_data()
{
    QTest::addColumn<bool>("dejaMontray");
    QTest::newRow("before the first show") << false;
    QTest::newRow("after it") << true;
}

// The zoom follows the viewport, as the scroller does.
void tst_DTreeViewTactile::autreViewport()
{
    QFETCH(bool, dejaMontray);
    DTreeView vue;
    if (dejaMontray)
        vue.show();
    vue.setViewport(new QWidget);
    QCOMPARE(CompteZooms(vue), dejaMontray ? 1 : 0);
    vue.show();
    vue.setViewport(vue.viewport());
    QCOMPARE(CompteZooms(vue), 1);
    QCOMPARE(CompteDefileurs(vue), 1);
    QSignalSpy const espion(&vue, &DTreeView::SignalZoomTactile);
    EnvoiePincement(vue.viewport(), 1.25);
    QCOMPARE(espion.count(), 1);
    vue.setViewport(nullptr); // a plain widget of Qt's
    EnvoiePincement(vue.viewport(), 1.25);
    QCOMPARE(espion.count(), 2);
}

void tst_DTreeViewTactile::destructionParLeReceveur()
{
    QPointer<DTreeView> const vue = new DTreeView;
    vue->show();
    connect(vue, &DTreeView::SignalZoomTactile, this, [vue] { delete vue; });
    QPointer<DZoomTactile> const zoom = vue->viewport()->findChild<DZoomTactile *>();
    Q_EMIT zoom->SignalZoomTactile(2.0);
    QVERIFY(!vue);
}

QTEST_MAIN(tst_DTreeViewTactile)
#include "tst_DTreeViewTactile.moc"
