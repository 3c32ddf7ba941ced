// foundation/Layouts.h
#pragma once

#include "FabrelGuiExport.h"

class QLayout;

namespace RoutinesGeneralesQt {

/// Sets the four margins of the layout to 0; its spacing stays. Null does nothing.
FABRELGUI_EXPORT void EnleveMargesDuLayout(QLayout * disposition);

} // namespace RoutinesGeneralesQt
