// navigation/BarreOngletsAccessible_p.h
#pragma once

#include <QAccessibleWidget>
#include <QList>

class DTabBarInterne;
class QAbstractButton;

/// How a screen reader sees a `DTabBarInterne`: its tabs, which tell which of them is selected,
/// then its buttons. Qt's own interface knows of neither selection nor close buttons.
class BarreOngletsAccessible : public QAccessibleWidget
{
public:
    explicit BarreOngletsAccessible(DTabBarInterne * barre);
    ~BarreOngletsAccessible() override;

    /// Makes these interfaces for all bars, until each call is matched by a `LibereFabrique`.
    static void PrendsFabrique();
    static void LibereFabrique();

    QAccessibleInterface * focusChild() const override;
    int childCount() const override;
    QAccessibleInterface * child(int index) const override;
    QAccessibleInterface * childAt(int x, int y) const override;
    int indexOfChild(QAccessibleInterface const * enfant) const override;
    QString text(QAccessible::Text nature) const override;

private:
    DTabBarInterne & PreteBarre() const;
    QList<QAbstractButton *> DonneBoutons() const;

    // Of the tabs, by index: Qt names a tab by its index in the events that it sends.
    mutable QList<QAccessible::Id> mesOnglets;
};
