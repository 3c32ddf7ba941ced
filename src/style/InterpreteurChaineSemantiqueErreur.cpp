// style/InterpreteurChaineSemantiqueErreur.cpp
#include "style/InterpreteurChaineSemantiqueErreur.h"

InterpreteurChaineSemantiqueErreur::InterpreteurChaineSemantiqueErreur()
    : std::runtime_error("unbalanced tag")
{
}

InterpreteurChaineSemantiqueErreur::~InterpreteurChaineSemantiqueErreur() = default;
