// foundation/TraductionGui.h
#pragma once

#include "noyau/ContexteLocalisation.h"
#include "noyau/LocalisateurContextuel.h"

#include "FabrelGuiExport.h"

#include <cstddef>
#include <initializer_list>

/// The record of a message of the library's domain, from literals: the French text and, where two
/// messages share it, a context.
template <std::size_t N>
constexpr ChaineLocalisable TexteGui(char const (&texte)[N])
{
    return {{texte, N - 1}, {nullptr, 0}, {"GUI", 3}};
}

template <std::size_t N, std::size_t M>
constexpr ChaineLocalisable TexteGui(char const (&texte)[N], char const (&contexte)[M])
{
    return {{texte, N - 1}, {contexte, M - 1}, {"GUI", 3}};
}

template <std::size_t N, std::size_t M>
constexpr ChaineLocalisablePluriel TextePlurielGui(char const (&singulier)[N],
                                                   char const (&pluriel)[M])
{
    return {{singulier, N - 1}, {pluriel, M - 1}, {nullptr, 0}, {"GUI", 3}};
}

/// The translation domains of the library, filled when it is loaded and only read afterwards.
FABRELGUI_EXPORT ContexteLocalisation & ContexteLocalisationGui();

/// Looks a message up in the language of the application; to be converted at once to `QString`,
/// `UniChaine` or UTF-8 `std::string`. Callable from any thread.
FABRELGUI_EXPORT LocalisateurContextuel TraductionGui(ChaineLocalisable message);

/// The same for a message with a plural, in the form for `nombre`.
FABRELGUI_EXPORT LocalisateurContextuel TraductionPlurielGui(ChaineLocalisablePluriel message,
                                                             quint64 nombre);

/// The message with its placeholders "{1}", "{2}", ... filled. Numbers are given as the text that
/// `UniChaine::DepuisNombre` or `UniChaine::DonneNombreFormatay` makes of them.
FABRELGUI_EXPORT UniChaine TraductionGuiFormatay(ChaineLocalisable message,
                                                 std::initializer_list<UniChaine> arguments);

/// The message in the form for `nombre`, which also fills its "{1}".
FABRELGUI_EXPORT UniChaine TraductionPlurielGuiFormatay(ChaineLocalisablePluriel message,
                                                        quint64 nombre);
