// tests/dialogs/tst_DorvelToastEventHandler.cpp
#include "dialogs/DorvelToastEventHandler_p.h"
#include "noyau/plateforme/ReferenceComptay.h"
#include "outils/ToastsSimules.h"

#include <QtTest>

#include <atomic>
#include <thread>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

using Rappel = std::function<void(eBoutons const &)>;

namespace {
// The arguments of a toast that was pressed itself; alive for as long as its test wants.
class Activation final : public IInspectable, public IToastActivatedEventArgs
{
public:
    ULONG AddRef() override { return 2; }
    ULONG Release() override { return 1; }
    HRESULT QueryInterface(IToastActivatedEventArgs ** arguments) override
    {
        *arguments = this;
        return S_OK;
    }
    HRESULT get_Arguments(QString *) override { return S_OK; }
};
} // namespace

class tst_DorvelToastEventHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void activationParNom_data();
    void activationParNom();
    void activationIllisible_data();
    void activationIllisible();
    void ecartement_data();
    void ecartement();
    void echec();
    void ordre_data();
    void ordre();
    void sansRappel_data();
    void sansRappel();
    void secondEvenement();
    void sansEvenement();
    void evenementSansToast();
    void evenementPuisOubli_data();
    void evenementPuisOubli();
    void rappelQuiFaitOublierLeToast_data();
    void rappelQuiFaitOublierLeToast();
    void rappelQuiRendLaDerniereReference_data();
    void rappelQuiRendLaDerniereReference();
    void sansNotificateur();
    void compte();
    void rappelSurLeThreadDeLEvenement();
    void evenementsSimultanes();

private:
    static void AjouteEvenements();
    ReferenceComptay<IToastNotifier> CreeNotificateur();
    void Montre(Rappel const & rappel, bool retirer);
    HRESULT Envoie(QString const & evenement);
    QStringList DonneSuite() const;
    Rappel DonneRappel();

    std::unique_ptr<ToastsSimules> mesToasts;
    QList<eBoutons> mesReponses;
};

void tst_DorvelToastEventHandler::init()
{
    mesToasts = std::make_unique<ToastsSimules>();
    mesReponses.clear();
}

void tst_DorvelToastEventHandler::cleanup()
{
    mesToasts->Oublie();
    QCOMPARE(mesToasts->DonneNombreObjets(), 0);
    mesToasts.reset();
}

void tst_DorvelToastEventHandler::AjouteEvenements()
{
    QTest::addColumn<QString>("evenement");
    QTest::newRow("pressed") << u"Activated"_s;
    QTest::newRow("dismissed") << u"Dismissed"_s;
    QTest::newRow("failed") << u"Failed"_s;
}

ReferenceComptay<IToastNotifier> tst_DorvelToastEventHandler::CreeNotificateur()
{
    ReferenceComptay<IToastNotificationManagerStatics> statiques;
    mesToasts->RoGetActivationFactory({}, statiques.Recois());
    ReferenceComptay<IToastNotifier> notificateur;
    statiques->CreateToastNotifierWithId(u"org.essai"_s, notificateur.Recois());
    return notificateur;
}

// A toast on screen with a handler that nothing but its registrations holds, and that alone holds
// the notifier.
void tst_DorvelToastEventHandler::Montre(Rappel const & rappel, bool retirer)
{
    ReferenceComptay<IToastNotificationManagerStatics> statiques;
    mesToasts->RoGetActivationFactory({}, statiques.Recois());
    ReferenceComptay<IXmlDocument> document;
    statiques->GetTemplateContent(ToastImageAndText04, document.Recois());
    ReferenceComptay<IToastNotifier> const notificateur = CreeNotificateur();
    ReferenceComptay<IToastNotificationFactory> fabrique;
    mesToasts->RoGetActivationFactory({}, fabrique.Recois());
    ReferenceComptay<IToastNotification> toast;
    fabrique->CreateToastNotification(document.Prete(), toast.Recois());

    ReferenceComptay<DorvelToastEventHandler> const gestionnaire(
        new DorvelToastEventHandler(rappel, notificateur.Prete(), retirer));
    EventRegistrationToken jeton;
    toast->add_Activated(gestionnaire.Prete(), &jeton);
    toast->add_Dismissed(gestionnaire.Prete(), &jeton);
    toast->add_Failed(gestionnaire.Prete(), &jeton);
    notificateur->Show(toast.Prete());
    mesToasts->Note(u"---"_s);
}

HRESULT tst_DorvelToastEventHandler::Envoie(QString const & evenement)
{
    if (evenement == "Activated"_L1)
        return mesToasts->Active(0, u"kBoutonOui"_s);
    if (evenement == "Dismissed"_L1)
        return mesToasts->Ecarte(0, ToastDismissalReason_UserCanceled);
    return mesToasts->Echoue(0);
}

// What happened since the toast appeared, but for the reading of arguments.
QStringList tst_DorvelToastEventHandler::DonneSuite() const
{
    QStringList const appels = mesToasts->DonneAppels();
    return appels.mid(appels.indexOf("---"_L1) + 1)
        .filter(QRegularExpression(u"^(Hide|~IToastNotifier|rappel)"_s));
}

Rappel tst_DorvelToastEventHandler::DonneRappel()
{
    return [this](eBoutons const & reponse) {
        mesReponses << reponse;
        mesToasts->Note(u"rappel"_s);
    };
}

void tst_DorvelToastEventHandler::activationParNom_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<eBoutons>("reponse");
    QTest::newRow("button") << u"kBoutonAnnuler"_s << kBoutonAnnuler;
    QTest::newRow("last button") << u"kBoutonMaisonElevee1"_s << kBoutonMaisonElevee1;
    QTest::newRow("the toast itself") << QString() << kBoutonAucun;
    QTest::newRow("unknown name") << u"kBoutonX"_s << kBoutonAucun;
}

void tst_DorvelToastEventHandler::activationParNom()
{
    QFETCH(QString, arguments);
    QFETCH(eBoutons, reponse);
    Montre(DonneRappel(), false);
    QCOMPARE(mesToasts->Active(0, arguments), S_OK);
    QCOMPARE(mesReponses, QList{reponse});
}

void tst_DorvelToastEventHandler::activationIllisible_data()
{
    QTest::addColumn<QString>("cas");
    QTest::newRow("no arguments") << u"aucun"_s;
    QTest::newRow("arguments of another class") << u"autre"_s;
    QTest::newRow("no object in spite of success") << u"rien"_s;
    QTest::newRow("text that cannot be read") << u"texte"_s;
}

void tst_DorvelToastEventHandler::activationIllisible()
{
    QFETCH(QString, cas);
    Montre(DonneRappel(), true);
    if (cas == "rien"_L1)
        mesToasts->RendsRien(u"QueryInterface"_s);
    if (cas == "texte"_L1)
        mesToasts->Reponds(u"get_Arguments"_s, E_FAIL);
    HRESULT const resultat = cas == "aucun"_L1   ? mesToasts->ActiveSansArguments(0)
                             : cas == "autre"_L1 ? mesToasts->ActiveAutrement(0)
                                                 : mesToasts->Active(0, u"kBoutonOui"_s);
    QCOMPARE(resultat, S_FALSE);
    QVERIFY(mesReponses.isEmpty());
    // The user has dealt with the toast all the same.
    QCOMPARE(DonneSuite(), QStringList({u"Hide()"_s, u"~IToastNotifier"_s}));
}

void tst_DorvelToastEventHandler::ecartement_data()
{
    QTest::addColumn<int>("raison");
    QTest::newRow("by the user") << int(ToastDismissalReason_UserCanceled);
    QTest::newRow("by the application") << int(ToastDismissalReason_ApplicationHidden);
    QTest::newRow("by time") << int(ToastDismissalReason_TimedOut);
    QTest::newRow("reason that fails") << -1;
    QTest::newRow("no arguments") << -2;
}

void tst_DorvelToastEventHandler::ecartement()
{
    QFETCH(int, raison);
    Montre(DonneRappel(), false);
    if (raison == -1)
        mesToasts->Reponds(u"get_Reason"_s, E_FAIL);
    HRESULT const resultat =
        raison == -2 ? mesToasts->EcarteSansArguments(0)
                     : mesToasts->Ecarte(0, static_cast<ToastDismissalReason>(qMax(raison, 0)));
    QCOMPARE(resultat, S_OK);
    QCOMPARE(mesReponses, QList{kBoutonAucun});
    QCOMPARE(mesToasts->DonneAppels().contains("get_Reason()"_L1), raison != -2);
}

void tst_DorvelToastEventHandler::echec()
{
    Montre(DonneRappel(), false);
    QCOMPARE(mesToasts->Echoue(0), S_OK);
    QCOMPARE(mesReponses, QList{kBoutonReessayer});
}

void tst_DorvelToastEventHandler::ordre_data()
{
    QTest::addColumn<QString>("evenement");
    QTest::addColumn<bool>("retirer");
    QTest::addColumn<QStringList>("suite");
    QString const cache = u"Hide()"_s;
    QString const libere = u"~IToastNotifier"_s;
    QString const rappel = u"rappel"_s;
    QTest::newRow("pressed, to be removed")
        << u"Activated"_s << true << QStringList{cache, libere, rappel};
    QTest::newRow("pressed, to stay") << u"Activated"_s << false << QStringList{libere, rappel};
    QTest::newRow("dismissed, to be removed")
        << u"Dismissed"_s << true << QStringList{rappel, cache, libere};
    QTest::newRow("dismissed, to stay") << u"Dismissed"_s << false << QStringList{rappel, libere};
    QTest::newRow("failed, to be removed")
        << u"Failed"_s << true << QStringList{cache, libere, rappel};
    QTest::newRow("failed, to stay") << u"Failed"_s << false << QStringList{libere, rappel};
}

void tst_DorvelToastEventHandler::ordre()
{
    QFETCH(QString, evenement);
    QFETCH(bool, retirer);
    QFETCH(QStringList, suite);
    Montre(DonneRappel(), retirer);
    Envoie(evenement);
    QCOMPARE(DonneSuite(), suite);
    QCOMPARE(mesToasts->EstRetiray(0), retirer);
}

void tst_DorvelToastEventHandler::sansRappel_data()
{
    QTest::addColumn<QString>("evenement");
    QTest::addColumn<int>("resultat");
    QTest::newRow("pressed") << u"Activated"_s << int(S_FALSE);
    QTest::newRow("dismissed") << u"Dismissed"_s << int(S_OK);
    QTest::newRow("failed") << u"Failed"_s << int(S_OK);
}

void tst_DorvelToastEventHandler::sansRappel()
{
    QFETCH(QString, evenement);
    QFETCH(int, resultat);
    Montre({}, true);
    QCOMPARE(int(Envoie(evenement)), resultat);
    QCOMPARE(DonneSuite(), QStringList({u"Hide()"_s, u"~IToastNotifier"_s}));
}

// One event is expected; a second one answers again, with nothing left to remove or to release.
void tst_DorvelToastEventHandler::secondEvenement()
{
    Montre(DonneRappel(), true);
    mesToasts->Active(0, u"kBoutonOui"_s);
    mesToasts->Ecarte(0, ToastDismissalReason_TimedOut);
    mesToasts->Echoue(0);
    QCOMPARE(mesReponses, QList({kBoutonOui, kBoutonAucun, kBoutonReessayer}));
    QCOMPARE(DonneSuite().count("Hide()"_L1), 1);
    QCOMPARE(DonneSuite().count("~IToastNotifier"_L1), 1);
}

void tst_DorvelToastEventHandler::sansEvenement()
{
    Montre(DonneRappel(), true);
    QCOMPARE(mesToasts->DonneNombreObjets(), 2); // the toast and the notifier
    mesToasts->Oublie();
    QCOMPARE(mesToasts->DonneNombreObjets(), 0);
    QCOMPARE(DonneSuite(), QStringList{u"~IToastNotifier"_s});
    QVERIFY(mesReponses.isEmpty());
}

// The platform refuses to hide what it is not told; the answer comes all the same.
void tst_DorvelToastEventHandler::evenementSansToast()
{
    ReferenceComptay<DorvelToastEventHandler> const gestionnaire(
        new DorvelToastEventHandler(DonneRappel(), CreeNotificateur().Prete(), true));
    mesToasts->Note(u"---"_s);
    QCOMPARE(gestionnaire->Invoke(nullptr, static_cast<IToastFailedEventArgs *>(nullptr)), S_OK);
    QCOMPARE(mesReponses, QList{kBoutonReessayer});
    QCOMPARE(DonneSuite(), QStringList({u"Hide()"_s, u"~IToastNotifier"_s, u"rappel"_s}));
}

void tst_DorvelToastEventHandler::evenementPuisOubli_data()
{
    AjouteEvenements();
}

void tst_DorvelToastEventHandler::evenementPuisOubli()
{
    QFETCH(QString, evenement);
    auto const temoin = std::make_shared<int>(0);
    Montre([temoin](eBoutons const &) {}, true);
    Envoie(evenement);
    QCOMPARE(temoin.use_count(), 2); // a second event could come
    mesToasts->Oublie();
    QCOMPARE(temoin.use_count(), 1);
}

void tst_DorvelToastEventHandler::rappelQuiFaitOublierLeToast_data()
{
    AjouteEvenements();
}

void tst_DorvelToastEventHandler::rappelQuiFaitOublierLeToast()
{
    QFETCH(QString, evenement);
    auto const temoin = std::make_shared<int>(0);
    Montre(
        [this, temoin](eBoutons const &) {
            mesToasts->Oublie();
            ++*temoin; // still there
        },
        true);
    Envoie(evenement);
    QCOMPARE(*temoin, 1);
    QCOMPARE(temoin.use_count(), 1);
    QCOMPARE(DonneSuite(), QStringList({u"Hide()"_s, u"~IToastNotifier"_s}));
}

void tst_DorvelToastEventHandler::rappelQuiRendLaDerniereReference_data()
{
    AjouteEvenements();
}

// Nobody holds the handler but the registration that the callback ends.
void tst_DorvelToastEventHandler::rappelQuiRendLaDerniereReference()
{
    QFETCH(QString, evenement);
    auto temoin = std::make_shared<int>(0);
    std::weak_ptr<int> const faible = temoin;
    DorvelToastEventHandler * gestionnaire = nullptr;
    bool vivantApres = false;
    auto const rends = [&] {
        gestionnaire->Release();
        vivantApres = !faible.expired();
    };
    gestionnaire = new DorvelToastEventHandler([temoin, &rends](eBoutons const &) { rends(); },
                                               CreeNotificateur().Prete(), false);
    temoin.reset();
    Activation activation;
    if (evenement == "Activated"_L1)
        gestionnaire->Invoke(nullptr, static_cast<IInspectable *>(&activation));
    else if (evenement == "Dismissed"_L1)
        gestionnaire->Invoke(nullptr, static_cast<IToastDismissedEventArgs *>(nullptr));
    else
        gestionnaire->Invoke(nullptr, static_cast<IToastFailedEventArgs *>(nullptr));
    QVERIFY(vivantApres);
    QVERIFY(faible.expired());
    QCOMPARE(DonneSuite().count("~IToastNotifier"_L1), 1);
}

void tst_DorvelToastEventHandler::sansNotificateur()
{
    ReferenceComptay<DorvelToastEventHandler> const gestionnaire(
        new DorvelToastEventHandler(DonneRappel(), nullptr, true));
    gestionnaire->Invoke(nullptr, static_cast<IToastFailedEventArgs *>(nullptr));
    QCOMPARE(mesReponses, QList{kBoutonReessayer});
}

void tst_DorvelToastEventHandler::compte()
{
    auto const temoin = std::make_shared<int>(0);
    auto * const gestionnaire =
        new DorvelToastEventHandler([temoin](eBoutons const &) {}, nullptr, false);
    QCOMPARE(temoin.use_count(), 2);
    QCOMPARE(gestionnaire->AddRef(), ULONG(2));
    ITypedEventHandler<IInspectable> * const activation = gestionnaire;
    ITypedEventHandler<IToastFailedEventArgs> * const echec = gestionnaire;
    QCOMPARE(echec->AddRef(), ULONG(3)); // one object, whichever interface counts
    QCOMPARE(activation->Release(), ULONG(2));
    QCOMPARE(gestionnaire->Release(), ULONG(1));
    QCOMPARE(temoin.use_count(), 2);
    QCOMPARE(gestionnaire->Release(), ULONG(0));
    QCOMPARE(temoin.use_count(), 1);
}

void tst_DorvelToastEventHandler::rappelSurLeThreadDeLEvenement()
{
    std::thread::id identifiant = std::this_thread::get_id();
    Montre([&](eBoutons const &) { identifiant = std::this_thread::get_id(); }, false);
    mesToasts->Active(0, u"kBoutonOui"_s);
    QVERIFY(identifiant != std::this_thread::get_id());
}

void tst_DorvelToastEventHandler::evenementsSimultanes()
{
    std::atomic<int> appels = 0;
    for (int tour = 0; tour < 50; ++tour) {
        mesToasts = std::make_unique<ToastsSimules>();
        Montre([&](eBoutons const &) { ++appels; }, true);
        std::thread premier([this] { mesToasts->Active(0, u"kBoutonOui"_s); });
        std::thread second([this] { mesToasts->Echoue(0); });
        premier.join();
        second.join();
        QCOMPARE(DonneSuite(), QStringList({u"Hide()"_s, u"~IToastNotifier"_s}));
    }
    QCOMPARE(appels, 100);
}

QTEST_GUILESS_MAIN(tst_DorvelToastEventHandler)
#include "tst_DorvelToastEventHandler.moc"
