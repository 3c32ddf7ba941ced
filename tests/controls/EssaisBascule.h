// tests/controls/EssaisBascule.h
#pragma once

#include "controls/DToggleButton.h"

#include <QPropertyAnimation>

// What the tests of the switch share.
namespace EssaisBascule {

constexpr int kPiste = 12;
constexpr int kPouce = 9;
constexpr int kFinNonCochay = 15; // margin 3, track radius 12
constexpr int kFinCochay = 39;    // width 54

inline QPropertyAnimation const & Animation(DToggleButton const & bascule)
{
    return *bascule.findChild<QPropertyAnimation *>();
}

inline bool Glisse(DToggleButton const & bascule)
{
    return Animation(bascule).state() == QAbstractAnimation::Running;
}

} // namespace EssaisBascule
