// desktop/AvertissementCompatibilite.cpp
#include "desktop/AvertissementCompatibilite.h"

#include "dialogs/DAlerte.h"
#include "dialogs/DMessageBoxAvecCaseACocher.h"
#include "dialogs/StockageReponse.h"
#include "foundation/TraductionGui.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/RoutinesBureau.h"
#include "noyau/RoutinesFichier.h"

#include <QApplication>
#include <QEvent>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {
using DDialogue::StockeurNePlusMAviser;

// Sees whether the first box that is shown from here on is answered with its tick. Only that one:
// what the alert lets happen meanwhile may bring other boxes.
class TemoinCoche final : public QObject
{
public:
    TemoinCoche()
    {
        if (qApp) // without, no box is shown
            qApp->installEventFilter(this);
    }

    bool EstCoche() const { return monCoche; }

    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (evenement->type() != QEvent::Show || evenement->spontaneous())
            return false;
        if (auto const * const boite = qobject_cast<DMessageBoxAvecCaseACocher *>(objet)) {
            qApp->removeEventFilter(this);
            connect(boite, &DMessageBox::SignalEnFermeture, this,
                    [this, boite] { monCoche = boite->CaseEstCochee(); });
        }
        return false;
    }

private:
    bool monCoche = false;
};

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
    TemoinCoche const temoin;
    DDialogue::eBoutons const reponse =
        DAlerteRappel(nullptr, info, StockeurNePlusMAviser, guid, kBoutons,
                      DDialogue::kBoutonIgnorer, DDialogue::kBoutonIgnorer,
                      TraductionGui(TexteGui("Quitter")), TraductionGui(TexteGui("Parcourir...")));
    // Alerts never remember an answer on their escape button. Here that is the one answer with
    // which the program goes on, and whoever ticks the box with it wants to be left alone too.
    if (reponse == DDialogue::kBoutonIgnorer && temoin.EstCoche() && !guid.EstVide()) {
        // Through a copy, which writes the file when it ends: the settings of the singleton wait
        // for the event loop, and the program may end before that runs.
        StockageReponse(*StockageReponse::Instance(StockeurNePlusMAviser, guid))
            .ActualiseReponse(reponse);
    }
    return reponse;
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

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void RoutinesGeneralesQt::InformerUtilisationAppCompatFlags(std::list<UniChaine> repertoires,
                                                            UniChaine const & guid)
{
    if (DAlerteRappelDejaCochay(StockeurNePlusMAviser, guid))
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
