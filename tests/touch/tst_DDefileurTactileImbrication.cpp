// tests/touch/tst_DDefileurTactileImbrication.cpp
#include "touch/AiresImbriquees.h"

using namespace AiresImbriquees;
using namespace EssaisTactiles;
using namespace Qt::StringLiterals;
using Metrique = QScrollerProperties::ScrollMetric;

class tst_DDefileurTactileImbrication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void passageEtRetour();
    void proprietesAuRetour();
    void focusDeuxFois();
    void troisNiveaux();
    void deuxInternes();
    void sansAncetre();
    void relaisDesAncetres();
    void doigtSurLInterne();
    void focusParLeDoigt();
    void focusCroisays();
};

void tst_DDefileurTactileImbrication::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
    QVERIFY(QScroller::activeScrollers().isEmpty());
}

void tst_DDefileurTactileImbrication::passageEtRetour()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    QVERIFY(EstAlEcoute(&externe));
    QVERIFY(EstAlEcoute(interne));

    Focalise(interne, QEvent::FocusIn);
    QVERIFY(!EstAlEcoute(&externe));
    QVERIFY(EstAlEcoute(interne));
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.contains(externe.viewport()));

    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
    QVERIFY(EstAlEcoute(interne));
}

void tst_DDefileurTactileImbrication::proprietesAuRetour()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    Focalise(interne, QEvent::FocusIn);
    QScrollerProperties autres = DonneDefileur(&externe)->scrollerProperties();
    autres.setScrollMetric(Metrique::VerticalOvershootPolicy,
                           QVariant::fromValue(QScrollerProperties::OvershootAlwaysOn));
    autres.setScrollMetric(Metrique::AxisLockThreshold, 0.25);
    DonneDefileur(&externe)->setScrollerProperties(autres);

    Focalise(interne, QEvent::FocusOut);
    QScrollerProperties const rendues = DonneDefileur(&externe)->scrollerProperties();
    QCOMPARE(rendues.scrollMetric(Metrique::VerticalOvershootPolicy)
                 .value<QScrollerProperties::OvershootPolicy>(),
             QScrollerProperties::OvershootAlwaysOff);
    QCOMPARE(rendues.scrollMetric(Metrique::AxisLockThreshold).toReal(), 1.0);
}

void tst_DDefileurTactileImbrication::focusDeuxFois()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    int const dernierGeste = QScroller::grabbedGesture(interne->viewport());
    Focalise(interne, QEvent::FocusIn);
    Focalise(interne, QEvent::FocusIn);
    QVERIFY(!EstAlEcoute(&externe));
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
    // Qt numbers the gestures that are grabbed: the scroller has come back once.
    QCOMPARE(int(QScroller::grabbedGesture(externe.viewport())), dernierGeste + 1);
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
}

void tst_DDefileurTactileImbrication::troisNiveaux()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    AireExterne milieu(externe.widget());
    milieu.setGeometry(20, 20, 200, 200);
    QListWidget * const interne = CreeInterne(milieu.widget());
    QVERIFY(Montre(fenetre));

    Focalise(interne, QEvent::FocusIn);
    QVERIFY(!EstAlEcoute(&externe));
    QVERIFY(!EstAlEcoute(&milieu));
    Focalise(interne, QEvent::FocusOut);
    Focalise(&milieu, QEvent::FocusIn);
    QVERIFY(!EstAlEcoute(&externe));
    QVERIFY(EstAlEcoute(&milieu));
    QVERIFY(EstAlEcoute(interne));
    Focalise(&milieu, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
}

void tst_DDefileurTactileImbrication::deuxInternes()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const premier = CreeInterne(externe.widget());
    QListWidget * const second = CreeInterne(externe.widget(), 140);
    QVERIFY(Montre(fenetre));
    premier->setFocus();
    QVERIFY(premier->hasFocus());
    QVERIFY(!EstAlEcoute(&externe));
    second->setFocus();
    QVERIFY(!EstAlEcoute(&externe));
    second->clearFocus();
    QVERIFY(EstAlEcoute(&externe));
}

void tst_DDefileurTactileImbrication::sansAncetre()
{
    QWidget fenetre;
    QListWidget * const interne = CreeInterne(&fenetre);
    QVERIFY(Montre(fenetre));
    Focalise(interne, QEvent::FocusIn);
    QVERIFY(EstAlEcoute(interne));
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(interne));
    QVERIFY(!QScroller::hasScroller(&fenetre));
}

void tst_DDefileurTactileImbrication::relaisDesAncetres()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QSignalSpy const duDehors(externe.defileur, &DDefileurTactile::SignalChangementEtat);
    QSignalSpy const duDedans(interne->findChild<DDefileurTactile *>(),
                              &DDefileurTactile::SignalChangementEtat);
    Q_EMIT DonneDefileur(&externe)->stateChanged(QScroller::Inactive);
    QCOMPARE(duDehors.count(), 1);
    QCOMPARE(duDedans.count(), 0);
    for (int i = 0; i < 2; ++i) {
        Focalise(interne, QEvent::FocusIn);
        Focalise(interne, QEvent::FocusOut);
    }
    Q_EMIT DonneDefileur(&externe)->stateChanged(QScroller::Inactive);
    QCOMPARE(duDehors.count(), 2);
    QCOMPARE(duDedans.count(), 1); // which has added it, too
}

void tst_DDefileurTactileImbrication::doigtSurLInterne()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    interne->setFocus();
    QWidget * const viewport = interne->viewport();
    QTest::touchEvent(viewport, DonneEcranTactile()).press(0, QPoint(50, 80), viewport);
    for (int y = 70; y > -60; y -= 10)
        QTest::touchEvent(viewport, DonneEcranTactile()).move(0, QPoint(50, y), viewport);
    QTRY_VERIFY(interne->verticalScrollBar()->value() > 0);
    QCOMPARE(externe.verticalScrollBar()->value(), 0);
    QTest::touchEvent(viewport, DonneEcranTactile()).release(0, QPoint(50, -50), viewport);
    QTRY_COMPARE(DonneDefileur(interne)->state(), QScroller::Inactive);
    QCOMPARE(externe.verticalScrollBar()->value(), 0);
}

// The touch that gives the inner area the focus has pressed both scrollers.
void tst_DDefileurTactileImbrication::focusParLeDoigt()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QLineEdit autre(&fenetre);
    QVERIFY(Montre(fenetre));
    autre.setFocus();
    QWidget * const viewport = interne->viewport();
    QTest::touchEvent(viewport, DonneEcranTactile()).press(0, QPoint(50, 80), viewport);
    QVERIFY(interne->hasFocus());
    QCOMPARE(DonneDefileur(&externe)->state(), QScroller::Inactive);
    QCOMPARE(DonneDefileur(interne)->state(), QScroller::Pressed);
    for (int y = 70; y > -60; y -= 10)
        QTest::touchEvent(viewport, DonneEcranTactile()).move(0, QPoint(50, y), viewport);
    QTRY_VERIFY(interne->verticalScrollBar()->value() > 0);
    QTest::touchEvent(viewport, DonneEcranTactile()).release(0, QPoint(50, -50), viewport);
    QTRY_COMPARE(DonneDefileur(interne)->state(), QScroller::Inactive);
    QCOMPARE(externe.verticalScrollBar()->value(), 0);

    autre.setFocus();
    QVERIFY(EstAlEcoute(&externe));
    QCOMPARE(DonneDefileur(&externe)->state(), QScroller::Inactive);
}

// The other area has given the outer one its scroller back while this one kept it in its list.
void tst_DDefileurTactileImbrication::focusCroisays()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const premier = CreeInterne(externe.widget());
    QListWidget * const second = CreeInterne(externe.widget(), 140);
    QVERIFY(Montre(fenetre));
    Focalise(premier, QEvent::FocusIn);
    Focalise(second, QEvent::FocusIn);
    Focalise(premier, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
    Focalise(second, QEvent::FocusIn);
    QVERIFY(!EstAlEcoute(&externe));
    Focalise(second, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
}

QTEST_MAIN(tst_DDefileurTactileImbrication)
#include "tst_DDefileurTactileImbrication.moc"
