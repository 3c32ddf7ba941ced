// tests/controls/tst_DPopUpMenuX11.cpp
#include "controls/DPopUpMenu.h"

#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

// The pop-up as a window that a window system places and moves.

class tst_DPopUpMenuX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void affichay();
    void deplacay();
    void fermay();
};

namespace {

constexpr QSize kTaille(150, 80);
constexpr QRect kAncre(200, 200, 60, 20);

} // namespace

void tst_DPopUpMenuX11::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DPopUpMenuX11::affichay()
{
    QRect const ecran = QGuiApplication::primaryScreen()->availableGeometry();
    DPopUpMenu popup;
    popup.resize(kTaille);
    for (QRect const & ancre : {kAncre, QRect(ecran.topLeft(), QSize(40, 20)),
                                QRect(ecran.bottomRight() - QPoint(19, 19), QSize(20, 20))}) {
        popup.AfficheToi(ancre.topLeft(), ancre.size());
        QVERIFY(QTest::qWaitForWindowExposed(&popup));
        QVERIFY(ecran.contains(popup.frameGeometry()));
        QVERIFY(!popup.frameGeometry().intersects(ancre));
        QCOMPARE(popup.windowHandle()->geometry(), popup.geometry());
    }
    popup.close();
}

void tst_DPopUpMenuX11::deplacay()
{
    QRect const ecran = QGuiApplication::primaryScreen()->availableGeometry();
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QVERIFY(QTest::qWaitForWindowExposed(&popup));
    popup.windowHandle()->setPosition(ecran.bottomRight()); // behind the widget's back
    QTRY_COMPARE(popup.pos(),
                 ecran.bottomRight() - QPoint(kTaille.width() - 1, kTaille.height() - 1));
    popup.windowHandle()->setPosition(kAncre.topLeft());
    QTRY_COMPARE(popup.frameGeometry().bottom(), kAncre.top() - 10 - 1);
    popup.close();
}

void tst_DPopUpMenuX11::fermay()
{
    QPointer<DPopUpMenu> const popup = new DPopUpMenu;
    popup->resize(kTaille);
    popup->AfficheToi(kAncre.topLeft(), kAncre.size());
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    int fermetures = 0;
    connect(popup, &DPopUpMenu::SignalPopupEnFermeture, this, [&] {
        ++fermetures;
        delete popup;
    });
    QTest::keyClick(popup->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!popup);
    QCOMPARE(fermetures, 1);
}

QTEST_MAIN(tst_DPopUpMenuX11)
#include "tst_DPopUpMenuX11.moc"
