// lists/DorvelTreeViewPrive.cpp
#include "lists/DorvelTreeViewPrive_p.h"

#include <QDropEvent>
#include <QPointer>
#include <QSignalBlocker>

#include <algorithm>

DorvelTreeViewPrive::DorvelTreeViewPrive(QWidget * parent)
    : DTreeView(parent)
{
}

void DorvelTreeViewPrive::FermeEditeurs(int rangee, bool valider)
{
    QPointer<DorvelTreeViewPrive> const moi = this;
    QList<QWidget *> const ouverts = DonneEditeurs(rangee);
    // Guarded before the first of them closes, which another may not survive.
    QList<QPointer<QWidget>> const editeurs(ouverts.cbegin(), ouverts.cend());
    for (QPointer<QWidget> const & editeur : editeurs) {
        if (moi && editeur && valider)
            commitData(editeur);
        // Who hears of the edit may have removed the row, and its editors with it.
        if (moi && editeur && DonneEditeurs(rangee).contains(editeur))
            closeEditor(editeur, QAbstractItemDelegate::NoHint);
    }
}

void DorvelTreeViewPrive::dropEvent(QDropEvent * evenement)
{
    if (evenement->source() != this) {
        DTreeView::dropEvent(evenement);
        return;
    }
    int rangee = indexAt(evenement->position().toPoint()).row();
    if (dropIndicatorPosition() == BelowItem)
        ++rangee;
    // The cells of the new row come one by one, each of which looks like the end of an edit.
    QSignalBlocker const silence(parentWidget());
    model()->dropMimeData(evenement->mimeData(), evenement->dropAction(), rangee, 0, QModelIndex());
    evenement->setDropAction(evenement->proposedAction());
    evenement->accept();
    // As the base leaves a drop.
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
}

// The base would let the focus go anywhere with the editor, and the selection would commit what is
// typed in a row that is leaving.
void DorvelTreeViewPrive::rowsAboutToBeRemoved(QModelIndex const & parent, int premiere,
                                               int derniere)
{
    // Mostly none is open: no need to ask for each cell.
    QObjectList const & enfants = viewport()->children();
    bool const editeursPossibles =
        std::any_of(enfants.begin(), enfants.end(), [](QObject * o) { return o->isWidgetType(); });
    for (int rangee = premiere; editeursPossibles && rangee <= derniere && !parent.isValid();
         ++rangee)
        FermeEditeurs(rangee, false);
    DTreeView::rowsAboutToBeRemoved(parent, premiere, derniere);
}

QList<QWidget *> DorvelTreeViewPrive::DonneEditeurs(int rangee) const
{
    QList<QWidget *> editeurs;
    for (int colonne = 0; colonne < model()->columnCount(); ++colonne) {
        QWidget * const editeur = indexWidget(model()->index(rangee, colonne));
        if (editeur != nullptr)
            editeurs.append(editeur);
    }
    return editeurs;
}
