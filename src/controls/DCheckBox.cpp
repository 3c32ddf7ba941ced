// controls/DCheckBox.cpp
#include "controls/DCheckBox.h"

#include "controls/BoutonSurvolable_p.h"
#include "controls/RoutinesBouton_p.h"
#include "style/ProprietesStyle_p.h"

#include <QCheckBox>
#include <QLabel>

class CheckBoxHover : public BoutonSurvolable<QCheckBox, QStyle::CE_CheckBox>
{
    Q_OBJECT // its name tells the indicator of a control from others

public:
    using BoutonSurvolable::BoutonSurvolable;
};

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
    // A receiver of one of its signals deletes the control: Qt still uses the box behind that.
    if (sender() == maCase)
        RoutinesBouton::Detache(*maCase);
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
        maCase->setChecked(cochay);
    else
        Q_EMIT maCase->toggled(cochay); // Deliberate: listeners hear the value in all cases.
}

void DCheckBox::MetsUtilisateurPeutChangerValeur(bool peut)
{
    maCase->setEnabled(peut);
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

void DCheckBox::Branche()
{
    connect(maCase, &QCheckBox::toggled, this, &DCheckBox::SignalCochageChangay,
            Qt::UniqueConnection);
    connect(maCase, &QCheckBox::stateChanged, this, &DCheckBox::stateChanged, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::clicked, this, &DCheckBox::clicked, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::pressed, this, &DCheckBox::pressed, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::released, this, &DCheckBox::released, Qt::UniqueConnection);
    connect(maCase, &QCheckBox::toggled, this, &DCheckBox::toggled, Qt::UniqueConnection);
}

#include "DCheckBox.moc"
