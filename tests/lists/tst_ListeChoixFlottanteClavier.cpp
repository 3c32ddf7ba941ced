#include "lists/ListeChoixFlottante.h"

#include "lists/EssaisListeChoix.h"

#include <QStandardItemModel>
#include <QtTest>

using namespace EssaisListeChoix;
using namespace Qt::StringLiterals;

// Keys in the linked field and in the view.

class tst_ListeChoixFlottanteClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void touches_data();
    void touches();
    void listeCachee_data();
    void listeCachee();
    void relachements();
    void echappement();
    void flecheVersLaPremiere_data();
    void flecheVersLaPremiere();
    void fleches();
    void retourSansRangee_data();
    void retourSansRangee();
    void retourSurUneRangee_data();
    void retourSurUneRangee();
    void entreeSansRangee();
    void retourDansLaVue();
    void retourIgnoray();
    void entreeDansLaVue();
    void fermeture();
    void fermetureCachee();
};

void tst_ListeChoixFlottanteClavier::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ListeChoixFlottanteClavier::touches_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::addColumn<Qt::KeyboardModifier>("modificateur");
    QTest::addColumn<bool>("pourLaListe");
    QTest::newRow("down") << Qt::Key_Down << Qt::NoModifier << true;
    QTest::newRow("up") << Qt::Key_Up << Qt::NoModifier << true;
    QTest::newRow("return") << Qt::Key_Return << Qt::NoModifier << true;
    QTest::newRow("enter") << Qt::Key_Enter << Qt::KeypadModifier << true;
    QTest::newRow("shift and down") << Qt::Key_Down << Qt::ShiftModifier << true;
    QTest::newRow("control and return") << Qt::Key_Return << Qt::ControlModifier << true;
    QTest::newRow("escape") << Qt::Key_Escape << Qt::NoModifier << false;
    QTest::newRow("left") << Qt::Key_Left << Qt::NoModifier << false;
    QTest::newRow("home") << Qt::Key_Home << Qt::NoModifier << false;
    QTest::newRow("page down") << Qt::Key_PageDown << Qt::NoModifier << false;
    QTest::newRow("letter") << Qt::Key_A << Qt::NoModifier << false;
    QTest::newRow("space") << Qt::Key_Space << Qt::NoModifier << false;
}

void tst_ListeChoixFlottanteClavier::touches()
{
    QFETCH(Qt::Key, touche);
    QFETCH(Qt::KeyboardModifier, modificateur);
    QFETCH(bool, pourLaListe);
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    // The second time the arrows have nowhere to go.
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(hote.champ, touche, modificateur);
    QCOMPARE(hote.champ->touches.contains(touche), !pourLaListe);
    if (pourLaListe)
        QVERIFY(!hote.fenetre.touches.contains(touche)); // nor does it reach the field's parent
    QCOMPARE(hote.champ->text(), touche == Qt::Key_A       ? u"aaa"_s
                                 : touche == Qt::Key_Space ? u"   "_s
                                                           : QString());
}

void tst_ListeChoixFlottanteClavier::listeCachee_data()
{
    QTest::addColumn<Qt::Key>("touche");
    for (auto const touche :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape})
        QTest::newRow(QKeySequence(touche).toString().toLatin1().constData()) << touche;
}

void tst_ListeChoixFlottanteClavier::listeCachee()
{
    QFETCH(Qt::Key, touche);
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QSignalSpy const fermetures(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    hote.liste->CacheToi();
    QTest::keyClick(hote.champ, touche);
    QCOMPARE(hote.champ->touches, QList<int>{touche});
    QCOMPARE(choix.count(), 0);
    QCOMPARE(fermetures.count(), 0);
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteClavier::relachements()
{
    Hote const hote;
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    QKeyEvent relachement(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier);
    QVERIFY(!hote.liste->eventFilter(hote.champ, &relachement));
    QKeyEvent raccourci(QEvent::ShortcutOverride, Qt::Key_Down, Qt::NoModifier);
    QVERIFY(!hote.liste->eventFilter(hote.champ, &raccourci));
    QCOMPARE(hote.Rangee(), -1);
}

void tst_ListeChoixFlottanteClavier::echappement()
{
    Hote const hote;
    QSignalSpy const fermetures(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(2)));
    bool cacheAvantLHote = false;
    connect(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix, this,
            [&] { cacheAvantLHote = hote.liste->isHidden(); });
    QTest::keyClick(hote.champ, Qt::Key_Escape);
    QCOMPARE(fermetures.count(), 1);
    QVERIFY(cacheAvantLHote);
    QVERIFY(hote.liste->isHidden());
    QCOMPARE(hote.champ->touches, QList<int>{Qt::Key_Escape});
}

void tst_ListeChoixFlottanteClavier::flecheVersLaPremiere_data()
{
    QTest::addColumn<bool>("preselectionne");
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("down") << false << Qt::Key_Down;
    QTest::newRow("up") << false << Qt::Key_Up;
    // A row that is selected is not current, so that the keys begin with it.
    QTest::newRow("down from the preselected row") << true << Qt::Key_Down;
    QTest::newRow("up from the preselected row") << true << Qt::Key_Up;
}

void tst_ListeChoixFlottanteClavier::flecheVersLaPremiere()
{
    QFETCH(bool, preselectionne);
    QFETCH(Qt::Key, touche);
    Hote const hote(preselectionne);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3), 2));
    QTest::keyClick(hote.champ, touche);
    QCOMPARE(hote.Rangee(), 0);
    QCOMPARE(hote.liste->DonneItemsSelectionnay().size(), 2);
}

void tst_ListeChoixFlottanteClavier::fleches()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(1).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    for (int const attendue : {0, 1, 2, 2}) {
        QTest::keyClick(hote.champ, Qt::Key_Down);
        QCOMPARE(hote.Rangee(), attendue);
        QCOMPARE(hote.liste->DonneItemsSelectionnay().value(0)->text(), u"mot %1"_s.arg(attendue));
    }
    for (int const attendue : {1, 0, 0}) {
        QTest::keyClick(hote.champ, Qt::Key_Up);
        QCOMPARE(hote.Rangee(), attendue);
    }
    QCOMPARE(choix.count(), 0);
}

void tst_ListeChoixFlottanteClavier::retourSansRangee_data()
{
    QTest::addColumn<bool>("preselectionne");
    QTest::addColumn<int>("passees");
    QTest::addColumn<QStringList>("choix");
    for (bool const preselectionne : {false, true}) {
        auto const nom = [&](char const * texte) -> QTestData & {
            return QTest::addRow("%s, %s", preselectionne ? "preselected" : "nothing", texte);
        };
        nom("first row") << preselectionne << 0 << QStringList(u"mot 0"_s);
        nom("first row passed over") << preselectionne << 1 << QStringList(u"mot 1"_s);
        nom("all passed over") << preselectionne << 3 << QStringList();
    }
}

void tst_ListeChoixFlottanteClavier::retourSansRangee()
{
    QFETCH(bool, preselectionne);
    QFETCH(int, passees);
    QFETCH(QStringList, choix);
    Hote const hote(preselectionne);
    QSignalSpy const espion(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QSignalSpy const activations(hote.Vue(), &QTreeView::activated);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    for (int i = 0; i < passees; ++i)
        hote.liste->MetsItemSelectionnableParDefaut(rangees.at(i).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    QTest::keyClick(hote.champ, Qt::Key_Return);
    QCOMPARE(activations.count(), 1);
    QVERIFY(!activations.at(0).at(0).toModelIndex().isValid());
    QCOMPARE(espion.count(), choix.isEmpty() ? 0 : 1);
    QCOMPARE(DernierChoix(espion), choix);
    QVERIFY(hote.liste->isVisible()); // hiding is the host's affair
}

void tst_ListeChoixFlottanteClavier::retourSurUneRangee_data()
{
    QTest::addColumn<Qt::Key>("touche");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void tst_ListeChoixFlottanteClavier::retourSurUneRangee()
{
    QFETCH(Qt::Key, touche);
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(1).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QTest::keyClick(hote.champ, Qt::Key_Down);
    QTest::keyClick(hote.champ, touche);
    QCOMPARE(choix.count(), 1);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 1"_s));
    QVERIFY(hote.champ->touches.isEmpty());
    QVERIFY(hote.fenetre.touches.isEmpty());
}

void tst_ListeChoixFlottanteClavier::entreeSansRangee()
{
    // Unlike Return, the view tells an Enter only for a current row.
    Hote const hote(true);
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClick(hote.champ, Qt::Key_Enter);
    QCOMPARE(choix.count(), 0);
    QVERIFY(hote.champ->touches.isEmpty());
}

void tst_ListeChoixFlottanteClavier::retourDansLaVue()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QTest::keyClick(hote.Vue(), Qt::Key_Return);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 0"_s));
    hote.MetsRangee(2);
    QTest::keyClick(hote.Vue(), Qt::Key_Return);
    QCOMPARE(choix.count(), 2);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s));
    QKeyEvent relachement(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);
    QVERIFY(!hote.liste->eventFilter(hote.Vue(), &relachement));
}

// As a host forwards it that has ignored it first.
void tst_ListeChoixFlottanteClavier::retourIgnoray()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    QKeyEvent retour(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    retour.ignore();
    QCoreApplication::sendEvent(hote.champ, &retour);
    QCOMPARE(choix.count(), 1);
    QVERIFY(hote.champ->touches.isEmpty());
}

void tst_ListeChoixFlottanteClavier::entreeDansLaVue()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    for (auto const touche : {Qt::Key_Enter, Qt::Key_Escape, Qt::Key_A}) {
        QKeyEvent evenement(QEvent::KeyPress, touche, Qt::NoModifier);
        QVERIFY(!hote.liste->eventFilter(hote.Vue(), &evenement));
    }
    hote.MetsRangee(2);
    QTest::keyClick(hote.Vue(), Qt::Key_Enter);
    QCOMPARE(choix.count(), 1);
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 2"_s));
    QVERIFY(hote.champ->touches.isEmpty()); // a key that the view has seen goes nowhere else
}

void tst_ListeChoixFlottanteClavier::fermeture()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QSignalSpy const fermetures(hote.liste, &ListeChoixFlottante::SignalFermetureListeChoix);
    Rangees const rangees = CreeRangees(CreeTextes(3));
    hote.liste->MetsItemSelectionnableParDefaut(rangees.at(0).at(0), false);
    hote.liste->ActualiseListeChoix(rangees);
    hote.liste->PriseEnFermeture();
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 1"_s)); // no current row: the automatic choice
    hote.MetsRangee(0);
    hote.liste->PriseEnFermeture();
    QCOMPARE(DernierChoix(choix), QStringList(u"mot 0"_s));
    QCOMPARE(choix.count(), 2);
    QCOMPARE(fermetures.count(), 0);
}

void tst_ListeChoixFlottanteClavier::fermetureCachee()
{
    Hote const hote;
    QSignalSpy const choix(hote.liste, &ListeChoixFlottante::SignalSelectionListeChoix);
    QSignalSpy const activations(hote.Vue(), &QTreeView::activated);
    hote.liste->ActualiseListeChoix(CreeRangees(CreeTextes(3)));
    hote.liste->CacheToi();
    hote.liste->PriseEnFermeture();
    QCOMPARE(activations.count(), 1);
    QCOMPARE(choix.count(), 0);
}

QTEST_MAIN(tst_ListeChoixFlottanteClavier)
#include "tst_ListeChoixFlottanteClavier.moc"
