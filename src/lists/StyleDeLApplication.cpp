// lists/StyleDeLApplication.cpp
#include "lists/StyleDeLApplication_p.h"

#include <QApplication>
#include <QIcon>

namespace {

// The style sheet of the application hides the style that it is laid over, and owns it.
QStyle & PreteStyle()
{
    QStyle * const style = QApplication::style();
    if (style->inherits("QStyleSheetStyle")) {
        if (auto * const base = style->findChild<QStyle *>({}, Qt::FindDirectChildrenOnly))
            return *base;
    }
    return *style;
}

} // namespace

void StyleDeLApplication::polish(QWidget * widget)
{
    PreteStyle().polish(widget);
}

void StyleDeLApplication::unpolish(QWidget * widget)
{
    PreteStyle().unpolish(widget);
}

QRect StyleDeLApplication::itemTextRect(QFontMetrics const & metriques, QRect const & rect,
                                        int drapeaux, bool actif, QString const & texte) const
{
    return PreteStyle().itemTextRect(metriques, rect, drapeaux, actif, texte);
}

QRect StyleDeLApplication::itemPixmapRect(QRect const & rect, int drapeaux,
                                          QPixmap const & image) const
{
    return PreteStyle().itemPixmapRect(rect, drapeaux, image);
}

void StyleDeLApplication::drawItemText(QPainter * peintre, QRect const & rect, int drapeaux,
                                       QPalette const & palette, bool actif, QString const & texte,
                                       QPalette::ColorRole role) const
{
    PreteStyle().drawItemText(peintre, rect, drapeaux, palette, actif, texte, role);
}

void StyleDeLApplication::drawItemPixmap(QPainter * peintre, QRect const & rect, int alignement,
                                         QPixmap const & image) const
{
    PreteStyle().drawItemPixmap(peintre, rect, alignement, image);
}

QPalette StyleDeLApplication::standardPalette() const
{
    return PreteStyle().standardPalette();
}

void StyleDeLApplication::drawPrimitive(PrimitiveElement element, QStyleOption const * option,
                                        QPainter * peintre, QWidget const * widget) const
{
    PreteStyle().drawPrimitive(element, option, peintre, widget);
}

void StyleDeLApplication::drawControl(ControlElement element, QStyleOption const * option,
                                      QPainter * peintre, QWidget const * widget) const
{
    PreteStyle().drawControl(element, option, peintre, widget);
}

QRect StyleDeLApplication::subElementRect(SubElement element, QStyleOption const * option,
                                          QWidget const * widget) const
{
    return PreteStyle().subElementRect(element, option, widget);
}

void StyleDeLApplication::drawComplexControl(ComplexControl controle,
                                             QStyleOptionComplex const * option, QPainter * peintre,
                                             QWidget const * widget) const
{
    PreteStyle().drawComplexControl(controle, option, peintre, widget);
}

QStyle::SubControl StyleDeLApplication::hitTestComplexControl(ComplexControl controle,
                                                              QStyleOptionComplex const * option,
                                                              QPoint const & point,
                                                              QWidget const * widget) const
{
    return PreteStyle().hitTestComplexControl(controle, option, point, widget);
}

QRect StyleDeLApplication::subControlRect(ComplexControl controle,
                                          QStyleOptionComplex const * option,
                                          SubControl sousControle, QWidget const * widget) const
{
    return PreteStyle().subControlRect(controle, option, sousControle, widget);
}

int StyleDeLApplication::pixelMetric(PixelMetric mesure, QStyleOption const * option,
                                     QWidget const * widget) const
{
    return PreteStyle().pixelMetric(mesure, option, widget);
}

QSize StyleDeLApplication::sizeFromContents(ContentsType type, QStyleOption const * option,
                                            QSize const & taille, QWidget const * widget) const
{
    return PreteStyle().sizeFromContents(type, option, taille, widget);
}

int StyleDeLApplication::styleHint(StyleHint indication, QStyleOption const * option,
                                   QWidget const * widget, QStyleHintReturn * retour) const
{
    return PreteStyle().styleHint(indication, option, widget, retour);
}

QPixmap StyleDeLApplication::standardPixmap(StandardPixmap image, QStyleOption const * option,
                                            QWidget const * widget) const
{
    return PreteStyle().standardPixmap(image, option, widget);
}

QIcon StyleDeLApplication::standardIcon(StandardPixmap image, QStyleOption const * option,
                                        QWidget const * widget) const
{
    return PreteStyle().standardIcon(image, option, widget);
}

QPixmap StyleDeLApplication::generatedIconPixmap(QIcon::Mode mode, QPixmap const & image,
                                                 QStyleOption const * option) const
{
    return PreteStyle().generatedIconPixmap(mode, image, option);
}

int StyleDeLApplication::layoutSpacing(QSizePolicy::ControlType premier,
                                       QSizePolicy::ControlType second, Qt::Orientation orientation,
                                       QStyleOption const * option, QWidget const * widget) const
{
    return PreteStyle().layoutSpacing(premier, second, orientation, option, widget);
}
