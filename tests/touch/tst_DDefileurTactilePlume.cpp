// tests/touch/tst_DDefileurTactilePlume.cpp
//
// What comes of the events of a pen and of a mouse, and of the mouse events that are made of a pen.
#include "touch/DDefileurTactile.h"

#include "touch/AireTouchee.h"

using namespace AireTouchee;
using namespace EssaisTactiles;
using Outil = QPointingDevice::PointerType;

namespace {

class DefileurEtendu : public DDefileurTactile
{
public:
    using DDefileurTactile::DDefileurTactile;
    using DDefileurTactile::PriseChangementEtatQScroller;
};

} // namespace

class tst_DDefileurTactilePlume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sourisSurLAire_data();
    void sourisSurLAire();
    void plumeSurLAire_data();
    void plumeSurLAire();
    void plumePasAuxParents();
    void autreObjet();
    void destructionParLaPlume();
    void plumeEnUnClic();
    void doublePressionDePlume();
    void sansAire();
    void sourisPendantLeToucher_data();
    void sourisPendantLeToucher();
};

void tst_DDefileurTactilePlume::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(DDefileurTactile::mesWidgetsAvecDefileursTactile.isEmpty());
}

void tst_DDefileurTactilePlume::sourisSurLAire_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseEventSource>("source");
    QTest::addColumn<bool>("passe");
    QTest::newRow("a press by the system")
        << QEvent::MouseButtonPress << Qt::MouseEventSynthesizedBySystem << false;
    QTest::newRow("a release by Qt")
        << QEvent::MouseButtonRelease << Qt::MouseEventSynthesizedByQt << false;
    QTest::newRow("a move by Qt") << QEvent::MouseMove << Qt::MouseEventSynthesizedByQt << false;
    QTest::newRow("a real press") << QEvent::MouseButtonPress << Qt::MouseEventNotSynthesized
                                  << true;
    QTest::newRow("a real double click")
        << QEvent::MouseButtonDblClick << Qt::MouseEventNotSynthesized << true;
    QTest::newRow("a double click by Qt")
        << QEvent::MouseButtonDblClick << Qt::MouseEventSynthesizedByQt << true;
    QTest::newRow("a double click by the system")
        << QEvent::MouseButtonDblClick << Qt::MouseEventSynthesizedBySystem << true;
}

void tst_DDefileurTactilePlume::sourisSurLAire()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseEventSource, source);
    QFETCH(bool, passe);
    QTreeView vue;
    Temoin const temoin(&vue, Temoin::Souris());
    auto * const defileur = new DDefileurTactile(&vue);
    QMouseEvent souris = FaisSouris(type, source);
    QCOMPARE(defileur->eventFilter(&vue, &souris), !passe);
    QCoreApplication::sendEvent(&vue, &souris);
    QCOMPARE(temoin.Compte(), passe ? 1 : 0);
}

void tst_DDefileurTactilePlume::plumeSurLAire_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Outil>("outil");
    QTest::addColumn<QList<QEvent::Type>>("souris");
    using Types = QList<QEvent::Type>;
    QTest::newRow("pen press") << QEvent::TabletPress << Outil::Pen
                               << Types{QEvent::MouseButtonPress};
    QTest::newRow("pen release") << QEvent::TabletRelease << Outil::Pen
                                 << Types{QEvent::MouseButtonRelease};
    QTest::newRow("pen move") << QEvent::TabletMove << Outil::Pen << Types{QEvent::MouseMove};
    QTest::newRow("finger") << QEvent::TabletPress << Outil::Finger << Types();
    QTest::newRow("eraser") << QEvent::TabletPress << Outil::Eraser << Types();
}

void tst_DDefileurTactilePlume::plumeSurLAire()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Outil, outil);
    QTreeView vue;
    Temoin const souris(&vue, Temoin::Souris());
    Temoin const tablette(&vue, {type});
    new DDefileurTactile(&vue);
    auto const evenement = FaisTablette(type, QPointF(6, 7), {}, DonneOutil(outil));
    QCoreApplication::sendEvent(&vue, evenement.get());
    QTEST(souris.DonneTypes(), "souris");
    if (souris.Compte())
        QCOMPARE(souris.DonneTraces().first().position, QPointF(6, 7));
    QCOMPARE(tablette.Compte(), 1); // it goes on
}

// The viewport has its press already, and lets no mouse event of its own through to the parents.
void tst_DDefileurTactilePlume::plumePasAuxParents()
{
    QWidget parent;
    QTreeView vue(&parent);
    new DDefileurTactile(&vue);
    Temoin const surParent(&parent, Temoin::Souris());
    Temoin const surAire(&vue, Temoin::Souris());
    Temoin const surViewport(vue.viewport(), Temoin::Souris());
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(6, 7));
    QCoreApplication::sendEvent(vue.viewport(), plume.get());
    QCOMPARE(surViewport.DonneTypes(), QList{QEvent::MouseButtonPress});
    QCOMPARE(surAire.DonneTypes(), QList{QEvent::MouseButtonPress});
    QCOMPARE(surParent.Compte(), 0);
    QVERIFY(!vue.testAttribute(Qt::WA_NoMousePropagation));
}

void tst_DDefileurTactilePlume::autreObjet()
{
    QTreeView vue;
    QWidget autre;
    auto * const defileur = new DDefileurTactile(&vue);
    Temoin const surAire(&vue, Temoin::Souris());
    Temoin const surAutre(&autre, Temoin::Souris());
    autre.installEventFilter(defileur);

    QMouseEvent souris = FaisSouris(QEvent::MouseButtonPress, Qt::MouseEventSynthesizedByQt);
    QCoreApplication::sendEvent(&autre, &souris);
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(6, 7));
    QCoreApplication::sendEvent(&autre, plume.get());
    QTouchEvent toucher = FaisToucher(QEvent::TouchBegin);
    QCoreApplication::sendEvent(&autre, &toucher);

    QCOMPARE(surAutre.Compte(), 0);
    QCOMPARE(surAire.DonneTypes(), QList{QEvent::MouseButtonPress});
    QCOMPARE(vue.property("tactile"), QVariant(false));
}

void tst_DDefileurTactilePlume::destructionParLaPlume()
{
    auto * const parent = new QWidget;
    auto * const vue = new QTreeView(parent);
    Temoin temoin(vue, Temoin::Souris());
    temoin.surEvenement = [parent] { delete parent; };
    QPointer<DDefileurTactile> const defileur = new DDefileurTactile(vue);
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(6, 7));
    QCoreApplication::sendEvent(vue, plume.get());
    QVERIFY(!defileur);
    QVERIFY(plume->isAccepted()); // nobody is left to ask
    QCOMPARE(temoin.Compte(), 1);
}

// The way of a pen on a platform that makes no mouse events of it: Qt makes them of the tablet
// events that nobody takes, and gives them the pen for a device.
void tst_DDefileurTactilePlume::plumeEnUnClic()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    QSignalSpy const presses(liste, &QListWidget::pressed);
    QSignalSpy const clics(liste, &QListWidget::clicked);
    QPointF const point = liste->visualItemRect(liste->item(3)).center();
    QPointF const local = liste->viewport()->mapTo(&parent, point);
    QPointF const globale = liste->viewport()->mapToGlobal(point);
    for (auto const & [tablette, souris] :
         {std::pair(QEvent::TabletPress, QEvent::MouseButtonPress),
          std::pair(QEvent::TabletRelease, QEvent::MouseButtonRelease)}) {
        auto const plume = FaisTablette(tablette, local, globale);
        QCoreApplication::sendEvent(parent.windowHandle(), plume.get());
        QVERIFY(!plume->isAccepted());
        QMouseEvent mimay(souris, local, local, globale, plume->button(), plume->buttons(),
                          Qt::NoModifier, Qt::MouseEventNotSynthesized, plume->pointingDevice());
        QCoreApplication::sendEvent(parent.windowHandle(), &mimay);
    }
    QCOMPARE(liste->currentRow(), 3);
    QCOMPARE(presses.count(), 1);
    QCOMPARE(clics.count(), 1);
}

void tst_DDefileurTactilePlume::doublePressionDePlume()
{
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent);
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    QSignalSpy const doubles(liste, &QListWidget::doubleClicked);
    QPointF const point = liste->visualItemRect(liste->item(3)).center();
    QPointF const globale = liste->viewport()->mapToGlobal(point);
    for (QEvent::Type const type :
         {QEvent::TabletPress, QEvent::TabletRelease, QEvent::TabletPress}) {
        auto const plume = FaisTablette(type, point, globale);
        QCoreApplication::sendEvent(liste->viewport(), plume.get());
    }
    QMouseEvent mimay(QEvent::MouseButtonDblClick, point, point, globale, Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier, Qt::MouseEventNotSynthesized,
                      DonneOutil(QPointingDevice::PointerType::Pen));
    QCoreApplication::sendEvent(liste->viewport(), &mimay);
    QCOMPARE(doubles.count(), 1);
}

void tst_DDefileurTactilePlume::sansAire()
{
    QWidget autre;
    DefileurEtendu defileur(nullptr);
    autre.installEventFilter(&defileur);
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(6, 7));
    QCoreApplication::sendEvent(&autre, plume.get());
    QVERIFY(!plume->isAccepted());
    defileur.PriseChangementEtatQScroller(QScroller::Inactive);
}

void tst_DDefileurTactilePlume::sourisPendantLeToucher_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::newRow("press") << QEvent::MouseButtonPress;
    QTest::newRow("move") << QEvent::MouseMove;
    QTest::newRow("release") << QEvent::MouseButtonRelease;
    QTest::newRow("double click") << QEvent::MouseButtonDblClick;
}

// What the system makes of the finger, besides its touch.
void tst_DDefileurTactilePlume::sourisPendantLeToucher()
{
    QFETCH(QEvent::Type, type);
    QWidget parent;
    QListWidget * const liste = CreeListe(&parent);
    QWidget * const viewport = liste->viewport();
    Temoin const temoin(viewport, Temoin::Souris());
    new DDefileurTactile(liste);
    QVERIFY(Montre(parent));
    QTest::touchEvent(viewport, DonneEcranTactile()).press(0, QPoint(5, 5), viewport);
    QMouseEvent souris = FaisSouris(type, Qt::MouseEventSynthesizedBySystem);
    QCoreApplication::sendEvent(viewport, &souris);
    QCOMPARE(temoin.Compte(), 0);
    QTest::touchEvent(viewport, DonneEcranTactile()).release(0, QPoint(5, 5), viewport);
    QTRY_COMPARE(QScroller::scroller(viewport)->state(), QScroller::Inactive);
}

QTEST_MAIN(tst_DDefileurTactilePlume)
#include "tst_DDefileurTactilePlume.moc"
