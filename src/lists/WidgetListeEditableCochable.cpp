// lists/WidgetListeEditableCochable.cpp
#include "lists/WidgetListeEditableCochable.h"

#include "controls/DTreeView.h"
#include "lists/WidgetListeEditable_p.h"

#include <QKeyEvent>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QStandardItemModel>

#include <algorithm>
#include <iterator>
#include <utility>

WidgetListeEditableCochable::WidgetListeEditableCochable(QWidget * parent, int nbColonnes,
                                                         bool editable, bool avecBoutonAjouter,
                                                         QList<QValidator *> validateurs,
                                                         bool insereApresSelection)
    : WidgetListeEditable(parent, nbColonnes, editable, avecBoutonAjouter, std::move(validateurs),
                          insereApresSelection)
{
    QStandardItemModel * const modele = PreteModele();
    // The base's slot does not know which role has changed, and would take a new state of a box for
    // the end of an edit.
    disconnect(modele, &QStandardItemModel::dataChanged, this,
               qOverload<QModelIndex, QModelIndex>(&WidgetListeEditable::PriseElementModifiay));
    connect(modele, &QStandardItemModel::dataChanged, this,
            &WidgetListeEditableCochable::PriseDonneesModifiay, Qt::UniqueConnection);
    connect(modele, &QStandardItemModel::rowsInserted, this,
            &WidgetListeEditableCochable::PriseRangeesInseray, Qt::UniqueConnection);
}

std::list<int> WidgetListeEditableCochable::DonneRangeesCochay() const
{
    std::list<int> rangees;
    for (int rangee = 0; rangee < DonneNbRangee(); ++rangee) {
        if (EstCochay(rangee))
            rangees.push_back(rangee);
    }
    return rangees;
}

bool WidgetListeEditableCochable::EstCochay(int rangee) const
{
    QStandardItem const * const item = DonneElement(rangee, 0);
    return item && item->checkState() == Qt::Checked;
}

void WidgetListeEditableCochable::MetsCochay(int rangee, bool cochay)
{
    QStandardItem * const item = DonneElement(rangee, 0);
    if (item && EstCochay(rangee) != cochay)
        item->setCheckState(cochay ? Qt::Checked : Qt::Unchecked);
}

bool WidgetListeEditableCochable::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == PreteVue() && evenement->type() == QEvent::KeyPress) {
        auto const & touche = *static_cast<QKeyEvent *>(evenement);
        bool const espace = touche.key() == Qt::Key_Space || touche.key() == Qt::Key_Select;
        if (espace && touche.modifiers() == Qt::NoModifier)
            return BasculeRangees();
    }
    return WidgetListeEditable::eventFilter(objet, evenement);
}

void WidgetListeEditableCochable::PriseDonneesModifiay(QModelIndex const & debut,
                                                       QModelIndex const & fin,
                                                       QList<int> const & roles)
{
    if (mesCasesSePosent)
        return;
    if (roles != QList<int>{Qt::CheckStateRole}) {
        PriseElementModifiay(debut, fin);
        return;
    }
    if (debut.column() != 0)
        return; // a box that the host gave to another cell
    Emission const emission(*this);
    Q_EMIT SignalCocheModifiay(debut, EstCochay(debut.row()));
    if (!emission.ListeEstMorte() && !monChangementGroupay)
        PriseElementModifiay();
}

// New rows and those that come back after a move, whoever made their items.
void WidgetListeEditableCochable::PriseRangeesInseray(QModelIndex const & parent, int premiere,
                                                      int derniere)
{
    if (parent.isValid())
        return;
    QScopedValueRollback const garde(mesCasesSePosent, true);
    for (int rangee = premiere; rangee <= derniere; ++rangee) {
        QStandardItem * item = DonneElement(rangee, 0);
        if (!item) {
            item = new QStandardItem;
            item->setEditable(DonneEditable());
            PreteModele()->setItem(rangee, 0, item);
        }
        item->setCheckable(true); // keeps a state that the item came with
    }
}

// All selected rows take the new state of the current one.
bool WidgetListeEditableCochable::BasculeRangees()
{
    QModelIndex const courant = PreteVue()->currentIndex();
    QList<QPersistentModelIndex> elements; // a receiver may remove rows
    for (int const rangee : DonneRangeesABasculer())
        elements.append(PreteModele()->index(rangee, 0));
    if (elements.isEmpty())
        return false;
    bool const avecCourant = courant.isValid() && PeutBasculer(courant.row());
    bool const cochay = !EstCochay(avecCourant ? courant.row() : elements.first().row());

    Emission const emission(*this);
    monChangementGroupay = true;
    for (QPersistentModelIndex const & element : std::as_const(elements)) {
        if (element.isValid())
            MetsCochay(element.row(), cochay);
        if (emission.ListeEstMorte())
            return true;
    }
    monChangementGroupay = false;
    PriseElementModifiay();
    return true;
}

// From top to bottom. The current row may be out of the selection, and then goes alone.
QList<int> WidgetListeEditableCochable::DonneRangeesABasculer() const
{
    int const courante = PreteVue()->currentIndex().row();
    std::list<int> rangees = DonneRangeesSelectionnay();
    if (courante >= 0 && std::find(rangees.begin(), rangees.end(), courante) == rangees.end())
        rangees = {courante};
    rangees.sort();
    QList<int> basculables;
    std::copy_if(rangees.begin(), rangees.end(), std::back_inserter(basculables),
                 [this](int rangee) { return PeutBasculer(rangee); });
    return basculables;
}

bool WidgetListeEditableCochable::PeutBasculer(int rangee) const
{
    QStandardItem const * const item = DonneElement(rangee, 0);
    return item && item->isEnabled() && item->isCheckable();
}
