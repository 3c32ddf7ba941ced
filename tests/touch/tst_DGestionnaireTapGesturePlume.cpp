// tests/touch/tst_DGestionnaireTapGesturePlume.cpp
//
// What comes of the events of a pen and of a mouse, and of the mouse events that are made of a
// finger or a pen.
#include "touch/DGestionnaireTapGesture.h"

#include "touch/WidgetTouchay.h"

using namespace EssaisTactiles;

namespace {

QList<QEvent::Type> const kTraces = Temoin::Souris();

class Ephemere : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void mousePressEvent(QMouseEvent *) override { delete this; }
};

} // namespace

class tst_DGestionnaireTapGesturePlume : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void sourisSynthetique_data();
    void sourisSynthetique();
    void toucherAnnulay();
    void plume();
    void plumeDeQt();
    void destructionParLaPlume();
    void sansWidget();
};

void tst_DGestionnaireTapGesturePlume::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DGestionnaireTapGesturePlume::sourisSynthetique_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::MouseEventSource>("source");
    QTest::addColumn<bool>("passe");
    QTest::newRow("press by the system")
        << QEvent::MouseButtonPress << Qt::MouseEventSynthesizedBySystem << false;
    QTest::newRow("release by Qt")
        << QEvent::MouseButtonRelease << Qt::MouseEventSynthesizedByQt << false;
    QTest::newRow("real press") << QEvent::MouseButtonPress << Qt::MouseEventNotSynthesized << true;
    QTest::newRow("real double click")
        << QEvent::MouseButtonDblClick << Qt::MouseEventNotSynthesized << true;
    QTest::newRow("double click by Qt, no finger down")
        << QEvent::MouseButtonDblClick << Qt::MouseEventSynthesizedByQt << true;
}

void tst_DGestionnaireTapGesturePlume::sourisSynthetique()
{
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::MouseEventSource, source);
    QFETCH(bool, passe);
    QWidget widget;
    Temoin const temoin(&widget, kTraces);
    new DGestionnaireTapGesture(&widget);
    QMouseEvent souris = FaisSouris(type, source);
    QCoreApplication::sendEvent(&widget, &souris);
    QCOMPARE(temoin.Compte(), passe ? 1 : 0);
}

// A touch that is taken away leaves the tap without an end.
void tst_DGestionnaireTapGesturePlume::toucherAnnulay()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    QTest::touchEvent(&banc.widget, DonneEcranTactile()).press(0, QPoint(30, 40), &banc.widget);
    QMouseEvent souris = FaisSouris(QEvent::MouseButtonDblClick, Qt::MouseEventSynthesizedBySystem);
    QCoreApplication::sendEvent(&banc.widget, &souris);
    QCOMPARE(banc.temoin.Compte(), 0); // a finger is down
    QTouchEvent annulation = FaisToucher(QEvent::TouchCancel);
    QCoreApplication::sendEvent(&banc.widget, &annulation);
    QCoreApplication::sendEvent(&banc.widget, &souris);
    QCOMPARE(banc.temoin.DonneTypes(), QList{QEvent::MouseButtonDblClick});
    QTest::touchEvent(&banc.widget, DonneEcranTactile()).release(0, QPoint(30, 40), &banc.widget);
}

void tst_DGestionnaireTapGesturePlume::plume()
{
    QWidget widget;
    Temoin const souris(&widget, kTraces);
    Temoin const tablette(&widget, {QEvent::TabletPress});
    new DGestionnaireTapGesture(&widget);
    auto const press = FaisTablette(QEvent::TabletPress, QPointF(9, 9));
    QCoreApplication::sendEvent(&widget, press.get());
    QCOMPARE(souris.DonneTypes(), QList{QEvent::MouseButtonPress});
    QCOMPARE(souris.DonneTraces().first().position, QPointF(9, 9));
    QCOMPARE(tablette.Compte(), 1); // it goes on
    auto const gomme = FaisTablette(QEvent::TabletPress, QPointF(9, 9), {},
                                    DonneOutil(QPointingDevice::PointerType::Eraser));
    QCoreApplication::sendEvent(&widget, gomme.get());
    QCOMPARE(souris.Compte(), 1);
    QCOMPARE(tablette.Compte(), 2);
}

// What Qt does with a pen: the tablet event first, then, as nobody takes it, a mouse event of the
// pen.
void tst_DGestionnaireTapGesturePlume::plumeDeQt()
{
    QWidget widget;
    Temoin const temoin(&widget, kTraces);
    new DGestionnaireTapGesture(&widget);
    for (auto const & [tablette, mimay] :
         {std::pair(QEvent::TabletPress, QEvent::MouseButtonPress),
          std::pair(QEvent::TabletMove, QEvent::MouseMove),
          std::pair(QEvent::TabletRelease, QEvent::MouseButtonRelease)}) {
        auto const plume = FaisTablette(tablette, QPointF(9, 9));
        QCoreApplication::sendEvent(&widget, plume.get());
        QVERIFY(!plume->isAccepted());
        QMouseEvent souris =
            FaisSouris(mimay, Qt::MouseEventNotSynthesized, plume->pointingDevice());
        QCoreApplication::sendEvent(&widget, &souris);
    }
    QCOMPARE(temoin.DonneTypes(),
             (QList{QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}));
}

// Qt would go on to ask the widget, and then its parent, whether they take the pen.
void tst_DGestionnaireTapGesturePlume::destructionParLaPlume()
{
    QWidget parent;
    auto * const widget = new Ephemere(&parent);
    QPointer<DGestionnaireTapGesture> const gestionnaire = new DGestionnaireTapGesture(widget);
    Temoin const surParent(&parent, {QEvent::TabletPress});
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(9, 9));
    QCoreApplication::sendEvent(widget, plume.get());
    QVERIFY(!gestionnaire);
    QVERIFY(plume->isAccepted());
    QCOMPARE(surParent.Compte(), 0);
}

void tst_DGestionnaireTapGesturePlume::sansWidget()
{
    QWidget autre;
    DGestionnaireTapGesture gestionnaire(nullptr);
    autre.installEventFilter(&gestionnaire);
    Temoin const temoin(&autre, kTraces);
    auto const plume = FaisTablette(QEvent::TabletPress, QPointF(9, 9));
    QCoreApplication::sendEvent(&autre, plume.get());
    QVERIFY(!plume->isAccepted());
    QCOMPARE(temoin.Compte(), 0);
}

QTEST_MAIN(tst_DGestionnaireTapGesturePlume)
#include "tst_DGestionnaireTapGesturePlume.moc"
