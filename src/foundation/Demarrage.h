// foundation/Demarrage.h
#pragma once

#include "FabrelGuiExport.h"

/// Creates a `QApplication` without arguments where no application object exists, and does nothing
/// where one does. For plug-ins of hosts that have no Qt of their own; the object is never
/// destroyed.
FABRELGUI_EXPORT void InitQApplication();

namespace RoutinesGeneralesQt {

/// True on the thread that loaded the library. Qt is not asked: an application loads the library on
/// the thread that will run its event loop, or no alert will ever show.
FABRELGUI_EXPORT bool EstThreadGraphique();

} // namespace RoutinesGeneralesQt
