// lists/WidgetListeEditable.cpp
#include "lists/WidgetListeEditable.h"

#include "foundation/TraductionGui.h"
#include "lists/DelegayWidgetListeEditable_p.h"
#include "lists/DorvelStandardItemModelPrive_p.h"
#include "lists/DorvelTreeViewPrive_p.h"
#include "lists/WidgetListeEditable_p.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>
#include <QValidator>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr int kCoteBouton = 24;
constexpr int kEcartBoutons = 2;

constexpr Qt::Alignment kAlignementEntete = Qt::AlignLeft | Qt::AlignVCenter;

} // namespace

// NOLINTBEGIN(performance-unnecessary-value-param): by value is the interface
WidgetListeEditable::WidgetListeEditable(QWidget * parent, int nbColonnes, bool editable,
                                         bool avecBoutonAjouter, QList<QValidator *> validateurs,
                                         bool insereApresSelection)
    : QFrame(parent)
    , mesValidateurs(validateurs.cbegin(), validateurs.cend())
    , monInsertionApresSelection(insereApresSelection)
    , monEditable(editable)
{
    Initialise(nbColonnes, avecBoutonAjouter);
}
// NOLINTEND(performance-unnecessary-value-param)

WidgetListeEditable::~WidgetListeEditable()
{
    CoupeLesLiens();
    for (QPointer<QValidator> const & validateur : std::as_const(mesValidateurs))
        delete validateur.data();
    if (mesEmissions > 0)
        DetacheLesEnfants();
}

void WidgetListeEditable::Initialise(int nbColonnes, bool avecBoutonAjouter)
{
    setFocusPolicy(Qt::NoFocus); // before the proxy, which the policy would go to
    auto * const disposition = new QVBoxLayout(this);
    CreeVue(nbColonnes);
    disposition->addWidget(maVue);
    maVue->installEventFilter(this);
    maVue->setContextMenuPolicy(Qt::CustomContextMenu);
    CreePied(avecBoutonAjouter);
    disposition->addWidget(monLayoutPied->parentWidget());
    Branche();
}

void WidgetListeEditable::CreeVue(int nbColonnes)
{
    maVue = new DorvelTreeViewPrive(this);
    maVue->setItemDelegate(new DelegayWidgetListeEditable(this));
    setFocusProxy(maVue);
    monModele = new DorvelStandardItemModelPrive(maVue);
    monModele->setColumnCount(nbColonnes);
    monModele->MetsCellulesVidesModifiables(monEditable);
    maVue->setModel(monModele);
    maVue->setSelectionBehavior(QAbstractItemView::SelectRows);
    maVue->setRootIsDecorated(false);
    maVue->setSelectionMode(QAbstractItemView::ExtendedSelection);
    maVue->setAllColumnsShowFocus(false);
    maVue->setIndentation(0);
    maVue->setSortingEnabled(false);
    maVue->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto * const entete = new QHeaderView(Qt::Horizontal, this);
    maVue->setHeader(entete);
    entete->setDefaultAlignment(kAlignementEntete);
    PoseEntete();
    entete->setSortIndicator(0, Qt::AscendingOrder);
}

// After `QTreeView::setHeader` and `QTreeView::setSortingEnabled`, which both switch the two off
// while sorting is off.
void WidgetListeEditable::PoseEntete()
{
    DonneEntete()->setSortIndicatorShown(true);
    DonneEntete()->setSectionsClickable(true);
}

void WidgetListeEditable::CreePied(bool avecBoutonAjouter)
{
    auto * const pied = new QFrame(this);
    monLayoutPied = new QHBoxLayout(pied);
    if (avecBoutonAjouter) {
        monBoutonAjouter =
            CreeBouton(pied, u":/Images/plus.png"_s, TraductionGui(TexteGui("Ajouter")));
        monLayoutPied->addWidget(monBoutonAjouter);
    }
    monBoutonRetirer =
        CreeBouton(pied, u":/Images/moins.png"_s, TraductionGui(TexteGui("Retirer")));
    monBoutonRetirer->setEnabled(false);
    monLayoutPied->addSpacing(kEcartBoutons);
    monLayoutPied->addWidget(monBoutonRetirer);
    monLayoutPied->addStretch();
}

QToolButton * WidgetListeEditable::CreeBouton(QWidget * pied, QString const & icone,
                                              QString const & nom)
{
    auto * const bouton = new QToolButton(pied);
    bouton->setAutoRaise(true);
    bouton->setFixedSize(kCoteBouton, kCoteBouton);
    bouton->setIcon(QIcon(icone));
    bouton->setAccessibleName(nom); // it shows no text that could name it
    bouton->setToolTip(nom);
    bouton->installEventFilter(this);
    return bouton;
}

void WidgetListeEditable::Branche()
{
    using Liste = WidgetListeEditable;
    connect(maVue, &QWidget::customContextMenuRequested, this, &Liste::PriseMenuContextuel,
            Qt::ConnectionType(Qt::DirectConnection | Qt::UniqueConnection));
    connect(monModele, &QAbstractItemModel::dataChanged, this,
            qOverload<QModelIndex, QModelIndex>(&Liste::PriseElementModifiay),
            Qt::UniqueConnection);
    connect(monModele, &QAbstractItemModel::rowsRemoved, this, &Liste::PriseRangeesRetirees,
            Qt::UniqueConnection);
    QItemSelectionModel * const selection = maVue->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, &Liste::PriseSelectionChangay,
            Qt::UniqueConnection);
    connect(selection, &QItemSelectionModel::selectionChanged, this,
            &Liste::PriseActualiseEtatBoutonSupprimer, Qt::UniqueConnection);
    // Direct, and queued behind it: the rows may move before the event loop comes to the edit.
    connect(this, &Liste::SignalEditionTerminay, this, &Liste::PriseEditionTerminay,
            Qt::UniqueConnection);
    if (monBoutonAjouter != nullptr)
        connect(monBoutonAjouter, &QToolButton::clicked, this, &Liste::PriseBoutonAjouter,
                Qt::UniqueConnection);
    connect(monBoutonRetirer, &QToolButton::clicked, this, &Liste::PriseBoutonRetirer,
            Qt::UniqueConnection);
    connect(this, &Liste::SignalSuppression, this, &Liste::PriseSuppression, Qt::UniqueConnection);
    if (!monInsertionApresSelection)
        connect(this, &Liste::SignalAjout, maVue, &QAbstractItemView::scrollToBottom,
                Qt::UniqueConnection);
}

// The children die after the list has ceased to be one: an open editor then commits its text.
void WidgetListeEditable::CoupeLesLiens()
{
    monModele->disconnect(this);
    maVue->disconnect(this);
    maVue->selectionModel()->disconnect(this);
    maVue->removeEventFilter(this);
    if (monEditeur)
        monEditeur->removeEventFilter(this);
}

// Qt is still in the middle of a function of the view, of an editor or of a button.
void WidgetListeEditable::DetacheLesEnfants()
{
    for (QAbstractItemDelegate * const deleguay :
         findChildren<QAbstractItemDelegate *>(Qt::FindDirectChildrenOnly))
        deleguay->setParent(maVue);
    for (QWidget * const enfant : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        enfant->setParent(nullptr);
        enfant->deleteLater();
    }
}

void WidgetListeEditable::PriseMenuContextuel(QPoint const & position)
{
    QModelIndex const index = maVue->indexAt(position);
    if (!index.isValid())
        return;
    Emission const emission(*this);
    Q_EMIT SignalMenuContextuel(DonneItems(index.row()), maVue->viewport()->mapToGlobal(position));
}

void WidgetListeEditable::PriseSelectionChangay(QItemSelection const & selectionnay,
                                                QItemSelection const & deselectionnay)
{
    Emission const emission(*this);
    Q_EMIT SignalSelectionChangay(selectionnay, deselectionnay);
}

void WidgetListeEditable::PriseActualiseEtatBoutonSupprimer()
{
    monBoutonRetirer->setEnabled(maVue->selectionModel()->hasSelection());
}

void WidgetListeEditable::PriseBoutonRetirer()
{
    Emission const emission(*this);
    Q_EMIT SignalSuppression();
}
