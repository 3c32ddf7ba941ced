#include "search/DChampRecherche.h"

#include "search/EssaisChampRecherche.h"

#include <QAbstractItemView>
#include <QAction>
#include <QActionGroup>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace EssaisChampRecherche;
using namespace Qt::StringLiterals;

class tst_DChampRechercheMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void ouverture_data();
    void ouverture();
    void ouvertureSansMode();
    void menu();
    void libelleAvecEsperluette();
    void choix();
    void choixDuModeCourant();
    void videPendantQueLeMenuEstOuvert();
    void clicSurLaFleche();
};

void tst_DChampRechercheMenu::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DChampRechercheMenu::ouverture_data()
{
    QTest::addColumn<QString>("comment");
    QTest::newRow("the arrow") << u"fleche"_s;
    QTest::newRow("F4") << u"F4"_s;
    QTest::newRow("Alt and Down") << u"Alt"_s;
    QTest::newRow("the function") << u"fonction"_s;
}

void tst_DChampRechercheMenu::ouverture()
{
    QFETCH(QString, comment);
    Hote hote;
    QVERIFY(hote.Pret());
    if (comment == "fleche"_L1)
        QTest::mousePress(hote.champ, Qt::LeftButton, {}, Fleche(*hote.champ));
    else if (comment == "F4"_L1)
        QTest::keyClick(hote.champ, Qt::Key_F4);
    else if (comment == "Alt"_L1)
        QTest::keyClick(hote.champ, Qt::Key_Down, Qt::AltModifier);
    else
        hote.champ->showPopup();
    QVERIFY(Menu(*hote.champ));
    QVERIFY(Menu(*hote.champ)->isVisible());
    QVERIFY(!hote.champ->view()->isVisible());
    QVERIFY(Menu(*hote.champ)->width() >= hote.champ->width());
    hote.champ->hidePopup();
    QVERIFY(!Menu(*hote.champ)->isVisible());
}

void tst_DChampRechercheMenu::ouvertureSansMode()
{
    Hote hote;
    QVERIFY(hote.Pret());
    hote.champ->VideToutMode();
    hote.champ->addItems({u"a"_s, u"b"_s});
    hote.champ->showPopup();
    QVERIFY(hote.champ->view()->isVisible());
    QVERIFY(!Menu(*hote.champ));
    hote.champ->hidePopup();
    QVERIFY(!hote.champ->view()->isVisible());
}

void tst_DChampRechercheMenu::menu()
{
    Hote hote;
    hote.champ->MetsModeCourant(kCommence);
    for (int fois = 0; fois < 2; ++fois) {
        hote.champ->showPopup();
        QList<QAction *> const actions = Menu(*hote.champ)->actions();
        QCOMPARE(actions.size(), 3);
        QStringList textes;
        for (QAction const * const action : actions) {
            QVERIFY(action->isCheckable());
            textes << (action->isChecked() ? u"*"_s : QString()) + action->text();
        }
        QCOMPARE(textes, QStringList({u"contient"_s, u"*commence par"_s, u"finit par"_s}));
        QVERIFY(actions.first()->actionGroup());
        QVERIFY(actions.first()->actionGroup()->isExclusive());
        QCOMPARE(actions.first()->actionGroup()->actions().size(), 3);
        hote.champ->hidePopup();
    }
}

void tst_DChampRechercheMenu::libelleAvecEsperluette()
{
    Hote hote;
    hote.champ->VideToutMode();
    hote.champ->AjouteMode(1, u"nom & prénom"_s);
    hote.champ->MetsModeCourant(1);
    hote.champ->showPopup();
    QCOMPARE(Menu(*hote.champ)->actions().first()->text(), u"nom && prénom"_s);
    QCOMPARE(hote.champ->lineEdit()->placeholderText(), u"nom & prénom"_s);
    hote.champ->hidePopup();
}

void tst_DChampRechercheMenu::choix()
{
    Hote hote;
    QVERIFY(hote.Pret());
    QSignalSpy const espion(hote.champ, &DChampRecherche::SignalModeChangay);
    QTest::keyClick(hote.champ, Qt::Key_F4);
    QMenu * const menu = Menu(*hote.champ);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QVERIFY(!menu->isVisible());
    QCOMPARE(hote.champ->DonneModeCourant(), int(kCommence));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(hote.champ->lineEdit()->placeholderText(), u"commence par"_s);
    QTRY_VERIFY(hote.champ->hasFocus());

    QTest::keyClick(hote.champ, Qt::Key_F4);
    QTest::keyClick(menu, Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
    QCOMPARE(espion.count(), 1);
}

void tst_DChampRechercheMenu::choixDuModeCourant()
{
    Hote hote;
    hote.champ->MetsModeCourant(kContient);
    QSignalSpy const espion(hote.champ, &DChampRecherche::SignalModeChangay);
    hote.champ->showPopup();
    Menu(*hote.champ)->actions().first()->trigger();
    QCOMPARE(espion.count(), 0);
    QCOMPARE(hote.champ->DonneModeCourant(), int(kContient));
    hote.champ->hidePopup();
}

void tst_DChampRechercheMenu::videPendantQueLeMenuEstOuvert()
{
    Hote hote;
    hote.champ->showPopup();
    hote.champ->VideToutMode();
    QVERIFY(!Menu(*hote.champ)->isVisible());
    Menu(*hote.champ)->actions().first()->trigger(); // one that is gone
    QCOMPARE(hote.champ->DonneModeCourant(), -1);
}

void tst_DChampRechercheMenu::clicSurLaFleche()
{
    Hote hote;
    QVERIFY(hote.Pret());
    QPoint const fleche = hote.champ->mapTo(&hote.fenetre, Fleche(*hote.champ));
    QWindow * const fenetre = hote.fenetre.windowHandle();
    QTest::mouseClick(fenetre, Qt::LeftButton, {}, fleche);
    QVERIFY(Menu(*hote.champ)->isVisible());
    QTest::mouseClick(fenetre, Qt::LeftButton, {}, fleche);
    QCoreApplication::processEvents();
    QVERIFY(!Menu(*hote.champ)->isVisible()); // closed, and not opened again
    QTest::mouseClick(fenetre, Qt::LeftButton, {}, fleche);
    QVERIFY(Menu(*hote.champ)->isVisible());
    hote.champ->hidePopup();
}

QTEST_MAIN(tst_DChampRechercheMenu)
#include "tst_DChampRechercheMenu.moc"
