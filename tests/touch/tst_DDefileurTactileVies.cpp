// tests/touch/tst_DDefileurTactileVies.cpp
//
// Many areas come and go; the sanitizers look for what stays.
#include "touch/DDefileurTactile.h"

#include "touch/EssaisTactiles.h"

using namespace EssaisTactiles;
using namespace Qt::StringLiterals;

namespace {

constexpr int kAires = 1'000;

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

QTEST_MAIN(tst_DDefileurTactileVies)
#include "tst_DDefileurTactileVies.moc"
