// lists/ItemCompte.h
#pragma once

#include "lists/EssaisListeChoix.h"

/// Who deletes the items of a list, and when.
namespace EssaisListeChoix {

// How many of them there are.
class ItemCompte : public QStandardItem
{
public:
    ItemCompte() { ++nombre; }
    ItemCompte(ItemCompte const & autre)
        : QStandardItem(autre)
    {
        ++nombre;
    }
    ~ItemCompte() override { --nombre; }
    ItemCompte & operator=(ItemCompte const &) = delete;
    QStandardItem * clone() const override { return new ItemCompte(*this); }

    static inline int nombre = 0;
};

inline Rangees CreeItemsComptes(int rangees, int colonnes)
{
    Rangees resultat;
    for (int i = 0; i < rangees; ++i) {
        resultat.append(QList<QStandardItem *>());
        for (int j = 0; j < colonnes; ++j)
            resultat.last().append(new ItemCompte);
    }
    return resultat;
}

} // namespace EssaisListeChoix
