// style/InterpreteurChaineSemantiqueErreur.h
#pragma once

#include "FabrelGuiExport.h"

#include <stdexcept>

/// Thrown for an opening tag that is not closed, or closed by another element's tag: a mistake in
/// the application's own texts. Carries nothing to show.
class FABRELGUI_EXPORT InterpreteurChaineSemantiqueErreur : public std::runtime_error
{
public:
    InterpreteurChaineSemantiqueErreur();
    ~InterpreteurChaineSemantiqueErreur() override;
};
