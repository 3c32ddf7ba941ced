// controls/DComboSansDeco.cpp
#include "controls/DComboSansDeco.h"

#include <QStyleOptionComboBox>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {
constexpr QSize kTailleFleche(8, 8); // logical pixels
} // namespace

DComboSansDeco::DComboSansDeco()
{
    setFrame(false);
}

void DComboSansDeco::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    QColor const couleur = palette().color(QPalette::Text);
    peintre.setPen(couleur);

    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText.clear();
    option.rect = QStyle::alignedRect(option.direction, Qt::AlignRight | Qt::AlignVCenter,
                                      kTailleFleche, rect());
    // Styles that do not draw with the pen take one of these.
    option.palette.setColor(QPalette::WindowText, couleur);
    option.palette.setColor(QPalette::ButtonText, couleur);
    peintre.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);

    if (!hasFocus())
        return;
    QStyleOptionFocusRect cadre;
    cadre.initFrom(this);
    cadre.backgroundColor = palette().color(backgroundRole());
    peintre.drawPrimitive(QStyle::PE_FrameFocusRect, cadre);
}
