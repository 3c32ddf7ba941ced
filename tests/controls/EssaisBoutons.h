#pragma once

#include "Encre.h"

#include <QWidget>

// What the tests of the buttons share.
namespace EssaisBoutons {

/// The widget alone on white, at its size, without the background of a window.
inline QImage Rendu(QWidget & widget, double ratio = 1.0)
{
    QImage image = Encre::ImageBlanche(widget.size(), ratio);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The widget gets its own size, and the event of it, as if a layout gave it.
inline void Dispose(QWidget & widget, QSize const & taille)
{
    widget.setAttribute(Qt::WA_DontShowOnScreen);
    widget.resize(taille);
    widget.show();
}

} // namespace EssaisBoutons
