// controls/DMenuAction.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>

class QGridLayout;
class QLabel;
class QMenu;
class QWidgetAction;

/// Rows of a label and a widget that are shown in a menu.
///
/// The frame lives in its menu as the widget of the only action: the menu is a child of the parent
/// given at construction and takes the frame with it; destroying the frame destroys the menu. The
/// frame owns the labels and widgets. Its style sheet makes it transparent and its labels bold and
/// grey; a host that wants them otherwise sets another one.
///
/// A click beside the widgets leaves the menu open. Tab goes around among the widgets, Escape
/// closes the menu.
class FABRELGUI_EXPORT DMenuAction : public QFrame
{
    Q_OBJECT

public:
    explicit DMenuAction(QWidget * parent = nullptr);
    ~DMenuAction() override;

    /// Opens the menu at this global position, through the signal, and blocks until it is closed.
    /// A menu that is open already only moves there. The frame may be destroyed meanwhile.
    void OuvrirMenuALaPosition(QPoint const & position);

    /// Adds a row; without a label or without a widget its place stays empty, without both there is
    /// no row.
    void AjouteWidget(QLabel * label, QWidget * widget);
    /// Adds a row with a line over both columns: a `QFrame` with the object name "Separateur".
    void AjouteSeparateur();

    /// Shows or hides all that is in the row of `widget`, its label too; nothing for a widget that
    /// is in no row, or null. The menu takes the new size, and stays on its screen.
    void AfficherRangeeDuWidget(QWidget const * widget, bool const & visible);

Q_SIGNALS:
    /// Opens the menu, before the emission returns: emitting it is as good as the function.
    void SignalOuvreMenu(QPoint position);

protected:
    /// The grid of the rows, for what is more than a row; owned by the frame.
    QGridLayout * PreteGrille() const;

    bool event(QEvent * evenement) override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    bool focusNextPrevChild(bool suivant) override;

private:
    void PriseOuvreMenu(QPoint const & position);
    void PriseMenuDetruit();
    void CreeGrille();
    void CreeMenu(QWidget * parent);
    int DonneNouvelleRangee() const;
    void RedimensionneMenu();

    QGridLayout * maGrille = nullptr;
    QMenu * monMenu = nullptr; // null once it goes
    QWidgetAction * monAction = nullptr;
};
