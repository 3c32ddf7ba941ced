// touch/DDefileurTactile.h
#pragma once

#include "FabrelGuiExport.h"

#include "touch/DGestionnaireGestureAbs.h"

#include <QList>
#include <QPointer>
#include <QScroller>
#include <QSet>
#include <QTime>

class QAbstractScrollArea;
class QChildEvent;

/// Gives a scroll area kinetic scrolling by finger, taps that click, and a pen that acts as a
/// mouse.
///
/// The area owns the object; one per area. It follows the area to another viewport. Among nested
/// areas that have one, the area with the keyboard focus takes the finger: the areas around it lose
/// their scrollers until the focus leaves, and one that is no longer around it then gets none back.
///
/// An item view scrolls by pixel from then on, and carries the dynamic property "tactile", true
/// while a finger is on it or the scrolling that it began goes on: style sheets can take the colour
/// of the row under the mouse away meanwhile. The view is unpolished and polished at each change.
///
/// In a pop-up window a finger clicks and does not scroll: Qt makes a mouse of it there.
///
/// Only on the GUI thread.
class FABRELGUI_EXPORT DDefileurTactile : public DGestionnaireGestureAbs
{
    Q_OBJECT

public:
    /// Does nothing for null.
    explicit DDefileurTactile(QAbstractScrollArea * aire);

    /// The viewport keeps its scroller, which takes part in no hand-over from then on.
    ~DDefileurTactile() override;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

    /// Every viewport that has a scroller from this class, suspended or not, until the object of
    /// its own area goes, or the viewport does.
    static QSet<QWidget *> mesWidgetsAvecDefileursTactile;

Q_SIGNALS:
    /// The new state of a scroller that this object has added: of the viewport, or of an area
    /// around it that got its scroller back.
    void SignalChangementEtat(QScroller::State etat);

protected Q_SLOTS:
    void PriseChangementEtatQScroller(QScroller::State state);

private Q_SLOTS:
    void PriseAncetreDetruit(QObject * ancetre);
    void PriseFinDuToucher();

private:
    void AjouteQScroller(QWidget * widget);
    void ActiveSurlignement();
    void DesactiveSurlignement();
    void SurveilleToucher();
    void FinisToucher();
    QSet<QObject *> * DonneParents();
    void SuisEnfants(QChildEvent const & evenement);
    void SuisViewport();
    void TraiteTablette(QTabletEvent * evenement);
    void SuspendsAncetres();
    void RetablisAncetres();

    QAbstractScrollArea * monAire;
    [[maybe_unused]] QTime monTemps; // null, read by nothing: holds its place in the layout
    QList<QObject *> mesAncetresSuspendus;
    bool monEstItemView = false;
    QPointer<QWidget> monViewport;
    QPointer<QObject> maVeille; // looks for the end of the touch; null when no finger is down
};
