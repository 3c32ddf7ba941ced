// dialogs/DDialogue.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/DAlerteDeleguay.h"

#include <QMetaType>

#include <functional>

/// The vocabulary of the alerts.
namespace DDialogue {

/// A 32-bit set of dialog buttons, and the type of every answer: a caller passes a mask, an answer
/// is one of them.
enum eBoutons : unsigned int
{
    kBoutonAucun = 0, ///< also the absence of an answer
    kBoutonOk = 1,
    kBoutonAnnuler = 2,
    kBoutonAppliquer = 4,
    kBoutonFermer = 8,
    kBoutonSauvegarder = 16,
    kBoutonSauvegarderTout = 32,
    kBoutonAide = 64,
    kBoutonOui = 128,
    kBoutonOuiTout = 256,
    kBoutonNon = 512,
    kBoutonNonTout = 1024,
    kBoutonReessayer = 2048,
    kBoutonIgnorer = 4096,
    kBoutonContinuer = 16384,
    kBoutonEssayer = 32768,
    kBoutonMaison1 = 65536, ///< the first label of the caller's
    kBoutonMaison2 = 262144,
    kBoutonMaison3 = 524288,
    kBoutonMaison4 = 1048576,
    kBoutonMaison5 = 2097152,
    kBoutonLien = 4194304,            ///< never a button: the answer comes from a link
    kBoutonMaisonElevee1 = 0x80000000 ///< the first label of the caller's, with the shield
};

/// Which store keeps the answer to an alert.
enum eTypStockeur
{
    StockeurParDefaut = 0,
    StockeurNePlusMAviser = 1 ///< the alert offers a check box
};

/// Receives the answers to alerts, for callers that prefer an object to a callback.
///
/// The alert holds a bare pointer: a receiver must outlive the alerts that it was given to. The
/// routines take a pointer to const, for it is never changed by them; `TraiteReponse`, which is not
/// const, is called on it all the same.
class FABRELGUI_EXPORT DAlerteReceveur : public DAlerteDeleguay
{
public:
    DAlerteReceveur() = default;
    DAlerteReceveur(DAlerteReceveur const &) = default;
    DAlerteReceveur & operator=(DAlerteReceveur const &) = default;
    ~DAlerteReceveur() override;

    /// Not called by this library; -1.
    int TraiteDAlerte(DAlerteInfo const & info) override;
    /// Not called by this library; -1.
    int TraiteDAlerteRappel(DAlerteInfo const & info, UniChaine const & guid) override;
    /// Takes the answer, a value of `eBoutons`, to the alert that was raised under `idMessage`. The
    /// alert is still on screen if it was shown.
    virtual void TraiteReponse(int const & idMessage, int reponse) = 0;

    /// The identifier that comes with the answer; -1 until it is set. An alert takes it when it is
    /// raised.
    int DonneIdMessage() const { return monIdMessage; }
    void MetsIdMessage(int const & idMessage) { monIdMessage = idMessage; }
    /// False, like the next one: neither plays a part in the modality of an alert.
    bool DonneModalAFenetre() const { return monModalAFenetre; }
    bool DonneModalAApplication() const { return monModalAApplication; }

private:
    int monIdMessage = -1;
    bool monModalAFenetre = false;
    bool monModalAApplication = false;
};

/// True when an alert of the notification type can appear as a toast of the platform.
FABRELGUI_EXPORT bool PeutAfficherNotificationPlateforme();

} // namespace DDialogue

/// What receives the answer to an alert that does not block.
using RappelAlerte = std::function<void(DDialogue::eBoutons const &)>;

Q_DECLARE_METATYPE(DDialogue::eBoutons)
