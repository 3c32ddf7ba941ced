// galerie/MemoireListes.h
#pragma once

#include "lists/WidgetListeEditable.h"

#include <QStringList>

/// What the user made of the editable lists of a page that is built anew for each language and
/// theme, by their object names. A list that nobody changed is not kept: its examples follow the
/// language.
namespace MemoireListes {

/// The cells of a row, by column.
WidgetListeEditable::Valeurs CreeLigne(QStringList const & textes);
/// Empty for a cell that was never filled.
QStringList DonneTextes(QList<QStandardItem *> const & items);

/// Fills a new list with what is kept of it, else with the examples.
void Remplis(WidgetListeEditable & liste, QList<QStringList> const & exemples);
/// Makes the list the user's from now on.
void MarqueModifiee(WidgetListeEditable & liste);
/// Keeps the list if it is the user's.
void Retiens(WidgetListeEditable const & liste);
bool Connait(WidgetListeEditable const & liste);
/// Makes the next lists begin with their examples.
void Oublie();

} // namespace MemoireListes
