// controls/DListViewClique.cpp
#include "controls/DListViewClique.h"

#include <QMouseEvent>

DListViewClique::DListViewClique(QWidget * parent)
    : QListWidget(parent)
{
}

// Deliberate: none of these calls the base, which would select.
void DListViewClique::mousePressEvent(QMouseEvent * evenement)
{
    QModelIndex const index = indexAt(evenement->position().toPoint());
    monItemPresse = index;
    if (index.isValid())
        Q_EMIT pressed(index); // may destroy the list
}

// Deliberate: what was pressed is kept, so a second release over it is a second click.
void DListViewClique::mouseReleaseEvent(QMouseEvent * evenement)
{
    QModelIndex const index = indexAt(evenement->position().toPoint());
    if (index.isValid() && monItemPresse == index)
        Q_EMIT clicked(index); // may destroy the list
}

void DListViewClique::mouseMoveEvent(QMouseEvent *) {}
