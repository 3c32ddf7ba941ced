// controls/GeometrieBascule_p.h
#pragma once

#include <QSize>

#include <algorithm>

/// Where the parts of a `DToggleButton` are, in logical pixels, drawn from left to right.
struct GeometrieBascule
{
    int marge = 0;        ///< around the track
    QSize taille;         ///< what the switch asks for
    int finNonCochay = 0; ///< the thumb's centre, from the left edge
    int finCochay = 0;
};

/// Radii below 0 count as 0.
constexpr GeometrieBascule CalculeGeometrieBascule(int rayonPiste, int rayonPouce)
{
    int const piste = std::max(rayonPiste, 0);
    int const pouce = std::max(rayonPouce, 0);

    GeometrieBascule geometrie;
    // Deliberate: a thumb that overflows the track gets no room for it and is cut at the edges.
    geometrie.marge = std::max(piste - pouce, 0);
    int const marge = geometrie.marge;
    geometrie.taille = QSize(2 * (marge + 2 * piste), 2 * (marge + piste));
    geometrie.finNonCochay = marge + piste;
    geometrie.finCochay = geometrie.taille.width() - marge - piste;
    return geometrie;
}
