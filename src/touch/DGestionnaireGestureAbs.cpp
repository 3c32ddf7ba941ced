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

bool EstSynthetique(QMouseEvent const & souris)
{
    switch (souris.source()) {
    case Qt::MouseEventSynthesizedBySystem:
        return true;
    case Qt::MouseEventSynthesizedByQt:
        // While a pop-up is open, Qt delivers no touches: nothing but this mouse tells of the
        // finger.
        return !QApplication::activePopupWidget();
    default:
        // Of a tablet event that nobody takes, Qt makes a mouse event that it does not call
        // synthesised; the device is still the pen.
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
        return EstSynthetique(*static_cast<QMouseEvent *>(evenement));
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
