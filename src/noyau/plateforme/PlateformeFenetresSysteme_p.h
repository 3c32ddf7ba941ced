// noyau/plateforme/PlateformeFenetresSysteme_p.h
#pragma once

#include <memory>

class PlateformeFenetres;
class QString;

/// The layer of the window system that Qt's platform plugin `plugin` shows windows on; null when
/// the build has none for it. Each system has its own definition.
std::unique_ptr<PlateformeFenetres> CreePlateformeFenetresDuSysteme(QString const & plugin);

/// The layer of a system without such operations: answers null, false and empty.
std::unique_ptr<PlateformeFenetres> CreePlateformeFenetresNulle();
