// touch/DDefileurTactile.cpp
#include "touch/DDefileurTactile.h"

#include "touch/DGestionnaireTapGesture.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QChildEvent>
#include <QCoreApplication>
#include <QHoverEvent>
#include <QPointingDevice>
#include <QScrollerProperties>
#include <QStyle>
#include <QTabletEvent>
#include <QWindow>

#include <functional>
#include <utility>

namespace {

constexpr char kTactile[] = "tactile";

// Calls back once, when the last finger leaves the native window of a touch, or the system takes
// the touch or the window away.
//
// Qt tells neither to the area nor to its viewport, since both let the begin of the touch pass.
class VeilleToucher : public QObject
{
public:
    VeilleToucher(QWindow * fenetre, std::function<void()> fin, QObject * parent)
        : QObject(parent)
        , maFin(std::move(fin))
    {
        fenetre->installEventFilter(this);
        // Queued: the area may be half destroyed when a window goes, and take this along.
        connect(fenetre, &QObject::destroyed, this, &VeilleToucher::Finis, Qt::QueuedConnection);
    }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        if (evenement->type() == QEvent::TouchEnd || evenement->type() == QEvent::TouchCancel)
            Finis();
        return false;
    }

private:
    void Finis()
    {
        if (auto const fin = std::exchange(maFin, nullptr))
            fin();
    }

    std::function<void()> maFin;
};

// The native window that the system tells of touches on `widget`; null before it is shown.
QWindow * DonneFenetreNative(QWidget const * widget)
{
    if (QWindow * const fenetre = widget->windowHandle())
        return fenetre;
    QWidget const * const natif = widget->nativeParentWidget();
    return natif ? natif->windowHandle() : nullptr;
}

// Once for each widget, which may leave the register with one manager and enter it with the next.
void SuisDestruction(QWidget * widget)
{
    static QSet<QWidget *> suivis;
    if (suivis.contains(widget))
        return;
    suivis.insert(widget);
    QObject::connect(widget, &QObject::destroyed, widget, [widget] {
        suivis.remove(widget);
        DDefileurTactile::mesWidgetsAvecDefileursTactile.remove(widget);
    });
}

void Repolis(QWidget & widget)
{
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

} // namespace

DDefileurTactile::DDefileurTactile(QAbstractScrollArea * aire)
    : DGestionnaireGestureAbs(aire)
    , monAire(aire)
{
    if (!aire)
        return;
    aire->setAttribute(Qt::WA_AcceptTouchEvents);
    AjouteQScroller(aire->viewport());
    aire->installEventFilter(this);
    auto * const vue = qobject_cast<QAbstractItemView *>(aire);
    monEstItemView = vue != nullptr;
    SuisViewport();
    if (vue) {
        vue->setProperty(kTactile, false);
        vue->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    }
}

DDefileurTactile::~DDefileurTactile()
{
    // The area may be half destroyed: its viewport is known here without asking it.
    if (monViewport)
        mesWidgetsAvecDefileursTactile.remove(monViewport);
}

bool DDefileurTactile::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monAire) {
        switch (evenement->type()) {
        case QEvent::TouchBegin:
            // Qt offers the touch to the parents of the viewport with the answer "accepted"
            // prepared, and the answer of the last one counts: the gestures of the viewport would
            // get no more, should that be this area.
            evenement->ignore();
            SurveilleToucher();
            if (monEstItemView)
                DesactiveSurlignement();
            break;
        case QEvent::FocusIn:
            SuspendsAncetres();
            break;
        case QEvent::FocusOut:
            RetablisAncetres();
            break;
        case QEvent::ChildAdded:
        case QEvent::ChildRemoved: // the new viewport was a child already, and the old one goes
            SuisEnfants(*static_cast<QChildEvent *>(evenement));
            break;
        default:
            break;
        }
    }
    bool const ignore = DoitIgnorerEvenement(evenement); // asked first: a receiver may destroy this
    if (!monAire || !EstEvenementTablet(evenement))
        return ignore;
    QPointer<QObject> const vivant = objet;
    TraiteTablette(static_cast<QTabletEvent *>(evenement));
    if (vivant)
        return ignore;
    // Qt would ask what is gone: it stops at an event that is both taken and accepted.
    evenement->accept();
    return true;
}

void DDefileurTactile::PriseChangementEtatQScroller(QScroller::State state)
{
    if (monAire && state == QScroller::Inactive)
        ActiveSurlignement();
}

void DDefileurTactile::PriseAncetreDetruit(QObject * ancetre)
{
    mesAncetresSuspendus.removeAll(ancetre);
}

void DDefileurTactile::PriseFinDuToucher()
{
    if (maVeille || !monViewport)
        return; // a finger is down again
    QScroller * const defileur = QScroller::scroller(monViewport);
    // A touch that was taken away, or whose fingers left together, is never told to the scroller.
    if (defileur->state() == QScroller::Pressed || defileur->state() == QScroller::Dragging)
        defileur->stop();
}

void DDefileurTactile::AjouteQScroller(QWidget * widget)
{
    widget->setAttribute(Qt::WA_AcceptTouchEvents);
    widget->grabGesture(Qt::TapGesture);
    QScroller::grabGesture(widget, QScroller::TouchGesture);
    QScroller * const defileur = QScroller::scroller(widget);
    QScrollerProperties proprietes = defileur->scrollerProperties();
    proprietes.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    proprietes.setScrollMetric(QScrollerProperties::AxisLockThreshold, 1);
    defileur->setScrollerProperties(proprietes);
    mesWidgetsAvecDefileursTactile.insert(widget);
    SuisDestruction(widget);
    connect(defileur, &QScroller::stateChanged, this, &DDefileurTactile::SignalChangementEtat,
            Qt::UniqueConnection);
}

void DDefileurTactile::ActiveSurlignement()
{
    monAire->setProperty(kTactile, false);
    QCoreApplication::postEvent(monAire->viewport(),
                                new QHoverEvent(QEvent::HoverLeave, QPointF(), QPointF(), QPointF(),
                                                Qt::NoModifier,
                                                QPointingDevice::primaryPointingDevice()));
    Repolis(*monAire);
}

void DDefileurTactile::DesactiveSurlignement()
{
    monAire->setProperty(kTactile, true);
    Repolis(*monAire);
}

void DDefileurTactile::SurveilleToucher()
{
    delete maVeille; // this touch may have come to another window
    if (QWindow * const fenetre = DonneFenetreNative(monAire->viewport()))
        maVeille = new VeilleToucher(
            fenetre, [this] { FinisToucher(); }, this);
}

void DDefileurTactile::FinisToucher()
{
    maVeille->deleteLater();
    maVeille = nullptr;
    if (QScroller::scroller(monAire->viewport())->state() != QScroller::Inactive) {
        // The touch has yet to reach the scroller.
        QMetaObject::invokeMethod(this, &DDefileurTactile::PriseFinDuToucher, Qt::QueuedConnection);
        return;
    }
    // A view that has nothing to scroll in the direction of the finger has stayed inactive.
    if (monEstItemView)
        ActiveSurlignement();
}

QSet<QObject *> * DDefileurTactile::DonneParents()
{
    auto parents = std::make_unique<QSet<QObject *>>();
    for (QObject * objet = monAire->parent(); objet; objet = objet->parent())
        parents->insert(objet);
    return parents.release();
}

void DDefileurTactile::SuisEnfants(QChildEvent const & evenement)
{
    QWidget * const viewport = monAire->viewport();
    // The area does not hear that its viewport is destroyed, and names it as before.
    bool const perdu = evenement.removed() && evenement.child() == viewport;
    if (viewport == monViewport || perdu)
        return;
    AjouteQScroller(viewport);
    SuisViewport();
}

// The viewport gets what it needs besides its scroller.
void DDefileurTactile::SuisViewport()
{
    monViewport = monAire->viewport();
    new DGestionnaireTapGesture(monViewport);
    if (monEstItemView)
        connect(QScroller::scroller(monViewport.data()), &QScroller::stateChanged, this,
                &DDefileurTactile::PriseChangementEtatQScroller, Qt::UniqueConnection);
}

void DDefileurTactile::TraiteTablette(QTabletEvent * evenement)
{
    // The area ignores the mouse, and the widgets around it would be pressed a second time: the
    // viewport, which has its own manager, has been pressed by the same pen before. The attribute
    // holds for as long as the receiver works, in a nested event loop too: mouse and wheel events
    // that the area ignores stop at it until then.
    QPointer<QWidget> const aire = monAire;
    bool const arret = aire->testAttribute(Qt::WA_NoMousePropagation);
    aire->setAttribute(Qt::WA_NoMousePropagation);
    TraiteEvenementTablet(evenement, aire);
    if (aire)
        aire->setAttribute(Qt::WA_NoMousePropagation, arret);
}

void DDefileurTactile::SuspendsAncetres()
{
    for (QObject * objet = monAire->parent(); objet; objet = objet->parent()) {
        if (!objet->isWidgetType() ||
            !mesWidgetsAvecDefileursTactile.contains(static_cast<QWidget *>(objet)))
            continue;
        // One that is in the list already may have its scroller back from another area.
        if (!mesAncetresSuspendus.contains(objet))
            mesAncetresSuspendus.append(objet);
        QScroller * const defileur = QScroller::scroller(objet);
        QScroller::ungrabGesture(objet);
        // The touch that brings the focus has pressed this scroller too, which will not hear the
        // end.
        if (defileur->state() == QScroller::Pressed || defileur->state() == QScroller::Dragging)
            defileur->stop();
        connect(objet, &QObject::destroyed, this, &DDefileurTactile::PriseAncetreDetruit,
                Qt::UniqueConnection);
    }
}

void DDefileurTactile::RetablisAncetres()
{
    if (mesAncetresSuspendus.isEmpty())
        return;
    std::unique_ptr<QSet<QObject *>> const parents(DonneParents());
    for (QObject * const ancetre : std::exchange(mesAncetresSuspendus, {})) {
        // Deliberate: an area that is no longer around this one gets no scroller back.
        if (parents->contains(ancetre))
            AjouteQScroller(static_cast<QWidget *>(ancetre));
    }
}
