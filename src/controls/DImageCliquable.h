// controls/DImageCliquable.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLabel>

/// A picture that tells of clicks, whatever the mouse button.
///
/// The clicks are the picture's own: no parent hears of them. Whoever hears one of the signals may
/// delete the picture.
class FABRELGUI_EXPORT DImageCliquable : public QLabel
{
    Q_OBJECT

public:
    /// A null `image` shows nothing, but what is left of the label can still be clicked.
    explicit DImageCliquable(QPixmap image, QWidget * parent = nullptr);

    void ChangeImage(QPixmap image);

Q_SIGNALS:
    void SignalImageCliquee();
    /// At the second press of a double click, of which the first one is a click.
    void SignalImageDoubleCliquee();

protected:
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseDoubleClickEvent(QMouseEvent * evenement) override;
};
