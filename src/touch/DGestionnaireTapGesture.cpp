// touch/DGestionnaireTapGesture.cpp
#include "touch/DGestionnaireTapGesture.h"

#include <QCoreApplication>
#include <QGestureEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QStyleHints>
#include <QTabletEvent>
#include <QTapGesture>
#include <QWidget>

DGestionnaireTapGesture::DGestionnaireTapGesture(QWidget * widget)
    : DGestionnaireGestureAbs(widget)
    , monWidget(widget)
{
    if (!widget)
        return;
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->grabGesture(Qt::TapGesture);
    widget->installEventFilter(this);
}

bool DGestionnaireTapGesture::eventFilter(QObject * objet, QEvent * evenement)
{
    if (!monWidget)
        return false;
    if (evenement->type() == QEvent::Gesture) {
        auto const * const tap = static_cast<QTapGesture *>(
            static_cast<QGestureEvent *>(evenement)->gesture(Qt::TapGesture));
        if (tap && TraiteTap(*tap))
            return true; // the widget and this object may be gone
    }
    if (evenement->type() == QEvent::TouchCancel)
        monTapEnCours = false; // the gesture is not told
    // Deliberate: a synthesised double click is swallowed while a finger is down. Qt makes one of
    // the second of two quick touches when the finger comes down, and the tap makes another when it
    // leaves.
    if (evenement->type() == QEvent::MouseButtonDblClick && monTapEnCours &&
        static_cast<QMouseEvent *>(evenement)->source() != Qt::MouseEventNotSynthesized)
        return true;

    bool const ignore = DoitIgnorerEvenement(evenement); // asked first: a receiver may destroy this
    if (!EstEvenementTablet(evenement))
        return ignore;
    QPointer<QObject> const vivant = objet;
    TraiteEvenementTablet(static_cast<QTabletEvent *>(evenement), monWidget);
    if (vivant)
        return ignore;
    // Qt would ask what is gone: it stops at an event that is both taken and accepted.
    evenement->accept();
    return true;
}

// True when the tap is finished, and has become a click.
bool DGestionnaireTapGesture::TraiteTap(QTapGesture const & tap)
{
    monTapEnCours = tap.state() == Qt::GestureStarted || tap.state() == Qt::GestureUpdated;
    if (tap.state() != Qt::GestureFinished)
        return false;
    QEvent::Type premier = QEvent::MouseButtonPress;
    if (monAttenteDoubleTap &&
        monChrono.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval()) {
        monAttenteDoubleTap = false;
        premier = QEvent::MouseButtonDblClick;
    } else {
        monAttenteDoubleTap = true;
        monChrono.start();
    }
    // The position is in the coordinates of the child that the finger touched, if there is one.
    Clique(premier, tap.hasHotSpot() ? monWidget->mapFromGlobal(tap.hotSpot()) : tap.position());
    return true;
}

void DGestionnaireTapGesture::Clique(QEvent::Type premier, QPointF const & position)
{
    QPointer<QWidget> const widget =
        monWidget; // what the click does may destroy it, and us with it
    for (QEvent::Type const type : {premier, QEvent::MouseButtonRelease}) {
        if (!widget)
            return;
        // Deliberate: the release, too, has the left button in its buttons.
        QMouseEvent souris(type, position, widget->mapToGlobal(position), Qt::LeftButton,
                           Qt::LeftButton, Qt::NoModifier,
                           QPointingDevice::primaryPointingDevice());
        QCoreApplication::sendEvent(widget, &souris);
    }
}
