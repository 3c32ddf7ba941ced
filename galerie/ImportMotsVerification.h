// galerie/ImportMotsVerification.h
#pragma once

#include "ImportMots.h"

#include <QObject>

/// Checks words against a list, some thousands at a time, from the event loop, so that the windows
/// go on while it does.
class ImportMotsVerification : public QObject
{
    Q_OBJECT

public:
    /// Begins at once; nothing is told before the event loop runs. `liste` must outlive it.
    ImportMotsVerification(QStringList mots, MotsFrancais & liste, QObject * parent = nullptr);

    QStringList const & DonneMots() const { return mesMots; }
    /// Of the words, how many were checked.
    qsizetype DonneAvancement() const { return monAvancement; }
    /// Whole from `SignalTermine` on.
    ImportMots::Verification const & DonneVerification() const { return maVerification; }

Q_SIGNALS:
    void SignalAvance();
    /// Once.
    void SignalTermine();

private:
    void VerifieMorceau();

    QStringList mesMots;
    MotsFrancais & maListe;
    qsizetype monAvancement = 0;
    ImportMots::Verification maVerification;
};
