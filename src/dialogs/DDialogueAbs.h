// dialogs/DDialogueAbs.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/DAlerteInfo.h"

#include <QList>

#include <array>
#include <functional>
#include <memory>
#include <utility>

class DMessageBox;
class QAbstractButton;
class QFont;
class QWidget;
class StockageReponse;

/// One message box from its making to its answer: remembered, silent, or given by the user.
///
/// Made on the heap for each alert and owned by its box, whose destructor frees it.
class DDialogueAbs
{
public:
    using Rappel = std::function<void(DDialogue::eBoutons const &)>;
    using Labels = std::array<UniChaine, 5>;

    DDialogueAbs(QWidget * parent, DDialogue::DAlerteReceveur const * receveur, bool synchrone,
                 DAlerteInfo const & info, StockageReponse const * stockage, int boutons,
                 DDialogue::eBoutons defaut, DDialogue::eBoutons echap, Labels const & labels,
                 Rappel rappel, bool modalFenetre);
    DDialogueAbs(DDialogueAbs const &) = delete;
    DDialogueAbs & operator=(DDialogueAbs const &) = delete;
    ~DDialogueAbs();

    /// The style sheet of a message box in `font`: the message is two points larger than the rest.
    FABRELGUI_EXPORT static UniChaine DonneStyleSheet(QFont const & font);
};
