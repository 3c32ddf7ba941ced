// lists/StyleEspion.h
#pragma once

#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <QList>

/// Fusion, with a record of the drop marks that it is asked for. For the application, or a widget.
class StyleEspion : public QProxyStyle
{
public:
    static constexpr int kMesureReconnue = 1234; // of no other style

    StyleEspion()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    struct Marque
    {
        QRect rect;
        QWidget const * widget;
    };

    mutable QList<Marque> marques;
    mutable QList<QRect> autres; // rectangles of the panels of items
    QList<QWidget *> polis;

    using QProxyStyle::polish;
    void polish(QWidget * widget) override
    {
        polis.append(widget);
        QProxyStyle::polish(widget);
    }

    using QProxyStyle::unpolish;
    void unpolish(QWidget * widget) override
    {
        polis.removeAll(widget);
        QProxyStyle::unpolish(widget);
    }

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget) const override
    {
        if (element == PE_IndicatorItemViewItemDrop)
            marques.append({option ? option->rect : QRect(), widget});
        else if (element == PE_PanelItemViewItem)
            autres.append(option->rect);
        if (option && peintre)
            QProxyStyle::drawPrimitive(element, option, peintre, widget);
    }

    int pixelMetric(PixelMetric mesure, QStyleOption const * option,
                    QWidget const * widget) const override
    {
        return mesure == PM_CustomBase ? kMesureReconnue
                                       : QProxyStyle::pixelMetric(mesure, option, widget);
    }
};
