// tests/dialogs/tst_RappelSurThreadGraphique.cpp
#include "dialogs/DAlerte.h"

#include <QtTest>

#include <future>
#include <memory>
#include <thread>

using namespace DDialogue;

namespace {
// Notes the thread that it dies on.
class Temoin
{
public:
    explicit Temoin(std::thread::id & thread)
        : monThread(thread)
    {
    }
    Temoin(Temoin const &) = delete;
    Temoin & operator=(Temoin const &) = delete;
    ~Temoin() { monThread = std::this_thread::get_id(); }

private:
    std::thread::id & monThread;
};

template <typename Fonction>
void SurAutreThread(Fonction fonction)
{
    std::thread thread(std::move(fonction));
    thread.join();
}
} // namespace

// Each test has an application object of its own: some want none.
class tst_RappelSurThreadGraphique : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void videResteVide();
    void aussitotSurLeThreadGraphique();
    void parLaBoucleDepuisUnAutreThread();
    void ordreDesAppels();
    void enveloppayAilleurs();
    void appelSurvitALEnveloppe();
    void copieDeLEnveloppe();
    void detruitSurLeThreadGraphique();
    void detruitParLeRappel();
    void lacheeAilleursPendantQueLeRappelCourt();
    void enveloppayAvantLApplication();
    void sansApplication();
    void applicationPartieAvantLaLivraison();

private:
    RappelAlerte DonneRappel();

    int monNombreArguments = 1;
    char monNom[5] = "test";
    char * mesArguments[2] = {monNom, nullptr};
    std::unique_ptr<QCoreApplication> monApplication;
    QList<eBoutons> mesReponses;
    QList<bool> mesThreadsGraphiques;
};

void tst_RappelSurThreadGraphique::init()
{
    monApplication = std::make_unique<QCoreApplication>(monNombreArguments, mesArguments);
    mesReponses.clear();
    mesThreadsGraphiques.clear();
}

void tst_RappelSurThreadGraphique::cleanup()
{
    if (monApplication)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    monApplication.reset();
}

RappelAlerte tst_RappelSurThreadGraphique::DonneRappel()
{
    std::thread::id const graphique = std::this_thread::get_id();
    return [this, graphique](eBoutons const & reponse) {
        mesReponses << reponse;
        mesThreadsGraphiques << (std::this_thread::get_id() == graphique);
    };
}

void tst_RappelSurThreadGraphique::videResteVide()
{
    QVERIFY(!RappelSurThreadGraphique({}));
    QVERIFY(RappelSurThreadGraphique(DonneRappel()));
}

void tst_RappelSurThreadGraphique::aussitotSurLeThreadGraphique()
{
    RappelSurThreadGraphique(DonneRappel())(kBoutonOui);
    QCOMPARE(mesReponses, QList{kBoutonOui});
}

void tst_RappelSurThreadGraphique::parLaBoucleDepuisUnAutreThread()
{
    RappelAlerte const rappel = RappelSurThreadGraphique(DonneRappel());
    SurAutreThread([&] { rappel(kBoutonMaisonElevee1); });
    QVERIFY(mesReponses.isEmpty());
    QTRY_COMPARE(mesReponses, QList{kBoutonMaisonElevee1});
    QCOMPARE(mesThreadsGraphiques, QList{true});
}

void tst_RappelSurThreadGraphique::ordreDesAppels()
{
    RappelAlerte const rappel = RappelSurThreadGraphique(DonneRappel());
    SurAutreThread([&] {
        rappel(kBoutonOui);
        rappel(kBoutonNon);
    });
    rappel(kBoutonAnnuler); // does not wait behind the others
    QTRY_COMPARE(mesReponses, QList({kBoutonAnnuler, kBoutonOui, kBoutonNon}));
}

void tst_RappelSurThreadGraphique::enveloppayAilleurs()
{
    RappelAlerte rappel = DonneRappel();
    SurAutreThread([&] { RappelSurThreadGraphique(std::move(rappel))(kBoutonOui); });
    QVERIFY(mesReponses.isEmpty());
    QTRY_COMPARE(mesReponses, QList{kBoutonOui});
    QCOMPARE(mesThreadsGraphiques, QList{true});
}

void tst_RappelSurThreadGraphique::appelSurvitALEnveloppe()
{
    RappelAlerte rappel = RappelSurThreadGraphique(DonneRappel());
    SurAutreThread([&] {
        rappel(kBoutonOui);
        rappel = {};
    });
    QTRY_COMPARE(mesReponses, QList{kBoutonOui});
}

void tst_RappelSurThreadGraphique::copieDeLEnveloppe()
{
    RappelAlerte rappel = RappelSurThreadGraphique(DonneRappel());
    RappelAlerte const copie = rappel;
    rappel = {};
    SurAutreThread([&] { copie(kBoutonNon); });
    QTRY_COMPARE(mesReponses, QList{kBoutonNon});
}

// What the callback holds may be made for the GUI thread only.
void tst_RappelSurThreadGraphique::detruitSurLeThreadGraphique()
{
    std::thread::id mort;
    auto temoin = std::make_shared<Temoin>(mort);
    RappelAlerte rappel = RappelSurThreadGraphique([temoin](eBoutons const &) {});
    temoin.reset();
    SurAutreThread([&] { rappel = {}; });
    QVERIFY(mort == std::thread::id());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(mort == std::this_thread::get_id());
}

void tst_RappelSurThreadGraphique::detruitParLeRappel()
{
    RappelAlerte rappel;
    auto const valeur = std::make_shared<int>(0);
    rappel = RappelSurThreadGraphique([&rappel, valeur](eBoutons const &) {
        rappel = {};
        ++*valeur; // still there
    });
    rappel(kBoutonOui);
    QCOMPARE(*valeur, 1);
}

// The other thread drops the last copy while the callback, in an event loop of its own, delivers
// everything that waits.
void tst_RappelSurThreadGraphique::lacheeAilleursPendantQueLeRappelCourt()
{
    std::promise<void> commencay;
    std::thread autre;
    std::thread::id mort;
    bool vivantApresLaBoucle = false;
    auto const ouvreUneBoucle = [&] {
        commencay.set_value();
        autre.join();
        QEventLoop boucle;
        QTimer::singleShot(0, &boucle, &QEventLoop::quit);
        boucle.exec();
        vivantApresLaBoucle = mort == std::thread::id();
    };
    auto temoin = std::make_shared<Temoin>(mort);
    RappelAlerte rappel =
        RappelSurThreadGraphique([temoin, &ouvreUneBoucle](eBoutons const &) { ouvreUneBoucle(); });
    temoin.reset();

    autre = std::thread([&] {
        rappel(kBoutonOui);
        commencay.get_future().wait();
        rappel = {};
    });

    QTRY_VERIFY(!autre.joinable());
    QVERIFY(vivantApresLaBoucle);
    QTRY_VERIFY(mort == std::this_thread::get_id());
}

void tst_RappelSurThreadGraphique::enveloppayAvantLApplication()
{
    monApplication.reset();
    RappelAlerte const rappel = RappelSurThreadGraphique(DonneRappel());
    init();
    SurAutreThread([&] { rappel(kBoutonOui); });
    QVERIFY(mesReponses.isEmpty());
    QTRY_COMPARE(mesReponses, QList{kBoutonOui});
    QCOMPARE(mesThreadsGraphiques, QList{true});
}

void tst_RappelSurThreadGraphique::sansApplication()
{
    RappelAlerte rappel = RappelSurThreadGraphique(DonneRappel());
    monApplication.reset();
    rappel(kBoutonOui);
    SurAutreThread([&] {
        rappel(kBoutonNon);
        rappel = {};
    });
    init();
    QCoreApplication::sendPostedEvents();
    QVERIFY(mesReponses.isEmpty());
}

void tst_RappelSurThreadGraphique::applicationPartieAvantLaLivraison()
{
    RappelAlerte rappel = RappelSurThreadGraphique(DonneRappel());
    SurAutreThread([&] { rappel(kBoutonNon); });
    monApplication.reset();
    rappel = {};
    QVERIFY(mesReponses.isEmpty());
}

QTEST_APPLESS_MAIN(tst_RappelSurThreadGraphique)
#include "tst_RappelSurThreadGraphique.moc"
