// galerie/JournalAffichay.h
#pragma once

#include "noyau/JournalAbs.h"

#include <QObject>

/// The journal of the process while it lives, which tells of each line; then the one before is
/// back.
class JournalAffichay : public QObject, public JournalAbs
{
    Q_OBJECT

public:
    explicit JournalAffichay(QObject * parent = nullptr);
    ~JournalAffichay() override;

    void EcrisLigne(UniChaine const & ligne, bool avecHorodatage, bool viderTampon) override;

Q_SIGNALS:
    /// Comes from the thread of the event that the line tells of.
    void SignalLigne(QString const & ligne);

private:
    JournalAbs * monPrecedent;
};
