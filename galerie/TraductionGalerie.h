// galerie/TraductionGalerie.h
#pragma once

#include "noyau/ChaineLocalisable.h"
#include "noyau/UniChaine.h"

#include <cstddef>
#include <initializer_list>
#include <string>

class ContexteLocalisation;

/// The record of a message of the gallery's own domain, from its French text.
template <std::size_t N>
constexpr ChaineLocalisable TexteGalerie(char const (&texte)[N])
{
    return {{texte, N - 1}, {nullptr, 0}, {"Galerie", 7}};
}

template <std::size_t N, std::size_t M>
constexpr ChaineLocalisablePluriel TextePlurielGalerie(char const (&singulier)[N],
                                                       char const (&pluriel)[M])
{
    return {{singulier, N - 1}, {pluriel, M - 1}, {nullptr, 0}, {"Galerie", 7}};
}

/// The gallery's translation domain, beside the library's.
ContexteLocalisation & ContexteLocalisationGalerie();

/// The message in the language of the application.
QString TraductionGalerie(ChaineLocalisable message);

/// The message with its placeholders "{1}", "{2}", ... filled.
QString TraductionGalerie(ChaineLocalisable message, std::initializer_list<UniChaine> arguments);

/// The message in the form for `nombre`, which also fills its "{1}".
QString TraductionPlurielGalerie(ChaineLocalisablePluriel message, int nombre);

/// Fills the placeholders of a text that is translated already, whatever its domain.
UniChaine Formate(std::string const & modele, std::initializer_list<UniChaine> arguments);
