// tests/foundation/tst_GeometrieEcranX11.cpp
#include "foundation/GeometrieEcran.h"

#include <QtTest>

#include <QCursor>
#include <QDialog>
#include <QScreen>
#include <QWindow>

#include <memory>

// Native parents, which only a real window system has. All windows here are of one process; to each
// other they are native ones.
class tst_GeometrieEcranX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void parentTransitoireEtranger();
    void proprietaireNatif();
    void parentDetruit();
    void dialogueSansParent_data();
    void dialogueSansParent();
};

void tst_GeometrieEcranX11::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("Needs an X server.");
}

void tst_GeometrieEcranX11::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

namespace {

// A window that no window manager moves, inside the screen.
std::unique_ptr<QWidget> CreeHote()
{
    auto hote = std::make_unique<QWidget>(nullptr, Qt::BypassWindowManagerHint);
    hote->setGeometry(50, 60, 500, 400);
    hote->show();
    return hote;
}

QPoint DonneCentre(QWidget const & widget)
{
    QSize const cadre = widget.frameSize();
    return {50 + (500 - cadre.width()) / 2, 60 + (400 - cadre.height()) / 2};
}

} // namespace

void tst_GeometrieEcranX11::parentTransitoireEtranger()
{
    auto const hote = CreeHote();
    QVERIFY(QTest::qWaitForWindowExposed(hote.get()));
    std::unique_ptr<QWindow> const etranger(QWindow::fromWinId(hote->winId()));
    QVERIFY(etranger);
    QDialog dialogue;
    dialogue.resize(200, 100);
    dialogue.winId();
    dialogue.windowHandle()->setTransientParent(etranger.get());

    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&dialogue, true);

    QCOMPARE(dialogue.pos(), DonneCentre(dialogue));
}

void tst_GeometrieEcranX11::proprietaireNatif()
{
    auto const hote = CreeHote();
    QVERIFY(QTest::qWaitForWindowExposed(hote.get()));
    QDialog dialogue(nullptr, Qt::Dialog | Qt::BypassWindowManagerHint);
    dialogue.resize(200, 100);
    dialogue.winId();
    // Written to the window as WM_TRANSIENT_FOR when it is shown.
    dialogue.windowHandle()->setTransientParent(hote->windowHandle());
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));

    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&dialogue, false);

    QCOMPARE(dialogue.pos(), DonneCentre(dialogue));
}

void tst_GeometrieEcranX11::parentDetruit()
{
    auto hote = CreeHote();
    QVERIFY(QTest::qWaitForWindowExposed(hote.get()));
    std::unique_ptr<QWindow> const etranger(QWindow::fromWinId(hote->winId()));
    QDialog dialogue;
    dialogue.resize(200, 100);
    dialogue.winId();
    dialogue.windowHandle()->setTransientParent(etranger.get());
    hote.reset();
    QRect attendu(QPoint(), dialogue.frameSize());
    RoutinesGeneralesQt::CentreDansEcranActif(attendu, false);

    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&dialogue, false);

    QCOMPARE(dialogue.pos(), attendu.topLeft());
}

void tst_GeometrieEcranX11::dialogueSansParent_data()
{
    QTest::addColumn<Qt::WindowFlags>("drapeaux");
    QTest::addColumn<bool>("modal");
    QTest::newRow("plain") << Qt::WindowFlags(Qt::Dialog) << false;
    QTest::newRow("modal") << Qt::WindowFlags(Qt::Dialog) << true;
    QTest::newRow("without the window manager")
        << (Qt::Dialog | Qt::X11BypassWindowManagerHint) << false;
    QTest::newRow("modal without the window manager")
        << (Qt::Dialog | Qt::X11BypassWindowManagerHint) << true;
}

void tst_GeometrieEcranX11::dialogueSansParent()
{
    QFETCH(Qt::WindowFlags, drapeaux);
    QFETCH(bool, modal);
    // Qt gives such a dialog an owner all the same: a hidden window of its own, at the origin.
    QDialog dialogue(nullptr, drapeaux);
    dialogue.setModal(modal);
    dialogue.resize(200, 100);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialogue));
    // Qt notes the frame when it is asked, or when the window moves, and the manager may give it
    // one only after that.
    auto const aUnCadre = [&dialogue] {
        dialogue.move(dialogue.pos() + QPoint(1, 0));
        return dialogue.frameSize() != dialogue.size();
    };
    QTRY_COMPARE(aUnCadre(), !drapeaux.testFlag(Qt::X11BypassWindowManagerHint));
    QSize const cadre = dialogue.frameSize();
    QRect const ecran = RoutinesGeneralesQt::EcranLePlusProche(QCursor::pos())->availableGeometry();
    QPointF const centre = QRectF(ecran).center() - QPoint(cadre.width() / 2, cadre.height() / 2);

    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&dialogue, false);

    QTRY_COMPARE(dialogue.pos(), centre.toPoint());
    RoutinesFenetre::CentrageWidgetDansParentOuEcran(&dialogue, true);
    QCOMPARE(dialogue.pos().x(), centre.toPoint().x());
    QTRY_VERIFY(dialogue.pos().y() < centre.toPoint().y() - ecran.height() / 5);
}

QTEST_MAIN(tst_GeometrieEcranX11)
#include "tst_GeometrieEcranX11.moc"
