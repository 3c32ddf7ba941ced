// dialogs/DMessageBox.h
#pragma once

#include "dialogs/DDialogue.h"

#include <QMessageBox>
#include <QVariant>

class DAlerteInfo;
class DDialogueAbs;

/// The box of an alert: the library's buttons, text style, links and place.
///
/// The alert functions make it; an application sees it, if at all, among the top-level widgets. It
/// never closes itself as a `QMessageBox` does: each way out gives the answer first, and only then
/// ends the box, whose `result()` is the answer. It answers once. `clickedButton()` stays null
/// after a click. A box that is to answer without being shown has no icon, font or style sheet.
/// Showing it may block for half a second, or for 5 s with a workaround, when the window in front
/// hangs (see `RoutinesFenetre::FenetreEstGelee`).
///
/// Links never open by themselves. One whose target is a number closes the box as its window does,
/// and leaves the number with `kBoutonLien` in `result()`, which is gone with the box when the
/// alert blocks; without an escape button the box stays. Any other valid address opens in the
/// user's browser, and the box stays.
class FABRELGUI_EXPORT DMessageBox : public QMessageBox
{
    Q_OBJECT

public:
    /// Owns `proprietaire`, which is not null.
    DMessageBox(DDialogueAbs * proprietaire, QWidget * parent, DAlerteInfo const & info);
    ~DMessageBox() override;

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The answer was known beforehand; it is given once control is back in the event loop.
    void SignalDejaRepondu(QVariant valeur);
    /// The answer was given; the box is about to end.
    void SignalEnFermeture(DDialogue::eBoutons res);

public Q_SLOTS:
    void PriseHyperlien(QString cible);
    void PriseBoutonCliquay(QAbstractButton * bouton);
    void PriseResultat(QVariant valeur);
    void reject() override;
    /// Deliberate: does nothing. The box ends only once its answer was given.
    void done(int r) override;

protected:
    void showEvent(QShowEvent * evenement) override;

public:
    /// True when the user asks not to be asked again; false here.
    virtual bool CaseEstCochee() const;

protected:
    void closeEvent(QCloseEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;

private:
    void PoseIcone(DAlerteInfo const & info);
    /// Gives the box its looks.
    void Habille();
    void PoseIconeDeFenetre();
    void PoseTextes(DAlerteInfo const & info);
    void Branche();
    void RegleEtiquettes();
    /// Gives the answer and ends the box, in this order; only the first time.
    void Conclus(int reponse);

    DDialogueAbs * monProprietaire;
    QWidget * monParent;
    int maReponse = static_cast<int>(DDialogue::kBoutonAucun); // the last one given
    bool monRejetEstDifferay = false;                          // the window is being closed
    bool monRejetEstDemanday = false;
    bool monHabillageEstFait = false;
    bool monEstConclue = false;
};
