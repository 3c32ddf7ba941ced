// noyau/plateforme/PlateformeToastsSysteme_p.h
#pragma once

#include <memory>

class PlateformeToasts;

/// The toasts of the system that the library was built for.
std::unique_ptr<PlateformeToasts> CreePlateformeToastsDuSysteme();
