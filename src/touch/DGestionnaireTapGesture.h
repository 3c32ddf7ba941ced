// touch/DGestionnaireTapGesture.h
#pragma once

#include "FabrelGuiExport.h"

#include "touch/DGestionnaireGestureAbs.h"

#include <QElapsedTimer>
#include <QEvent>

class QTapGesture;

/// Makes clicks of the left mouse button from the taps of a finger on a widget, and double clicks
/// from two taps within the double-click interval; and mouse events from those of a pen, at once
/// and without a double click of their own.
///
/// The widget owns the manager, which filters its events; a second manager on one widget doubles
/// every click. A tap or pen on a child that has no manager of its own is a click on the child,
/// made by Qt, and one on the widget.
///
/// The click is delivered while Qt works on the touch: what it calls may destroy the widget, but Qt
/// still asks the widget that the finger is on, so `deleteLater` is for that one. What a pen's
/// press calls may destroy the widget; the tablet event then counts as accepted, else it goes on to
/// the parents as it came.
class FABRELGUI_EXPORT DGestionnaireTapGesture : public DGestionnaireGestureAbs
{
    Q_OBJECT

public:
    /// Does nothing for null.
    explicit DGestionnaireTapGesture(QWidget * widget);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    bool TraiteTap(QTapGesture const & tap);
    void Clique(QEvent::Type premier, QPointF const & position);

    QWidget * monWidget;
    QElapsedTimer monChrono;          // since the press of the last single tap
    bool monAttenteDoubleTap = false; // the next tap may make a double click
    bool monTapEnCours = false;       // a finger is down on the widget
};
