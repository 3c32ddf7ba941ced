// controls/BoutonSurvolable_p.h
#pragma once

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

protected:
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
};
