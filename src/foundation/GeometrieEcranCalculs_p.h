// foundation/GeometrieEcranCalculs_p.h
#pragma once

#include "foundation/GeometrieEcran.h"

#include "FabrelGuiExport.h"

#include <QList>
#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QSizeF>

// The arithmetic of GeometrieEcran.h, over rectangles instead of screens and windows.
namespace RoutinesGeometrie {

/// The index of the rectangle that contains the point, or else of the one with the nearest centre,
/// the first of equals; -1 for an empty list.
FABRELGUI_EXPORT qsizetype DonneIndiceLePlusProche(QList<QRect> const & ecrans,
                                                   QPoint const & point);

/// `rect` moved into `limites`; one that is too large keeps its left and top edges inside.
FABRELGUI_EXPORT QRect RameneDans(QRect const & limites, QRect rect);

struct Ajustement
{
    int hauteurTitre; // of a title bar
    bool avecMarge;
    bool force;
    bool redimensionne;
};

FABRELGUI_EXPORT QRect AjusteDans(QRect const & disponible, QRect rect,
                                  Ajustement const & ajustement);

/// The top left corner at which `taille` is centred in `disponible`.
FABRELGUI_EXPORT QPoint DonneCoinCentre(QRect const & disponible, QSize const & taille,
                                        bool plusHaut);

FABRELGUI_EXPORT int DonneHauteurMax(QRect const & disponible, QRect const & rect, bool avecMarge);

/// The top left corner, seen from the parent's, at which a frame is centred on that of its parent.
/// `hauteurParent` is the parent's height without its frame.
FABRELGUI_EXPORT QPoint DonneCoinDansParent(QSize const & cadreParent, int hauteurParent,
                                            QSize const & cadre, bool plusHaut);

/// The same on the inside of a native window, given in its own pixels.
FABRELGUI_EXPORT QPoint DonneCoinDansParentNatif(QRect const & interieurParent,
                                                 QSizeF const & cadre);

/// What a pop-up must keep clear of.
struct Obstacles
{
    QRect disponible; // of the screen, which it must not leave
    QMargins cadre;   // of the pop-up
    QRect rectA;
    QRect rectB;
    QRect rectC;
    int ecart;
};

struct Placement
{
    QPoint coin;
    RoutinesFenetre::eDirectionAffichage direction;
};

FABRELGUI_EXPORT Placement PlaceHorsDe(Obstacles const & obstacles, QRect rect,
                                       RoutinesFenetre::eDirectionAffichage direction);

FABRELGUI_EXPORT QSize DonneTailleOptimale(QSize const & resolution, QSize const & taille);

FABRELGUI_EXPORT bool EstBasseResolution(QSize const & resolution);

} // namespace RoutinesGeometrie
