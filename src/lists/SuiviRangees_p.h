// lists/SuiviRangees_p.h
#pragma once

#include <QList>
#include <QObject>
#include <QPersistentModelIndex>

#include <vector>

class QAbstractItemModel;

/// Rows that are about to be removed one after the other, while those who hear of it may insert,
/// remove or sort rows.
///
/// As long as nobody does, the rows are plain numbers: each persistent index would make each
/// removal slower.
class SuiviRangees : public QObject
{
    Q_OBJECT

public:
    /// `rangees` from the highest to the lowest; `modele` is not owned, and must outlive the calls.
    SuiviRangees(QAbstractItemModel * modele, std::vector<int> rangees);

    /// The row to remove now, as the next change of the rows; -1 when none is left.
    int Suivante();

private Q_SLOTS:
    void PriseRetraitImminent(QModelIndex const & parent, int premiere, int derniere);
    void PriseAutreChangement();

private:
    QAbstractItemModel * monModele;
    std::vector<int> mesRangees;
    std::size_t monRang = 0;
    int maRangeeAttendue = -1;
    bool monSuiviEstFige = false; // the rows that are left are in `mesIndex`
    QList<QPersistentModelIndex> mesIndex;
};
