// dialogs/tst_DAlerteRefus.cpp
#include "dialogs/FormesAlertes.h"

#include "dialogs/DAlerteEphemere_p.h"
#include "dialogs/DDialogueProgressionInfinie.h"
#include "foundation/ProgrammeEnfant.h"

#include <QtTest>

#include <QThread>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

QString const kSansApplication = u"--sans-application"_s;
constexpr int kDelaiThread = 5000; // ms

// One call whose answers are counted, whoever gets them.
struct Essai
{
    explicit Essai(DAlerteInfo::eTypeDialogue type, QString const & message = u"Message"_s)
        : appel{DAlerteInfo(type, UniChaine(message))}
    {
        appel.info.dureeAffichage = 3600.0F;
        appel.boutons = kBoutonOui | kBoutonNon;
        appel.defaut = kBoutonOui;
        appel.echap = kBoutonNon;
        appel.guid = u"guid"_s;
        appel.receveur = &receveur;
        auto temoin = std::make_shared<int>();
        vie = temoin;
        appel.rappel = [this, temoin](eBoutons const &) { ++rappels; };
    }

    // The call alone holds the callback afterwards, if anything does.
    quint32 Lance(Forme const & forme)
    {
        quint32 const retour = forme.lance(appel);
        appel.rappel = {};
        return retour;
    }

    bool SansTrace(Banc const & banc) const
    {
        return rappels == 0 && vie.expired() && receveur.reponses.isEmpty() &&
               banc.journal.DonneLignes().isEmpty() &&
               ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty();
    }

    Appel appel;
    ReceveurNotant receveur;
    std::weak_ptr<int> vie;
    int rappels = 0;
};

bool RienALEcran()
{
    return QApplication::topLevelWidgets().isEmpty();
}

void AjouteFormesEtModes()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<bool>("silence");
    QTest::addColumn<bool>("retenue");
    for (Forme const & forme : kFormes) {
        QString const nom = QString::fromLatin1(forme.nom);
        QTest::addRow("%s, asked", forme.nom) << nom << false << false;
        QTest::addRow("%s, silent", forme.nom) << nom << true << false;
        QTest::addRow("%s, remembered", forme.nom) << nom << false << true;
    }
}

// The forms that broke the rule, in the child process.
QString ListeFautesSansApplication()
{
    QStringList fautes;
    for (Forme const & forme : kFormes) {
        Banc const banc;
        banc.stockage.Ecris(u"guid"_s, kBoutonOui);
        ExecutionSilencieuse::Demarre();
        Essai essai(DAlerteInfo::kQuestion);
        if (essai.Lance(forme) != kBoutonAucun || !essai.SansTrace(banc))
            fautes << QString::fromLatin1(forme.nom);
    }
    return fautes.isEmpty() ? u"none"_s : fautes.join(u"; "_s);
}

} // namespace

class tst_DAlerteRefus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void autreThread_data() { AjouteFormesEtModes(); }
    void autreThread();
    void autreThreadNeMontreRienPlusTard();
    void sansObjetApplication();
    void typeSansReponse_data();
    void typeSansReponse();
    void messageVideNonVerifiay_data();
    void messageVideNonVerifiay();
    void rappelDUneBulleAbandonnay_data();
    void rappelDUneBulleAbandonnay();
    void receveurCentrayFaitRienSansMessage_data();
    void receveurCentrayFaitRienSansMessage();
};

void tst_DAlerteRefus::cleanup()
{
    RetireRestes();
    qDeleteAll(Fenetres<DAlerteEphemere>());
    qDeleteAll(Fenetres<DDialogueProgressionInfinie>());
    QTRY_VERIFY(RienALEcran());
}

void tst_DAlerteRefus::autreThread()
{
    QFETCH(QString, forme);
    QFETCH(bool, silence);
    QFETCH(bool, retenue);
    Banc const banc;
    if (silence)
        ExecutionSilencieuse::Demarre();
    if (retenue)
        banc.stockage.Ecris(u"guid"_s, kBoutonOui);
    Essai essai(DAlerteInfo::kQuestion);
    quint32 retour = 1;
    std::unique_ptr<QThread> const thread(
        QThread::create([&] { retour = essai.Lance(PreteForme(forme)); }));
    thread->start();
    QVERIFY(thread->wait(kDelaiThread));

    QCOMPARE(retour, quint32(kBoutonAucun));
    QVERIFY(essai.SansTrace(banc));
    QVERIFY(RienALEcran());
    QVariantMap const retenues{{u"guid"_s, int(kBoutonOui)}};
    QCOMPARE(banc.stockage.DonneContenu(), retenue ? retenues : QVariantMap());
}

// Nothing was left in the event queue either.
void tst_DAlerteRefus::autreThreadNeMontreRienPlusTard()
{
    Banc const banc;
    Essai essai(DAlerteInfo::kQuestion);
    std::unique_ptr<QThread> const thread(QThread::create([&essai] {
        for (Forme const & forme : kFormes)
            forme.lance(essai.appel);
        essai.appel.rappel = {};
    }));
    thread->start();
    QVERIFY(thread->wait(kDelaiThread));
    for (int tour = 0; tour < 10; ++tour)
        QCoreApplication::processEvents();
    QVERIFY(RienALEcran());
    QVERIFY(essai.SansTrace(banc));
}

void tst_DAlerteRefus::sansObjetApplication()
{
    QCOMPARE(LanceEnfant({kSansApplication}, {}), u"none"_s);
}

void tst_DAlerteRefus::typeSansReponse_data()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<int>("type");
    for (Forme const & forme : kFormes)
        for (int const type : {DAlerteInfo::kEphemere, DAlerteInfo::kProgressionInfinie})
            if (forme.Bloque())
                QTest::addRow("%s, type %d", forme.nom, type)
                    << QString::fromLatin1(forme.nom) << type;
}

void tst_DAlerteRefus::typeSansReponse()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    Banc const banc;
    Essai essai(static_cast<DAlerteInfo::eTypeDialogue>(type));
    QCOMPARE(essai.Lance(PreteForme(forme)), quint32(kBoutonAucun));
    QVERIFY(RienALEcran());
    QVERIFY(essai.SansTrace(banc));
}

void tst_DAlerteRefus::messageVideNonVerifiay_data()
{
    typeSansReponse_data();
}

void tst_DAlerteRefus::messageVideNonVerifiay()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    Banc const banc;
    Essai essai(static_cast<DAlerteInfo::eTypeDialogue>(type), {});
    QCOMPARE(essai.Lance(PreteForme(forme)), quint32(kBoutonAucun));
    bool const estBulle = type == DAlerteInfo::kEphemere;
    QCOMPARE(Fenetres<DAlerteEphemere>().size(), estBulle ? 1 : 0);
    QCOMPARE(Fenetres<DDialogueProgressionInfinie>().size(), estBulle ? 0 : 1);
    QVERIFY(essai.SansTrace(banc));
}

void tst_DAlerteRefus::rappelDUneBulleAbandonnay_data()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<int>("type");
    for (Forme const & forme : kFormes)
        for (int const type : {DAlerteInfo::kEphemere, DAlerteInfo::kProgressionInfinie})
            if (forme.destination == eDestination::kRappel)
                QTest::addRow("%s, type %d", forme.nom, type)
                    << QString::fromLatin1(forme.nom) << type;
}

void tst_DAlerteRefus::rappelDUneBulleAbandonnay()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    Banc const banc;
    banc.stockage.Ecris(u"guid"_s, kBoutonOui); // a bubble knows of no store
    Essai essai(static_cast<DAlerteInfo::eTypeDialogue>(type));
    essai.Lance(PreteForme(forme));
    QCOMPARE(QApplication::topLevelWidgets().size(), 1);
    QVERIFY(essai.SansTrace(banc));
}

void tst_DAlerteRefus::receveurCentrayFaitRienSansMessage_data()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<int>("type");
    for (char const * const forme :
         {"DAlerteCentrageNatif, receiver", "DAlerteCentrageNatif, window, receiver"})
        for (int type = DAlerteInfo::kQuestion; type <= DAlerteInfo::kSansIcone; ++type)
            QTest::addRow("%s, type %d", forme, type) << QString::fromLatin1(forme) << type;
}

void tst_DAlerteRefus::receveurCentrayFaitRienSansMessage()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    Banc const banc;
    Essai essai(static_cast<DAlerteInfo::eTypeDialogue>(type), {});
    essai.Lance(PreteForme(forme));
    QVERIFY(RienALEcran());
    QVERIFY(essai.SansTrace(banc));
}

int main(int nombre, char ** arguments)
{
    if (nombre == 2 && QString::fromLocal8Bit(arguments[1]) == kSansApplication)
        return Imprime(ListeFautesSansApplication());
    QApplication const application(nombre, arguments);
    tst_DAlerteRefus test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_DAlerteRefus.moc"
