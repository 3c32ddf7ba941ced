// noyau/ExecutionSilencieuse.h
#pragma once

#include "noyau/UniChaine.h"

#include <QList>

/// The mode in which dialogs answer themselves without being shown, for scripts and tests.
///
/// All functions may be called from any thread; an application starts and stops the mode while no
/// other thread raises alerts.
class FABRELNOYAU_EXPORT ExecutionSilencieuse
{
public:
    /// The process-wide object, or null when silent execution is not in use.
    static ExecutionSilencieuse * Instance();
    /// Creates the object, or changes the mode of the one there is.
    static void Demarre(bool silencieux = true);
    /// Destroys the object, if any. The record of silent dialogs stays.
    static void Arrete();

    /// True when dialogs must answer themselves without being shown.
    bool EstSilencieux() const { return monModeSilencieux; }

    /// Records a dialog that was answered silently, also while there is no object.
    static void JournaliseDialogueSilencieux(UniChaine const & dialogue);
    /// The dialogs recorded so far, oldest first.
    static QList<UniChaine> DonneDialoguesJournalises();
    static void OublieDialoguesJournalises();

private:
    explicit ExecutionSilencieuse(bool silencieux)
        : monModeSilencieux(silencieux)
    {
    }

    std::atomic<bool> monModeSilencieux;
};
