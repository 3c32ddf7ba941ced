// touch/DZoomTactile.h
#pragma once

#include "FabrelGuiExport.h"

#include <QObject>

class QWidget;

/// Tells the steps of a pinch of two fingers on a widget as zoom factors.
///
/// The widget owns the object, which filters its events and consumes the pinches.
///
/// Give it a widget inside a window: Qt shows a touch to the gestures of a window twice, once for
/// the native window and once for the widget, and each step of the pinch is told twice there.
class FABRELGUI_EXPORT DZoomTactile : public QObject
{
    Q_OBJECT

public:
    /// Does nothing for null.
    explicit DZoomTactile(QWidget * widget);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// One step of the pinch: `facteur` is relative to the step before, above 1 for fingers that
    /// part. Never exactly 1. A receiver may destroy the widget.
    void SignalZoomTactile(double facteur);
};
