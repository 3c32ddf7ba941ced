// editing/ComboJetonableAccessible_p.h
#pragma once

#include <QAccessibleWidget>

class DComboJetonable;

/// How a screen reader sees a `DComboJetonable`: a combo box whose value is the token or the free
/// text. Its list, which never opens, is not seen.
class ComboJetonableAccessible : public QAccessibleWidget
{
public:
    explicit ComboJetonableAccessible(DComboJetonable * combo);

    int childCount() const override;
    QAccessibleInterface * child(int index) const override;
    QAccessibleInterface * childAt(int x, int y) const override;
    int indexOfChild(QAccessibleInterface const * enfant) const override;
    QAccessibleInterface * focusChild() const override;
    QString text(QAccessible::Text nature) const override;
    QAccessible::State state() const override;

    /// To ask for the pop-up, and to click on the icon while that empties the field.
    QStringList actionNames() const override;
    QString localizedActionName(QString const & nom) const override;
    void doAction(QString const & nom) override;

private:
    DComboJetonable & PreteCombo() const;
    bool PeutVider() const;
};
