// foundation/TexteRicheDessin.cpp
//
// Drawing and measuring.
#include "foundation/AnalyseTexteRiche_p.h"
#include "foundation/MemoireTexteRiche_p.h"
#include "foundation/PoliceTexteRiche_p.h"
#include "foundation/TexteMisEnPage_p.h"
#include "foundation/TexteRiche.h"

#include <QPainter>
#include <QRect>

#include <utility>

// NOLINTBEGIN(performance-unnecessary-value-param): by value is the interface

namespace RoutinesGeneralesQt {

namespace {

constexpr int kClarteDuCrayonMax = 127; // of 255; a lighter pen is hard to read on yellow

bool DemandeSurlignementEnNoir(QPainter const & peintre, QString const & texte,
                               QString const & source)
{
    return peintre.pen().color().lightness() > kClarteDuCrayonMax &&
           (texte.contains(kDebutSurlignement) || source.contains(kDebutSurlignement));
}

} // namespace

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
    RangTexteRiche::Demande demande{std::move(texte), std::move(source), rectangle.width(),
                                    deuxLignes ? rectangle.height() : 0, deuxLignes};
    demande.surlignementEnNoir = DemandeSurlignementEnNoir(peintre, demande.texte, demande.source);
    auto const rang = MemoireTexteRiche::Instance().DonneRang(std::move(demande), font);
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
    // Laid out for itself and forgotten: remembered, measures would drive out the rows that are
    // drawn.
    auto const police = MemoireTexteRiche::Instance().DonnePolice(font);
    TexteMisEnPage miseEnPage(AnalyseTexteRiche(texte, *police), police->DonneFont());
    QTextLine ligne = miseEnPage.AjouteLigne();
    if (!ligne.isValid())
        return 0.0;
    ligne.setLineWidth(TexteMisEnPage::kLargeurIllimitee);
    return ligne.naturalTextWidth();
}

} // namespace RoutinesGeneralesQt

// NOLINTEND(performance-unnecessary-value-param)
