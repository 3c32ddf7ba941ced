// tests/outils/ToastsSimules.cpp
#include "outils/ToastsSimules.h"

#include "outils/DocumentSimulay_p.h"
#include "outils/ObjetSimulay_p.h"

#include <thread>
#include <utility>

using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {
// As the platform documents it.
constexpr auto kModele = "<toast><visual><binding template=\"ToastImageAndText04\">"
                         "<image id=\"1\" src=\"\"/><text id=\"1\"></text><text id=\"2\"></text>"
                         "<text id=\"3\"></text></binding></visual></toast>"_L1;
} // namespace

class NotificationSimulee final : public Simulay<IToastNotification>
{
public:
    NotificationSimulee(PointeurEtat etat, QDomDocument document_)
        : Simulay(std::move(etat))
        , document(std::move(document_))
    {
    }

    HRESULT add_Activated(ITypedEventHandler<IInspectable> * gestionnaire,
                          EventRegistrationToken * jeton) override
    {
        return Inscris(u"add_Activated"_s, gestionnaire, activation, jeton);
    }

    HRESULT add_Dismissed(ITypedEventHandler<IToastDismissedEventArgs> * gestionnaire,
                          EventRegistrationToken * jeton) override
    {
        return Inscris(u"add_Dismissed"_s, gestionnaire, ecartement, jeton);
    }

    HRESULT add_Failed(ITypedEventHandler<IToastFailedEventArgs> * gestionnaire,
                       EventRegistrationToken * jeton) override
    {
        return Inscris(u"add_Failed"_s, gestionnaire, echec, jeton);
    }

    HRESULT QueryInterface(IToastNotification6 ** notification) override;

    QDomDocument document;
    QString identifiant; // of the application
    bool expire = false;
    bool retiray = false;
    ReferenceComptay<ITypedEventHandler<IInspectable>> activation;
    ReferenceComptay<ITypedEventHandler<IToastDismissedEventArgs>> ecartement;
    ReferenceComptay<ITypedEventHandler<IToastFailedEventArgs>> echec;

private:
    template <typename Gestionnaire>
    HRESULT Inscris(QString const & operation, Gestionnaire * gestionnaire,
                    ReferenceComptay<Gestionnaire> & place, EventRegistrationToken * jeton)
    {
        HRESULT const resultat = monEtat->Passe(operation);
        if (FAILED(resultat))
            return resultat;
        place = ReferenceComptay<Gestionnaire>::Partage(gestionnaire);
        jeton->value = ++monJeton;
        return resultat;
    }

    qint64 monJeton = 0;
};

namespace {
class Notification6Simulee final : public Simulay<IToastNotification6>
{
public:
    Notification6Simulee(PointeurEtat etat, NotificationSimulee * notification)
        : Simulay(std::move(etat))
        , maNotification(ReferenceComptay<NotificationSimulee>::Partage(notification))
    {
    }

    HRESULT put_ExpiresOnReboot(bool valeur) override
    {
        HRESULT const resultat =
            monEtat->Passe(u"put_ExpiresOnReboot"_s, valeur ? u"true"_s : u"false"_s);
        if (SUCCEEDED(resultat))
            maNotification->expire = valeur;
        return resultat;
    }

private:
    ReferenceComptay<NotificationSimulee> maNotification;
};

} // namespace

HRESULT NotificationSimulee::QueryInterface(IToastNotification6 ** notification)
{
    return monEtat->Rend(monEtat->Passe(u"QueryInterface"_s, u"IToastNotification6"_s),
                         u"QueryInterface"_s, notification,
                         [&] { return new Notification6Simulee(monEtat, this); });
}

namespace {
class FabriqueSimulee final : public Simulay<IToastNotificationFactory>
{
public:
    using Simulay::Simulay;

    HRESULT CreateToastNotification(IXmlDocument * document,
                                    IToastNotification ** notification) override
    {
        return monEtat->Rend(monEtat->Passe(u"CreateToastNotification"_s),
                             u"CreateToastNotification"_s, notification, [&] {
                                 return new NotificationSimulee(
                                     monEtat, static_cast<DocumentSimulay *>(document)->document);
                             });
    }
};

class NotificateurSimulay final : public Simulay<IToastNotifier>
{
public:
    NotificateurSimulay(PointeurEtat etat, QString identifiant, NotificationSetting reglage)
        : Simulay(std::move(etat))
        , monIdentifiant(std::move(identifiant))
        , monReglage(reglage)
    {
    }

    HRESULT Show(IToastNotification * notification) override
    {
        HRESULT const resultat = monEtat->Passe(u"Show"_s);
        if (FAILED(resultat))
            return resultat;
        auto * const montree = static_cast<NotificationSimulee *>(notification);
        montree->identifiant = monIdentifiant;
        monEtat->toasts.push_back(ReferenceComptay<NotificationSimulee>::Partage(montree));
        return resultat;
    }

    HRESULT Hide(IToastNotification * notification) override
    {
        HRESULT const resultat = monEtat->Passe(u"Hide"_s);
        if (!notification)
            return E_POINTER;
        if (SUCCEEDED(resultat))
            static_cast<NotificationSimulee *>(notification)->retiray = true;
        return resultat;
    }

    HRESULT get_Setting(NotificationSetting * reglage) override
    {
        HRESULT const resultat = monEtat->Passe(u"get_Setting"_s);
        if (SUCCEEDED(resultat))
            *reglage = monReglage;
        return resultat;
    }

protected:
    ~NotificateurSimulay() override
    {
        QMutexLocker const verrou(&monEtat->mutex);
        monEtat->appels << u"~IToastNotifier"_s;
    }

private:
    QString monIdentifiant;
    NotificationSetting monReglage;
};

class GestionnaireSimulay final : public Simulay<IToastNotificationManagerStatics>
{
public:
    using Simulay::Simulay;

    HRESULT CreateToastNotifierWithId(QString const & identifiantApplication,
                                      IToastNotifier ** notificateur) override
    {
        return monEtat->Rend(monEtat->Passe(u"CreateToastNotifierWithId"_s, identifiantApplication),
                             u"CreateToastNotifierWithId"_s, notificateur, [&] {
                                 return new NotificateurSimulay(monEtat, identifiantApplication,
                                                                monEtat->reglage);
                             });
    }

    HRESULT GetTemplateContent(ToastTemplateType type, IXmlDocument ** document) override
    {
        return monEtat->Rend(monEtat->Passe(u"GetTemplateContent"_s, QString::number(type)),
                             u"GetTemplateContent"_s, document,
                             [&] { return new DocumentSimulay(monEtat, monEtat->modele); });
    }
};

class ActivationSimulee final : public Simulay<IToastActivatedEventArgs>
{
public:
    ActivationSimulee(PointeurEtat etat, QString arguments)
        : Simulay(std::move(etat))
        , mesArguments(std::move(arguments))
    {
    }

    HRESULT get_Arguments(QString * arguments) override
    {
        HRESULT const resultat = monEtat->Passe(u"get_Arguments"_s);
        if (SUCCEEDED(resultat))
            *arguments = mesArguments;
        return resultat;
    }

private:
    QString mesArguments;
};

class ArgumentsSimules final : public Simulay<IInspectable>
{
public:
    ArgumentsSimules(PointeurEtat etat, QString arguments, bool deLActivation)
        : Simulay(std::move(etat))
        , mesArguments(std::move(arguments))
        , monDeLActivation(deLActivation)
    {
    }

    HRESULT QueryInterface(IToastActivatedEventArgs ** arguments) override
    {
        HRESULT resultat = monEtat->Passe(u"QueryInterface"_s, u"IToastActivatedEventArgs"_s);
        if (SUCCEEDED(resultat) && !monDeLActivation)
            resultat = E_NOINTERFACE;
        return monEtat->Rend(resultat, u"QueryInterface"_s, arguments,
                             [&] { return new ActivationSimulee(monEtat, mesArguments); });
    }

private:
    QString mesArguments;
    bool monDeLActivation;
};

class EcartementSimulay final : public Simulay<IToastDismissedEventArgs>
{
public:
    EcartementSimulay(PointeurEtat etat, ToastDismissalReason raison)
        : Simulay(std::move(etat))
        , maRaison(raison)
    {
    }

    HRESULT get_Reason(ToastDismissalReason * raison) override
    {
        HRESULT const resultat = monEtat->Passe(u"get_Reason"_s);
        if (SUCCEEDED(resultat))
            *raison = maRaison;
        return resultat;
    }

private:
    ToastDismissalReason maRaison;
};

using EchecSimulay = Simulay<IToastFailedEventArgs>;

// The handler is called on a thread of its own; the caller waits for it. As on the platform, the
// toast and the handler last for the call, also when it makes the layer forget the toast.
template <typename Gestionnaire, typename Arguments>
HRESULT Appelle(Gestionnaire * gestionnaire, NotificationSimulee * toast, Arguments * arguments)
{
    auto const tenu = ReferenceComptay<Gestionnaire>::Partage(gestionnaire);
    auto const toastTenu = ReferenceComptay<NotificationSimulee>::Partage(toast);
    ReferenceComptay<Arguments> const cedes(arguments);
    HRESULT resultat = E_FAIL;
    std::thread thread([&] { resultat = gestionnaire->Invoke(toast, arguments); });
    thread.join();
    return resultat;
}
} // namespace

ToastsSimules::ToastsSimules()
    : monEtat(std::make_shared<Etat>())
{
    monEtat->modele = kModele;
}

ToastsSimules::~ToastsSimules()
{
    Oublie(); // else the toasts and what they share would hold each other
}

void ToastsSimules::MetsReglage(NotificationSetting reglage)
{
    monEtat->reglage = reglage;
}

void ToastsSimules::MetsModele(QString const & modele)
{
    monEtat->modele = modele;
}

void ToastsSimules::Reponds(QString const & operation, HRESULT resultat)
{
    monEtat->reponses.insert(operation, resultat);
}

void ToastsSimules::RepondsAppel(int rang, HRESULT resultat)
{
    monEtat->reponsesParRang.insert(rang, resultat);
}

void ToastsSimules::RendsRien(QString const & operation)
{
    monEtat->sansObjet.insert(operation);
}

void ToastsSimules::RendsRienAppel(int rang)
{
    monEtat->sansObjetParRang.insert(rang);
}

QStringList ToastsSimules::DonneAppels() const
{
    QMutexLocker const verrou(&monEtat->mutex);
    return monEtat->appels;
}

void ToastsSimules::Note(QString const & ligne)
{
    QMutexLocker const verrou(&monEtat->mutex);
    monEtat->appels << ligne;
}

int ToastsSimules::DonneNombreObjets() const
{
    return monEtat->nombreObjets;
}

int ToastsSimules::DonneNombreToasts() const
{
    return static_cast<int>(monEtat->toasts.size());
}

QString ToastsSimules::DonneIdentifiant(int toast) const
{
    return monEtat->toasts.at(toast)->identifiant;
}

QDomDocument ToastsSimules::DonneDocument(int toast) const
{
    // Through its text, which is what the platform receives.
    QDomDocument document;
    document.setContent(monEtat->toasts.at(toast)->document.toString(-1));
    return document;
}

bool ToastsSimules::ExpireAuRedemarrage(int toast) const
{
    return monEtat->toasts.at(toast)->expire;
}

bool ToastsSimules::EstRetiray(int toast) const
{
    return monEtat->toasts.at(toast)->retiray;
}

void ToastsSimules::Oublie()
{
    monEtat->toasts.clear();
}

HRESULT ToastsSimules::Active(int toast, QString const & arguments)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IInspectable>, IInspectable>(
        notification->activation.Prete(), notification,
        new ArgumentsSimules(monEtat, arguments, true));
}

HRESULT ToastsSimules::ActiveAutrement(int toast)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IInspectable>, IInspectable>(
        notification->activation.Prete(), notification, new ArgumentsSimules(monEtat, {}, false));
}

HRESULT ToastsSimules::ActiveSansArguments(int toast)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IInspectable>, IInspectable>(notification->activation.Prete(),
                                                                   notification, nullptr);
}

HRESULT ToastsSimules::Ecarte(int toast, ToastDismissalReason raison)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IToastDismissedEventArgs>, IToastDismissedEventArgs>(
        notification->ecartement.Prete(), notification, new EcartementSimulay(monEtat, raison));
}

HRESULT ToastsSimules::EcarteSansArguments(int toast)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IToastDismissedEventArgs>, IToastDismissedEventArgs>(
        notification->ecartement.Prete(), notification, nullptr);
}

HRESULT ToastsSimules::Echoue(int toast)
{
    auto * const notification = monEtat->toasts.at(toast).Prete();
    return Appelle<ITypedEventHandler<IToastFailedEventArgs>, IToastFailedEventArgs>(
        notification->echec.Prete(), notification, new EchecSimulay(monEtat));
}

HRESULT ToastsSimules::RoGetActivationFactory(QString const & classe,
                                              IToastNotificationManagerStatics ** fabrique)
{
    return monEtat->Rend(monEtat->Passe(u"RoGetActivationFactory"_s, classe),
                         u"RoGetActivationFactory"_s, fabrique,
                         [&] { return new GestionnaireSimulay(monEtat); });
}

HRESULT ToastsSimules::RoGetActivationFactory(QString const & classe,
                                              IToastNotificationFactory ** fabrique)
{
    return monEtat->Rend(monEtat->Passe(u"RoGetActivationFactory"_s, classe),
                         u"RoGetActivationFactory"_s, fabrique,
                         [&] { return new FabriqueSimulee(monEtat); });
}
