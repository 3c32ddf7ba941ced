// dialogs/DorvelToastEventHandler.cpp
#include "dialogs/DorvelToastEventHandler_p.h"

#include "dialogs/BoutonsDialogue_p.h"

#include <utility>

using namespace Toasts;

DorvelToastEventHandler::DorvelToastEventHandler(
    std::function<void(DDialogue::eBoutons const &)> rappel, IToastNotifier * notificateur,
    bool retirer)
    : monRappel(std::move(rappel))
    , monNotificateur(ReferenceComptay<IToastNotifier>::Partage(notificateur).Cede())
    , monRetirer(retirer)
{
}

DorvelToastEventHandler::~DorvelToastEventHandler()
{
    if (monNotificateur)
        monNotificateur->Release();
}

ULONG DorvelToastEventHandler::AddRef()
{
    return ++monCompte;
}

ULONG DorvelToastEventHandler::Release()
{
    ULONG const compte = --monCompte;
    if (compte == 0)
        delete this;
    return compte;
}

HRESULT DorvelToastEventHandler::Invoke(IToastNotification * emetteur,
                                        Toasts::IInspectable * arguments)
{
    auto const moi = TiensToi();
    // First, and whatever becomes of the answer: the toast was dealt with.
    Congedie(emetteur);
    if (!arguments || !monRappel)
        return S_FALSE;
    ReferenceComptay<IToastActivatedEventArgs> activation;
    if (FAILED(arguments->QueryInterface(activation.Recois())) || !activation)
        return S_FALSE;
    QString nom;
    if (FAILED(activation->get_Arguments(&nom)))
        return S_FALSE;
    monRappel(BoutonsDialogue::DonneBouton(nom));
    return S_OK;
}

HRESULT DorvelToastEventHandler::Invoke(IToastNotification * emetteur,
                                        IToastDismissedEventArgs * arguments)
{
    auto const moi = TiensToi();
    // Deliberate: read and not used. Every reason is the same answer, that there is none.
    ToastDismissalReason raison = ToastDismissalReason_UserCanceled;
    if (arguments)
        arguments->get_Reason(&raison);
    if (monRappel)
        monRappel(DDialogue::kBoutonAucun);
    // Deliberate: here the answer comes first.
    Congedie(emetteur);
    return S_OK;
}

HRESULT DorvelToastEventHandler::Invoke(IToastNotification * emetteur, IToastFailedEventArgs *)
{
    auto const moi = TiensToi();
    Congedie(emetteur);
    if (monRappel)
        monRappel(DDialogue::kBoutonReessayer);
    return S_OK;
}

ReferenceComptay<DorvelToastEventHandler> DorvelToastEventHandler::TiensToi()
{
    return ReferenceComptay<DorvelToastEventHandler>::Partage(this);
}

void DorvelToastEventHandler::Congedie(IToastNotification * toast)
{
    // Two events may come at the same time, and the reference is released once.
    std::atomic_ref<IToastNotifier *> champ(monNotificateur);
    ReferenceComptay<IToastNotifier> const notificateur(champ.exchange(nullptr));
    if (notificateur && monRetirer)
        notificateur->Hide(toast);
}
