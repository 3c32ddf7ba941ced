// dialogs/DAlerteInfoMaison.cpp
#include "dialogs/DAlerteInfoMaison.h"

DAlerteInfoMaison::DAlerteInfoMaison(ImageCommune const & icone, UniChaine const & message,
                                     UniChaine const & note, UniChaine const & titre)
    : DAlerteInfo(kMaison, message, note, titre)
    , monIcone(icone)
{
}

DAlerteInfoMaison::~DAlerteInfoMaison() = default;
