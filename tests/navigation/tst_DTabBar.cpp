// tests/navigation/tst_DTabBar.cpp
#include "navigation/DTabBar.h"
#include "navigation/DTabBarInterne.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class tst_DTabBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void boutonDemandeUnOnglet();
};

void tst_DTabBar::boutonDemandeUnOnglet()
{
    DTabBar rangee(nullptr, "groupe");
    QSignalSpy espion(&rangee, &DTabBar::SignalAjouteOnglet);

    rangee.PreteBoutonAjout()->click();

    QCOMPARE(espion.count(), 1);
    QCOMPARE(rangee.PreteBarreInterne()->count(), 0);
}

QTEST_MAIN(tst_DTabBar)
#include "tst_DTabBar.moc"
