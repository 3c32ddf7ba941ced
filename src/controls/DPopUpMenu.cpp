// controls/DPopUpMenu.cpp
#include "controls/DPopUpMenu.h"

#include "foundation/GeometrieEcran.h"
#include "foundation/GeometrieEcranCalculs_p.h"

#include <QScopedValueRollback>
#include <QScreen>

#include <array>

namespace {

constexpr int kEcart = 10; // pixels between the pop-up and the rectangle

// For a rectangle with no room above it. Along the edge that the pop-up goes to, it stays as near
// as the screen allows to where it is.
QRect PlaceAilleurs(QRect const & limites, QRect const & ancre, QRect const & popup)
{
    QRect const dansLEcran = RoutinesGeometrie::RameneDans(limites, popup);
    int const enDessous = ancre.bottom() + 1 + kEcart;
    int const aDroite = ancre.right() + 1 + kEcart;
    int const aGauche = ancre.left() - kEcart - popup.width();
    std::array const places = {
        QPoint(dansLEcran.left(), enDessous),
        QPoint(aDroite, dansLEcran.top()),
        QPoint(aGauche, dansLEcran.top()),
    };
    for (QPoint const & place : places) {
        QRect const rect(place, popup.size());
        if (limites.contains(rect))
            return rect;
    }
    return dansLEcran;
}

} // namespace

DPopUpMenu::DPopUpMenu(QWidget * parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus)
{
}

void DPopUpMenu::AfficheToi(QPoint const & position, QSize const & taille)
{
    maPosition = position;
    maTaille = taille;
    if (!testAttribute(Qt::WA_Resized)) {
        // As the first show would do, but before the place is looked for.
        adjustSize();
        setAttribute(Qt::WA_Resized, false);
    }
    if (!testAttribute(Qt::WA_Moved))
        move(position);
    Replace(); // a hidden pop-up is told of its move when it is shown
    show();
    setAttribute(Qt::WA_Moved, false); // until its host moves it
}

void DPopUpMenu::moveEvent(QMoveEvent * evenement)
{
    QFrame::moveEvent(evenement);
    Replace();
}

void DPopUpMenu::resizeEvent(QResizeEvent * evenement)
{
    QFrame::resizeEvent(evenement);
    if (isVisible())
        Replace();
}

void DPopUpMenu::closeEvent(QCloseEvent * evenement)
{
    QFrame::closeEvent(evenement);
    Q_EMIT SignalPopupEnFermeture();
}

QRect DPopUpMenu::DonneAncre() const
{
    if (maTaille.width() <= 0 && maTaille.height() <= 0)
        return {};
    // QRect::intersects takes one without width, such as that of a text cursor, to lie between two
    // columns, and would let the pop-up stand on the second of them.
    return {maPosition, maTaille.expandedTo(QSize(1, 1))};
}

void DPopUpMenu::Replace()
{
    if (monReplacementEnCours)
        return;
    QScopedValueRollback const enCours(monReplacementEnCours, true);
    bool const placeParHote = testAttribute(Qt::WA_Moved);
    QRect const ancre = DonneAncre();
    QRect const popup = rect().translated(pos());
    RoutinesFenetre::DeplaceFenetreSiSorsDeLecranOuSurRect(this, popup, ancre, QRect(), QRect(),
                                                           kEcart, RoutinesFenetre::kAuDessusForce);
    // Above the rectangle the pop-up may be off the screen, and would stay there.
    QScreen const * const ecran = RoutinesGeneralesQt::EcranLePlusProche(popup.topLeft());
    if (ecran && !ecran->availableGeometry().contains(rect().translated(pos())))
        move(PlaceAilleurs(ecran->availableGeometry(), ancre, popup).topLeft());
    setAttribute(Qt::WA_Moved, placeParHote); // set by any move, also by ours
}
