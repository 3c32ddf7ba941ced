// galerie/ProprietesMontrees.h
#pragma once

#include "DessinsStyle.h"

#include "noyau/ChaineLocalisable.h"

#include <QList>

/// One of the properties by which a widget asks the style for a behaviour.
struct ProprieteMontree
{
    char const * nom;
    ChaineLocalisable effet;
    QList<eDessin> dessins;          ///< the widgets that it concerns; none for a menu to be opened
    QList<char const *> autres = {}; ///< what those widgets need besides, with it or without it
};

/// All of them, in the order of their names.
QList<ProprieteMontree> const & DonneProprietesMontrees();

/// Gives the widget the property, in the type that the style looks for.
void MetsPropriete(QWidget & widget, char const * nom);
