// navigation/DTabBarInterneDeplacement.cpp
// The drag of a tab out of its bar.
#include "navigation/DTabBarInterne.h"

#include "navigation/DTabBar.h"
#include "navigation/FantomeOnglet_p.h"

#include <QApplication>
#include <QFrame>
#include <QMouseEvent>
#include <QStyle>
#include <QWindow>

#include <algorithm>

namespace {

// Where a tab is after `QTabBar::moveTab`.
int SuisDeplacement(int index, int de, int vers)
{
    if (index == de)
        return vers;
    if (index < std::min(de, vers) || index > std::max(de, vers))
        return index;
    return de < vers ? index - 1 : index + 1;
}

} // namespace

void DTabBarInterne::mousePressEvent(QMouseEvent * evenement)
{
    bool const gauche = evenement->button() == Qt::LeftButton;
    if (gauche)
        TermineDeplacement();    // its release went astray
    if (monDeplacementExterne) { // another button, while a tab is outside
        QTabBar::mousePressEvent(evenement);
        return;
    }
    // Before the base: its receivers may change the tabs, and the bar may scroll.
    monIndexDeplace = tabAt(evenement->position().toPoint());
    QPointer<DTabBarInterne> const moi(this);
    QTabBar::mousePressEvent(evenement);
    // A disabled tab is not made current, but the picture and the new window are of that one.
    if (moi)
        monDeplacementPermis = gauche && isTabEnabled(monIndexDeplace);
}

void DTabBarInterne::mouseReleaseEvent(QMouseEvent * evenement)
{
    QPointer<DTabBarInterne> const moi(this);
    if (evenement->button() == Qt::MiddleButton)
        // Deliberate: beside the tabs, with the index -1.
        Q_EMIT tabCloseRequested(tabAt(evenement->position().toPoint()));
    else if (monDeplacementExterne)
        Depose();
    if (!moi)
        return;
    QTabBar::mouseReleaseEvent(evenement);
}

void DTabBarInterne::mouseMoveEvent(QMouseEvent * evenement)
{
    if (monPeutGlisserDeposer && EstHorsDeLaBarre(evenement->position().toPoint())) {
        if (monDeplacementPermis && monIndexDeplace >= 0 && monIndexDeplace < count())
            DeplaceHorsDeLaBarre(evenement->globalPosition().toPoint());
        return;
    }
    TermineDeplacement();
    QTabBar::mouseMoveEvent(evenement);
}

// Installed on the application while a tab is outside: the keyboard focus is seldom here.
bool DTabBarInterne::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const touche =
        evenement->type() == QEvent::KeyPress || evenement->type() == QEvent::ShortcutOverride;
    if (monDeplacementExterne && touche &&
        static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Escape) {
        evenement->accept(); // the override: nobody's shortcut
        if (evenement->type() == QEvent::KeyPress)
            AbandonneDeplacement();
        return true;
    }
    if (monDeplacementExterne && MetFinAuDeplacement(objet, *evenement))
        AbandonneDeplacement();
    return QTabBar::eventFilter(objet, evenement);
}

// Whether the mouse is lost to another widget: to a pop-up, to a dialog that blocks this window, or
// to whoever gets a button.
bool DTabBarInterne::MetFinAuDeplacement(QObject const * objet, QEvent const & evenement) const
{
    auto const * const widget = qobject_cast<QWidget const *>(objet);
    switch (evenement.type()) {
    case QEvent::UngrabMouse:
        return objet == this;
    case QEvent::WindowBlocked:
        return objet == window();
    case QEvent::Show:
        return widget && widget->windowType() == Qt::Popup;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        // A tab's frame passes on to this bar what it gets.
        return widget && evenement.spontaneous() && !isAncestorOf(widget);
    default:
        return false;
    }
}

bool DTabBarInterne::EstHorsDeLaBarre(QPoint const & position) const
{
    // Deliberate: the first column and the first row are outside.
    return !(position.x() > 0 && position.x() < width() && position.y() >= 1 &&
             position.y() < height());
}

void DTabBarInterne::DeplaceHorsDeLaBarre(QPoint const & positionGlobale)
{
    CommenceDeplacement();
    monFantome->Montre(DonneInfos(currentIndex()).cadre, positionGlobale);
    if (DTabBarInterne * const barre = TrouveBarreSous(positionGlobale))
        VisePositionDans(*barre, positionGlobale);
    else
        VideCible();
}

void DTabBarInterne::CommenceDeplacement()
{
    // Also one that the host has set since the drag began.
    if (QString const infobulle = tabToolTip(monIndexDeplace); !infobulle.isEmpty()) {
        monInfobulleSauvee = infobulle;
        setTabToolTip(monIndexDeplace, QString()); // it would pop up during the drag
    }
    if (monDeplacementExterne)
        return;
    monDeplacementExterne = true;
    qApp->installEventFilter(this);
}

void DTabBarInterne::TermineDeplacement()
{
    if (!monDeplacementExterne)
        return;
    RemetsOnglet();
    VideCible();
}

// Nothing more happens outside before the next press.
void DTabBarInterne::AbandonneDeplacement()
{
    TermineDeplacement();
    monDeplacementPermis = false;
    AbandonneDeplacementQt();
}

// Ends the move inside the row that Qt may have begun: only the release of the button tells it to.
void DTabBarInterne::AbandonneDeplacementQt()
{
    QPoint const dehors(-1, -1);
    QMouseEvent relache(QEvent::MouseButtonRelease, dehors, mapToGlobal(dehors), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QTabBar::mouseReleaseEvent(&relache);
}

// As it was before it left the bar.
void DTabBarInterne::RemetsOnglet()
{
    monDeplacementExterne = false;
    qApp->removeEventFilter(this);
    monFantome->Cache();
    if (!monInfobulleSauvee.isEmpty() && tabToolTip(monIndexDeplace).isEmpty())
        setTabToolTip(monIndexDeplace, monInfobulleSauvee);
    monInfobulleSauvee.clear();
}

DTabBarInterne * DTabBarInterne::TrouveBarreSous(QPoint const & positionGlobale) const
{
    QWidget const * widget = monFantome->TrouveWidgetDessous(positionGlobale);
    DTabBar const * rangee = nullptr;
    while (widget && !(rangee = qobject_cast<DTabBar const *>(widget)))
        widget = widget->parentWidget();
    if (!rangee || rangee->PreteBarreInterne() == this ||
        !(rangee->DonneIdentifiantGroupe() == monIdentifiantGroupe))
        return nullptr;
    return rangee->PreteBarreInterne();
}

void DTabBarInterne::VisePositionDans(DTabBarInterne & barre, QPoint const & positionGlobale)
{
    // Counted from the right where the tabs stand from right to left: "before" is there, and the
    // scroll buttons are at the left.
    Qt::LayoutDirection const sens = barre.layoutDirection();
    QPoint const position = barre.mapFromGlobal(positionGlobale);
    int const souris = QStyle::visualPos(sens, barre.rect(), position).x();
    int const nombre = barre.count();
    int largeur = barre.width();
    // The hint is the width of all tabs: the right edge of the last one would not tell of the
    // scroll buttons once the bar is scrolled to its end.
    if (barre.sizeHint().width() > largeur) {
        largeur -=
            2 * barre.style()->pixelMetric(QStyle::PM_TabBarScrollButtonWidth, nullptr, &barre);
        if (souris >= largeur) {
            VideCible();
            return;
        }
    }
    if (maBarreCible != &barre)
        VideCible();
    int index = barre.tabAt(position);
    if (index == -1)
        index = nombre - 1;
    QRect const rect = QStyle::visualRect(sens, barre.rect(), barre.tabRect(index));
    int x = rect.left();
    bool const premiereMoitie = std::abs(souris - x) < rect.width() / 2;
    if (x >= 0 && (premiereMoitie || rect.right() > largeur)) {
        x += x < 1 ? 1 : 0;
    } else {
        ++index;
        x += rect.width();
        x -= x >= largeur || index == nombre ? 1 : 0;
    }
    monIndexCible = index;
    barre.maPositionIndicateur = QStyle::visualPos(sens, barre.rect(), QPoint(x, 0));
    barre.update();
    maBarreCible = &barre;
}

void DTabBarInterne::VideCible()
{
    if (maBarreCible) {
        maBarreCible->maPositionIndicateur = QPoint();
        maBarreCible->update();
    }
    maBarreCible = nullptr;
    monIndexCible = -1;
}

void DTabBarInterne::Depose()
{
    RemetsOnglet(); // first: receivers may do anything
    monDeplacementPermis = false;
    QPointer<DTabBarInterne> const moi(this);
    // A window that was closed without being destroyed takes nothing, nor does a bar keep the
    // places that it has lost since the last move of the mouse.
    if (maBarreCible && maBarreCible->isVisible())
        Q_EMIT SignalAjouteOngletBarreExterne(monIndexDeplace, maBarreCible,
                                              std::min(monIndexCible, maBarreCible->count()));
    else
        Q_EMIT SignalOngletNouvelleFenetre();
    if (moi && !monDeplacementExterne) // a receiver that waits may have let the next one begin
        VideCible();
}

// Qt cannot change the current tab while it moves one, and keeps neither index if others are
// sliding aside: it would go on to paint a tab that is no more.
void DTabBarInterne::removeTab(int index)
{
    if (index <= monIndexDeplace)
        AbandonneDeplacementQt();
    QTabBar::removeTab(index);
}

void DTabBarInterne::tabInserted(int index)
{
    QTabBar::tabInserted(index);
    if (index > monIndexDeplace || count() == 1) // the first tab moves no other
        return;
    AbandonneDeplacementQt(); // Qt does not keep the tab that it moves
    ++monIndexDeplace;
}

void DTabBarInterne::tabRemoved(int index)
{
    QTabBar::tabRemoved(index);
    if (index <= monIndexDeplace)
        AbandonneDeplacementQt();
    if (currentIndex() < 0) // see `removeTab`, which a host may have called by its base
        setCurrentIndex(std::min(index, count() - 1));
    if (index == monIndexDeplace) {
        monInfobulleSauvee.clear(); // it went with the tab
        TermineDeplacement();
        monIndexDeplace = -1;
    } else if (index < monIndexDeplace) {
        --monIndexDeplace;
    }
}

void DTabBarInterne::PriseOngletDeplacay(int de, int vers)
{
    monIndexDeplace = SuisDeplacement(monIndexDeplace, de, vers);
}
