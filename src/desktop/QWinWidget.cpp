// desktop/QWinWidget.cpp
#include "desktop/QWinWidget.h"

#include "foundation/FenetreNative_p.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QChildEvent>
#include <QWindow>

#include <utility>

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
    bool const montre = evenement->type() == QEvent::Show && !evenement->spontaneous();
    if (montre)
        SuisFenetreNative();
    if (montre || evenement->type() == QEvent::ShowToParent) {
        auto * const enfant = qobject_cast<QWidget *>(objet);
        bool const estDesNotres = enfant && enfant->parent() == this && enfant->isWindow();
        if (estDesNotres && montre)
            Rattache(*enfant);
        else if (estDesNotres)
            RattacheNatif(*enfant);
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
    else if (!std::exchange(monProprietaireEstDemanday, true)) // Qt warns where it can't do it
        monProprietaire.reset(QWindow::fromWinId(reinterpret_cast<WId>(maFenetreNative)));
    // In the place of our own hidden window, which Qt gave to the child. The platform reads it when
    // the child comes onto the screen, right after this.
    enfant.windowHandle()->setTransientParent(monProprietaire.get());
}

void QWinWidget::RattacheNatif(QWidget const & enfant) const
{
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    HWND proprietaire = maFenetreNative;
    while (proprietaire &&
           (static_cast<DWORD>(plateforme.GetWindowLongPtrW(proprietaire, GWL_STYLE)) & WS_CHILD))
        proprietaire = plateforme.GetParent(proprietaire); // controls own no windows
    // On Windows Qt passes over windows of others as transient parents, and takes the owner away
    // as the child comes up: its own way is not enough there, and before is too early.
    if (plateforme.IsWindow(proprietaire))
        plateforme.SetWindowLongPtrW(RoutinesGeometrie::DonnePoignee(enfant.internalWinId()),
                                     GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(proprietaire));
}
