// dialogs/DAlerte.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/UniChaine.h"
#include "noyau/plateforme/TypesWin32.h"

#include <list>

class QWidget;

/// \file
/// Asking the user.
///
/// An application describes the alert with a `DAlerteInfo` and calls one of these functions; they
/// differ in who gets the answer (the return value, a callback, a receiver), in whether they block,
/// in the modality of the window and in whether the answer may be remembered. Common to all:
///
/// - `boutons` is a mask of `DDialogue::eBoutons`, `defaut` the button of Return and `echap` that
///   of Escape. The forms without a mask offer OK alone, which is then both.
/// - The labels are those of `kBoutonMaison1` to `kBoutonMaison5`, in this order; a button with an
///   empty label is left out. `kBoutonMaisonElevee1` has the first label too. A mask of which no
///   button is left gives an OK that answers `kBoutonAucun`.
/// - The type of the alert decides on its form. A bubble and a progress window (`kEphemere`,
///   `kProgressionInfinie`) have no buttons and give no answer. A notification (`kNotification`)
///   never blocks; where the platform has none, a message box appears in its place.
/// - Under silent execution nothing is shown and the default button of the message box answers. A
///   toast appears all the same and is not journalled: it makes nobody wait.
/// - GUI thread only. A call from another thread, without an application object, or against the
///   rules below is refused: nothing is shown or journalled, the callback is dropped uncalled, and
///   the answer is `kBoutonAucun`. An alert with an empty message is not checked.
/// - A parent that is destroyed takes the box with it: a blocking form returns `kBoutonAucun`, a
///   callback is dropped uncalled. A toast has no parent.
///
/// CAUTION, what surprises:
///
/// - The callback of a notification that became a toast is called on a thread of the platform, not
///   on the GUI thread: wrap it with `RappelSurThreadGraphique` unless it is safe there. It may
///   be called more than once; a toast that goes away, or is pressed beside its buttons, answers
///   `kBoutonAucun`, and one that could not be shown after all `kBoutonReessayer`. A toast never
///   answers a receiver, nor does it read or write a store.
/// - The text of a bubble is not escaped: mark-up in it is rendered.
/// - The tick in "do not show again" together with Cancel, Close, Help or the escape button (unless
///   that is OK) is forgotten: such an answer is never remembered.
/// - Links never open by themselves: a click on a number closes the box as its window does, a click
///   on an address opens the browser and the box stays.
/// - A box that is closed by its window answers with the button of `echap`, and `kBoutonAnnuler`
///   where the mask has no such button, whatever Qt lets the Escape key press then.

/// `rappel`, but called on the GUI thread: at once when it is called there, and otherwise through
/// the event loop. An empty one stays empty. Calls that come once the application object is gone
/// are dropped. `rappel` is destroyed on the GUI thread, too, unless no application object is left.
/// Wrap it on the GUI thread, or once the application object exists.
FABRELGUI_EXPORT RappelAlerte RappelSurThreadGraphique(RappelAlerte rappel);

// Blocking, modal to the window

/// Asks and blocks until the answer; `kBoutonAucun` when it could not ask. Refuses the types that
/// have no answer, a bubble and a progress window. A notification does not block.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerte(QWidget * parent, DAlerteInfo const & info);
FABRELGUI_EXPORT DDialogue::eBoutons
DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
        DDialogue::eBoutons echap, UniChaine const & label1 = kUniChaineNulle,
        UniChaine const & label2 = kUniChaineNulle, UniChaine const & label3 = kUniChaineNulle,
        UniChaine const & label4 = kUniChaineNulle, UniChaine const & label5 = kUniChaineNulle);
/// Another name of `DAlerte`.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteSynchroneEtModalFenetre(QWidget * parent,
                                                                    DAlerteInfo const & info);
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteSynchroneEtModalFenetre(
    QWidget * parent, DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
    DDialogue::eBoutons echap, UniChaine const & label1 = kUniChaineNulle,
    UniChaine const & label2 = kUniChaineNulle, UniChaine const & label3 = kUniChaineNulle,
    UniChaine const & label4 = kUniChaineNulle, UniChaine const & label5 = kUniChaineNulle);

// Returning at once, the answer to a callback or a receiver

/// Deliberate: the escape button is `kBoutonAnnuler`, whatever `echap` says.
FABRELGUI_EXPORT void DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons,
                              DDialogue::eBoutons defaut, DDialogue::eBoutons echap,
                              RappelAlerte rappel);
/// At most the first five of `labels` are read; missing ones are empty.
FABRELGUI_EXPORT void DAlerte(QWidget * parent, DAlerteInfo const & info, int boutons,
                              DDialogue::eBoutons defaut, DDialogue::eBoutons echap,
                              std::list<UniChaine> labels, RappelAlerte rappel);
/// The receiver must outlive the alert. Modal to the parent's window; without a parent, not modal.
FABRELGUI_EXPORT void DAlerte(QWidget * parent, DDialogue::DAlerteReceveur const * receveur,
                              DAlerteInfo const & info);
FABRELGUI_EXPORT void DAlerte(QWidget * parent, DDialogue::DAlerteReceveur const * receveur,
                              DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
                              DDialogue::eBoutons echap, UniChaine const & label1 = kUniChaineNulle,
                              UniChaine const & label2 = kUniChaineNulle,
                              UniChaine const & label3 = kUniChaineNulle,
                              UniChaine const & label4 = kUniChaineNulle,
                              UniChaine const & label5 = kUniChaineNulle);

// In front of a window of another program

/// Asks and blocks, modal to the application.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteCentrageNatif(DAlerteInfo const & info);
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteCentrageNatif(
    DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut, DDialogue::eBoutons echap,
    UniChaine const & label1 = kUniChaineNulle, UniChaine const & label2 = kUniChaineNulle,
    UniChaine const & label3 = kUniChaineNulle, UniChaine const & label4 = kUniChaineNulle,
    UniChaine const & label5 = kUniChaineNulle);
/// The same centred on a native window and on top of others; null for none. A notification that
/// becomes a box ends with the call.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteCentrageNatif(HWND fenetre, DAlerteInfo const & info);
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteCentrageNatif(
    HWND fenetre, DAlerteInfo const & info, int boutons, DDialogue::eBoutons defaut,
    DDialogue::eBoutons echap, UniChaine const & label1 = kUniChaineNulle,
    UniChaine const & label2 = kUniChaineNulle, UniChaine const & label3 = kUniChaineNulle,
    UniChaine const & label4 = kUniChaineNulle, UniChaine const & label5 = kUniChaineNulle);
/// OK alone, and no escape button of the caller's. An empty message does nothing.
FABRELGUI_EXPORT void DAlerteCentrageNatif(DDialogue::DAlerteReceveur const * receveur,
                                           DAlerteInfo const & info);
/// Deliberate: with a window, a message box ends with the call and never answers, remembered or
/// silent answers included, for the widget that stands for the window goes then. Use the form
/// without a window, or a blocking one.
FABRELGUI_EXPORT void DAlerteCentrageNatif(HWND fenetre,
                                           DDialogue::DAlerteReceveur const * receveur,
                                           DAlerteInfo const & info);

// With a remembered answer: `guid` identifies the alert in the store of the type, whose file the
// application names once with `StockageReponse::Initialise`

/// Asks and blocks, modal to the application, unless the answer is remembered. A notification
/// returns `kBoutonAucun` at once: its answer is remembered but not returned.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteRappel(
    QWidget * parent, DAlerteInfo const & info, DDialogue::eTypStockeur typeStockeur,
    UniChaine guid, int boutons, DDialogue::eBoutons defaut, DDialogue::eBoutons echap,
    UniChaine const & label1 = kUniChaineNulle, UniChaine const & label2 = kUniChaineNulle,
    UniChaine const & label3 = kUniChaineNulle, UniChaine const & label4 = kUniChaineNulle,
    UniChaine const & label5 = kUniChaineNulle);
/// The answer arrives after the call has returned, also when it is remembered.
FABRELGUI_EXPORT void DAlerteRappel(QWidget * parent, DAlerteInfo const & info,
                                    DDialogue::eTypStockeur typeStockeur, UniChaine guid,
                                    int boutons, DDialogue::eBoutons defaut,
                                    DDialogue::eBoutons echap, RappelAlerte rappel);
FABRELGUI_EXPORT void DAlerteRappel(QWidget * parent, DAlerteInfo const & info,
                                    DDialogue::eTypStockeur typeStockeur, UniChaine guid,
                                    int boutons, DDialogue::eBoutons defaut,
                                    DDialogue::eBoutons echap, std::list<UniChaine> labels,
                                    RappelAlerte rappel);
FABRELGUI_EXPORT void DAlerteRappel(
    QWidget * parent, DDialogue::DAlerteReceveur const * receveur, DAlerteInfo const & info,
    DDialogue::eTypStockeur typeStockeur, UniChaine guid, int boutons, DDialogue::eBoutons defaut,
    DDialogue::eBoutons echap, UniChaine const & label1 = kUniChaineNulle,
    UniChaine const & label2 = kUniChaineNulle, UniChaine const & label3 = kUniChaineNulle,
    UniChaine const & label4 = kUniChaineNulle, UniChaine const & label5 = kUniChaineNulle);
/// Blocks, modal to the parent's window.
FABRELGUI_EXPORT DDialogue::eBoutons DAlerteRappelSynchroneEtModalAFenetre(
    QWidget * parent, DAlerteInfo const & info, DDialogue::eTypStockeur typeStockeur,
    UniChaine guid, int boutons, DDialogue::eBoutons defaut, DDialogue::eBoutons echap,
    UniChaine const & label1 = kUniChaineNulle, UniChaine const & label2 = kUniChaineNulle,
    UniChaine const & label3 = kUniChaineNulle, UniChaine const & label4 = kUniChaineNulle,
    UniChaine const & label5 = kUniChaineNulle);

/// Forgets all answers of the type.
FABRELGUI_EXPORT void DAlerteOublieToutesLesReponses(DDialogue::eTypStockeur typeStockeur);
/// True when the alert has a remembered answer.
FABRELGUI_EXPORT bool DAlerteRappelDejaCochay(DDialogue::eTypStockeur typeStockeur,
                                              UniChaine const & guid);
