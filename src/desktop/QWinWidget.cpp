// desktop/QWinWidget.cpp
#include "desktop/QWinWidget.h"

#include "foundation/FenetreNative_p.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QChildEvent>
#include <QWindow>

QWinWidget::QWinWidget(HWND fenetre)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) // its inside is its frame
    , maFenetreNative(fenetre)
{
    setAttribute(Qt::WA_QuitOnClose, false);
    SuisFenetreNative();
}

QWinWidget::~QWinWidget() = default;

void QWinWidget::setVisible(bool) {}

bool QWinWidget::eventFilter(QObject * objet, QEvent * evenement)
{
    // Before the child's own handler, in which windows place themselves.
    if (evenement->type() == QEvent::Show && !evenement->spontaneous()) {
        SuisFenetreNative();
        auto * const enfant = qobject_cast<QWidget *>(objet);
        if (enfant && enfant->parent() == this && enfant->isWindow())
            Rattache(*enfant);
    }
    return QWidget::eventFilter(objet, evenement);
}

void QWinWidget::childEvent(QChildEvent * evenement)
{
    if (evenement->added()) {
        SuisFenetreNative();
        evenement->child()->installEventFilter(this);
    } else if (evenement->removed()) {
        evenement->child()->removeEventFilter(this);
    }
    QWidget::childEvent(evenement);
}

void QWinWidget::SuisFenetreNative()
{
    if (auto const interieur = RoutinesGeometrie::DonneInterieur(maFenetreNative))
        setGeometry(*interieur);
}

void QWinWidget::Rattache(QWidget & enfant)
{
    if (!enfant.windowHandle())
        return;
    if (!PlateformeFenetres::Courante().IsWindow(maFenetreNative))
        monProprietaire.reset();
    else if (!monProprietaire)
        monProprietaire.reset(QWindow::fromWinId(reinterpret_cast<WId>(maFenetreNative)));
    // In the place of our own hidden window, which Qt gave to the child. The platform reads it when
    // the child comes onto the screen, right after this.
    enfant.windowHandle()->setTransientParent(monProprietaire.get());
}
