// foundation/GeometrieEcranCalculs.cpp
#include "foundation/GeometrieEcranCalculs_p.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace RoutinesFenetre;

namespace {

// Pixels.
constexpr int kMarge = 5;                  // around an adjusted window
constexpr int kReserve = 10;               // kept free of a resized one, in both directions
constexpr int kMargeHauteur = 10;          // below a window cut in height
constexpr QSize kReserveOptimale(80, 100); // kept free of a window of the best size

// The widest and the highest of the screens that count as small.
constexpr QSize kBasseResolution(1024, 768);

// The higher place of a dialog, above the centre, as a part of the height.
constexpr double kPlusHautNumerateur = -3.0;
constexpr double kPlusHautDenominateur = 14.0;

double DonneDecalageVertical(int hauteur)
{
    return hauteur * kPlusHautNumerateur / kPlusHautDenominateur;
}

// Halves go away from zero.
QPoint Arrondis(double x, double y)
{
    return {static_cast<int>(std::lround(x)), static_cast<int>(std::lround(y))};
}

void PlaceAuDessus(QRect & rect, QRect const & obstacle, int ecart)
{
    rect.moveBottom(obstacle.top() - 1 - ecart);
}

} // namespace

qsizetype RoutinesGeometrie::DonneIndiceLePlusProche(QList<QRect> const & ecrans,
                                                     QPoint const & point)
{
    qsizetype meilleur = -1;
    double meilleureDistance = std::numeric_limits<double>::infinity();
    for (qsizetype i = 0; i < ecrans.size(); ++i) {
        if (ecrans[i].contains(point))
            return i;
        double const distance = QLineF(point, ecrans[i].center()).length();
        if (distance < meilleureDistance) {
            meilleureDistance = distance;
            meilleur = i;
        }
    }
    return meilleur;
}

QRect RoutinesGeometrie::RameneDans(QRect const & limites, QRect rect)
{
    rect.translate(-std::max(rect.right() - limites.right(), 0),
                   -std::max(rect.bottom() - limites.bottom(), 0));
    // Last, so that the left and top edges win.
    rect.translate(std::max(limites.left() - rect.left(), 0),
                   std::max(limites.top() - rect.top(), 0));
    return rect;
}

QRect RoutinesGeometrie::AjusteDans(QRect const & disponible, QRect rect,
                                    Ajustement const & ajustement)
{
    int const marge = ajustement.avecMarge ? kMarge : 0;
    int const bordure = ajustement.avecMarge ? kReserve : 0;
    QSize reserve(bordure, bordure + ajustement.hauteurTitre);

    QPoint const milieuDuTitre(rect.center().x(), rect.top());
    if (ajustement.force || !disponible.contains(milieuDuTitre)) {
        rect = RameneDans(disponible.adjusted(marge, marge, -marge, -marge), rect);
        reserve += QSize(marge, marge);
    }
    if (ajustement.redimensionne) {
        QSize const exces = rect.size() + reserve - disponible.size();
        rect.adjust(0, 0, -std::max(exces.width(), 0), -std::max(exces.height(), 0));
    }
    return rect;
}

QPoint RoutinesGeometrie::DonneCoinCentre(QRect const & disponible, QSize const & taille,
                                          bool plusHaut)
{
    QRectF const zone(disponible);
    QSize const demiTaille(taille.width() / 2, taille.height() / 2); // whole, unlike the screen's
    double const x = zone.left() + zone.width() / 2.0 - demiTaille.width();
    double y = zone.top() + zone.height() / 2.0 - demiTaille.height();
    if (plusHaut)
        y += DonneDecalageVertical(disponible.height());
    return Arrondis(x, y);
}

int RoutinesGeometrie::DonneHauteurMax(QRect const & disponible, QRect const & rect, bool avecMarge)
{
    int const place = disponible.bottom() - (avecMarge ? kMargeHauteur : 0) - rect.bottom() -
                      rect.top() + disponible.top();
    return place < 0 ? rect.bottom() + place : rect.height();
}

QPoint RoutinesGeometrie::DonneCoinDansParent(QSize const & cadreParent, int hauteurParent,
                                              QSize const & cadre, bool plusHaut)
{
    QPoint coin((cadreParent.width() - cadre.width()) / 2,
                (cadreParent.height() - cadre.height()) / 2);
    if (plusHaut)
        coin.ry() += static_cast<int>(std::ceil(DonneDecalageVertical(hauteurParent)));
    return coin;
}

QPoint RoutinesGeometrie::DonneCoinDansParentNatif(QRect const & interieurParent,
                                                   QSizeF const & cadre)
{
    return Arrondis(interieurParent.left() + (interieurParent.width() - cadre.width()) / 2.0,
                    interieurParent.top() + (interieurParent.height() - cadre.height()) / 2.0);
}

RoutinesGeometrie::Placement RoutinesGeometrie::PlaceHorsDe(Obstacles const & obstacles, QRect rect,
                                                            eDirectionAffichage direction)
{
    // Of the frame, only the sides: the rectangle has its top and bottom where they are wanted.
    QRect const limites =
        obstacles.disponible.adjusted(obstacles.cadre.left(), 0, -obstacles.cadre.right(), 0);
    rect = RameneDans(limites, rect);

    if (rect.intersects(obstacles.rectC))
        rect.moveBottom(obstacles.rectC.top() - obstacles.ecart);

    bool const toucheA = rect.intersects(obstacles.rectA);
    if (direction == kAuDessusForce) {
        if (toucheA)
            PlaceAuDessus(rect, obstacles.rectA, obstacles.ecart);
    } else if (toucheA ? direction != kEnDessous : direction == kAuDessus) {
        PlaceAuDessus(rect, obstacles.rectA, obstacles.ecart);
        direction = kAuDessus;
    } else {
        direction = kEnDessous;
    }

    if (rect.intersects(obstacles.rectB))
        rect.moveRight(obstacles.rectB.left() - 1);
    return {rect.topLeft(), direction};
}

QSize RoutinesGeometrie::DonneTailleOptimale(QSize const & resolution, QSize const & taille)
{
    // The place of the window does not matter: one that lies inside is no larger either.
    return taille.boundedTo(resolution - kReserveOptimale);
}

bool RoutinesGeometrie::EstBasseResolution(QSize const & resolution)
{
    return resolution.width() <= kBasseResolution.width() ||
           resolution.height() <= kBasseResolution.height();
}
