// noyau/RoutinesBureau.h
#pragma once

#include "noyau/DLocale.h"
#include "noyau/UniChaine.h"

class ContexteLocalisation;

namespace RoutinesGeneralesQt {

/// Opens a URL in the program `fureteur`, or in the user's browser when that is empty; true on
/// success. Says nothing on failure.
FABRELNOYAU_EXPORT bool LanceFureteurExterne(ContexteLocalisation const & contexte, DLocale locale,
                                             QString const & url, QString const & fureteur = {});

/// True when the user may run a process with an administrator's rights.
FABRELNOYAU_EXPORT bool DonneUtilisateurPeutExecuterElevay();

} // namespace RoutinesGeneralesQt

/// Opens a URL in the user's browser. A failure is reported in the given language: an error alert
/// to the installed `DAlerteDeleguay`, and a line in the journal.
FABRELNOYAU_EXPORT void LanceUnURL(ContexteLocalisation const & contexte, DLocale locale,
                                   UniChaine const & url);

/// True when the executable at that path has a compatibility mode set; false where the system has
/// no such thing.
FABRELNOYAU_EXPORT bool PossedeAppCompatFlags(UniChaine const & executable);

/// The versions that `WindowsEstAuMoins` tells apart.
enum typVersionWindows
{
    kWindows7 = 0,
    kWindows8 = 1,
    kWindows8_1 = 2,
    kWindows10 = 3,
    kWindows10_1809 = 4,
    kWindows11 = 5,
};

/// True when the running Windows is at least that version; false on every other system.
FABRELNOYAU_EXPORT bool WindowsEstAuMoins(typVersionWindows version);

/// Monotonic time in milliseconds, from a start that is fixed while the process runs.
FABRELNOYAU_EXPORT quint64 DonneTempsAbsoluEnMilliSecondes();
