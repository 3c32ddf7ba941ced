// lists/DFrameChevronnable.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>
#include <QList>
#include <QPointer>

#include <climits>
#include <list>

class DBoutonSansFleche;
class IWidgetChevronnable;
class LayoutHorizontalAvecChevron;
class QMenu;

/// A row of widgets that never wraps; those that have no room are offered in the menu of a chevron
/// button behind the last visible one.
///
/// The menu is rebuilt each time it opens and is stale in between. Indices start at 0 and count the
/// spacers, but not the chevron. The icon of the chevron, ":/Images/ExpandRightGroup_16x.svg", is
/// the application's; without it the button has the style's own.
class FABRELGUI_EXPORT DFrameChevronnable : public QFrame
{
    Q_OBJECT

public:
    explicit DFrameChevronnable(QWidget * parent);
    DFrameChevronnable();
    ~DFrameChevronnable() override;

    /// Adds a gap that takes the room that is left, shared with the other spacers of the row.
    void addSpacer();
    void addWidget(IWidgetChevronnable * widget, int etirement = 0);
    /// Puts `widget` before the item at `index`, at the end where there is none, a negative index
    /// included. It becomes a child of the frame; null is ignored. `etirement` has no effect.
    void insertWidget(int index, IWidgetChevronnable * widget, int etirement = 0);
    /// Rebuilds the chevron's menu from what is hidden now.
    void MetAJourMenu();
    std::list<QWidget *> PreteListeWidgets() const;
    /// Null for a spacer and out of range.
    QWidget * PreteWidgetA(int index) const;
    /// Takes `widget` out of the row; it stays a child of the frame, and where it is. Without
    /// effect for a widget that is not in the row.
    void RetireWidget(QWidget * widget);
    /// Deletes all widgets and spacers of the row.
    virtual void Vide();
    /// True when the widget had room at the last layout; false out of range.
    bool WidgetEstVisible(int index) const;
    void setSpacing(int espacement);

    /// The width of all widgets, without the spacing; no height.
    QSize sizeHint() const override;

Q_SIGNALS:
    /// 1 when nothing is hidden, else 0. Emitted at each insertion and resize, changed or not.
    void SignalChangeForme(int toutEstVisible);

protected:
    DBoutonSansFleche * PreteBoutonChevron() const;

    void resizeEvent(QResizeEvent * evenement) override;

private Q_SLOTS:
    void PriseAfficheMenu();
    void PriseMiseEnPlace();

private:
    void init();
    QList<IWidgetChevronnable *> DonneMasques(int combien = INT_MAX) const;
    void AjouteEntree(IWidgetChevronnable & widget);
    void JetteEntrees();

    bool monDebordement = false; // some widget is under the chevron
    DBoutonSansFleche * monBoutonChevron = nullptr;
    LayoutHorizontalAvecChevron * monLayout = nullptr;
    QPointer<QMenu> monMenu;
    QList<QPointer<QObject>> mesEntrees; // of the menu, which nobody else deletes
};
