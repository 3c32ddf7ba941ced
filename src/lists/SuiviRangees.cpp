// lists/SuiviRangees.cpp
#include "lists/SuiviRangees_p.h"

#include <QAbstractItemModel>

#include <utility>

SuiviRangees::SuiviRangees(QAbstractItemModel * modele, std::vector<int> rangees)
    : monModele(modele)
    , mesRangees(std::move(rangees))
{
    connect(modele, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            &SuiviRangees::PriseRetraitImminent, Qt::UniqueConnection);
    connect(modele, &QAbstractItemModel::rowsAboutToBeInserted, this,
            &SuiviRangees::PriseAutreChangement, Qt::UniqueConnection);
    connect(modele, &QAbstractItemModel::rowsAboutToBeMoved, this,
            &SuiviRangees::PriseAutreChangement, Qt::UniqueConnection);
    connect(modele, &QAbstractItemModel::layoutAboutToBeChanged, this,
            &SuiviRangees::PriseAutreChangement, Qt::UniqueConnection);
    connect(modele, &QAbstractItemModel::modelAboutToBeReset, this,
            &SuiviRangees::PriseAutreChangement, Qt::UniqueConnection);
}

int SuiviRangees::Suivante()
{
    if (!monSuiviEstFige) {
        maRangeeAttendue = monRang < mesRangees.size() ? mesRangees[monRang++] : -1;
        return maRangeeAttendue;
    }
    while (!mesIndex.isEmpty()) {
        QPersistentModelIndex const index = mesIndex.takeFirst();
        if (index.isValid())
            return index.row();
    }
    return -1;
}

void SuiviRangees::PriseRetraitImminent(QModelIndex const & parent, int premiere, int derniere)
{
    if (!parent.isValid() && premiere == maRangeeAttendue && derniere == maRangeeAttendue)
        maRangeeAttendue = -1; // the rows that are left stand above it
    else
        PriseAutreChangement();
}

// Before the model has changed, so that the indexes follow it.
void SuiviRangees::PriseAutreChangement()
{
    if (monSuiviEstFige)
        return;
    monSuiviEstFige = true;
    for (; monRang < mesRangees.size(); ++monRang)
        mesIndex.append(monModele->index(mesRangees[monRang], 0));
}
