// dialogs/BoutonsDialogue_p.h
#pragma once

#include "dialogs/DDialogue.h"

#include <QMessageBox>
#include <QString>

// What the buttons of the dialogs are called and what they stand for, in one table.
namespace BoutonsDialogue {

/// The name of the enumerator; empty for a value without one, sets of several buttons included.
FABRELGUI_EXPORT QString DonneNom(DDialogue::eBoutons bouton);
/// The button of that name; `kBoutonAucun` for an unknown one and for the empty text.
FABRELGUI_EXPORT DDialogue::eBoutons DonneBouton(QString const & nom);
/// The counterpart in a `QMessageBox`; `NoButton` for a button of our own.
FABRELGUI_EXPORT QMessageBox::StandardButton DonneBoutonStandard(DDialogue::eBoutons bouton);

} // namespace BoutonsDialogue
