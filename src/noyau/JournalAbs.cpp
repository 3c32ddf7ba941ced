// noyau/JournalAbs.cpp
#include "noyau/JournalAbs.h"

#include <atomic>

namespace {
std::atomic<JournalAbs *> boiteNoire = nullptr;
} // namespace

JournalAbs::~JournalAbs() = default;

JournalAbs * PreteBoiteNoire()
{
    return boiteNoire;
}

void MetsBoiteNoire(JournalAbs * journal)
{
    boiteNoire = journal;
}

void JournaliseSiActif(UniChaine const & ligne)
{
    JournalAbs * const journal = PreteBoiteNoire();
    if (journal && journal->estActif)
        journal->EcrisLigne(ligne, true, true);
}
