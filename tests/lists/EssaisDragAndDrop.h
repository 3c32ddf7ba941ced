// lists/EssaisDragAndDrop.h
#pragma once

#include "lists/EssaisVariantes.h"
#include "lists/Glissement.h"
#include "lists/WidgetListeEditableDragAndDrop.h"

/// What the tests of the list with rows to drag share.
namespace EssaisDragAndDrop {

enum eCote
{
    kDessus,
    kDessous,
};

class Liste : public EssaisVariantes::Ouverte<WidgetListeEditableDragAndDrop>
{
public:
    using Ouverte::Ouverte;

    QPoint Bord(int rangee, eCote cote) const
    {
        QRect const rect = PreteVue()->visualRect(PreteModele()->index(rangee, 0));
        return {rect.center().x(), cote == kDessus ? rect.top() + 1 : rect.bottom() - 1};
    }

    /// Takes the selected rows by one of them, and drops them there. False if no drag began.
    bool Glisse(int rangee, QPoint const & destination) const
    {
        DTreeView const & vue = *PreteVue();
        return Glissement::Execute(vue, Milieu(rangee),
                                   {[&] { Glissement::Deplace(vue, destination); },
                                    [&] { Glissement::Lache(vue, destination); }});
    }
};

} // namespace EssaisDragAndDrop
