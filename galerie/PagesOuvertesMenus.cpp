// galerie/PagesOuvertesMenus.cpp
// The menus of the tabs and of their add button.
#include "PagesOuvertes.h"

#include "CadrePage.h"
#include "OngletsGalerie.h"
#include "Pages.h"
#include "TraductionGalerie.h"

#include "navigation/DTabBar.h"

#include <QMenu>
#include <QPushButton>

namespace {

QMenu & CreeMenu(OngletsGalerie & onglets)
{
    auto * const menu = new QMenu(&onglets);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return *menu;
}

// Its first item is chosen already, for one who comes by the keyboard.
void OuvreMenu(QMenu & menu, QPoint const & point)
{
    menu.popup(point);
    if (QAction * const premier = menu.actions().constFirst(); premier->isEnabled())
        menu.setActiveAction(premier);
}

} // namespace

void PagesOuvertes::AjouteEnvois(QMenu & menu, OngletsGalerie const & onglets, int page)
{
    if (mesFenetres.isEmpty())
        return;
    QMenu & envois = *menu.addMenu(TraductionGalerie(TexteGalerie("&Envoyer vers")));
    for (OngletsGalerie * const autre : DonneOnglets()) {
        if (autre == &onglets)
            continue;
        QPointer<OngletsGalerie> const cible(autre); // gone, maybe, when the menu is answered
        QAction const * const action = envois.addAction(cible->window()->windowTitle());
        connect(action, &QAction::triggered, this, [this, page, cible] { Envoie(page, cible); });
    }
}

void PagesOuvertes::PriseAjout(OngletsGalerie & onglets)
{
    QList<int> const fermees = DonneFermees();
    if (fermees.isEmpty())
        return;
    QMenu & menu = CreeMenu(onglets);
    for (int const page : fermees) {
        DescriptionPage const & description = DonnePages().at(page);
        QAction const * const action =
            menu.addAction(CreeIconePage(description), TraductionGalerie(description.titre));
        connect(action, &QAction::triggered, this, [this, page, &onglets] {
            Ouvre(page, onglets);
            onglets.PreteCadreCourant()->ReprendsFocus();
        });
    }
    QPushButton const & bouton = *onglets.PreteBarre()->PreteBoutonAjout();
    OuvreMenu(menu, bouton.mapToGlobal(bouton.rect().bottomLeft()));
}

void PagesOuvertes::PriseMenu(OngletsGalerie & onglets, int index, QPoint const & point)
{
    int const page = onglets.PreteCadre(index)->DonnePage();
    QMenu & menu = CreeMenu(onglets);
    QAction * const detacher =
        menu.addAction(TraductionGalerie(TexteGalerie("&Détacher dans une nouvelle fenêtre")));
    // Nothing would come of it for the only tab of a window that was torn off.
    detacher->setEnabled(onglets.DonneTotalOnglet() > 1 || &onglets == &mesPrincipaux);
    connect(detacher, &QAction::triggered, this, [this, page] { Detache(page); });
    AjouteEnvois(menu, onglets, page);
    QAction const * const fermer = menu.addAction(TraductionGalerie(TexteGalerie("&Fermer")));
    connect(fermer, &QAction::triggered, this, [this, page] { Ferme(page); });
    OuvreMenu(menu, point);
}
