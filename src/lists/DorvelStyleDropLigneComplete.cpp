// lists/DorvelStyleDropLigneComplete.cpp
#include "lists/DorvelStyleDropLigneComplete_p.h"

#include <QStyleOption>
#include <QWidget>

void DorvelStyleDropLigneComplete::drawPrimitive(PrimitiveElement element,
                                                 QStyleOption const * option, QPainter * peintre,
                                                 QWidget const * widget) const
{
    if (element != PE_IndicatorItemViewItemDrop || option == nullptr || option->rect.isNull()) {
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
        return;
    }
    QStyleOption copie(*option);
    copie.rect.setLeft(0);
    if (widget != nullptr)
        copie.rect.setRight(widget->width());
    QProxyStyle::drawPrimitive(element, &copie, peintre, widget);
}
