// controls/BoutonSurvolable_p.h
#pragma once

#include <QScopedValueRollback>
#include <QStyleOptionButton>
#include <QStylePainter>

/// The indicator of a control with a label of its own: it is drawn as under the mouse whenever the
/// control says so.
template <class Bouton, QStyle::ControlElement kElement>
class BoutonSurvolable : public Bouton
{
public:
    using Bouton::Bouton;

    void MetsSurvolay(bool survolay)
    {
        monSurvol = survolay;
        this->update();
    }

    /// True while Qt changes the state of the button: it still uses the button behind the signals.
    bool EstOccupay() const { return monOccupation; }

    void ChangeCochage(bool cochay)
    {
        QScopedValueRollback<bool> const garde(monOccupation, true);
        this->setChecked(cochay);
    }

protected:
    // By a click, or because another button of the group is checked.
    void nextCheckState() override
    {
        QScopedValueRollback<bool> const garde(monOccupation, true);
        Bouton::nextCheckState();
    }

    void paintEvent(QPaintEvent *) override
    {
        QStylePainter peintre(this);
        peintre.setRenderHint(QPainter::SmoothPixmapTransform);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        // What cannot be used does not react, although its label may be under the mouse.
        if (monSurvol && this->isEnabled())
            option.state |= QStyle::State_MouseOver;
        peintre.drawControl(kElement, option);
    }

private:
    bool monSurvol = false;
    bool monOccupation = false;
};
