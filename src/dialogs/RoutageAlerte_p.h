// dialogs/RoutageAlerte_p.h
#pragma once

#include "dialogs/DDialogueAbs.h"

// Where all forms of an alert meet: the checks, and the choice of what appears. In both, `guid` is
// null for an alert that is never remembered.

/// False for a call that is to be refused whatever its form: off the GUI thread, without an
/// application object, or waiting for the answer of what gives none. An empty message is not
/// checked.
bool AlertePeutEtreLancee(DAlerteInfo const & info, bool synchrone);

/// Checks an alert and raises it; `kBoutonAucun` if it was refused. A strict form is modal to the
/// application and has no receiver or callback while it blocks.
DDialogue::eBoutons DAlerteCommune(QWidget * parent, DDialogue::DAlerteReceveur const * receveur,
                                   DAlerteInfo const & info, DDialogue::eTypStockeur typeStockeur,
                                   UniChaine const * guid, int boutons, DDialogue::eBoutons defaut,
                                   DDialogue::eBoutons echap, bool synchrone,
                                   DDialogueAbs::Labels const & labels, bool strict,
                                   RappelAlerte rappel);

/// Raises an alert as its type asks: bubble, progress window, toast or message box.
DDialogue::eBoutons LanceAlerte(QWidget * parent, DDialogue::DAlerteReceveur const * receveur,
                                DAlerteInfo const & info, DDialogue::eTypStockeur typeStockeur,
                                UniChaine const * guid, int boutons, DDialogue::eBoutons defaut,
                                DDialogue::eBoutons echap, bool synchrone,
                                DDialogueAbs::Labels const & labels, RappelAlerte rappel,
                                bool modalFenetre);
