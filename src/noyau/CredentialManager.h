// noyau/CredentialManager.h
#pragma once

#include "noyau/UniChaine.h"

namespace RoutinesGeneralesWin {

/// What is kept of an account for a proxy server.
struct IdentifiantsCredentialManager
{
    UniChaine nomUtilisateur;
    UniChaine motDePasse;
    int typeProxy = 0; ///< the caller's own value; kept as it is
};

/// Reads one entry of the platform's credential store. Empty when there is none; without a store
/// the journal takes a line. Blocks.
FABRELNOYAU_EXPORT IdentifiantsCredentialManager DonneInfosCredentialManager(UniChaine const & cle);

/// Writes one entry; false, with a line in the journal, when the store is absent or refuses.
/// Blocks.
FABRELNOYAU_EXPORT bool
EnregistreInfosCredentialManager(IdentifiantsCredentialManager const & infos,
                                 UniChaine const & cle);

} // namespace RoutinesGeneralesWin
