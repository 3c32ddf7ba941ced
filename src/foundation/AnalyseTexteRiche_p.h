// foundation/AnalyseTexteRiche_p.h
#pragma once

#include "foundation/TexteRiche.h"

class PoliceTexteRiche;

/// Reads the tags of `source` in time that grows with its length, however they are nested or
/// broken.
RoutinesGeneralesQt::TexteAvecFormat AnalyseTexteRiche(UniChaine const & source,
                                                       PoliceTexteRiche const & police);
