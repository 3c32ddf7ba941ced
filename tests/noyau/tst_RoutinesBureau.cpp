// tests/noyau/tst_RoutinesBureau.cpp
#include "noyau/RoutinesBureau.h"

#include "noyau/ContexteLocalisation.h"
#include "noyau/DAlerteDeleguay.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/JournalSimulay.h"
#include "outils/BureauSimulay.h"

#include <QtTest>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class DeleguaySimulay : public DAlerteDeleguay
{
public:
    int TraiteDAlerte(DAlerteInfo const & info) override
    {
        mesAlertes.push_back(info);
        return 1;
    }

    std::vector<DAlerteInfo> mesAlertes;
};

} // namespace

class tst_RoutinesBureau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void lanceFureteur();
    void lanceFureteurRefuse_data();
    void lanceFureteurRefuse();
    void lanceUnUrl();
    void lanceUnUrlEchoue_data();
    void lanceUnUrlEchoue();
    void lanceUnUrlSansDeleguay();
    void lanceUnUrlAvecAccolades();
    void windowsEstAuMoins_data();
    void windowsEstAuMoins();
    void questionsAuBureau();
    void tempsMonotone();

private:
    ContexteLocalisation monContexte;
    BureauSimulay * monBureau = nullptr; // owned by the platform layer
    std::unique_ptr<JournalSimulay> monJournal;
};

void tst_RoutinesBureau::initTestCase()
{
    InitLocaleLibNoyau(monContexte);
}

void tst_RoutinesBureau::init()
{
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    PlateformeBureau::Installe(std::move(bureau));
    monJournal = std::make_unique<JournalSimulay>();
}

void tst_RoutinesBureau::cleanup()
{
    DAlerteDeleguay::Installe(nullptr);
    monJournal.reset();
    PlateformeBureau::Installe(nullptr);
}

void tst_RoutinesBureau::lanceFureteur()
{
    using RoutinesGeneralesQt::LanceFureteurExterne;
    DLocale const locale(kLangueFrancais);
    QVERIFY(LanceFureteurExterne(monContexte, locale, u"https://exemple.org/é?a=b"_s));
    QVERIFY(
        LanceFureteurExterne(monContexte, locale, u"https://exemple.org/"_s, u"/bin/fureteur"_s));
    QCOMPARE(monBureau->urlsOuvertes.size(), 2);
    QCOMPARE(monBureau->urlsOuvertes[0].first, QUrl(u"https://exemple.org/é?a=b"_s));
    QCOMPARE(monBureau->urlsOuvertes[0].second, QString());
    QCOMPARE(monBureau->urlsOuvertes[1].second, u"/bin/fureteur"_s);
}

void tst_RoutinesBureau::lanceFureteurRefuse_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<qsizetype>("ouvertures");
    QTest::newRow("the desktop refuses") << u"https://exemple.org/"_s << qsizetype(1);
    QTest::newRow("empty address never reaches the desktop") << QString() << qsizetype(0);
    QTest::newRow("malformed address neither") << u"http://[1::"_s << qsizetype(0);
}

void tst_RoutinesBureau::lanceFureteurRefuse()
{
    QFETCH(QString, url);
    monBureau->ouvertureReussit = false;
    DeleguaySimulay deleguay;
    DAlerteDeleguay::Installe(&deleguay);
    QVERIFY(!RoutinesGeneralesQt::LanceFureteurExterne(monContexte, DLocale(kLangueFrancais), url));
    QTEST(monBureau->urlsOuvertes.size(), "ouvertures");
    QVERIFY(deleguay.mesAlertes.empty());
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_RoutinesBureau::lanceUnUrl()
{
    DeleguaySimulay deleguay;
    DAlerteDeleguay::Installe(&deleguay);
    LanceUnURL(monContexte, DLocale(kLangueFrancais), UniChaine("https://exemple.org/"));
    QCOMPARE(monBureau->urlsOuvertes.size(), 1);
    QVERIFY(deleguay.mesAlertes.empty());
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_RoutinesBureau::lanceUnUrlEchoue_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("message");
    QTest::newRow("French") << int(kLangueFrancais) << u"Ouverture impossible"_s
                            << u"L’adresse suivante n’a pas pu être ouverte : https://é.org/"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"Cannot Open"_s
                             << u"The following address could not be opened: https://é.org/"_s;
    QTest::newRow("no language is French")
        << int(kLangueInconnue) << u"Ouverture impossible"_s
        << u"L’adresse suivante n’a pas pu être ouverte : https://é.org/"_s;
}

void tst_RoutinesBureau::lanceUnUrlEchoue()
{
    QFETCH(int, langue);
    QFETCH(QString, titre);
    QFETCH(QString, message);
    monBureau->ouvertureReussit = false;
    DeleguaySimulay deleguay;
    DAlerteDeleguay::Installe(&deleguay);

    LanceUnURL(monContexte, DLocale(static_cast<eLangue>(langue)), UniChaine("https://é.org/"));

    QCOMPARE(deleguay.mesAlertes.size(), std::size_t(1));
    DAlerteInfo const & alerte = deleguay.mesAlertes.front();
    QCOMPARE(alerte.DonneTypeDialogue(), DAlerteInfo::kErreur);
    QCOMPARE(QString(alerte.DonneTitreFenetre()), titre);
    QCOMPARE(QString(alerte.DonneMessage()), message);
    QCOMPARE(monJournal->DonneLignes(), QStringList(message));
}

void tst_RoutinesBureau::lanceUnUrlSansDeleguay()
{
    LanceUnURL(monContexte, DLocale(kLangueFrancais), kUniChaineNulle);
    QCOMPARE(monBureau->urlsOuvertes.size(), 0);
    QCOMPARE(monJournal->DonneLignes().size(), 1);
}

void tst_RoutinesBureau::lanceUnUrlAvecAccolades()
{
    monBureau->ouvertureReussit = false;
    LanceUnURL(monContexte, DLocale(kLangueAnglais), UniChaine("https://a.org/{1}%s"));
    QCOMPARE(monJournal->DonneLignes().size(), 1);
    QVERIFY(monJournal->DonneLignes().first().endsWith(u": https://a.org/{1}%s"));
}

void tst_RoutinesBureau::windowsEstAuMoins_data()
{
    QTest::addColumn<int>("majeure");
    QTest::addColumn<int>("mineure");
    QTest::addColumn<int>("build");
    QTest::addColumn<int>(
        "derniere"); // the newest version that the system is at least; -1 for none
    QTest::newRow("not Windows") << 0 << 0 << 0 << -1;
    QTest::newRow("older than all") << 6 << 0 << 6002 << -1;
    QTest::newRow("7") << 6 << 1 << 7601 << int(kWindows7);
    QTest::newRow("8") << 6 << 2 << 9200 << int(kWindows8);
    QTest::newRow("8.1") << 6 << 3 << 9600 << int(kWindows8_1);
    QTest::newRow("first 10") << 10 << 0 << 10240 << int(kWindows10);
    QTest::newRow("10 before 1809") << 10 << 0 << 17762 << int(kWindows10);
    QTest::newRow("10, 1809") << 10 << 0 << 17763 << int(kWindows10_1809);
    QTest::newRow("last 10") << 10 << 0 << 21999 << int(kWindows10_1809);
    QTest::newRow("11") << 10 << 0 << 22000 << int(kWindows11);
    QTest::newRow("newer than all") << 12 << 0 << 1 << int(kWindows11);
}

void tst_RoutinesBureau::windowsEstAuMoins()
{
    QFETCH(int, majeure);
    QFETCH(int, mineure);
    QFETCH(int, build);
    QFETCH(int, derniere);
    monBureau->versionWindows = {majeure, mineure, build};
    for (int version = kWindows7; version <= kWindows11; ++version)
        QCOMPARE(WindowsEstAuMoins(static_cast<typVersionWindows>(version)), version <= derniere);
    QVERIFY(!WindowsEstAuMoins(static_cast<typVersionWindows>(6)));
    QVERIFY(!WindowsEstAuMoins(static_cast<typVersionWindows>(7)));
}

void tst_RoutinesBureau::questionsAuBureau()
{
    using RoutinesGeneralesQt::DonneUtilisateurPeutExecuterElevay;
    QVERIFY(!DonneUtilisateurPeutExecuterElevay());
    monBureau->peutExecuterElevay = true;
    QVERIFY(DonneUtilisateurPeutExecuterElevay());
    QVERIFY(!PossedeAppCompatFlags(UniChaine("C:\\été.exe")));
    monBureau->executablesAvecCompat = {u"C:\\été.exe"_s};
    QVERIFY(PossedeAppCompatFlags(UniChaine("C:\\été.exe")));
    QVERIFY(!PossedeAppCompatFlags(kUniChaineNulle));
}

void tst_RoutinesBureau::tempsMonotone()
{
    quint64 const debut = DonneTempsAbsoluEnMilliSecondes();
    quint64 precedent = debut;
    for (int i = 0; i < 1000; ++i) {
        quint64 const maintenant = DonneTempsAbsoluEnMilliSecondes();
        QVERIFY(maintenant >= precedent);
        precedent = maintenant;
    }
    QTRY_VERIFY(DonneTempsAbsoluEnMilliSecondes() > debut);
}

QTEST_GUILESS_MAIN(tst_RoutinesBureau)
#include "tst_RoutinesBureau.moc"
