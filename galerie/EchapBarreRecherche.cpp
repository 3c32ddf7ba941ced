// galerie/EchapBarreRecherche.cpp
#include "EchapBarreRecherche.h"

#include "search/BarreRecherche.h"

#include <QKeyEvent>
#include <QLineEdit>

#include <utility>

EchapBarreRecherche::EchapBarreRecherche(BarreRecherche & barre, QObject * parent)
    : QObject(parent)
    , maBarre(barre)
{
    barre.installEventFilter(this);
    // The filter that is installed last is called first, before the bar's own.
    for (QLineEdit * const champ : barre.findChildren<QLineEdit *>())
        champ->installEventFilter(this);
}

bool EchapBarreRecherche::eventFilter(QObject * objet, QEvent * evenement)
{
    if (evenement->type() == QEvent::FocusOut)
        monAppuiEstVu = false;
    bool const estTouche =
        evenement->type() == QEvent::KeyPress || evenement->type() == QEvent::KeyRelease;
    if (!estTouche || static_cast<QKeyEvent *>(evenement)->key() != Qt::Key_Escape)
        return false;
    return objet == &maBarre ? FiltreBarre(*evenement) : FiltreChamp(*evenement);
}

bool EchapBarreRecherche::FiltreBarre(QEvent & evenement)
{
    if (evenement.type() != QEvent::KeyPress)
        return false;
    evenement.accept(); // or it would travel on to the dialog
    if (!monAppuiEstVu)
        maBarre.PriseBoutonFermer();
    return true;
}

bool EchapBarreRecherche::FiltreChamp(QEvent const & evenement)
{
    if (evenement.type() == QEvent::KeyRelease)
        return !std::exchange(monAppuiEstVu, false);
    monAppuiEstVu = true;
    return false;
}
