// controls/DListView.cpp
#include "controls/DListView.h"

DListView::DListView(QWidget * parent)
    : QListView(parent)
{
}

bool DListView::GereDrawPrimitive(QStyle::PrimitiveElement, QStyleOption const *, QPainter *,
                                  QWidget const *) const
{
    return false;
}
