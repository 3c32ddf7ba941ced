// navigation/ReglageBooleen.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

/// A setting of the application that is on or off, as the library reads it.
class FABRELGUI_EXPORT ReglageBooleen
{
public:
    virtual ~ReglageBooleen();

    /// The name of the setting with those of its groups in front, `separateur` between them.
    virtual UniChaine DonneCle(UniChaine const & separateur) const = 0;
    virtual bool DonneValeur() const = 0;
};
