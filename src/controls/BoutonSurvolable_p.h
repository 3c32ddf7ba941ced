// controls/BoutonSurvolable_p.h
#pragma once

#include <QCheckBox>
#include <QPointer>
#include <QRadioButton>
#include <QStyle>

/// The indicator of a control with a label of its own: it is drawn as under the mouse whenever the
/// control says so, and outlives the control as long as Qt still uses it.
template <class Bouton, QStyle::ControlElement kElement>
class BoutonSurvolable : public Bouton
{
public:
    using Bouton::Bouton;

    void MetsSurvolay(bool survolay);

    void ChangeCochage(bool cochay);
    /// True while the button handles an event or changes its state: Qt still uses it behind the
    /// signals.
    bool EstOccupay() const { return mesOccupations > 0; }
    /// Takes the button out of its control and group. It dies in a later turn of the event loop;
    /// when it is busy, of the loop in which it is.
    void Abandonne();

protected:
    bool event(QEvent * evenement) override;
    void nextCheckState() override;
    void paintEvent(QPaintEvent * evenement) override;

private:
    class Occupation
    {
    public:
        explicit Occupation(BoutonSurvolable & bouton);
        Occupation(Occupation const &) = delete;
        Occupation & operator=(Occupation const &) = delete;
        ~Occupation();

    private:
        QPointer<BoutonSurvolable> monBouton; // the event may be the one that deletes it
    };

    bool monSurvol = false;
    bool monAbandon = false; // it is to die when it is no longer busy
    int mesOccupations = 0;  // one within the other
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
