// touch/DGestionnaireGestureAbs.h
#pragma once

#include "FabrelGuiExport.h"

#include <QObject>

#include <memory>

class QEvent;
class QMouseEvent;
class QTabletEvent;
class QWidget;

/// What the event filters for finger and pen share: which mouse events to keep from a widget, and
/// mouse events made from those of a pen.
///
/// The widget owns its manager.
class FABRELGUI_EXPORT DGestionnaireGestureAbs : public QObject
{
    Q_OBJECT

public:
    explicit DGestionnaireGestureAbs(QWidget * widget);

protected:
    /// True for a press, release or move of the mouse that the system or Qt made from a touch or a
    /// pen: what acts on the touch and the pen themselves would do the work a second time. A mouse
    /// event whose device is a pen counts as made from it, whatever its source says.
    ///
    /// False for a double click; and, while the widget is in the pop-up that is open, for what Qt
    /// made, since Qt delivers no touches then.
    bool DoitIgnorerEvenement(QEvent * evenement) const;

    /// True for a press, release or move of any tablet tool.
    bool EstEvenementTablet(QEvent * evenement) const;

    /// The mouse event, of the primary pointing device and without modifiers, that says the same as
    /// a pen's press, release or move at its local position; null for other tools and events.
    std::unique_ptr<QMouseEvent> DonneEvenementSouris(QTabletEvent * evenement) const;

    /// Sends what `DonneEvenementSouris` makes of it to `widget`, if anything, before it returns.
    /// The receiver may destroy `widget`.
    void TraiteEvenementTablet(QTabletEvent * evenement, QWidget * widget) const;
};
