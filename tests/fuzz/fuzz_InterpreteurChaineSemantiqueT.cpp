// tests/fuzz/fuzz_InterpreteurChaineSemantiqueT.cpp
//
// Any bytes as a text whose tags have rules: tags and the ranges given to rules lie within the
// text, and nothing is thrown but what an unbalanced tag throws. Rules that only replace tags give
// the same text in one pass as one by one.
#include "fuzz/TexteDeFuzz.h"

#include "style/InterpreteurChaineSemantiqueT.h"

#include <iostream>
#include <optional>

namespace {

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
using Balise = Interpreteur::Balise;

// The same rule, of which nobody can tell that it only replaces.
RegleTexteRiche Voile(RegleTexteRiche const & regle)
{
    return [regle](UniChaine * texte, Balise & ouverture, Balise & fermeture) {
        unsigned const fin = texte->Longueur();
        Exige(ouverture.first + ouverture.second <= fermeture.first, "the tags are in order");
        Exige(fermeture.first + fermeture.second <= fin, "the element is within the text");
        return regle(texte, ouverture, fermeture);
    };
}

EnsembleRegles DonneRegles(bool voilees)
{
    EnsembleRegles regles;
    auto const ajoute = [&](char const * cle, char const * ouvrant, char const * fermant) {
        RegleTexteRiche const regle =
            Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(ouvrant, fermant);
        regles.emplace(cle, voilees ? Voile(regle) : regle);
    };
    ajoute("b", "<strong>", "</strong>");
    ajoute("i", "", "");
    ajoute("br/", "\n", "");
    ajoute("span class=\"x\"", "[", "]");
    return regles;
}

// Nothing when the text is refused.
std::optional<UniChaine> Applique(UniChaine const & source, EnsembleRegles const & regles)
{
    try {
        return Interpreteur::AppliqueRegles(source, regles);
    } catch (InterpreteurChaineSemantiqueErreur const &) {
        return std::nullopt;
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    std::cerr.setstate(std::ios::failbit); // every refused text is written there
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * octets, std::size_t nombre)
{
    static EnsembleRegles const regles = DonneRegles(false);
    static EnsembleRegles const reglesVoilees = DonneRegles(true);
    UniChaine const source(DonneTexte(octets, nombre));

    unsigned fin = 0;
    for (Balise const & balise : Interpreteur::TrouveBalises(source)) {
        Exige(balise.first >= fin && balise.second > 2, "tags follow each other");
        fin = balise.first + balise.second;
    }
    Exige(fin <= source.Longueur(), "tags are within the text");
    Interpreteur::PossedeReglesAAppliquer(source, regles);
    Exige(Applique(source, regles) == Applique(source, reglesVoilees),
          "one pass gives what rule by rule gives");
    return 0;
}
