// lists/ListeChoixFlottante.h
#pragma once

#include "FabrelGuiExport.h"

#include <QFrame>
#include <QList>
#include <QModelIndex>
#include <QPointer>

#include <memory>

class QStandardItem;
class QStandardItemModel;
class QStyledItemDelegate;
class QTreeView;
class InterfaceUtilisantListeChoixFlottante;
class VueDesChoix;

/// A small window of proposals that floats under a text control while the user types, and never
/// takes the focus from it.
///
/// It proposes nothing by itself: at each keystroke the host hands over the rows, already filtered,
/// and the list sizes itself to them and appears under the linked widget. Down, Up, Return and
/// Enter in the linked widget drive the list, Escape closes it, and the mouse moves the current
/// row. Without a current row Return takes the first that the automatic choice accepts, the Enter
/// of the keypad nothing. What the user chose comes as clones in `SignalSelectionListeChoix`; the
/// list does not hide itself then, the host does, with `CacheToi`.
///
/// The list hides when the linked widget hides or dies, so also when its window does or is
/// minimised, and waits for the next proposals. It follows a window that moves only as far as the
/// host emits `SignalParentDeplacay` of its interface.
class FABRELGUI_EXPORT ListeChoixFlottante : public QFrame
{
    Q_OBJECT

public:
    /// A hidden list without parent. With `preselectionne` the first row of any proposals starts
    /// selected. The list appears under `widgetLiay`, and is never wider than `widgetReference`
    /// unless its least width is. None of the pointers is owned, each may be null or die first.
    ListeChoixFlottante(InterfaceUtilisantListeChoixFlottante const * const interfaceHote,
                        bool preselectionne, QWidget * widgetLiay, QWidget * widgetReference);
    /// `widgetLiay` is the reference as well.
    ListeChoixFlottante(InterfaceUtilisantListeChoixFlottante const * const interfaceHote,
                        bool preselectionne, QWidget * widgetLiay);
    ~ListeChoixFlottante() override;

    /// Replaces the proposals, and shows the list under the linked widget; without rows the list
    /// hides. It takes the items, and deletes those of the call before. Without a reference widget
    /// it only deletes `rangees`.
    ///
    /// CAUTION: each cell adds the height of its row, so that two columns double the height.
    void ActualiseListeChoix(QList<QList<QStandardItem *>> rangees);
    /// Moves a visible list back under the linked widget.
    void ActualisePosListeChoix();
    /// Shows the list as it is, where it is. Only a shown list tells of clicks and keys.
    void AfficheToi();
    void CacheToi();
    /// True for the list itself and for its view, such as when the host is told of a lost focus.
    bool CeQObjectMAppartient(QObject const * const objet) const;
    /// Empties the list, which then paints nothing until `TermineActualisation`.
    void DebuteActualisation();
    void TermineActualisation();
    /// The items of the selected row, one for each column; none without a selection. They stay the
    /// list's, and die with the proposals.
    QList<QStandardItem *> DonneItemsSelectionnay() const;
    void EnleveSelection();
    /// Not owned; null is ignored. The frame takes 6 pixels from the widths that it asks for.
    void MetsDelegue(QStyledItemDelegate * delegue);
    /// Until the next proposals, which size the list to themselves again.
    void MetsHauteurListeFixe(int hauteur);
    /// With false, the choice that Return makes while no row is current passes over the row whose
    /// first item this is; the user can still choose it.
    void MetsItemSelectionnableParDefaut(QStandardItem * item, bool selectionnable) const;
    virtual void MetsLargeurMinimum(int largeur);
    /// In pixels, 0 at first; asked at each change of the proposals.
    virtual int DonneLargeurMinimum();
    /// From the next proposals on, the list stands under `widget`. Null leaves it at (0, 0).
    ///
    /// CAUTION: no event filter comes with it. The host installs the list on the new widget itself,
    /// and removes it from the former one, whose keys go on driving the list otherwise.
    void MetsWidgetLiay(QWidget * widget);
    bool PossedeWidgetLiay() const;
    QTreeView * PreteListeChoix();
    /// Chooses the first row that has `valeur` under `role` in some column, as if the user had;
    /// false and no signal when there is none.
    bool SelectionneItem(QVariant const & valeur, int role);
    /// Chooses the current row; without one, the first row that the automatic choice accepts.
    void SelectionneItemActivay();

    bool eventFilter(QObject * objet, QEvent * evenement) override;

Q_SIGNALS:
    /// Escape in the linked widget. The list hides; the key reaches the widget as well.
    void SignalFermetureListeChoix();
    /// The user chose a row: clones of its items, one for each column. The receiver may hide the
    /// list, replace its proposals or destroy it. A double click tells of its row twice, unless the
    /// list is hidden at the first.
    void SignalSelectionListeChoix(QList<std::shared_ptr<QStandardItem>> items);

public Q_SLOTS:
    /// Accepts the current row, as `SelectionneItemActivay` does, while the list is shown.
    void PriseEnFermeture();

protected:
    bool event(QEvent * evenement) override;

private Q_SLOTS:
    void PrisePropositionSelectionnay(QModelIndex index);

private:
    void Initialise();
    void InitialiseFenetre();
    void InitialiseVue();
    void PreparePourLeSysteme();
    void SurveilleMort(QWidget * widget);
    bool TraiteToucheDuWidget(QKeyEvent * touche);
    QStandardItemModel * PreteModele() const;
    void DetruitElementsDuModele(QStandardItemModel * modele) const;
    QList<QStandardItem *> DonneItems(int rangee) const;
    QPoint DonnePosListeChoix() const;
    void Selectionne(int rangee);

    VueDesChoix * maVue = nullptr;
    QPointer<QWidget> monWidgetLiay;
    QPointer<QWidget> monWidgetReference;
    int maLargeurMinimum = 0;
    QPointer<InterfaceUtilisantListeChoixFlottante const> monInterface;
    bool maPreselection;
    QList<QMetaObject::Connection> mesConnexions; // those of a shown list
    int mesEmissions = 0;                         // choices being told, one within the other
};
