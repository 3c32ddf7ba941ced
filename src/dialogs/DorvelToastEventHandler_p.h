// dialogs/DorvelToastEventHandler_p.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/plateforme/InterfacesToasts.h"
#include "noyau/plateforme/ReferenceComptay.h"

#include <atomic>
#include <functional>

/// Turns the events of a toast into the answer of its alert. Counted; the registrations on the
/// toast keep it alive, and none is ever taken back.
///
/// One event is expected, on a thread of the platform, and the callback is called there.
/// Deliberate: nothing keeps a second event from calling it again.
class FABRELGUI_EXPORT DorvelToastEventHandler final
    : public Toasts::ITypedEventHandler<Toasts::IInspectable>,
      public Toasts::ITypedEventHandler<Toasts::IToastDismissedEventArgs>,
      public Toasts::ITypedEventHandler<Toasts::IToastFailedEventArgs>
{
public:
    /// Begins with one reference, the caller's. Keeps one on `notificateur` until the first event.
    /// `retirer`: an event removes the toast from the notification centre.
    DorvelToastEventHandler(std::function<void(DDialogue::eBoutons const &)> rappel,
                            Toasts::IToastNotifier * notificateur, bool retirer);

    ULONG AddRef() override;
    ULONG Release() override;

    /// The toast, or one of its buttons, was pressed: the button that the arguments name is the
    /// answer. `S_FALSE`, and no answer, when they cannot be read or nobody waits for one.
    HRESULT Invoke(Toasts::IToastNotification * emetteur,
                   Toasts::IInspectable * arguments) override;
    /// The toast went away: `kBoutonAucun`.
    HRESULT Invoke(Toasts::IToastNotification * emetteur,
                   Toasts::IToastDismissedEventArgs * arguments) override;
    /// The toast could not be shown after all: `kBoutonReessayer`.
    HRESULT Invoke(Toasts::IToastNotification * emetteur,
                   Toasts::IToastFailedEventArgs * arguments) override;

private:
    ~DorvelToastEventHandler() override;

    // For the length of an event: the callback may end the registration, and nobody else need hold
    // this object.
    ReferenceComptay<DorvelToastEventHandler> TiensToi();
    void Congedie(Toasts::IToastNotification * toast);

    std::function<void(DDialogue::eBoutons const &)> monRappel;
    Toasts::IToastNotifier * monNotificateur;
    bool monRetirer;
    std::atomic<ULONG> monCompte = 1;
};
