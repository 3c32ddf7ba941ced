// style/GardePeintre_p.h
#pragma once

#include <QPainter>

/// Restores the painter when it goes, also when an unbalanced tag throws out of the drawing.
class GardePeintre
{
public:
    explicit GardePeintre(QPainter * peintre)
        : monPeintre(peintre)
    {
        monPeintre->save();
    }
    GardePeintre(GardePeintre const &) = delete;
    GardePeintre & operator=(GardePeintre const &) = delete;
    ~GardePeintre() { monPeintre->restore(); }

private:
    QPainter * monPeintre;
};
