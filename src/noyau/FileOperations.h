// noyau/FileOperations.h
#pragma once

#include "noyau/UniChemin.h"

namespace sdd {

/// The operations on whole text files, UTF-8. No state; callable from any thread.
class FABRELNOYAU_EXPORT FileOperations
{
public:
    /// The process-wide object.
    static FileOperations & Principale();

    /// Replaces the file's text at once: a reader sees the old text or the new one. False when it
    /// can't be written; the old file is then whole.
    bool EcrisTexte(UniChemin const & fichier, UniChaine const & texte);
    /// Appends to the file, creating it; false when it can't be written.
    bool AjouteTexte(UniChemin const & fichier, UniChaine const & texte);
    /// False when the file was not there or stays.
    bool Supprime(UniChemin const & fichier);

private:
    FileOperations() = default;
};

} // namespace sdd
