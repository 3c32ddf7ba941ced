// galerie/SaisieAlerte.h
#pragma once

#include "dialogs/DAlerte.h"
#include "noyau/DAlerteInfo.h"

#include <array>
#include <optional>

/// Everything that an alert and its call are made of.
struct SaisieAlerte
{
    enum eForme
    {
        kRetour,  ///< blocks and returns the answer
        kRappel,  ///< gives the answer to a function
        kReceveur ///< gives the answer to an object
    };

    DAlerteInfo::eTypeDialogue type = DAlerteInfo::kQuestion;
    UniChaine titre;
    UniChaine message;
    UniChaine note;
    UniChaine explication;
    UniChaine libelleCase;
    bool texteRiche = false;
    float duree = -1.0F; ///< seconds; -1 for the usual time

    int boutons = DDialogue::kBoutonOk;
    DDialogue::eBoutons defaut = DDialogue::kBoutonOk;
    DDialogue::eBoutons echap = DDialogue::kBoutonOk;
    std::array<UniChaine, 5> labels;

    eForme forme = kRetour;
    std::optional<DDialogue::eTypStockeur> stockeur; ///< none: the answer is not remembered
    UniChaine guid;
    bool centrageNatif = false; ///< on the native window of the parent; without a store only
};

/// True for an alert that has no answer, whatever the form.
bool EstSansReponse(SaisieAlerte const & saisie);
/// True for an alert that the forms that block refuse, since it has no answer.
bool EstRefusee(SaisieAlerte const & saisie);

/// Raises the alert. The form that blocks returns the answer; the others return nothing, and give
/// it to `rappel` or to `receveur` later or never.
std::optional<DDialogue::eBoutons> Lance(SaisieAlerte const & saisie, QWidget * parent,
                                         DDialogue::DAlerteReceveur const & receveur,
                                         RappelAlerte rappel);
