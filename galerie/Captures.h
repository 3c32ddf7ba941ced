// galerie/Captures.h
#pragma once

#include <QString>

class FenetreGalerie;
class ThemeGalerie;

/// Renders every page in French and in English to `dossier`, which is made where it is missing, and
/// writes an index beside the pictures. False when one of the files could not be written.
bool EcrisCaptures(FenetreGalerie & fenetre, ThemeGalerie & theme, QString const & dossier);
