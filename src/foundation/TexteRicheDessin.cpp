// foundation/TexteRicheDessin.cpp
//
// Drawing and measuring.
#include "foundation/MemoireTexteRiche_p.h"
#include "foundation/TexteMisEnPage_p.h"
#include "foundation/TexteRiche.h"

#include <QPainter>
#include <QRect>

#include <utility>

// NOLINTBEGIN(performance-unnecessary-value-param): by value is the interface

namespace RoutinesGeneralesQt {

void DessineTexteRiche(QPainter & peintre, QRect const & rectangle, QFont font, UniChaine texte)
{
    DessineTexteRicheAvecSource(peintre, rectangle, font, std::move(texte), {}, false);
}

void DessineTexteRicheSurDeuxLignes(QPainter & peintre, QRect const & rectangle, QFont font,
                                    UniChaine texte)
{
    DessineTexteRicheAvecSource(peintre, rectangle, font, std::move(texte), {}, true);
}

void DessineTexteRicheAvecSource(QPainter & peintre, QRect const & rectangle, QFont font,
                                 UniChaine texte, UniChaine source, bool deuxLignes)
{
    auto const rang = MemoireTexteRiche::Instance().DonneRang(
        {std::move(texte), std::move(source), rectangle.width(), rectangle.height(), deuxLignes},
        font);
    // Leaves the painter as it was, without the cost of saving it.
    rang->Dessine(peintre, rectangle.topLeft());
}

void DessineUniChaineFormatee(UniChaineFormatee const &, QPainter & peintre, QRect const &,
                              Qt::AlignmentFlag, Qt::TextElideMode)
{
    peintre.save();
    peintre.restore();
}

double DonneLongueurTexteRiche(UniChaine const & texte, QFont const & font)
{
    return MemoireTexteRiche::Instance()
        .DonneRang({texte, {}, TexteMisEnPage::kLargeurIllimitee, 0, false}, font)
        ->DonneLargeurDuTexte();
}

} // namespace RoutinesGeneralesQt

// NOLINTEND(performance-unnecessary-value-param)
