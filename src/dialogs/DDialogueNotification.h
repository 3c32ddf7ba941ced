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
    /// platform. The default and escape buttons have no effect, for a toast has neither.
    static bool Affiche(DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
                        DDialogue::eBoutons echap, std::list<UniChaine> labels,
                        std::function<void(DDialogue::eBoutons const &)> rappel);
};
