// tests/navigation/tst_DTabBarInterne.cpp
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class tst_DTabBarInterne : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void boutonDemandeUnOnglet();
};

void tst_XboutonDemandeUnOnglet()
{
    DTabBar rangee(nullptr, "groupe");
    QSignalSpy espion(&rangee, &DTabBar::SignalAjouteOnglet);

    rangee.PreteBoutonAjout()->click();

    QCOMPARE(espion.count(), 1);
    QCOMPARE(rangee.PreteBarreInterne()->count(), 0);
}

QTEST_MAIN(tst_DTabBarInterne)
#include "tst_DTabBarInterne.moc"
