// tests/controls/EssaisComboElision.h
#pragma once

#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QString>

// What the tests of the combo box with an elided label share.
namespace EssaisComboElision {

// Letters of which whole pixels have the colour of the pen, and single words for them.
inline QString const kPleins = QStringLiteral("▇▇▇▇");
inline QString const kRiche =
    QStringLiteral("<span style='background-color:#00ff00'>W</span> et <b>gras</b>");
inline constexpr QColor kVert(0, 255, 0);
inline QString const kTresLong = QStringLiteral("un texte bien trop long ").repeated(40);

inline QPalette FabriquePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0, 0, 160));
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    palette.setColor(QPalette::Text, QColor(200, 0, 0));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0, 120, 0));
    palette.setColor(QPalette::PlaceholderText, QColor(200, 0, 200));
    return palette;
}

inline QIcon Icone()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::cyan);
    return QIcon(pixmap);
}

} // namespace EssaisComboElision
