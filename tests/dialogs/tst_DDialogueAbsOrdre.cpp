// dialogs/tst_DDialogueAbsOrdre.cpp
//
// What comes first when a box is answered.
#include "dialogs/FormesAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

enum class eSortie
{
    kClic,
    kTouche,
    kFermeture,
    kRejet
};

DAlerteInfo Question()
{
    return {DAlerteInfo::kQuestion, UniChaine("Message")};
}

// Writes down what happens to a box, in order.
class Temoin : public QObject
{
public:
    void Observe(DMessageBox & boite)
    {
        maBoite = &boite;
        connect(&boite, &DMessageBox::SignalEnFermeture, this, &Temoin::NoteFermeture);
        connect(&boite, &QDialog::finished, this, &Temoin::NoteFin);
        connect(&boite, &QObject::destroyed, this, &Temoin::NoteDestruction);
    }
    void NoteReponse(int reponse) { Note(u"answer %1"_s.arg(reponse)); }
    void NoteFermeture(eBoutons reponse) { Note(u"closing %1"_s.arg(int(reponse))); }
    void NoteFin(int resultat) { mesNotes << u"finished %1"_s.arg(resultat); }
    void NoteDestruction() { mesNotes << u"destroyed"_s; }

    QStringList mesNotes;

private:
    void Note(QString const & quoi)
    {
        QString const etat = !maBoite               ? u"gone"_s
                             : maBoite->isVisible() ? u"visible"_s
                                                    : u"hidden"_s;
        mesNotes << u"%1, %2"_s.arg(quoi, etat);
    }

    QPointer<DMessageBox> maBoite;
};

void Sors(DMessageBox & boite, eSortie sortie)
{
    switch (sortie) {
    case eSortie::kClic:
        Clique(boite.button(QMessageBox::No));
        break;
    case eSortie::kTouche:
        Tape(boite, Qt::Key_Escape);
        break;
    case eSortie::kFermeture:
        boite.close();
        break;
    case eSortie::kRejet:
        boite.reject();
        break;
    }
}

void AjouteSorties()
{
    QTest::addColumn<eSortie>("sortie");
    QTest::newRow("click") << eSortie::kClic;
    QTest::newRow("Escape") << eSortie::kTouche;
    QTest::newRow("window closed") << eSortie::kFermeture;
    QTest::newRow("reject") << eSortie::kRejet;
}

} // namespace

class tst_DDialogueAbsOrdre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void reponseAvantLaFin_data() { AjouteSorties(); }
    void reponseAvantLaFin();
    void reponseAvantLaFinBloquante_data() { AjouteSorties(); }
    void reponseAvantLaFinBloquante();
    void storeEcritAvantLaReponse();
    void reponseRetenueApresLAppel();
    void reponsesRetenuesDansLOrdre();
    void journalAvantLaReponse();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DDialogueAbsOrdre::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

// The receiver runs while the box is alive and visible; the result is the answer.
void tst_DDialogueAbsOrdre::reponseAvantLaFin()
{
    QFETCH(eSortie, sortie);
    Temoin temoin;
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, u"guid"_s, kBoutonOui | kBoutonNon,
                  kBoutonOui, kBoutonNon,
                  [&temoin](eBoutons const & reponse) { temoin.NoteReponse(int(reponse)); });
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    temoin.Observe(*boite);
    Sors(*boite, sortie);
    QTRY_COMPARE(temoin.mesNotes, (QStringList{u"answer 512, visible"_s, u"closing 512, visible"_s,
                                               u"finished 512"_s, u"destroyed"_s}));
}

void tst_DDialogueAbsOrdre::reponseAvantLaFinBloquante()
{
    QFETCH(eSortie, sortie);
    Temoin temoin;
    Repondant const utilisateur([&temoin, sortie](DMessageBox & boite) {
        temoin.Observe(boite);
        Sors(boite, sortie);
    });
    QCOMPARE(DAlerte(nullptr, Question(), kBoutonOui | kBoutonNon, kBoutonOui, kBoutonNon),
             kBoutonNon);
    QTRY_COMPARE(temoin.mesNotes,
                 (QStringList{u"closing 512, visible"_s, u"finished 512"_s, u"destroyed"_s}));
}

void tst_DDialogueAbsOrdre::storeEcritAvantLaReponse()
{
    ReceveurNotant receveur;
    bool etaitRetenue = false;
    receveur.action = [&etaitRetenue] {
        etaitRetenue = DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"guid"_s);
    };
    DAlerteRappel(nullptr, &receveur, Question(), StockeurNePlusMAviser, u"guid"_s, kBoutonOui,
                  kBoutonOui, kBoutonAucun);
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    Coche(*boite);
    Clique(boite->button(QMessageBox::Yes));
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOui});
    QVERIFY(etaitRetenue);
}

void tst_DDialogueAbsOrdre::reponseRetenueApresLAppel()
{
    monBanc->stockage.Ecris(u"guid"_s, kBoutonNon);
    Temoin temoin;
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, u"guid"_s, kBoutonOui | kBoutonNon,
                  kBoutonOui, kBoutonNon,
                  [&temoin](eBoutons const & reponse) { temoin.NoteReponse(int(reponse)); });
    QCOMPARE(Fenetres<DMessageBox>().size(), 1);
    temoin.Observe(*Fenetres<DMessageBox>().constFirst());
    QCOMPARE(temoin.mesNotes, QStringList());
    QTRY_COMPARE(temoin.mesNotes, (QStringList{u"answer 512, hidden"_s, u"closing 512, hidden"_s,
                                               u"finished 512"_s, u"destroyed"_s}));
}

void tst_DDialogueAbsOrdre::reponsesRetenuesDansLOrdre()
{
    ExecutionSilencieuse::Demarre();
    QList<int> ordre;
    for (int i = 0; i < 5; ++i)
        DAlerte(nullptr, Question(), kBoutonOui, kBoutonOui, kBoutonAucun,
                [&ordre, i](eBoutons const &) { ordre << i; });
    QVERIFY(ordre.isEmpty());
    QTRY_COMPARE(ordre, (QList<int>{0, 1, 2, 3, 4}));
}

// A line of the journal for a box that does not block is written when it appears.
void tst_DDialogueAbsOrdre::journalAvantLaReponse()
{
    DAlerte(nullptr, Question(), kBoutonOui, kBoutonOui, kBoutonAucun, RappelAlerte());
    QStringList const lignes{u"Dialogue asynchrone non réponduRéponse=0\tMessage\tGUID: \t"_s};
    QCOMPARE(monBanc->journal.DonneLignes(), lignes);
    QVERIFY(BoiteDevant());
    Clique(BoiteDevant()->button(QMessageBox::Yes));
    QTRY_VERIFY(Fenetres<DMessageBox>().isEmpty());
    QCOMPARE(monBanc->journal.DonneLignes(), lignes);
}

QTEST_MAIN(tst_DDialogueAbsOrdre)
#include "tst_DDialogueAbsOrdre.moc"
