// tests/noyau/tst_ContexteLocalisation.cpp
#include "noyau/ContexteLocalisation.h"

#include "noyau/FabriqueCatalogue.h"
#include "noyau/JournalSimulay.h"
#include "noyau/LocalisateurContextuel.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr VueTexte kDomaine = {"Essai", 5};
constexpr ChaineLocalisable kAnnuler = {{"Annuler", 7}, {}, kDomaine};

QString Traduis(ContexteLocalisation const & contexte, ChaineLocalisable message, eLangue langue)
{
    return LocalisateurContextuel(message, contexte, DLocale(langue));
}

} // namespace

class tst_ContexteLocalisation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void suffixes_data();
    void suffixes();
    void registreVide();
    void domainesSepares();
    void domaineRemplace();
    void nomVide();
    void cheminAccentuay();
    void catalogueAbsentJournaliseUneFois();
    void catalogueAbsentSansJournal();
    void journalQuiTraduit();
    void chargementTardif();
    void filsSimultanes_data();
    void filsSimultanes();
    void domainesDuNoyau_data();
    void domainesDuNoyau();

private:
    std::string Chemin(char const * nom) const;
    bool Ecris(QString const & nom, QByteArray const & annuler) const;

    std::unique_ptr<QTemporaryDir> monDossier;
    std::unique_ptr<JournalSimulay> monJournal;
};

void tst_ContexteLocalisation::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
    QVERIFY(Ecris(u"EssaiFr.mo"_s, "Annuler (fr)"));
    QVERIFY(Ecris(u"EssaiEn.mo"_s, "Cancel"));
    QVERIFY(Ecris(u"EssaiEn_CA.mo"_s, "Cancel, eh"));
    monJournal = std::make_unique<JournalSimulay>();
}

void tst_ContexteLocalisation::cleanup()
{
    monJournal.reset();
    QVERIFY(!PreteBoiteNoire());
    monDossier.reset();
}

std::string tst_ContexteLocalisation::Chemin(char const * nom) const
{
    return monDossier->filePath(QString::fromUtf8(nom)).toStdString();
}

bool tst_ContexteLocalisation::Ecris(QString const & nom, QByteArray const & annuler) const
{
    return FabriqueCatalogue({{"", EnteteDeCatalogue(kRegleAnglaise)}, {"Annuler", annuler}})
        .Ecris(monDossier->filePath(nom));
}

void tst_ContexteLocalisation::suffixes_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("French") << int(kLangueFrancais) << u"Annuler (fr)"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"Cancel"_s;
    QTest::newRow("Canadian English") << int(kLangueAnglaisCanada) << u"Cancel, eh"_s;
    QTest::newRow("no language") << int(kLangueInconnue) << u"Annuler"_s;
    QTest::newRow("unheard-of language") << 99 << u"Annuler"_s;
}

void tst_ContexteLocalisation::suffixes()
{
    QFETCH(int, langue);
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Essai"));
    QTEST(Traduis(contexte, kAnnuler, static_cast<eLangue>(langue)), "attendu");
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_ContexteLocalisation::registreVide()
{
    ContexteLocalisation const contexte;
    QVERIFY(!contexte.PreteCatalogue(kDomaine, DLocale(kLangueFrancais)));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Annuler"_s);
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_ContexteLocalisation::domainesSepares()
{
    QVERIFY(Ecris(u"AutreEn.mo"_s, "Abort"));
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Essai"));
    contexte.AjouteDomaine("Autre", Chemin("Autre"));
    ChaineLocalisable message = kAnnuler;
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Cancel"_s);
    message.domaine = {"Autre", 5};
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Abort"_s);
    message.domaine = {"essai", 5};
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Annuler"_s);
    message.domaine = {"Essai", 4};
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Annuler"_s);
}

void tst_ContexteLocalisation::domaineRemplace()
{
    QVERIFY(Ecris(u"AutreEn.mo"_s, "Abort"));
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Essai"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Cancel"_s);
    contexte.AjouteDomaine("Essai", Chemin("Autre"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Abort"_s);
}

void tst_ContexteLocalisation::nomVide()
{
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Essai"));
    ChaineLocalisable message = kAnnuler;
    message.domaine = {};
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Annuler"_s);
    contexte.AjouteDomaine("", Chemin("Essai"));
    QCOMPARE(Traduis(contexte, message, kLangueAnglais), u"Cancel"_s);
}

void tst_ContexteLocalisation::cheminAccentuay()
{
    QVERIFY(Ecris(u"ÉtéEn.mo"_s, "Summer"));
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Été"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Summer"_s);
}

void tst_ContexteLocalisation::catalogueAbsentJournaliseUneFois()
{
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Absent"));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Annuler"_s);
    QCOMPARE(monJournal->DonneLignes().size(), 1);
    QVERIFY(monJournal->DonneLignes().first().contains(u"AbsentEn.mo"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueFrancais), u"Annuler"_s);
    QCOMPARE(monJournal->DonneLignes().size(), 2);
}

void tst_ContexteLocalisation::catalogueAbsentSansJournal()
{
    monJournal.reset();
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Absent"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Annuler"_s);
}

// A journal that looks its own words up in the registry that is telling it of a broken catalogue.
void tst_ContexteLocalisation::journalQuiTraduit()
{
    class JournalTraducteur : public JournalSimulay
    {
    public:
        explicit JournalTraducteur(ContexteLocalisation const & contexte)
            : monContexte(contexte)
        {
        }
        void EcrisLigne(UniChaine const & ligne, bool horodatage, bool vider) override
        {
            JournalSimulay::EcrisLigne(ligne, horodatage, vider);
            monMot = Traduis(monContexte, kAnnuler, kLangueAnglais);
        }

        ContexteLocalisation const & monContexte;
        QString monMot;
    };

    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Absent"));
    monJournal.reset();
    JournalTraducteur const journal(contexte);
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Annuler"_s);
    QCOMPARE(journal.monMot, u"Annuler"_s);
    QCOMPARE(journal.DonneLignes().size(), 1);
}

void tst_ContexteLocalisation::chargementTardif()
{
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin("Tardif"));
    QVERIFY(Ecris(u"TardifEn.mo"_s, "Late"));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Late"_s);
    QVERIFY(QFile::remove(monDossier->filePath(u"TardifEn.mo"_s)));
    QCOMPARE(Traduis(contexte, kAnnuler, kLangueAnglais), u"Late"_s);
}

void tst_ContexteLocalisation::filsSimultanes_data()
{
    QTest::addColumn<QByteArray>("catalogue");
    QTest::addColumn<QString>("attendu");
    QTest::addColumn<int>("lignes");
    QTest::newRow("catalogue there") << "Essai"_ba << u"Cancel"_s << 0;
    QTest::newRow("catalogue missing") << "Absent"_ba << u"Annuler"_s << 1;
}

// The first look-ups race for the loading of the catalogue; every one of them has its text.
void tst_ContexteLocalisation::filsSimultanes()
{
    QFETCH(QByteArray, catalogue);
    QFETCH(QString, attendu);
    QFETCH(int, lignes);
    constexpr int kFils = 8;
    constexpr int kRecherches = 500;
    ContexteLocalisation contexte;
    contexte.AjouteDomaine("Essai", Chemin(catalogue.constData()));
    std::atomic<int> justes = 0;
    std::vector<std::thread> fils;
    for (int i = 0; i < kFils; ++i) {
        fils.emplace_back([&] {
            for (int j = 0; j < kRecherches; ++j)
                justes += Traduis(contexte, kAnnuler, kLangueAnglais) == attendu;
        });
    }
    for (std::thread & filFini : fils)
        filFini.join();
    QCOMPARE(justes.load(), kFils * kRecherches);
    QCOMPARE(monJournal->DonneLignes().size(), lignes);
}

void tst_ContexteLocalisation::domainesDuNoyau_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("French") << int(kLangueFrancais) << u"Ouverture impossible"_s;
    QTest::newRow("English") << int(kLangueAnglais) << u"Cannot Open"_s;
    QTest::newRow("Canadian English") << int(kLangueAnglaisCanada) << u"Cannot Open"_s;
    QTest::newRow("no language") << int(kLangueInconnue) << u"Ouverture impossible"_s;
}

void tst_ContexteLocalisation::domainesDuNoyau()
{
    QFETCH(int, langue);
    ContexteLocalisation contexte;
    InitLocaleLibNoyau(contexte);
    ChaineLocalisable const message = {{"Ouverture impossible", 20}, {}, {"Noyau", 5}};
    QTEST(Traduis(contexte, message, static_cast<eLangue>(langue)), "attendu");
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

QTEST_GUILESS_MAIN(tst_ContexteLocalisation)
#include "tst_ContexteLocalisation.moc"
