// lists/ListeChoixFlottanteEvenements.cpp
#include "lists/ListeChoixFlottante.h"

#include "lists/VueDesChoix_p.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWindow>

// What keeps the keyboard in the linked widget and lets it drive the list.

bool ListeChoixFlottante::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monWidgetLiay && evenement->type() == QEvent::Hide) {
        CacheToi();
        return false;
    }
    if (evenement->type() != QEvent::KeyPress)
        return false;
    auto * const touche = static_cast<QKeyEvent *>(evenement);
    if (objet != maVue)
        return maVue->isVisible() && TraiteToucheDuWidget(touche);
    if (touche->key() != Qt::Key_Return) // Deliberate: Enter is left to the view
        return false;
    touche->accept(); // or it would go on to the list, and from there to the linked widget again
    Q_EMIT maVue->activated(maVue->currentIndex());
    return true;
}

bool ListeChoixFlottante::event(QEvent * evenement)
{
    switch (evenement->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (monWidgetLiay) {
            // Only of a window that was activated against its will; the user types on meanwhile.
            QCoreApplication::sendEvent(monWidgetLiay, evenement);
            return true;
        }
        break;
    case QEvent::WindowActivate:
        if (monWidgetLiay) // on systems that activate whatever they show
            monWidgetLiay->window()->activateWindow();
        break;
    default:
        break;
    }
    return QFrame::event(evenement);
}

// What the attribute of a window that shows without activating does not tell every system. The
// flags of the widget stay as they are; those of its native window may change with each creation.
void ListeChoixFlottante::PreparePourLeSysteme()
{
    create();
    QWindow * const fenetre = windowHandle();
    if (!fenetre)
        return;                                     // in a graphics scene
    fenetre->setFlag(Qt::WindowDoesNotAcceptFocus); // not on a click either
    // Otherwise a modal dialog would keep the mouse from the list of its own field.
    fenetre->setTransientParent(monWidgetLiay ? monWidgetLiay->window()->windowHandle() : nullptr);
}

bool ListeChoixFlottante::TraiteToucheDuWidget(QKeyEvent * touche)
{
    switch (touche->key()) {
    case Qt::Key_Down:
    case Qt::Key_Up:
    case Qt::Key_Return:
    case Qt::Key_Enter: {
        QPointer<QTreeView> const vue = maVue; // a choice may destroy the list
        QCoreApplication::sendEvent(maVue, touche);
        // A view takes the focus at its keys when nothing else in the application has it.
        if (vue)
            vue->clearFocus();
        return true;
    }
    case Qt::Key_Escape:
        Q_EMIT SignalFermetureListeChoix();
        return false;
    default:
        return false;
    }
}
