// controls/BoutonSurvolable_p.h
#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>

/// The indicator of a control with a label of its own: it is drawn as under the mouse whenever the
/// control says so.
template <class Bouton, QStyle::ControlElement kElement>
class BoutonSurvolable : public Bouton
{
public:
    using Bouton::Bouton;

    void MetsSurvolay(bool survolay);

    void ChangeCochage(bool cochay);
    /// True while Qt changes the state of the button: it still uses the button behind the signals.
    bool EstOccupay() const { return monOccupation; }

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    bool monSurvol = false;
    bool monOccupation = false;
};

// The names of the two classes tell the indicator of a control from other buttons.

class CheckBoxHover : public BoutonSurvolable<QCheckBox, QStyle::CE_CheckBox>
{
    Q_OBJECT

public:
    using BoutonSurvolable::BoutonSurvolable;
};

class BoutonHover : public BoutonSurvolable<QRadioButton, QStyle::CE_RadioButton>
{
    Q_OBJECT

public:
    using BoutonSurvolable::BoutonSurvolable;
};
