// lists/WidgetListeEditableCochable.h
#pragma once

#include "lists/WidgetListeEditable.h"

#include <list>

/// An editable list whose rows have a check box in front of their first cell, unchecked at first.
///
/// The mouse toggles one box; Space toggles the current row, and with it all other selected rows,
/// which take its new state. A list that is not editable can be checked all the same, a disabled
/// list or item cannot. A row keeps its state when it moves.
///
/// A change of state is a change of the list, but no end of an edit: no editor opens in the next
/// empty cell, and an empty row stays.
class FABRELGUI_EXPORT WidgetListeEditableCochable : public WidgetListeEditable
{
    Q_OBJECT

public:
    /// As `WidgetListeEditable`.
    WidgetListeEditableCochable(QWidget * parent, int nbColonnes, bool editable,
                                bool avecBoutonAjouter, QList<QValidator *> validateurs,
                                bool insereApresSelection);

    /// The rows that are checked, from top to bottom.
    std::list<int> DonneRangeesCochay() const;
    /// False out of range.
    bool EstCochay(int rangee) const;
    /// Tells of a change as if the user had made it. Out of range nothing happens.
    void MetsCochay(int rangee, bool cochay);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// The box of a row changed, told with its first cell. `SignalElementsModifiay` follows, once
    /// for all rows that change together.
    void SignalCocheModifiay(QModelIndex element, bool cochay);

private Q_SLOTS:
    void PriseDonneesModifiay(QModelIndex const & debut, QModelIndex const & fin,
                              QList<int> const & roles);
    void PriseRangeesInseray(QModelIndex const & parent, int premiere, int derniere);

private:
    bool BasculeRangees();
    QList<int> DonneRangeesABasculer() const;
    bool PeutBasculer(int rangee) const;

    bool mesCasesSePosent = false;     // boxes are being given to new rows
    bool monChangementGroupay = false; // several rows are being toggled
};
