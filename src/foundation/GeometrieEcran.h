// foundation/GeometrieEcran.h
#pragma once

#include "FabrelGuiExport.h"

#include <QPoint>
#include <QRect>
#include <QSize>

class QScreen;
class QWidget;

// Keeping windows on the screens. Positions and sizes are Qt's, in device-independent pixels. GUI
// thread only. Where there is no screen, nothing is moved and sizes stay as they are.

namespace RoutinesGeneralesQt {

/// The screen that contains `point`, or else the one whose centre is nearest; the primary screen
/// when there is no list of screens, which may be null.
FABRELGUI_EXPORT QScreen * EcranLePlusProche(QPoint const & point);

/// The whole size of the screen, task bar included; empty for null.
FABRELGUI_EXPORT QSize DonneResolutionEcran(QScreen * ecran);

/// Moves `rect` into the available part of the screen nearest to its centre; the left and top edges
/// win where it is too large.
///
/// Nothing moves while the middle of the top edge, the title bar of a window, is on the screen,
/// unless with `force`. `avecMarge` keeps 5 pixels from the edges. `redimensionne` shrinks what is
/// larger than the screen, less the room for a title bar and, with the margin, 10 pixels, or 15
/// when the rectangle was to be moved.
///
/// Once control is back in the event loop, each top-level widget is told that windows were moved:
/// its dynamic property "DoitRefaireAjusteDansEcran" is set to true if it has none, and where it is
/// true the widget gets an event of the type `QEvent::User` (1000), on which it may adjust itself
/// again. What widgets adjust while they handle it starts no further round.
FABRELGUI_EXPORT void AjusteDansEcran(QRect & rect, bool avecMarge, bool force, bool redimensionne);
/// The same for the frame of a widget at its position: moves it when its frame has to move or to
/// shrink, and with `redimensionne` gives it the smaller size. Without that flag the size never
/// changes, however large the widget is.
FABRELGUI_EXPORT void AjusteDansEcran(QWidget & widget, bool avecMarge, bool force,
                                      bool redimensionne);

/// Centres `rect` in the available part of the screen with the mouse, or with `plusHaut` 3/14 of
/// that part's height above its centre.
FABRELGUI_EXPORT void CentreDansEcranActif(QRect & rect, bool plusHaut);
/// The same for the frame of a widget; moves it only on a change.
FABRELGUI_EXPORT void CentreDansEcranActif(QWidget & widget, bool plusHaut);

/// The height to which a rectangle that hangs out at the bottom of its screen is to be cut, or the
/// height that it has when it does not. `avecMarge` keeps 10 pixels from the edge.
FABRELGUI_EXPORT int TrouveHauteurMaxSelonPositionDansEcran(QRect rect, bool avecMarge);

} // namespace RoutinesGeneralesQt

namespace RoutinesFenetre {

/// Where a pop-up goes with regard to what it belongs to.
enum eDirectionAffichage
{
    kDirectionAucune = 0, ///< not decided yet
    kAuDessusForce = 1,   ///< above, but only to keep clear of it
    kAuDessus = 2,
    kEnDessous = 3
};

/// Centres `widget`, not null, on its parent widget; without one, on its native parent; without
/// either, on the screen with the mouse.
///
/// `plusHaut` places it higher by 3/14 of the height of the parent widget or of the screen; a
/// native parent knows no higher place. The native parent of a widget whose window exists is its
/// foreign transient parent (`QWindow::setTransientParent`), or else the owner that the platform
/// layer tells of, which must be a live window.
FABRELGUI_EXPORT void CentrageWidgetDansParentOuEcran(QWidget * widget, bool plusHaut);

/// Moves `widget`, not null, to the place nearest to `rect` at which it is inside the screen and
/// clear of three rectangles, and returns the direction that it took. All rectangles are in global
/// coordinates, and a null one is nowhere in the way.
///
/// It goes `ecart` pixels above `rectC`, and as `direction` says `ecart` pixels above `rectA`; last
/// to the left of `rectB`. With `kAuDessus` it goes above `rectA` whether that is in the way or
/// not, even a null one, whose top is the origin; with `kEnDessous` it stays even on `rectA`.
FABRELGUI_EXPORT eDirectionAffichage
DeplaceFenetreSiSorsDeLecranOuSurRect(QWidget * widget, QRect rect, QRect rectA, QRect rectB,
                                      QRect rectC, int ecart, eDirectionAffichage direction);

/// `taille` cut to the size of the screen nearest to `point`, less 80 in width and 100 in height.
FABRELGUI_EXPORT QSize DonneTailleOptimaleFenetrePourEcran(QPoint const & point,
                                                           QSize const & taille);

/// True when the screen nearest to `point` is at most 1024 wide or at most 768 high.
FABRELGUI_EXPORT bool EcranEstEnBasseResolution(QPoint const & point);

} // namespace RoutinesFenetre
