// controls/BoutonSurvolable.cpp
#include "controls/BoutonSurvolable_p.h"

#include <QButtonGroup>
#include <QStyleOptionButton>
#include <QStylePainter>

template <class Bouton, QStyle::ControlElement kElement>
BoutonSurvolable<Bouton, kElement>::Occupation::Occupation(BoutonSurvolable & bouton)
    : monBouton(&bouton)
{
    ++bouton.mesOccupations;
}

// Only the outermost one: a deletion posted further in would be done by the event loop of a
// receiver, before Qt is through with the button.
template <class Bouton, QStyle::ControlElement kElement>
BoutonSurvolable<Bouton, kElement>::Occupation::~Occupation()
{
    if (monBouton && --monBouton->mesOccupations == 0 && monBouton->monAbandon)
        monBouton->deleteLater();
}

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::MetsSurvolay(bool survolay)
{
    monSurvol = survolay;
    this->update();
}

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::ChangeCochage(bool cochay)
{
    Occupation const occupation(*this);
    this->setChecked(cochay);
}

template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::Abandonne()
{
    // First: a button that is down is released when it loses the focus.
    this->disconnect(this->parent());
    if (QButtonGroup * const groupe = this->group())
        groupe->removeButton(this);
    this->setParent(nullptr);
    if (EstOccupay())
        monAbandon = true;
    else
        this->deleteLater();
}

template <class Bouton, QStyle::ControlElement kElement>
bool BoutonSurvolable<Bouton, kElement>::event(QEvent * evenement)
{
    Occupation const occupation(*this);
    return Bouton::event(evenement);
}

// By a click, or because another button of the group is checked.
template <class Bouton, QStyle::ControlElement kElement>
void BoutonSurvolable<Bouton, kElement>::nextCheckState()
{
    Occupation const occupation(*this);
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
