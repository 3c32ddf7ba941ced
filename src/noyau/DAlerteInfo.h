// noyau/DAlerteInfo.h
#pragma once

#include "noyau/UniChaine.h"

/// The description of one alert: what it says and how, not which buttons it has.
class FABRELNOYAU_EXPORT DAlerteInfo
{
public:
    /// How the alert appears.
    enum eTypeDialogue : int
    {
        kQuestion = 1,
        kInformation,
        kAvertissement,
        kErreur,
        kEphemere,           ///< a bubble that fades, never a message box
        kNotification,       ///< a notification of the platform, a message box where there is none
        kProgressionInfinie, ///< a progress window without end, never a message box
        kMaison,             ///< a message box with an image of the caller's
        kSansIcone
    };

    /// An empty `titre` means the default title, the application's display name.
    DAlerteInfo(eTypeDialogue type, UniChaine const & message,
                UniChaine const & note = kUniChaineNulle,
                UniChaine const & titre = kUniChaineNulle);
    DAlerteInfo(DAlerteInfo const &) = default;
    DAlerteInfo & operator=(DAlerteInfo const &) = default;
    virtual ~DAlerteInfo();

    eTypeDialogue DonneTypeDialogue() const { return monType; }
    UniChaine DonneMessage() const { return monMessage; }
    UniChaine DonneNote() const { return maNote; }
    /// The default title is read when it is asked for, and then the GUI thread's to ask.
    UniChaine DonneTitreFenetre() const;
    bool EstTitreParDefaut() const { return monTitreEstParDefaut; }
    /// The message, as the journal shows it.
    UniChaine DonneMessagePourJournalisation() const { return monMessage; }
    /// A longer explanation under the message; empty here.
    virtual UniChaine DonneExplication() const;

private:
    eTypeDialogue monType;
    UniChaine monMessage;
    UniChaine maNote;
    UniChaine monTitre;
    bool monTitreEstParDefaut;

public:
    bool texteRiche = false;      ///< the message is rich text
    UniChaine libelleCaseACocher; ///< empty for the usual label
    float dureeAffichage = -1.0F; ///< seconds on screen; -1 for the usual time
};
