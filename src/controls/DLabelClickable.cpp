// controls/DLabelClickable.cpp
#include "controls/DLabelClickable.h"

// Deliberate: the base is not called.
void DLabelClickable::mousePressEvent(QMouseEvent *)
{
    Q_EMIT SignalCliquer();
}
