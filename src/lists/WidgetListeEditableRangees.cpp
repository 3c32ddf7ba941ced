// lists/WidgetListeEditableRangees.cpp
//
// The rows of the editable list: added, removed and moved.
#include "lists/WidgetListeEditable.h"

#include "lists/DorvelStandardItemModelPrive_p.h"
#include "lists/DorvelTreeViewPrive_p.h"
#include "lists/SuiviRangees_p.h"
#include "lists/WidgetListeEditable_p.h"

#include <QToolButton>

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <utility>

namespace {

constexpr QItemSelectionModel::SelectionFlags kRangeeSeule =
    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

// An item takes its time over flags that it has already.
void RendsEditable(QStandardItem & item, bool editable)
{
    if (item.isEditable() != editable)
        item.setEditable(editable);
}

} // namespace

QStandardItem * WidgetListeEditable::CreeItem() const
{
    auto * const item = new QStandardItem;
    RendsEditable(*item, monEditable);
    return item;
}

QModelIndex WidgetListeEditable::AjouteElement(Valeurs const & valeurs)
{
    QList<QStandardItem *> items;
    for (auto const & cellule : valeurs) {
        items.append(CreeItem());
        for (auto const & valeur : cellule)
            items.last()->setData(valeur.premier, valeur.second);
    }
    return AjouteElement(items, DonneNbRangee());
}

QModelIndex WidgetListeEditable::AjouteElement(QList<QStandardItem *> items, int rangee)
{
    int position = rangee;
    if (monInsertionApresSelection) {
        std::list<int> const rangees = DonneRangeesSelectionnay();
        if (rangees.size() == 1)
            position = rangees.front() + 1;
    }
    if (items.isEmpty() || position < 0 || position > DonneNbRangee()) {
        qDeleteAll(items);
        return {};
    }
    for (QStandardItem * const item : std::as_const(items)) {
        if (item != nullptr)
            RendsEditable(*item, monEditable);
    }
    monModele->insertRow(position, items);
    if (monInsertionApresSelection)
        maVue->scrollToBottom();
    return monModele->index(position, 0);
}

void WidgetListeEditable::MetsValeursParDefaut(Valeurs const & valeurs)
{
    mesItemsParDefaut.clear();
    mesItemsPossedes.clear();
    for (auto const & cellule : valeurs) {
        auto item = std::make_unique<QStandardItem>();
        for (auto const & valeur : cellule)
            item->setData(valeur.premier, valeur.second);
        mesItemsParDefaut.append(item.get());
        mesItemsPossedes.push_back(std::move(item));
    }
}

QList<QStandardItem *> WidgetListeEditable::CreeRangee() const
{
    QList<QStandardItem *> items;
    for (QStandardItem const * const modele : mesItemsParDefaut) {
        items.append(CreeItem());
        if (modele != nullptr)
            items.last()->setData(modele->data(Qt::DisplayRole), Qt::DisplayRole);
    }
    if (items.isEmpty())
        items.append(CreeItem());
    return items;
}

void WidgetListeEditable::PriseBoutonAjouter()
{
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const index =
        AjouteElement(CreeRangee(), monAjoutEnFin ? DonneNbRangee() : 0);
    maVue->selectionModel()->setCurrentIndex(index, kRangeeSeule);
    if (moi && monEditable)
        OuvreEditeur(index);
    if (!moi)
        return;
    Emission const emission(*this);
    Q_EMIT SignalAjout();
}

bool WidgetListeEditable::RetireRangee(int rangee, bool signaler)
{
    if (rangee < 0 || rangee >= DonneNbRangee())
        return false;
    Emission const emission(*this);
    int const place = DeselectionneRangee(rangee);
    if (place < 0)
        return false;
    monRetraitEstSignalay = signaler;
    QList<QStandardItem *> const items = monModele->takeRow(place);
    if (!emission.ListeEstMorte()) {
        monRetraitEstSignalay = false; // a model whose signals are blocked has not told
        if (signaler)
            Q_EMIT SignalRangeeSupprimay(items, place);
    }
    qDeleteAll(items);
    if (signaler && !emission.ListeEstMorte())
        PriseElementModifiay();
    return true;
}

// The model tells while the row is being taken, before anybody has heard which row it was: a host
// that saves the list upon a change would do so before it has let go of the row.
void WidgetListeEditable::PriseRangeesRetirees()
{
    if (!std::exchange(monRetraitEstSignalay, false))
        PriseElementModifiay();
}

// Takes a row that is about to leave out of the selection, which would tell of it while the row is
// leaving: the model could not bear that a receiver removes rows then. Returns the place of the row
// after the receivers; -1 when they have removed it, or the list.
int WidgetListeEditable::DeselectionneRangee(int rangee)
{
    QItemSelectionModel * const selection = maVue->selectionModel();
    if (!selection->hasSelection() || !selection->rowIntersectsSelection(rangee))
        return rangee;
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const index = monModele->index(rangee, 0);
    selection->select(index, QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
    return moi ? index.row() : -1;
}

void WidgetListeEditable::Vide(bool signaler)
{
    std::vector<int> rangees(static_cast<std::size_t>(DonneNbRangee()));
    std::iota(rangees.rbegin(), rangees.rend(), 0);
    QPointer<WidgetListeEditable> const moi = this;
    SuiviRangees suivi(monModele, std::move(rangees));
    for (int rangee = suivi.Suivante(); rangee >= 0; rangee = suivi.Suivante()) {
        RetireRangee(rangee, signaler);
        if (!moi)
            return;
    }
}

void WidgetListeEditable::PriseSuppression()
{
    std::list<int> const selection = DonneRangeesSelectionnay();
    if (selection.empty())
        return;
    std::vector<int> rangees(selection.begin(), selection.end());
    std::sort(rangees.begin(), rangees.end(), std::greater<>());
    QPointer<WidgetListeEditable> const moi = this;
    SuiviRangees suivi(monModele, std::move(rangees));
    maVue->selectionModel()->clear();
    while (moi) {
        int const rangee = suivi.Suivante();
        if (rangee < 0)
            break;
        RetireRangee(rangee, true);
    }
    // Deliberate: the row above the one that was selected first, even where fewer rows are left.
    if (moi)
        Selectionne(std::max(0, selection.front() - 1), 0, kRangeeSeule);
    if (moi)
        PriseActualiseEtatBoutonSupprimer();
}

int WidgetListeEditable::DonneCible(int rangee, bool estVersLeHaut) const
{
    int const cible = estVersLeHaut ? rangee - 1 : rangee + 1;
    return cible < DonneNbRangee() ? cible : -1;
}

// Deliberate: only the first of the selected rows moves.
void WidgetListeEditable::PriseBougeElementSelectionner(bool estVersLeHaut)
{
    std::list<int> const rangees = DonneRangeesSelectionnay();
    if (rangees.empty() || DonneCible(rangees.front(), estVersLeHaut) < 0)
        return;
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const premiere = monModele->index(rangees.front(), 0);
    maVue->FermeEditeurs(rangees.front(), true); // it would be lost with the place of the row
    if (!moi || !premiere.isValid())
        return;
    int const rangee = DeselectionneRangee(premiere.row());
    int const cible = rangee >= 0 ? DonneCible(rangee, estVersLeHaut) : -1;
    if (cible >= 0)
        DeplaceRangee(rangee, cible);
}

QList<std::pair<std::shared_ptr<WidgetListeEditable::FinAttendue>, int>>
WidgetListeEditable::DonneFinsDeRangee(int rangee) const
{
    QList<std::pair<std::shared_ptr<FinAttendue>, int>> fins;
    for (auto const & fin : mesFinsAttendues) {
        if (fin->cellule.isValid() && fin->cellule.row() == rangee)
            fins.append({fin, fin->cellule.column()});
    }
    return fins;
}

void WidgetListeEditable::DeplaceRangee(int rangee, int cible)
{
    QPointer<WidgetListeEditable> const moi = this;
    auto const fins = DonneFinsDeRangee(rangee);
    QList<QStandardItem *> const items = monModele->takeRow(rangee);
    if (!moi) {
        qDeleteAll(items);
        return;
    }
    int const place = std::min(cible, DonneNbRangee()); // who heard of it may have removed rows
    monModele->insertRow(place, items);
    for (auto const & [fin, colonne] : fins)
        fin->cellule = monModele->index(place, colonne);
    SelectionneRangee(place);
    if (moi)
        PriseElementModifiay();
}

void WidgetListeEditable::SelectionneRangee(int rangee)
{
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const index = monModele->index(rangee, 0);
    maVue->selectionModel()->clearCurrentIndex();
    if (moi)
        VideSelection();
    if (moi && index.isValid())
        Selectionne(index.row(), 0, kRangeeSeule);
    if (moi && index.isValid())
        maVue->selectionModel()->setCurrentIndex(index, QItemSelectionModel::Select |
                                                            QItemSelectionModel::Rows);
}
