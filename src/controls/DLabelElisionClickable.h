// controls/DLabelElisionClickable.h
#pragma once

#include "controls/DLabelElision.h"

/// An elided label that tells of clicks.
class FABRELGUI_EXPORT DLabelElisionClickable : public DLabelElision
{
    Q_OBJECT

public:
    using DLabelElision::DLabelElision;

Q_SIGNALS:
    /// Any mouse button was pressed on the label.
    void SignalCliquer();

protected:
    void mousePressEvent(QMouseEvent * evenement) override;
};
