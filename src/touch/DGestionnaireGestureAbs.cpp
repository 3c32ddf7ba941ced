// touch/DGestionnaireGestureAbs.cpp
#include "touch/DGestionnaireGestureAbs.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QWidget>

namespace {

// `QEvent::None` for what a mouse has no word for.
QEvent::Type TypeSouris(QEvent::Type typeTablet)
{
    switch (typeTablet) {
    case QEvent::TabletMove:
        return QEvent::MouseMove;
    case QEvent::TabletPress:
        return QEvent::MouseButtonPress;
    case QEvent::TabletRelease:
        return QEvent::MouseButtonRelease;
    default:
        return QEvent::None;
    }
}

bool EstPlume(QPointingDevice const * appareil)
{
    return appareil && appareil->pointerType() == QPointingDevice::PointerType::Pen;
}

// While a pop-up is open, Qt delivers no touches to any window: of a finger on the pop-up, nothing
// but the mouse that Qt makes of it tells.
bool EstDansMenuOuvert(QObject const * objet)
{
    if (!objet || !objet->isWidgetType())
        return false;
    QWidget const * const menu = QApplication::activePopupWidget();
    return menu && static_cast<QWidget const *>(objet)->window() == menu;
}

bool EstSynthetique(QMouseEvent const & souris, QObject const * widget)
{
    switch (souris.source()) {
    case Qt::MouseEventSynthesizedBySystem:
        return true;
    case Qt::MouseEventSynthesizedByQt:
        return !EstDansMenuOuvert(widget);
    default:
        // Deliberate: what a pen's device sends counts as synthesised. Of a tablet event that
        // nobody takes, Qt makes a mouse event that it does not call so, and the tablet event
        // itself has pressed already.
        return EstPlume(souris.pointingDevice());
    }
}

} // namespace

DGestionnaireGestureAbs::DGestionnaireGestureAbs(QWidget * widget)
    : QObject(widget)
{
}

bool DGestionnaireGestureAbs::DoitIgnorerEvenement(QEvent * evenement) const
{
    switch (evenement->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        // Deliberate: a synthesised double click passes. Qt makes one of two quick presses of a
        // pen, which are translated into presses alone.
        return EstSynthetique(*static_cast<QMouseEvent *>(evenement), parent());
    default:
        return false;
    }
}

bool DGestionnaireGestureAbs::EstEvenementTablet(QEvent * evenement) const
{
    return TypeSouris(evenement->type()) != QEvent::None;
}

std::unique_ptr<QMouseEvent>
DGestionnaireGestureAbs::DonneEvenementSouris(QTabletEvent * evenement) const
{
    if (!EstPlume(evenement->pointingDevice()))
        return nullptr;
    QEvent::Type const type = TypeSouris(evenement->type());
    if (type == QEvent::None)
        return nullptr;
    return std::make_unique<QMouseEvent>(type, evenement->position(), evenement->scenePosition(),
                                         evenement->globalPosition(), evenement->button(),
                                         evenement->buttons(), Qt::NoModifier,
                                         QPointingDevice::primaryPointingDevice());
}

void DGestionnaireGestureAbs::TraiteEvenementTablet(QTabletEvent * evenement,
                                                    QWidget * widget) const
{
    if (auto const souris = DonneEvenementSouris(evenement))
        QCoreApplication::sendEvent(widget, souris.get());
}
