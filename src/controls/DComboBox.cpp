// controls/DComboBox.cpp
#include "controls/DComboBox.h"

#include "controls/DComboBoxDeleguay_p.h"

#include <QAbstractItemView>
#include <QPointer>

DComboBox::DComboBox(QWidget * parent)
    : QComboBox(parent)
{
    view()->setItemDelegate(new DComboBoxDeleguay(this, this)); // a view may go before it
    view()->installEventFilter(this);
}

void DComboBox::setView(QAbstractItemView * vue)
{
    // QComboBox would go on with the current view after it has deleted it.
    if (!vue || vue == view())
        return;
    QPointer<QAbstractItemDelegate> const deleguay = itemDelegate();
    view()->removeEventFilter(this);
    QComboBox::setView(vue);
    if (deleguay) // unless the former view had it as a child
        vue->setItemDelegate(deleguay);
    vue->installEventFilter(this);
}
