#include "search/DChampRecherche.h"

#include "noyau/Traductions.h"
#include "search/EssaisChampRecherche.h"

#include <QAccessible>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace EssaisChampRecherche;
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
    void molette();
    void texteGarde();
};

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
