// controls/DBoutonSansFleche.h
#pragma once

#include "FabrelGuiExport.h"

#include <QToolButton>

/// A tool button that never shows that it has a menu, whatever its popup mode.
///
/// Only the painting differs from `QToolButton`: the menu opens as ever, and the part that opens it
/// in the mode `MenuButtonPopup` keeps its place and its room, unseen. The arrow of `setArrowType`
/// is the button's picture and stays.
class FABRELGUI_EXPORT DBoutonSansFleche : public QToolButton
{
    Q_OBJECT

public:
    explicit DBoutonSansFleche(QWidget * parent = nullptr);

protected:
    void paintEvent(QPaintEvent * evenement) override;
};
