// tests/touch/tst_DDefileurTactileFin.cpp
//
// Touches that end otherwise than by one finger that leaves the area's window.
#include "touch/DDefileurTactile.h"

#include "touch/AireTouchee.h"

using namespace AireTouchee;
using namespace EssaisTactiles;
using namespace Qt::StringLiterals;

namespace {

QAbstractScrollArea * CreeAire(QWidget * parent, bool estListe)
{
    if (estListe)
        return CreeListe(parent);
    auto * const texte = new QPlainTextEdit(u"a\n"_s.repeated(kLignes), parent);
    texte->setGeometry(0, 0, 200, 300);
    return texte;
}

void AjouteAires()
{
    QTest::addColumn<bool>("estListe");
    QTest::newRow("an item view") << true;
    QTest::newRow("another area") << false;
}

} // namespace

class tst_DDefileurTactileFin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void toucherAnnulay_data();
    void toucherAnnulay();
    void finDansUneAutreFenetre();
    void doigtsPartisEnsemble_data();
    void doigtsPartisEnsemble();
    void viewportNatif();
    void finDansLaFenetreDuDessous();
    void fenetreDetruitePendantLeToucher();
};

void tst_DDefileurTactileFin::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(QScroller::activeScrollers().isEmpty());
}

void tst_DDefileurTactileFin::toucherAnnulay_data()
{
    AjouteAires();
}

void tst_DDefileurTactileFin::toucherAnnulay()
{
    QFETCH(bool, estListe);
    QWidget parent;
    QAbstractScrollArea * const aire = CreeAire(&parent, estListe);
    new DDefileurTactile(aire);
    QVERIFY(Montre(parent));
    Doigt(aire).press(0, QPoint(50, 250), aire->viewport());
    for (int y = 240; y > 150; y -= 10)
        Doigt(aire).move(0, QPoint(50, y), aire->viewport());
    QCOMPARE(Etat(aire), QScroller::Dragging);
    QTouchEvent annulation(QEvent::TouchCancel, DonneEcranTactile());
    QCoreApplication::sendEvent(parent.windowHandle(), &annulation);
    QTRY_COMPARE(Etat(aire), QScroller::Inactive);
    QCOMPARE(aire->property("tactile"), estListe ? QVariant(false) : QVariant());
    // The device has a finger down as yet.
    Doigt(aire).release(0, QPoint(50, 150), aire->viewport());
}

void tst_DDefileurTactileFin::finDansUneAutreFenetre()
{
    QWidget parent;
    QWidget autre;
    autre.winId();
    QListWidget * const liste = CreeListe(&parent);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    Doigt(liste).press(0, QPoint(50, 250), liste->viewport());
    for (int y = 240; y > 150; y -= 10)
        Doigt(liste).move(0, QPoint(50, y), liste->viewport());
    QTouchEvent fin(QEvent::TouchEnd, DonneEcranTactile());
    QCoreApplication::sendEvent(autre.windowHandle(), &fin);
    QCoreApplication::processEvents();
    QCOMPARE(Etat(liste), QScroller::Dragging);
    QCOMPARE(liste->property("tactile"), QVariant(true));
    Doigt(liste).release(0, QPoint(50, 150), liste->viewport());
    QScroller::scroller(liste->viewport())->stop();
    QCOMPARE(liste->property("tactile"), QVariant(false));
}

void tst_DDefileurTactileFin::doigtsPartisEnsemble_data()
{
    AjouteAires();
}

void tst_DDefileurTactileFin::doigtsPartisEnsemble()
{
    QFETCH(bool, estListe);
    QWidget parent;
    QAbstractScrollArea * const aire = CreeAire(&parent, estListe);
    new DDefileurTactile(aire);
    QVERIFY(Montre(parent));
    QWidget * const viewport = aire->viewport();
    Doigt(aire).press(0, QPoint(50, 250), viewport);
    for (int y = 240; y > 150; y -= 10)
        Doigt(aire).move(0, QPoint(50, y), viewport);
    QCOMPARE(Etat(aire), QScroller::Dragging);
    Doigt(aire).stationary(0).press(1, QPoint(90, 150), viewport);
    Doigt(aire).release(0, QPoint(50, 150), viewport).release(1, QPoint(90, 150), viewport);
    QTRY_COMPARE(Etat(aire), QScroller::Inactive);
    QCOMPARE(aire->property("tactile"), estListe ? QVariant(false) : QVariant());
}

void tst_DDefileurTactileFin::viewportNatif()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent, 1); // nothing to scroll
    new DDefileurTactile(liste);
    liste->viewport()->setAttribute(Qt::WA_DontCreateNativeAncestors);
    liste->viewport()->setAttribute(Qt::WA_NativeWindow);
    QVERIFY(Montre(parent));
    QWindow * const fenetre = liste->viewport()->windowHandle();
    QVERIFY(fenetre && fenetre != parent.windowHandle());
    QTest::touchEvent(fenetre, DonneEcranTactile()).press(0, QPoint(50, 200), fenetre);
    QCOMPARE(liste->property("tactile"), QVariant(true));
    QTest::touchEvent(fenetre, DonneEcranTactile()).release(0, QPoint(50, 200), fenetre);
    QCOMPARE(liste->property("tactile"), QVariant(false));
}

void tst_DDefileurTactileFin::finDansLaFenetreDuDessous()
{
    QWidget principale;
    QVERIFY(Montre(principale));
    QDialog dialogue(&principale);
    QListWidget * const liste = CreeListe(&dialogue);
    new DDefileurTactile(liste);
    QVERIFY(Montre(dialogue));
    Doigt(liste).press(0, QPoint(50, 250), liste->viewport());
    for (int y = 240; y > 150; y -= 10)
        Doigt(liste).move(0, QPoint(50, y), liste->viewport());
    QTouchEvent fin(QEvent::TouchEnd, DonneEcranTactile());
    QCoreApplication::sendEvent(principale.windowHandle(), &fin);
    QCoreApplication::processEvents();
    QCOMPARE(Etat(liste), QScroller::Dragging);
    Doigt(liste).release(0, QPoint(50, 150), liste->viewport());
    QScroller::scroller(liste->viewport())->stop();
}

void tst_DDefileurTactileFin::fenetreDetruitePendantLeToucher()
{
    QWidget autre;
    auto parent = std::make_unique<QWidget>();
    QListWidget * const liste = CreeListe(parent.get());
    new DDefileurTactile(liste);
    QVERIFY(Montre(*parent));
    Doigt(liste).press(0, QPoint(50, 250), liste->viewport());
    QCOMPARE(Etat(liste), QScroller::Pressed);
    liste->setParent(&autre);
    parent.reset();
    QTRY_COMPARE(liste->property("tactile"), QVariant(false));
    QCOMPARE(Etat(liste), QScroller::Inactive);
    QTest::touchEvent(&autre, DonneEcranTactile()).release(0, QPoint(50, 250), &autre);
}

QTEST_MAIN(tst_DDefileurTactileFin)
#include "tst_DDefileurTactileFin.moc"
