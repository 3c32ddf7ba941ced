// controls/DLabelElisionClickable.cpp
#include "controls/DLabelElisionClickable.h"

void DLabelElisionClickable::mousePressEvent(QMouseEvent *)
{
    Q_EMIT SignalCliquer();
}
