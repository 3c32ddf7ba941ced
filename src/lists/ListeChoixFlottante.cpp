// lists/ListeChoixFlottante.cpp
#include "lists/ListeChoixFlottante.h"

#include "lists/InterfaceUtilisantListeChoixFlottante.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStandardItemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargeInterne = 2; // pixels around the rows
constexpr int kCadre = 6;        // pixels: twice the margin and the line of the frame
constexpr int kRoleSelectionnableParDefaut = Qt::UserRole + 1;

// The last cell asks for the frame too: the sum of a row is then the width of a view that cuts none
// of its text.
class DeleguayDesChoix : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(QStyleOptionViewItem const & option, QModelIndex const & index) const override
    {
        QSize const taille = QStyledItemDelegate::sizeHint(option, index);
        bool const derniere = index.column() == index.model()->columnCount() - 1;
        return derniere ? taille + QSize(kCadre, 0) : taille;
    }
};

class VueDesChoix : public QTreeView
{
public:
    using QTreeView::QTreeView;

    // Never sideways: no bar would bring back what slid away, under the very mouse that made the
    // row current.
    void scrollTo(QModelIndex const & index, ScrollHint maniere) override
    {
        QTreeView::scrollTo(index.siblingAtColumn(0), maniere);
    }

protected:
    // Keys end here. One that the view has no use for would go on to the list, which sends what it
    // gets to the linked widget, from where it came; and then to the widget's own parent.
    void keyPressEvent(QKeyEvent * touche) override
    {
        QTreeView::keyPressEvent(touche);
        touche->accept();
    }
};

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
    QSize taille = DisposeColonnes();
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
    // A style that activates at a click would tell each one twice.
    bool const activeAuClic =
        maVue->style()->styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick, nullptr, maVue);
    for (auto const signal : {&QTreeView::activated, &QTreeView::clicked}) {
        if (activeAuClic && signal == &QTreeView::clicked)
            continue;
        QMetaObject::Connection const connexion =
            connect(maVue, signal, this, &ListeChoixFlottante::PrisePropositionSelectionnay,
                    Qt::UniqueConnection);
        if (connexion) // null for what a list that is shown already has
            mesConnexions.append(connexion);
    }
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
    // The sheets are white in every theme, so that the text may not be the theme's. Before the
    // sheet: each new polish goes back to the palette that the sheet found.
    QPalette palette;
    for (auto const role : {QPalette::Text, QPalette::WindowText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    maVue->setPalette(palette);
    maVue->setStyleSheet(u"QTreeView{padding: %1px;}"_s.arg(kMargeInterne));
    maVue->setItemDelegate(new DeleguayDesChoix(maVue));
    maVue->setFocusPolicy(Qt::NoFocus);
    maVue->setMouseTracking(true);
    maVue->setEditTriggers(QAbstractItemView::NoEditTriggers);
    maVue->setSelectionMode(QAbstractItemView::SingleSelection);
    maVue->setRootIsDecorated(false);
    maVue->setHeaderHidden(true);
    maVue->header()->setStretchLastSection(false); // never below a default width
    maVue->setModel(new QStandardItemModel(0, 1, this));
    maVue->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    maVue->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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

// Gives each column the width of its contents; returns the size of the widest row and of the whole.
QSize ListeChoixFlottante::DisposeColonnes() const
{
    QAbstractItemModel const * const modele = maVue->model();
    QList<int> largeurs(modele->columnCount(), 0);
    QSize taille(0, kCadre);
    for (int rangee = 0; rangee < modele->rowCount(); ++rangee) {
        int largeur = 0;
        for (int colonne = 0; colonne < largeurs.size(); ++colonne) {
            int const cellule = maVue->sizeHintForIndex(modele->index(rangee, colonne)).width();
            largeurs[colonne] = std::max(largeurs.at(colonne), cellule);
            largeur += cellule;
        }
        taille.setWidth(std::max(taille.width(), largeur));
        // Deliberate: once per cell, so that two columns double the height.
        taille.rheight() += static_cast<int>(largeurs.size()) * maVue->sizeHintForRow(rangee);
    }
    // The last one takes what is left: more or less than its contents.
    int const derniere = static_cast<int>(largeurs.size()) - 1;
    for (int colonne = 0; colonne < derniere; ++colonne)
        maVue->header()->resizeSection(colonne, largeurs.at(colonne));
    maVue->header()->setSectionResizeMode(derniere, QHeaderView::Stretch);
    return taille;
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
