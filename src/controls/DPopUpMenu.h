// controls/DPopUpMenu.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>
#include <QPoint>
#include <QSize>

/// A frameless pop-up that stays on the screen and keeps clear of the rectangle that it belongs to.
///
/// Wherever it is moved, and however it grows, it goes back onto the screen; if it then covers the
/// rectangle, it goes 10 pixels above it, or where there is no room below it, to its right or to
/// its left. Where it fits on no side it stays on the screen and covers the rectangle.
class FABRELGUI_EXPORT DPopUpMenu : public QFrame
{
    Q_OBJECT

public:
    explicit DPopUpMenu(QWidget * parent = nullptr);

    /// Shows the pop-up beside the rectangle of this position and size, in global coordinates. A
    /// rectangle without width or without height is a line; without either it is nowhere in the
    /// way, and the pop-up stands at its position.
    ///
    /// A pop-up that its host has moved since the last call stays there, if the place is allowed.
    void AfficheToi(QPoint const & position, QSize const & taille);

Q_SIGNALS:
    /// It is being closed; `hide` alone says nothing. The receiver may destroy it.
    void SignalPopupEnFermeture();

protected:
    void moveEvent(QMoveEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;
    void closeEvent(QCloseEvent * evenement) override;

private:
    QRect DonneAncre() const;
    void Replace();

    QPoint maPosition; // of the rectangle to keep clear of
    QSize maTaille = QSize(0, 0);
    bool monReplacementEnCours = false;
};
