// tests/dialogs/tst_DDialogueAbs.cpp
//
// What becomes of an answer: remembered or refused, given to whom, written to the journal.
#include "EssaisBoites.h"
#include "EssaisStockage.h"

#include "noyau/JournalSimulay.h"

#include "noyau/ExecutionSilencieuse.h"

#include <QCheckBox>
#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

QString Guid()
{
    return u"{1234-abcd}"_s;
}

struct Bouton
{
    char const * nom;
    eBoutons identifiant;
};
constexpr Bouton kBoutons[] = {
    {"OK", kBoutonOk},
    {"Cancel", kBoutonAnnuler},
    {"Apply", kBoutonAppliquer},
    {"Close", kBoutonFermer},
    {"Save", kBoutonSauvegarder},
    {"Save all", kBoutonSauvegarderTout},
    {"Help", kBoutonAide},
    {"Yes", kBoutonOui},
    {"Yes to all", kBoutonOuiTout},
    {"No", kBoutonNon},
    {"No to all", kBoutonNonTout},
    {"Retry", kBoutonReessayer},
    {"Ignore", kBoutonIgnorer},
    {"Continue", kBoutonContinuer},
    {"Try", kBoutonEssayer},
    {"own 1", kBoutonMaison1},
    {"own 2", kBoutonMaison2},
    {"own 3", kBoutonMaison3},
    {"own 4", kBoutonMaison4},
    {"own 5", kBoutonMaison5},
    {"own 1, elevated", kBoutonMaisonElevee1},
};
constexpr int kTous = static_cast<int>(0xFFFFFFFFU);

DAlerteInfo Question(QString const & message = u"Continuer ?"_s)
{
    return {DAlerteInfo::kQuestion, message, u"Note"_s, u"Essai"_s};
}

std::list<UniChaine> Labels()
{
    return {u"Un"_s, u"Deux"_s, u"Trois"_s, u"Quatre"_s, u"Cinq"_s};
}

} // namespace

class tst_DDialogueAbs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void masqueRefusay_data();
    void masqueRefusay();
    void masqueRefusaySansEchap_data();
    void masqueRefusaySansEchap();
    void sansCocheRienNEstEcrit();
    void stockeurParDefautNEcritJamais();
    void sansGuid();
    void okSeulEstRetenu();
    void journalDesReponses_data();
    void journalDesReponses();
    void journalDUneAlerteSurPlusieursLignes();
    void journalDUneAlerteMontree();
    void journalSansStockage();
    void journalEteint();
    void reponseRetenueApresLeRetour();
    void reponseRetenueEnBloquant();
    void reponseRetenueQuelconque_data();
    void reponseRetenueQuelconque();
    void reponseRetenueAvantLeSilence();
    void silencieuxPrendLeDefaut();
    void silencieuxSansDefaut();
    void receveurRecoitIdentifiantEtReponse();

private:
    /// Raises the alert, ticks, answers with that button.
    void RepondsCoche(int boutons, eBoutons echap, eBoutons reponse, bool coche = true,
                      eTypStockeur type = StockeurNePlusMAviser, QString const & guid = Guid());

    std::unique_ptr<EssaisStockage> monStockage;
    std::unique_ptr<JournalSimulay> monJournal;
    QList<eBoutons> mesReponses;
};

void tst_DDialogueAbs::init()
{
    monStockage = std::make_unique<EssaisStockage>();
    monJournal = std::make_unique<JournalSimulay>();
    mesReponses.clear();
}

void tst_DDialogueAbs::cleanup()
{
    ExecutionSilencieuse::Arrete();
    ExecutionSilencieuse::OublieDialoguesJournalises();
    if (DMessageBox * const boite = DonneBoiteVisible())
        boite->PriseResultat(QVariant::fromValue(kBoutonAucun));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monJournal.reset();
    monStockage.reset();
}

void tst_DDialogueAbs::RepondsCoche(int boutons, eBoutons echap, eBoutons reponse, bool coche,
                                    eTypStockeur type, QString const & guid)
{
    DAlerteRappel(nullptr, Question(), type, guid, boutons, kBoutonAucun, echap, Labels(),
                  [this](eBoutons const & r) { mesReponses.append(r); });
    DMessageBox * const boite = DonneBoiteVisible();
    QVERIFY(boite);
    if (auto * const laCase = boite->findChild<QCheckBox *>())
        laCase->setChecked(coche);
    // The answer is the same one that the click on that button gives.
    boite->PriseResultat(QVariant::fromValue(reponse));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
}

// Every button as the escape button, every button as the answer.
void tst_DDialogueAbs::masqueRefusay_data()
{
    QTest::addColumn<eBoutons>("echap");
    for (Bouton const & bouton : kBoutons)
        QTest::newRow(bouton.nom) << bouton.identifiant;
}

void tst_DDialogueAbs::masqueRefusay()
{
    QFETCH(eBoutons, echap);
    for (Bouton const & bouton : kBoutons) {
        QString const guid = QString::number(bouton.identifiant);
        RepondsCoche(kTous, echap, bouton.identifiant, true, StockeurNePlusMAviser, guid);
        bool const quitte = bouton.identifiant == kBoutonAnnuler ||
                            bouton.identifiant == kBoutonFermer ||
                            bouton.identifiant == kBoutonAide;
        bool const estEchap = bouton.identifiant == echap && echap != kBoutonOk;
        QCOMPARE(monStockage->DonneContenu().contains(guid), !quitte && !estEchap);
        if (!quitte && !estEchap)
            QCOMPARE(monStockage->DonneContenu().value(guid).toInt(), int(bouton.identifiant));
    }
    QCOMPARE(mesReponses.size(), qsizetype(std::size(kBoutons))); // given, remembered or not
}

void tst_DDialogueAbs::masqueRefusaySansEchap_data()
{
    QTest::addColumn<int>("reponse");
    QTest::addColumn<bool>("retenue");
    QTest::newRow("Yes") << int(kBoutonOui) << true;
    QTest::newRow("OK") << int(kBoutonOk) << true;
    QTest::newRow("Cancel") << int(kBoutonAnnuler) << false;
    QTest::newRow("Close") << int(kBoutonFermer) << false;
    QTest::newRow("Help") << int(kBoutonAide) << false;
    QTest::newRow("a link with a refused bit") << int(kBoutonLien | 2) << false;
    QTest::newRow("a link without one") << int(kBoutonLien | 5) << true;
    QTest::newRow("the highest bit") << int(kBoutonMaisonElevee1) << true;
}

void tst_DDialogueAbs::masqueRefusaySansEchap()
{
    QFETCH(int, reponse);
    QFETCH(bool, retenue);
    RepondsCoche(kBoutonOui | kBoutonNon, kBoutonAucun, static_cast<eBoutons>(reponse));
    QVariantMap const attendu = retenue ? QVariantMap{{Guid(), reponse}} : QVariantMap();
    QCOMPARE(monStockage->DonneContenu(), attendu);
}

void tst_DDialogueAbs::sansCocheRienNEstEcrit()
{
    RepondsCoche(kBoutonOui | kBoutonNon, kBoutonNon, kBoutonOui, false);
    QVERIFY(monStockage->DonneContenu().isEmpty());
}

void tst_DDialogueAbs::stockeurParDefautNEcritJamais()
{
    RepondsCoche(kBoutonOui | kBoutonNon, kBoutonNon, kBoutonOui, true, StockeurParDefaut);
    QVERIFY(monStockage->DonneContenu().isEmpty());
    QVERIFY(monStockage->DonneContenu(StockeurParDefaut).isEmpty());
}

void tst_DDialogueAbs::sansGuid()
{
    RepondsCoche(kBoutonOui | kBoutonNon, kBoutonNon, kBoutonOui, true, StockeurNePlusMAviser, {});
    RepondsCoche(kBoutonOui | kBoutonNon, kBoutonNon, kBoutonOui, true, StockeurNePlusMAviser, {});
    QCOMPARE(mesReponses.size(), 2); // asked both times
}

void tst_DDialogueAbs::okSeulEstRetenu()
{
    QuandLaBoiteEstLa([](DMessageBox & boite) {
        boite.findChild<QCheckBox *>()->click();
        QTest::keyClick(&boite, Qt::Key_Escape);
    });
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOk, kBoutonOk,
                           kBoutonOk),
             kBoutonOk);
    QCOMPARE(monStockage->DonneContenu(), (QVariantMap{{Guid(), 1}}));
    QVERIFY(DAlerteRappelDejaCochay(StockeurNePlusMAviser, Guid()));
}

void tst_DDialogueAbs::journalDesReponses_data()
{
    QTest::addColumn<eBoutons>("reponse");
    QTest::addColumn<QString>("nom");
    for (Bouton const & bouton : kBoutons) {
        QString const nom = bouton.identifiant == kBoutonOk        ? u"OK"_s
                            : bouton.identifiant == kBoutonOui     ? u"Oui"_s
                            : bouton.identifiant == kBoutonNon     ? u"Non"_s
                            : bouton.identifiant == kBoutonAnnuler ? u"Annuler"_s
                            : bouton.identifiant == kBoutonReessayer
                                ? u"Réessayer"_s
                                : QString::number(bouton.identifiant);
        QTest::newRow(bouton.nom) << bouton.identifiant << nom;
    }
}

void tst_DDialogueAbs::journalDesReponses()
{
    QFETCH(eBoutons, reponse);
    QFETCH(QString, nom);
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), int(reponse),
                           reponse, kBoutonAucun, u"Un"_s, u"Deux"_s, u"Trois"_s, u"Quatre"_s,
                           u"Cinq"_s),
             reponse);
    QString const texte = u"Réponse="_s + nom + u"\tContinuer ?\tGUID: "_s + Guid() + u'\t';
    QCOMPARE(monJournal->DonneLignes(), QStringList{u"Dialogue silencieux."_s + texte});
    QVERIFY(monJournal->AppelsSontComplets());
    QCOMPARE(ExecutionSilencieuse::DonneDialoguesJournalises(), QList{UniChaine(texte)});
}

void tst_DDialogueAbs::journalDUneAlerteSurPlusieursLignes()
{
    ExecutionSilencieuse::Demarre();
    DAlerte(nullptr, Question(u"Un\nDeux\r\nTrois\tQuatre"_s));
    QCOMPARE(monJournal->DonneLignes(),
             QStringList{u"Dialogue silencieux.Réponse=OK\tUn\tDeux\t\tTrois\tQuatre\tGUID: \t"_s});
}

void tst_DDialogueAbs::journalDUneAlerteMontree()
{
    ClicQuandLaBoiteEstLa(QMessageBox::No);
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui | kBoutonNon,
                  kBoutonOui, kBoutonOui);
    QString const suite = u"\tContinuer ?\tGUID: "_s + Guid() + u'\t';
    QCOMPARE(monJournal->DonneLignes(), QStringList{u"Dialogue modal.Réponse=Non"_s + suite});
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui, kBoutonOui,
                  kBoutonOui, [](eBoutons const &) {});
    // Written while nobody has answered yet.
    QCOMPARE(monJournal->DonneLignes().last(),
             u"Dialogue asynchrone non réponduRéponse=0"_s + suite);
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
    DonneBoiteVisible()->button(QMessageBox::Yes)->click();
    QCOMPARE(monJournal->DonneLignes().size(), 2);
}

void tst_DDialogueAbs::journalSansStockage()
{
    ExecutionSilencieuse::Demarre();
    DAlerte(nullptr, Question());
    QCOMPARE(monJournal->DonneLignes(),
             QStringList{u"Dialogue silencieux.Réponse=OK\tContinuer ?\tGUID: \t"_s});
}

void tst_DDialogueAbs::journalEteint()
{
    monJournal->estActif = false;
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerte(nullptr, Question()), kBoutonOk);
    QVERIFY(monJournal->DonneLignes().isEmpty());
    QCOMPARE(ExecutionSilencieuse::DonneDialoguesJournalises().size(), 1);
    monJournal.reset(); // no journal at all
    QCOMPARE(DAlerte(nullptr, Question()), kBoutonOk);
}

void tst_DDialogueAbs::reponseRetenueApresLeRetour()
{
    monStockage->Ecris(Guid(), kBoutonNon);
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui | kBoutonNon,
                  kBoutonOui, kBoutonNon, [this](eBoutons const & r) { mesReponses.append(r); });
    QVERIFY(mesReponses.isEmpty());
    QVERIFY(!DonneBoiteVisible());
    QString const texte = u"Réponse=Non\tContinuer ?\tTypeDeStockeur: StockeurNePlusMAviser\t"
                          u"GUID: "_s +
                          Guid() + u'\t';
    QCOMPARE(monJournal->DonneLignes(),
             QStringList{u"Dialogue asynchrone déjà répondu."_s + texte});
    QCOMPARE(ExecutionSilencieuse::DonneDialoguesJournalises(), QList{UniChaine(texte)});
    QTRY_COMPARE(mesReponses, QList{kBoutonNon});
}

void tst_DDialogueAbs::reponseRetenueEnBloquant()
{
    monStockage->Ecris(Guid(), kBoutonOuiTout, StockeurParDefaut);
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurParDefaut, Guid(), kBoutonOui, kBoutonOui,
                           kBoutonOui),
             kBoutonOuiTout);
    QCOMPARE(monJournal->DonneLignes(),
             QStringList{u"Dialogue déjà répondu.Réponse=256\tContinuer ?\t"
                         u"TypeDeStockeur: StockeurParDefaut\tGUID: "_s +
                         Guid() + u'\t'});
}

void tst_DDialogueAbs::reponseRetenueQuelconque_data()
{
    QTest::addColumn<quint32>("valeur");
    QTest::addColumn<QString>("nom");
    QTest::newRow("a button that the box has not") << quint32(kBoutonReessayer) << u"Réessayer"_s;
    QTest::newRow("an answer that is never stored") << quint32(kBoutonAnnuler) << u"Annuler"_s;
    QTest::newRow("a link and a number") << quint32(kBoutonLien | 5) << u"4194309"_s;
    QTest::newRow("several bits") << quint32(7) << u"7"_s;
    QTest::newRow("a bit that no button has") << quint32(8192) << u"8192"_s;
    QTest::newRow("the highest bit") << quint32(kBoutonMaisonElevee1) << u"2147483648"_s;
    QTest::newRow("all bits") << quint32(0xFFFFFFFF) << u"4294967295"_s;
}

// Nothing filters what the file holds, in either form.
void tst_DDialogueAbs::reponseRetenueQuelconque()
{
    QFETCH(quint32, valeur);
    QFETCH(QString, nom);
    auto const attendue = static_cast<eBoutons>(valeur);
    monStockage->Ecris(Guid(), static_cast<int>(valeur));
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui,
                           kBoutonOui, kBoutonOui),
             attendue);
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui, kBoutonOui,
                  kBoutonOui, [this](eBoutons const & r) { mesReponses.append(r); });
    QTRY_COMPARE(mesReponses, QList{attendue});
    QString const texte = u"Réponse=%1\tContinuer ?\tTypeDeStockeur: StockeurNePlusMAviser\t"
                          "GUID: %2\t"_s.arg(nom, Guid());
    QCOMPARE(monJournal->DonneLignes(),
             (QStringList{u"Dialogue déjà répondu."_s + texte,
                          u"Dialogue asynchrone déjà répondu."_s + texte}));
    QCOMPARE(monStockage->DonneContenu(), (QVariantMap{{Guid(), static_cast<int>(valeur)}}));
}

void tst_DDialogueAbs::reponseRetenueAvantLeSilence()
{
    monStockage->Ecris(Guid(), kBoutonNon);
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, Guid(), kBoutonOui,
                           kBoutonOui, kBoutonOui),
             kBoutonNon);
    QVERIFY(monJournal->DonneLignes().constFirst().startsWith(u"Dialogue déjà répondu."_s));
}

void tst_DDialogueAbs::silencieuxPrendLeDefaut()
{
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerte(nullptr, Question(), kBoutonOui | kBoutonMaison2, kBoutonMaison2, kBoutonOui,
                     u"Un"_s, u"Deux"_s),
             kBoutonMaison2);
    DAlerte(nullptr, Question(), kBoutonOui | kBoutonNon, kBoutonNon, kBoutonOui,
            [this](eBoutons const & r) { mesReponses.append(r); });
    QVERIFY(mesReponses.isEmpty());
    QVERIFY(monJournal->DonneLignes().last().startsWith(
        u"Dialogue asynchrone silencieux.Réponse=Non\t"_s));
    QTRY_COMPARE(mesReponses, QList{kBoutonNon});
    ExecutionSilencieuse::Demarre(false); // in use, but not silent: the user is asked
    ClicQuandLaBoiteEstLa(QMessageBox::Ok);
    QCOMPARE(DAlerte(nullptr, Question()), kBoutonOk);
    QVERIFY(monJournal->DonneLignes().last().startsWith(u"Dialogue modal."_s));
}

void tst_DDialogueAbs::silencieuxSansDefaut()
{
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerte(nullptr, Question(), kBoutonOui | kBoutonNon, kBoutonAucun, kBoutonNon),
             kBoutonAucun);
    QVERIFY(monJournal->DonneLignes().last().startsWith(u"Dialogue silencieux.Réponse=0\t"_s));
}

void tst_DDialogueAbs::receveurRecoitIdentifiantEtReponse()
{
    ReceveurNotant receveur;
    receveur.MetsIdMessage(42);
    bool boiteEtaitLa = false;
    receveur.action = [&boiteEtaitLa] { boiteEtaitLa = DonneBoiteVisible() != nullptr; };
    DAlerte(nullptr, &receveur, Question(), kBoutonOui | kBoutonNon, kBoutonOui, kBoutonNon);
    DonneBoiteVisible()->button(QMessageBox::No)->click();
    QCOMPARE(receveur.reponses, (QList<QPair<int, int>>{{42, kBoutonNon}}));
    QVERIFY(boiteEtaitLa);
}

QTEST_MAIN(tst_DDialogueAbs)
#include "tst_DDialogueAbs.moc"
