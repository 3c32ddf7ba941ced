// lists/StyleDeLApplication_p.h
#pragma once

#include <QStyle>

/// Stands for the style that the application has at the time of each call, so that a proxy can be
/// laid over it for one widget without owning it, and follows when it is replaced.
///
/// The style sheet of the application is left out: Qt lays it over a widget's own style itself.
class StyleDeLApplication : public QStyle
{
    Q_OBJECT

public:
    using QStyle::polish;
    using QStyle::unpolish;
    void polish(QWidget * widget) override;
    void unpolish(QWidget * widget) override;
    QRect itemTextRect(QFontMetrics const & metriques, QRect const & rect, int drapeaux, bool actif,
                       QString const & texte) const override;
    QRect itemPixmapRect(QRect const & rect, int drapeaux, QPixmap const & image) const override;
    void drawItemText(QPainter * peintre, QRect const & rect, int drapeaux,
                      QPalette const & palette, bool actif, QString const & texte,
                      QPalette::ColorRole role) const override;
    void drawItemPixmap(QPainter * peintre, QRect const & rect, int alignement,
                        QPixmap const & image) const override;
    QPalette standardPalette() const override;
    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget) const override;
    void drawControl(ControlElement element, QStyleOption const * option, QPainter * peintre,
                     QWidget const * widget) const override;
    QRect subElementRect(SubElement element, QStyleOption const * option,
                         QWidget const * widget) const override;
    void drawComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                            QPainter * peintre, QWidget const * widget) const override;
    SubControl hitTestComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                                     QPoint const & point, QWidget const * widget) const override;
    QRect subControlRect(ComplexControl controle, QStyleOptionComplex const * option,
                         SubControl sousControle, QWidget const * widget) const override;
    int pixelMetric(PixelMetric mesure, QStyleOption const * option,
                    QWidget const * widget) const override;
    QSize sizeFromContents(ContentsType type, QStyleOption const * option, QSize const & taille,
                           QWidget const * widget) const override;
    int styleHint(StyleHint indication, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override;
    QPixmap standardPixmap(StandardPixmap image, QStyleOption const * option,
                           QWidget const * widget) const override;
    QIcon standardIcon(StandardPixmap image, QStyleOption const * option,
                       QWidget const * widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, QPixmap const & image,
                                QStyleOption const * option) const override;
    int layoutSpacing(QSizePolicy::ControlType premier, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, QStyleOption const * option,
                      QWidget const * widget) const override;
};
