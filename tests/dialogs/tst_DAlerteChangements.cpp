// dialogs/tst_DAlerteChangements.cpp
//
// What changes around an alert while it waits for its answer.
#include "dialogs/EssaisAlertes.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

constexpr int kOuiNon = kBoutonOui | kBoutonNon;

DAlerteInfo Question(QString const & message = u"Message"_s)
{
    return {DAlerteInfo::kQuestion, UniChaine(message)};
}

eBoutons DemandeRetenue(QString const & guid, eTypStockeur type = StockeurNePlusMAviser)
{
    return DAlerteRappel(nullptr, Question(), type, guid, kOuiNon, kBoutonOui, kBoutonAucun);
}

} // namespace

class tst_DAlerteChangements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { monBanc = std::make_unique<Banc>(); }
    void cleanup();

    void singletonLiberay();
    void autreAlerteInterrogeeEntreTemps();
    void autreFichierEntreTemps();
    void toutOubliayEntreTemps();
    void silenceEntreTemps();
    void journalRetirayEntreTemps();
    void alerteDetruiteParSonAppelant();
    void applicationQuittee();
    void chaineDAlertes();
    void receveurQuiRedemande();
    void rappelQuiRelanceBeaucoup();
    void deuxReceveursDifferents();
    void parentCachayPuisDetruit();

    void oublieToutesLesReponses();
    void dejaCochay_data();
    void dejaCochay();

private:
    std::unique_ptr<Banc> monBanc;
};

void tst_DAlerteChangements::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    monBanc.reset();
}

// A box writes through a store of its own.
void tst_DAlerteChangements::singletonLiberay()
{
    Repondant const utilisateur([](DMessageBox & boite) {
        StockageReponse::LibereSingletons();
        Coche(boite);
        Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(DemandeRetenue(u"guid"_s), kBoutonOui);
    QCOMPARE(monBanc->stockage.DonneContenu(), (QVariantMap{{u"guid"_s, int(kBoutonOui)}}));
}

// Asking for another alert redirects the singleton, not the open box.
void tst_DAlerteChangements::autreAlerteInterrogeeEntreTemps()
{
    Repondant const utilisateur([](DMessageBox & boite) {
        QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"autre"_s));
        Coche(boite);
        Clique(boite.button(QMessageBox::No));
    });
    QCOMPARE(DemandeRetenue(u"guid"_s), kBoutonNon);
    QCOMPARE(monBanc->stockage.DonneContenu(), (QVariantMap{{u"guid"_s, int(kBoutonNon)}}));
}

void tst_DAlerteChangements::autreFichierEntreTemps()
{
    QTemporaryDir const dossier;
    Repondant const utilisateur([&dossier](DMessageBox & boite) {
        StockageReponse::Initialise(StockeurNePlusMAviser, dossier.filePath(u"autre.ini"_s),
                                    QSettings::IniFormat);
        StockageReponse::LibereSingletons();
        Coche(boite);
        Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(DemandeRetenue(u"guid"_s), kBoutonOui);
    QCOMPARE(monBanc->stockage.DonneContenu(), (QVariantMap{{u"guid"_s, int(kBoutonOui)}}));
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"guid"_s)); // asks the new file
}

void tst_DAlerteChangements::toutOubliayEntreTemps()
{
    monBanc->stockage.Ecris(u"autre"_s, kBoutonNon);
    Repondant const utilisateur([](DMessageBox & boite) {
        DAlerteOublieToutesLesReponses(StockeurNePlusMAviser);
        Coche(boite);
        Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(DemandeRetenue(u"guid"_s), kBoutonOui);
    QVERIFY(DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"guid"_s));
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"autre"_s));
}

// Silence begins with the next alert; the one on screen keeps waiting for the user.
void tst_DAlerteChangements::silenceEntreTemps()
{
    ReceveurNotant receveur;
    DAlerte(nullptr, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    ExecutionSilencieuse::Demarre();
    QCOMPARE(DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon), kBoutonOui);
    QVERIFY(boite->isVisible());
    QVERIFY(receveur.reponses.isEmpty());
    Clique(boite->button(QMessageBox::No));
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonNon});
}

void tst_DAlerteChangements::journalRetirayEntreTemps()
{
    Repondant const utilisateur([](DMessageBox & boite) {
        MetsBoiteNoire(nullptr);
        Clique(boite.button(QMessageBox::Yes));
    });
    QCOMPARE(DemandeRetenue(u"guid"_s), kBoutonOui);
    QCOMPARE(monBanc->journal.DonneLignes(), QStringList());
}

// The alert shows a copy; what described it may go at once.
void tst_DAlerteChangements::alerteDetruiteParSonAppelant()
{
    ReceveurNotant receveur;
    auto info = std::make_unique<DAlerteInfo>(Question(u"Premier"_s));
    DAlerte(nullptr, &receveur, *info, kOuiNon, kBoutonOui, kBoutonNon);
    *info = Question(u"Second"_s);
    info.reset();
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    QCOMPARE(boite->text(), u"Premier"_s);
    Clique(boite->button(QMessageBox::Yes));
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOui});
}

// All event loops end, and with them the call that blocks.
void tst_DAlerteChangements::applicationQuittee()
{
    eBoutons reponse = kBoutonOui;
    Repondant const utilisateur([](DMessageBox &) { QCoreApplication::exit(); });
    QTimer::singleShot(0, this, [&reponse] {
        reponse = DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    });
    QCoreApplication::exec();
    QCOMPARE(reponse, kBoutonAucun);
    QVERIFY(Fenetres<DMessageBox>().isEmpty());
}

// Each alert is raised inside the answer to the one before, all receivers still running.
void tst_DAlerteChangements::chaineDAlertes()
{
    constexpr int kProfondeur = 10;
    int profondeur = 0;
    QList<int> reponses;
    Repondant const utilisateur(
        [](DMessageBox & boite) { Clique(boite.button(QMessageBox::Yes)); });
    ReceveurNotant receveur;
    receveur.action = [&] {
        if (++profondeur < kProfondeur)
            reponses << int(DAlerteRappel(nullptr, Question(), StockeurParDefaut, {}, kOuiNon,
                                          kBoutonOui, kBoutonNon));
        if (profondeur < kProfondeur)
            receveur.action();
    };
    DAlerte(nullptr, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    QTRY_COMPARE(reponses.size(), kProfondeur - 1);
    QCOMPARE(utilisateur.DonneNombre(), kProfondeur);
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOui});
}

void tst_DAlerteChangements::receveurQuiRedemande()
{
    ReceveurNotant receveur;
    receveur.action = [&receveur] {
        if (receveur.reponses.size() < 5)
            DAlerte(nullptr, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    };
    Repondant const utilisateur([](DMessageBox & boite) { Clique(boite.button(QMessageBox::No)); });
    DAlerte(nullptr, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    QTRY_COMPARE(receveur.reponses.size(), 5);
    QVERIFY(AttendsFinDesBoites());
    QCOMPARE(utilisateur.DonneNombre(), 5);
}

void tst_DAlerteChangements::rappelQuiRelanceBeaucoup()
{
    ExecutionSilencieuse::Demarre();
    int reponses = 0;
    RappelAlerte rappel;
    rappel = [&reponses, &rappel](eBoutons const &) {
        if (++reponses < 200)
            DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon, rappel);
    };
    DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon, rappel);
    QTRY_COMPARE(reponses, 200);
    QVERIFY(AttendsFinDesBoites());
}

void tst_DAlerteChangements::deuxReceveursDifferents()
{
    QWidget gauche;
    QWidget droite;
    gauche.show();
    droite.show();
    ReceveurNotant premier;
    ReceveurNotant second;
    DAlerte(&gauche, &premier, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    DAlerte(&droite, &second, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    auto * const boiteGauche = gauche.findChild<DMessageBox *>();
    auto * const boiteDroite = droite.findChild<DMessageBox *>();
    QVERIFY(boiteGauche && boiteDroite);
    Clique(boiteGauche->button(QMessageBox::Yes)); // each waits for its own window only
    QCOMPARE(DonneReponses(premier), QList<int>{kBoutonOui});
    QCOMPARE(second.reponses.size(), 0);
    Clique(boiteDroite->button(QMessageBox::No));
    QCOMPARE(DonneReponses(second), QList<int>{kBoutonNon});
    QVERIFY(AttendsFinDesBoites());
}

void tst_DAlerteChangements::parentCachayPuisDetruit()
{
    auto parent = std::make_unique<QWidget>();
    parent->show();
    ReceveurNotant receveur;
    DAlerte(parent.get(), &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    QPointer<DMessageBox> const boite = BoiteDevant();
    QVERIFY(boite);
    parent->hide();
    QCOMPARE(receveur.reponses.size(), 0);
    parent.reset();
    QVERIFY(!boite);
    QCOMPARE(receveur.reponses.size(), 0);
}

void tst_DAlerteChangements::oublieToutesLesReponses()
{
    for (auto const type : {StockeurParDefaut, StockeurNePlusMAviser}) {
        monBanc->stockage.Ecris(u"un"_s, kBoutonOui, type);
        monBanc->stockage.Ecris(u"deux"_s, kBoutonNon, type);
    }
    DAlerteOublieToutesLesReponses(StockeurNePlusMAviser);
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"un"_s));
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"deux"_s));
    QVERIFY(DAlerteRappelDejaCochay(StockeurParDefaut, u"un"_s));
    int demandes = 0;
    Repondant const utilisateur([&demandes](DMessageBox & boite) {
        ++demandes;
        Clique(boite.button(QMessageBox::No));
    });
    QCOMPARE(DemandeRetenue(u"un"_s), kBoutonNon);
    QCOMPARE(DemandeRetenue(u"un"_s, StockeurParDefaut), kBoutonOui);
    QCOMPARE(demandes, 1);
}

void tst_DAlerteChangements::dejaCochay_data()
{
    QTest::addColumn<QString>("guid");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("remembered") << u"un"_s << true;
    QTest::newRow("never asked") << u"deux"_s << false;
    QTest::newRow("without a name") << QString() << false;
}

void tst_DAlerteChangements::dejaCochay()
{
    QFETCH(QString, guid);
    QFETCH(bool, attendu);
    monBanc->stockage.Ecris(u"un"_s, kBoutonAnnuler); // any answer, whoever wrote it
    QCOMPARE(DAlerteRappelDejaCochay(StockeurNePlusMAviser, guid), attendu);
    QVERIFY(!DAlerteRappelDejaCochay(StockeurParDefaut, guid));
}

QTEST_MAIN(tst_DAlerteChangements)
#include "tst_DAlerteChangements.moc"
