// galerie/Captures.h
#pragma once

#include <QString>

class FenetreGalerie;
class ThemeGalerie;

/// Renders the page of that index, or every page for -1, in French and in English, light and dark,
/// to `dossier`, which is made where it is missing, and writes an index beside the pictures. False
/// when one of the files could not be written, or the theme not applied.
bool EcrisCaptures(FenetreGalerie & fenetre, ThemeGalerie & theme, QString const & dossier,
                   int page);
