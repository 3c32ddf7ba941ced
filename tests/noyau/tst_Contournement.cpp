// tests/noyau/tst_Contournement.cpp
#include "noyau/Contournement.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

UniChaine const kCle("UtiliserSendMessageTimeout");
UniChaine const kNom("Choix");

enum eLecture
{
    kAbsent,
    kFaux,
    kVrai
};

// What is read, and that the value is left alone when there is none.
eLecture Lis(UniChaine const & cle = kCle, UniChaine const & nom = kNom)
{
    bool valeurDeVrai = true;
    bool valeurDeFaux = false;
    bool const existe = Contournement::LisBool(cle, nom, valeurDeVrai);
    if (existe != Contournement::LisBool(cle, nom, valeurDeFaux))
        qFatal("two readings differ");
    if (existe != (valeurDeVrai == valeurDeFaux))
        qFatal("the value was set without being there, or not set");
    if (!existe)
        return kAbsent;
    return valeurDeVrai ? kVrai : kFaux;
}

} // namespace

class tst_Contournement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void ecritEtLit_data();
    void ecritEtLit();
    void clesEtNomsSepares();
    void fichierGardeLesValeurs();
    void fichierEcritALaMain_data();
    void fichierEcritALaMain();
    void changementDeFichier();
    void cheminInutilisable();
    void clesQuiSeRessemblent_data();
    void clesQuiSeRessemblent();
    void filsSimultanes();

private:
    UniChemin Fichier(char const * nom = "contournements.ini") const;

    std::unique_ptr<QTemporaryDir> monDossier;
};

void tst_Contournement::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
    Contournement::MetsFichier(UniChemin());
}

void tst_Contournement::cleanup()
{
    Contournement::MetsFichier(UniChemin());
    monDossier.reset();
}

UniChemin tst_Contournement::Fichier(char const * nom) const
{
    return UniChemin(monDossier->filePath(QString::fromUtf8(nom)));
}

void tst_Contournement::ecritEtLit_data()
{
    QTest::addColumn<bool>("enFichier");
    QTest::newRow("in memory") << false;
    QTest::newRow("in a file") << true;
}

void tst_Contournement::ecritEtLit()
{
    QFETCH(bool, enFichier);
    if (enFichier)
        Contournement::MetsFichier(Fichier());
    QCOMPARE(Lis(), kAbsent);
    Contournement::EcrisBool(kCle, kNom, true);
    QCOMPARE(Lis(), kVrai);
    Contournement::EcrisBool(kCle, kNom, false);
    QCOMPARE(Lis(), kFaux);
    Contournement::Efface(kCle, kNom);
    QCOMPARE(Lis(), kAbsent);
    Contournement::Efface(kCle, kNom);
    QCOMPARE(Lis(), kAbsent);
}

void tst_Contournement::clesEtNomsSepares()
{
    Contournement::EcrisBool(kCle, kNom, true);
    QCOMPARE(Lis(kCle, UniChaine("Autre")), kAbsent);
    QCOMPARE(Lis(UniChaine("Autre"), kNom), kAbsent);
    QCOMPARE(Lis(kNom, kCle), kAbsent);
    QCOMPARE(Lis(kUniChaineNulle, kUniChaineNulle), kAbsent);
    Contournement::EcrisBool(UniChaine("Été"), UniChaine("Clé"), false);
    QCOMPARE(Lis(UniChaine("Été"), UniChaine("Clé")), kFaux);
    QCOMPARE(Lis(), kVrai);
}

void tst_Contournement::fichierGardeLesValeurs()
{
    Contournement::MetsFichier(Fichier());
    Contournement::EcrisBool(kCle, kNom, true);
    Contournement::EcrisBool(UniChaine("Été"), UniChaine("Clé"), false);
    QVERIFY(QFile::exists(Fichier()));
    Contournement::MetsFichier(UniChemin());
    QCOMPARE(Lis(), kAbsent);
    Contournement::MetsFichier(Fichier());
    QCOMPARE(Lis(), kVrai);
    QCOMPARE(Lis(UniChaine("Été"), UniChaine("Clé")), kFaux);
}

void tst_Contournement::fichierEcritALaMain_data()
{
    QTest::addColumn<QByteArray>("ligne");
    QTest::addColumn<int>("attendu");
    QTest::newRow("true") << "Choix=true"_ba << int(kVrai);
    QTest::newRow("false") << "Choix=false"_ba << int(kFaux);
    QTest::newRow("capitals") << "Choix=TRUE"_ba << int(kVrai);
    QTest::newRow("1") << "Choix=1"_ba << int(kVrai);
    QTest::newRow("0") << "Choix=0"_ba << int(kFaux);
    QTest::newRow("any other word is none") << "Choix=oui"_ba << int(kAbsent);
    QTest::newRow("any other number is none") << "Choix=2"_ba << int(kAbsent);
    QTest::newRow("empty value is none") << "Choix="_ba << int(kAbsent);
    QTest::newRow("list is none") << "Choix=true, false"_ba << int(kAbsent);
    QTest::newRow("another name") << "Autre=true"_ba << int(kAbsent);
    QTest::newRow("broken line") << "]]][[\x01\xFF"_ba << int(kAbsent);
}

void tst_Contournement::fichierEcritALaMain()
{
    QFETCH(QByteArray, ligne);
    QFETCH(int, attendu);
    QFile fichier(Fichier());
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write("[UtiliserSendMessageTimeout]\n" + ligne + '\n');
    fichier.close();
    Contournement::MetsFichier(Fichier());
    QCOMPARE(int(Lis()), attendu);
}

void tst_Contournement::changementDeFichier()
{
    Contournement::EcrisBool(kCle, kNom, true);
    Contournement::MetsFichier(Fichier());
    QCOMPARE(Lis(), kAbsent);
    Contournement::EcrisBool(kCle, kNom, false);
    Contournement::MetsFichier(Fichier("autre.ini"));
    QCOMPARE(Lis(), kAbsent);
    Contournement::MetsFichier(Fichier());
    QCOMPARE(Lis(), kFaux);
}

void tst_Contournement::cheminInutilisable()
{
    Contournement::MetsFichier(UniChemin(monDossier->path()));
    QCOMPARE(Lis(), kAbsent);
    Contournement::EcrisBool(kCle, kNom, true);
    Contournement::Efface(kCle, kNom);
    QCOMPARE(Lis(), kAbsent);
}

void tst_Contournement::clesQuiSeRessemblent_data()
{
    QTest::addColumn<bool>("enFichier");
    QTest::newRow("in memory") << false;
    QTest::newRow("in the file") << true;
}

// Slashes and empty parts are part of a key or a name; they neither join nor widen it.
void tst_Contournement::clesQuiSeRessemblent()
{
    QFETCH(bool, enFichier);
    Contournement::MetsFichier(enFichier ? UniChemin(Fichier()) : UniChemin());
    Contournement::EcrisBool("a/b", "c", true);
    QCOMPARE(Lis("a/b", "c"), kVrai);
    QCOMPARE(Lis("a", "b/c"), kAbsent);
    QCOMPARE(Lis("a%2Fb", "c"), kAbsent);
    Contournement::EcrisBool("", "", false);
    QCOMPARE(Lis("", ""), kFaux);
    Contournement::Efface("", "");
    QCOMPARE(Lis("", ""), kAbsent);
    QCOMPARE(Lis("a/b", "c"), kVrai);
}

void tst_Contournement::filsSimultanes()
{
    constexpr int kFils = 4;
    constexpr int kTours = 50;
    Contournement::MetsFichier(Fichier());
    std::vector<std::thread> fils;
    for (int i = 0; i < kFils; ++i) {
        fils.emplace_back([i] {
            UniChaine const nom = UniChaine::DepuisNombre(i);
            for (int tour = 0; tour < kTours; ++tour) {
                Contournement::EcrisBool(kCle, nom, tour % 2 == 0);
                bool valeur = false;
                Contournement::LisBool(kCle, nom, valeur);
            }
        });
    }
    for (std::thread & filFini : fils)
        filFini.join();
    for (int i = 0; i < kFils; ++i)
        QCOMPARE(Lis(kCle, UniChaine::DepuisNombre(i)), kTours % 2 == 0 ? kFaux : kVrai);
}

QTEST_GUILESS_MAIN(tst_Contournement)
#include "tst_Contournement.moc"
