// tests/outils/ProgrammeEtranger.h
#pragma once

#include "noyau/plateforme/TypesWin32.h"

#include <QProcess>

/// A second process with windows of its own, driven line by line; it ends with this object.
class ProgrammeEtranger
{
public:
    /// Starts it; its windows bear the class `classe`.
    explicit ProgrammeEtranger(QString const & classe);
    ProgrammeEtranger(ProgrammeEtranger const &) = delete;
    ProgrammeEtranger & operator=(ProgrammeEtranger const &) = delete;
    ~ProgrammeEtranger();

    /// Sends one command and waits for its answer; empty when none came.
    QString Demande(QString const & commande);
    HWND DemandePoignee(QString const & commande);
    QString DonneChemin() const { return monProcessus.program(); }
    DWORD DonneNumero() const { return static_cast<DWORD>(monProcessus.processId()); }
    /// Stops the process, as if it hung, and lets it go on.
    void Arrete();
    void Reprend();

private:
    void Signale(int signal);

    QProcess monProcessus;
};
