// galerie/JournalAffichay.cpp
#include "JournalAffichay.h"

JournalAffichay::JournalAffichay(QObject * parent)
    : QObject(parent)
    , monPrecedent(PreteBoiteNoire())
{
    estActif = true;
    MetsBoiteNoire(this);
}

JournalAffichay::~JournalAffichay()
{
    if (PreteBoiteNoire() == this)
        MetsBoiteNoire(monPrecedent);
}

void JournalAffichay::EcrisLigne(UniChaine const & ligne, bool, bool)
{
    Q_EMIT SignalLigne(ligne);
}
