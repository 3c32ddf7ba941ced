// search/UtilisateurWidgetRecherche.h
#pragma once

#include "FabrelGuiExport.h"

/// The host of a search front end: it searches its own document, then tells the front end what it
/// found with `ActualiseOccurrences` and `AfficheMessageTexteIntrouvable`.
///
/// Each call says that the user asked for something; what exactly is read from the front end. While
/// the user searches or replaces, its state is fresh during the call. `CallbackNettoyerRecherche`,
/// `CallbackAnnulerRemplacerTout` and the search of `EffectuerRecherche` find what the last refresh
/// read.
///
/// A host is not owned and must outlive its front end, or be taken away with
/// `MetsCallback(nullptr)`. During a call it may hide the front end. To delete it then, use
/// `deleteLater`, which is always right; at once only in the calls that the front end names, such
/// as `CallbackAnnulerRemplacerTout` for the bar, and never inside another call.
class FABRELGUI_EXPORT UtilisateurWidgetRecherche
{
public:
    /// Forget the current matches and their highlights: the front end opens afresh.
    virtual void CallbackNettoyerRecherche() = 0;
    /// Search for `DonneChaineRecherche` with `DonneOptions` and `DonneSensRecherche`, then report.
    /// The text may be empty, and the direction that of a new search.
    virtual void CallbackChercher() = 0;
    /// Replace the current match and go on.
    virtual void CallbackRemplacer() = 0;
    /// Replace every match. Where that takes long enough to be cancelled, call
    /// `MetEnCoursDeRemplacerTout(true)` before and `(false)` behind.
    virtual void CallbackRemplacerTout() = 0;
    /// Stop replacing everything, if that is running.
    virtual void CallbackAnnulerRemplacerTout() {}

protected:
    ~UtilisateurWidgetRecherche() = default; // nobody owns a host through this interface
};
