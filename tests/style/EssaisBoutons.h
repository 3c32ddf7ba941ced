// tests/style/EssaisBoutons.h
#pragma once

#include "style/EssaisPeinture.h"

#include <QPushButton>

// What the tests of push buttons share.

inline constexpr QRect kRect(0, 0, 60, 24);
inline constexpr QStyle::State kNormal = QStyle::State_Enabled | QStyle::State_Active;

inline QStyleOptionButton DonneOption(QStyle::State etat = kNormal, bool defaut = false)
{
    QStyleOptionButton option;
    option.rect = kRect;
    option.state = etat;
    option.palette =
        DonnePaletteEssai(etat & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled);
    option.text = QStringLiteral("Choisir");
    if (defaut)
        option.features |= QStyleOptionButton::DefaultButton;
    return option;
}

/// A button and the style that paints it.
struct BancBouton : BancStyle
{
    std::unique_ptr<QPushButton> bouton = std::make_unique<QPushButton>();

    QImage Peins(QStyle::ControlElement element, QStyleOption const & option) const
    {
        return ::Peins(option.rect.size(), [&](QPainter & peintre) {
            style.drawControl(element, &option, &peintre, bouton.get());
        });
    }
    QImage PeinsBiseau(QStyleOptionButton const & option) const
    {
        return Peins(QStyle::CE_PushButtonBevel, option);
    }
};
