// galerie/GestesJoues.cpp
#include "GestesJoues.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QGestureEvent>
#include <QPinchGesture>
#include <QPointingDevice>
#include <QScrollBar>
#include <QScrollEvent>
#include <QScroller>
#include <QTabletEvent>
#include <QTouchEvent>
#include <QVariantAnimation>
#include <QWidget>
#include <QWindow>
#include <QtGui/qtestsupport_gui.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDoigt = 0;
constexpr int kDureeGlissement = 160; // ms
constexpr int kPasDuPincement = 4;
constexpr double kTrait = 3;    // logical pixels that the pen moves
constexpr qint64 kPause = 1000; // ms: long enough for a finger to stand still

QPointingDevice * PreteEcranTactile()
{
    static QPointingDevice * const ecran = QTest::createTouchDevice();
    return ecran;
}

QPoint DonneMilieu(QWidget const & cible)
{
    return cible.mapTo(cible.window(), cible.rect().center());
}

void EnvoieToucher(QWidget & widget, QEvent::Type type, QPointF const & position)
{
    auto const etat = type == QEvent::TouchBegin ? QEventPoint::Pressed : QEventPoint::Released;
    QEventPoint const point(kDoigt, etat, position, widget.mapToGlobal(position));
    QTouchEvent evenement(type, PreteEcranTactile(), Qt::NoModifier, {point});
    QCoreApplication::sendEvent(&widget, &evenement);
}

} // namespace

// What Qt exports for tests: an event that is sent to a widget knows no place of press, and no tap
// would come of it.
class GestesJoues::Doigt : public QTest::QTouchEventSequence
{
public:
    explicit Doigt(QWidget const & cible)
        : QTouchEventSequence(cible.window()->windowHandle(), PreteEcranTactile(), false)
    {
    }
};

GestesJoues::GestesJoues(QObject * parent)
    : QObject(parent)
    , monTrajet(new QVariantAnimation(this))
    , monStylet(new QPointingDevice(u"stylet"_s, 1, QInputDevice::DeviceType::Stylus,
                                    QPointingDevice::PointerType::Pen,
                                    QInputDevice::Capability::Position, 1, 1, QString(), {}, this))
{
    monTrajet->setDuration(kDureeGlissement);
    connect(monTrajet, &QVariantAnimation::valueChanged, this,
            [this](QVariant const & ordonnee) { AvanceDoigt(ordonnee.toInt()); });
    connect(monTrajet, &QVariantAnimation::finished, this, &GestesJoues::LeveDoigt,
            Qt::UniqueConnection);
}

GestesJoues::~GestesJoues() = default;

void GestesJoues::Touche(QWidget & cible, int fois)
{
    if (!cible.isVisible() || monDoigt)
        return;
    QPoint const milieu = DonneMilieu(cible);
    for (int i = 0; i < fois; ++i) {
        Doigt doigt(cible);
        doigt.press(kDoigt, milieu).commit(false);
        doigt.release(kDoigt, milieu).commit(false);
    }
}

void GestesJoues::Glisse(QWidget & cible)
{
    if (!cible.isVisible() || monDoigt)
        return;
    QPoint const milieu = DonneMilieu(cible);
    int const quart = cible.height() / 4;
    monAbscisse = milieu.x();
    monDoigt = std::make_unique<Doigt>(cible);
    monDoigt->press(kDoigt, milieu + QPoint(0, quart)).commit(false);
    monTrajet->setStartValue(milieu.y() + quart);
    monTrajet->setEndValue(milieu.y() - quart);
    monTrajet->start();
}

void GestesJoues::Pince(QWidget & cible, double facteur)
{
    for (int i = 0; i < kPasDuPincement; ++i) {
        QPinchGesture pincement;
        pincement.setScaleFactor(facteur);
        QGestureEvent evenement({&pincement});
        QCoreApplication::sendEvent(&cible, &evenement);
    }
}

void GestesJoues::PoseStylet(QWidget & cible)
{
    QPointF const depart = cible.rect().center();
    QPointF const arrivee = depart + QPointF(kTrait, 0);
    struct
    {
        QEvent::Type type;
        QPointF position;
        Qt::MouseButton bouton; // that has changed
        Qt::MouseButton boutons;
    } const etapes[] = {
        {QEvent::TabletPress, depart, Qt::LeftButton, Qt::LeftButton},
        {QEvent::TabletMove, arrivee, Qt::NoButton, Qt::LeftButton},
        {QEvent::TabletRelease, arrivee, Qt::LeftButton, Qt::NoButton},
    };
    for (auto const & [type, position, bouton, boutons] : etapes) {
        QTabletEvent evenement(type, monStylet, position, cible.mapToGlobal(position), 1.0, 0, 0, 0,
                               0, 0, Qt::NoModifier, bouton, boutons);
        QCoreApplication::sendEvent(&cible, &evenement);
    }
}

void GestesJoues::Entraine(QAbstractScrollArea & aire)
{
    QWidget & cible = *aire.viewport();
    QScroller & defileur = *QScroller::scroller(&cible);
    QPointF const depart = cible.rect().center();
    QPointF const arrivee = depart - QPointF(0, cible.height() / 4.0);
    EnvoieToucher(aire, QEvent::TouchBegin, depart);
    defileur.handleInput(QScroller::InputPress, depart, 0);
    defileur.handleInput(QScroller::InputMove, arrivee, kPause);
    // The scroller itself scrolls at the tick of a timer, which there is no waiting for.
    QPointF const avant(aire.horizontalScrollBar()->value(), aire.verticalScrollBar()->value());
    QScrollEvent defilement(avant + depart - arrivee, QPointF(), QScrollEvent::ScrollUpdated);
    QCoreApplication::sendEvent(&cible, &defilement);
    defileur.handleInput(QScroller::InputMove, arrivee, 2 * kPause);
    defileur.handleInput(QScroller::InputRelease, arrivee, 3 * kPause);
    defileur.stop();
    EnvoieToucher(aire, QEvent::TouchEnd, arrivee);
}

void GestesJoues::AvanceDoigt(int ordonnee)
{
    if (monDoigt)
        monDoigt->move(kDoigt, QPoint(monAbscisse, ordonnee)).commit(false);
}

void GestesJoues::LeveDoigt()
{
    QPoint const arrivee(monAbscisse, monTrajet->endValue().toInt());
    std::exchange(monDoigt, nullptr)->release(kDoigt, arrivee).commit(false);
}
