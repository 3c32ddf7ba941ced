// tests/noyau/tst_FileOperations.cpp
#include "noyau/FileOperations.h"

#include "noyau/RoutinesFichier.h"
#include "noyau/RoutinesTexte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

using sdd::FileOperations;

class tst_FileOperations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unSeulObjet();
    void ecrisTexte_data();
    void ecrisTexte();
    void ecrisRemplace();
    void ajouteTexte();
    void supprime();
    void dossierALaPlaceDuFichier();
    void dossierAbsent();
    void dossierEnLectureSeule();
    void disquePlein();
    void filsSimultanes();

private:
    UniChemin Chemin(QString const & nom = u"trace.txt"_s) const
    {
        return UniChemin(monDossier->filePath(nom));
    }

    std::unique_ptr<QTemporaryDir> monDossier;
    FileOperations & mesOperations = FileOperations::Principale();
};

void tst_FileOperations::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
}

void tst_FileOperations::cleanup()
{
    QFile::setPermissions(monDossier->path(),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    monDossier.reset();
}

void tst_FileOperations::unSeulObjet()
{
    QCOMPARE(&FileOperations::Principale(), &FileOperations::Principale());
}

void tst_FileOperations::ecrisTexte_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("accents are UTF-8, without a mark") << u"été"_s << "\xC3\xA9t\xC3\xA9"_ba;
    QTest::newRow("line feeds stay") << u"a\nb\n"_s << "a\nb\n"_ba;
    QTest::newRow("NUL") << QString(u"a"_s + QChar(0) + u'b') << QByteArray("a\0b", 3);
    QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << "\xEF\xBF\xBD"_ba;
}

void tst_FileOperations::ecrisTexte()
{
    QFETCH(QString, texte);
    QVERIFY(mesOperations.EcrisTexte(Chemin(u"été.txt"_s), UniChaine(texte)));
    QFile fichier(Chemin(u"été.txt"_s));
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QTEST(fichier.readAll(), "octets");
}

void tst_FileOperations::ecrisRemplace()
{
    QVERIFY(mesOperations.EcrisTexte(Chemin(), UniChaine("un texte plus long")));
    QVERIFY(mesOperations.EcrisTexte(Chemin(), UniChaine("court")));
    QCOMPARE(RoutinesGeneralesQt::ContenuFichier(Chemin()), u"court"_s);
    // Nothing of the way there is left beside the file.
    QCOMPARE(RoutinesRepertoire::ListeTousLesFichiers(UniChaine(monDossier->path())).size(), 1);
}

void tst_FileOperations::ajouteTexte()
{
    QVERIFY(mesOperations.AjouteTexte(Chemin(), UniChaine("un\n")));
    QVERIFY(mesOperations.AjouteTexte(Chemin(), UniChaine("été\n")));
    QVERIFY(mesOperations.AjouteTexte(Chemin(), kUniChaineNulle));
    QCOMPARE(RoutinesGeneralesQt::ContenuFichier(Chemin()), u"un\nété\n"_s);
}

void tst_FileOperations::supprime()
{
    QVERIFY(mesOperations.EcrisTexte(Chemin(), UniChaine("a")));
    QVERIFY(mesOperations.Supprime(Chemin()));
    QVERIFY(!RoutinesFichier::FichierExiste(Chemin()));
    QVERIFY(!mesOperations.Supprime(Chemin()));
    QVERIFY(!mesOperations.Supprime(UniChemin()));
}

void tst_FileOperations::dossierALaPlaceDuFichier()
{
    QVERIFY(QDir(monDossier->path()).mkdir(u"dossier"_s));
    UniChemin const dossier = Chemin(u"dossier"_s);
    QVERIFY(!mesOperations.EcrisTexte(dossier, UniChaine("a")));
    QVERIFY(!mesOperations.AjouteTexte(dossier, UniChaine("a")));
    QVERIFY(!mesOperations.Supprime(dossier));
    QVERIFY(QFileInfo(dossier).isDir());
}

void tst_FileOperations::dossierAbsent()
{
    UniChemin const chemin = Chemin(u"absent/trace.txt"_s);
    QVERIFY(!mesOperations.EcrisTexte(chemin, UniChaine("a")));
    QVERIFY(!mesOperations.AjouteTexte(chemin, UniChaine("a")));
    QVERIFY(!mesOperations.EcrisTexte(UniChemin(), UniChaine("a")));
    QVERIFY(!mesOperations.AjouteTexte(UniChemin(), UniChaine("a")));
}

void tst_FileOperations::dossierEnLectureSeule()
{
    QVERIFY(mesOperations.EcrisTexte(Chemin(), UniChaine("ancien")));
    QVERIFY(QFile::setPermissions(Chemin(), QFile::ReadOwner));
    QVERIFY(QFile::setPermissions(monDossier->path(), QFile::ReadOwner | QFile::ExeOwner));
    if (QFile(monDossier->filePath(u"essai"_s)).open(QIODevice::WriteOnly))
        QSKIP("permissions do not stop this user");
    QVERIFY(!mesOperations.EcrisTexte(Chemin(), UniChaine("nouveau")));
    QVERIFY(!mesOperations.EcrisTexte(Chemin(u"autre"_s), UniChaine("nouveau")));
    QVERIFY(!mesOperations.AjouteTexte(Chemin(), UniChaine("nouveau")));
    QVERIFY(!mesOperations.Supprime(Chemin()));
    QCOMPARE(RoutinesGeneralesQt::ContenuFichier(Chemin()), u"ancien"_s);
}

void tst_FileOperations::disquePlein()
{
    UniChemin const plein("/dev/full"); // refuses every byte
    if (!QFile::exists(plein))
        QSKIP("no device that is always full");
    QVERIFY(!mesOperations.AjouteTexte(plein, UniChaine("a")));
    QVERIFY(!mesOperations.AjouteTexte(plein, UniChaine(QString(1'000'000, u'x'))));
}

void tst_FileOperations::filsSimultanes()
{
    constexpr int kFils = 4;
    constexpr int kLignes = 100;
    std::vector<std::thread> fils;
    for (int i = 0; i < kFils; ++i) {
        fils.emplace_back([this, i] {
            for (int j = 0; j < kLignes; ++j)
                mesOperations.AjouteTexte(Chemin(), UniChaine::DepuisNombre(i) + u"\n"_s);
        });
    }
    for (std::thread & filFini : fils)
        filFini.join();
    QString const contenu = RoutinesGeneralesQt::ContenuFichier(Chemin());
    QCOMPARE(contenu.count(u'\n'), kFils * kLignes);
    for (int i = 0; i < kFils; ++i)
        QCOMPARE(contenu.count(QString::number(i) + u'\n'), kLignes);
}

QTEST_GUILESS_MAIN(tst_FileOperations)
#include "tst_FileOperations.moc"
