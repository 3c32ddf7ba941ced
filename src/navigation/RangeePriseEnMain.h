// navigation/RangeePriseEnMain.h
#pragma once

#include "noyau/UniChaine.h"

/// A row of the onboarding window: one topic of the help.
struct RangeePriseEnMain
{
    UniChaine titre;
    UniChaine lien; ///< the whole address, with what the application told of itself
    UniChaine cle;  ///< of the setting that holds the check state
    /// Always false in a row that was read: the check state is that of the setting.
    bool coche = false;
};
