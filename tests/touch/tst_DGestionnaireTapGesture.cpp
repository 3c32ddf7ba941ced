// tests/touch/tst_DGestionnaireTapGesture.cpp
#include "touch/DGestionnaireTapGesture.h"

#include "touch/WidgetTouchay.h"

using namespace EssaisTactiles;

namespace {

constexpr int kLong = 60'000; // ms; no test takes as long

QList<QEvent::Type> const kClic = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease};
QList<QEvent::Type> const kDoubleClic = {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease};

QList<QEvent::Type> const kTraces = Temoin::Souris();

} // namespace

class tst_DGestionnaireTapGesture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void construction();
    void sansWidget();
    void tapEnClic();
    void deuxTapsEnDoubleClic();
    void troisiemeTapEnClic();
    void tapsLents();
    void tapLentRecommenceLAttente();
    void gesteEnCours_data();
    void gesteEnCours();
    void glissementSansClic();
    void tapSurUnEnfant();
    void autreGeste();
    void destructionPendantLeClic_data();
    void destructionPendantLeClic();

private:
    // A finished tap as the manager of gestures delivers it, for events sent by hand.
    void PreteTapFini(std::function<void(QGesture &)> const & usage);
};

void tst_DGestionnaireTapGesture::init()
{
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(kLong);
}

void tst_DGestionnaireTapGesture::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DGestionnaireTapGesture::construction()
{
    auto * const widget = new QWidget;
    QPointer<DGestionnaireTapGesture> const gestionnaire = new DGestionnaireTapGesture(widget);
    QCOMPARE(gestionnaire->parent(), widget);
    QVERIFY(widget->testAttribute(Qt::WA_AcceptTouchEvents));
    delete widget;
    QVERIFY(!gestionnaire);
}

void tst_DGestionnaireTapGesture::sansWidget()
{
    DGestionnaireTapGesture const gestionnaire(nullptr);
    QCOMPARE(gestionnaire.parent(), nullptr);
}

void tst_DGestionnaireTapGesture::tapEnClic()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    QTest::touchEvent(&banc.widget, DonneEcranTactile()).press(0, QPoint(30, 40), &banc.widget);
    QCOMPARE(banc.temoin.Compte(), 0); // nor what Qt makes of the touch
    QTest::touchEvent(&banc.widget, DonneEcranTactile()).release(0, QPoint(30, 40), &banc.widget);
    QCOMPARE(banc.temoin.DonneTypes(), kClic);
    for (Temoin::Trace const & trace : banc.temoin.DonneTraces()) {
        QCOMPARE(trace.position, QPointF(30, 40));
        QCOMPARE(trace.globale, banc.widget.mapToGlobal(QPointF(30, 40)));
        QCOMPARE(trace.bouton, Qt::LeftButton);
        QCOMPARE(trace.boutons, Qt::LeftButton); // of the release too
        QCOMPARE(trace.touches, Qt::NoModifier);
        QCOMPARE(trace.source, Qt::MouseEventNotSynthesized);
        QCOMPARE(trace.appareil, QPointingDevice::primaryPointingDevice());
    }
}

void tst_DGestionnaireTapGesture::deuxTapsEnDoubleClic()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    Tape(&banc.widget, QPoint(30, 40));
    Tape(&banc.widget, QPoint(30, 40));
    // Qt has made a double click of the second touch as well.
    QCOMPARE(banc.temoin.DonneTypes(), kClic + kDoubleClic);
}

void tst_DGestionnaireTapGesture::troisiemeTapEnClic()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    for (int i = 0; i < 4; ++i)
        Tape(&banc.widget, QPoint(30, 40));
    QCOMPARE(banc.temoin.DonneTypes(), kClic + kDoubleClic + kClic + kDoubleClic);
}

void tst_DGestionnaireTapGesture::tapsLents()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0); // any time is too long
    Tape(&banc.widget, QPoint(30, 40));
    Tape(&banc.widget, QPoint(30, 40));
    QCOMPARE(banc.temoin.DonneTypes(), kClic + kClic);
}

void tst_DGestionnaireTapGesture::tapLentRecommenceLAttente()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    Tape(&banc.widget, QPoint(30, 40));
    Tape(&banc.widget, QPoint(30, 40));
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(kLong);
    Tape(&banc.widget, QPoint(30, 40));
    QCOMPARE(banc.temoin.DonneTypes(), kClic + kClic + kDoubleClic);
}

void tst_DGestionnaireTapGesture::gesteEnCours_data()
{
    QTest::addColumn<Qt::GestureState>("etat");
    QTest::addColumn<bool>("consommay");
    QTest::newRow("started") << Qt::GestureStarted << false;
    QTest::newRow("updated") << Qt::GestureUpdated << false;
    QTest::newRow("canceled") << Qt::GestureCanceled << false;
    QTest::newRow("finished") << Qt::GestureFinished << true;
}

void tst_DGestionnaireTapGesture::gesteEnCours()
{
    QFETCH(Qt::GestureState, etat);
    QFETCH(bool, consommay);
    QWidget widget;
    DGestionnaireTapGesture gestionnaire(&widget);
    Temoin const temoin(&widget, kTraces);
    SourceDeGestes source(Qt::TapGesture);
    QWidget * const touchay = source.PreteWidget();
    touchay->show();
    QVERIFY(QTest::qWaitForWindowExposed(touchay));
    QList<bool> reponses;
    source.Prete(etat, [&](QGesture & geste) {
        QGestureEvent evenement({&geste});
        reponses.append(gestionnaire.eventFilter(&widget, &evenement));
    });

    QTest::touchEvent(touchay, DonneEcranTactile()).press(0, QPoint(10, 10), touchay);
    QTest::touchEvent(touchay, DonneEcranTactile()).move(0, QPoint(15, 10), touchay);
    if (etat == Qt::GestureCanceled) // farther than a tap may go
        QTest::touchEvent(touchay, DonneEcranTactile()).move(0, QPoint(200, 10), touchay);
    QTest::touchEvent(touchay, DonneEcranTactile()).release(0, QPoint(15, 10), touchay);
    QVERIFY(reponses.contains(consommay));
    QVERIFY(!reponses.contains(!consommay));
    QCOMPARE(temoin.DonneTypes(), consommay ? kClic : QList<QEvent::Type>());
}

void tst_DGestionnaireTapGesture::glissementSansClic()
{
    WidgetTouchay banc;
    QVERIFY(banc.Montre());

    QTest::touchEvent(&banc.widget, DonneEcranTactile()).press(0, QPoint(10, 10), &banc.widget);
    QTest::touchEvent(&banc.widget, DonneEcranTactile()).move(0, QPoint(150, 10), &banc.widget);
    QTest::touchEvent(&banc.widget, DonneEcranTactile()).release(0, QPoint(150, 10), &banc.widget);
    QCOMPARE(banc.temoin.Compte(), 0);
}

void tst_DGestionnaireTapGesture::tapSurUnEnfant()
{
    WidgetTouchay banc;
    QFrame enfant(&banc.widget);
    enfant.setGeometry(100, 50, 80, 80);
    QVERIFY(banc.Montre());

    Tape(&enfant, QPoint(5, 6));
    QCOMPARE(banc.temoin.DonneTypes(), kClic);
    QCOMPARE(banc.temoin.DonneTraces().first().position, QPointF(105, 56));
}

void tst_DGestionnaireTapGesture::autreGeste()
{
    QWidget widget;
    DGestionnaireTapGesture gestionnaire(&widget);
    QPinchGesture pincement;
    QGestureEvent evenement({&pincement});
    QVERIFY(!gestionnaire.eventFilter(&widget, &evenement));
    QGestureEvent vide({});
    QVERIFY(!gestionnaire.eventFilter(&widget, &vide));
}

void tst_DGestionnaireTapGesture::PreteTapFini(std::function<void(QGesture &)> const & usage)
{
    SourceDeGestes source(Qt::TapGesture);
    QWidget * const touchay = source.PreteWidget();
    touchay->show();
    QVERIFY(QTest::qWaitForWindowExposed(touchay));
    source.Prete(Qt::GestureFinished, usage);
    Tape(touchay, QPoint(10, 10));
}

void tst_DGestionnaireTapGesture::destructionPendantLeClic_data()
{
    QTest::addColumn<QEvent::Type>("quand");
    QTest::addColumn<int>("evenements");
    QTest::newRow("on the press, before the release") << QEvent::MouseButtonPress << 1;
    QTest::newRow("on the release") << QEvent::MouseButtonRelease << 2;
}

void tst_DGestionnaireTapGesture::destructionPendantLeClic()
{
    QFETCH(QEvent::Type, quand);
    QFETCH(int, evenements);
    auto * const parent = new QWidget;
    auto * const widget = new QWidget(parent);
    Temoin avant(widget, kTraces);
    avant.surEvenement = [&] {
        if (avant.DonneTraces().last().type == quand)
            delete parent;
    };
    new DGestionnaireTapGesture(widget);
    QPointer<QWidget> const temoin = widget;
    PreteTapFini([&](QGesture & tap) {
        QGestureEvent evenement({&tap});
        QCoreApplication::sendEvent(widget, &evenement);
    });
    QVERIFY(!temoin);
    QCOMPARE(avant.Compte(), evenements);
}

QTEST_MAIN(tst_DGestionnaireTapGesture)
#include "tst_DGestionnaireTapGesture.moc"
