// tests/navigation/tst_DAssistantMouvements.cpp
#include "navigation/EssaisAssistant.h"

using namespace EssaisAssistant;
using namespace Qt::StringLiterals;

namespace {

/// Lets `effet` note how things stand while it runs.
std::function<void()> Note(Banc & banc, QStringList & notes)
{
    return [&banc, &notes] {
        notes.append(banc.Boutons() + u' ' + QString::number(banc.pile->currentIndex()) + u' ' +
                     banc.assistant->windowTitle() + u' ' +
                     QString::number(banc.liste->currentRow()));
    };
}

} // namespace

class tst_DAssistantMouvements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void premierAffichage();
    void afficheDeNouveau();
    void sansEtape();
    void avantLAffichage();
    void avance();
    void avanceRefusee_data();
    void avanceRefusee();
    void avanceDeLaDerniere();
    void maxEtape();
    void recule();
    void reculeRefusee_data();
    void reculeRefusee();
    void gardePrecedent_data();
    void gardePrecedent();
    void termine();
    void termineRefusee();
    void annule();
    void ferme_data();
    void ferme();
    void echappe_data();
    void echappe();
    void entree();
};

void tst_DAssistantMouvements::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DAssistantMouvements::premierAffichage()
{
    Banc banc(3, false);
    QStringList notes;
    banc.etapes.at(0)->enEntrant = Note(banc, notes);
    banc.assistant->show();
    QCOMPARE(banc.journal, QStringList{u"0 EntreDansEtape"_s});
    QCOMPARE(notes, QStringList{u"a 0 Titre 0 0"_s});
    QCOMPARE(banc.Rangee(), 0);
    QCOMPARE(banc.Actives(), Rangees{0});
    QVERIFY(banc.etapes.at(0)->isVisible());
    QVERIFY(!banc.etapes.at(1)->isVisible());
}

void tst_DAssistantMouvements::afficheDeNouveau()
{
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    banc.etapes.at(1)->MetsTitre(u"Titre neuf"_s);
    banc.assistant->hide();
    banc.assistant->show();
    QCOMPARE(banc.journal, QStringList{u"1 EntreDansEtape"_s});
    QCOMPARE(banc.assistant->windowTitle(), u"Titre neuf"_s);
    QCOMPARE(banc.Actives(), Rangees({0, 1}));
    QCOMPARE(banc.pile->currentIndex(), 1);
}

void tst_DAssistantMouvements::sansEtape()
{
    Banc banc(0);
    banc.ActiveTout();
    banc.assistant->setWindowTitle(u"vide"_s);
    QVERIFY(!banc.assistant->PriseBoutonSuivant());
    banc.assistant->PriseBoutonPrecedent();
    banc.assistant->PriseBoutonTermine();
    QVERIFY(banc.assistant->isVisible());
    QCOMPARE(banc.assistant->windowTitle(), u"vide"_s);
    QVERIFY(banc.assistant->close());
    QVERIFY(!banc.assistant->isVisible());

    banc.assistant->show();
    banc.assistant->PriseBoutonAnnuler();
    QVERIFY(!banc.assistant->isVisible());
    banc.assistant->show();
    QTest::keyClick(banc.assistant, Qt::Key_Escape);
    QVERIFY(!banc.assistant->isVisible());

    // A step that comes late is the first at the next show.
    banc.Ajoute();
    banc.assistant->show();
    QCOMPARE(banc.Rangee(), 0);
}

void tst_DAssistantMouvements::avantLAffichage()
{
    Banc banc(2, false);
    banc.ActiveTout();
    banc.assistant->PriseBoutonPrecedent();
    banc.assistant->PriseBoutonTermine();
    QVERIFY(banc.journal.isEmpty());
    QCOMPARE(banc.Rangee(), -1);
    QVERIFY(banc.assistant->close());
    QVERIFY(banc.journal.isEmpty());
    banc.assistant->PriseBoutonAnnuler();
    QVERIFY(banc.journal.isEmpty());
    QCOMPARE(banc.Boutons(), u"a"_s);

    // Next enters the first step; the show stays there.
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.journal, QStringList{u"0 EntreDansEtape"_s});
    QVERIFY(banc.assistant->PriseBoutonSuivant());
    banc.Montre();
    QCOMPARE(banc.Rangee(), 1);
}

void tst_DAssistantMouvements::avance()
{
    Banc banc(3);
    banc.assistant->ActiveBoutonSuivant(true);
    banc.assistant->ActiveBoutonTermine(true);
    QStringList notes;
    banc.etapes.at(0)->enBloquantAvance = Note(banc, notes);
    banc.etapes.at(0)->enAvancant = Note(banc, notes);
    banc.etapes.at(1)->enEntrant = Note(banc, notes);
    banc.etapes.at(1)->enEntrant = [&banc, note = Note(banc, notes)] {
        note();
        banc.assistant->ActiveBoutonSuivant(true);
    };

    QVERIFY(banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.journal,
             QStringList({u"0 BloqueAvance"_s, u"0 PeutAvancer"_s, u"1 EntreDansEtape"_s}));
    QCOMPARE(notes, QStringList({u"ast 0 Titre 0 0"_s, u"a 0 Titre 0 0"_s, u"ap 1 Titre 1 1"_s}));
    QCOMPARE(banc.Rangee(), 1);
    QCOMPARE(banc.Actives(), Rangees({0, 1}));
    QCOMPARE(banc.Boutons(), u"aps"_s); // the entered step has the last word
}

void tst_DAssistantMouvements::avanceRefusee_data()
{
    QTest::addColumn<bool>("bloque");
    QTest::addColumn<bool>("peut");
    QTest::addColumn<QStringList>("journal");
    QTest::addColumn<QString>("boutons");
    QTest::newRow("blocked: nothing changes")
        << true << true << QStringList{u"1 BloqueAvance"_s} << u"apst"_s;
    QTest::newRow("can't: Next and Finish stay disabled")
        << false << false << QStringList({u"1 BloqueAvance"_s, u"1 PeutAvancer"_s}) << u"ap"_s;
    QTest::newRow("blocked comes first")
        << true << false << QStringList{u"1 BloqueAvance"_s} << u"apst"_s;
}

void tst_DAssistantMouvements::avanceRefusee()
{
    QFETCH(bool, bloque);
    QFETCH(bool, peut);
    QFETCH(QStringList, journal);
    QFETCH(QString, boutons);
    Banc banc(3);
    QVERIFY(banc.Avance(1));
    banc.ActiveTout();
    banc.etapes.at(1)->bloqueAvance = bloque;
    banc.etapes.at(1)->peutAvancer = peut;

    QVERIFY(!banc.assistant->PriseBoutonSuivant());
    QCOMPARE(banc.journal, journal);
    QCOMPARE(banc.Boutons(), boutons);
    QCOMPARE(banc.Rangee(), 1);
    QCOMPARE(banc.Actives(), Rangees({0, 1}));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 1);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 2 de 3"_s);
}

void tst_DAssistantMouvements::avanceDeLaDerniere()
{
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.ActiveTout();
    for (int fois = 0; fois < 2; ++fois) {
        QVERIFY(!banc.assistant->PriseBoutonSuivant());
        QCOMPARE(banc.journal, QStringList({u"1 BloqueAvance"_s, u"1 PeutAvancer"_s}));
        QCOMPARE(banc.Boutons(), u"ap"_s);
        QCOMPARE(banc.Rangee(), 1);
        QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 1);
        QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 2 de 2"_s);
        banc.journal.clear();
    }
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.Rangee(), 0);
}

void tst_DAssistantMouvements::maxEtape()
{
    Banc banc(4);
    QVERIFY(banc.Avance(2));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 2);
    banc.assistant->PriseBoutonPrecedent();
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 2);
    QVERIFY(banc.Avance(1));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 2);
    QVERIFY(banc.Avance(2));
    QCOMPARE(banc.assistant->DonneMaxEtapeParcouru(), 3);
}

void tst_DAssistantMouvements::recule()
{
    Banc banc(3);
    QVERIFY(banc.Avance(2));
    banc.ActiveTout();
    QStringList notes;
    banc.etapes.at(2)->enBloquantRetour = Note(banc, notes);
    banc.etapes.at(2)->enRevenant = Note(banc, notes);
    banc.etapes.at(1)->enEntrant = [&banc, note = Note(banc, notes)] {
        note();
        banc.assistant->ActiveBoutonTermine(true);
    };

    banc.assistant->PriseBoutonPrecedent();
    // Not the first visited step: it isn't asked whether Previous stays.
    QCOMPARE(banc.journal,
             QStringList({u"2 BloqueRetour"_s, u"2 PeutRevenir"_s, u"1 EntreDansEtape"_s}));
    QCOMPARE(notes,
             QStringList({u"apst 2 Titre 2 2"_s, u"apst 2 Titre 2 2"_s, u"ap 1 Titre 1 1"_s}));
    QCOMPARE(banc.Rangee(), 1);
    QCOMPARE(banc.Boutons(), u"apt"_s);
    QCOMPARE(banc.Actives(), Rangees({0, 1, 2})); // a step once reached stays enabled
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 2 de 3"_s);
}

void tst_DAssistantMouvements::reculeRefusee_data()
{
    QTest::addColumn<bool>("bloque");
    QTest::addColumn<bool>("peut");
    QTest::addColumn<QStringList>("journal");
    QTest::newRow("blocked") << true << true << QStringList{u"2 BloqueRetour"_s};
    QTest::newRow("can't") << false << false
                           << QStringList({u"2 BloqueRetour"_s, u"2 PeutRevenir"_s});
    QTest::newRow("blocked comes first") << true << false << QStringList{u"2 BloqueRetour"_s};
}

void tst_DAssistantMouvements::reculeRefusee()
{
    QFETCH(bool, bloque);
    QFETCH(bool, peut);
    QFETCH(QStringList, journal);
    Banc banc(3);
    QVERIFY(banc.Avance(2));
    banc.ActiveTout();
    banc.etapes.at(2)->bloqueRetour = bloque;
    banc.etapes.at(2)->peutRevenir = peut;
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.journal, journal);
    QCOMPARE(banc.Boutons(), u"apst"_s);
    QCOMPARE(banc.Rangee(), 2);
    QCOMPARE(QString(banc.assistant->DonneTitreGenerique(nullptr)), u"Étape 3 de 3"_s);
}

void tst_DAssistantMouvements::gardePrecedent_data()
{
    QTest::addColumn<bool>("garde");
    QTest::addColumn<QString>("boutons");
    QTest::newRow("not kept") << false << u"a"_s;
    QTest::newRow("kept") << true << u"ap"_s;
}

void tst_DAssistantMouvements::gardePrecedent()
{
    QFETCH(bool, garde);
    QFETCH(QString, boutons);
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.ActiveTout();
    banc.etapes.at(0)->gardePrecedent = garde;
    QStringList notes;
    banc.etapes.at(0)->enGardant = Note(banc, notes);
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.journal, QStringList({u"1 BloqueRetour"_s, u"1 PeutRevenir"_s,
                                        u"0 GardePrecedentActif"_s, u"0 EntreDansEtape"_s}));
    // The row is selected and two buttons are disabled before, the step shown afterwards.
    QCOMPARE(notes, QStringList{u"ap 1 Titre 1 0"_s});
    QCOMPARE(banc.Boutons(), boutons);
    QCOMPARE(banc.Rangee(), 0);

    banc.journal.clear();
    banc.assistant->PriseBoutonPrecedent();
    QCOMPARE(banc.journal, QStringList({u"0 BloqueRetour"_s, u"0 PeutRevenir"_s}));
    QCOMPARE(banc.Boutons(), boutons);
    QCOMPARE(banc.Rangee(), 0);
}

void tst_DAssistantMouvements::termine()
{
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.ActiveTout();
    QStringList notes;
    banc.etapes.at(1)->enTerminant = Note(banc, notes);
    QSignalSpy const acceptations(banc.assistant, &QDialog::accepted);
    banc.assistant->PriseBoutonTermine();
    QCOMPARE(banc.journal, QStringList{u"1 PeutTerminer"_s}); // closing isn't asked for
    QCOMPARE(notes, QStringList{u"apst 1 Titre 1 1"_s});
    QCOMPARE(banc.Boutons(), u"ap"_s);
    QCOMPARE(acceptations.count(), 1);
    QVERIFY(!banc.assistant->isVisible());
}

void tst_DAssistantMouvements::termineRefusee()
{
    Banc banc(2);
    banc.ActiveTout();
    banc.etapes.at(0)->peutTerminer = false;
    banc.assistant->PriseBoutonTermine();
    QCOMPARE(banc.journal, QStringList{u"0 PeutTerminer"_s});
    QCOMPARE(banc.Boutons(), u"apst"_s);
    QVERIFY(banc.assistant->isVisible());
}

void tst_DAssistantMouvements::annule()
{
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.ActiveTout();
    // Nothing that refuses is asked.
    banc.etapes.at(1)->peutFermer = false;
    banc.etapes.at(1)->peutRevenir = false;
    banc.etapes.at(1)->bloqueRetour = true;
    QStringList notes;
    banc.etapes.at(1)->enAnnulant = Note(banc, notes);
    QSignalSpy const refus(banc.assistant, &QDialog::rejected);
    banc.assistant->PriseBoutonAnnuler();
    QCOMPARE(banc.journal, QStringList{u"1 AnnuleEtape"_s});
    QCOMPARE(notes, QStringList{u"a 1 Titre 1 1"_s});
    QCOMPARE(refus.count(), 1);
    QVERIFY(!banc.assistant->isVisible());
    QCOMPARE(banc.assistant->result(), int(QDialog::Rejected));
}

void tst_DAssistantMouvements::ferme_data()
{
    QTest::addColumn<bool>("peut");
    QTest::newRow("may close") << true;
    QTest::newRow("may not close") << false;
}

void tst_DAssistantMouvements::ferme()
{
    QFETCH(bool, peut);
    Banc banc(2);
    QVERIFY(banc.Avance(1));
    banc.etapes.at(1)->peutFermer = peut;
    QSignalSpy const refus(banc.assistant, &QDialog::rejected);

    QCOMPARE(banc.assistant->close(), peut);
    QCOMPARE(banc.journal, QStringList{u"1 PeutFermer"_s});
    QVERIFY(banc.etapes.at(1)->fermeture);
    QCOMPARE(banc.assistant->isVisible(), !peut);
    QCOMPARE(refus.count(), peut ? 1 : 0);
    QCOMPARE(banc.pile->currentIndex(), 1);

    QCloseEvent evenement;
    QCoreApplication::sendEvent(banc.assistant, &evenement);
    QCOMPARE(banc.etapes.at(1)->fermeture, &evenement);
    QCOMPARE(evenement.isAccepted(), peut);
}

void tst_DAssistantMouvements::echappe_data()
{
    QTest::addColumn<bool>("peut");
    QTest::newRow("may close") << true;
    QTest::newRow("may not close") << false;
}

void tst_DAssistantMouvements::echappe()
{
    QFETCH(bool, peut);
    Banc banc(2);
    banc.etapes.at(0)->peutFermer = peut;
    QSignalSpy const refus(banc.assistant, &QDialog::rejected);
    QTest::keyClick(banc.liste, Qt::Key_Escape);
    QCOMPARE(banc.journal, QStringList{u"0 PeutFermer"_s});
    QCOMPARE(banc.assistant->isVisible(), !peut);
    QCOMPARE(refus.count(), peut ? 1 : 0);
}

// Next is the default button.
void tst_DAssistantMouvements::entree()
{
    Banc banc(3);
    QVERIFY(banc.Active());
    QTest::keyClick(banc.liste, Qt::Key_Return);
    QCOMPARE(banc.Rangee(), 0); // disabled
    banc.assistant->ActiveBoutonSuivant(true);
    QTest::keyClick(banc.liste, Qt::Key_Return);
    QCOMPARE(banc.Rangee(), 1);
}

QTEST_MAIN(tst_DAssistantMouvements)
#include "tst_DAssistantMouvements.moc"
