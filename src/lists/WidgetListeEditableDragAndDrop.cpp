// lists/WidgetListeEditableDragAndDrop.cpp
#include "lists/WidgetListeEditableDragAndDrop.h"

#include "controls/DTreeView.h"
#include "lists/DorvelStyleDropLigneComplete_p.h"

#include <QCoreApplication>
#include <QDrag>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStandardItemModel>

#include <algorithm>
#include <utility>

namespace {

// How many of the sorted rows stand above `rangee`.
int ComptePrecedentes(std::vector<int> const & rangees, int rangee)
{
    auto const premiere = std::lower_bound(rangees.begin(), rangees.end(), rangee);
    return static_cast<int>(premiere - rangees.begin());
}

} // namespace

WidgetListeEditableDragAndDrop::WidgetListeEditableDragAndDrop(QWidget * parent, int nbColonnes,
                                                               bool editable,
                                                               bool avecBoutonAjouter,
                                                               QList<QValidator *> validateurs,
                                                               bool insereApresSelection)
    : WidgetListeEditable(parent, nbColonnes, editable, avecBoutonAjouter, std::move(validateurs),
                          insereApresSelection)
{
    DTreeView & vue = *PreteVue();
    vue.setDragDropMode(QAbstractItemView::InternalMove);
    vue.setDefaultDropAction(Qt::MoveAction);
    vue.setDragDropOverwriteMode(false);
    vue.setDropIndicatorShown(true);
    vue.setStyle(DorvelStyleDropLigneComplete::Prete());
    vue.viewport()->installEventFilter(this);
}

// The children die later than what the end of a drag comes to.
WidgetListeEditableDragAndDrop::~WidgetListeEditableDragAndDrop()
{
    for (QDrag const * const glissement : PreteVue()->findChildren<QDrag *>())
        glissement->disconnect(this);
}

bool WidgetListeEditableDragAndDrop::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == PreteVue()->viewport())
        return FiltreSurface(evenement);
    if (objet == PreteVue() && FiltreVue(evenement))
        return true;
    return WidgetListeEditable::eventFilter(objet, evenement);
}

void WidgetListeEditableDragAndDrop::MetsEditeur(QLineEdit * editeur)
{
    monGlissement = false; // its Escape is its own
    WidgetListeEditable::MetsEditeur(editeur);
}

void WidgetListeEditableDragAndDrop::changeEvent(QEvent * evenement)
{
    WidgetListeEditable::changeEvent(evenement);
    // A new style of the application polishes what has no style of its own, and tells it alone.
    if (evenement->type() == QEvent::StyleChange)
        PreteVue()->setStyle(DorvelStyleDropLigneComplete::Prete());
}

bool WidgetListeEditableDragAndDrop::FiltreVue(QEvent * evenement)
{
    if (evenement->type() == QEvent::KeyPress) {
        monGlissement = false;
        return TraiteTouche(*static_cast<QKeyEvent *>(evenement));
    }
    if (evenement->type() != QEvent::KeyRelease)
        return false;
    // Without its press, which ended the drag, the release would end an edit, and remove a selected
    // row whose first cell is empty.
    return static_cast<QKeyEvent *>(evenement)->key() == Qt::Key_Escape &&
           std::exchange(monGlissement, false);
}

bool WidgetListeEditableDragAndDrop::FiltreSurface(QEvent * evenement)
{
    switch (evenement->type()) {
    case QEvent::MouseButtonPress:
        monGlissement = false;
        return false;
    case QEvent::DragEnter:
        monGlissement = EstDeLaListe(*static_cast<QDropEvent *>(evenement));
        return false;
    case QEvent::DragMove:
        return PlaceEntreLesRangees(*static_cast<QDragMoveEvent *>(evenement));
    case QEvent::Drop:
        return Depose(*static_cast<QDropEvent *>(evenement));
    default:
        return false;
    }
}

bool WidgetListeEditableDragAndDrop::TraiteTouche(QKeyEvent const & touche)
{
    bool const estVersLeHaut = touche.key() == Qt::Key_Up;
    Qt::KeyboardModifiers const modificateurs = touche.modifiers() & ~Qt::KeypadModifier;
    if ((!estVersLeHaut && touche.key() != Qt::Key_Down) || modificateurs != Qt::AltModifier)
        return false;
    PriseBougeElementSelectionner(estVersLeHaut);
    return true;
}

bool WidgetListeEditableDragAndDrop::EstDeLaListe(QDropEvent const & evenement) const
{
    return evenement.source() == PreteVue() && evenement.possibleActions().testFlag(Qt::MoveAction);
}

// Cells take drops unless they are told not to, one that was never filled in any case. The view
// would mark such a cell as the place of the drop, away from its edges.
bool WidgetListeEditableDragAndDrop::PlaceEntreLesRangees(QDragMoveEvent & evenement)
{
    DTreeView const & vue = *PreteVue();
    QPoint const position = evenement.position().toPoint();
    QModelIndex const index = vue.indexAt(position);
    if (monRenvoi || !EstDeLaListe(evenement) || !index.flags().testFlag(Qt::ItemIsDropEnabled))
        return false;
    QRect const rect = vue.visualRect(index);
    int const bord = position.y() < rect.center().y() ? rect.top() : rect.bottom();
    QDragMoveEvent corrigay(QPoint(position.x(), bord), evenement.possibleActions(),
                            evenement.mimeData(), evenement.buttons(), evenement.modifiers());
    corrigay.setDropAction(evenement.dropAction());
    QScopedValueRollback const garde(monRenvoi, true);
    QCoreApplication::sendEvent(vue.viewport(), &corrigay);
    evenement.setDropAction(corrigay.dropAction());
    evenement.setAccepted(corrigay.isAccepted());
    return true;
}

// The view would put copies of the items there, made from their mime data, and remove the rows at
// the end of the drag. What cannot be written as mime data, and the classes of the items, would be
// lost. Here the rows move themselves, once the view has done with the drag: who hears of it may
// delete the list, and the view with it.
bool WidgetListeEditableDragAndDrop::Depose(QDropEvent & evenement)
{
    if (!EstDeLaListe(evenement))
        return false; // for the view to refuse
    monGlissement = false;
    std::vector<int> const rangees = DonneRangeesDeplacables();
    QPoint const position = evenement.position().toPoint();
    QModelIndex const index = PreteVue()->indexAt(position);
    auto const glissements = PreteVue()->findChildren<QDrag *>(Qt::FindDirectChildrenOnly);
    if (glissements.isEmpty() || rangees.empty() ||
        std::binary_search(rangees.begin(), rangees.end(), index.row())) {
        evenement.ignore();
        return true;
    }
    int cible = DonneNbRangee();
    if (index.isValid()) {
        int const milieu = PreteVue()->visualRect(index).center().y();
        cible = position.y() < milieu ? index.row() : index.row() + 1;
    }
    RetiensDepot(rangees, cible);
    connect(glissements.last(), &QObject::destroyed, this,
            &WidgetListeEditableDragAndDrop::PriseFinDuGlissement, Qt::UniqueConnection);
    // Tells the end of the drag that nothing is left to be removed.
    evenement.setDropAction(Qt::TargetMoveAction);
    evenement.accept();
    return true;
}

void WidgetListeEditableDragAndDrop::RetiensDepot(std::vector<int> const & rangees, int cible)
{
    mesRangeesDeposees.clear();
    for (int const rangee : rangees)
        mesRangeesDeposees.append(PreteModele()->index(rangee, 0));
    maCible = PreteModele()->index(cible, 0);
    monDepotEstALaFin = !maCible.isValid();
}

void WidgetListeEditableDragAndDrop::PriseFinDuGlissement()
{
    std::vector<int> rangees;
    for (QPersistentModelIndex const & rangee : std::exchange(mesRangeesDeposees, {})) {
        if (rangee.isValid())
            rangees.push_back(rangee.row());
    }
    std::sort(rangees.begin(), rangees.end());
    // The row in front of which they were to go may have gone meanwhile.
    if (!rangees.empty() && (maCible.isValid() || monDepotEstALaFin))
        DeplaceRangees(rangees, monDepotEstALaFin ? DonneNbRangee() : maCible.row());
}

// From top to bottom.
std::vector<int> WidgetListeEditableDragAndDrop::DonneRangeesDeplacables() const
{
    std::vector<int> rangees;
    for (int const rangee : DonneRangeesSelectionnay()) {
        if (PreteModele()->index(rangee, 0).flags().testFlag(Qt::ItemIsDragEnabled))
            rangees.push_back(rangee);
    }
    std::sort(rangees.begin(), rangees.end());
    return rangees;
}

// `rangees` are sorted; `cible` is the row in front of which they go, the row count for the end.
void WidgetListeEditableDragAndDrop::DeplaceRangees(std::vector<int> const & rangees, int cible)
{
    auto const nombre = static_cast<int>(rangees.size());
    int const debut = cible - ComptePrecedentes(rangees, cible);
    if (rangees.front() == debut && rangees.back() == debut + nombre - 1)
        return; // where they are
    QStandardItemModel const & modele = *PreteModele();
    QItemSelectionModel & selection = *PreteVue()->selectionModel();
    QModelIndex const courant = selection.currentIndex();
    int const decalage = ComptePrecedentes(rangees, courant.row()) % nombre;
    int const colonne = std::max(courant.column(), 0);
    {
        // The rows do not leave the list: its hosts hear of the move, once it is done.
        QSignalBlocker const silence(this);
        Transporte(rangees, debut);
        selection.setCurrentIndex(modele.index(debut + decalage, colonne),
                                  QItemSelectionModel::NoUpdate);
    }
    QPointer<WidgetListeEditableDragAndDrop> const moi = this;
    QItemSelection const lignes(modele.index(debut, 0), modele.index(debut + nombre - 1, 0));
    selection.select(lignes, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (moi)
        PriseElementModifiay();
}

void WidgetListeEditableDragAndDrop::Transporte(std::vector<int> const & rangees, int debut)
{
    QStandardItemModel & modele = *PreteModele();
    QList<QList<QStandardItem *>> lignes;
    for (auto rangee = rangees.rbegin(); rangee != rangees.rend(); ++rangee)
        lignes.append(modele.takeRow(*rangee));
    for (auto ligne = lignes.crbegin(); ligne != lignes.crend(); ++ligne)
        modele.insertRow(debut++, *ligne);
}
