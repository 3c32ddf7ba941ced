// noyau/Traductions.h
#pragma once

#include "noyau/DLocale.h"

/// The language of the running application. Callable from any thread.
class FABRELNOYAU_EXPORT Traductions
{
public:
    static DLocale DonneLocalePourApplicationCourante();
    /// French until the application has said otherwise.
    static eLangue DonneLanguePourApplicationCourante();
    /// What the two functions above answer from here on. Texts already shown do not change.
    static void MetsLanguePourApplicationCourante(eLangue langue);
};
