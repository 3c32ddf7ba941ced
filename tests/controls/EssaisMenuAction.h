// tests/controls/EssaisMenuAction.h
#pragma once

#include "controls/DMenuAction.h"

#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <QWidgetAction>

// What the tests of the menu of rows have in common.
namespace EssaisMenuAction {

inline constexpr QPoint kPosition(120, 90);

class MenuTemoin : public DMenuAction
{
public:
    using DMenuAction::DMenuAction;
    using DMenuAction::PreteGrille;
};

inline QMenu * PreteMenu(DMenuAction const & cadre)
{
    return qobject_cast<QMenu *>(cadre.parentWidget());
}

inline QWidgetAction * PreteAction(DMenuAction const & cadre)
{
    return qobject_cast<QWidgetAction *>(PreteMenu(cadre)->actions().value(0));
}

// Opens the menu, does something once it is open, and closes it.
template <typename Travail>
void PendantQuIlEstOuvert(DMenuAction & cadre, Travail const & travail)
{
    QPointer<QMenu> const menu = PreteMenu(cadre);
    QTimer::singleShot(0, menu, [&] {
        travail();
        if (menu)
            menu->hide();
    });
    cadre.OuvrirMenuALaPosition(kPosition);
}

} // namespace EssaisMenuAction
