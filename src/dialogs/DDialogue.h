// dialogs/DDialogue.h
#pragma once

#include <QMetaType>

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

} // namespace DDialogue

Q_DECLARE_METATYPE(DDialogue::eBoutons)
