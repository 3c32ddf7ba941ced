// noyau/DLocale.h
#pragma once

#include "FabrelNoyauExport.h"

#include <QLocale>

/// The languages of the family. Each but the first has catalogues under its suffix.
enum eLangue : int
{
    kLangueInconnue = 0,      ///< no catalogue: texts come back as their identifiers
    kLangueFrancais = 1,      ///< "Fr"
    kLangueAnglais = 2,       ///< "En"
    kLangueAnglaisCanada = 3, ///< "En_CA"
};

/// A language and its number format, passed by value.
class FABRELNOYAU_EXPORT DLocale
{
public:
    DLocale(eLangue langue)
        : maLangue(langue)
    {
    }

    eLangue DonneLangue() const { return maLangue; }
    /// The formats of the language; the C locale for an unknown one.
    QLocale DonneQLocale() const;

private:
    eLangue maLangue;
};
