// tests/touch/tst_DDefileurTactileVies.cpp
//
// Areas, viewports and managers come and go, also in great number; the sanitizers look for what
// stays.
#include "touch/DDefileurTactile.h"

#include "touch/DGestionnaireTapGesture.h"

#include "touch/EssaisTactiles.h"

using namespace EssaisTactiles;
using namespace Qt::StringLiterals;

namespace {

constexpr int kAires = 1'000;

class ViewportCompte : public QWidget
{
public:
    int CompteDestroyed() const { return receivers(SIGNAL(destroyed(QObject *))); }
};

bool EstAuRegistre(QWidget * widget)
{
    return DDefileurTactile::mesWidgetsAvecDefileursTactile.contains(widget);
}

} // namespace

class tst_DDefileurTactileVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void milleAires();
    void milleAiresTouchees();
    void milleViewports();
    void millePassages();
    void destructionPendantLeDefilement();
    void destructionDuDefileurSeul();
    void destructionDeLAire();
    void autreViewport();
    void viewportDejaEnfant();
    void cyclesDeDefileurs();
    void viewportPerdu();
};

void tst_DDefileurTactileVies::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
    QVERIFY(QScroller::activeScrollers().isEmpty());
}

void tst_DDefileurTactileVies::milleAires()
{
    QList<QPointer<QScroller>> defileurs;
    for (int i = 0; i < kAires; ++i) {
        std::unique_ptr<QAbstractScrollArea> aire;
        if (i % 2)
            aire = std::make_unique<QTreeView>();
        else
            aire = std::make_unique<QPlainTextEdit>();
        new DDefileurTactile(aire.get());
        defileurs.append(QScroller::scroller(aire->viewport()));
        QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile.size(), 1);
    }
    QCOMPARE(defileurs.size(), kAires);
    for (QPointer<QScroller> const & defileur : defileurs)
        QVERIFY(!defileur);
}

// A scroller that has seen an event keeps more than one that has not.
void tst_DDefileurTactileVies::milleAiresTouchees()
{
    QWidget fenetre;
    fenetre.resize(200, 200);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    for (int i = 0; i < kAires; ++i) {
        QListView vue(&fenetre);
        vue.resize(200, 200);
        new DDefileurTactile(&vue);
        vue.show();
        Tape(vue.viewport(), QPoint(50, 50));
        QCOMPARE(vue.property("tactile"), QVariant(false));
    }
}

void tst_DDefileurTactileVies::milleViewports()
{
    QTreeView vue;
    new DDefileurTactile(&vue);
    QPointer<QScroller> precedent = QScroller::scroller(vue.viewport());
    for (int i = 0; i < kAires; ++i) {
        vue.setViewport(new QWidget);
        QVERIFY(!precedent);
        precedent = QScroller::scroller(vue.viewport());
        QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile.size(), 1);
    }
}

void tst_DDefileurTactileVies::millePassages()
{
    QScrollArea externe;
    new DDefileurTactile(&externe);
    auto * const interne = new QTreeView;
    externe.setWidget(interne);
    new DDefileurTactile(interne);
    QScroller const * const defileur = QScroller::scroller(externe.viewport());
    for (int i = 0; i < kAires; ++i) {
        for (QEvent::Type const type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent evenement(type);
            QCoreApplication::sendEvent(interne, &evenement);
        }
    }
    QCOMPARE(QScroller::scroller(externe.viewport()), defileur);
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile.size(), 2);
}

void tst_DDefileurTactileVies::destructionPendantLeDefilement()
{
    QWidget fenetre;
    fenetre.resize(200, 200);
    auto * const texte = new QPlainTextEdit(u"a\n"_s.repeated(500), &fenetre);
    texte->resize(200, 200);
    new DDefileurTactile(texte);
    fenetre.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenetre));
    QWidget * const viewport = texte->viewport();
    QTest::touchEvent(viewport, DonneEcranTactile()).press(0, QPoint(50, 150), viewport);
    for (int y = 140; y > 50; y -= 10)
        QTest::touchEvent(viewport, DonneEcranTactile()).move(0, QPoint(50, y), viewport);
    QCOMPARE(QScroller::activeScrollers(), QList{QScroller::scroller(viewport)});
    delete texte;
    QVERIFY(QScroller::activeScrollers().isEmpty());
    QTest::touchEvent(&fenetre, DonneEcranTactile()).release(0, QPoint(50, 50), &fenetre);
}

void tst_DDefileurTactileVies::destructionDuDefileurSeul()
{
    QTreeView vue;
    auto * const defileur = new DDefileurTactile(&vue);
    delete defileur;
    QVERIFY(!EstAuRegistre(vue.viewport()));
    QVERIFY(QScroller::hasScroller(vue.viewport()));
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&vue, &debut);
    QCOMPARE(vue.property("tactile"), QVariant(false));

    new DDefileurTactile(&vue);
    QVERIFY(EstAuRegistre(vue.viewport()));
}

void tst_DDefileurTactileVies::destructionDeLAire()
{
    auto * const vue = new QTreeView;
    QPointer<DDefileurTactile> const defileur = new DDefileurTactile(vue);
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(vue, &debut);
    delete vue;
    QVERIFY(!defileur);
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
    QWidget autre; // the end of a touch that began on what is gone
    QTouchEvent fin = FaisToucher(QEvent::TouchEnd);
    QCoreApplication::sendEvent(&autre, &fin);
}

void tst_DDefileurTactileVies::autreViewport()
{
    QTreeView vue;
    auto * const defileur = new DDefileurTactile(&vue);
    QSignalSpy const espion(defileur, &DDefileurTactile::SignalChangementEtat);
    auto * const viewport = new QWidget;
    vue.setViewport(viewport);
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile, QSet<QWidget *>{viewport});
    QVERIFY(QScroller::hasScroller(viewport));
    QCOMPARE(viewport->findChildren<DGestionnaireTapGesture *>().size(), 1);
    new QWidget(&vue); // another child changes nothing
    QCOMPARE(viewport->findChildren<DGestionnaireTapGesture *>().size(), 1);

    vue.setProperty("tactile", true);
    Q_EMIT QScroller::scroller(viewport)->stateChanged(QScroller::Inactive);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(vue.property("tactile"), QVariant(false));
}

void tst_DDefileurTactileVies::viewportDejaEnfant()
{
    QTreeView vue;
    new DDefileurTactile(&vue);
    auto * const viewport = new QWidget(&vue);
    vue.setViewport(viewport);
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile, QSet<QWidget *>{viewport});
    QCOMPARE(viewport->findChildren<DGestionnaireTapGesture *>().size(), 1);
    delete new QWidget(&vue); // another child changes nothing
    QCOMPARE(viewport->findChildren<DGestionnaireTapGesture *>().size(), 1);
}

void tst_DDefileurTactileVies::cyclesDeDefileurs()
{
    QTreeView vue;
    auto * const viewport = new ViewportCompte;
    vue.setViewport(viewport);
    delete new DDefileurTactile(&vue);
    int const apresUn = viewport->CompteDestroyed();
    for (int i = 0; i < 3; ++i)
        delete new DDefileurTactile(&vue);
    QCOMPARE(viewport->CompteDestroyed(), apresUn);
}

// The area names its viewport as before while that one goes.
void tst_DDefileurTactileVies::viewportPerdu()
{
    QAbstractScrollArea aire;
    new DDefileurTactile(&aire);
    delete aire.viewport();
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
}

QTEST_MAIN(tst_DDefileurTactileVies)
#include "tst_DDefileurTactileVies.moc"
