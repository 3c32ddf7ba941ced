// controls/DTreeView.cpp
#include "controls/DTreeView.h"

DTreeView::DTreeView(QWidget * parent)
    : QTreeView(parent)
{
}

bool DTreeView::GereDrawPrimitive(QStyle::PrimitiveElement, QStyleOption const *, QPainter *,
                                  QWidget const *) const
{
    return false;
}
