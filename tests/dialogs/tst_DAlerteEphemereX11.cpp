// tests/dialogs/tst_DAlerteEphemereX11.cpp
#include "dialogs/DAlerteEphemere_p.h"

#include "noyau/DAlerteInfo.h"

#include <QtTest>

using namespace Qt::StringLiterals;

// On a real desktop: the bubble appears over its parent and leaves it the keyboard.
class tst_DAlerteEphemereX11 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void centreeSansPrendreLeFocus();
};

void tst_DAlerteEphemereX11::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAlerteEphemereX11::centreeSansPrendreLeFocus()
{
    QWidget parent;
    QLineEdit champ(&parent);
    parent.setGeometry(300, 250, 500, 400);
    parent.show();
    parent.activateWindow();
    champ.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    QTRY_VERIFY(champ.hasFocus());

    DAlerteInfo info(DAlerteInfo::kEphemere, UniChaine("message"));
    info.dureeAffichage = 3600.0F;
    DAlerteEphemere::Affiche(&parent, info, {});

    auto const * const bulle = parent.findChild<DAlerteEphemere *>();
    QVERIFY(bulle);
    QVERIFY(QTest::qWaitForWindowExposed(bulle->windowHandle()));
    QTRY_VERIFY(bulle->windowHandle()->isExposed());
    QVERIFY(parent.isActiveWindow());
    QVERIFY(champ.hasFocus());
    QPoint const ecart = bulle->frameGeometry().center() -
                         QRect(parent.mapToGlobal(QPoint(0, 0)), parent.frameSize()).center();
    QVERIFY2(ecart.manhattanLength() <= 2, qPrintable(u"%1 %2"_s.arg(ecart.x()).arg(ecart.y())));
}

QTEST_MAIN(tst_DAlerteEphemereX11)
#include "tst_DAlerteEphemereX11.moc"
