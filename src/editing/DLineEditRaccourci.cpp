// editing/DLineEditRaccourci.cpp
#include "editing/DLineEditRaccourci.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

// Empty when the key has no name of its own, as a dead key or the text of an input method.
QString DonneRaccourci(QKeyEvent const & evenement)
{
    QString texte;
    if (evenement.modifiers() & Qt::ControlModifier)
        texte += u"Ctrl+"_s;
    if (evenement.modifiers() & Qt::AltModifier)
        texte += u"Alt+"_s;
    if (evenement.modifiers() & Qt::ShiftModifier)
        texte += u"Shift+"_s;
    // Deliberate: neither Meta nor the keypad is named.
    texte += QKeySequence(evenement.key()).toString(QKeySequence::NativeText);

    // The English names above become those of the user's language.
    QKeySequence const raccourci(texte, QKeySequence::NativeText);
    if (raccourci.isEmpty() || raccourci[0].key() == Qt::Key_unknown)
        return {};
    return raccourci.toString(QKeySequence::NativeText);
}

} // namespace

DLineEditRaccourci::DLineEditRaccourci(QWidget * parent)
    : QLineEdit(parent)
{
    // What they compose are letters, not keys.
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAcceptDrops(false);
    installEventFilter(this);
}

bool DLineEditRaccourci::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet != this)
        return QLineEdit::eventFilter(objet, evenement);
    QPointer<DLineEditRaccourci> const champ(this);
    if (evenement->type() == QEvent::FocusIn)
        Q_EMIT SignalFocusIn();
    else if (evenement->type() == QEvent::FocusOut)
        Q_EMIT SignalFocusOut();
    return !champ; // destroyed by a receiver, the field can handle nothing any more
}

bool DLineEditRaccourci::event(QEvent * evenement)
{
    // Accepted, the key comes to the field even where the window has a shortcut for it.
    if (evenement->type() == QEvent::ShortcutOverride) {
        evenement->accept();
        return true;
    }
    return QLineEdit::event(evenement);
}

void DLineEditRaccourci::mousePressEvent(QMouseEvent *) {}

void DLineEditRaccourci::mouseMoveEvent(QMouseEvent *) {}

void DLineEditRaccourci::mouseReleaseEvent(QMouseEvent *) {}

void DLineEditRaccourci::mouseDoubleClickEvent(QMouseEvent *) {}

void DLineEditRaccourci::keyPressEvent(QKeyEvent * evenement)
{
    if (evenement->key() == Qt::Key_Escape) {
        if (QWidget * const parent = parentWidget())
            parent->setFocus();
        return;
    }
    if (evenement->text().isEmpty() && !EstToucheFonction(evenement))
        return;
    // The key may have been pressed before the field had the focus, to bring it here.
    if (evenement->isAutoRepeat())
        return;
    QString const raccourci = DonneRaccourci(*evenement);
    if (raccourci.isEmpty())
        return;

    setText(raccourci);
    clearFocus();
    Q_EMIT SignalRaccourciEnregistray();
}

void DLineEditRaccourci::inputMethodEvent(QInputMethodEvent * evenement)
{
    evenement->ignore();
}

bool DLineEditRaccourci::EstToucheFonction(QKeyEvent const * evenement) const
{
    return evenement->key() >= Qt::Key_F1 && evenement->key() <= Qt::Key_F35;
}
