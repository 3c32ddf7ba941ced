// galerie/ChampAvecDefaut.cpp
#include "ChampAvecDefaut.h"

QString ChampAvecDefaut::DonneSaisie() const
{
    if (!isModified())
        return {};
    return text().isNull() ? QStringLiteral("") : text(); // emptied by the user, which is an input
}

void ChampAvecDefaut::MetsSaisie(QString const & saisie)
{
    if (saisie.isNull())
        return;
    setText(saisie);
    setModified(true);
}
