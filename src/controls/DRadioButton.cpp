// controls/DRadioButton.cpp
#include "controls/DRadioButton.h"

#include "controls/BoutonAccessible_p.h"
#include "controls/BoutonSurvolable_p.h"
#include "controls/RoutinesBouton_p.h"

#include <QButtonGroup>
#include <QLabel>

DRadioButton::DRadioButton(QString const & texte, QWidget * parent, bool cochay,
                           QButtonGroup * groupe)
    : DBoutonAbstrait(parent)
    , monBouton(new BoutonHover(this))
{
    monLibelle = RoutinesBouton::Assemble(*this, *monBouton, texte);
    monBouton->setChecked(cochay);
    AssocierAuGroupe(groupe);
    Branche(); // last: nobody hears of the initial state
}

DRadioButton::~DRadioButton()
{
    // Deleted by a receiver of a signal: Qt still uses the indicator behind that. It is not busy
    // when the host checks it through the group, which Qt then tells readers of.
    if (monBouton->EstOccupay() || sender() == monBouton)
        monBouton->Abandonne();
}

UniChaine DRadioButton::DonneTexte() const
{
    return monLibelle->text();
}

bool DRadioButton::EstCochay() const
{
    return monBouton->isChecked();
}

void DRadioButton::MetsCochay(bool cochay)
{
    monBouton->ChangeCochage(cochay);
}

void DRadioButton::AssocierAuGroupe(QButtonGroup * groupe)
{
    if (groupe)
        groupe->addButton(monBouton, -1); // -1: the group numbers it
}

bool DRadioButton::eventFilter(QObject * objet, QEvent * evenement)
{
    if (!RoutinesBouton::EstBascule(*monBouton, *monLibelle, objet, *evenement))
        return DBoutonAbstrait::eventFilter(objet, evenement);
    MetsCochay(!EstCochay());
    return true;
}

void DRadioButton::enterEvent(QEnterEvent * evenement)
{
    monBouton->MetsSurvolay(true);
    DBoutonAbstrait::enterEvent(evenement);
}

void DRadioButton::leaveEvent(QEvent * evenement)
{
    monBouton->MetsSurvolay(false);
    DBoutonAbstrait::leaveEvent(evenement);
}

// The mouse need not leave a control that goes away under it.
void DRadioButton::hideEvent(QHideEvent * evenement)
{
    monBouton->MetsSurvolay(false);
    DBoutonAbstrait::hideEvent(evenement);
}

void DRadioButton::Branche()
{
    monLibelle->installEventFilter(this);
    connect(monBouton, &QRadioButton::toggled, this,
            [this] { BoutonAccessible::AnnonceCochage(*this); });
    connect(monBouton, &QRadioButton::toggled, this, &DRadioButton::SignalCochageChangay,
            Qt::UniqueConnection);
}
