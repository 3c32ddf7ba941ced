// style/RegleTexteRiche.h
#pragma once

#include "noyau/UniChaine.h"

#include <functional>
#include <map>
#include <utility>

/// Rewrites one element of a tagged text.
///
/// The arguments are the text being built, and the opening and closing tag as (position, length) in
/// it; a closing tag of length 0 means that there is none. The result is the length of the whole
/// element after the rewriting: by it, the rules that run later find their tags.
using RegleTexteRiche = std::function<int(UniChaine *, std::pair<unsigned int, unsigned int> &,
                                          std::pair<unsigned int, unsigned int> &)>;

/// Rules by the full inside of their opening tag, without the angle brackets: "b", "br/". The rule
/// under the empty key rewrites the whole text.
using EnsembleRegles = std::map<UniChaine, RegleTexteRiche>;
