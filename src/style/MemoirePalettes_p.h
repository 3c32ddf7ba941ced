// style/MemoirePalettes_p.h
#pragma once

#include <QColor>
#include <QPalette>

#include <array>
#include <cstddef>

/// Palettes with one colour changed, the last few of them.
///
/// Base styles keep the pictures of their controls by the key of the palette. A palette changed
/// anew at each paint has a new key each time, and no picture would ever be found again.
class MemoirePalettes
{
public:
    /// `palette` with `couleur` for `role` in all groups, and with its own current group.
    QPalette Donne(QPalette const & palette, QPalette::ColorRole role, QColor const & couleur)
    {
        for (Entree const & entree : mesEntrees) {
            if (entree.cle == palette.cacheKey() && entree.role == role &&
                entree.couleur == couleur)
                return AvecGroupe(entree.palette, palette);
        }
        QPalette changee(palette);
        changee.setColor(role, couleur);
        mesEntrees[maProchaine] = {palette.cacheKey(), role, couleur, changee};
        maProchaine = (maProchaine + 1) % mesEntrees.size();
        return changee;
    }

private:
    struct Entree
    {
        qint64 cle = 0;
        QPalette::ColorRole role = QPalette::NoRole;
        QColor couleur;
        QPalette palette;
    };

    static QPalette AvecGroupe(QPalette palette, QPalette const & modele)
    {
        palette.setCurrentColorGroup(modele.currentColorGroup());
        return palette;
    }

    std::array<Entree, 8> mesEntrees; // a window has few palettes, and buttons few colours
    std::size_t maProchaine = 0;
};
