// controls/DListViewClique.h
#pragma once

#include "FabrelGuiExport.h"

#include <QListWidget>
#include <QPersistentModelIndex>

/// A `QListWidget` whose items are clicked like buttons: the mouse selects nothing and drags
/// nothing, and any mouse button clicks any item, a disabled one included.
///
/// `pressed` and `itemPressed` tell a press on an item; `clicked` and `itemClicked` a release over
/// the item that was pressed, also when it has moved meanwhile. A double click is two clicks:
/// there is no `doubleClicked`. The keyboard works as in a `QListWidget`.
class FABRELGUI_EXPORT DListViewClique : public QListWidget
{
    Q_OBJECT

public:
    explicit DListViewClique(QWidget * parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;

private:
    QPersistentModelIndex monItemPresse;
};
