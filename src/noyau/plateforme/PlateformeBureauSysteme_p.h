// noyau/plateforme/PlateformeBureauSysteme_p.h
#pragma once

#include <memory>

class PlateformeBureau;

/// The services of the system that the library was built for.
std::unique_ptr<PlateformeBureau> CreePlateformeBureauDuSysteme();
