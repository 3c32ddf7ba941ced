// foundation/FichierPixmap_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QString>

/// A file of a picture, and how many of its pixels make a unit.
struct FichierPixmap
{
    QString nom;
    double ratio;
};

/// The file to load for the picture at `chemin` on a screen of `ratioVoulu` pixels per unit.
///
/// Above 1, the variant with "@2x" before the last point of the whole path, or at its end, if it
/// exists. Denser variants are not looked for.
FABRELGUI_EXPORT FichierPixmap ChoisisFichierPixmap(QString const & chemin, double ratioVoulu);
