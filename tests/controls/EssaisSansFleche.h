// tests/controls/EssaisSansFleche.h
#pragma once

#include "controls/DBoutonSansFleche.h"

// What the tests of the button without an arrow share.
namespace EssaisSansFleche {

using namespace Qt::StringLiterals;

constexpr QSize kTaille(80, 30);

struct Reglages
{
    QToolButton::ToolButtonPopupMode mode = QToolButton::DelayedPopup;
    Qt::LayoutDirection sens = Qt::LeftToRight;
    Qt::ArrowType fleche = Qt::NoArrow;
    bool autoRaise = false;
};

inline void Regle(QToolButton & bouton, QStyle * style, Reglages const & reglages = {})
{
    bouton.setStyle(style);
    bouton.setText(u"abc"_s);
    bouton.setArrowType(reglages.fleche);
    bouton.setPopupMode(reglages.mode);
    bouton.setLayoutDirection(reglages.sens);
    bouton.setAutoRaise(reglages.autoRaise);
    bouton.resize(kTaille);
}

} // namespace EssaisSansFleche
