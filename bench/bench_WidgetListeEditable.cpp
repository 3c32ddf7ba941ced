// bench/bench_WidgetListeEditable.cpp
//
// 10,000 rows added to an editable list, of one column and of three, and 10,000 selected rows
// removed from it as the remove button does, beside a `QTreeWidget` with the same rows. Exits with
// 1 when the list takes more than 1.5 times as long.
#include "lists/WidgetListeEditable.h"

#include "Comparaison.h"

#include <QApplication>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRangees = 10'000;
constexpr double kRatioMax = 1.5;
constexpr int kTours = 11; // of the removals, whose lists are filled outside of the clock

using Valeurs = WidgetListeEditable::Valeurs;

std::unique_ptr<WidgetListeEditable> CreeListe(int colonnes)
{
    auto liste = std::make_unique<WidgetListeEditable>(nullptr, colonnes, true, true,
                                                       QList<QValidator *>(), false);
    liste->show();
    return liste;
}

std::unique_ptr<QTreeWidget> CreePair(int colonnes)
{
    auto pair = std::make_unique<QTreeWidget>();
    pair->setColumnCount(colonnes);
    pair->setSelectionMode(QAbstractItemView::ExtendedSelection);
    pair->show();
    return pair;
}

void Remplis(WidgetListeEditable & liste, int rangees, int colonnes)
{
    for (int rangee = 0; rangee < rangees; ++rangee) {
        Valeurs valeurs;
        for (int colonne = 0; colonne < colonnes; ++colonne)
            valeurs.AjouteFin({{QString::number(rangee), Qt::DisplayRole}});
        liste.AjouteElement(valeurs);
    }
}

void Remplis(QTreeWidget & pair, int rangees, int colonnes)
{
    for (int rangee = 0; rangee < rangees; ++rangee) {
        auto * const item = new QTreeWidgetItem;
        for (int colonne = 0; colonne < colonnes; ++colonne)
            item->setData(colonne, Qt::DisplayRole, QString::number(rangee));
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        pair.addTopLevelItem(item);
    }
}

// What a program writes that has no editable list: from the last selected row to the first.
void RetireSelection(QTreeWidget & pair)
{
    QList<int> rangees;
    for (QModelIndex const & index : pair.selectionModel()->selectedRows())
        rangees.append(index.row());
    std::sort(rangees.begin(), rangees.end(), std::greater<>());
    pair.selectionModel()->clear();
    for (int const rangee : std::as_const(rangees))
        delete pair.takeTopLevelItem(rangee);
}

double Secondes(std::function<void()> const & fonction)
{
    auto const debut = std::chrono::steady_clock::now();
    fonction();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

// True within the limit.
bool MesureRetrait(int colonnes)
{
    std::vector<double> rapports; // of two neighbours in time, which a busy machine slows alike
    double notre = 0;
    double autre = 0;
    for (int tour = 0; tour < kTours; ++tour) {
        auto const liste = CreeListe(colonnes);
        auto const pair = CreePair(colonnes);
        Remplis(*liste, kRangees, colonnes);
        Remplis(*pair, kRangees, colonnes);
        liste->findChild<QTreeView *>()->selectAll();
        pair->selectAll();
        notre = Secondes([&] { Q_EMIT liste->SignalSuppression(); });
        autre = Secondes([&] { RetireSelection(*pair); });
        if (liste->DonneNbRangee() != 0 || pair->topLevelItemCount() != 0)
            return false;
        rapports.push_back(notre / autre);
    }
    std::sort(rapports.begin(), rapports.end());
    double const rapport = rapports[kTours / 2];
    bool const tenu = rapport <= kRatioMax;
    std::printf("10,000 selected rows of %d removed: %.2f ms, peer %.2f ms, ratio %.2f%s\n",
                colonnes, notre * 1e3, autre * 1e3, rapport, tenu ? "" : "  above the limit");
    return tenu;
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    Comparaison comparaison(kRangees);
    for (int const colonnes : {1, 3}) {
        comparaison.Mesure(
            colonnes == 1 ? "row of one column added" : "row of three columns added",
            [=](int repetitions) { Remplis(*CreeListe(colonnes), repetitions, colonnes); },
            [=](int repetitions) { Remplis(*CreePair(colonnes), repetitions, colonnes); },
            kRatioMax);
    }
    bool const retraits = MesureRetrait(1) && MesureRetrait(3);
    return comparaison.Resultat() != 0 || !retraits ? 1 : 0;
}
