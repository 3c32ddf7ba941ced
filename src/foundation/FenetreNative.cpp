// foundation/FenetreNative.cpp
#include "foundation/FenetreNative_p.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QGuiApplication>
#include <QScreen>

std::optional<QRect> RoutinesGeometrie::DonneInterieurNatif(HWND fenetre)
{
    RECT client = {0, 0, 0, 0};
    POINT origine = {0, 0};
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    if (!plateforme.GetClientRect(fenetre, &client) ||
        !plateforme.ClientToScreen(fenetre, &origine))
        return std::nullopt;
    return QRect(static_cast<int>(origine.x), static_cast<int>(origine.y),
                 static_cast<int>(client.right - client.left),
                 static_cast<int>(client.bottom - client.top));
}

std::optional<QRect> RoutinesGeometrie::DonneInterieur(HWND fenetre)
{
    auto const natif = DonneInterieurNatif(fenetre);
    QScreen const * const ecran = DonneEcranDe(fenetre);
    if (!natif || !ecran)
        return natif;
    // Screens lie at native coordinates, and only lengths inside them are scaled.
    QPoint const origine = ecran->geometry().topLeft();
    qreal const echelle = ecran->devicePixelRatio();
    return QRect(origine + (QPointF(natif->topLeft() - origine) / echelle).toPoint(),
                 (QSizeF(natif->size()) / echelle).toSize());
}

QScreen const * RoutinesGeometrie::DonneEcranDe(HWND fenetre)
{
    PlateformeFenetres & plateforme = PlateformeFenetres::Courante();
    PlateformeFenetres::InfosMoniteur infos;
    if (!plateforme.GetMonitorInfoW(plateforme.MonitorFromWindow(fenetre, MONITOR_DEFAULTTONEAREST),
                                    &infos))
        return nullptr;
    for (QScreen const * const ecran : QGuiApplication::screens()) {
        if (ecran->name() == infos.nom)
            return ecran;
    }
    return nullptr;
}
