// noyau/UniChemin.h
#pragma once

#include "noyau/UniChaine.h"

/// A path of the file system or of the resource tree; its text is the path, as written.
///
/// A component ends at "/" and, where that is the platform's separator, at "\".
class FABRELNOYAU_EXPORT UniChemin : public UniChaine
{
public:
    UniChemin() = default;
    UniChemin(UniChaine const & chemin)
        : UniChaine(chemin)
    {
    }
    UniChemin(QString const & chemin)
        : UniChaine(chemin)
    {
    }
    UniChemin(char const * chemin, Codage codage = kUTF8, int longueur = -1)
        : UniChaine(chemin, codage, longueur)
    {
    }
    UniChemin(wchar_t const * chemin, int longueur = -1)
        : UniChaine(chemin, longueur)
    {
    }

    /// Appends one component behind exactly one separator. An empty path becomes the component; an
    /// empty component changes nothing.
    UniChemin & AjouteComposantChemin(UniChemin const & composant);
    /// The parent: "/a/b" and "/a/b/" give "/a", "/a" gives "/", "a" and "" give "".
    UniChaine DonneChaineEnEnlevantDernierComposantChemin() const;
    /// The file name without its last extension: "/a/b.tar.gz" gives "b.tar"; ".profil"
    /// and ".." stay.
    UniChaine DonneDernierComposantCheminSaufExtension() const;
};

template <>
struct std::hash<UniChemin> : std::hash<UniChaine>
{
};
