// lists/DorvelTreeViewPrive_p.h
#pragma once

#include "controls/DTreeView.h"

/// The view of an editable list: a list of rows, in which what is dropped becomes rows too.
class DorvelTreeViewPrive : public DTreeView
{
    Q_OBJECT

public:
    explicit DorvelTreeViewPrive(QWidget * parent);

    /// Closes the editors of a row, with what was typed in them or without it.
    void FermeEditeurs(int rangee, bool valider);

protected:
    /// A row of this view is put between rows of the root, never into one.
    void dropEvent(QDropEvent * evenement) override;
    void rowsAboutToBeRemoved(QModelIndex const & parent, int premiere, int derniere) override;

private:
    QList<QWidget *> DonneEditeurs(int rangee) const;
};
