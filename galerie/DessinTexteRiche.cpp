// galerie/DessinTexteRiche.cpp
#include "DessinTexteRiche.h"

#include "foundation/TexteRiche.h"

#include <QPainter>

namespace {
// Logical pixels.
constexpr int kMarge = 4; // between the outline and the text
constexpr int kLargeurSouhaitee = 300;
} // namespace

DessinTexteRiche::DessinTexteRiche(eForme forme, QWidget * parent)
    : QWidget(parent)
    , maForme(forme)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void DessinTexteRiche::MetsTexte(QString const & texte, QString const & source)
{
    monTexte = texte;
    maSource = source;
    setAccessibleName(RoutinesGeneralesQt::DonneTexteAvecFormat(monTexte, font()).texte);
    update();
}

QSize DessinTexteRiche::sizeHint() const
{
    int const lignes = AvecDeuxLignes() ? 2 : 1;
    return {kLargeurSouhaitee, lignes * fontMetrics().lineSpacing() + 2 * kMarge};
}

void DessinTexteRiche::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setPen(palette().color(QPalette::PlaceholderText));
    // A pixel inside: at a fractional scale an outline on the edge would be cut.
    peintre.drawRect(rect().adjusted(1, 1, -2, -2));
    peintre.setPen(palette().color(QPalette::WindowText));
    QRect const place = rect().adjusted(kMarge, kMarge, -kMarge, -kMarge);
    if (AvecSource())
        RoutinesGeneralesQt::DessineTexteRicheAvecSource(peintre, place, font(), monTexte, maSource,
                                                         AvecDeuxLignes());
    else if (AvecDeuxLignes())
        RoutinesGeneralesQt::DessineTexteRicheSurDeuxLignes(peintre, place, font(), monTexte);
    else
        RoutinesGeneralesQt::DessineTexteRiche(peintre, place, font(), monTexte);
}

bool DessinTexteRiche::AvecSource() const
{
    return maForme == kAvecSource || maForme == kDeuxLignesAvecSource;
}

bool DessinTexteRiche::AvecDeuxLignes() const
{
    return maForme == kDeuxLignes || maForme == kDeuxLignesAvecSource;
}
