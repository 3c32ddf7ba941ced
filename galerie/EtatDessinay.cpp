// galerie/EtatDessinay.cpp
#include "EtatDessinay.h"

#include "DessinsStyle.h"

#include <QPainter>

namespace {
// Logical pixels.
constexpr QSize kTaille(EtatDessinay::kLargeur, 34);
constexpr int kMarge = 3; // between two neighbours
} // namespace

EtatDessinay::EtatDessinay(DessinStyle const & dessin, QWidget const & modele, QStyle::State etat,
                           QWidget * parent)
    : QWidget(parent)
    , monDessin(dessin)
    , monModele(modele)
    , monEtat(etat)
{
    setFixedSize(kTaille);
}

void EtatDessinay::MetsStyleDessin(QStyle const & style)
{
    monStyle = &style;
    update();
}

QWidget const & EtatDessinay::PreteModele() const
{
    return monModele;
}

QSize EtatDessinay::sizeHint() const
{
    return kTaille;
}

void EtatDessinay::paintEvent(QPaintEvent *)
{
    if (!monStyle)
        return;
    QPainter peintre(this);
    peintre.setFont(monModele.font());
    monDessin.dessine(*monStyle, peintre, rect().adjusted(kMarge, kMarge, -kMarge, -kMarge),
                      monEtat, monModele);
}
