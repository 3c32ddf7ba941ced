// controls/DBoutonSansFleche.cpp
#include "controls/DBoutonSansFleche.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

DBoutonSansFleche::DBoutonSansFleche(QWidget * parent)
    : QToolButton(parent)
{
}

void DBoutonSansFleche::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // Without the mode of a separate part the button is drawn over the whole width.
    option.features &= ~(QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::MenuButtonPopup |
                         QStyleOptionToolButton::PopupDelay);
    option.subControls &= ~QStyle::SC_ToolButtonMenu;
    if (option.activeSubControls & QStyle::SC_ToolButtonMenu) {
        option.activeSubControls &= ~QStyle::SC_ToolButtonMenu;
        option.activeSubControls |= QStyle::SC_ToolButton; // looks pressed while the menu is open
    }

    QStylePainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    peintre.drawComplexControl(QStyle::CC_ToolButton, option);
}
