// noyau/LocalisateurContextuel.cpp
#include "noyau/LocalisateurContextuel.h"

#include "noyau/Catalogue_p.h"
#include "noyau/ContexteLocalisation.h"

namespace {

std::string_view Vue(VueTexte texte)
{
    return {texte.texte, texte.longueur};
}

} // namespace

LocalisateurContextuel::LocalisateurContextuel(ChaineLocalisable message,
                                               ContexteLocalisation const & contexte,
                                               DLocale locale)
    : monTexte(Vue(message.identifiant))
{
    if (Catalogue const * const catalogue = contexte.PreteCatalogue(message.domaine, locale))
        monTexte = catalogue->Cherche(message.identifiant, message.contexte).value_or(monTexte);
}

LocalisateurContextuel::LocalisateurContextuel(ChaineLocalisablePluriel message, quint64 nombre,
                                               ContexteLocalisation const & contexte,
                                               DLocale locale)
    // The rule of the language that the identifiers are written in.
    : monTexte(Vue(nombre > 1 ? message.pluriel : message.singulier))
{
    if (Catalogue const * const catalogue = contexte.PreteCatalogue(message.domaine, locale))
        monTexte = catalogue->Cherche(message, nombre).value_or(monTexte);
}

LocalisateurContextuel::operator QString() const
{
    return operator UniChaine();
}

LocalisateurContextuel::operator UniChaine() const
{
    return UniChaine(monTexte.data(), UniChaine::kUTF8, static_cast<int>(monTexte.size()));
}

LocalisateurContextuel::operator std::string() const
{
    return std::string(monTexte);
}

UniChaine & UniChaine::operator=(LocalisateurContextuel const & message)
{
    return *this = message.operator UniChaine();
}
