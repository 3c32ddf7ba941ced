// controls/DComboBox.h
#pragma once

#include "FabrelGuiExport.h"

#include <QComboBox>

/// A combo box whose separators span the list.
///
/// It filters the events of the view that it was made with; subclasses see them in `eventFilter`.
class FABRELGUI_EXPORT DComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit DComboBox(QWidget * parent = nullptr);
};
