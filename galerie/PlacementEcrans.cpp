// galerie/PlacementEcrans.cpp
#include "PlacementEcrans.h"

#include "foundation/GeometrieEcran.h"
#include "foundation/GeometrieEcranCalculs_p.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

namespace {

// What the library's functions come to without a screen.
PlacementEcrans LaisseEnPlace(QRect const & rectangle)
{
    PlacementEcrans placement;
    placement.ajustay = rectangle;
    placement.centray = rectangle;
    placement.hauteurMax = rectangle.height();
    placement.tailleOptimale = rectangle.size();
    return placement;
}

} // namespace

PlacementEcrans PlaceSurOrdinateur(QRect const & rectangle, OptionsPlacement const & options)
{
    QScreen * const ecran = RoutinesGeneralesQt::EcranLePlusProche(rectangle.center());
    if (!ecran)
        return LaisseEnPlace(rectangle);

    PlacementEcrans placement;
    placement.ecran = ecran->name();
    placement.resolution = RoutinesGeneralesQt::DonneResolutionEcran(ecran);
    placement.basseResolution = RoutinesFenetre::EcranEstEnBasseResolution(rectangle.center());
    placement.ajustay = rectangle;
    RoutinesGeneralesQt::AjusteDansEcran(placement.ajustay, options.marge, options.forcage,
                                         options.redimensionnement);
    placement.centray = rectangle;
    RoutinesGeneralesQt::CentreDansEcranActif(placement.centray, options.placeHaute);
    placement.hauteurMax =
        RoutinesGeneralesQt::TrouveHauteurMaxSelonPositionDansEcran(rectangle, options.marge);
    placement.tailleOptimale =
        RoutinesFenetre::DonneTailleOptimaleFenetrePourEcran(rectangle.topLeft(), rectangle.size());
    return placement;
}

PlacementEcrans PlaceSur(QList<EcranDessinay> const & ecrans, QRect const & rectangle,
                         OptionsPlacement const & options)
{
    if (ecrans.isEmpty())
        return LaisseEnPlace(rectangle);

    QList<QRect> geometries;
    for (EcranDessinay const & ecran : ecrans)
        geometries.append(ecran.geometrie);
    auto const prete = [&](QPoint const & point) -> EcranDessinay const & {
        return ecrans.at(RoutinesGeometrie::DonneIndiceLePlusProche(geometries, point));
    };
    EcranDessinay const & ecran = prete(rectangle.center());

    PlacementEcrans placement;
    placement.ecran = ecran.nom;
    placement.resolution = ecran.geometrie.size();
    placement.basseResolution = RoutinesGeometrie::EstBasseResolution(placement.resolution);
    placement.ajustay = RoutinesGeometrie::AjusteDans(
        ecran.disponible, rectangle,
        {QApplication::style()->pixelMetric(QStyle::PM_TitleBarHeight), options.marge,
         options.forcage, options.redimensionnement});
    placement.centray = QRect(RoutinesGeometrie::DonneCoinCentre(
                                  ecrans.first().disponible, rectangle.size(), options.placeHaute),
                              rectangle.size());
    placement.hauteurMax = RoutinesGeometrie::DonneHauteurMax(prete(rectangle.topLeft()).disponible,
                                                              rectangle, options.marge);
    placement.tailleOptimale = RoutinesGeometrie::DonneTailleOptimale(
        prete(rectangle.topLeft()).geometrie.size(), rectangle.size());
    return placement;
}
