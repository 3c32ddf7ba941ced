// controls/DImageCliquable.cpp
#include "controls/DImageCliquable.h"

// NOLINTNEXTLINE(performance-unnecessary-value-param): a pixmap is shared, not copied
DImageCliquable::DImageCliquable(QPixmap image, QWidget * parent)
    : QLabel(parent)
{
    setPixmap(image);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a pixmap is shared, not copied
void DImageCliquable::ChangeImage(QPixmap image)
{
    setPixmap(image);
}

// The base would pass the press on to the parent.
void DImageCliquable::mousePressEvent(QMouseEvent *)
{
    Q_EMIT SignalImageCliquee();
}

void DImageCliquable::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT SignalImageDoubleCliquee();
}
