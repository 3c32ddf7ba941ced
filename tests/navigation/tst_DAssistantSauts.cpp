// tests/navigation/tst_DAssistantSauts.cpp
#include "navigation/EssaisAssistant.h"

#include <QItemSelection>

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

namespace {

constexpr int kNombre = 6;

QStringList Avances(int de, int vers)
{
    QStringList journal;
    for (int i = de; i < vers; ++i)
        journal << u"%1 BloqueAvance"_s.arg(i) << u"%1 PeutAvancer"_s.arg(i)
                << u"%1 EntreDansEtape"_s.arg(i + 1);
    return journal;
}

QStringList Reculs(int de, int vers)
{
    QStringList journal;
    for (int i = de; i > vers; --i) {
        journal << u"%1 BloqueRetour"_s.arg(i) << u"%1 PeutRevenir"_s.arg(i);
        if (i == 1)
            journal << u"0 GardePrecedentActif"_s;
        journal << u"%1 EntreDansEtape"_s.arg(i - 1);
    }
    return journal;
}

/// What the keyboard does to get from a row to another.
void Touches(Banc & banc, int de, int vers)
{
    for (int i = de; i < vers; ++i)
        QTest::keyClick(banc.liste, Qt::Key_Down);
    for (int i = de; i > vers; --i)
        QTest::keyClick(banc.liste, Qt::Key_Up);
}

} // namespace

class tst_DAssistantSauts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void saut_data();
    void saut();
    void sautRefuse_data();
    void sautRefuse();
    void clicApresRefus();
    void clicSurDesactivee();
    void clicSurLaCourante();
    void doubleClic();
    void presseSansRelacher();
    void fleches_data();
    void fleches();
    void flecheRefusee();
    void premiereEtDerniere();
    void rangeeActiveeParLHote();
    void texteDeLHote();
    void touchesLettres();
    void saisieComposee();
    void selectionOtee();
    void selectionOteeParLHote();
    void selectionPrivee_data();
    void selectionPrivee();
    void historiquePlusCourt();
};

void tst_DAssistantSauts::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantSauts::saut_data()
{
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    for (int pas = 1; pas <= 4; ++pas) {
        QTest::addRow("forward %d", pas) << 1 << 1 + pas;
        QTest::addRow("back %d", pas) << 5 << 5 - pas;
    }
    QTest::newRow("from the first to the last") << 0 << 5;
    QTest::newRow("from the last to the first") << 5 << 0;
}

void tst_DAssistantSauts::saut()
{
    QFETCH(int, de);
    QFETCH(int, vers);
    Banc banc(kNombre);
    QVERIFY(banc.Avance(de));
    banc.assistant->DebarreToutesLesEtapes();
    banc.Clique(vers);
    QCOMPARE(banc.journal, de < vers ? Avances(de, vers) : Reculs(de, vers));
    QCOMPARE(banc.Rangee(), vers);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)),
             u"Étape %1 de %2"_s.arg(vers + 1).arg(kNombre));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), qMax(de, vers));
    QCOMPARE(banc.precedent->isEnabled(), vers > 0);
}

void tst_DAssistantSauts::sautRefuse_data()
{
    QTest::addColumn<int>("vers");
    QTest::addColumn<int>("refus");
    QTest::addColumn<bool>("bloque");
    for (bool const bloque : {true, false}) {
        char const * const comment = bloque ? "blocked" : "can't";
        for (int vers = 3; vers <= 6; ++vers) {
            for (int refus = 2; refus < vers; ++refus)
                QTest::addRow("forward %d, %s at move %d", vers - 2, comment, refus - 1)
                    << vers << refus << bloque;
        }
        for (int vers = 5; vers >= 2; --vers) {
            for (int refus = 6; refus > vers; --refus)
                QTest::addRow("back %d, %s at move %d", 6 - vers, comment, 7 - refus)
                    << vers << refus << bloque;
        }
    }
}

// Forward from row 2, back from row 6, of 7.
void tst_DAssistantSauts::sautRefuse()
{
    QFETCH(int, vers);
    QFETCH(int, refus);
    QFETCH(bool, bloque);
    bool const recule = QByteArray(QTest::currentDataTag()).startsWith("back");
    int const de = recule ? 6 : 2;
    Banc banc(7);
    QVERIFY(banc.Avance(de));
    banc.assistant->DebarreToutesLesEtapes();
    EtapeTemoin & etape = *banc.etapes.at(refus);
    (recule ? etape.bloqueRetour : etape.bloqueAvance) = bloque;
    (recule ? etape.peutRevenir : etape.peutAvancer) = bloque;

    banc.Clique(vers);
    QStringList attendu = recule ? Reculs(de, refus) : Avances(de, refus);
    // Going back each remaining move asks again, going forward the first refusal ends it.
    for (int fois = recule ? refus - vers : 1; fois > 0; --fois) {
        attendu << QString::number(refus) + (recule ? u" BloqueRetour"_s : u" BloqueAvance"_s);
        if (!bloque)
            attendu << QString::number(refus) + (recule ? u" PeutRevenir"_s : u" PeutAvancer"_s);
    }
    QCOMPARE(banc.journal, attendu);
    QCOMPARE(banc.Rangee(), refus);
    QCOMPARE(banc.Actives(), Rangees({0, 1, 2, 3, 4, 5, 6}));

    // The next jump starts where the wizard is.
    etape.bloqueRetour = etape.bloqueAvance = false;
    etape.peutRevenir = etape.peutAvancer = true;
    banc.Clique(vers);
    QCOMPARE(banc.Rangee(), vers);
}

void tst_DAssistantSauts::clicApresRefus()
{
    Banc banc(6);
    QVERIFY(banc.Avance(5));
    banc.etapes.at(4)->peutRevenir = false;
    banc.Clique(1);
    QCOMPARE(banc.Rangee(), 4);
    banc.journal.clear();
    banc.Clique(5);
    QCOMPARE(banc.journal, Avances(4, 5));
    QCOMPARE(banc.Rangee(), 5);
}

void tst_DAssistantSauts::clicSurDesactivee()
{
    Banc banc(4);
    QVERIFY(banc.Avance(1));
    banc.Clique(2);
    banc.Clique(3);
    QVERIFY(banc.journal.isEmpty());
    QCOMPARE(banc.Rangee(), 1);
}

void tst_DAssistantSauts::clicSurLaCourante()
{
    Banc banc(4);
    QVERIFY(banc.Avance(1));
    banc.Clique(1);
    QVERIFY(banc.journal.isEmpty());
    QCOMPARE(banc.Rangee(), 1);
}

void tst_DAssistantSauts::doubleClic()
{
    Banc banc(4);
    QVERIFY(banc.Avance(3));
    QPoint const place = banc.liste->visualItemRect(banc.liste->item(2)).center();
    banc.Clique(2);
    QTest::mouseDClick(banc.liste->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(banc.liste->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(banc.journal, Reculs(3, 2));
}

void tst_DAssistantSauts::presseSansRelacher()
{
    Banc banc(4);
    QVERIFY(banc.Avance(3));
    auto const place = [&banc](int rangee) {
        return banc.liste->visualItemRect(banc.liste->item(rangee)).center();
    };
    QTest::mousePress(banc.liste->viewport(), Qt::LeftButton, {}, place(1));
    QCOMPARE(banc.Rangee(), 3);
    QTest::mouseRelease(banc.liste->viewport(), Qt::LeftButton, {}, place(0));
    QCOMPARE(banc.Rangee(), 3);
    QTest::mouseClick(banc.liste->viewport(), Qt::LeftButton, {}, {50, 400});
    QCOMPARE(banc.Rangee(), 3);
    QVERIFY(banc.journal.isEmpty());
}

void tst_DAssistantSauts::fleches_data()
{
    QTest::addColumn<int>("de");
    QTest::addColumn<int>("vers");
    QTest::newRow("down one") << 1 << 2;
    QTest::newRow("down three") << 1 << 4;
    QTest::newRow("up one") << 4 << 3;
    QTest::newRow("up to the first") << 4 << 0;
}

void tst_DAssistantSauts::fleches()
{
    QFETCH(int, de);
    QFETCH(int, vers);
    Banc banc(6);
    QVERIFY(banc.Avance(de));
    banc.assistant->DebarreToutesLesEtapes();
    Touches(banc, de, vers);
    QCOMPARE(banc.journal, de < vers ? Avances(de, vers) : Reculs(de, vers));
    QCOMPARE(banc.Rangee(), vers);
}

void tst_DAssistantSauts::flecheRefusee()
{
    Banc banc(6);
    QVERIFY(banc.Avance(3));
    banc.assistant->DebarreToutesLesEtapes();
    for (auto const touche : {Qt::Key_Down, Qt::Key_Up}) {
        banc.etapes.at(3)->peutAvancer = false;
        banc.etapes.at(3)->peutRevenir = false;
        // Each press tries the neighbour again: the keyboard stays with the step.
        for (int fois = 0; fois < 3; ++fois) {
            QTest::keyClick(banc.liste, touche);
            QCOMPARE(banc.Rangee(), 3);
        }
        QCOMPARE(banc.journal.size(), 6);
        banc.journal.clear();
        banc.etapes.at(3)->peutAvancer = true;
        banc.etapes.at(3)->peutRevenir = true;
        QTest::keyClick(banc.liste, touche);
        QCOMPARE(banc.Rangee(), touche == Qt::Key_Down ? 4 : 2);
        QVERIFY(touche == Qt::Key_Up || (banc.assistant->PriseBoutonPrecedent(), true));
        banc.journal.clear();
    }
}

void tst_DAssistantSauts::premiereEtDerniere()
{
    Banc banc(6);
    QVERIFY(banc.Avance(3));
    QTest::keyClick(banc.liste, Qt::Key_Home);
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.journal, Reculs(3, 0));
    // The last row isn't enabled.
    banc.journal.clear();
    QTest::keyClick(banc.liste, Qt::Key_End);
    QCOMPARE(banc.Rangee(), 0);
    QVERIFY(banc.journal.isEmpty());
    banc.assistant->DebarreToutesLesEtapes();
    QTest::keyClick(banc.liste, Qt::Key_End);
    QCOMPARE(banc.Rangee(), 5);
}

void tst_DAssistantSauts::rangeeActiveeParLHote()
{
    Banc banc(4);
    QListWidgetItem * const item = banc.liste->item(3);
    item->setFlags(item->flags() | Qt::ItemIsEnabled);
    banc.Clique(3);
    QCOMPARE(banc.Rangee(), 3);
}

void tst_DAssistantSauts::texteDeLHote()
{
    Banc banc(2);
    banc.liste->item(0)->setText(u"de l’hôte"_s);
    banc.Ajoute();
    QCOMPARE(banc.liste->item(0)->text(), u"de l’hôte"_s);
    QCOMPARE(banc.liste->item(2)->text(), u"3. Liste 2"_s);
}

void tst_DAssistantSauts::touchesLettres()
{
    Banc banc(6);
    QVERIFY(banc.Avance(3));
    QTest::keyClick(banc.liste, '2');
    QCOMPARE(banc.Rangee(), 1);
    QCOMPARE(banc.journal, Reculs(3, 1));
}

void tst_DAssistantSauts::saisieComposee()
{
    Banc banc(6);
    QVERIFY(banc.Avance(3));
    banc.etapes.at(3)->peutRevenir = false;
    QInputMethodEvent saisie;
    saisie.setCommitString(u"2"_s);
    QCoreApplication::sendEvent(banc.liste, &saisie);
    QCOMPARE(banc.journal.first(), u"3 BloqueRetour"_s);
    QCOMPARE(banc.Rangee(), 3);
}

// Ctrl+Space takes the selection off the row.
void tst_DAssistantSauts::selectionOtee()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    QTest::keyClick(banc.liste, Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(banc.Rangee(), 2);
    QVERIFY(banc.journal.isEmpty());
    banc.Clique(0);
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.journal, Reculs(2, 0));
}

// Only a selection that takes the place of another is a jump.
void tst_DAssistantSauts::selectionOteeParLHote()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    auto const choisis = [&banc](int rangee) {
        banc.liste->selectionModel()->select(banc.liste->model()->index(rangee, 0),
                                             QItemSelectionModel::ClearAndSelect);
    };
    banc.liste->clearSelection();
    QVERIFY(banc.liste->selectedItems().isEmpty());
    choisis(0);
    QCOMPARE(banc.pile->currentIndex(), 2);
    QVERIFY(banc.journal.isEmpty());
    choisis(2);
    choisis(3); // not reached
    QVERIFY(banc.liste->selectedItems().isEmpty());
    QVERIFY(banc.journal.isEmpty());
    // The next move shows where the wizard is.
    QVERIFY(banc.Avance(1));
    QCOMPARE(banc.Rangee(), 3);
    choisis(1);
    QCOMPARE(banc.journal, Reculs(3, 1));
    QCOMPARE(banc.Rangee(), 1);
}

void tst_DAssistantSauts::selectionPrivee_data()
{
    QTest::addColumn<int>("selectionnay");
    QTest::addColumn<int>("deselectionnay");
    QTest::addColumn<int>("rangee");
    QTest::newRow("nothing selected") << -1 << 2 << 2;
    QTest::newRow("nothing deselected") << 1 << -1 << 2;
    QTest::newRow("neither") << -1 << -1 << 2;
    QTest::newRow("the current step: a move already made") << 2 << 0 << 2;
    QTest::newRow("the distance is between the rows told") << 1 << 2 << 1;
}

void tst_DAssistantSauts::selectionPrivee()
{
    QFETCH(int, selectionnay);
    QFETCH(int, deselectionnay);
    QFETCH(int, rangee);
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    auto const selection = [&banc](int i) {
        QModelIndex const index = banc.liste->model()->index(i, 0);
        return index.isValid() ? QItemSelection(index, index) : QItemSelection();
    };
    QVERIFY(QMetaObject::invokeMethod(banc.assistant, "PriseSelectionEtape",
                                      Q_ARG(QItemSelection, selection(selectionnay)),
                                      Q_ARG(QItemSelection, selection(deselectionnay))));
    QCOMPARE(banc.Rangee(), rangee);
    QCOMPARE(banc.journal, Reculs(2, rangee));
}

// After a new start the visited path is shorter than the list lets one click back.
void tst_DAssistantSauts::historiquePlusCourt()
{
    Banc banc(5);
    QVERIFY(banc.Avance(3));
    banc.assistant->hide();
    banc.assistant->Reinitialise();
    banc.assistant->show();
    QVERIFY(banc.Avance(1));
    banc.assistant->DebarreToutesLesEtapes();
    banc.Clique(4);
    QCOMPARE(banc.Rangee(), 4);
    // One visited step is gone, and with it one move back.
    delete banc.etapes.at(1);
    QCOMPARE(banc.liste->currentRow(), 3);
    banc.journal.clear();
    banc.Clique(0);
    QCOMPARE(banc.journal.count(u"0 EntreDansEtape"_s), 1);
    QCOMPARE(banc.Rangee(), 0);
}

QTEST_MAIN(tst_DAssistantSauts)
#include "tst_DAssistantSauts.moc"
