// editing/DLineEditSansColler.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLineEdit>

/// A line edit that leaves pasting to its owner, who hears of it and inserts what suits. All its
/// text is selected when it gets the focus.
///
/// Ctrl+V, with any further modifier, the platform's other keys for pasting and the context menu
/// ask the owner, also when the field is read-only. The middle mouse button and dropping still
/// insert what they bring, and so does `paste` called by a pointer to `QLineEdit`.
class FABRELGUI_EXPORT DLineEditSansColler : public QLineEdit
{
    Q_OBJECT

public:
    explicit DLineEditSansColler(QWidget * parent = nullptr);

Q_SIGNALS:
    /// The user wants to paste; the text has not changed.
    void SignalColler(DLineEditSansColler * champ);

public Q_SLOTS:
    /// Emits `SignalColler` and pastes nothing. The context menu comes here too, since QLineEdit
    /// connects its action by the name of the slot.
    void paste();

protected:
    bool event(QEvent * evenement) override;
};
