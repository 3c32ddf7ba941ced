// tests/controls/tst_DPopUpMenuFermeture.cpp
#include "controls/DPopUpMenu.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kTaille(200, 100);
constexpr QRect kAncre(400, 300, 60, 20);

} // namespace

class tst_DPopUpMenuFermeture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fermeture_data();
    void fermeture();
    void fermetureDeux();
    void detruitParLeReceveur();
};

void tst_DPopUpMenuFermeture::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DPopUpMenuFermeture::fermeture_data()
{
    QTest::addColumn<QString>("moyen");
    QTest::newRow("close") << u"close"_s;
    QTest::newRow("escape") << u"escape"_s;
    QTest::newRow("click outside") << u"click"_s;
}

void tst_DPopUpMenuFermeture::fermeture()
{
    QFETCH(QString, moyen);
    DPopUpMenu popup;
    popup.resize(kTaille);
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    QSignalSpy espion(&popup, &DPopUpMenu::SignalPopupEnFermeture);
    bool visiblePendant = false;
    connect(&popup, &DPopUpMenu::SignalPopupEnFermeture, this,
            [&] { visiblePendant = popup.isVisible(); });
    if (moyen == "close"_L1) {
        popup.close();
    } else if (moyen == "escape"_L1) {
        QTest::keyClick(&popup, Qt::Key_Escape);
    } else {
        QPointF const dehors(-20, -20);
        QMouseEvent clic(QEvent::MouseButtonPress, dehors, popup.mapToGlobal(dehors),
                         Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&popup, &clic);
    }
    QVERIFY(!popup.isVisible());
    QCOMPARE(espion.count(), 1);
    QVERIFY(visiblePendant);
    QCoreApplication::processEvents();
    QCOMPARE(espion.count(), 1);
}

void tst_DPopUpMenuFermeture::fermetureDeux()
{
    DPopUpMenu popup;
    popup.resize(kTaille);
    QSignalSpy espion(&popup, &DPopUpMenu::SignalPopupEnFermeture);
    for (int i = 1; i <= 2; ++i) {
        popup.AfficheToi(kAncre.topLeft(), kAncre.size());
        popup.close();
        QCOMPARE(espion.count(), i);
    }
    popup.AfficheToi(kAncre.topLeft(), kAncre.size());
    popup.hide(); // no closing
    QCOMPARE(espion.count(), 2);
}

void tst_DPopUpMenuFermeture::detruitParLeReceveur()
{
    QPointer<DPopUpMenu> const popup = new DPopUpMenu;
    popup->resize(kTaille);
    popup->AfficheToi(kAncre.topLeft(), kAncre.size());
    connect(popup, &DPopUpMenu::SignalPopupEnFermeture, this, [&] { delete popup; });
    popup->close();
    QVERIFY(!popup);
}

QTEST_MAIN(tst_DPopUpMenuFermeture)
#include "tst_DPopUpMenuFermeture.moc"
