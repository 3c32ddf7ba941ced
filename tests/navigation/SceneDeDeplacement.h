// navigation/SceneDeDeplacement.h
#pragma once

#include "RangeeDEssai.h"

#include <memory>

inline constexpr QPoint kPlaceCible(40, 300);

/// A bar of four tabs whose tab 1 is being dragged, over the second bar.
struct Scene
{
    Scene()
    {
        source.Expose();
        cible->Expose();
        infobulles = source.DonneInfobulles();
        source.Presse(1);
        source.Deplace(cible->DonnePoint(1));
    }
    bool EstEnCours() const
    {
        return source.barre->EstEnDeplacementExterne() && TrouveFantome() &&
               !cible->barre->DonnePositionIndicateur().isNull();
    }
    /// All but the tool tips.
    bool EstAuRepos() const
    {
        return !source.barre->EstEnDeplacementExterne() && !TrouveFantome() &&
               (!cible || cible->barre->DonnePositionIndicateur().isNull());
    }
    int CompteSignaux() const { return depots.count() + fenetres.count(); }

    RangeeDEssai source{4};
    std::unique_ptr<RangeeDEssai> cible = std::make_unique<RangeeDEssai>(3, "groupe", kPlaceCible);
    QStringList infobulles;
    QSignalSpy depots{source.barre, &DTabBarInterne::SignalAjouteOngletBarreExterne};
    QSignalSpy fenetres{source.barre, &DTabBarInterne::SignalOngletNouvelleFenetre};
};

// The picture that Qt moves inside the row: the only child without a class of its own.
inline QWidget * TrouveOngletQtEnMouvement(QTabBar const & barre)
{
    auto const enfants = barre.findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (QWidget * const enfant : enfants)
        if (enfant->isVisible() && enfant->metaObject() == &QWidget::staticMetaObject)
            return enfant;
    return nullptr;
}
