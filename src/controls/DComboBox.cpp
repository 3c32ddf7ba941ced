// controls/DComboBox.cpp
#include "controls/DComboBox.h"

#include "controls/DComboBoxDeleguay_p.h"

#include <QAbstractItemView>

DComboBox::DComboBox(QWidget * parent)
    : QComboBox(parent)
{
    view()->setItemDelegate(new DComboBoxDeleguay(this, view()));
    view()->installEventFilter(this);
}
