// lists/WidgetListeEditableAcces.cpp
//
// What the editable list tells and takes, one call each.
#include "lists/WidgetListeEditable.h"

#include "lists/DorvelStandardItemModelPrive_p.h"
#include "lists/DorvelTreeViewPrive_p.h"

#include <QLineEdit>
#include <QToolButton>

#include <utility>

namespace {

// Logical pixels: by how much the header overlaps the rows that are counted.
constexpr int kRecouvrementEntete = 6;

// Whether some cell of the row counts as selected: disabled ones and those that cannot be selected
// do not, even where they are in the range.
bool EstSelectionnable(QAbstractItemModel const & modele, QItemSelectionRange const & plage,
                       int rangee)
{
    constexpr Qt::ItemFlags kRequis = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    for (int colonne = plage.left(); colonne <= plage.right(); ++colonne) {
        if ((modele.index(rangee, colonne, plage.parent()).flags() & kRequis) == kRequis)
            return true;
    }
    return false;
}

} // namespace

UniChaine WidgetListeEditable::DonnePlaceHolder(int)
{
    return UniChaine();
}

void WidgetListeEditable::MetsEditeur(QLineEdit * editeur)
{
    monEditeur = editeur;
}

void WidgetListeEditable::ActualiseEntete(sdd::ListeT<UniChaine> const & libelles,
                                          sdd::ListeT<QHeaderView::ResizeMode> const & modes,
                                          bool trier)
{
    QStringList textes;
    for (UniChaine const & libelle : libelles)
        textes.append(libelle);
    monModele->setHorizontalHeaderLabels(textes);
    int colonne = 0;
    for (QHeaderView::ResizeMode const mode : modes) {
        if (colonne < DonneEntete()->count())
            DonneEntete()->setSectionResizeMode(colonne, mode);
        ++colonne;
    }
    DonneEntete()->setHidden(libelles.EstVide());
    maVue->setSortingEnabled(trier);
    PoseEntete();
}

QToolButton * WidgetListeEditable::DonneBoutonAjouter() const
{
    return monBoutonAjouter;
}

QToolButton * WidgetListeEditable::DonneBoutonRetirer() const
{
    return monBoutonRetirer;
}

QHBoxLayout * WidgetListeEditable::DonneLayoutPied() const
{
    return monLayoutPied;
}

QStandardItem * WidgetListeEditable::DonneElement(int rangee, int colonne) const
{
    return monModele->item(rangee, colonne);
}

QModelIndexList WidgetListeEditable::DonneElementsSelectionnays() const
{
    return maVue->selectionModel()->selectedIndexes();
}

// By the ranges, as `selectedIndexes` goes through them: its list of all cells would be most of the
// work.
std::list<int> WidgetListeEditable::DonneRangeesSelectionnay() const
{
    std::list<int> rangees;
    std::vector<char> vues(static_cast<std::size_t>(DonneNbRangee()), 0);
    for (QItemSelectionRange const & plage : maVue->selectionModel()->selection()) {
        if (plage.parent().isValid()) // what a host has put under a cell is no row of the list
            continue;
        for (int rangee = plage.top(); rangee <= plage.bottom(); ++rangee) {
            char & vue = vues[static_cast<std::size_t>(rangee)];
            if (vue == 0 && EstSelectionnable(*monModele, plage, rangee)) {
                rangees.push_back(rangee);
                vue = 1;
            }
        }
    }
    return rangees;
}

QHeaderView * WidgetListeEditable::DonneEntete() const
{
    return maVue->header();
}

int WidgetListeEditable::DonneLargeurColonne(int const & colonne) const
{
    return maVue->columnWidth(colonne);
}

QList<QList<QStandardItem *>> WidgetListeEditable::DonneListeStandardItems() const
{
    QList<QList<QStandardItem *>> rangees;
    rangees.reserve(DonneNbRangee());
    for (int rangee = 0; rangee < DonneNbRangee(); ++rangee)
        rangees.append(DonneItems(rangee));
    return rangees;
}

QList<QStandardItem *> WidgetListeEditable::DonneItems(int rangee) const
{
    QList<QStandardItem *> items;
    items.reserve(monModele->columnCount());
    for (int colonne = 0; colonne < monModele->columnCount(); ++colonne)
        items.append(monModele->item(rangee, colonne));
    return items;
}

int WidgetListeEditable::DonneNbRangee() const
{
    return monModele->rowCount();
}

void WidgetListeEditable::MetsDeleguaySurColonne(int const & colonne,
                                                 QAbstractItemDelegate * deleguay)
{
    maVue->setItemDelegateForColumn(colonne, deleguay);
}

bool WidgetListeEditable::MetsElement(QModelIndex const & index, QVariant const & valeur)
{
    return index.model() == monModele && monModele->setData(index, valeur, Qt::EditRole);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void WidgetListeEditable::MetsEntete(QHeaderView * entete, sdd::ListeT<UniChaine> libelles,
                                     sdd::ListeT<QHeaderView::ResizeMode> const & modes, bool trier)
{
    if (entete != nullptr)
        maVue->setHeader(entete);
    ActualiseEntete(libelles, modes, trier);
    if (entete == nullptr)
        DonneEntete()->hide();
}

void WidgetListeEditable::MetsHauteurListeFixe(int hauteur)
{
    maVue->setFixedHeight(hauteur);
}

void WidgetListeEditable::MetsLargeurColonneFixe(int colonne, int largeur)
{
    if (colonne >= 0 && colonne < monModele->columnCount())
        maVue->setColumnWidth(colonne, largeur);
}

void WidgetListeEditable::MetsNombreDeRangeesVisibles(int const & n)
{
    int hauteurRangee = 0;
    for (int colonne = 0; colonne < monModele->columnCount() && hauteurRangee == 0; ++colonne)
        hauteurRangee = maVue->visualRect(monModele->index(0, colonne)).height();
    if (monBoutonAjouter == nullptr || hauteurRangee == 0)
        return;
    // Deliberate: the button stands for one of the rows.
    int hauteur = (n - 1) * hauteurRangee + monBoutonAjouter->height();
    if (!DonneEntete()->isHidden())
        hauteur += DonneEntete()->height() - kRecouvrementEntete;
    maVue->setFixedHeight(hauteur);
}

void WidgetListeEditable::MetsUtilisateurPeutChangerValeur(bool peut)
{
    // Before Qt walks through the children: who hears of it may delete the list.
    QPointer<WidgetListeEditable> const moi = this;
    if (!peut)
        VideSelection();
    if (moi)
        setEnabled(peut);
}

void WidgetListeEditable::Selectionne(int rangee, int colonne,
                                      QFlags<QItemSelectionModel::SelectionFlag> commande)
{
    QModelIndex const index = monModele->index(rangee, colonne);
    if (index.isValid())
        maVue->selectionModel()->select(index, commande);
}

void WidgetListeEditable::ToggleAffichageDeColonne(int const & colonne, bool const & cacher)
{
    if (colonne >= 0 && colonne < monModele->columnCount())
        maVue->setColumnHidden(colonne, cacher);
}

void WidgetListeEditable::Trier(int colonne, Qt::SortOrder ordre)
{
    if (colonne >= 0 && colonne < monModele->columnCount())
        DonneEntete()->setSortIndicator(colonne, ordre);
}

void WidgetListeEditable::VideSelection()
{
    maVue->selectionModel()->clearSelection();
}

DTreeView * WidgetListeEditable::PreteVue() const
{
    return maVue;
}

QStandardItemModel * WidgetListeEditable::PreteModele() const
{
    return monModele;
}

QLineEdit * WidgetListeEditable::PreteEditeur() const
{
    return monEditeur;
}

bool WidgetListeEditable::DonneEditable() const
{
    return monEditable;
}

bool WidgetListeEditable::DonneAjouteEnFin() const
{
    return monAjoutEnFin;
}

void WidgetListeEditable::MetsAjouteEnFin(bool enFin)
{
    monAjoutEnFin = enFin;
}

bool WidgetListeEditable::DonneInsereApresSelection() const
{
    return monInsertionApresSelection;
}

QList<QStandardItem *> WidgetListeEditable::DonneItemsParDefaut() const
{
    return mesItemsParDefaut;
}

void WidgetListeEditable::MetsItemsParDefaut(QList<QStandardItem *> items)
{
    mesItemsParDefaut = std::move(items);
    mesItemsPossedes.clear();
}

QSize WidgetListeEditable::DonneTailleIcone() const
{
    return maTailleIcone;
}

void WidgetListeEditable::MetsTailleIcone(QSize const & taille)
{
    maTailleIcone = taille;
}
