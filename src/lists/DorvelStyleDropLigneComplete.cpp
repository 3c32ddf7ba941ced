// lists/DorvelStyleDropLigneComplete.cpp
#include "lists/DorvelStyleDropLigneComplete_p.h"

#include "lists/StyleDeLApplication_p.h"

#include <QApplication>
#include <QPointer>
#include <QStyleOption>
#include <QWidget>

// A proxy without a base would make a second instance of the platform's style, which is not the
// application's; a proxy over the application's own style would take it away from the application.
DorvelStyleDropLigneComplete::DorvelStyleDropLigneComplete()
    : QProxyStyle(new StyleDeLApplication)
{
}

DorvelStyleDropLigneComplete * DorvelStyleDropLigneComplete::Prete()
{
    static QPointer<DorvelStyleDropLigneComplete> partagay;
    if (!partagay) {
        partagay = new DorvelStyleDropLigneComplete;
        partagay->setParent(qApp);
    }
    return partagay;
}

void DorvelStyleDropLigneComplete::drawPrimitive(PrimitiveElement element,
                                                 QStyleOption const * option, QPainter * peintre,
                                                 QWidget const * widget) const
{
    if (element != PE_IndicatorItemViewItemDrop || !option || option->rect.isNull()) {
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
        return;
    }
    QStyleOption ligne(*option);
    ligne.rect.setLeft(0);
    if (widget)
        ligne.rect.setRight(widget->width());
    QProxyStyle::drawPrimitive(element, &ligne, peintre, widget);
}
