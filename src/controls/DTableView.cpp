// controls/DTableView.cpp
#include "controls/DTableView.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

namespace {

QMouseEvent DonneCopie(QMouseEvent const & modele, QEvent::Type type)
{
    return QMouseEvent(type, modele.position(), modele.scenePosition(), modele.globalPosition(),
                       modele.button(), modele.buttons(), modele.modifiers(), modele.source(),
                       modele.pointingDevice());
}

} // namespace

DTableView::DTableView(QWidget * parent)
    : QTableView(parent)
{
}

void DTableView::mouseDoubleClickEvent(QMouseEvent * evenement)
{
    QPointer<DTableView> const garde(this);
    QPoint const position = evenement->position().toPoint();
    QPersistentModelIndex const index = indexAt(position);
    bool const estCochable = index.data(Qt::CheckStateRole).isValid();
    if (estCochable) {
        auto presse = DonneCopie(*evenement, QEvent::MouseButtonPress);
        QCoreApplication::sendEvent(viewport(), &presse);
    }
    if (!garde)
        return;
    // Qt makes a press of a double click on a disabled item, or on another than the one pressed:
    // its release is a click already. Only the left button clicks.
    bool const relacheEstPerdu = estCochable && evenement->button() == Qt::LeftButton &&
                                 index.flags().testFlag(Qt::ItemIsEnabled) &&
                                 indexAt(position) == index;
    QTableView::mouseDoubleClickEvent(evenement);
    if (!garde || !relacheEstPerdu || state() == EditingState)
        return;
    // Qt takes the first release after a double click for no click, so the box would not change:
    // this one is that release, of which no item hears.
    auto relache = DonneCopie(*evenement, QEvent::MouseButtonRelease);
    QTableView::mouseReleaseEvent(&relache);
}
