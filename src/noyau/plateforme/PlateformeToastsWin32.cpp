// noyau/plateforme/PlateformeToastsWin32.cpp
#include "noyau/plateforme/PlateformeToasts.h"

#include "noyau/plateforme/DocumentWinRT_p.h"
#include "noyau/plateforme/EnveloppeWinRT_p.h"
#include "noyau/plateforme/InterfacesWinRT_p.h"
#include "noyau/plateforme/PlateformeToastsSysteme_p.h"

#include <objbase.h>
#include <objidl.h>
#include <roapi.h>

#include <atomic>

namespace {
class ActivationWinRT final
    : public Enveloppe<Toasts::IToastActivatedEventArgs, AbiWinRT::IToastActivatedEventArgs>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT get_Arguments(QString * arguments) override
    {
        HSTRING chaine = nullptr;
        HRESULT const resultat = Prete()->get_Arguments(&chaine);
        if (FAILED(resultat))
            return resultat;
        UINT32 longueur = 0;
        wchar_t const * const texte = ::WindowsGetStringRawBuffer(chaine, &longueur);
        *arguments = QString::fromWCharArray(texte, static_cast<qsizetype>(longueur));
        ::WindowsDeleteString(chaine);
        return resultat;
    }
};

class EcartementWinRT final
    : public Enveloppe<Toasts::IToastDismissedEventArgs, AbiWinRT::IToastDismissedEventArgs>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT get_Reason(Toasts::ToastDismissalReason * raison) override
    {
        AbiWinRT::Enumeration valeur = 0;
        HRESULT const resultat = Prete()->get_Reason(&valeur);
        if (SUCCEEDED(resultat))
            *raison = static_cast<Toasts::ToastDismissalReason>(valeur);
        return resultat;
    }
};

using EchecWinRT = Enveloppe<Toasts::IToastFailedEventArgs, AbiWinRT::IToastFailedEventArgs>;

class ArgumentsWinRT final : public Enveloppe<Toasts::IInspectable, AbiWinRT::IInspectable>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT QueryInterface(Toasts::IToastActivatedEventArgs ** arguments) override
    {
        ReferenceComptay<AbiWinRT::IToastActivatedEventArgs> objet;
        return Rends<ActivationWinRT>(Interroge(Prete(), objet.Recois()), objet, arguments);
    }
};

class NotificationWinRT;

// The platform keeps a delegate for as long as its toast, and may call it when a host has unloaded
// what brought us: the module in which the object's functions stand stays for the whole process.
// Pinning it once more does nothing.
template <typename Objet>
void GardeModule(Objet const * objet)
{
    auto const * const fonctions = *reinterpret_cast<void const * const *>(objet);
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                         static_cast<LPCWSTR>(fonctions), &module);
}

// As for the interface that it is made on.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// What the platform calls for one event: hands it to our handler, which it keeps alive.
///
/// Agile, so that the call comes on the thread of the event and not through the message loop of
/// the thread that registered. The free-threaded marshaler says the same to who does not ask for
/// agility.
template <typename Interface, typename Com, typename Adaptateur>
class Delegue final : public AbiWinRT::ITypedEventHandler<Com>
{
public:
    using Gestionnaire = Toasts::ITypedEventHandler<Interface>;

    explicit Delegue(Gestionnaire * gestionnaire)
        : monGestionnaire(ReferenceComptay<Gestionnaire>::Partage(gestionnaire))
    {
        // A part of this object, on which it keeps no reference. Does without it on a failure.
        ::CoCreateFreeThreadedMarshaler(this, monMarshaler.Recois());
    }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void ** objet) override
    {
        if (!objet)
            return E_POINTER;
        if (iid == IID_IMarshal && monMarshaler)
            return monMarshaler->QueryInterface(iid, objet);
        // An agile object has no functions of its own to show for it.
        bool const connu = iid == AbiWinRT::ITypedEventHandler<Com>::kIid || iid == IID_IUnknown ||
                           iid == IID_IAgileObject;
        *objet = connu ? this : nullptr;
        if (!connu)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++monCompte; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        ULONG const compte = --monCompte;
        if (compte == 0)
            delete this;
        return compte;
    }

    HRESULT STDMETHODCALLTYPE Invoke(AbiWinRT::IToastNotification * emetteur,
                                     Com * arguments) noexcept override;

private:
    ~Delegue() = default;

    ReferenceComptay<Gestionnaire> monGestionnaire;
    ReferenceComptay<::IUnknown> monMarshaler;
    std::atomic<ULONG> monCompte = 1;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

class Notification6WinRT final
    : public Enveloppe<Toasts::IToastNotification6, AbiWinRT::IToastNotification6>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT put_ExpiresOnReboot(bool valeur) override
    {
        return Prete()->put_ExpiresOnReboot(valeur);
    }
};

class NotificationWinRT final
    : public Enveloppe<Toasts::IToastNotification, AbiWinRT::IToastNotification>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT add_Activated(Toasts::ITypedEventHandler<Toasts::IInspectable> * gestionnaire,
                          Toasts::EventRegistrationToken * jeton) override
    {
        using DelegueActivation =
            Delegue<Toasts::IInspectable, AbiWinRT::IInspectable, ArgumentsWinRT>;
        return Inscris<DelegueActivation>(&AbiWinRT::IToastNotification::add_Activated,
                                          gestionnaire, jeton);
    }

    HRESULT
    add_Dismissed(Toasts::ITypedEventHandler<Toasts::IToastDismissedEventArgs> * gestionnaire,
                  Toasts::EventRegistrationToken * jeton) override
    {
        using DelegueEcartement = Delegue<Toasts::IToastDismissedEventArgs,
                                          AbiWinRT::IToastDismissedEventArgs, EcartementWinRT>;
        return Inscris<DelegueEcartement>(&AbiWinRT::IToastNotification::add_Dismissed,
                                          gestionnaire, jeton);
    }

    HRESULT add_Failed(Toasts::ITypedEventHandler<Toasts::IToastFailedEventArgs> * gestionnaire,
                       Toasts::EventRegistrationToken * jeton) override
    {
        using DelegueEchec =
            Delegue<Toasts::IToastFailedEventArgs, AbiWinRT::IToastFailedEventArgs, EchecWinRT>;
        return Inscris<DelegueEchec>(&AbiWinRT::IToastNotification::add_Failed, gestionnaire,
                                     jeton);
    }

    HRESULT QueryInterface(Toasts::IToastNotification6 ** notification) override
    {
        ReferenceComptay<AbiWinRT::IToastNotification6> objet;
        return Rends<Notification6WinRT>(Interroge(Prete(), objet.Recois()), objet, notification);
    }

private:
    template <typename TypeDelegue, typename Operation>
    HRESULT Inscris(Operation operation, typename TypeDelegue::Gestionnaire * gestionnaire,
                    Toasts::EventRegistrationToken * jeton)
    {
        ReferenceComptay<TypeDelegue> const delegue(new TypeDelegue(gestionnaire));
        GardeModule(delegue.Prete());
        GardeModule(gestionnaire);
        AbiWinRT::EventRegistrationToken jetonWinRT{};
        HRESULT const resultat = (Prete()->*operation)(delegue.Prete(), &jetonWinRT);
        jeton->value = jetonWinRT.value;
        return resultat;
    }
};

template <typename Interface, typename Com, typename Adaptateur>
HRESULT STDMETHODCALLTYPE Delegue<Interface, Com, Adaptateur>::Invoke(
    AbiWinRT::IToastNotification * emetteur, Com * arguments) noexcept
{
    ReferenceComptay<Toasts::IToastNotification> const toast(
        emetteur ? new NotificationWinRT(emetteur) : nullptr);
    ReferenceComptay<Interface> const adaptes(arguments ? new Adaptateur(arguments) : nullptr);
    return monGestionnaire->Invoke(toast.Prete(), adaptes.Prete());
}

class FabriqueWinRT final
    : public Enveloppe<Toasts::IToastNotificationFactory, AbiWinRT::IToastNotificationFactory>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT CreateToastNotification(Toasts::IXmlDocument * document,
                                    Toasts::IToastNotification ** notification) override
    {
        auto * const xml = static_cast<DocumentWinRT *>(document)->Prete();
        ReferenceComptay<AbiWinRT::IToastNotification> objet;
        return Rends<NotificationWinRT>(Prete()->CreateToastNotification(xml, objet.Recois()),
                                        objet, notification);
    }
};

class NotificateurWinRT final : public Enveloppe<Toasts::IToastNotifier, AbiWinRT::IToastNotifier>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT Show(Toasts::IToastNotification * notification) override
    {
        return Prete()->Show(static_cast<NotificationWinRT *>(notification)->Prete());
    }

    HRESULT Hide(Toasts::IToastNotification * notification) override
    {
        return notification ? Prete()->Hide(static_cast<NotificationWinRT *>(notification)->Prete())
                            : E_POINTER;
    }

    HRESULT get_Setting(Toasts::NotificationSetting * reglage) override
    {
        AbiWinRT::Enumeration valeur = 0;
        HRESULT const resultat = Prete()->get_Setting(&valeur);
        if (SUCCEEDED(resultat))
            *reglage = static_cast<Toasts::NotificationSetting>(valeur);
        return resultat;
    }
};

class GestionnaireWinRT final : public Enveloppe<Toasts::IToastNotificationManagerStatics,
                                                 AbiWinRT::IToastNotificationManagerStatics>
{
public:
    using Enveloppe::Enveloppe;

    HRESULT CreateToastNotifierWithId(QString const & identifiantApplication,
                                      Toasts::IToastNotifier ** notificateur) override
    {
        *notificateur = nullptr;
        ChaineWinRT const chaine(identifiantApplication);
        if (FAILED(chaine.DonneResultat()))
            return chaine.DonneResultat();
        ReferenceComptay<AbiWinRT::IToastNotifier> objet;
        return Rends<NotificateurWinRT>(
            Prete()->CreateToastNotifierWithId(chaine.Prete(), objet.Recois()), objet,
            notificateur);
    }

    HRESULT GetTemplateContent(Toasts::ToastTemplateType type,
                               Toasts::IXmlDocument ** document) override
    {
        ReferenceComptay<AbiWinRT::IXmlDocument> objet;
        return Rends<DocumentWinRT>(Prete()->GetTemplateContent(type, objet.Recois()), objet,
                                    document);
    }
};

class PlateformeToastsWin32 final : public PlateformeToasts
{
public:
    HRESULT RoGetActivationFactory(QString const & classe,
                                   Toasts::IToastNotificationManagerStatics ** fabrique) override
    {
        return Active<GestionnaireWinRT, AbiWinRT::IToastNotificationManagerStatics>(classe,
                                                                                     fabrique);
    }

    HRESULT RoGetActivationFactory(QString const & classe,
                                   Toasts::IToastNotificationFactory ** fabrique) override
    {
        return Active<FabriqueWinRT, AbiWinRT::IToastNotificationFactory>(classe, fabrique);
    }

private:
    template <typename Adaptateur, typename Com, typename Interface>
    static HRESULT Active(QString const & classe, Interface ** fabrique)
    {
        *fabrique = nullptr;
        // Qt gives the GUI thread its apartment with the window system of the desktop only. An
        // apartment of the other kind will do as well. It stays for as long as the thread: nobody
        // can tell when the last object of the platform goes.
        thread_local HRESULT const appartement = ::RoInitialize(RO_INIT_SINGLETHREADED);
        Q_UNUSED(appartement)
        ChaineWinRT const chaine(classe);
        if (FAILED(chaine.DonneResultat()))
            return chaine.DonneResultat();
        ReferenceComptay<Com> objet;
        HRESULT const resultat = ::RoGetActivationFactory(
            chaine.Prete(), Com::kIid, reinterpret_cast<void **>(objet.Recois()));
        return Rends<Adaptateur>(resultat, objet, fabrique);
    }
};
} // namespace

std::unique_ptr<PlateformeToasts> CreePlateformeToastsDuSysteme()
{
    return std::make_unique<PlateformeToastsWin32>();
}
