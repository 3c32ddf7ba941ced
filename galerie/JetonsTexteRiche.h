// galerie/JetonsTexteRiche.h
#pragma once

#include <QList>
#include <QString>

class QTextCharFormat;

/// What a tagged text is read as: a tag, or the text up to the next one.
struct JetonTexteRiche
{
    QString texte;
    QString effet; ///< in the language of the application
};

QList<JetonTexteRiche> DonneJetons(QString const & texteBalisay);

/// What sets the format off from the text around it.
QString DecrisFormat(QTextCharFormat const & format);
