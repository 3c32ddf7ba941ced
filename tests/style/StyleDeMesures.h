// tests/style/StyleDeMesures.h
#pragma once

#include <QHash>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

/// A base style that answers what a test has put in its tables, and like Fusion for the rest. Keeps
/// the option and the widget that it was last asked for.
class StyleDeMesures : public QProxyStyle
{
public:
    StyleDeMesures()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    int pixelMetric(PixelMetric mesure, QStyleOption const * option,
                    QWidget const * widget) const override
    {
        if (!mesures.contains(mesure))
            return QProxyStyle::pixelMetric(mesure, option, widget);
        Note(option, widget);
        return mesures.value(mesure);
    }

    int styleHint(StyleHint indication, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        if (!indications.contains(indication))
            return QProxyStyle::styleHint(indication, option, widget, retour);
        Note(option, widget);
        return indications.value(indication);
    }

    QSize sizeFromContents(ContentsType type, QStyleOption const * option, QSize const & taille,
                           QWidget const * widget) const override
    {
        if (!marges.contains(type))
            return QProxyStyle::sizeFromContents(type, option, taille, widget);
        Note(option, widget);
        return taille + marges.value(type);
    }

    QRect subControlRect(ComplexControl controle, QStyleOptionComplex const * option,
                         SubControl sousControle, QWidget const * widget) const override
    {
        if (!sousControles.contains(sousControle))
            return QProxyStyle::subControlRect(controle, option, sousControle, widget);
        Note(option, widget);
        return sousControles.value(sousControle);
    }

    QRect subElementRect(SubElement element, QStyleOption const * option,
                         QWidget const * widget) const override
    {
        if (!elements.contains(element))
            return QProxyStyle::subElementRect(element, option, widget);
        Note(option, widget);
        return elements.value(element);
    }

    QHash<int, int> mesures;         // by PixelMetric
    QHash<int, int> indications;     // by StyleHint
    QHash<int, QSize> marges;        // by ContentsType: what is added to the contents
    QHash<int, QRect> sousControles; // by SubControl
    QHash<int, QRect> elements;      // by SubElement
    mutable QStyleOption const * derniereOption = nullptr;
    mutable QWidget const * dernierWidget = nullptr;

private:
    void Note(QStyleOption const * option, QWidget const * widget) const
    {
        derniereOption = option;
        dernierWidget = widget;
    }
};
