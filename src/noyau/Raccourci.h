// noyau/Raccourci.h
#pragma once

#include "noyau/UniChaine.h"

namespace Raccourci {

/// A shortcut of the Start menu, or of the applications menu.
struct InfosPourRaccourci
{
    UniChaine identifiantApplication; ///< the application's identifier on the platform
    UniChaine nom;
    UniChaine cible;
    UniChaine arguments;
    UniChaine icone;
};

/// True when the menu holds a shortcut of that identifier or name.
FABRELNOYAU_EXPORT bool RaccourciProgrammesExiste(InfosPourRaccourci const & infos);

} // namespace Raccourci
