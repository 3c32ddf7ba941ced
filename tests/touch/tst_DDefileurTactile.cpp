// tests/touch/tst_DDefileurTactile.cpp
#include "touch/DDefileurTactile.h"

#include "touch/DGestionnaireTapGesture.h"

#include "touch/EssaisTactiles.h"

using namespace EssaisTactiles;
using namespace Qt::StringLiterals;
using Metrique = QScrollerProperties::ScrollMetric;

namespace {

// A derived class may look at the events of more objects, and calls the slot of its base.
class DefileurEtendu : public DDefileurTactile
{
public:
    using DDefileurTactile::DDefileurTactile;
    using DDefileurTactile::PriseChangementEtatQScroller;
};

// Takes down what it does with one widget, and the value of "tactile" then.
class StyleDePolissage : public QProxyStyle
{
public:
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

    void polish(QWidget * widget) override { Note(u"polish "_s, widget); }
    void unpolish(QWidget * widget) override { Note(u"unpolish "_s, widget); }

    QWidget * observay = nullptr;
    QStringList appels;

private:
    void Note(QString const & appel, QWidget * widget)
    {
        if (widget && widget == observay)
            appels.append(appel + widget->property("tactile").toString());
    }
};

bool EstAuRegistre(QWidget * widget)
{
    return DDefileurTactile::mesWidgetsAvecDefileursTactile.contains(widget);
}

} // namespace

class tst_DDefileurTactile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void constructionSurUneVue();
    void constructionSurUneAire();
    void sansAire();
    void proprietesDuDefileur();
    void debutDuToucher();
    void finDuToucher_data();
    void finDuToucher();
    void arretDuDefileur();
    void autresEtats_data();
    void autresEtats();
    void aireSansTactile();
    void polissages();
    void etatsRelayes();
    void etatRelayayAvantTactile();
};

void tst_DDefileurTactile::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
}

void tst_DDefileurTactile::constructionSurUneVue()
{
    QTreeView vue;
    vue.setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    vue.setHorizontalScrollMode(QAbstractItemView::ScrollPerItem);
    auto * const defileur = new DDefileurTactile(&vue);
    QCOMPARE(defileur->parent(), &vue);
    QVERIFY(vue.testAttribute(Qt::WA_AcceptTouchEvents));
    QVERIFY(vue.viewport()->testAttribute(Qt::WA_AcceptTouchEvents));
    QVERIFY(QScroller::hasScroller(vue.viewport()));
    QVERIFY(!QScroller::hasScroller(&vue));
    QVERIFY(QScroller::grabbedGesture(vue.viewport()) != 0);
    QCOMPARE(DDefileurTactile::mesWidgetsAvecDefileursTactile, QSet<QWidget *>{vue.viewport()});
    QCOMPARE(vue.viewport()->findChildren<DGestionnaireTapGesture *>().size(), 1);
    QCOMPARE(vue.property("tactile"), QVariant(false));
    QCOMPARE(vue.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
    QCOMPARE(vue.horizontalScrollMode(), QAbstractItemView::ScrollPerItem);
}

void tst_DDefileurTactile::constructionSurUneAire()
{
    QScrollArea aire;
    new DDefileurTactile(&aire);
    QVERIFY(QScroller::hasScroller(aire.viewport()));
    QVERIFY(EstAuRegistre(aire.viewport()));
    QVERIFY(!aire.property("tactile").isValid());
}

void tst_DDefileurTactile::sansAire()
{
    DDefileurTactile const defileur(nullptr);
    QCOMPARE(defileur.parent(), nullptr);
}

void tst_DDefileurTactile::proprietesDuDefileur()
{
    QTreeView vue;
    QScrollerProperties const avant = QScroller::scroller(vue.viewport())->scrollerProperties();
    new DDefileurTactile(&vue);
    QScrollerProperties const apres = QScroller::scroller(vue.viewport())->scrollerProperties();
    QCOMPARE(apres.scrollMetric(Metrique::VerticalOvershootPolicy)
                 .value<QScrollerProperties::OvershootPolicy>(),
             QScrollerProperties::OvershootAlwaysOff);
    QCOMPARE(apres.scrollMetric(Metrique::AxisLockThreshold).toReal(), 1.0);
    for (int i = 0; i < QScrollerProperties::ScrollMetricCount; ++i) {
        auto const metrique = static_cast<Metrique>(i);
        if (metrique != Metrique::VerticalOvershootPolicy &&
            metrique != Metrique::AxisLockThreshold)
            QCOMPARE(apres.scrollMetric(metrique), avant.scrollMetric(metrique));
    }
}

void tst_DDefileurTactile::debutDuToucher()
{
    QTreeView vue;
    new DDefileurTactile(&vue);
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&vue, &debut);
    QCOMPARE(vue.property("tactile"), QVariant(true));
}

void tst_DDefileurTactile::finDuToucher_data()
{
    QTest::addColumn<QEvent::Type>("fin");
    QTest::newRow("the finger leaves") << QEvent::TouchEnd;
    QTest::newRow("the touch is taken away") << QEvent::TouchCancel;
}

// Without rows there is nothing to scroll, and the scroller is never told to move.
void tst_DDefileurTactile::finDuToucher()
{
    QFETCH(QEvent::Type, fin);
    QTreeView vue;
    new DDefileurTactile(&vue);
    vue.winId(); // the end goes to the window alone, since nobody has accepted the begin
    Temoin const temoin(vue.viewport(), {QEvent::HoverLeave});
    for (int i = 1; i <= 2; ++i) {
        for (QEvent::Type const type : {QEvent::TouchBegin, QEvent::TouchBegin}) {
            QTouchEvent debut = FaisToucher(type);
            QCoreApplication::sendEvent(&vue, &debut);
        }
        QTouchEvent mouvement = FaisToucher(QEvent::TouchUpdate);
        QCoreApplication::sendEvent(vue.windowHandle(), &mouvement);
        QWidget autre; // another finger, on another widget
        QTouchEvent autreFin = FaisToucher(fin);
        QCoreApplication::sendEvent(&autre, &autreFin);
        QCOMPARE(vue.property("tactile"), QVariant(true));

        QTouchEvent evenement = FaisToucher(fin);
        QCoreApplication::sendEvent(vue.windowHandle(), &evenement);
        QCOMPARE(vue.property("tactile"), QVariant(false));
        QTRY_COMPARE(temoin.Compte(), i);
    }
}

void tst_DDefileurTactile::arretDuDefileur()
{
    QTreeView vue;
    auto * const defileur = new DefileurEtendu(&vue);
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&vue, &debut);
    Temoin temoin(vue.viewport(), {QEvent::HoverLeave});

    defileur->PriseChangementEtatQScroller(QScroller::Inactive);
    QCOMPARE(vue.property("tactile"), QVariant(false));
    QCOMPARE(temoin.Compte(), 0); // posted
    QTRY_COMPARE(temoin.Compte(), 1);
    Temoin::Trace const & trace = temoin.DonneTraces().first();
    QCOMPARE(trace.position, QPointF(0, 0));
    QCOMPARE(trace.touches, Qt::NoModifier);
    QCOMPARE(trace.appareil, QPointingDevice::primaryPointingDevice());
}

void tst_DDefileurTactile::autresEtats_data()
{
    QTest::addColumn<QScroller::State>("etat");
    QTest::newRow("pressed") << QScroller::Pressed;
    QTest::newRow("dragging") << QScroller::Dragging;
    QTest::newRow("scrolling") << QScroller::Scrolling;
}

void tst_DDefileurTactile::autresEtats()
{
    QFETCH(QScroller::State, etat);
    QTreeView vue;
    auto * const defileur = new DefileurEtendu(&vue);
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&vue, &debut);
    defileur->PriseChangementEtatQScroller(etat);
    QCOMPARE(vue.property("tactile"), QVariant(true));
}

void tst_DDefileurTactile::aireSansTactile()
{
    QPlainTextEdit aire;
    aire.resize(100, 100);
    aire.setPlainText(u"a\n"_s.repeated(100));
    aire.ensurePolished();
    new DDefileurTactile(&aire);
    Temoin const temoin(aire.viewport(), {QEvent::HoverLeave});
    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&aire, &debut);
    auto * const scroller = QScroller::scroller(aire.viewport());
    scroller->handleInput(QScroller::InputPress, QPointF(10, 10), 0);
    scroller->stop();
    QCoreApplication::sendPostedEvents();
    QVERIFY(!aire.property("tactile").isValid());
    QCOMPARE(temoin.Compte(), 0);
}

void tst_DDefileurTactile::polissages()
{
    StyleDePolissage style;
    QTreeView vue;
    auto * const defileur = new DefileurEtendu(&vue);
    vue.setStyle(&style);
    style.observay = &vue;

    QTouchEvent debut = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&vue, &debut);
    QCOMPARE(style.appels, (QStringList{u"unpolish true"_s, u"polish true"_s}));
    style.appels.clear();
    defileur->PriseChangementEtatQScroller(QScroller::Inactive);
    QCOMPARE(style.appels, (QStringList{u"unpolish false"_s, u"polish false"_s}));
    style.observay = nullptr;
    vue.setStyle(nullptr);
}

void tst_DDefileurTactile::etatsRelayes()
{
    QListWidget liste;
    liste.resize(100, 100);
    for (int i = 0; i < 100; ++i)
        liste.addItem(QString::number(i));
    auto * const defileur = new DDefileurTactile(&liste);
    QSignalSpy const espion(defileur, &DDefileurTactile::SignalChangementEtat);
    liste.show();
    QVERIFY(QTest::qWaitForWindowExposed(&liste));
    auto * const scroller = QScroller::scroller(liste.viewport());
    liste.setProperty("tactile", true);

    scroller->handleInput(QScroller::InputPress, QPointF(10, 90), 0);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).value<QScroller::State>(), QScroller::Pressed);
    QCOMPARE(liste.property("tactile"), QVariant(true));
    scroller->handleInput(QScroller::InputRelease, QPointF(10, 90), 5);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).value<QScroller::State>(), QScroller::Inactive);
    QCOMPARE(liste.property("tactile"), QVariant(false));
}

// A receiver that asks for "tactile" hears of the stop before the style sheet.
void tst_DDefileurTactile::etatRelayayAvantTactile()
{
    QTreeView vue;
    auto * const defileur = new DDefileurTactile(&vue);
    vue.setProperty("tactile", true);
    QList<QVariant> tactiles;
    connect(defileur, &DDefileurTactile::SignalChangementEtat, &vue,
            [&](QScroller::State) { tactiles.append(vue.property("tactile")); });
    Q_EMIT QScroller::scroller(vue.viewport())->stateChanged(QScroller::Inactive);
    QCOMPARE(tactiles, QList<QVariant>{true});
    QCOMPARE(vue.property("tactile"), QVariant(false));
}

QTEST_MAIN(tst_DDefileurTactile)
#include "tst_DDefileurTactile.moc"
