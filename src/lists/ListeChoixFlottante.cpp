// lists/ListeChoixFlottante.cpp
#include "lists/ListeChoixFlottante.h"

#include "lists/InterfaceUtilisantListeChoixFlottante.h"
#include "lists/VueDesChoix_p.h"

#include <QStandardItemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRoleSelectionnableParDefaut = Qt::UserRole + 1;

} // namespace

ListeChoixFlottante::ListeChoixFlottante(
    InterfaceUtilisantListeChoixFlottante const * const interfaceHote, bool preselectionne,
    QWidget * widgetLiay, QWidget * widgetReference)
    : monWidgetLiay(widgetLiay)
    , monWidgetReference(widgetReference)
    , monInterface(interfaceHote)
    , maPreselection(preselectionne)
{
    Initialise();
}

ListeChoixFlottante::ListeChoixFlottante(
    InterfaceUtilisantListeChoixFlottante const * const interfaceHote, bool preselectionne,
    QWidget * widgetLiay)
    : ListeChoixFlottante(interfaceHote, preselectionne, widgetLiay, widgetLiay)
{
}

ListeChoixFlottante::~ListeChoixFlottante()
{
    if (mesEmissions == 0)
        return;
    // The receiver of a choice destroys the list while the view is still handling the click or the
    // key: the view has to outlive that.
    maVue->setParent(nullptr);
    maVue->deleteLater();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void ListeChoixFlottante::ActualiseListeChoix(QList<QList<QStandardItem *>> rangees)
{
    QStandardItemModel * const modele = monWidgetReference ? PreteModele() : nullptr;
    if (!modele) {
        for (QList<QStandardItem *> const & rangee : std::as_const(rangees))
            qDeleteAll(rangee);
        if (monWidgetReference)
            CacheToi(); // the host gave the view a model of its own kind, which takes no items
        return;
    }
    DetruitElementsDuModele(modele);
    for (QList<QStandardItem *> const & rangee : std::as_const(rangees))
        modele->appendRow(rangee);
    if (modele->rowCount() == 0) {
        CacheToi();
        return;
    }
    // Deliberate: selected but not current, so that Return still chooses the first row that the
    // automatic choice accepts.
    auto const selection =
        maPreselection ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Clear;
    QSize taille = maVue->DisposeColonnes();
    maVue->selectionModel()->select(modele->index(0, 0), selection);
    // A fixed size knows no greatest width, so that the reference cuts the rows here. The least
    // width is the host's own wish and may be larger.
    int const largeur = std::min(taille.width(), monWidgetReference->width());
    taille.setWidth(std::max(largeur, DonneLargeurMinimum()));
    maVue->setFixedSize(taille);
    setFixedSize(taille);
    AfficheToi();
    move(DonnePosListeChoix());
}

void ListeChoixFlottante::ActualisePosListeChoix()
{
    if (isVisible())
        move(DonnePosListeChoix());
}

void ListeChoixFlottante::AfficheToi()
{
    // Invalid for what a list that is shown already has.
    mesConnexions.append(connect(maVue, &QTreeView::activated, this,
                                 &ListeChoixFlottante::PrisePropositionSelectionnay,
                                 Qt::UniqueConnection));
    // A style that activates at a click would tell each one twice.
    if (!maVue->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, maVue))
        mesConnexions.append(connect(maVue, &QTreeView::clicked, this,
                                     &ListeChoixFlottante::PrisePropositionSelectionnay,
                                     Qt::UniqueConnection));
    PreparePourLeSysteme();
    show();
}

void ListeChoixFlottante::CacheToi()
{
    for (QMetaObject::Connection const & connexion : std::as_const(mesConnexions))
        disconnect(connexion);
    mesConnexions.clear();
    hide();
}

bool ListeChoixFlottante::CeQObjectMAppartient(QObject const * const objet) const
{
    return objet == this || objet == maVue;
}

void ListeChoixFlottante::DebuteActualisation()
{
    if (QStandardItemModel * const modele = PreteModele())
        DetruitElementsDuModele(modele);
    maVue->setUpdatesEnabled(false);
}

void ListeChoixFlottante::TermineActualisation()
{
    maVue->setUpdatesEnabled(true);
}

QList<QStandardItem *> ListeChoixFlottante::DonneItemsSelectionnay() const
{
    // One selected cell is enough: of the preselected row only the first one is.
    QModelIndexList const cellules = maVue->selectionModel()->selectedIndexes();
    return cellules.isEmpty() ? QList<QStandardItem *>() : DonneItems(cellules.first().row());
}

void ListeChoixFlottante::EnleveSelection()
{
    maVue->selectionModel()->clear();
}

void ListeChoixFlottante::MetsDelegue(QStyledItemDelegate * delegue)
{
    if (delegue)
        maVue->setItemDelegate(delegue);
}

void ListeChoixFlottante::MetsHauteurListeFixe(int hauteur)
{
    // The view follows, or rows would lie below the edge of the list, out of reach.
    maVue->setFixedHeight(hauteur);
    setFixedHeight(hauteur);
}

void ListeChoixFlottante::MetsItemSelectionnableParDefaut(QStandardItem * item,
                                                          bool selectionnable) const
{
    if (item)
        item->setData(selectionnable, kRoleSelectionnableParDefaut);
}

void ListeChoixFlottante::MetsLargeurMinimum(int largeur)
{
    maLargeurMinimum = largeur;
}

int ListeChoixFlottante::DonneLargeurMinimum()
{
    return maLargeurMinimum;
}

void ListeChoixFlottante::MetsWidgetLiay(QWidget * widget)
{
    if (monWidgetLiay)
        disconnect(monWidgetLiay, &QObject::destroyed, this, &ListeChoixFlottante::CacheToi);
    monWidgetLiay = widget;
    SurveilleMort(widget);
}

bool ListeChoixFlottante::PossedeWidgetLiay() const
{
    return monWidgetLiay != nullptr;
}

QTreeView * ListeChoixFlottante::PreteListeChoix()
{
    return maVue;
}

bool ListeChoixFlottante::SelectionneItem(QVariant const & valeur, int role)
{
    QStandardItemModel const * const modele = PreteModele();
    for (int rangee = 0; modele && rangee < modele->rowCount(); ++rangee) {
        for (int colonne = 0; colonne < modele->columnCount(); ++colonne) {
            QStandardItem const * const item = modele->item(rangee, colonne);
            if (item && item->data(role) == valeur) {
                Selectionne(rangee);
                return true;
            }
        }
    }
    return false;
}

void ListeChoixFlottante::SelectionneItemActivay()
{
    Selectionne(maVue->currentIndex().row());
}

void ListeChoixFlottante::PriseEnFermeture()
{
    Q_EMIT maVue->activated(maVue->currentIndex());
}

void ListeChoixFlottante::PrisePropositionSelectionnay(QModelIndex index)
{
    Selectionne(index.row());
}

void ListeChoixFlottante::Initialise()
{
    InitialiseFenetre();
    InitialiseVue();
    SurveilleMort(monWidgetLiay);
    if (monWidgetLiay)
        monWidgetLiay->installEventFilter(this);
    maVue->installEventFilter(this); // in front of the view's own handling of Return
    connect(maVue, &QTreeView::entered, maVue, &QTreeView::setCurrentIndex, Qt::UniqueConnection);
    connect(this, &ListeChoixFlottante::SignalFermetureListeChoix, this,
            &ListeChoixFlottante::CacheToi, Qt::UniqueConnection);
    if (monInterface) {
        connect(monInterface, &InterfaceUtilisantListeChoixFlottante::SignalParentDeplacay, this,
                &ListeChoixFlottante::ActualisePosListeChoix, Qt::UniqueConnection);
    }
    CacheToi();
}

void ListeChoixFlottante::InitialiseFenetre()
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setObjectName(u"ListeChoix"_s); // applications style it under this name
    setStyleSheet(u"QFrame{background-color: white;}"_s);
}

void ListeChoixFlottante::InitialiseVue()
{
    auto * const disposition = new QVBoxLayout(this);
    disposition->setContentsMargins({});
    maVue = new VueDesChoix(this);
    disposition->addWidget(maVue);
    maVue->setModel(new QStandardItemModel(0, 1, this));
}

void ListeChoixFlottante::SurveilleMort(QWidget * widget)
{
    if (widget) {
        connect(widget, &QObject::destroyed, this, &ListeChoixFlottante::CacheToi,
                Qt::UniqueConnection);
    }
}

QStandardItemModel * ListeChoixFlottante::PreteModele() const
{
    return qobject_cast<QStandardItemModel *>(maVue->model());
}

void ListeChoixFlottante::DetruitElementsDuModele(QStandardItemModel * modele) const
{
    modele->clear(); // also the columns, which would otherwise never become fewer
    modele->setColumnCount(1);
}

QList<QStandardItem *> ListeChoixFlottante::DonneItems(int rangee) const
{
    QStandardItemModel const * const modele = PreteModele();
    QList<QStandardItem *> items;
    // Through the index, which makes the item of an empty cell: every column keeps its place.
    for (int colonne = 0; modele && colonne < modele->columnCount(); ++colonne)
        items.append(modele->itemFromIndex(modele->index(rangee, colonne)));
    return items;
}

QPoint ListeChoixFlottante::DonnePosListeChoix() const
{
    if (!monWidgetLiay || !maVue->model() || maVue->model()->rowCount() == 0)
        return {};
    return monWidgetLiay->mapToGlobal(monWidgetLiay->rect().bottomLeft());
}

void ListeChoixFlottante::Selectionne(int rangee)
{
    QStandardItemModel const * const modele = PreteModele();
    if (!modele)
        return;
    if (rangee < 0) {
        rangee = 0;
        auto const passee = [modele](int candidate) {
            QVariant const choix = modele->index(candidate, 0).data(kRoleSelectionnableParDefaut);
            return choix.isValid() && !choix.toBool();
        };
        while (rangee < modele->rowCount() && passee(rangee))
            ++rangee;
    }
    if (rangee >= modele->rowCount())
        return;
    QList<std::shared_ptr<QStandardItem>> clones;
    for (QStandardItem const * const item : DonneItems(rangee))
        clones.append(std::shared_ptr<QStandardItem>(item->clone()));
    QPointer<ListeChoixFlottante> const ceci(this);
    ++mesEmissions;
    Q_EMIT SignalSelectionListeChoix(clones);
    if (ceci)
        --mesEmissions;
}
