// navigation/tst_DTabBar.cpp
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

    void barreInterne();
    void boutonAjout();
    void ligneSousLeBouton();
    void disposition();
    void boutonDemandeUnOnglet();
    void groupe();
};

void tst_DTabBar::barreInterne()
{
    DTabBar rangee(nullptr, "groupe");
    QTabBar const & barre = *rangee.PreteBarreInterne();

    QVERIFY(!barre.expanding());
    QVERIFY(barre.isMovable());
    QCOMPARE(barre.elideMode(), Qt::ElideRight);
    QVERIFY(!barre.tabsClosable());
    QCOMPARE(barre.minimumHeight(), 29);
    QCOMPARE(barre.maximumHeight(), 29);
    QCOMPARE(barre.minimumWidth(), 185);
    QCOMPARE(barre.parentWidget(), &rangee);
}

void tst_DTabBar::boutonAjout()
{
    DTabBar rangee(nullptr, "groupe");
    QPushButton const & bouton = *rangee.PreteBoutonAjout();

    QCOMPARE(bouton.objectName(), u"boutonAjoutOnglet"_s);
    QCOMPARE(bouton.accessibleName(), u"Ajouter un onglet"_s);
    QVERIFY(!bouton.icon().isNull());
    QVERIFY(!bouton.icon().pixmap(16, 16).isNull()); // the image is there
    QCOMPARE(bouton.minimumSize(), QSize(28, 28));
    QCOMPARE(bouton.maximumSize(), QSize(28, 28));
}

void tst_DTabBar::ligneSousLeBouton()
{
    DTabBar rangee(nullptr, "groupe");
    rangee.resize(500, 40);
    rangee.show();

    QFrame * ligne = nullptr;
    auto const cadres = rangee.findChildren<QFrame *>(Qt::FindDirectChildrenOnly);
    for (QFrame * const cadre : cadres)
        if (cadre->styleSheet() == u"QFrame{border-bottom-width: 1px; border-color: "
                                   "rgb(220,220,220); border-style: solid; }"_s)
            ligne = cadre;

    QVERIFY(ligne);
    QCOMPARE(ligne->sizePolicy().horizontalPolicy(), QSizePolicy::MinimumExpanding);
    QCOMPARE(ligne->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ligne->minimumHeight(), 1);
    QVERIFY(ligne->y() > rangee.PreteBoutonAjout()->y());
}

void tst_DTabBar::disposition()
{
    DTabBar rangee(nullptr, "groupe");
    QMargins const sansMarge;

    QVERIFY(qobject_cast<QHBoxLayout *>(rangee.layout()));
    QCOMPARE(rangee.layout()->contentsMargins(), sansMarge);
    QCOMPARE(rangee.layout()->spacing(), 1);
    QCOMPARE(rangee.layout()->itemAt(0)->widget(), rangee.PreteBarreInterne());
    auto * const colonne = qobject_cast<QVBoxLayout *>(rangee.layout()->itemAt(1)->layout());
    QVERIFY(colonne);
    QCOMPARE(colonne->contentsMargins(), sansMarge);
    QCOMPARE(colonne->itemAt(0)->widget(), rangee.PreteBoutonAjout());
    QCOMPARE(rangee.layout()->count(), 2);
}

void tst_DTabBar::boutonDemandeUnOnglet()
{
    DTabBar rangee(nullptr, "groupe");
    QSignalSpy espion(&rangee, &DTabBar::SignalAjouteOnglet);

    rangee.PreteBoutonAjout()->click();

    QCOMPARE(espion.count(), 1);
    QCOMPARE(rangee.PreteBarreInterne()->count(), 0);
}

void tst_DTabBar::groupe()
{
    DTabBar rangee(nullptr, "un groupe");

    QCOMPARE(QString(rangee.DonneIdentifiantGroupe()), u"un groupe"_s);
    QCOMPARE(QString(rangee.PreteBarreInterne()->DonneIdentifiantGroupe()), u"un groupe"_s);
}

QTEST_MAIN(tst_DTabBar)
#include "tst_DTabBar.moc"
