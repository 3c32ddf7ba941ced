// lists/DorvelStyleDropLigneComplete_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QProxyStyle>

/// A style that marks a drop between two rows across the whole width of the view.
class FABRELGUI_EXPORT DorvelStyleDropLigneComplete : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget = nullptr) const override;
};
