// galerie/ModeleMots.cpp
#include "ModeleMots.h"

#include "TraductionGalerie.h"

#include <QLocale>

#include <utility>

namespace {

QString DonneLettresAccentuees(QStringView mot)
{
    QString lettres;
    QString const composay = mot.toString().normalized(QString::NormalizationForm_C);
    for (QChar const caractere : composay)
        if (TableMots::DonneAccents(caractere) != TableMots::kSansAccent &&
            !lettres.contains(caractere))
            lettres += lettres.isEmpty() ? QString(caractere) : QString(u' ') + caractere;
    return lettres;
}

} // namespace

ModeleMots::ModeleMots(QObject * parent)
    : QAbstractTableModel(parent)
{
}

void ModeleMots::Montre(std::shared_ptr<TableMots const> table, std::vector<int> indices)
{
    beginResetModel();
    maTable = std::move(table);
    mesIndices = std::move(indices);
    endResetModel();
}

int ModeleMots::rowCount(QModelIndex const & parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mesIndices.size());
}

int ModeleMots::columnCount(QModelIndex const & parent) const
{
    return parent.isValid() ? 0 : kNombreDeColonnes;
}

QVariant ModeleMots::data(QModelIndex const & index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::TextAlignmentRole && index.column() == kLettres)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignTrailing | Qt::AlignVCenter));
    if (role != Qt::DisplayRole)
        return {};
    int const indice = mesIndices[static_cast<std::size_t>(index.row())];
    switch (index.column()) {
    case kMot:
        return maTable->DonneMot(indice).toString();
    case kLettres:
        return QLocale().toString(maTable->DonneAttributs(indice).lettres);
    default:
        return DonneLettresAccentuees(maTable->DonneMot(indice));
    }
}

QVariant ModeleMots::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case kMot:
        return TraductionGalerie(TexteGalerie("Mot"));
    case kLettres:
        return TraductionGalerie(TexteGalerie("Lettres"));
    default:
        return TraductionGalerie(TexteGalerie("Accents"));
    }
}
