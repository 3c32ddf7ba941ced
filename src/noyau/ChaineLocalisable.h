// noyau/ChaineLocalisable.h
#pragma once

#include <cstddef>

/// A view of static UTF-8 text: its bytes without the terminator. Null and 0 for no text.
struct VueTexte
{
    char const * texte = nullptr;
    std::size_t longueur = 0;
};

/// The key of a message: identifier, context (a null view when there is none), domain.
struct ChaineLocalisable
{
    VueTexte identifiant;
    VueTexte contexte;
    VueTexte domaine;
};

/// The key of a message with a plural.
struct ChaineLocalisablePluriel
{
    VueTexte singulier;
    VueTexte pluriel;
    VueTexte contexte;
    VueTexte domaine;
};
