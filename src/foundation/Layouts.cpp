// foundation/Layouts.cpp
#include "foundation/Layouts.h"

#include <QLayout>

void RoutinesGeneralesQt::EnleveMargesDuLayout(QLayout * disposition)
{
    if (disposition)
        disposition->setContentsMargins(0, 0, 0, 0);
}
