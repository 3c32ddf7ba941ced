// tests/outils/LecteurSimulay.h
#pragma once

#include <QAccessible>
#include <QList>

/// A screen reader that keeps what it is told.
namespace LecteurSimulay {

struct Annonce
{
    QAccessible::Event nature;
    QObject const * objet;
    QAccessible::State etats; ///< those that have changed
};

/// To be called before any widget is there: Qt looks for readers once.
void Installe();

void Oublie();
/// What it was told since the last `Oublie`.
QList<Annonce> Annonces();
/// How many changes of `etat` of `objet` it was told of.
int CompteChangements(QObject const * objet, QAccessible::State etat);

} // namespace LecteurSimulay
