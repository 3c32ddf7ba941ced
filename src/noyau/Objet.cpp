// noyau/Objet.cpp
#include "noyau/Objet.h"

namespace sdd {

Objet::~Objet() = default;

void Objet::VideEtTueObjets() {}

} // namespace sdd
