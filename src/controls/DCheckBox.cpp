// controls/DCheckBox.cpp
#include "controls/DCheckBox.h"

#include "controls/BoutonAccessible_p.h"
#include "controls/BoutonSurvolable_p.h"
#include "controls/RoutinesBouton_p.h"
#include "style/ProprietesStyle_p.h"

#include <QLabel>
#include <QPointer>

DCheckBox::DCheckBox(QString const & texte, QWidget * parent, bool cochay)
    : DBoutonAbstrait(parent)
    , maCase(new CheckBoxHover(this))
{
    maCase->setProperty(ProprietesStyle::kPourStyle, true);
    monLibelle = RoutinesBouton::Assemble(*this, *maCase, texte);
    maCase->setChecked(cochay);
    Branche(); // last: nobody hears of the initial state
}

DCheckBox::~DCheckBox()
{
    // Deleted by a receiver of a signal: Qt still uses the indicator behind that. It is not busy
    // in an `animateClick`, behind whose `pressed` Qt starts a timer.
    if (maCase->EstOccupay() || sender() == maCase)
        maCase->Abandonne();
}

UniChaine DCheckBox::DonneTexte() const
{
    return monLibelle->text();
}

bool DCheckBox::EstCochay() const
{
    return maCase->isChecked();
}

void DCheckBox::MetsCochay(bool cochay)
{
    if (maCase->isChecked() != cochay)
        maCase->ChangeCochage(cochay);
    else
        Q_EMIT maCase->toggled(cochay); // Deliberate: listeners hear the value in all cases.
}

void DCheckBox::MetsUtilisateurPeutChangerValeur(bool peut)
{
    bool const pouvait = !maCase->testAttribute(Qt::WA_ForceDisabled);
    if (peut == pouvait)
        return;
    ChangePolitiqueFocus(peut);
    // A box that is down is released, and who hears that may delete the control.
    QPointer<DCheckBox> const garde(this);
    maCase->setEnabled(peut);
    if (garde)
        BoutonAccessible::AnnonceActivation(*this);
}

bool DCheckBox::eventFilter(QObject * objet, QEvent * evenement)
{
    if (!RoutinesBouton::EstBascule(*maCase, *monLibelle, objet, *evenement))
        return DBoutonAbstrait::eventFilter(objet, evenement);
    MetsCochay(!EstCochay());
    return true;
}

void DCheckBox::enterEvent(QEnterEvent * evenement)
{
    maCase->MetsSurvolay(true);
    DBoutonAbstrait::enterEvent(evenement);
}

void DCheckBox::leaveEvent(QEvent * evenement)
{
    maCase->MetsSurvolay(false);
    DBoutonAbstrait::leaveEvent(evenement);
}

// The mouse need not leave a control that goes away under it.
void DCheckBox::hideEvent(QHideEvent * evenement)
{
    maCase->MetsSurvolay(false);
    DBoutonAbstrait::hideEvent(evenement);
}

// Without this a click on the label would give the focus to the disabled box.
void DCheckBox::ChangePolitiqueFocus(bool peut)
{
    if (!peut) {
        maPolitiqueFocus = focusPolicy();
        setFocusPolicy(Qt::NoFocus);
    } else if (focusPolicy() == Qt::NoFocus) { // else the host chose another meanwhile
        setFocusPolicy(maPolitiqueFocus);
    }
}

void DCheckBox::Branche()
{
    monLibelle->installEventFilter(this);
    // Not by toggled, which is heard without a change too.
    connect(maCase, &QCheckBox::stateChanged, this,
            [this] { BoutonAccessible::AnnonceCochage(*this); });
    connect(maCase, &QCheckBox::toggled, this, &DCheckBox::SignalCochageChangay,
            Qt::UniqueConnection);
    connect(maCase, &QCheckBox::stateChanged, this, &DCheckBox::stateChanged, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::clicked, this, &DCheckBox::clicked, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::pressed, this, &DCheckBox::pressed, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::released, this, &DCheckBox::released, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::toggled, this, &DCheckBox::toggled, Qt::UniqueConnection);
}
