// controls/DMenuAction.cpp
#include "controls/DMenuAction.h"

#include "foundation/GeometrieEcran.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QScreen>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace {

// Pixels.
constexpr int kMarge = 15;
constexpr int kEspacement = 7;

constexpr int kColonnes = 2; // label and widget

constexpr auto kFeuilleDeStyle = "QFrame{background-color:transparent;}"
                                 "QFrame>QLabel { color: gray; font-weight: bold; }"_L1;

// The line of a QFrame takes its colours from the background, and would be transparent too.
constexpr auto kFeuilleDuSeparateur = "border:none;border-top:1px solid palette(mid);"_L1;

bool PrendLeFocusAuClavier(QWidget const & widget)
{
    // The field of a spin box hands the focus back to it.
    return (widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy() && widget.isVisible() &&
           widget.isEnabled();
}

} // namespace

DMenuAction::DMenuAction(QWidget * parent)
    : QFrame(parent)
{
    CreeGrille();
    setStyleSheet(kFeuilleDeStyle);
    // QMenu takes a click beside the widgets as one on the action, and closes.
    setAttribute(Qt::WA_NoMousePropagation);
    CreeMenu(parent);
    connect(this, &DMenuAction::SignalOuvreMenu, this, &DMenuAction::PriseOuvreMenu,
            Qt::ConnectionType(Qt::DirectConnection | Qt::UniqueConnection));
}

DMenuAction::~DMenuAction()
{
    if (!monMenu)
        return; // it is the menu that takes the frame with it
    disconnect(monMenu, nullptr, this, nullptr);
    // The action deletes its widget, unless that is gone by then.
    monAction->setParent(nullptr);
    monMenu->removeAction(monAction);
    monAction->deleteLater();
    delete monMenu;
}

void DMenuAction::OuvrirMenuALaPosition(QPoint const & position)
{
    Q_EMIT SignalOuvreMenu(position);
}

void DMenuAction::AjouteWidget(QLabel * label, QWidget * widget)
{
    int const rangee = DonneNouvelleRangee();
    if (label)
        maGrille->addWidget(label, rangee, 0, Qt::AlignRight);
    if (widget)
        maGrille->addWidget(widget, rangee, 1);
}

void DMenuAction::AjouteSeparateur()
{
    auto * const separateur = new QFrame(this);
    separateur->setObjectName(u"Separateur"_s);
    separateur->setStyleSheet(kFeuilleDuSeparateur);
    separateur->setFrameShape(QFrame::HLine);
    separateur->setFrameShadow(QFrame::Sunken);
    separateur->setSizePolicy(QSizePolicy::Expanding, separateur->sizePolicy().verticalPolicy());
    maGrille->addWidget(separateur, DonneNouvelleRangee(), 0, 1, kColonnes);
}

void DMenuAction::AfficherRangeeDuWidget(QWidget const * widget, bool const & visible)
{
    int const indice = widget ? maGrille->indexOf(widget) : -1;
    if (indice < 0)
        return;
    int rangee = 0;
    int colonne = 0;
    int rangees = 0;
    int colonnes = 0;
    maGrille->getItemPosition(indice, &rangee, &colonne, &rangees, &colonnes);
    for (int i = 0; i < maGrille->columnCount(); ++i) {
        QLayoutItem const * const item = maGrille->itemAtPosition(rangee, i);
        if (item && item->widget())
            item->widget()->setVisible(visible);
    }
    RedimensionneMenu();
}

QGridLayout * DMenuAction::PreteGrille() const
{
    return maGrille;
}

bool DMenuAction::event(QEvent * evenement)
{
    bool const traitay = QFrame::event(evenement);
    if (evenement->type() == QEvent::LayoutRequest)
        RedimensionneMenu();
    return traitay;
}

bool DMenuAction::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == monMenu && evenement->type() == QEvent::KeyPress) {
        int const touche = static_cast<QKeyEvent *>(evenement)->key();
        // QMenu would go to the next action, and there is none.
        if ((touche == Qt::Key_Tab || touche == Qt::Key_Backtab) &&
            focusNextPrevChild(touche == Qt::Key_Tab))
            return true;
    }
    return QFrame::eventFilter(objet, evenement);
}

// Within the frame: QMenu has its own idea of the next widget, the next action.
bool DMenuAction::focusNextPrevChild(bool suivant)
{
    QWidget * const depart = isAncestorOf(focusWidget()) ? focusWidget() : this;
    QWidget * cible = depart;
    do {
        cible = suivant ? cible->nextInFocusChain() : cible->previousInFocusChain();
        if (isAncestorOf(cible) && PrendLeFocusAuClavier(*cible)) {
            cible->setFocus(suivant ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (cible != depart);
    return isAncestorOf(depart) && depart != this;
}

void DMenuAction::PriseOuvreMenu(QPoint const & position)
{
    if (!monMenu)
        return;
    RedimensionneMenu();
    // A second loop would leave the first one without an end.
    if (monMenu->isVisible())
        monMenu->popup(position);
    else
        monMenu->exec(position);
}

// Told before the menu deletes its children.
void DMenuAction::PriseMenuDetruit()
{
    monMenu = nullptr;
}

void DMenuAction::CreeGrille()
{
    maGrille = new QGridLayout(this);
    maGrille->setContentsMargins(kMarge, kMarge, kMarge, kMarge);
    maGrille->setSpacing(kEspacement);
}

void DMenuAction::CreeMenu(QWidget * parent)
{
    monMenu = new QMenu(parent);
    monAction = new QWidgetAction(monMenu);
    monAction->setDefaultWidget(this);
    monMenu->addAction(monAction);
    monMenu->installEventFilter(this);
    connect(monMenu, &QObject::destroyed, this, &DMenuAction::PriseMenuDetruit,
            Qt::UniqueConnection);
}

int DMenuAction::DonneNouvelleRangee() const
{
    return maGrille->count() == 0 ? 0 : maGrille->rowCount();
}

void DMenuAction::RedimensionneMenu()
{
    if (!monMenu)
        return;
    // QMenu measures its widgets again only when an action changes.
    QActionEvent changement(QEvent::ActionChanged, monAction);
    QCoreApplication::sendEvent(monMenu, &changement);
    QRect const disponible = monMenu->screen()->availableGeometry();
    if (monMenu->isVisible() && !disponible.contains(monMenu->frameGeometry()))
        RoutinesGeneralesQt::AjusteDansEcran(*monMenu, false, true, false);
}
