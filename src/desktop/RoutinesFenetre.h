// desktop/RoutinesFenetre.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"
#include "noyau/plateforme/TypesWin32.h"

#include <QSet>
#include <QString>

class QWidget;

// Windows of this program and of others: finding them, bringing them to the front, telling whether
// they hang. A tool that works beside another program stands on these. No operation reports an
// error: a null widget or handle, and a handle whose window is gone, do nothing and answer null or
// false. Where the system shows no windows of other programs, there are none to be found. GUI
// thread only.

namespace RoutinesFenetre {

/// The native window of the widget, which is made if there is none yet.
FABRELGUI_EXPORT HWND DonneHandleFenetre(QWidget const * const widget);
FABRELGUI_EXPORT void MinimiserFenetre(QWidget * const widget);

/// Restores the widget's window when it is minimised and raises it. The keyboard focus stays where
/// it is unless the window was minimised: restoring activates it.
FABRELGUI_EXPORT void MetsFenetreEnAvantPlan(QWidget * widget);
/// The same for the widget of that window; nothing for windows that are not this program's.
FABRELGUI_EXPORT void MetsFenetreEnAvantPlan(HWND fenetre);

/// Asks the system to activate the window and raises it; any program's window will do.
///
/// Systems may refuse that to a program which the user is not working with. `forcer` borrows the
/// right from the window in front, unless that is hung, and raises the window above all that are
/// not topmost, without making it topmost. May block while it finds out whether the window in front
/// hangs (see `FenetreEstGelee`).
FABRELGUI_EXPORT void MetsFenetreEnAvantPlanEtActive(HWND fenetre, bool forcer);
/// The same for the window of a widget, which is made if there is none yet, and restored if it is
/// minimised. Harmless in the widget's `showEvent`: a window that is not on the screen yet can't be
/// activated; it comes to the front when it is shown, where the window manager gives new windows
/// the focus.
FABRELGUI_EXPORT void MetsFenetreEnAvantPlanEtActive(QWidget * widget, bool forcer);

/// The window that the user sees in front: from the foreground window downwards, the first that is
/// visible and neither minimised, layered (translucent) nor a tool window; null when there is none.
FABRELGUI_EXPORT HWND RechercheFenetreActive();
/// The same, but the search ends at `arret` and then answers that window, whatever it is like.
FABRELGUI_EXPORT HWND RechercheFenetreActive(HWND arret);

/// Puts into `fenetre` the nearest other window that is visible, not minimised, not in `exclues`,
/// and neither a tool window nor topmost; false, and `fenetre` as it was, when there is none.
///
/// The search starts at the neighbour of `fenetre` and goes down the stack with `sens` 0, up with
/// 1; any other number is the `GetWindow` relation to follow.
FABRELGUI_EXPORT bool TrouveSecondeFenActive(HWND * fenetre, QSet<HWND> exclues, unsigned sens);

/// From a window, usually the foreground one, to the main window that a user would call the front
/// one, of another program where there is one.
///
/// A shown top-level window of this program is left for the next window below, unless its class is
/// in `classesExclues`; null when there is none. From a menu or a dialog without a system menu of
/// its own the search climbs to the topmost owner, or goes on below when it has none. Everything
/// else stays as it is.
FABRELGUI_EXPORT void DonneFenetreAvantPlan(HWND & fenetre, QSet<QString> classesExclues);

/// Finds the window of the text editor with which the user works, from `fenetre` or, when that is
/// null, from the foreground window; null when there is none, or when that is minimised.
///
/// Consoles and the windows of the programs of this family are passed over, as is what
/// `DonneFenetreAvantPlan` passes over. Where the desktop itself is in front, the search starts at
/// the top of the stack; the lowest window of all counts as the desktop.
FABRELGUI_EXPORT void DonneTexteurCourant(HWND & fenetre, QSet<QString> classesExclues);

/// The control with the keyboard focus in another program, of which `fenetre` is a window. Null for
/// a window of the calling thread: its focus is `QApplication::focusWidget()`. On X11 there is one
/// focus for all programs: null while a third one has it, and ours while we have it.
FABRELGUI_EXPORT HWND DonneControleEnFocusClavier(HWND const & fenetre);

/// True when the window's program no longer answers.
///
/// With the workaround "UtiliserSendMessageTimeout", "Choix" (see `Contournement`) it is asked, and
/// given 5 s to answer; a window that is gone then counts as hung, since it does not answer.
FABRELGUI_EXPORT bool FenetreEstGelee(HWND const & fenetre);

/// True for the window behind all others that carries the icons of the Windows desktop, from
/// Windows 7; false on every other system.
FABRELGUI_EXPORT bool TypIdFenetreEstBureauWindows7(HWND const & fenetre);

/// Makes a hidden window of the class `classe`, by which other processes find this one; null when
/// the class name is empty or the system has no such windows.
///
/// It lasts until `SingletonApplicationDetruitFenetre`, or until the process ends. Whether there is
/// one already is for the caller to ask first: each call makes one.
FABRELGUI_EXPORT HWND SingletonApplicationCreeFenetre(UniChaine const & classe,
                                                      UniChaine const & titre);
/// Destroys the marker of this process if it is the first window of the class that is found: the
/// window of another process that is found before it stays, and so does ours then.
FABRELGUI_EXPORT void SingletonApplicationDetruitFenetre(UniChaine const & classe);
/// True when some process has a top-level window of the class, case not counting; `fenetre`, which
/// may be null, receives it, or null when there is none.
FABRELGUI_EXPORT bool SingletonApplicationFenetreExiste(UniChaine const & classe, HWND * fenetre);

} // namespace RoutinesFenetre

namespace RoutinesGeneralesQt {

/// Sends a character to a window of another program as a key going down and up; returns at once.
///
/// Deliberate: the key's own words are those of scan code 30 whatever the character is; programs
/// that read scan codes see that key.
FABRELGUI_EXPORT void InsereCaractereDansTexteur(HWND const & fenetre, quint64 const & code);

/// Adds the native windows of all visible widgets of this program; `fenetres` keeps what it had.
///
/// Deliberate: every visible widget counts, children too, and gets a native window by being asked
/// for it.
FABRELGUI_EXPORT void EnumereFenMonApplication(QSet<HWND> * fenetres);

} // namespace RoutinesGeneralesQt
