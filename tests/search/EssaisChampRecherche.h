// tests/search/EssaisChampRecherche.h
#pragma once

#include "search/DChampRecherche.h"

#include <QMenu>
#include <QStyleOptionComboBox>
#include <QTest>

// What the tests of the search field have in common.
namespace EssaisChampRecherche {

using namespace Qt::StringLiterals;

enum eMode
{
    kContient,
    kCommence,
    kFinit,
};

inline void Remplis(DChampRecherche & champ)
{
    champ.AjouteMode(kContient, u"contient"_s);
    champ.AjouteMode(kCommence, u"commence par"_s);
    champ.AjouteMode(kFinit, u"finit par"_s);
}

// A field with modes in a window that has the focus.
struct Hote
{
    Hote()
        : champ(new DChampRecherche(&fenetre))
    {
        fenetre.resize(400, 300);
        champ->setGeometry(50, 50, 200, 30);
        Remplis(*champ);
        fenetre.show();
        fenetre.activateWindow();
    }

    bool Pret()
    {
        champ->setFocus();
        return QTest::qWaitForWindowActive(&fenetre);
    }

    QWidget fenetre;
    DChampRecherche * champ;
};

/// Null until it has been opened once.
inline QMenu * Menu(DChampRecherche const & champ)
{
    return champ.findChild<QMenu *>();
}

/// The middle of the arrow.
inline QPoint Fleche(DChampRecherche const & champ)
{
    QStyleOptionComboBox option;
    option.initFrom(&champ);
    option.editable = true;
    option.subControls = QStyle::SC_All;
    return champ.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &champ)
        .center();
}

} // namespace EssaisChampRecherche
