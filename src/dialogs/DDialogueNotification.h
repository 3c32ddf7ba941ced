// dialogs/DDialogueNotification.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/UniChaine.h"

#include <functional>
#include <list>

class DAlerteInfo;

/// Shows alerts as toasts of the platform.
class FABRELGUI_EXPORT DDialogueNotification
{
public:
    /// True when the system is a Windows that has toasts. The version alone decides: `Affiche` may
    /// still say no, to an application without a shortcut or to a user who wants none.
    static bool PeutUtiliserAPIToastNotification();
    /// True when the toast was shown; its answer then goes to `rappel`, on a thread of the
    /// platform. Otherwise says nothing, and drops its copy of `rappel` uncalled: so without a
    /// shortcut of the alert's application in the Start menu.
    ///
    /// The toast has the message and the explanation of `info`, one action for each button of the
    /// mask `boutons`, and none for OK alone; that one leaves the notification centre after its
    /// answer. An alert that is no `DAlerteNotification` takes the application-wide image and
    /// shortcut. The default and escape buttons have no effect, for a toast has neither. The store
    /// of remembered answers is neither read nor written. GUI thread only.
    ///
    /// An action answers its button. To dismiss the toast answers `kBoutonAucun`, and so does to
    /// press it beside its actions, also for OK alone. A failure after it was shown answers
    /// `kBoutonReessayer`, whether `boutons` has it or not. One answer is usual, but the platform
    /// may report more: `rappel` may be called again, and must not throw. It may be empty.
    static bool Affiche(DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
                        DDialogue::eBoutons echap, std::list<UniChaine> labels,
                        std::function<void(DDialogue::eBoutons const &)> rappel);
};
