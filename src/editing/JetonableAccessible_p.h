// editing/JetonableAccessible_p.h
#pragma once

class DLineEditJetonable;

/// Tells screen readers of the tokens of `DComboJetonable`, whose fields have no text then.
namespace JetonableAccessible {

/// Makes the interfaces of these fields and of their combo boxes, until each call is matched by a
/// `LibereFabrique`.
void PrendsFabrique();
void LibereFabrique();

/// The token of `champ` came, changed or went.
void AnnonceValeur(DLineEditJetonable & champ);

} // namespace JetonableAccessible
