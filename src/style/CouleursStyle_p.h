// style/CouleursStyle_p.h
#pragma once

#include <QColor>
#include <QPalette>

// Overlays: black of little alpha, so that they darken any background a little.
namespace CouleursStyle {

constexpr QColor Noir(int alpha)
{
    return {0, 0, 0, alpha};
}

constexpr QColor kSurvolBouton = Noir(15);
constexpr QColor kFondBouton = {255, 255, 255, 179}; // a button that is not under the mouse
constexpr QColor kLigneFocus = Noir(102);            // on a default button

constexpr QColor kContourOnglet = Noir(21); // of the selected tab
constexpr QColor kSeparateurOnglet = Noir(48);
constexpr QColor kBaseOnglets = {220, 220, 220, 255};

constexpr QColor kFondItem = Noir(18); // of a selected item, or under the mouse
constexpr QColor kSurvolEntete = Noir(10);
constexpr QColor kSeparateurEntete = Noir(50);

constexpr QColor kBoutonOutil = Noir(15);
constexpr QColor kBoutonOutilSurvolay = Noir(20);
constexpr QColor kBoutonOutilCochaySurvolay = Noir(30);
constexpr QColor kBoutonOutilEnfoncay = Noir(35);
constexpr QColor kSeparateurMenuBouton = Noir(20);

/// Whether texts of the palette are lighter than what they are written on.
inline bool EstSombre(QPalette const & palette, QPalette::ColorRole texte = QPalette::WindowText,
                      QPalette::ColorRole fond = QPalette::Window)
{
    return palette.color(texte).lightness() > palette.color(fond).lightness();
}

/// The overlay on the backgrounds of `palette`: white of the same alpha on dark ones, where black
/// is not seen.
inline QColor Voile(QColor const & noir, QPalette const & palette)
{
    return EstSombre(palette) ? QColor(255, 255, 255, noir.alpha()) : noir;
}

} // namespace CouleursStyle
