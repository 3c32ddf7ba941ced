// controls/DTableView.h
#pragma once

#include "FabrelGuiExport.h"

#include <QTableView>

/// A `QTableView` in which a double click on a check box is two clicks, and so changes it twice.
class FABRELGUI_EXPORT DTableView : public QTableView
{
    Q_OBJECT

public:
    explicit DTableView(QWidget * parent = nullptr);

protected:
    /// On an item with a check state, whatever the edit triggers: sends the viewport a press of
    /// the same button at the same place, lets the base handle the double click, and has the
    /// release of the left button that follows count as a click. The item thus tells `clicked` a
    /// second time, and `pressed` too when the double click is beside the box. An editor that the
    /// double click opens beside the box opens all the same; on the box none does.
    ///
    /// The second press selects like the first: with Ctrl, or in multi selection, the item, or the
    /// row where rows are selected, is toggled twice.
    void mouseDoubleClickEvent(QMouseEvent * evenement) override;
};
