// noyau/LocalisateurContextuel.h
#pragma once

#include "noyau/ChaineLocalisable.h"
#include "noyau/DLocale.h"
#include "noyau/UniChaine.h"

#include <string>
#include <string_view>
#include <utility>

class ContexteLocalisation;

/// One look-up of a message: built, and converted at once to the type that the caller wants.
///
/// A message without a translation comes back as its identifier: its French text, and for a plural
/// the French singular for 0 and 1 and the plural otherwise. Keeps no text of its own: the record's
/// texts are static, the catalogue's live as long as the registry.
class FABRELNOYAU_EXPORT LocalisateurContextuel
{
public:
    LocalisateurContextuel(ChaineLocalisable message, ContexteLocalisation const & contexte,
                           DLocale locale);
    /// Chooses the form by the `Plural-Forms` of the catalogue.
    LocalisateurContextuel(ChaineLocalisablePluriel message, quint64 nombre,
                           ContexteLocalisation const & contexte, DLocale locale);

    operator QString() const;
    operator UniChaine() const;
    /// UTF-8.
    operator std::string() const;

    // Without these a text beside a look-up could be read as a `UniChaine` or as a `QString`.
    friend bool operator==(UniChaine const & a, LocalisateurContextuel const & b)
    {
        return a == b.operator UniChaine();
    }
    friend bool operator<(UniChaine const & a, LocalisateurContextuel const & b)
    {
        return a < b.operator UniChaine();
    }
    friend bool operator<(LocalisateurContextuel const & a, UniChaine const & b)
    {
        return a.operator UniChaine() < b;
    }
    friend UniChaine operator+(UniChaine a, LocalisateurContextuel const & b)
    {
        return std::move(a) + b.operator UniChaine();
    }
    friend UniChaine operator+(LocalisateurContextuel const & a, UniChaine const & b)
    {
        return a.operator UniChaine() + b;
    }

private:
    std::string_view monTexte;
};
