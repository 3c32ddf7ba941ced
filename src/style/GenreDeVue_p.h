// style/GenreDeVue_p.h
#pragma once

#include "style/LecturePropriete_p.h"
#include "style/ProprietesStyle_p.h"

#include <QTableView>

inline bool EstTable(QWidget const * widget)
{
    return qobject_cast<QTableView const *>(widget);
}

/// The list of a combo box is a class of Qt's own, known by its name only.
inline bool EstListeDeCombo(QWidget const * widget)
{
    return widget && widget->inherits("QComboBoxListView");
}

/// The widget whose properties tell how the texts of the items are drawn: the view, or for the list
/// of a combo box its parent, or the combo box around the container that Qt puts the list in.
inline QWidget const * DonneDecideur(QWidget const * vue)
{
    if (!EstListeDeCombo(vue))
        return vue;
    QWidget const * const parent = vue->parentWidget();
    bool const estConteneur = parent && parent->inherits("QComboBoxPrivateContainer") &&
                              !EstBooleenVrai(parent, ProprietesStyle::kTexteRiche);
    return estConteneur ? parent->parentWidget() : parent;
}
