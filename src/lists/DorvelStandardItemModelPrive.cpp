// lists/DorvelStandardItemModelPrive.cpp
#include "lists/DorvelStandardItemModelPrive_p.h"

void DorvelStandardItemModelPrive::MetsCellulesVidesModifiables(bool modifiables)
{
    monVideModifiable = modifiables;
}

Qt::ItemFlags DorvelStandardItemModelPrive::flags(QModelIndex const & index) const
{
    Qt::ItemFlags const drapeaux = QStandardItemModel::flags(index);
    // By its place: asked by its index, the model would make the item.
    bool const fige = !monVideModifiable && index.isValid() && !index.parent().isValid() &&
                      item(index.row(), index.column()) == nullptr;
    return fige ? drapeaux & ~Qt::ItemFlags(Qt::ItemIsEditable) : drapeaux;
}

bool DorvelStandardItemModelPrive::setData(QModelIndex const & index, QVariant const & valeur,
                                           int role)
{
    if (role != Qt::EditRole || !valeur.toString().isEmpty())
        return QStandardItemModel::setData(index, valeur, role);
    QVariant const ancienne = data(index, role);
    if (!ancienne.toString().isEmpty())
        return false;
    bool const muet = ancienne.userType() == valeur.userType() && ancienne == valeur;
    if (!QStandardItemModel::setData(index, valeur, role))
        return false;
    // An item says nothing of a value that it has already; the empty row it stands in would stay.
    if (muet)
        Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}
