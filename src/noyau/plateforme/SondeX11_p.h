// noyau/plateforme/SondeX11_p.h
#pragma once

#include <xcb/xcb.h>

class ConnexionX11;

/// True when the program of the top-level window answers within `delai` milliseconds, or never
/// promised to answer. Blocks for that long at most, without running Qt's event loop.
bool RepondASonde(ConnexionX11 const & connexion, xcb_window_t fenetre, int delai);
