// style/InterpreteurChaineSemantiqueT.h
#pragma once

#include "style/InterpreteurChaineSemantiqueErreur.h" // what it throws
#include "style/RegleTexteRiche.h"

#include "FabrelGuiExport.h"

#include <utility>
#include <vector>

template <typename Chaine>
class InterpreteurChaineSemantiqueT;

/// Reads a tagged text and rewrites its elements by rules.
///
/// A tag runs from a "<" to the first ">" behind it with no other "<" between them; a lone "<" and
/// the empty tag "<>" are text. "<name/>" is an element without content; "<name attributes>" is
/// closed by "</name>" or by "</name attributes>". An empty `std::function` is no rule.
template <>
class FABRELGUI_EXPORT InterpreteurChaineSemantiqueT<UniChaine>
{
public:
    /// The first unit of a tag and its count of units, both brackets included.
    using Balise = std::pair<unsigned int, unsigned int>;

    /// A rule that puts `ouvrant` and `fermant` in the place of the two tags. An element without a
    /// closing tag gets `ouvrant` only, but the rule's result counts both.
    static RegleTexteRiche CreeFonctionRemplacerBalisesAvecTexte(UniChaine const & ouvrant,
                                                                 UniChaine const & fermant);

    /// The tags of the text, in order.
    static std::vector<Balise> TrouveBalises(UniChaine const & texte);

    /// True when some opening tag of the text has a rule. The rule for the whole text is none.
    static bool PossedeReglesAAppliquer(UniChaine const & texte, EnsembleRegles const & regles);

    /// The text with every element that has a rule rewritten, inner elements first, and then its
    /// entities of the reserved characters decoded. Elements without a rule stay as they are. A
    /// closing tag that nothing opened ends the reading: what follows it stays as it is.
    ///
    /// Throws `InterpreteurChaineSemantiqueErreur`, after writing the text to the standard error
    /// stream, for an unbalanced tag.
    static UniChaine AppliqueRegles(UniChaine const & texte, EnsembleRegles const & regles);
};
