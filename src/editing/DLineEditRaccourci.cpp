// editing/DLineEditRaccourci.cpp
#include "editing/DLineEditRaccourci.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>

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

// Takes the repetitions of a key that stays down from whoever has the focus next: the shortcut that
// has just been recorded would fire. Destroys itself with the next key that is pressed.
class AvaleurDeRepetitions : public QObject
{
public:
    explicit AvaleurDeRepetitions(QObject * parent)
        : QObject(parent)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent * evenement) override
    {
        QEvent::Type const type = evenement->type();
        if (type != QEvent::KeyPress && type != QEvent::KeyRelease &&
            type != QEvent::ShortcutOverride)
            return false;
        auto const & touche = *static_cast<QKeyEvent *>(evenement);
        if (EstRepetition(touche)) {
            evenement->accept();
            return true;
        }
        if (type == QEvent::KeyRelease)
            monRelachement = touche.timestamp();
        else
            deleteLater();
        return false;
    }

private:
    bool EstRepetition(QKeyEvent const & touche) const
    {
        // Qt does not always recognise those of X11, a release and a press at the same time. Keys
        // that no keyboard has sent may well be as fast.
        return touche.isAutoRepeat() ||
               (touche.type() != QEvent::KeyRelease && touche.timestamp() == monRelachement &&
                touche.nativeScanCode() != 0);
    }

    quint64 monRelachement = 0; // when, in ms
};

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
    if (evenement->type() == QEvent::FocusIn)
        Q_EMIT SignalFocusIn();
    else if (evenement->type() == QEvent::FocusOut)
        Q_EMIT SignalFocusOut();
    return false;
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
    // A key that was pressed before the field had the focus, such as the one that brought it here.
    if (evenement->isAutoRepeat())
        return;
    QString const raccourci = DonneRaccourci(*evenement);
    if (raccourci.isEmpty())
        return;

    new AvaleurDeRepetitions(this);
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
