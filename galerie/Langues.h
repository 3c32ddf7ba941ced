// galerie/Langues.h
#pragma once

#include "noyau/DLocale.h"

#include <QList>
#include <QString>

#include <optional>

/// A language of the gallery.
struct DescriptionLangue
{
    eLangue langue;
    QString nom;  ///< in itself, which the reader of another language need not know
    QString code; ///< on the command line, in the names of pictures and in HTML
};

/// The languages in the order of the choice.
QList<DescriptionLangue> const & DonneLangues();

/// The language of that code, none for an unknown one.
std::optional<eLangue> DonneLangueDuCode(QString const & code);
