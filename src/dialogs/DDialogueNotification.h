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
    /// True when the platform can show toasts at all.
    static bool PeutUtiliserAPIToastNotification();
    /// True when the toast was shown; its answer then goes to `rappel`, on a thread of the
    /// platform. Otherwise says nothing, and drops its copy of `rappel` uncalled.
    ///
    /// The toast has the message and the explanation of `info`, one action for each button of the
    /// mask `boutons`, and none for OK alone; that one leaves the notification centre after its
    /// answer. An alert that is no `DAlerteNotification` takes the application-wide image and
    /// shortcut. The default and escape buttons have no effect, for a toast has neither. GUI thread
    /// only.
    static bool Affiche(DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
                        DDialogue::eBoutons echap, std::list<UniChaine> labels,
                        std::function<void(DDialogue::eBoutons const &)> rappel);
};
