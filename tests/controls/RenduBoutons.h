// tests/controls/RenduBoutons.h
#pragma once

#include "controls/Encre.h"

#include <QWidget>

// What the tests of the buttons share.
namespace RenduBoutons {

/// The widget alone on white, at its size, without the background of a window.
inline QImage Rendu(QWidget & widget, double ratio = 1.0)
{
    QImage image = Encre::ImageBlanche(widget.size(), ratio);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// Gives the widget a size, and the event of it, as a layout would.
inline void Dispose(QWidget & widget, QSize const & taille)
{
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.resize(taille);
    widget.show();
}

} // namespace RenduBoutons
