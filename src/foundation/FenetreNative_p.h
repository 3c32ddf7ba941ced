// foundation/FenetreNative_p.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <QRect>
#include <qwindowdefs.h>

#include <optional>

class QScreen;

// The handles of native windows, and where these are, of this program and of others. GUI thread
// only.
namespace RoutinesGeometrie {

/// The native window under the number that Qt gives it.
inline HWND DonnePoignee(WId identifiant)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(identifiant);
}

/// The inside of the window on the desktop, in native pixels; none when the window can't be asked.
std::optional<QRect> DonneInterieurNatif(HWND fenetre);

/// The same in Qt's device-independent pixels.
std::optional<QRect> DonneInterieur(HWND fenetre);

/// The screen that has most of the window; null when it can't be told.
QScreen const * DonneEcranDe(HWND fenetre);

} // namespace RoutinesGeometrie
