// tests/dialogs/tst_StockageReponse.cpp
#include "dialogs/StockageReponse.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using DDialogue::StockeurNePlusMAviser;
using DDialogue::StockeurParDefaut;

class tst_StockageReponse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void caseSelonLeType();
    void instanceUniqueRedirigee();
    void reponseEcriteEtRelue();
    void formatDuFichier();
    void guidVideNeLitRien();
    void oublieUnGuid();
    void oublieToutUnType();
    void oublieCeQuUnAutreAEcrit();
    void valeurDuFichierNEstPasFiltree();
    void copieIndependante();
    void affectationPartageLesReglages();
    void libereSingletonsGardeLesFichiers();
    void typeJamaisInitialisay();
    void journal();
    void fichierIllisible_data();
    void fichierIllisible();

private:
    QString Fichier() const { return monDossier->filePath(u"reponses.ini"_s); }

    std::unique_ptr<QTemporaryDir> monDossier;
};

void tst_StockageReponse::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    StockageReponse::Initialise(StockeurNePlusMAviser, UniChaine(Fichier()), QSettings::IniFormat);
    StockageReponse::Initialise(StockeurParDefaut, UniChaine(monDossier->filePath(u"defaut.ini"_s)),
                                QSettings::IniFormat);
}

void tst_StockageReponse::cleanup()
{
    StockageReponse::LibereSingletons();
    StockageReponse::assocTypQSettings.clear();
}

void tst_StockageReponse::caseSelonLeType()
{
    QVERIFY(StockageReponse::Instance(StockeurNePlusMAviser, {})->JAfficheCaseACocher());
    QVERIFY(!StockageReponse::Instance(StockeurParDefaut, {})->JAfficheCaseACocher());
}

void tst_StockageReponse::instanceUniqueRedirigee()
{
    StockageReponse * const un = StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"));
    un->ActualiseReponse(DDialogue::kBoutonOui);
    StockageReponse * const deux =
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("deux"));
    QCOMPARE(un, deux);
    QCOMPARE(un->DonneReponseEnregistree(), DDialogue::kBoutonAucun);
}

void tst_StockageReponse::reponseEcriteEtRelue()
{
    StockageReponse * const store =
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("{a-b}"));
    QVERIFY(!store->UtilisateurADejaRepondu());
    store->ActualiseReponse(DDialogue::kBoutonNon);
    QVERIFY(store->UtilisateurADejaRepondu());
    StockageReponse::LibereSingletons();
    QCOMPARE(StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("{a-b}"))
                 ->DonneReponseEnregistree(),
             DDialogue::kBoutonNon);
}

void tst_StockageReponse::formatDuFichier()
{
    StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("guid1"))
        ->ActualiseReponse(DDialogue::kBoutonMaison2);
    StockageReponse::LibereSingletons();
    QFile fichier(Fichier());
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QCOMPARE(fichier.readAll().trimmed(), QByteArray("[messageMemoire]\nguid1=262144"));
}

void tst_StockageReponse::guidVideNeLitRien()
{
    QSettings(Fichier(), QSettings::IniFormat).setValue(u"messageMemoire/guid"_s, 1);
    QCOMPARE(StockageReponse::Instance(StockeurNePlusMAviser, {})->DonneReponseEnregistree(),
             DDialogue::kBoutonAucun);
}

void tst_StockageReponse::oublieUnGuid()
{
    for (char const * const guid : {"un", "deux"})
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine(guid))->ActualiseReponse(1);
    StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"))->ReinitialiseSelonGuid();
    QVERIFY(!StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"))
                 ->UtilisateurADejaRepondu());
    QVERIFY(StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("deux"))
                ->UtilisateurADejaRepondu());
}

void tst_StockageReponse::oublieToutUnType()
{
    for (char const * const guid : {"un", "deux"}) {
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine(guid))->ActualiseReponse(1);
        StockageReponse::Instance(StockeurParDefaut, UniChaine(guid))->ActualiseReponse(1);
    }
    StockageReponse::ReinitialiseToutLeStockeur(StockeurNePlusMAviser);
    for (char const * const guid : {"un", "deux"}) {
        QVERIFY(!StockageReponse::Instance(StockeurNePlusMAviser, UniChaine(guid))
                     ->UtilisateurADejaRepondu());
        QVERIFY(StockageReponse::Instance(StockeurParDefaut, UniChaine(guid))
                    ->UtilisateurADejaRepondu());
    }
}

void tst_StockageReponse::oublieCeQuUnAutreAEcrit()
{
    StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"))->ActualiseReponse(1);
    StockageReponse::LibereSingletons();
    QVERIFY(StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"))
                ->UtilisateurADejaRepondu()); // the file is open from here on
    QFile fichier(Fichier());
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write("[messageMemoire]\nun=128\ndeux=512\ntrois=1\n");
    fichier.close();
    StockageReponse::ReinitialiseToutLeStockeur(StockeurNePlusMAviser);
    StockageReponse::LibereSingletons();
    for (char const * const guid : {"un", "deux", "trois"})
        QVERIFY(!StockageReponse::Instance(StockeurNePlusMAviser, UniChaine(guid))
                     ->UtilisateurADejaRepondu());
}

void tst_StockageReponse::valeurDuFichierNEstPasFiltree()
{
    QSettings(Fichier(), QSettings::IniFormat).setValue(u"messageMemoire/guid"_s, 4194304 | 7);
    QCOMPARE(int(StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("guid"))
                     ->DonneReponseEnregistree()),
             4194304 | 7);
}

void tst_StockageReponse::copieIndependante()
{
    StockageReponse * const store =
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"));
    StockageReponse copie(*store);
    StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("deux"));
    StockageReponse::LibereSingletons();
    copie.ActualiseReponse(DDialogue::kBoutonOk);
    QVERIFY(copie.JAfficheCaseACocher());
    QVERIFY(StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un"))
                ->UtilisateurADejaRepondu());
}

void tst_StockageReponse::affectationPartageLesReglages()
{
    StockageReponse un(*StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("un")));
    StockageReponse deux(*StockageReponse::Instance(StockeurParDefaut, UniChaine("deux")));
    deux = un;
    QVERIFY(deux.JAfficheCaseACocher());
    deux.ActualiseReponse(DDialogue::kBoutonOui); // under the GUID that came along
    QCOMPARE(un.DonneReponseEnregistree(), DDialogue::kBoutonOui);
    StockageReponse const & memeObjet = deux;
    deux = memeObjet;
    QCOMPARE(deux.DonneReponseEnregistree(), DDialogue::kBoutonOui);
}

void tst_StockageReponse::libereSingletonsGardeLesFichiers()
{
    StockageReponse::LibereSingletons();
    StockageReponse::LibereSingletons();
    QCOMPARE(StockageReponse::assocTypQSettings.size(), std::size_t(2));
    QVERIFY(StockageReponse::laListeStockeurDefaut.empty());
}

void tst_StockageReponse::typeJamaisInitialisay()
{
    StockageReponse::assocTypQSettings.clear();
    StockageReponse * const store = StockageReponse::Instance(StockeurParDefaut, UniChaine("guid"));
    QCOMPARE(store->DonneReponseEnregistree(), DDialogue::kBoutonAucun);
    QCOMPARE(StockageReponse::assocTypQSettings.at(StockeurParDefaut).first, kUniChaineNulle);
    QCOMPARE(int(StockageReponse::assocTypQSettings.at(StockeurParDefaut).second), 0);
}

void tst_StockageReponse::journal()
{
    StockageReponse * store = StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("g"));
    QCOMPARE(QString(store->DonneMessagePourJournalisation()), u"GUID: g\t"_s);
    store->ActualiseReponse(DDialogue::kBoutonOk);
    QCOMPARE(QString(store->DonneMessagePourJournalisation()),
             u"TypeDeStockeur: StockeurNePlusMAviser\tGUID: g\t"_s);
    store = StockageReponse::Instance(StockeurParDefaut, UniChaine("g"));
    store->ActualiseReponse(DDialogue::kBoutonOk);
    QCOMPARE(QString(store->DonneMessagePourJournalisation()),
             u"TypeDeStockeur: StockeurParDefaut\tGUID: g\t"_s);
}

void tst_StockageReponse::fichierIllisible_data()
{
    QTest::addColumn<QByteArray>("contenu");
    QTest::newRow("a directory stands in its place") << QByteArray();
    QTest::newRow("rubbish") << QByteArray("\x00\xff[mess\nageMemoire==%%\x01", 20);
}

void tst_StockageReponse::fichierIllisible()
{
    QFETCH(QByteArray, contenu);
    if (contenu.isEmpty()) {
        QVERIFY(QDir().mkpath(Fichier()));
    } else {
        QFile fichier(Fichier());
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    StockageReponse * const store =
        StockageReponse::Instance(StockeurNePlusMAviser, UniChaine("guid"));
    QVERIFY(!store->UtilisateurADejaRepondu());
    store->ActualiseReponse(DDialogue::kBoutonOk);
}

QTEST_GUILESS_MAIN(tst_StockageReponse)
#include "tst_StockageReponse.moc"
