// touch/DZoomTactile.cpp
#include "touch/DZoomTactile.h"

#include <QGestureEvent>
#include <QPinchGesture>
#include <QWidget>

DZoomTactile::DZoomTactile(QWidget * widget)
    : QObject(widget)
{
    if (!widget)
        return;
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->grabGesture(Qt::PinchGesture);
    widget->installEventFilter(this);
}

bool DZoomTactile::eventFilter(QObject *, QEvent * evenement)
{
    if (evenement->type() != QEvent::Gesture)
        return false;
    auto const * const pincement = static_cast<QPinchGesture *>(
        static_cast<QGestureEvent *>(evenement)->gesture(Qt::PinchGesture));
    if (!pincement)
        return false;
    double const facteur = pincement->scaleFactor();
    if (facteur != 1.0)
        Q_EMIT SignalZoomTactile(facteur);
    return true;
}
