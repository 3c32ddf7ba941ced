// tests/controls/EssaisElision.h
#pragma once

#include "controls/DLabelElision.h"

#include "controls/Encre.h"
#include "foundation/TailleTexte.h"

#include <QPainter>

// What the tests of the elided label share.
namespace EssaisElision {

// The background of a character tells where it stands, whatever the font.
inline constexpr QColor kCouleurDebut(0, 255, 0);
inline constexpr QColor kCouleurFin(0, 0, 255);
inline constexpr QColor kCouleurEllipse(255, 0, 0);

inline QString const kBalisay =
    QStringLiteral("<span style='background-color:#00ff00'>W</span>un mot, un autre "
                   "<span style='background-color:#0000ff'>M</span>");

inline QImage Rends(DLabelElision & label, QSize const & marge = QSize(40, 10), double ratio = 1.0)
{
    QImage image = Encre::ImageBlanche(label.size() + marge, ratio);
    QPainter peintre(&image);
    label.render(&peintre, QPoint(), QRegion(), QFlags<QWidget::RenderFlag>());
    return image;
}

inline int LargeurEllipse(QWidget const & widget)
{
    return RoutinesGeneralesQt::DonneTailleTexteBrut(QStringLiteral("…"), widget.font()).width();
}

} // namespace EssaisElision
