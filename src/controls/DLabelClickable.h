// controls/DLabelClickable.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLabel>

/// A label that tells of clicks.
///
/// The press is the label's own: no parent hears of it, and it starts no selection of the text. A
/// link is followed all the same, at the release, unless some text of the label is selected.
class FABRELGUI_EXPORT DLabelClickable : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

Q_SIGNALS:
    /// Any mouse button was pressed on the label; a double click is two presses. Whoever hears it
    /// may delete the label.
    void SignalCliquer();

protected:
    void mousePressEvent(QMouseEvent * evenement) override;
};
