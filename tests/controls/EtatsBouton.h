// tests/controls/EtatsBouton.h
#pragma once

#include "controls/RenduBoutons.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QHoverEvent>
#include <QToolButton>
#include <QtTest>

// What a tool button looks like in each of its states.
namespace EtatsBouton {

enum eEtat
{
    kRepos,
    kSurvolay,
    kEnfoncay,
    kCochay,
    kFocus,
    kDesactivay
};

/// As the window system tells that the mouse has come.
inline void Survole(QToolButton & bouton, QPoint const & position)
{
    QPoint const globale = bouton.mapToGlobal(position);
    QEnterEvent entree(position, position, globale);
    QCoreApplication::sendEvent(&bouton, &entree);
    QHoverEvent survol(QEvent::HoverEnter, position, globale, QPointF(-1, -1));
    QCoreApplication::sendEvent(&bouton, &survol);
}

/// Shows the window as the active one, with a focus that comes from the keyboard if any: some
/// styles show no other one.
inline bool Montre(QToolButton & bouton, bool avecFocus)
{
    QWidget & fenetre = *bouton.window();
    fenetre.show();
    fenetre.activateWindow();
    if (!QTest::qWaitForWindowActive(&fenetre))
        return false;
    fenetre.setAttribute(Qt::WA_KeyboardFocusChange);
    if (avecFocus)
        bouton.setFocus(Qt::TabFocusReason);
    else
        bouton.clearFocus(); // an active window gives it to someone
    return bouton.hasFocus() == avecFocus;
}

/// All states differ from `kRepos` in nothing else; false where the button could not have it.
inline bool MetsEtat(QToolButton & bouton, eEtat etat, QPoint const & souris)
{
    if (!Montre(bouton, etat == kFocus))
        return false;
    bouton.setEnabled(etat != kDesactivay);
    bouton.setDown(etat == kEnfoncay);
    bouton.setCheckable(etat == kCochay);
    bouton.setChecked(etat == kCochay);
    bouton.setAttribute(Qt::WA_UnderMouse, false); // wherever the mouse happens to be
    if (etat == kSurvolay)
        Survole(bouton, souris);
    return true;
}

/// A button of its own in a window of its own; null where it could not have the state.
template <typename Bouton, typename Reglage>
QImage RenduEnEtat(eEtat etat, QPoint const & souris, Reglage const & regle)
{
    QWidget fenetre;
    Bouton bouton(&fenetre);
    regle(bouton);
    return MetsEtat(bouton, etat, souris) ? RenduBoutons::Rendu(bouton) : QImage();
}

} // namespace EtatsBouton
