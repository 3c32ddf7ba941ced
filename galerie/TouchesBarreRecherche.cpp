// galerie/TouchesBarreRecherche.cpp
#include "TouchesBarreRecherche.h"

#include "search/BarreRecherche.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>

#include <utility>

TouchesBarreRecherche::TouchesBarreRecherche(BarreRecherche & barre, QObject * parent)
    : QObject(parent)
    , maBarre(barre)
{
    barre.installEventFilter(this);
    // The filter that is installed last is called first, before the bar's own.
    for (QWidget * const enfant : barre.findChildren<QWidget *>())
        enfant->installEventFilter(this);
}

bool TouchesBarreRecherche::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() == QEvent::FocusOut)
        monAppuiEstVu = false;
    else if (evenement->type() == QEvent::KeyPress)
        return FiltreAppui(objet, *static_cast<QKeyEvent *>(evenement));
    else if (evenement->type() == QEvent::KeyRelease)
        return FiltreRelachement(objet, *static_cast<QKeyEvent *>(evenement));
    return false;
}

bool TouchesBarreRecherche::FiltreAppui(QObject const * objet, QKeyEvent & evenement)
{
    bool const estEchap = evenement.key() == Qt::Key_Escape;
    if (estEchap && !evenement.isAutoRepeat())
        monAppuiEstVu = true;
    bool const estEntree = evenement.key() == Qt::Key_Return || evenement.key() == Qt::Key_Enter;
    // The child that has the focus gets it first, and may well have a use for it.
    if (objet != &maBarre || (!estEchap && !estEntree))
        return false;
    evenement.accept(); // or it would travel on to the dialog
    return true;
}

bool TouchesBarreRecherche::FiltreRelachement(QObject const * objet, QKeyEvent const & evenement)
{
    if (evenement.key() != Qt::Key_Escape)
        return false;
    if (evenement.isAutoRepeat() || !std::exchange(monAppuiEstVu, false))
        return true;
    if (qobject_cast<QLineEdit const *>(objet) != nullptr)
        return false; // the bar closes itself
    // As it does there. Who hears of it may delete the bar and this object.
    QPointer<BarreRecherche> const barre(&maBarre);
    barre->CacheToi();
    if (barre != nullptr)
        Q_EMIT barre->SignalBarreRechercheFermay();
    return true;
}
