// noyau/Contournement.h
#pragma once

#include "noyau/UniChemin.h"

/// Switches by which an application works around the faults of a machine: a key holds named values.
///
/// Kept in memory, or in an INI file (a section for each key) once `MetsFichier` names one.
/// Callable from any thread.
class FABRELNOYAU_EXPORT Contournement
{
public:
    /// True when the value exists and is a boolean ("true", "false", "1", "0"); `valeur` then holds
    /// it and is left alone otherwise.
    static bool LisBool(UniChaine const & cle, UniChaine const & nom, bool & valeur);
    static void EcrisBool(UniChaine const & cle, UniChaine const & nom, bool valeur);
    static void Efface(UniChaine const & cle, UniChaine const & nom);
    /// From here on values are read from and written to that file; those in memory are not carried
    /// over. An empty path goes back to an empty store in memory.
    static void MetsFichier(UniChemin const & fichier);
};
