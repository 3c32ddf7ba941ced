// style/LecturePropriete_p.h
#pragma once

#include <QByteArray>
#include <QList>
#include <QVariant>
#include <QWidget>

// Reading the properties by which a widget asks for a behaviour. A null widget asks for nothing.

/// The value of a dynamic property; invalid without one. Most widgets have none at all, and are
/// spared the search through all that their classes declare.
inline QVariant LisPropriete(QWidget const * widget, char const * nom)
{
    if (!widget || !widget->dynamicPropertyNames().contains(nom))
        return {};
    return widget->property(nom);
}

/// Whether the value is a boolean, and true. (In Qt 6 a variant of 1 equals one of true.)
inline bool EstBooleenVrai(QWidget const * widget, char const * nom)
{
    QVariant const valeur = LisPropriete(widget, nom);
    return valeur.metaType() == QMetaType::fromType<bool>() && valeur.toBool();
}

/// Whether the value is anything that counts as true.
inline bool EstVrai(QWidget const * widget, char const * nom)
{
    return LisPropriete(widget, nom).toBool();
}
