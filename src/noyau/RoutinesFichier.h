// noyau/RoutinesFichier.h
#pragma once

#include "noyau/UniChemin.h"

#include <QList>

namespace RoutinesFichier {

/// True when the file exists, in the file system or the resource tree; false for a directory.
FABRELNOYAU_EXPORT bool FichierExiste(UniChaine const & chemin);

} // namespace RoutinesFichier

namespace RoutinesRepertoire {

/// The files of a directory whose names match `filtre` (wildcards, as in "*.exe"; empty for all).
///
/// Names are relative to the directory, or whole paths with `cheminsComplets`. `sousRepertoires`
/// adds the files below, `fichiersCaches` the hidden ones. `trie` orders by name. Empty for a
/// directory that is not there.
FABRELNOYAU_EXPORT QList<UniChaine>
ListeTousLesFichiers(UniChaine const & repertoire, bool sousRepertoires = false,
                     bool cheminsComplets = false, bool fichiersCaches = false,
                     UniChaine const & filtre = kUniChaineNulle, bool trie = true);

/// Opens the platform's file browser on the path; false when there is none.
FABRELNOYAU_EXPORT bool OuvrirExplorateur(UniChemin const & chemin);

} // namespace RoutinesRepertoire
