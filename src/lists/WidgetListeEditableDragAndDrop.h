// lists/WidgetListeEditableDragAndDrop.h
#pragma once

#include "lists/WidgetListeEditable.h"

#include <vector>

class QDragMoveEvent;
class QDropEvent;
class QKeyEvent;

/// An editable list whose rows the user puts into another order, by the mouse or with Alt+Up and
/// Alt+Down.
///
/// The mouse moves all selected rows whose first cell may be dragged, which come to stand one
/// behind the other in the order that they had, and stay selected. A drop goes between two rows or
/// behind the last, where a mark shows across the whole line; nothing is dropped onto a row, onto a
/// selected row, or from another list or program, and nothing leaves the list. The keys move the
/// first selected row, as `PriseBougeElementSelectionner` does.
///
/// A row that moves keeps its very items. `SignalElementsModifiay` tells of each drop once.
/// Sorting does not undo a move before the header is clicked again.
///
/// The view has a style of its own, over that of the application.
class FABRELGUI_EXPORT WidgetListeEditableDragAndDrop : public WidgetListeEditable
{
    Q_OBJECT

public:
    /// As `WidgetListeEditable`.
    WidgetListeEditableDragAndDrop(QWidget * parent, int nbColonnes, bool editable,
                                   bool avecBoutonAjouter, QList<QValidator *> validateurs,
                                   bool insereApresSelection);
    ~WidgetListeEditableDragAndDrop() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

protected:
    void MetsEditeur(QLineEdit * editeur) override;
    void changeEvent(QEvent * evenement) override;

private Q_SLOTS:
    void PriseFinDuGlissement();

private:
    bool FiltreVue(QEvent * evenement);
    bool FiltreSurface(QEvent * evenement);
    bool TraiteTouche(QKeyEvent const & touche);
    bool EstDeLaListe(QDropEvent const & evenement) const;
    bool PlaceEntreLesRangees(QDragMoveEvent & evenement);
    bool Depose(QDropEvent & evenement);
    void RetiensDepot(std::vector<int> const & rangees, int cible);
    std::vector<int> DonneRangeesDeplacables() const;
    void DeplaceRangees(std::vector<int> const & rangees, int cible);
    void Transporte(std::vector<int> const & rangees, int debut);

    bool monGlissement = false; // a drag began, and no other gesture since but its Escape
    bool monRenvoi = false;     // a corrected event is on its way to the view
    QList<QPersistentModelIndex> mesRangeesDeposees; // to be moved at the end of the drag
    QPersistentModelIndex maCible;                   // the row in front of which they go
    bool monDepotEstALaFin = false;                  // behind the last row instead
};
