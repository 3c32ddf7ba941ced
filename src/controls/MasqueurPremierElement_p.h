// controls/MasqueurPremierElement_p.h
#pragma once

#include "controls/RechercheAuClavier_p.h"

#include <QObject>
#include <QPersistentModelIndex>
#include <QPointer>

class QAbstractItemModel;
class QAbstractItemView;
class QComboBox;
class QLineEdit;
class QSortFilterProxyModel;

/// Keeps the first row of a combo box out of its list and its completer for as long as the item
/// delegate says so, and finds the rows that remain.
///
/// The combo box is its parent. Views, models, line edits, completers and delegates may be replaced
/// without a word, so `Synchronise` is called before each use. It filters the events of the combo
/// box and of its line edit to be there in time, and takes none away.
class MasqueurPremierElement : public QObject
{
    Q_OBJECT

public:
    explicit MasqueurPremierElement(QComboBox * combo);

    bool EstActif() const;
    void Synchronise();

    /// No item of the list is current or selected, if it was the hidden one.
    void OublieCourantCachay();
    bool EstCachay(QModelIndex const & index) const;
    /// The first item while it is hidden; else, or when there is none, an invalid index.
    QModelIndex DonneCachay() const;

    /// The next row in steps of `pas`, 1 or -1, that is enabled, no separator and not hidden; -1
    /// when there is none. `depart` may be outside.
    int DonneLigneSuivante(int depart, int pas) const;
    /// The row that the typed letters lead to in the closed combo box, or -1.
    int ChercheLigne(QString const & lettres);
    /// The same in the list, as an index of the view's.
    QModelIndex ChercheDansLaListe(QString const & lettres);
    QModelIndex DonnePremierDeLaListe() const;

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    void PriseLignesChangees();
    void PriseTexteSaisi();
    void FiltreEnfant(QChildEvent const & evenement);
    void SuisModele();
    void SuisChamp();
    void CacheLigne();
    void ReveleLigne();
    void FiltreCompleteur();
    QModelIndex DonneIndex(int ligne) const;
    QModelIndexList DonneCandidats() const;
    QModelIndexList DonneCandidatsDeLaListe() const;

    QComboBox * monCombo;
    QPointer<QAbstractItemView> maVue;
    QPointer<QAbstractItemModel> monModele;
    QPointer<QLineEdit> monChamp;
    QPointer<QSortFilterProxyModel> monFiltre; // owned by the completer
    QPersistentModelIndex maLigne;             // hidden in the view
    RechercheAuClavier maRecherche;
};
