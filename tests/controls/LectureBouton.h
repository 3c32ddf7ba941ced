#pragma once

#include "controls/EssaisBouton.h"

#include <QAccessible>

// What the tests of the labelled buttons with a screen reader share.
namespace LectureBouton {

using namespace EssaisBouton;

inline QAccessibleInterface * Lu(QObject const & objet)
{
    return QAccessible::queryAccessibleInterface(const_cast<QObject *>(&objet));
}

/// The interface of the control, then that of the indicator.
inline QList<QAccessibleInterface *> LesDeux(DBoutonAbstrait const & controle)
{
    return {Lu(controle), Lu(Indicateur(controle))};
}

} // namespace LectureBouton
