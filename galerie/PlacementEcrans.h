// galerie/PlacementEcrans.h
#pragma once

#include "VueEcrans.h"

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

/// How a rectangle is to be placed.
struct OptionsPlacement
{
    bool marge;
    bool forcage;
    bool redimensionnement;
    bool placeHaute;
};

/// What the library answers for one rectangle.
struct PlacementEcrans
{
    QString ecran; ///< the nearest one; null without a screen, where nothing is moved
    QSize resolution;
    bool basseResolution = false;
    QRect ajustay;
    QRect centray;
    int hauteurMax = 0;
    QSize tailleOptimale;
};

/// On the screens of this computer: what an application calls.
PlacementEcrans PlaceSurOrdinateur(QRect const & rectangle, OptionsPlacement const & options);

/// On screens that need not exist, by the arithmetic that those calls stand on; the mouse is on the
/// first one.
PlacementEcrans PlaceSur(QList<EcranDessinay> const & ecrans, QRect const & rectangle,
                         OptionsPlacement const & options);
