// lists/DorvelStandardItemModelPrive_p.h
#pragma once

#include <QStandardItemModel>

/// The rows of an editable list, in which an edit cannot empty a filled cell.
class DorvelStandardItemModelPrive : public QStandardItemModel
{
    Q_OBJECT

public:
    using QStandardItemModel::QStandardItemModel;

    /// Whether the user may fill the cells that have no item yet, as at first.
    void MetsCellulesVidesModifiables(bool modifiables);

    Qt::ItemFlags flags(QModelIndex const & index) const override;
    /// Under `Qt::EditRole` an empty text on a filled cell is refused, and on an empty one always
    /// tells of the change.
    bool setData(QModelIndex const & index, QVariant const & valeur, int role) override;

private:
    bool monVideModifiable = true;
};
