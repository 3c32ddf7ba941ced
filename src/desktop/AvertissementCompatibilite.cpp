// desktop/AvertissementCompatibilite.cpp
#include "desktop/AvertissementCompatibilite.h"

#include "dialogs/DAlerte.h"
#include "foundation/TraductionGui.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesFichier.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {
DDialogue::eBoutons Avertis(UniChemin const & executable, UniChaine const & guid)
{
    QString const nom = executable.DonneDernierComposantCheminSaufExtension();
    UniChaine const message = TraductionGuiFormatay(
        TexteGui("L’application suivante semble être exécutée en mode de compatibilité : "
                 "{1}.<br><br>Nous vous suggérons de désactiver ce mode en ouvrant le menu du "
                 "fichier, action propriétés, onglet compatibilité.<br>"),
        {nom.toHtmlEscaped()});
    DAlerteInfo info(DAlerteInfo::kInformation, message, kUniChaineNulle,
                     TraductionGui(TexteGui("Avertissement de compatibilité")));
    info.texteRiche = true;
    constexpr int kBoutons =
        DDialogue::kBoutonIgnorer | DDialogue::kBoutonMaison1 | DDialogue::kBoutonMaison2;
    return DAlerteRappel(nullptr, info, DDialogue::StockeurNePlusMAviser, guid, kBoutons,
                         DDialogue::kBoutonIgnorer, DDialogue::kBoutonIgnorer,
                         TraductionGui(TexteGui("Quitter")),
                         TraductionGui(TexteGui("Parcourir...")));
}

void Traite(UniChaine const & repertoire, UniChaine const & fichier, UniChaine const & guid)
{
    UniChemin executable(repertoire);
    executable.AjouteComposantChemin(fichier);
    if (!PossedeAppCompatFlags(executable))
        return;
    DDialogue::eBoutons const reponse = Avertis(executable, guid);
    if (reponse == DDialogue::kBoutonMaison2)
        RoutinesRepertoire::OuvrirExplorateur(repertoire);
    // Not by the event loop: the mode does harm from here on, and the loop may not run yet.
    if (reponse == DDialogue::kBoutonMaison1 || reponse == DDialogue::kBoutonMaison2)
        std::exit(EXIT_SUCCESS);
}
} // namespace

void RoutinesGeneralesQt::InformerUtilisationAppCompatFlags(std::list<UniChaine> repertoires,
                                                            UniChaine const & guid)
{
    if (DAlerteRappelDejaCochay(DDialogue::StockeurNePlusMAviser, guid))
        return;
    for (UniChaine const & repertoire : repertoires) {
        if (repertoire.EstVide())
            continue;
        auto const fichiers = RoutinesRepertoire::ListeTousLesFichiers(repertoire, false, false,
                                                                       false, u"*.exe"_s, true);
        for (UniChaine const & fichier : fichiers)
            Traite(repertoire, fichier, guid);
    }
}
