// search/CstRecherche.h
#pragma once

/// What a search front end and its host agree upon.
namespace CstRecherche {

/// The direction of a request.
enum eTypeRecherche : int
{
    kNouvelleRecherche = 0, ///< a front end is opened afresh: what the host found is forgotten
    kVersLeBas = 1,         ///< towards the end
    kVersLeHaut = 2         ///< towards the beginning
};

/// Bits of the option word, a `short`. `DialogueRechercher` also takes them as the mask of the
/// controls that it offers.
enum eOption : short
{
    kMotEntier = 0x001,
    kRespecterCasse = 0x002,
    kBoucler = 0x004, ///< wraps around at the end of the document
    kHaut = 0x010,
    kBas = 0x020,
    kCommencePar = 0x040,
    kContient = 0x100,  ///< in a mask of controls only, never in the option word
    kTexteEdite = 0x200 ///< the request comes from the text being typed, not from a command
};

} // namespace CstRecherche
