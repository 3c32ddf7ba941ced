// tests/fuzz/fuzz_TexteRiche.cpp
//
// Any bytes as a text with tags: no crash, no range outside of the text, and no text that grows out
// of proportion.
#include "fuzz/TexteDeFuzz.h"

#include "foundation/TexteRiche.h"

#include <QGuiApplication>
#include <QtGlobal>

using RoutinesGeneralesQt::TexteAvecFormat;

namespace {

constexpr unsigned kLongueurLosange = 3; // units that an end tag of five adds
constexpr unsigned kMajusculesParLettre = 3;

} // namespace

extern "C" int LLVMFuzzerInitialize(int * nombre, char *** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication const application(*nombre, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * octets, std::size_t nombre)
{
    UniChaine const source(DonneTexte(octets, nombre));
    static QFont const font;
    TexteAvecFormat const analyse = RoutinesGeneralesQt::DonneTexteAvecFormat(source, font);

    unsigned const longueur = analyse.texte.Longueur();
    Exige(analyse.source == source, "the source is kept");
    Exige(longueur <= kMajusculesParLettre * source.Longueur() + kLongueurLosange,
          "the text is no longer than its capitals and diamonds");
    for (auto const & plage : analyse.formats) {
        Exige(plage.start >= 0 && plage.length >= 0, "a range has a place");
        Exige(static_cast<unsigned>(plage.start) + static_cast<unsigned>(plage.length) <= longueur,
              "a range is within the text");
    }
    Exige(RoutinesGeneralesQt::DonneLongueurTexteRiche(source.SousChaine(0, 200), font) >= 0.0,
          "a width is positive");
    return 0;
}
