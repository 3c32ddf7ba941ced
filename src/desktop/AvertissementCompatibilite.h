// desktop/AvertissementCompatibilite.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <list>

namespace RoutinesGeneralesQt {

/// Warns of each program (`*.exe`) directly in one of the directories that runs in a compatibility
/// mode, and advises to turn that off. Blocks, one alert after the other.
///
/// "Ignore" goes on to the next program, "Quit" ends the process with the exit code 0, and
/// "Browse..." opens the program's directory and ends it likewise. Silent for good once the user
/// has ticked "do not show again" on an alert with this `guid`; with an empty one nothing is ever
/// remembered. Does nothing on systems without compatibility modes.
FABRELGUI_EXPORT void InformerUtilisationAppCompatFlags(std::list<UniChaine> repertoires,
                                                        UniChaine const & guid);

} // namespace RoutinesGeneralesQt
