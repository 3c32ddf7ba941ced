// editing/DLineEditSansColler.cpp
#include "editing/DLineEditSansColler.h"

#include <QKeyEvent>

namespace {

bool EstColler(QKeyEvent const & evenement)
{
    return (evenement.modifiers() & Qt::ControlModifier && evenement.key() == Qt::Key_V) ||
           evenement.matches(QKeySequence::Paste);
}

} // namespace

DLineEditSansColler::DLineEditSansColler(QWidget * parent)
    : QLineEdit(parent)
{
}

void DLineEditSansColler::paste()
{
    Q_EMIT SignalColler(this);
}

bool DLineEditSansColler::event(QEvent * evenement)
{
    if (evenement->type() == QEvent::FocusIn) {
        selectAll();
    } else if (evenement->type() == QEvent::KeyPress &&
               EstColler(*static_cast<QKeyEvent *>(evenement))) {
        evenement->accept(); // before the owner may destroy the field
        paste();
        return true;
    }
    return QLineEdit::event(evenement);
}
