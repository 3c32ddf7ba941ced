// lists/EssaisCochable.h
#pragma once

#include "lists/EssaisVariantes.h"
#include "lists/WidgetListeEditableCochable.h"

/// What the tests of the checkable list share.
namespace EssaisCochable {

using Liste = EssaisVariantes::Ouverte<WidgetListeEditableCochable>;

inline QList<int> Cochees(Liste const & liste)
{
    std::list<int> const rangees = liste.DonneRangeesCochay();
    return {rangees.begin(), rangees.end()};
}

} // namespace EssaisCochable
