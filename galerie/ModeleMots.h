// galerie/ModeleMots.h
#pragma once

#include "TableMots.h"

#include <QAbstractTableModel>

#include <memory>
#include <vector>

/// Words of a table, those of a list of indexes, with their lengths and accents.
///
/// What a view does not show is never made into text.
class ModeleMots : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColonne
    {
        kMot = 0,
        kLettres,
        kAccents, ///< the letters that have one, each once
        kNombreDeColonnes
    };

    explicit ModeleMots(QObject * parent = nullptr);

    /// Replaces all rows at once. The indexes are of `table`.
    void Montre(std::shared_ptr<TableMots const> table, std::vector<int> indices);
    std::vector<int> const & DonneIndices() const { return mesIndices; }

    int rowCount(QModelIndex const & parent = {}) const override;
    int columnCount(QModelIndex const & parent = {}) const override;
    QVariant data(QModelIndex const & index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    std::shared_ptr<TableMots const> maTable;
    std::vector<int> mesIndices;
};
