// lists/WidgetListeEditable.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/ListeT.h"
#include "noyau/Paire.h"
#include "noyau/UniChaine.h"

#include <QFrame>
#include <QHeaderView>
#include <QItemSelection>
#include <QList>
#include <QModelIndex>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QSize>
#include <QVariant>

#include <list>
#include <memory>
#include <utility>
#include <vector>

class DTreeView;
class DorvelStandardItemModelPrive;
class DorvelTreeViewPrive;
class QAbstractItemDelegate;
class QHBoxLayout;
class QLineEdit;
class QStandardItem;
class QStandardItemModel;
class QToolButton;
class QValidator;

/// A framed list of rows that the user edits in place, with small buttons under it to add and to
/// remove rows.
///
/// An added row opens for editing at once, a row whose cell is left empty goes away, a validator
/// per column corrects what was typed, and a cell that is finished moves the edit to the next cell
/// of its row when that is empty. Rows are `QStandardItem`s, which the list owns. What follows an
/// edit runs once the editor has closed, and follows its cell when rows were sorted, moved or
/// removed in between.
///
/// A receiver of any of the signals may change the rows, empty the list or delete it; while
/// `QWidget::setEnabled` disables the list, it may not delete it.
///
/// The icons of the buttons are ":/Images/plus.png" and ":/Images/moins.png" of the application.
class FABRELGUI_EXPORT WidgetListeEditable : public QFrame
{
    Q_OBJECT

public:
    /// The values of one row: the cells by column, each a list of values with their roles.
    using Valeurs = sdd::ListeT<sdd::ListeT<sdd::Paire<QVariant, Qt::ItemDataRole>>>;

    /// `editable`: cells can be edited, and an added row opens its editor. `validateurs`, one per
    /// column, may hold null and may be shorter than the columns; the list deletes them.
    /// `insereApresSelection`: while exactly one row is selected, new rows come right after it.
    WidgetListeEditable(QWidget * parent, int nbColonnes, bool editable, bool avecBoutonAjouter,
                        QList<QValidator *> validateurs, bool insereApresSelection);
    ~WidgetListeEditable() override;

    // The new virtual functions stand in the order of the table of virtual functions.
private:
    /// A new item for a cell of a new row.
    virtual QStandardItem * CreeItem() const;

protected:
    /// What an empty editor of the column says; nothing here.
    virtual UniChaine DonnePlaceHolder(int colonne);
    /// Keeps the editor that has just opened, which is not owned and may be null.
    virtual void MetsEditeur(QLineEdit * editeur);

public:
    /// Sets the labels and, by column, the resize modes of the header, which is hidden exactly when
    /// `libelles` is empty; modes beyond the last column are ignored. With `trier` a click on the
    /// header sorts; without, it only turns the indicator.
    virtual void ActualiseEntete(sdd::ListeT<UniChaine> const & libelles,
                                 sdd::ListeT<QHeaderView::ResizeMode> const & modes, bool trier);

    bool eventFilter(QObject * objet, QEvent * evenement) override;

    /// Adds a row at the end, or after the selected row; returns the index of its first cell.
    /// Without values nothing is added, and the index is invalid.
    QModelIndex AjouteElement(Valeurs const & valeurs);
    /// Null when the list was built without it.
    QToolButton * DonneBoutonAjouter() const;
    QToolButton * DonneBoutonRetirer() const;
    /// The row of buttons under the list, to which a host adds its own.
    QHBoxLayout * DonneLayoutPied() const;
    /// Null out of range, and for a cell that was never filled.
    QStandardItem * DonneElement(int rangee, int colonne) const;
    QModelIndexList DonneElementsSelectionnays() const;
    /// Each selected row once, in the order of first appearance in the selection.
    std::list<int> DonneRangeesSelectionnay() const;
    QHeaderView * DonneEntete() const;
    int DonneLargeurColonne(int const & colonne) const;
    /// Row by row; null for a cell that was never filled.
    QList<QList<QStandardItem *>> DonneListeStandardItems() const;
    int DonneNbRangee() const;
    /// `deleguay` is not owned.
    void MetsDeleguaySurColonne(int const & colonne, QAbstractItemDelegate * deleguay);
    /// Sets the text of a cell as an editor does: an empty text on a filled cell is refused, and
    /// the end of an edit follows. False when refused, or without such a cell.
    bool MetsElement(QModelIndex const & index, QVariant const & valeur);
    /// Takes `entete` as the header unless it is null, then does as `ActualiseEntete`. Without
    /// `entete` the header is hidden whatever the labels.
    void MetsEntete(QHeaderView * entete, sdd::ListeT<UniChaine> libelles,
                    sdd::ListeT<QHeaderView::ResizeMode> const & modes, bool trier);
    void MetsHauteurListeFixe(int hauteur);
    /// Ignored beyond the last column.
    void MetsLargeurColonneFixe(int colonne, int largeur);
    /// Fixes the height of the view for `n` rows, from the rows and the header as they are now: to
    /// be called once the list has a row, and is shown or laid out. Nothing happens without a row,
    /// or in a list without the add button, whose height is that of one row here.
    void MetsNombreDeRangeesVisibles(int const & n);
    /// Enables or disables the list; the selection goes.
    void MetsUtilisateurPeutChangerValeur(bool peut);
    /// The rows of the add button begin with the `Qt::DisplayRole` values of these cells.
    void MetsValeursParDefaut(Valeurs const & valeurs);
    /// Ignored when there is no such cell.
    void Selectionne(int rangee, int colonne, QFlags<QItemSelectionModel::SelectionFlag> commande);
    void ToggleAffichageDeColonne(int const & colonne, bool const & cacher);
    /// Moves the sort indicator, which sorts where sorting is on. Ignored without such a column.
    void Trier(int colonne, Qt::SortOrder ordre);
    void VideSelection();

Q_SIGNALS:
    /// The text in the open editor has changed.
    void SignalEdition(QString texte);
    /// For hosts and subclasses; never emitted here.
    void SignalFermetureEditeur();
    /// Rows were removed or moved, or the text of a cell has really changed. Once per removed row,
    /// after `SignalRangeeSupprimay` where that tells of the row.
    void SignalElementsModifiay();
    /// A single cell has changed, or Escape was released in the view. `ancienTexte` is the former
    /// text, or empty for a change. What follows the edit comes later, from the event loop.
    void SignalEditionTerminay(QModelIndex element, QString ancienTexte);
    void SignalSelectionChangay(QItemSelection selectionnay, QItemSelection deselectionnay);
    /// A row has left the list. Its items live until the receivers have returned, and stay the
    /// list's; null for a cell that was never filled.
    void SignalRangeeSupprimay(QList<QStandardItem *> items, int rangee = -1);
    /// The remove button, or Delete or Backspace in the view. The selected rows are gone already
    /// for who has connected to it.
    void SignalSuppression();
    /// A right click on a row, with the global position.
    void SignalMenuContextuel(QList<QStandardItem *> items, QPoint position);
    /// The add button has added a row.
    void SignalAjout();

public Q_SLOTS:
    /// Adds a row, selects it and opens its editor.
    void PriseBoutonAjouter();
    void PriseElementModifiay();
    /// The end of an edit: validates the cell, removes its row if the cell is empty, and goes on to
    /// the next cell of the row.
    void PriseElementModifiay(QModelIndex element, QString ancienTexte);
    void PriseElementModifiay(QModelIndex debut, QModelIndex fin);
    void PriseActualiseEtatBoutonSupprimer();
    /// Moves the first selected row by one place. Silent at the ends of the list.
    void PriseBougeElementSelectionner(bool estVersLeHaut);

protected:
    class Emission;

    /// Takes the items of one row, and inserts it at `rangee` or after the selected row; returns
    /// the index of its first cell. Without items, or for a place that does not exist, the items
    /// are deleted and the index is invalid.
    QModelIndex AjouteElement(QList<QStandardItem *> items, int rangee);
    /// Removes a row and deletes its items; an editor open in it is dropped. With `signaler`,
    /// `SignalRangeeSupprimay` tells of it first. False out of range.
    bool RetireRangee(int rangee, bool signaler);
    /// Removes all rows from the last to the first, but those that a receiver adds meanwhile.
    void Vide(bool signaler);

    DTreeView * PreteVue() const;
    QStandardItemModel * PreteModele() const;
    /// The editor open at the moment, or null.
    QLineEdit * PreteEditeur() const;
    bool DonneEditable() const;
    /// Whether the add button adds at the end, as at first, or at the top.
    bool DonneAjouteEnFin() const;
    void MetsAjouteEnFin(bool enFin);
    bool DonneInsereApresSelection() const;
    /// The cells that the rows of the add button are copied from.
    QList<QStandardItem *> DonneItemsParDefaut() const;
    /// The same as `MetsValeursParDefaut` with items of the subclass, which are not owned.
    void MetsItemsParDefaut(QList<QStandardItem *> items);
    /// 11 by 11 at first; kept for subclasses.
    QSize DonneTailleIcone() const;
    void MetsTailleIcone(QSize const & taille);

private Q_SLOTS:
    void PriseMenuContextuel(QPoint const & position);
    void PriseSelectionChangay(QItemSelection const & selectionnay,
                               QItemSelection const & deselectionnay);
    void PriseEditionTerminay(QModelIndex const & element, QString const & ancienTexte);
    void PriseFinAttendue();
    void PriseRangeesRetirees();
    void PriseTexteEditay(QString const & texte);
    void PriseBoutonRetirer();
    void PriseSuppression();

private:
    /// The end of an edit that the event loop has still to bring.
    struct FinAttendue
    {
        QPersistentModelIndex cellule;
        QString ancienTexte;
    };

    void Initialise(int nbColonnes, bool avecBoutonAjouter);
    void CreeVue(int nbColonnes);
    void CreePied(bool avecBoutonAjouter);
    QToolButton * CreeBouton(QWidget * pied, QString const & icone, QString const & nom);
    void PoseEntete();
    void Branche();
    void CoupeLesLiens();
    void DetacheLesEnfants();

    void InitialiseEditeur();
    void OuvreEditeur(QModelIndex const & index);
    bool UnEditeurALeFocus() const;
    bool CorrigeTexte(QStandardItem & item, int colonne);
    void PasseALaSuivante(QModelIndex const & element);
    bool TraiteTouche(int touche);

    QList<QStandardItem *> CreeRangee() const;
    QList<QStandardItem *> DonneItems(int rangee) const;
    QList<std::pair<std::shared_ptr<FinAttendue>, int>> DonneFinsDeRangee(int rangee) const;
    int DonneCible(int rangee, bool estVersLeHaut) const;
    int DeselectionneRangee(int rangee);
    void DeplaceRangee(int rangee, int cible);
    void SelectionneRangee(int rangee);

    QToolButton * monBoutonAjouter = nullptr;
    QToolButton * monBoutonRetirer = nullptr;
    QHBoxLayout * monLayoutPied = nullptr;
    QList<QPointer<QValidator>> mesValidateurs;
    QPointer<QLineEdit> monEditeur;
    DorvelTreeViewPrive * maVue = nullptr;
    DorvelStandardItemModelPrive * monModele = nullptr;
    bool monAjoutEnFin = true;
    bool monInsertionApresSelection;
    QList<QStandardItem *> mesItemsParDefaut;
    bool monEditable;
    QSize maTailleIcone{11, 11};                                  // logical pixels
    std::vector<std::unique_ptr<QStandardItem>> mesItemsPossedes; // of `mesItemsParDefaut`
    QList<std::shared_ptr<FinAttendue>> mesFinsAttendues;
    QPersistentModelIndex maCelluleEditee; // the last whose editor was opened from here
    int mesEmissions = 0;                  // signals being told, one within the other
    bool monRetraitEstSignalay = false;    // the row that is leaving is told of once it has left
};
