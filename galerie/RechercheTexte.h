// galerie/RechercheTexte.h
#pragma once

#include "OccurrencesTexte.h"

#include <QPointer>
#include <QString>
#include <QTextDocument>

/// What is searched for in a document, and its matches, which are found again only when the
/// document or the request has changed.
class RechercheTexte
{
public:
    /// Of `options` those count that tell what matches: case, whole word, begins with. True when
    /// they alone differ from the last time.
    bool Demande(QString const & chaine, short options);
    /// False when the matches are those of the last time.
    bool Cherche(QTextDocument & document);
    /// As if nothing had ever been searched for.
    void Oublie() { *this = {}; }

    bool EstVide() const { return maChaine.isEmpty(); }
    /// As of the last search. None for an empty text.
    OccurrencesTexte const & PreteOccurrences() const { return mesOccurrences; }

private:
    OccurrencesTexte Trouve(QString const & texte) const;

    QString maChaine;
    short mesOptions = 0;
    OccurrencesTexte mesOccurrences;
    QPointer<QTextDocument> monDocument; // what they were found in; null when they are out of date
    int maRevision = 0;                  // of that document
};
