// galerie/OutilDeBande.cpp
#include "OutilDeBande.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

OutilDeBande::OutilDeBande(QAction & action, QWidget * parent)
    : IWidgetChevronnable(parent)
    , monAction(action)
{
    auto * const disposition = new QHBoxLayout(this);
    disposition->setContentsMargins({});
    monBoutonAvecTexte = CreeBouton(Qt::ToolButtonTextBesideIcon);
    monBoutonSansTexte = CreeBouton(Qt::ToolButtonIconOnly);
    disposition->addWidget(monBoutonAvecTexte);
    disposition->addWidget(monBoutonSansTexte);
    MetsCompact(false);
}

QToolButton * OutilDeBande::CreeBouton(Qt::ToolButtonStyle style)
{
    auto * const bouton = new QToolButton(this);
    bouton->setDefaultAction(&monAction);
    bouton->setAutoRaise(true);
    bouton->setToolButtonStyle(style);
    bouton->setPopupMode(QToolButton::InstantPopup);
    return bouton;
}

void OutilDeBande::MetsCompact(bool compact)
{
    monBoutonAvecTexte->setVisible(!compact);
    monBoutonSansTexte->setVisible(compact);
}

QMenu * OutilDeBande::DonneQMenu()
{
    auto * const menu = new QMenu(monAction.text());
    menu->setIcon(monAction.icon());
    menu->addActions(monAction.menu()->actions());
    return menu;
}

QAction * OutilDeBande::DonneQAction()
{
    auto * const action = new QAction(monAction.icon(), monAction.text());
    action->setCheckable(monAction.isCheckable());
    action->setChecked(monAction.isChecked());
    action->setEnabled(monAction.isEnabled());
    // Queued: the menu has closed by then.
    connect(action, &QAction::triggered, this, &OutilDeBande::PriseExecuteAction,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    return action;
}

QString OutilDeBande::DonneTitre()
{
    return monAction.text();
}

QSize OutilDeBande::DonneTailleMin()
{
    return monBoutonAvecTexte->sizeHint();
}

bool OutilDeBande::EstUneAction()
{
    return !monAction.menu();
}

void OutilDeBande::PriseExecuteAction()
{
    monAction.trigger();
}
