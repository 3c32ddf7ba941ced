// controls/DComboSansDeco.h
#pragma once

#include "FabrelGuiExport.h"

#include <QComboBox>

/// A combo box of which only the arrow is seen, at the right, or at the left when the layout is
/// from right to left: neither frame nor text.
///
/// The arrow has the colour of the palette's text, disabled text for a disabled combo box, unless
/// the style draws it as a picture. Hovering changes nothing; the focus is framed as the style
/// frames it, which most styles do only once the keyboard is used.
class FABRELGUI_EXPORT DComboSansDeco : public QComboBox
{
    Q_OBJECT

public:
    DComboSansDeco();

protected:
    void paintEvent(QPaintEvent * evenement) override;
};
