// noyau/RoutinesFenetreNatives.h
#pragma once

#include "noyau/UniChaine.h"
#include "noyau/plateforme/TypesWin32.h"

#include "FabrelNoyauExport.h"

// Questions about native windows, of this program and of others. A null handle, or that of a window
// that has gone, answers empty, false or null. GUI thread only.

/// The name of the window's class.
FABRELNOYAU_EXPORT UniChaine DonneNomClasse(HWND fenetre);

/// Writes into `nom` the path of the program that owns the window, or its file name alone with
/// `sansDossier`. False, and an empty `nom`, when it can't be told.
FABRELNOYAU_EXPORT bool DonneNomEXEAPartirHWND(HWND fenetre, UniChaine & nom, bool sansDossier);

/// True when the window's class bears that name, case included: classes are told apart as strings
/// throughout the library, only the platform's own searches overlook case.
FABRELNOYAU_EXPORT bool DonneSiHwndRecherchay(HWND fenetre, UniChaine const & classe);

/// The first child window of that class, or else the first below a child; null when there is none.
FABRELNOYAU_EXPORT HWND DonneHwndFenetreEnfant(HWND parent, UniChaine const & classe);
