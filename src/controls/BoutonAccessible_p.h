// controls/BoutonAccessible_p.h
#pragma once

#include <QAccessibleWidget>

class DBoutonAbstrait;
class QAbstractButton;

/// How a screen reader sees a `DCheckBox` or a `DRadioButton`: a single control.
///
/// The indicator, which has the focus, has such an interface too. It answers as the control does,
/// so that a reader that follows the focus reads the label.
class BoutonAccessible : public QAccessibleWidget
{
public:
    explicit BoutonAccessible(QWidget * widget);

    /// Makes these interfaces for all controls, until each call is matched by a `LibereFabrique`.
    static void PrendsFabrique();
    static void LibereFabrique();

    /// Tell readers of a change of the control; Qt itself tells them of one of the indicator.
    static void AnnonceCochage(DBoutonAbstrait & controle);
    static void AnnonceActivation(DBoutonAbstrait & controle);

    QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
    relations(QAccessible::Relation cherchees = QAccessible::AllRelations) const override;
    /// That of the control for the indicator too: no button stands within a button.
    QAccessibleInterface * parent() const override;
    int childCount() const override;
    QAccessibleInterface * child(int index) const override;
    int indexOfChild(QAccessibleInterface const * enfant) const override;
    QAccessible::Role role() const override;
    QString text(QAccessible::Text nature) const override;
    QAccessible::State state() const override;

    QStringList actionNames() const override;
    void doAction(QString const & nom) override;

private:
    QAccessibleInterface * PreteInterfaceDuControle() const;
    DBoutonAbstrait * PreteControle() const;
    QAbstractButton * PreteBouton() const;
};
