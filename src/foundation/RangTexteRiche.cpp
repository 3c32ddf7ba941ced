// foundation/RangTexteRiche.cpp
#include "foundation/RangTexteRiche_p.h"

#include "foundation/AnalyseTexteRiche_p.h"
#include "foundation/PoliceTexteRiche_p.h"
#include "foundation/TexteMisEnPage_p.h"

#include <QTextLayout>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::TexteAvecFormat;

namespace {

// That must fit beside the source for a second line to be worth it.
constexpr int kCaracteresReserves = 5;
constexpr int kNombreMaxDeLignes = 2;

double DonneLargeurPoints(PoliceTexteRiche const & police)
{
    return police.PretePoints()->DonneLigne(0).naturalTextWidth();
}

// Gives the line `largeur`, less that of "…" where its text does not fit; true then.
bool CoupeLigne(QTextLine & ligne, double largeur, PoliceTexteRiche const & police)
{
    // A line has no natural width before it has a width.
    ligne.setLineWidth(TexteMisEnPage::kLargeurIllimitee);
    double const naturelle = ligne.naturalTextWidth();
    ligne.setLineWidth(largeur);
    if (ligne.naturalTextWidth() >= naturelle)
        return false;
    ligne.setLineWidth(largeur - DonneLargeurPoints(police));
    return true;
}

} // namespace

RangTexteRiche::RangTexteRiche(Demande const & demande, PoliceTexteRiche const & police)
{
    double const largeurSource = demande.source.EstVide() ? 0.0 : AjouteSource(demande, police);
    AjouteTexte(demande, police, largeurSource);
}

RangTexteRiche::~RangTexteRiche() = default;

void RangTexteRiche::Dessine(QPainter & peintre, QPointF const & coin) const
{
    for (Piece const & piece : mesPieces)
        piece.texte->Dessine(peintre, coin + piece.place);
}

// The result is the width that the source takes at the right edge.
double RangTexteRiche::AjouteSource(Demande const & demande, PoliceTexteRiche const & police)
{
    TexteAvecFormat analyse = AnalyseTexteRiche(UniChaine(u" —"_s) + demande.source, police);
    analyse.formats.append({0, static_cast<int>(analyse.texte.Longueur()),
                            police.DonneFormat(PoliceTexteRiche::kItalique)});
    auto const source =
        std::make_shared<TexteMisEnPage>(analyse, police.DonneFont(), demande.surlignementEnNoir);
    source->MetsRetour(QTextOption::WrapAnywhere);
    QTextLine ligne = source->AjouteLigne();
    bool const coupee = CoupeLigne(ligne, demande.largeur, police);
    source->Termine();

    double const largeur = ligne.naturalTextWidth() + (coupee ? DonneLargeurPoints(police) : 0.0);
    QPointF coin(demande.largeur - largeur, 0.0);
    if (coupee)
        coin += AjoutePoints(ligne, coin, source->EstDeDroiteAGauche(), police);
    mesPieces.push_back({source, coin});
    return largeur;
}

void RangTexteRiche::AjouteTexte(Demande const & demande, PoliceTexteRiche const & police,
                                 double largeurSource)
{
    auto const texte = std::make_shared<TexteMisEnPage>(
        AnalyseTexteRiche(demande.texte, police), police.DonneFont(), demande.surlignementEnNoir);
    int const interligne = police.DonneInterligne();
    double const libre = demande.largeur - kCaracteresReserves * police.DonneLargeurMoyenne();
    // Deliberate: a rectangle that has no room for the second line has the whole text on one line,
    // cut with "…", rather than the words of the first of two.
    bool const surDeuxLignes =
        demande.deuxLignes && libre > largeurSource && interligne <= demande.hauteur - interligne;
    // A word that is longer than the line goes on in the second one rather than out of the row.
    texte->MetsRetour(surDeuxLignes ? QTextOption::WrapAtWordBoundaryOrAnywhere
                                    : QTextOption::WrapAnywhere);
    for (int numero = 0; numero < (surDeuxLignes ? kNombreMaxDeLignes : 1); ++numero) {
        QTextLine ligne = texte->AjouteLigne();
        if (!ligne.isValid())
            break;
        double const largeur = numero == 0 ? demande.largeur - largeurSource : demande.largeur;
        bool const coupee = texte->CoupePartout() && CoupeLigne(ligne, largeur, police);
        if (!texte->CoupePartout())
            ligne.setLineWidth(largeur);
        // Where the source leaves no room for "…", it would be covered by it.
        if (coupee && largeurSource > 0.0 && largeur < DonneLargeurPoints(police))
            return;
        QPointF const coin(0.0, numero * interligne);
        ligne.setPosition(coin);
        if (coupee)
            ligne.setPosition(coin +
                              AjoutePoints(ligne, coin, texte->EstDeDroiteAGauche(), police));
        texte->MetsRetour(QTextOption::WrapAnywhere);
    }
    texte->Termine();
    mesPieces.push_back({texte, QPointF()});
}

// Puts "…" where reading the line at `coin` ends. The result is how far the line has to give way.
QPointF RangTexteRiche::AjoutePoints(QTextLine const & ligne, QPointF const & coin,
                                     bool deDroiteAGauche, PoliceTexteRiche const & police)
{
    auto const & points = police.PretePoints();
    double const descente = ligne.ascent() - points->DonneLigne(0).ascent(); // on one baseline
    double const x = deDroiteAGauche ? 0.0 : ligne.naturalTextWidth();
    mesPieces.push_back({points, coin + QPointF(x, descente)});
    return {deDroiteAGauche ? DonneLargeurPoints(police) : 0.0, 0.0};
}
