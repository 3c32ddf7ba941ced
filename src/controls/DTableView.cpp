// controls/DTableView.cpp
#include "controls/DTableView.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointer>

namespace {

QMouseEvent DonneCopie(QMouseEvent const & modele, QEvent::Type type, Qt::MouseButton bouton)
{
    return QMouseEvent(type, modele.position(), modele.scenePosition(), modele.globalPosition(),
                       bouton, modele.buttons(), modele.modifiers(), modele.source(),
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
    QModelIndex const index = indexAt(evenement->position().toPoint());
    bool const estCochable = index.data(Qt::CheckStateRole).isValid();
    if (estCochable) {
        auto presse = DonneCopie(*evenement, QEvent::MouseButtonPress, evenement->button());
        QCoreApplication::sendEvent(viewport(), &presse);
    }
    if (!garde)
        return;
    QTableView::mouseDoubleClickEvent(evenement);
    if (!garde || !estCochable || state() == EditingState)
        return;
    // Qt takes the first release after a double click for no click, so the box would not change:
    // this one is that release. It has no button, and changes nothing by itself.
    auto relache = DonneCopie(*evenement, QEvent::MouseButtonRelease, Qt::NoButton);
    QTableView::mouseReleaseEvent(&relache);
}
