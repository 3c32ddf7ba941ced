// tests/touch/tst_DDefileurTactileImbricationVies.cpp
//
// Nested areas that part or go while the inner one has the focus.
#include "touch/AiresImbriquees.h"

using namespace AiresImbriquees;

class tst_DDefileurTactileImbricationVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ancetreQuitte();
    void unAncetreQuittay();
    void ancetreQuittePuisDetruit();
    void interneDetruitAvecLeFocus();
    void defileurInterneDetruitSeul();
};

void tst_DDefileurTactileImbricationVies::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
    QVERIFY(QScroller::activeScrollers().isEmpty());
}

void tst_DDefileurTactileImbricationVies::ancetreQuitte()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    Focalise(interne, QEvent::FocusIn);
    interne->setParent(&fenetre);
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(!EstAlEcoute(&externe)); // deliberate: it gets no scroller back
    interne->setParent(externe.widget());
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(!EstAlEcoute(&externe));
    Focalise(interne, QEvent::FocusIn); // as any area around it that is in the register
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(&externe));
}

void tst_DDefileurTactileImbricationVies::unAncetreQuittay()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    auto * const milieu = new AireExterne(externe.widget());
    milieu->setGeometry(20, 20, 200, 200);
    QListWidget * const interne = CreeInterne(milieu->widget());
    QVERIFY(Montre(fenetre));
    Focalise(interne, QEvent::FocusIn);
    milieu->setParent(&fenetre);
    milieu->setGeometry(0, 340, 200, 50);
    milieu->show();
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(EstAlEcoute(milieu)); // still around it
    QVERIFY(!EstAlEcoute(&externe));
}

void tst_DDefileurTactileImbricationVies::ancetreQuittePuisDetruit()
{
    QWidget fenetre;
    auto * const externe = new AireExterne(&fenetre);
    QListWidget * const interne = CreeInterne(externe->widget());
    Focalise(interne, QEvent::FocusIn);
    interne->setParent(&fenetre);
    delete externe;
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile,
             QSet<QWidget *>{interne->viewport()});
    Focalise(interne, QEvent::FocusOut);
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile,
             QSet<QWidget *>{interne->viewport()});
}

void tst_DDefileurTactileImbricationVies::interneDetruitAvecLeFocus()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    interne->setFocus();
    QVERIFY(!EstAlEcoute(&externe));
    delete interne;
    QVERIFY(EstAlEcoute(&externe));
}

// Nobody is left who knows of the outer area.
void tst_DDefileurTactileImbricationVies::defileurInterneDetruitSeul()
{
    QWidget fenetre;
    AireExterne externe(&fenetre);
    QListWidget * const interne = CreeInterne(externe.widget());
    QVERIFY(Montre(fenetre));
    Focalise(interne, QEvent::FocusIn);
    delete interne->findChild<DDefileurTactile *>();
    Focalise(interne, QEvent::FocusOut);
    QVERIFY(!EstAlEcoute(&externe));
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile, QSet<QWidget *>{externe.viewport()});
}

QTEST_MAIN(tst_DDefileurTactileImbricationVies)
#include "tst_DDefileurTactileImbricationVies.moc"
