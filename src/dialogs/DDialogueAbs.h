// dialogs/DDialogueAbs.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/DAlerteInfo.h"

#include <QList>

#include <array>
#include <memory>
#include <utility>

class DMessageBox;
class QAbstractButton;
class QFont;
class QPushButton;
class QWidget;
class StockageReponse;

/// One message box from its making to its answer: remembered, silent, or given by the user.
///
/// Made on the heap for each alert and owned by its box, whose destructor frees it. All that an
/// application may call is `DonneStyleSheet`.
class DDialogueAbs
{
public:
    using Labels = std::array<UniChaine, 5>;

    /// `stockage` is copied, null for none; `boutons` is a mask, `labels` those of the caller's own
    /// buttons.
    DDialogueAbs(QWidget * parent, DDialogue::DAlerteReceveur const * receveur, bool synchrone,
                 DAlerteInfo const & info, StockageReponse const * stockage, int boutons,
                 DDialogue::eBoutons defaut, DDialogue::eBoutons echap, Labels const & labels,
                 RappelAlerte rappel, bool modalFenetre);
    DDialogueAbs(DDialogueAbs const &) = delete;
    DDialogueAbs & operator=(DDialogueAbs const &) = delete;
    ~DDialogueAbs();

    /// True while alerts answer themselves instead of being shown.
    static bool ExecutionEstSilencieuse();

    /// Blocks until the answer and returns it; `kBoutonAucun` when the box was destroyed without
    /// one. The box is gone then, and this object with it.
    DDialogue::eBoutons ExecuteDialogue();
    /// Returns at once; the answer is given later.
    void AfficheAsynchrone();

    /// Remembers the answer if it is to be, gives it to the receiver or the callback, and returns
    /// it unchanged. Either of them may destroy the box, and this object with it.
    int TransmetsReponse(int reponse);
    /// False when the answer is known beforehand, remembered or silent.
    bool SeraMontree() const;
    /// The identifier of a button of the box, 0 for any other.
    int DonneIdentifiant(QAbstractButton const * bouton) const;

    /// The style sheet of a message box in `font`: its message is two points larger than the rest.
    FABRELGUI_EXPORT static UniChaine DonneStyleSheet(QFont const & font);

private:
    enum class eIssue
    {
        kMontree,
        kDejaRepondue,
        kSilencieuse
    };
    struct Issue
    {
        eIssue nature;
        int reponse;
    };

    void RegleFenetre(bool synchrone, bool modalFenetre);
    void AjouteBoutonsStandards(int boutons);
    void AjouteBoutonsMaison(int boutons, Labels const & labels);
    QPushButton * CreeBoutonElevay(UniChaine const & label) const;
    void DesigneBoutons(DDialogue::eBoutons defaut, DDialogue::eBoutons echap);

    /// How the alert is answered, and the answer if it is known beforehand.
    Issue DonneIssue() const;
    /// `kBoutonAucun` without one.
    DDialogue::eBoutons DonneReponseEnregistree() const;
    UniChaine DonneTexteDuStockage() const;
    /// The answers that are not to be remembered.
    int DonneMasqueRefusay() const;

    QWidget * monParent;
    DDialogue::DAlerteReceveur const * monReceveur;
    int monIdMessage = -1; // the receiver's, as it was when the alert was raised
    RappelAlerte monRappel;
    DAlerteInfo monInfo;
    std::unique_ptr<StockageReponse> monStockage;
    QList<std::pair<int, QAbstractButton *>> mesBoutons; // in the order of creation
    DMessageBox * maBoite = nullptr;                     // owns this object
};
