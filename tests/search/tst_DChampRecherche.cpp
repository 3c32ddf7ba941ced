#include "search/DChampRecherche.h"

#include "noyau/Traductions.h"

#include <QAccessible>
#include <QAction>
#include <QActionGroup>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>
#include <QStyleOptionComboBox>
#include <QtTest>

using namespace Qt::StringLiterals;

class tst_DChampRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void valeursInitiales();
    void nomAccessible();
    void modes();
    void idReserve();
    void memeId();
    void modeCourant();
    void viderLesModes();
    void invite();
    void sansChamp();
    void ouverture_data();
    void ouverture();
    void ouvertureSansMode();
    void menu();
    void libelleAvecEsperluette();
    void choix();
    void choixDuModeCourant();
    void videPendantQueLeMenuEstOuvert();
    void clicSurLaFleche();
    void molette();
    void texteGarde();

private:
    static QMenu * Menu(DChampRecherche const & champ) { return champ.findChild<QMenu *>(); }
    static QPoint Fleche(DChampRecherche const & champ);
};

namespace {

enum eMode
{
    kContient,
    kCommence,
    kFinit,
};

void Remplis(DChampRecherche & champ)
{
    champ.AjouteMode(kContient, u"contient"_s);
    champ.AjouteMode(kCommence, u"commence par"_s);
    champ.AjouteMode(kFinit, u"finit par"_s);
}

// A field with modes in a window that has the focus.
struct Hote
{
    Hote()
        : champ(new DChampRecherche(&fenetre))
    {
        fenetre.resize(400, 300);
        champ->setGeometry(50, 50, 200, 30);
        Remplis(*champ);
        fenetre.show();
        fenetre.activateWindow();
    }

    bool Pret()
    {
        champ->setFocus();
        return QTest::qWaitForWindowActive(&fenetre);
    }

    QWidget fenetre;
    DChampRecherche * champ;
};

} // namespace

QPoint tst_DChampRecherche::Fleche(DChampRecherche const & champ)
{
    QStyleOptionComboBox option;
    option.initFrom(&champ);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    return champ.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &champ)
        .center();
}

void tst_DChampRecherche::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DChampRecherche::valeursInitiales()
{
    DChampRecherche const champ;
    QVERIFY(champ.isEditable());
    QCOMPARE(champ.insertPolicy(), QComboBox::NoInsert);
    QCOMPARE(champ.completer(), nullptr);
    QVERIFY(champ.lineEdit()->isClearButtonEnabled());
    QCOMPARE(champ.count(), 0);
    QCOMPARE(champ.DonneNombreDeModes(), 0);
    QCOMPARE(champ.DonneModeCourant(), -1);
    QCOMPARE(champ.lineEdit()->placeholderText(), QString());
}

void tst_DChampRecherche::nomAccessible()
{
    DChampRecherche champ;
    Remplis(champ);
    champ.MetsModeCourant(kFinit);
    for (QWidget * const widget : std::initializer_list<QWidget *>{&champ, champ.lineEdit()}) {
        QAccessibleInterface const * const acces = QAccessible::queryAccessibleInterface(widget);
        QCOMPARE(acces->text(QAccessible::Name), u"Rechercher"_s);
        QCOMPARE(acces->text(QAccessible::Description), u"finit par"_s);
    }
    champ.VideToutMode();
    QCOMPARE(champ.accessibleDescription(), QString());

    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    auto const retour =
        qScopeGuard([] { Traductions::MetsLanguePourApplicationCourante(kLangueFrancais); });
    QCOMPARE(DChampRecherche().accessibleName(), u"Search"_s);
}

void tst_DChampRecherche::modes()
{
    DChampRecherche champ;
    QSignalSpy const espion(&champ, &DChampRecherche::SignalModeChangay);
    Remplis(champ);
    QCOMPARE(champ.DonneNombreDeModes(), 3);
    QCOMPARE(champ.DonneModeCourant(), -1); // none by adding it
    QCOMPARE(espion.count(), 0);
    QCOMPARE(champ.count(), 0); // they are no items
}

void tst_DChampRecherche::idReserve()
{
    DChampRecherche champ;
    champ.AjouteMode(-1, u"aucun"_s);
    QCOMPARE(champ.DonneNombreDeModes(), 0);
}

void tst_DChampRecherche::memeId()
{
    DChampRecherche champ;
    Remplis(champ);
    champ.MetsModeCourant(kCommence);
    QSignalSpy const espion(&champ, &DChampRecherche::SignalModeChangay);
    champ.AjouteMode(kCommence, u"au début"_s);
    champ.AjouteMode(kFinit, u"à la fin"_s);
    QCOMPARE(champ.DonneNombreDeModes(), 3);
    QCOMPARE(champ.DonneModeCourant(), int(kCommence));
    QCOMPARE(champ.lineEdit()->placeholderText(), u"au début"_s);
    QCOMPARE(espion.count(), 0);
}

void tst_DChampRecherche::modeCourant()
{
    DChampRecherche champ;
    Remplis(champ);
    QSignalSpy const espion(&champ, &DChampRecherche::SignalModeChangay);
    champ.MetsModeCourant(kFinit);
    QCOMPARE(champ.DonneModeCourant(), int(kFinit));
    QCOMPARE(espion.count(), 1);
    QCOMPARE(espion.at(0).at(0).toInt(), int(kFinit));
    champ.MetsModeCourant(kFinit);
    champ.MetsModeCourant(99);
    QCOMPARE(espion.count(), 1);
    QCOMPARE(champ.DonneModeCourant(), int(kFinit));
    champ.MetsModeCourant(-1);
    QCOMPARE(champ.DonneModeCourant(), -1);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).toInt(), -1);
    QCOMPARE(champ.DonneNombreDeModes(), 3);
}

void tst_DChampRecherche::viderLesModes()
{
    DChampRecherche champ;
    QSignalSpy const espion(&champ, &DChampRecherche::SignalModeChangay);
    champ.VideToutMode();
    Remplis(champ);
    champ.VideToutMode();
    QCOMPARE(champ.DonneNombreDeModes(), 0);
    QCOMPARE(espion.count(), 0); // there was no current one
    Remplis(champ);
    champ.MetsModeCourant(kFinit);
    champ.VideToutMode();
    QCOMPARE(champ.DonneModeCourant(), -1);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(espion.at(1).at(0).toInt(), -1);
}

void tst_DChampRecherche::invite()
{
    DChampRecherche champ;
    champ.lineEdit()->setPlaceholderText(u"Chercher"_s);
    Remplis(champ);
    QCOMPARE(champ.lineEdit()->placeholderText(), u"Chercher"_s);
    champ.MetsModeCourant(kFinit);
    QCOMPARE(champ.lineEdit()->placeholderText(), u"finit par"_s);
    champ.MetsModeCourant(kContient);
    QCOMPARE(champ.lineEdit()->placeholderText(), u"contient"_s);
    champ.VideToutMode();
    QCOMPARE(champ.lineEdit()->placeholderText(), u"Chercher"_s);
    champ.lineEdit()->setPlaceholderText(u"autre"_s);
    champ.VideToutMode();
    QCOMPARE(champ.lineEdit()->placeholderText(), u"autre"_s);
}

void tst_DChampRecherche::sansChamp()
{
    DChampRecherche champ;
    champ.setEditable(false); // a host may
    Remplis(champ);
    champ.MetsModeCourant(kFinit);
    champ.VideToutMode();
    QCOMPARE(champ.DonneModeCourant(), -1);
}

void tst_DChampRecherche::ouverture_data()
{
    QTest::addColumn<QString>("comment");
    QTest::newRow("the arrow") << u"fleche"_s;
    QTest::newRow("F4") << u"F4"_s;
    QTest::newRow("Alt and Down") << u"Alt"_s;
    QTest::newRow("the function") << u"fonction"_s;
}

void tst_DChampRecherche::ouverture()
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

void tst_DChampRecherche::ouvertureSansMode()
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

void tst_DChampRecherche::menu()
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

void tst_DChampRecherche::libelleAvecEsperluette()
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

void tst_DChampRecherche::choix()
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

void tst_DChampRecherche::choixDuModeCourant()
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

void tst_DChampRecherche::videPendantQueLeMenuEstOuvert()
{
    Hote hote;
    hote.champ->showPopup();
    hote.champ->VideToutMode();
    QVERIFY(!Menu(*hote.champ)->isVisible());
    Menu(*hote.champ)->actions().first()->trigger(); // one that is gone
    QCOMPARE(hote.champ->DonneModeCourant(), -1);
}

void tst_DChampRecherche::clicSurLaFleche()
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

void tst_DChampRecherche::molette()
{
    Hote hote;
    QVERIFY(hote.Pret());
    hote.champ->MetsModeCourant(kCommence);
    hote.champ->addItems({u"a"_s, u"b"_s, u"c"_s});
    hote.champ->setCurrentIndex(1);
    for (int const delta : {120, -120}) {
        QPointF const point(5, 5);
        QWheelEvent evenement(point, hote.champ->mapToGlobal(point), QPoint(), QPoint(0, delta),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(hote.champ, &evenement);
        QVERIFY(!evenement.isAccepted()); // what is around may scroll
    }
    QCOMPARE(hote.champ->currentIndex(), 1);
    QCOMPARE(hote.champ->DonneModeCourant(), int(kCommence));
}

void tst_DChampRecherche::texteGarde()
{
    Hote hote;
    QVERIFY(hote.Pret());
    QTest::keyClicks(hote.champ, u"mot"_s);
    QTest::keyClick(hote.champ, Qt::Key_Return);
    QCOMPARE(hote.champ->currentText(), u"mot"_s);
    QCOMPARE(hote.champ->count(), 0); // nothing is added by Return
    hote.champ->MetsModeCourant(kFinit);
    hote.champ->VideToutMode();
    QCOMPARE(hote.champ->currentText(), u"mot"_s);
}

QTEST_MAIN(tst_DChampRecherche)
#include "tst_DChampRecherche.moc"
