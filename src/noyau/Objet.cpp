// noyau/Objet.cpp
#include "noyau/Objet.h"

namespace sdd {

void Objet::VideEtTueObjets() {}

} // namespace sdd
