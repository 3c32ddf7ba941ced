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
// has just been recorded would fire.
class AvaleurDeRepetitions : public QObject
{
public:
    AvaleurDeRepetitions(int touche, QObject * parent)
        : QObject(parent)
        , maTouche(touche)
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
        if (touche.isAutoRepeat()) {
            evenement->accept();
            return true;
        }
        if (type != QEvent::KeyRelease || touche.key() == maTouche)
            deleteLater();
        return false;
    }

private:
    int maTouche;
};

} // namespace

DLineEditRaccourci::DLineEditRaccourci(QWidget * parent)
    : QLineEdit(parent)
{
    // Dead keys then come as keys, without text, and not as the letters that they compose.
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

    new AvaleurDeRepetitions(evenement->key(), this); // deletes itself
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
