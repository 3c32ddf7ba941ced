// search/AlerteIntrouvable.cpp
#include "search/AlerteIntrouvable_p.h"

#include "search/CstRecherche.h"

#include "dialogs/DAlerte.h"
#include "foundation/TraductionGui.h"

namespace {

ChaineLocalisable ChoisisTexte(short options, bool pourListe, ChaineLocalisable const & dansLeTexte)
{
    if ((options & CstRecherche::kBoucler) != 0)
        return pourListe ? TexteGui("Texte introuvable dans la liste.") : dansLeTexte;
    if ((options & CstRecherche::kBas) != 0)
        return pourListe ? TexteGui("Texte introuvable; fin de la liste atteinte.")
                         : TexteGui("Texte introuvable; fin du texte atteinte.");
    return pourListe ? TexteGui("Texte introuvable; début de la liste atteint.")
                     : TexteGui("Texte introuvable; début du texte atteint.");
}

} // namespace

void AlerteIntrouvable(QWidget * parent, short options, bool pourListe,
                       ChaineLocalisable const & dansLeTexte)
{
    UniChaine const texte = TraductionGui(ChoisisTexte(options, pourListe, dansLeTexte));
    DAlerte(parent, DAlerteInfo(DAlerteInfo::kEphemere, texte), 0, DDialogue::kBoutonAucun,
            DDialogue::kBoutonAucun, [](DDialogue::eBoutons) {});
}
