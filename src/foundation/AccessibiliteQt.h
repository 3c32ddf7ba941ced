// foundation/AccessibiliteQt.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

/// The pieces from which the texts for assistive technologies are put together.
namespace AccessibiliteQt {

extern FABRELGUI_EXPORT UniChaine const kBaliseContenu; ///< stands for a widget's content
extern FABRELGUI_EXPORT UniChaine const kEspace;
extern FABRELGUI_EXPORT UniChaine const kPoint;
extern FABRELGUI_EXPORT UniChaine const kRaccourciClavier; ///< announces a keyboard shortcut
extern FABRELGUI_EXPORT UniChaine const kVirgule;

} // namespace AccessibiliteQt
