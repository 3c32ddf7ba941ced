// controls/BoutonSurvolable.cpp
#include "controls/BoutonSurvolable_p.h"

#include <QScopedValueRollback>
#include <QStyleOptionButton>
#include <QStylePainter>

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::MetsSurvolay(bool survolay)
{
    monSurvol = survolay;
    this->update();
}

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::ChangeCochage(bool cochay)
{
    QScopedValueRollback<bool> const garde(monOccupation, true);
    this->setChecked(cochay);
}

// By a click, or because another button of the group is checked.
template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::nextCheckState()
{
    QScopedValueRollback<bool> const garde(monOccupation, true);
    Bouton::nextCheckState();
}

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::paintEvent(QPaintEvent *)
{
    QStylePainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    if (monSurvol) // Deliberate: of a disabled one too; the style shows it or not.
        option.state |= QStyle::State_MouseOver;
    peintre.drawControl(kElement, option);
}

template class BoutonSurvolable<QCheckBox, QStyle::CE_CheckBox>;
template class BoutonSurvolable<QRadioButton, QStyle::CE_RadioButton>;
