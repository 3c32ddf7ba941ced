// lists/IWidgetChevronnable.cpp
#include "lists/IWidgetChevronnable.h"

#include <QAction>
#include <QMenu>

IWidgetChevronnable::IWidgetChevronnable(QWidget * parent)
    : QFrame(parent)
{
}

QMenu * IWidgetChevronnable::DonneQMenu()
{
    return new QMenu;
}

QAction * IWidgetChevronnable::DonneQAction()
{
    return new QAction;
}

QSize IWidgetChevronnable::DonneTailleMin()
{
    return sizeHint();
}

QSize IWidgetChevronnable::DonneTailleMax()
{
    return sizeHint();
}

bool IWidgetChevronnable::EstUneAction()
{
    return false;
}
