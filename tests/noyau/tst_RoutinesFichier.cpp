// tests/noyau/tst_RoutinesFichier.cpp
#include "noyau/RoutinesFichier.h"

#include "outils/BureauSimulay.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_RoutinesFichier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void fichierExiste();
    void listeTousLesFichiers_data();
    void listeTousLesFichiers();
    void listeCheminsComplets();
    void listeSansTri();
    void listeDUnRepertoireAbsent();
    void ouvrirExplorateur();

private:
    bool Cree(QString const & nom) const;
    QStringList Liste(bool sousRepertoires, bool caches, UniChaine const & filtre) const;

    std::unique_ptr<QTemporaryDir> monDossier;
};

void tst_RoutinesFichier::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
    QVERIFY(QDir(monDossier->path()).mkpath(u"sous/encore"_s));
    for (QString const & nom : {u"b.exe"_s, u"a.txt"_s, u"Été.exe"_s, u".cache"_s, u"sous/c.exe"_s,
                                u"sous/encore/d.txt"_s})
        QVERIFY(Cree(nom));
}

void tst_RoutinesFichier::cleanup()
{
    PlateformeBureau::Installe(nullptr);
    monDossier.reset();
}

bool tst_RoutinesFichier::Cree(QString const & nom) const
{
    QFile fichier(monDossier->filePath(nom));
    return fichier.open(QIODevice::WriteOnly);
}

QStringList tst_RoutinesFichier::Liste(bool sousRepertoires, bool caches,
                                       UniChaine const & filtre) const
{
    QStringList noms;
    for (UniChaine const & nom : RoutinesRepertoire::ListeTousLesFichiers(
             UniChaine(monDossier->path()), sousRepertoires, false, caches, filtre))
        noms.append(nom);
    return noms;
}

void tst_RoutinesFichier::fichierExiste()
{
    using RoutinesFichier::FichierExiste;
    QVERIFY(FichierExiste(UniChaine(monDossier->filePath(u"a.txt"_s))));
    QVERIFY(!FichierExiste(UniChaine(monDossier->path())));
    if (QFile::exists(u"/dev/null"_s))
        QVERIFY(FichierExiste("/dev/null"));
    QVERIFY(FichierExiste(UniChemin(monDossier->filePath(u"Été.exe"_s))));
    QVERIFY(FichierExiste(UniChaine(":/fichiers/NoyauFr.mo")));
    QVERIFY(!FichierExiste(UniChaine(monDossier->filePath(u"absent"_s))));
    QVERIFY(!FichierExiste(UniChaine(monDossier->path())));
    QVERIFY(!FichierExiste(UniChaine(":/fichiers/Absent.mo")));
    QVERIFY(!FichierExiste(kUniChaineNulle));
    QVERIFY(!FichierExiste(UniChaine(QString(5000, u'x'))));
}

void tst_RoutinesFichier::listeTousLesFichiers_data()
{
    QTest::addColumn<bool>("sousRepertoires");
    QTest::addColumn<bool>("caches");
    QTest::addColumn<QString>("filtre");
    QTest::addColumn<QStringList>("attendu");
    QTest::newRow("files only, ordered by name")
        << false << false << QString() << QStringList{u"a.txt"_s, u"b.exe"_s, u"Été.exe"_s};
    QTest::newRow("hidden files") << false << true << QString()
                                  << QStringList{u".cache"_s, u"a.txt"_s, u"b.exe"_s, u"Été.exe"_s};
    QTest::newRow("wildcard") << false << false << u"*.exe"_s
                              << QStringList{u"b.exe"_s, u"Été.exe"_s};
    QTest::newRow("wildcard without a match") << false << false << u"*.lnk"_s << QStringList();
    QTest::newRow("directories below") << true << false << QString()
                                       << QStringList{u"a.txt"_s, u"b.exe"_s, u"sous/c.exe"_s,
                                                      u"sous/encore/d.txt"_s, u"Été.exe"_s};
    QTest::newRow("directories below, wildcard")
        << true << false << u"*.txt"_s << QStringList{u"a.txt"_s, u"sous/encore/d.txt"_s};
}

void tst_RoutinesFichier::listeTousLesFichiers()
{
    QFETCH(bool, sousRepertoires);
    QFETCH(bool, caches);
    QFETCH(QString, filtre);
    QTEST(Liste(sousRepertoires, caches, UniChaine(filtre)), "attendu");
}

void tst_RoutinesFichier::listeCheminsComplets()
{
    QList<UniChaine> const chemins = RoutinesRepertoire::ListeTousLesFichiers(
        UniChaine(monDossier->path()), true, true, false, UniChaine("*.txt"));
    QCOMPARE(chemins.size(), 2);
    QCOMPARE(QString(chemins[0]), monDossier->filePath(u"a.txt"_s));
    QVERIFY(RoutinesFichier::FichierExiste(chemins[1]));
}

void tst_RoutinesFichier::listeSansTri()
{
    QList<UniChaine> noms = RoutinesRepertoire::ListeTousLesFichiers(
        UniChaine(monDossier->path()), false, false, false, kUniChaineNulle, false);
    std::sort(noms.begin(), noms.end());
    QCOMPARE(noms.size(), 3);
    QCOMPARE(QString(noms[0]), u"a.txt"_s);
}

void tst_RoutinesFichier::listeDUnRepertoireAbsent()
{
    using RoutinesRepertoire::ListeTousLesFichiers;
    QVERIFY(ListeTousLesFichiers(UniChaine(monDossier->filePath(u"absent"_s))).isEmpty());
    QVERIFY(ListeTousLesFichiers(UniChaine(monDossier->filePath(u"a.txt"_s))).isEmpty());
    QVERIFY(ListeTousLesFichiers(kUniChaineNulle).isEmpty());
}

void tst_RoutinesFichier::ouvrirExplorateur()
{
    auto possede = std::make_unique<BureauSimulay>();
    BureauSimulay & bureau = *possede;
    PlateformeBureau::Installe(std::move(possede));
    QVERIFY(RoutinesRepertoire::OuvrirExplorateur(UniChemin("/été")));
    bureau.ouvertureReussit = false;
    QVERIFY(!RoutinesRepertoire::OuvrirExplorateur(UniChemin("/absent")));
    QCOMPARE(bureau.dossiersOuverts, QStringList({u"/été"_s, u"/absent"_s}));
}

QTEST_GUILESS_MAIN(tst_RoutinesFichier)
#include "tst_RoutinesFichier.moc"
