// tests/noyau/tst_CredentialManager.cpp
#include "noyau/CredentialManager.h"

#include "noyau/JournalSimulay.h"
#include "outils/BureauSimulay.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

using RoutinesGeneralesWin::DonneInfosCredentialManager;
using RoutinesGeneralesWin::EnregistreInfosCredentialManager;
using RoutinesGeneralesWin::IdentifiantsCredentialManager;

namespace {

UniChaine const kCle("exemple/mandataire");

} // namespace

class tst_CredentialManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void allerRetour_data();
    void allerRetour();
    void clesSeparees();
    void remplace();
    void entreeAbsente();
    void magasinAbsent();
    void entreeIllisible_data();
    void entreeIllisible();
    void journalTaitLesSecrets();

private:
    BureauSimulay * monBureau = nullptr; // owned by the platform layer
    std::unique_ptr<JournalSimulay> monJournal;
};

void tst_CredentialManager::init()
{
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    PlateformeBureau::Installe(std::move(bureau));
    monJournal = std::make_unique<JournalSimulay>();
}

void tst_CredentialManager::cleanup()
{
    monJournal.reset();
    PlateformeBureau::Installe(nullptr);
}

void tst_CredentialManager::allerRetour_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("motDePasse");
    QTest::addColumn<int>("type");
    QTest::newRow("plain") << u"anne"_s << u"secret"_s << 1;
    QTest::newRow("accents") << u"Zoé"_s << u"clé d’été"_s << 3;
    QTest::newRow("quotes, NUL and line feed")
        << u"a\"b\\c"_s << QString(u"\n\t"_s + QChar(0) + u"fin"_s) << 0;
    QTest::newRow("above U+FFFF") << u"\U0001F600"_s << u"\U0001F511"_s << -1;
    QTest::newRow("all empty") << QString() << QString() << 0;
    QTest::newRow("smallest type") << u"a"_s << u"b"_s << std::numeric_limits<int>::min();
}

void tst_CredentialManager::allerRetour()
{
    QFETCH(QString, nom);
    QFETCH(QString, motDePasse);
    QFETCH(int, type);
    QVERIFY(EnregistreInfosCredentialManager({UniChaine(nom), UniChaine(motDePasse), type}, kCle));
    IdentifiantsCredentialManager const lus = DonneInfosCredentialManager(kCle);
    QCOMPARE(QString(lus.nomUtilisateur), nom);
    QCOMPARE(QString(lus.motDePasse), motDePasse);
    QCOMPARE(lus.typeProxy, type);
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_CredentialManager::clesSeparees()
{
    QVERIFY(EnregistreInfosCredentialManager({UniChaine("a"), UniChaine("1"), 0}, UniChaine("A")));
    QVERIFY(EnregistreInfosCredentialManager({UniChaine("b"), UniChaine("2"), 0}, UniChaine("B")));
    QCOMPARE(monBureau->secrets.size(), 2);
    QCOMPARE(QString(DonneInfosCredentialManager(UniChaine("A")).nomUtilisateur), u"a"_s);
    QCOMPARE(QString(DonneInfosCredentialManager(UniChaine("B")).motDePasse), u"2"_s);
}

void tst_CredentialManager::remplace()
{
    QVERIFY(EnregistreInfosCredentialManager({UniChaine("a"), UniChaine("1"), 1}, kCle));
    QVERIFY(EnregistreInfosCredentialManager({UniChaine("b"), UniChaine("2"), 2}, kCle));
    QCOMPARE(monBureau->secrets.size(), 1);
    QCOMPARE(QString(DonneInfosCredentialManager(kCle).nomUtilisateur), u"b"_s);
}

void tst_CredentialManager::entreeAbsente()
{
    IdentifiantsCredentialManager const lus = DonneInfosCredentialManager(kCle);
    QVERIFY(lus.nomUtilisateur.EstVide());
    QVERIFY(lus.motDePasse.EstVide());
    QCOMPARE(lus.typeProxy, 0);
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_CredentialManager::magasinAbsent()
{
    monBureau->magasinPresent = false;
    QVERIFY(!EnregistreInfosCredentialManager({UniChaine("a"), UniChaine("1"), 1}, kCle));
    QCOMPARE(monJournal->DonneLignes().size(), 1);
    QVERIFY(DonneInfosCredentialManager(kCle).nomUtilisateur.EstVide());
    QCOMPARE(monJournal->DonneLignes().size(), 2);
    QVERIFY(monJournal->DonneLignes().last().contains(QString(kCle)));
}

void tst_CredentialManager::entreeIllisible_data()
{
    QTest::addColumn<QByteArray>("secret");
    QTest::newRow("no notation of ours") << "anne:secret"_ba;
    QTest::newRow("cut") << "{\"nomUtilisateur\":\"an"_ba;
    QTest::newRow("list") << "[1, 2]"_ba;
    QTest::newRow("wrong types")
        << "{\"nomUtilisateur\":3,\"motDePasse\":[],\"typeProxy\":\"x\"}"_ba;
    QTest::newRow("bytes") << QByteArray("\xFF\x00\xFE", 3);
}

void tst_CredentialManager::entreeIllisible()
{
    QFETCH(QByteArray, secret);
    monBureau->secrets.insert(kCle, secret);
    IdentifiantsCredentialManager const lus = DonneInfosCredentialManager(kCle);
    QVERIFY(lus.nomUtilisateur.EstVide());
    QVERIFY(lus.motDePasse.EstVide());
    QCOMPARE(lus.typeProxy, 0);
}

void tst_CredentialManager::journalTaitLesSecrets()
{
    monBureau->magasinPresent = false;
    QVERIFY(!EnregistreInfosCredentialManager({UniChaine("anne"), UniChaine("s3cret"), 1}, kCle));
    QString const lignes = monJournal->DonneLignes().join(u'\n');
    QVERIFY(!lignes.isEmpty());
    QVERIFY(!lignes.contains(u"s3cret"));
    QVERIFY(!lignes.contains(u"anne"));
}

QTEST_GUILESS_MAIN(tst_CredentialManager)
#include "tst_CredentialManager.moc"
