// dialogs/tst_DDialogueAbs.cpp
//
// The way of an answer: to the store, to the journal, to whoever waits for it.
#include "dialogs/DDialogueAbs.h"

#include "dialogs/DMessageBoxAvecCaseACocher.h"
#include "dialogs/FormesAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

// In the order in which a box makes them.
constexpr quint32 kTousBoutons[] = {
    kBoutonOk,      kBoutonAnnuler,       kBoutonAppliquer,
    kBoutonFermer,  kBoutonSauvegarder,   kBoutonSauvegarderTout,
    kBoutonAide,    kBoutonOui,           kBoutonOuiTout,
    kBoutonNon,     kBoutonNonTout,       kBoutonReessayer,
    kBoutonIgnorer, kBoutonContinuer,     kBoutonEssayer,
    kBoutonMaison1, kBoutonMaisonElevee1, kBoutonMaison2,
    kBoutonMaison3, kBoutonMaison4,       kBoutonMaison5,
};
constexpr qsizetype kNombreBoutons = std::size(kTousBoutons);

int TousLesBoutons()
{
    quint32 masque = 0;
    for (quint32 const bouton : kTousBoutons)
        masque |= bouton;
    return static_cast<int>(masque);
}

Appel AppelComplet(quint32 echap = kBoutonAucun)
{
    Appel appel{DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("Message"))};
    appel.boutons = TousLesBoutons();
    appel.defaut = kBoutonAucun;
    appel.echap = static_cast<eBoutons>(echap);
    appel.labels = {u"un"_s, u"deux"_s, u"trois"_s, u"quatre"_s, u"cinq"_s};
    appel.guid = u"guid"_s;
    return appel;
}

// Asks and answers with the button of that rank; what the call returned.
quint32 Repond(Appel const & appel, qsizetype rang, bool coche)
{
    Repondant const utilisateur([rang, coche](DMessageBox & boite) {
        if (coche)
            Coche(boite);
        Clique(BoutonsDansLOrdre(boite).value(rang));
    });
    return PreteForme(u"DAlerteRappel"_s).lance(appel);
}

bool EstRefusee(quint32 reponse, quint32 echap)
{
    quint32 const quitte = kBoutonAnnuler | kBoutonFermer | kBoutonAide;
    return (reponse & (quitte | (echap == kBoutonOk ? quint32(kBoutonAnnuler) : echap))) != 0;
}

} // namespace

class tst_DDialogueAbs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void reponseRetenue_data();
    void reponseRetenue();
    void reponseNonCochee();
    void okSeulRetenu();
    void sansCaseRienNEstEcrit();
    void sansGuid();

    void texteDuJournal_data();
    void texteDuJournal();
    void tabulations();
    void journalEteint();

    void reponseRetenueQuelconque_data();
    void reponseRetenueQuelconque();
    void reponseRetenueAvantLeSilence();
    void stockeurParDefautRepond();
    void silenceSansDefaut_data();
    void silenceSansDefaut();
    void modeNonSilencieux();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DDialogueAbs::init()
{
    monBanc = std::make_unique<Banc>();
    monBanc->bureau->peutExecuterElevay = true;
}

void tst_DDialogueAbs::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

void tst_DDialogueAbs::reponseRetenue_data()
{
    QTest::addColumn<quint32>("echap");
    QTest::newRow("no escape button") << quint32(kBoutonAucun);
    QTest::newRow("escape button that the box lacks") << quint32(kBoutonLien);
    for (quint32 const echap : kTousBoutons)
        QTest::addRow("escape button 0x%x", echap) << echap;
}

// Each button as the answer: what the file then holds.
void tst_DDialogueAbs::reponseRetenue()
{
    QFETCH(quint32, echap);
    for (qsizetype rang = 0; rang < kNombreBoutons; ++rang) {
        quint32 const reponse = kTousBoutons[rang];
        QCOMPARE(Repond(AppelComplet(echap), rang, true), reponse);
        QStringList attendu;
        if (!EstRefusee(reponse, echap == kBoutonLien ? quint32(kBoutonAucun) : echap))
            attendu << u"guid=%1"_s.arg(static_cast<qint32>(reponse));
        QCOMPARE(monBanc->DonneReponses(), attendu);
        DAlerteOublieToutesLesReponses(StockeurNePlusMAviser);
        StockageReponse::LibereSingletons(); // the file is written now
    }
}

void tst_DDialogueAbs::reponseNonCochee()
{
    for (qsizetype rang = 0; rang < kNombreBoutons; ++rang)
        QCOMPARE(Repond(AppelComplet(), rang, false), kTousBoutons[rang]);
    QCOMPARE(monBanc->DonneReponses(), QStringList());
}

// OK as the escape button does not mean leaving.
void tst_DDialogueAbs::okSeulRetenu()
{
    Appel appel = AppelComplet(kBoutonOk);
    appel.boutons = kBoutonOk;
    QCOMPARE(Repond(appel, 0, true), quint32(kBoutonOk));
    QCOMPARE(monBanc->DonneReponses(), QStringList{u"guid=1"_s});
}

void tst_DDialogueAbs::sansCaseRienNEstEcrit()
{
    Appel appel = AppelComplet();
    appel.type = StockeurParDefaut;
    bool aCase = true;
    Repondant const utilisateur([&aCase](DMessageBox & boite) {
        aCase = Case(boite) || qobject_cast<DMessageBoxAvecCaseACocher *>(&boite);
        Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(PreteForme(u"DAlerteRappel"_s).lance(appel), kBoutonOui);
    QVERIFY(!aCase);
    QCOMPARE(monBanc->DonneReponses(StockeurParDefaut), QStringList());
    QCOMPARE(monBanc->DonneReponses(), QStringList());
}

// Nothing can be remembered for an alert without a name; it is asked each time.
void tst_DDialogueAbs::sansGuid()
{
    Appel appel = AppelComplet();
    appel.guid = UniChaine();
    for (int fois = 0; fois < 2; ++fois)
        QCOMPARE(Repond(appel, 7, true), quint32(kBoutonOui));
}

void tst_DDialogueAbs::texteDuJournal_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<QString>("nom");
    QHash<quint32, QString> const noms{{kBoutonOk, u"OK"_s},
                                       {kBoutonOui, u"Oui"_s},
                                       {kBoutonNon, u"Non"_s},
                                       {kBoutonAnnuler, u"Annuler"_s},
                                       {kBoutonReessayer, u"Réessayer"_s}};
    for (qsizetype rang = 0; rang < kNombreBoutons; ++rang) {
        quint32 const bouton = kTousBoutons[rang];
        QTest::addRow("answer 0x%x", bouton)
            << int(rang) << noms.value(bouton, QString::number(bouton));
    }
}

void tst_DDialogueAbs::texteDuJournal()
{
    QFETCH(int, rang);
    QFETCH(QString, nom);
    Repond(AppelComplet(), rang, false);
    QCOMPARE(monBanc->journal.DonneLignes(),
             QStringList{u"Dialogue modal.Réponse=%1\tMessage\tGUID: guid\t"_s.arg(nom)});
}

void tst_DDialogueAbs::tabulations()
{
    ExecutionSilencieuse::Demarre();
    Appel appel{DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("a\nb\r\nc\rd"), UniChaine("note"),
                            UniChaine("titre"))};
    appel.guid = u"g\nh"_s;
    PreteForme(u"DAlerteRappel"_s).lance(appel);
    QString const texte = u"Réponse=OK\ta\tb\t\tc\td\tGUID: g\th\t"_s;
    QCOMPARE(monBanc->journal.DonneLignes(), QStringList{u"Dialogue silencieux."_s + texte});
    QCOMPARE(ExecutionSilencieuse::DonneDialoguesJournalises(), QList<UniChaine>{texte});
}

void tst_DDialogueAbs::journalEteint()
{
    ExecutionSilencieuse::Demarre();
    monBanc->journal.estActif = false;
    for (Forme const & forme : kFormes)
        if (forme.destination != eDestination::kReceveur)
            forme.lance(AppelComplet());
    QCOMPARE(monBanc->journal.DonneLignes(), QStringList());
    MetsBoiteNoire(nullptr);
    QCOMPARE(PreteForme(u"DAlerte"_s).lance(AppelComplet()), kBoutonOk);
}

void tst_DDialogueAbs::reponseRetenueQuelconque_data()
{
    QTest::addColumn<quint32>("valeur");
    QTest::addColumn<QString>("nom");
    QTest::newRow("a button that the box has") << quint32(kBoutonOui) << u"Oui"_s;
    QTest::newRow("a button that the box lacks") << quint32(kBoutonReessayer) << u"Réessayer"_s;
    QTest::newRow("an answer that is never stored") << quint32(kBoutonAnnuler) << u"Annuler"_s;
    QTest::newRow("a link") << quint32(kBoutonLien | 5) << u"4194309"_s;
    QTest::newRow("several buttons") << quint32(3) << u"3"_s;
    QTest::newRow("a bit that no button has") << quint32(8192) << u"8192"_s;
    QTest::newRow("the highest bit") << quint32(kBoutonMaisonElevee1) << u"2147483648"_s;
    QTest::newRow("all bits") << quint32(0xFFFFFFFF) << u"4294967295"_s;
}

// Nothing filters what the file holds.
void tst_DDialogueAbs::reponseRetenueQuelconque()
{
    QFETCH(quint32, valeur);
    QFETCH(QString, nom);
    monBanc->Retiens(u"guid"_s, valeur);
    Appel appel = AppelComplet();
    appel.boutons = kBoutonOui | kBoutonAnnuler;
    QCOMPARE(PreteForme(u"DAlerteRappel"_s).lance(appel), static_cast<eBoutons>(valeur));
    QVERIFY(DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"guid"_s));

    ReceveurSimulay receveur;
    appel.receveur = &receveur;
    PreteForme(u"DAlerteRappel, receiver"_s).lance(appel);
    QCOMPARE(receveur.reponses, QList<int>());
    QTRY_COMPARE(receveur.reponses, QList<int>{static_cast<int>(valeur)});

    QString const texte =
        u"Réponse=%1\tMessage\tTypeDeStockeur: StockeurNePlusMAviser\tGUID: guid\t"_s.arg(nom);
    QCOMPARE(monBanc->journal.DonneLignes(),
             (QStringList{u"Dialogue déjà répondu."_s + texte,
                          u"Dialogue asynchrone déjà répondu."_s + texte}));
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    QCOMPARE(monBanc->DonneReponses().size(), 1);
}

void tst_DDialogueAbs::reponseRetenueAvantLeSilence()
{
    ExecutionSilencieuse::Demarre();
    monBanc->Retiens(u"guid"_s, kBoutonNon);
    Appel appel = AppelComplet();
    appel.defaut = kBoutonOui;
    QCOMPARE(PreteForme(u"DAlerteRappel"_s).lance(appel), kBoutonNon);
    QVERIFY(monBanc->journal.DonneLignes().value(0).startsWith(u"Dialogue déjà répondu."_s));
}

// Without a check box of its own, this store still answers from its file.
void tst_DDialogueAbs::stockeurParDefautRepond()
{
    monBanc->Retiens(u"guid"_s, kBoutonNon, StockeurParDefaut);
    Appel appel = AppelComplet();
    appel.type = StockeurParDefaut;
    QCOMPARE(PreteForme(u"DAlerteRappel"_s).lance(appel), kBoutonNon);
    QCOMPARE(monBanc->journal.DonneLignes(),
             QStringList{u"Dialogue déjà répondu.Réponse=Non\tMessage\t"
                         "TypeDeStockeur: StockeurParDefaut\tGUID: guid\t"_s});
}

void tst_DDialogueAbs::silenceSansDefaut_data()
{
    QTest::addColumn<quint32>("defaut");
    QTest::addColumn<QString>("label");
    QTest::newRow("no default button") << quint32(kBoutonAucun) << u"un"_s;
    QTest::newRow("default button that is not in the mask") << quint32(kBoutonNon) << u"un"_s;
    QTest::newRow("default button without a label") << quint32(kBoutonMaison1) << QString();
}

void tst_DDialogueAbs::silenceSansDefaut()
{
    QFETCH(quint32, defaut);
    QFETCH(QString, label);
    ExecutionSilencieuse::Demarre();
    ReceveurSimulay receveur;
    Appel appel{DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("Message"))};
    appel.boutons = kBoutonOui | kBoutonAnnuler | kBoutonMaison1;
    appel.defaut = static_cast<eBoutons>(defaut);
    appel.echap = kBoutonAnnuler;
    appel.labels[0] = label;
    appel.receveur = &receveur;
    QCOMPARE(PreteForme(u"DAlerte, buttons"_s).lance(appel), kBoutonAucun);
    PreteForme(u"DAlerte, receiver, buttons"_s).lance(appel);
    QTRY_COMPARE(receveur.reponses, QList<int>{kBoutonAucun});
    QCOMPARE(monBanc->journal.DonneLignes(),
             (QStringList{u"Dialogue silencieux.Réponse=0\tMessage\tGUID: \t"_s,
                          u"Dialogue asynchrone silencieux.Réponse=0\tMessage\tGUID: \t"_s}));
}

// The object is there, but the mode is off: the user is asked.
void tst_DDialogueAbs::modeNonSilencieux()
{
    ExecutionSilencieuse::Demarre(false);
    QCOMPARE(Repond(AppelComplet(), 7, false), quint32(kBoutonOui));
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
}

QTEST_MAIN(tst_DDialogueAbs)
#include "tst_DDialogueAbs.moc"
