// tests/noyau/JournalSimulay.h
#pragma once

#include "noyau/JournalAbs.h"

#include <QMutex>
#include <QStringList>

/// A journal that keeps its lines in memory. Installs itself for as long as it lives.
class JournalSimulay : public JournalAbs
{
public:
    JournalSimulay()
    {
        estActif = true;
        MetsBoiteNoire(this);
    }
    ~JournalSimulay() override { MetsBoiteNoire(nullptr); }

    void EcrisLigne(UniChaine const & ligne, bool avecHorodatage, bool viderTampon) override
    {
        QMutexLocker const verrou(&monVerrou);
        mesLignes.append(ligne);
        monAppelEstComplet = monAppelEstComplet && avecHorodatage && viderTampon;
    }

    QStringList DonneLignes() const
    {
        QMutexLocker const verrou(&monVerrou);
        return mesLignes;
    }

    /// True while every line came with both switches on.
    bool AppelsSontComplets() const
    {
        QMutexLocker const verrou(&monVerrou);
        return monAppelEstComplet;
    }

private:
    mutable QMutex monVerrou;
    QStringList mesLignes;
    bool monAppelEstComplet = true;
};
