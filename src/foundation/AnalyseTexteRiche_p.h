// foundation/AnalyseTexteRiche_p.h
#pragma once

#include "foundation/TexteRiche.h"

#include <QStringView>

class PoliceTexteRiche;

/// What the tag of a highlighted text begins with.
inline constexpr QStringView kDebutSurlignement = u"<span class=\"surlignement\"";

/// Reads the tags of `source` in time that grows with its length, however they are nested or
/// broken.
RoutinesGeneralesQt::TexteAvecFormat AnalyseTexteRiche(UniChaine const & source,
                                                       PoliceTexteRiche const & police);
