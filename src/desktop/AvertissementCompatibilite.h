// desktop/AvertissementCompatibilite.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <list>

namespace RoutinesGeneralesQt {

FABRELGUI_EXPORT void InformerUtilisationAppCompatFlags(std::list<UniChaine> repertoires,
                                                        UniChaine const & guid);

} // namespace RoutinesGeneralesQt
