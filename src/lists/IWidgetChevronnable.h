// lists/IWidgetChevronnable.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>

class QAction;
class QMenu;

/// The base of the widgets of a `DFrameChevronnable`: each knows how it stands in the chevron's
/// menu while the row has no room for it, as an action or as a sub-menu.
class FABRELGUI_EXPORT IWidgetChevronnable : public QFrame
{
    Q_OBJECT

public:
    explicit IWidgetChevronnable(QWidget * parent = nullptr);

    /// The sub-menu that stands for the widget, asked for each time the menu opens unless it stands
    /// as an action. An override gives a new one each time; the frame deletes it when the menu is
    /// rebuilt, unless it has a parent. Null leaves the widget out. Here a new empty menu.
    virtual QMenu * DonneQMenu();
    /// The action that stands for the widget where `EstUneAction` is true; as for `DonneQMenu`.
    virtual QAction * DonneQAction();
    /// What the widget is called while it is under the chevron.
    virtual QString DonneTitre() = 0;
    /// The size with which the frame works out whether the widget has room; here `sizeHint`.
    virtual QSize DonneTailleMin();
    /// The size for which the frame asks while it hides something; here `sizeHint`.
    virtual QSize DonneTailleMax();
    /// True for an action, false for a sub-menu; here false.
    virtual bool EstUneAction();

protected Q_SLOTS:
    /// Does what the widget does when the user chooses it.
    virtual void PriseExecuteAction() = 0;
};
