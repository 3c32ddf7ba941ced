// tests/controls/StyleTemoin.h
#pragma once

#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionComboBox>
#include <QStyleOptionViewItem>

#include <QList>

/// Fusion, with a record of what it is asked to draw, to be given to one widget with `setStyle`.
class StyleTemoin : public QProxyStyle
{
public:
    StyleTemoin()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    struct Item
    {
        QString texte;
        bool avecIcone;
        bool selectionnay;
    };

    mutable QList<QRect> mesSeparateurs;
    mutable QList<Item> mesItems;
    mutable QList<QString> mesTextesDeCombo;
    mutable QList<bool> mesIconesDeCombo;
    mutable int mesCombos = 0;
    bool listeEnMenu = false;
    /// Draws a selected row as if it were not, under a light shade.
    bool ombreLaSelection = false;

    void drawPrimitive(PrimitiveElement element, QStyleOption const * option, QPainter * peintre,
                       QWidget const * widget) const override
    {
        if (element == PE_IndicatorToolBarSeparator)
            mesSeparateurs << option->rect;
        QProxyStyle::drawPrimitive(element, option, peintre, widget);
    }

    void drawControl(ControlElement element, QStyleOption const * option, QPainter * peintre,
                     QWidget const * widget) const override
    {
        if (auto const * const item = qstyleoption_cast<QStyleOptionViewItem const *>(option)) {
            mesItems << Item{item->text, !item->icon.isNull(),
                             item->state.testFlag(State_Selected)};
            QStyleOptionViewItem copie(*item);
            if (ombreLaSelection && item->state.testFlag(State_Selected)) {
                copie.state &= ~State_Selected;
                peintre->fillRect(item->rect, QColor(0, 0, 0, 18));
            }
            QProxyStyle::drawControl(element, &copie, peintre, widget);
            return;
        }
        if (auto const * const combo = qstyleoption_cast<QStyleOptionComboBox const *>(option)) {
            mesTextesDeCombo << combo->currentText;
            mesIconesDeCombo << !combo->currentIcon.isNull();
        }
        QProxyStyle::drawControl(element, option, peintre, widget);
    }

    void drawComplexControl(ComplexControl controle, QStyleOptionComplex const * option,
                            QPainter * peintre, QWidget const * widget) const override
    {
        mesCombos += controle == CC_ComboBox;
        QProxyStyle::drawComplexControl(controle, option, peintre, widget);
    }

    int styleHint(StyleHint hint, QStyleOption const * option, QWidget const * widget,
                  QStyleHintReturn * retour) const override
    {
        if (hint == SH_ComboBox_Popup)
            return listeEnMenu;
        return QProxyStyle::styleHint(hint, option, widget, retour);
    }
};
