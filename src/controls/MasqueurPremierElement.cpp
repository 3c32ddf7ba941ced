// controls/MasqueurPremierElement.cpp
#include "controls/MasqueurPremierElement_p.h"

#include "controls/DComboBoxDeleguay_p.h"

#include <QAbstractItemView>
#include <QChildEvent>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTreeView>

namespace {

bool LigneEstCachee(QAbstractItemView const & vue, int ligne, QModelIndex const & parent)
{
    if (auto const * const liste = qobject_cast<QListView const *>(&vue))
        return liste->isRowHidden(ligne);
    if (auto const * const arbre = qobject_cast<QTreeView const *>(&vue))
        return arbre->isRowHidden(ligne, parent);
    if (auto const * const table = qobject_cast<QTableView const *>(&vue))
        return table->isRowHidden(ligne);
    return false;
}

void CacheLigneDe(QAbstractItemView & vue, int ligne, QModelIndex const & parent, bool cachee)
{
    if (LigneEstCachee(vue, ligne, parent) == cachee)
        return; // each call lays the list out anew
    if (auto * const arbre = qobject_cast<QTreeView *>(&vue))
        arbre->setRowHidden(ligne, parent, cachee);
    else if (parent != vue.rootIndex())
        return; // forgotten with the former root
    else if (auto * const liste = qobject_cast<QListView *>(&vue))
        liste->setRowHidden(ligne, cachee);
    else if (auto * const table = qobject_cast<QTableView *>(&vue))
        table->setRowHidden(ligne, cachee);
}

bool EstAccessible(QModelIndex const & index)
{
    return (index.flags() & Qt::ItemIsEnabled) && !DComboBoxDeleguay::EstSeparateur(index);
}

class FiltreDuPremier : public QSortFilterProxyModel
{
public:
    FiltreDuPremier(MasqueurPremierElement const * masqueur, QAbstractItemModel * modele,
                    QObject * parent)
        : QSortFilterProxyModel(parent)
        , monMasqueur(masqueur)
    {
        setSourceModel(modele);
        monCachay = DonneCachay();
        // Another row may be the first one now. Connected after those of the base, which bring
        // its own rows up to date.
        auto const suis = [this, modele](auto signal) {
            connect(modele, signal, this, &FiltreDuPremier::PriseLignesChangees);
        };
        suis(&QAbstractItemModel::rowsInserted);
        suis(&QAbstractItemModel::rowsRemoved);
        suis(&QAbstractItemModel::rowsMoved);
        suis(&QAbstractItemModel::layoutChanged);
        suis(&QAbstractItemModel::modelReset);
    }

protected:
    bool filterAcceptsRow(int ligne, QModelIndex const & parent) const override
    {
        return !monMasqueur || !monMasqueur->EstCachay(sourceModel()->index(ligne, 0, parent));
    }

private:
    void PriseLignesChangees()
    {
        QModelIndex const cachay = DonneCachay();
        if (cachay == monCachay)
            return; // each new filtering looks at every row
        monCachay = cachay;
        invalidate();
    }

    QModelIndex DonneCachay() const
    {
        return monMasqueur ? monMasqueur->DonneCachay() : QModelIndex();
    }

    // A completer may outlive the combo box.
    QPointer<MasqueurPremierElement const> monMasqueur;
    QPersistentModelIndex monCachay; // left out since the last filtering
};

} // namespace

MasqueurPremierElement::MasqueurPremierElement(QComboBox * combo)
    : QObject(combo)
    , monCombo(combo)
{
    combo->installEventFilter(this);
}

bool MasqueurPremierElement::EstActif() const
{
    auto const * const deleguay = qobject_cast<DComboBoxDeleguay const *>(monCombo->itemDelegate());
    return deleguay && deleguay->PremierElementCachay();
}

void MasqueurPremierElement::Synchronise()
{
    bool const actif = EstActif();
    if (!actif && !maVue)
        return;
    SuisModele();
    if (maLigne.isValid() && !(actif && EstCachay(maLigne)))
        ReveleLigne();
    if (actif)
        CacheLigne();
    SuisChamp();
    FiltreCompleteur();
    if (actif && maVue->isVisible())
        OublieCourantCachay();
}

void MasqueurPremierElement::OublieCourantCachay()
{
    if (EstCachay(monCombo->view()->currentIndex()))
        monCombo->view()->selectionModel()->clear();
}

bool MasqueurPremierElement::EstCachay(QModelIndex const & index) const
{
    return index.isValid() && index.row() == 0 && index.parent() == monCombo->rootModelIndex() &&
           EstActif();
}

QModelIndex MasqueurPremierElement::DonneCachay() const
{
    QModelIndex const premier = monCombo->model()->index(0, 0, monCombo->rootModelIndex());
    return EstCachay(premier) ? premier : QModelIndex();
}

int MasqueurPremierElement::DonneLigneSuivante(int depart, int pas) const
{
    int const nombre = monCombo->count();
    for (int ligne = depart + pas; ligne >= 1 && ligne < nombre; ligne += pas)
        if (EstAccessible(DonneIndex(ligne)))
            return ligne;
    return -1;
}

int MasqueurPremierElement::ChercheLigne(QString const & lettres)
{
    QModelIndex const courant = DonneIndex(monCombo->currentIndex());
    return maRecherche.Cherche(lettres, courant, DonneCandidats()).row();
}

QModelIndex MasqueurPremierElement::ChercheDansLaListe(QString const & lettres)
{
    return maRecherche.Cherche(lettres, monCombo->view()->currentIndex(),
                               DonneCandidatsDeLaListe());
}

QModelIndex MasqueurPremierElement::DonnePremierDeLaListe() const
{
    return DonneCandidatsDeLaListe().value(0);
}

bool MasqueurPremierElement::eventFilter(QObject * objet, QEvent * evenement)
{
    QEvent::Type const type = evenement->type();
    if (objet == monCombo && (type == QEvent::ChildAdded || type == QEvent::ChildPolished))
        FiltreEnfant(*static_cast<QChildEvent *>(evenement));
    // A line edit that is being destroyed is still the combo box's, and no line edit any more. The
    // arrows with Ctrl go through the completions, and edit no text before.
    else if (objet == monCombo->lineEdit() && qobject_cast<QLineEdit *>(objet) &&
             (objet != monChamp || type == QEvent::KeyPress))
        Synchronise();
    return false;
}

void MasqueurPremierElement::PriseLignesChangees()
{
    Synchronise();
}

void MasqueurPremierElement::PriseTexteSaisi()
{
    Synchronise();
}

// A child is added when it is no more than a QWidget yet, and polished when it is complete.
void MasqueurPremierElement::FiltreEnfant(QChildEvent const & evenement)
{
    auto * const enfant = qobject_cast<QWidget *>(evenement.child());
    if (!enfant || enfant->isWindow())
        return;
    if (evenement.added())
        enfant->installEventFilter(this);
    else if (!qobject_cast<QLineEdit *>(enfant))
        enfant->removeEventFilter(this);
}

// The view was told of its model first, and so hears of a change before this does.
void MasqueurPremierElement::SuisModele()
{
    QAbstractItemModel * const modele = monCombo->model();
    if (maVue == monCombo->view() && monModele == modele)
        return;
    if (monModele)
        disconnect(monModele, nullptr, this, nullptr);
    maVue = monCombo->view();
    monModele = modele;
    auto const suis = [this, modele](auto signal) {
        connect(modele, signal, this, &MasqueurPremierElement::PriseLignesChangees,
                Qt::UniqueConnection);
    };
    suis(&QAbstractItemModel::rowsInserted);
    suis(&QAbstractItemModel::rowsRemoved);
    suis(&QAbstractItemModel::rowsMoved);
    suis(&QAbstractItemModel::layoutChanged);
    suis(&QAbstractItemModel::modelReset);
}

// No event tells of a new completer, but the line edit tells of its text before it has it
// completed: then the completer is put on the filter.
void MasqueurPremierElement::SuisChamp()
{
    QLineEdit * const champ = monCombo->lineEdit();
    if (champ == monChamp)
        return;
    if (monChamp)
        disconnect(monChamp, nullptr, this, nullptr);
    monChamp = champ;
    if (champ)
        connect(champ, &QLineEdit::textEdited, this, &MasqueurPremierElement::PriseTexteSaisi,
                Qt::UniqueConnection);
}

void MasqueurPremierElement::CacheLigne()
{
    QModelIndex const racine = monCombo->rootModelIndex();
    QModelIndex const premier = monModele->index(0, 0, racine);
    if (!premier.isValid() || LigneEstCachee(*maVue, 0, racine))
        return;
    CacheLigneDe(*maVue, 0, racine, true);
    maLigne = premier;
}

void MasqueurPremierElement::ReveleLigne()
{
    if (maLigne.model() == maVue->model())
        CacheLigneDe(*maVue, maLigne.row(), maLigne.parent(), false);
    maLigne = QPersistentModelIndex();
}

void MasqueurPremierElement::FiltreCompleteur()
{
    QCompleter * const completeur = monCombo->completer();
    if (!completeur)
        return;
    bool const filtray = monFiltre && completeur->model() == monFiltre;
    if (!EstActif()) {
        if (filtray)
            completeur->setModel(monModele);
        return;
    }
    if (completeur->model() != monModele || filtray)
        return;
    if (monModele->QObject::parent() == completeur)
        monModele->setParent(monCombo); // it would go when the completer takes another one
    monFiltre = new FiltreDuPremier(this, monModele, completeur);
    completeur->setModel(monFiltre);
}

QModelIndex MasqueurPremierElement::DonneIndex(int ligne) const
{
    return monCombo->model()->index(ligne, monCombo->modelColumn(), monCombo->rootModelIndex());
}

QModelIndexList MasqueurPremierElement::DonneCandidats() const
{
    QModelIndexList candidats;
    for (int ligne = DonneLigneSuivante(0, 1); ligne > 0; ligne = DonneLigneSuivante(ligne, 1))
        candidats << DonneIndex(ligne);
    return candidats;
}

QModelIndexList MasqueurPremierElement::DonneCandidatsDeLaListe() const
{
    auto const * const arbre = qobject_cast<QTreeView const *>(monCombo->view());
    QModelIndexList candidats;
    if (arbre) {
        // The row below a hidden one is the first one that is not.
        for (QModelIndex index = arbre->indexBelow(DonneIndex(0)); index.isValid();
             index = arbre->indexBelow(index))
            if (EstAccessible(index))
                candidats << index.siblingAtColumn(monCombo->modelColumn());
        return candidats;
    }
    for (QModelIndex const & index : DonneCandidats())
        if (!LigneEstCachee(*monCombo->view(), index.row(), index.parent()))
            candidats << index;
    return candidats;
}
