// editing/DLineEditRaccourci.h
#pragma once

#include "FabrelGuiExport.h"

#include <QLineEdit>

/// A line edit that records one key combination and shows it in the platform's notation.
///
/// The combination is Ctrl, Alt and Shift, in this order, and one key that gives text or is one of
/// F1 to F35. Meta and the keypad are not told apart, arrows and the like record nothing. Once it
/// is recorded the field gives the focus away; Escape gives it to the parent and records nothing.
/// The repetitions of a key that stays down record nothing, but are not held back from whoever has
/// the focus after the field; `QAction::autoRepeat` tells whether an action fires then.
/// While the field has the focus, no shortcut of the window fires: its keys can be recorded too.
/// Tab and Shift+Tab move the focus as in any field. A dead key records nothing, nor does the
/// letter that an input method makes of it and the next key. The mouse neither moves the caret nor
/// pastes or drops; the context menu and `setText` still change the text.
class FABRELGUI_EXPORT DLineEditRaccourci : public QLineEdit
{
    Q_OBJECT

public:
    explicit DLineEditRaccourci(QWidget * parent = nullptr);

    /// Tells of the focus; consumes nothing, unless a receiver has destroyed the field.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// `text()` is the new combination, also when it is the same as before. The focus is gone.
    void SignalRaccourciEnregistray();
    /// Emitted before the field handles the event, as is the next. In either, destroy the field by
    /// `deleteLater` alone: `setFocus` and `clearFocus` go on with it behind the signal.
    void SignalFocusIn();
    void SignalFocusOut();

protected:
    bool event(QEvent * evenement) override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void mouseDoubleClickEvent(QMouseEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void inputMethodEvent(QInputMethodEvent * evenement) override;

private:
    bool EstToucheFonction(QKeyEvent const * evenement) const;
};
