// noyau/JournalAbs.h
#pragma once

#include "noyau/UniChaine.h"

/// The journal of the process, its black box: one line per event.
///
/// The two functions below may be called from any thread; what `EcrisLigne` of an installed journal
/// allows is its own affair, but alerts and look-ups write from whatever thread they run on.
class FABRELNOYAU_EXPORT JournalAbs
{
public:
    virtual ~JournalAbs();

    /// Writes one line. The libraries pass true for both switches.
    virtual void EcrisLigne(UniChaine const & ligne, bool avecHorodatage, bool viderTampon) = 0;

    /// Callers write nothing while this is false. Set it before other threads write.
    bool estActif = false;
};

/// The journal of the process, or null.
FABRELNOYAU_EXPORT JournalAbs * PreteBoiteNoire();
/// Installs the journal, which is not owned; null for none.
FABRELNOYAU_EXPORT void MetsBoiteNoire(JournalAbs * journal);
/// Writes one line if there is a journal and it is on.
FABRELNOYAU_EXPORT void JournaliseSiActif(UniChaine const & ligne);
