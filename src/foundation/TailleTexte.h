// foundation/TailleTexte.h
#pragma once

#include "FabrelGuiExport.h"

#include <QSize>

class QFont;
class QString;

namespace RoutinesGeneralesQt {

/// The room that `texte` takes on one line in `police`, in logical pixels: its advance, and the
/// height of the font, also for the empty text. Mark-up counts as the characters that it is made
/// of.
FABRELGUI_EXPORT QSize DonneTailleTexteBrut(QString const & texte, QFont const & police);

} // namespace RoutinesGeneralesQt
