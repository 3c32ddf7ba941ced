// tests/touch/EssaisTactiles.h
#pragma once

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>

/// A finger, a pen and what they need in the tests of gestures.
namespace EssaisTactiles {

/// A touch screen, registered once for the process.
inline QPointingDevice * DonneEcranTactile()
{
    static QPointingDevice * const ecran = QTest::createTouchDevice();
    return ecran;
}

inline QPointingDevice const * DonneOutil(QPointingDevice::PointerType type)
{
    using Type = QPointingDevice::PointerType;
    auto const cree = [](Type pointe) {
        return new QPointingDevice(QStringLiteral("tablet tool"), 1000 + int(pointe),
                                   QInputDevice::DeviceType::Stylus, pointe,
                                   QInputDevice::Capability::Position, 1, 3, QString(),
                                   QPointingDeviceUniqueId(), qApp);
    };
    static QPointingDevice const * const plume = cree(Type::Pen);
    static QPointingDevice const * const gomme = cree(Type::Eraser);
    static QPointingDevice const * const doigt = cree(Type::Finger);
    return type == Type::Pen ? plume : type == Type::Eraser ? gomme : doigt;
}

inline std::unique_ptr<QTabletEvent>
FaisTablette(QEvent::Type type, QPointF const & position, QPointF const & globale = {},
             QPointingDevice const * outil = DonneOutil(QPointingDevice::PointerType::Pen))
{
    auto evenement = std::make_unique<QTabletEvent>(
        type, outil, position, globale, 0.5, 0, 0, 0.0f, 0.0, 0.0f, Qt::ControlModifier,
        type == QEvent::TabletMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
    evenement->ignore(); // as it comes from the system
    return evenement;
}

inline QMouseEvent
FaisSouris(QEvent::Type type, Qt::MouseEventSource source,
           QPointingDevice const * appareil = QPointingDevice::primaryPointingDevice())
{
    return QMouseEvent(type, QPointF(5, 5), QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier, source, appareil);
}

inline QTouchEvent FaisToucher(QEvent::Type type)
{
    return QTouchEvent(type, DonneEcranTactile());
}

/// Takes down the events of some types that reach an object, behind the filters installed before
/// it. Qt asks the filter that was installed last first: install it before the object under test.
class Temoin : public QObject
{
public:
    struct Trace
    {
        QEvent::Type type = QEvent::None;
        QPointF position{-1, -1};
        QPointF globale;
        Qt::MouseButton bouton = Qt::NoButton;
        Qt::MouseButtons boutons = Qt::NoButton;
        Qt::KeyboardModifiers touches = Qt::NoModifier;
        Qt::MouseEventSource source = Qt::MouseEventNotSynthesized;
        QPointingDevice const * appareil = nullptr;
    };

    Temoin(QObject * objet, QList<QEvent::Type> types)
        : mesTypes(std::move(types))
    {
        objet->installEventFilter(this);
    }

    static QList<QEvent::Type> Souris()
    {
        return {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                QEvent::MouseMove};
    }

    bool eventFilter(QObject * objet, QEvent * evenement) override
    {
        if (!mesTypes.contains(evenement->type()))
            return false;
        Trace trace;
        trace.type = evenement->type();
        if (Souris().contains(evenement->type())) {
            auto const & souris = *static_cast<QMouseEvent *>(evenement);
            trace.position = souris.position();
            trace.globale = souris.globalPosition();
            trace.bouton = souris.button();
            trace.boutons = souris.buttons();
            trace.touches = souris.modifiers();
            trace.source = souris.source();
            trace.appareil = souris.pointingDevice();
        }
        if (evenement->type() == QEvent::HoverLeave) {
            auto const & survol = *static_cast<QHoverEvent *>(evenement);
            trace.position = survol.position();
            trace.touches = survol.modifiers();
            trace.appareil = survol.pointingDevice();
        }
        mesTraces.append(trace);
        QPointer<QObject> const vivant = objet;
        if (surEvenement)
            surEvenement();
        return !vivant; // nothing is left that could take the event
    }

    QList<Trace> const & DonneTraces() const { return mesTraces; }
    int Compte() const { return static_cast<int>(mesTraces.size()); }
    void Oublie() { mesTraces.clear(); }

    QList<QEvent::Type> DonneTypes() const
    {
        QList<QEvent::Type> types;
        for (Trace const & trace : mesTraces)
            types.append(trace.type);
        return types;
    }

    std::function<void()> surEvenement;

private:
    QList<QEvent::Type> mesTypes;
    QList<Trace> mesTraces;
};

inline void Tape(QWidget * widget, QPoint const & point)
{
    QTest::touchEvent(widget, DonneEcranTactile()).press(0, point, widget);
    QTest::touchEvent(widget, DonneEcranTactile()).release(0, point, widget);
}

/// Makes real gestures of one kind in any state: the manager of gestures gives each its state, and
/// the gesture is lent while it has it.
class SourceDeGestes
{
public:
    using Usage = std::function<void(QGesture &)>;

    explicit SourceDeGestes(Qt::GestureType type)
        : monType(type)
    {
        monWidget.setAttribute(Qt::WA_AcceptTouchEvents);
        monWidget.resize(400, 400);
        monWidget.grabGesture(type);
        monFiltre.source = this;
        monWidget.installEventFilter(&monFiltre);
    }

    QWidget * PreteWidget() { return &monWidget; }

    /// Lends the gesture each time that it is in `etat`.
    void Prete(Qt::GestureState etat, Usage usage)
    {
        monEtat = etat;
        monUsage = std::move(usage);
    }

private:
    struct Filtre : QObject
    {
        bool eventFilter(QObject *, QEvent * evenement) override
        {
            if (evenement->type() != QEvent::Gesture)
                return false;
            QGesture * const geste =
                static_cast<QGestureEvent *>(evenement)->gesture(source->monType);
            if (geste && geste->state() == source->monEtat && source->monUsage)
                source->monUsage(*geste);
            return true;
        }
        SourceDeGestes * source = nullptr;
    };

    Qt::GestureType monType;
    Qt::GestureState monEtat = Qt::NoGesture;
    Usage monUsage;
    Filtre monFiltre;
    QWidget monWidget;
};

} // namespace EssaisTactiles
