// galerie/CatalogueAffichay.h
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// The key of one message of a catalogue, as UTF-8.
struct CleCatalogue
{
    QByteArray identifiant;
    QByteArray contexte; ///< null for a message without one
    QByteArray pluriel;  ///< null for a message without one
};

/// The keys of a `.mo` file in their order, the header's left out; none when it can't be read.
QList<CleCatalogue> LisClesCatalogue(QString const & fichier);
