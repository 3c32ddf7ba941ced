// dialogs/StockageReponse.h
#pragma once

#include "dialogs/DDialogue.h"

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QSettings>

#include <map>
#include <memory>
#include <utility>

/// The remembered answers: for each alert, known by its GUID, the button that the user chose.
///
/// One singleton for each type of store, over the `QSettings` file that the application names with
/// `Initialise`: a group "messageMemoire" with the GUID as key and the `DDialogue::eBoutons` value
/// as an integer. A copy is independent, with settings of its own on the same file. No operation
/// reports an error. GUI thread only.
class FABRELGUI_EXPORT StockageReponse
{
public:
    StockageReponse(StockageReponse const & autre);
    /// Deliberate: shares the settings of `autre` instead of opening its own.
    StockageReponse & operator=(StockageReponse const & autre) = default;
    virtual ~StockageReponse();

    /// Names the file and format of a type, once, before its first alert.
    static void Initialise(DDialogue::eTypStockeur type, UniChaine const & nomFichier,
                           QSettings::Format format);
    /// The singleton of the type, speaking for `guid` from here on: the next call redirects it.
    static StockageReponse * Instance(DDialogue::eTypStockeur type, UniChaine const & guid);
    /// Destroys the singletons; what `Initialise` recorded stays.
    static void LibereSingletons();
    /// Forgets all answers of the type.
    static void ReinitialiseToutLeStockeur(DDialogue::eTypStockeur type);

    bool JAfficheCaseACocher() const { return monAfficheCase; }
    bool UtilisateurADejaRepondu() const;
    /// The remembered answer, whatever the file holds; `kBoutonAucun` without one or without a
    /// GUID.
    DDialogue::eBoutons DonneReponseEnregistree() const;
    void ActualiseReponse(int reponse);
    void ReinitialiseSelonGuid();
    /// The store's part of a journal line.
    UniChaine DonneMessagePourJournalisation() const;

    static std::map<DDialogue::eTypStockeur, std::pair<UniChaine, QSettings::Format>>
        assocTypQSettings;
    static std::map<DDialogue::eTypStockeur, StockageReponse *> laListeStockeurDefaut;

private:
    StockageReponse(DDialogue::eTypStockeur type, QSettings * reglagesModele);

    /// An empty key removes the whole group.
    void Reinitialise(UniChaine const & cle);
    void UtiliseGuid(UniChaine const & guid) { monGuid = guid; }

    bool monAfficheCase;
    UniChaine monGuid;
    DDialogue::eTypStockeur monType;
    std::shared_ptr<QSettings> mesReglages; // its own, until it is assigned
};
