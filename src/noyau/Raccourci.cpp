// noyau/Raccourci.cpp
#include "noyau/Raccourci.h"

#include "noyau/plateforme/PlateformeBureau.h"

bool Raccourci::RaccourciProgrammesExiste(InfosPourRaccourci const & infos)
{
    return PlateformeBureau::Courante().RaccourciExiste({infos.identifiantApplication, infos.nom});
}
