// controls/DComboBox.h
#pragma once

#include "FabrelGuiExport.h"

#include <QComboBox>

class QAbstractItemView;

/// A combo box whose separators span the list.
///
/// It filters the events of its view; subclasses see them in `eventFilter`.
class FABRELGUI_EXPORT DComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DComboBox(QWidget * parent = nullptr);

    /// Shows the list in `vue`, which the combo box takes, and deletes the view that it had. The
    /// item delegate stays, in place of the one that `vue` has; null, or the view that is there,
    /// does nothing. By a pointer to `QComboBox` the delegate and the filter are lost.
    void setView(QAbstractItemView * vue);
};
