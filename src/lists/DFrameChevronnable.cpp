// lists/DFrameChevronnable.cpp
#include "lists/DFrameChevronnable.h"

#include "controls/DBoutonSansFleche.h"
#include "lists/IWidgetChevronnable.h"
#include "lists/LayoutHorizontalAvecChevron.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QResizeEvent>
#include <QSpacerItem>
#include <QStringList>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTitresNommes = 3; // a screen reader tells no more of them before the menu is open

QSize DonneTailleMin(QLayoutItem * item)
{
    auto * const widget = qobject_cast<IWidgetChevronnable *>(item->widget());
    return widget ? widget->DonneTailleMin() : item->sizeHint();
}

QSize DonneTailleMax(QLayoutItem * item)
{
    auto * const widget = qobject_cast<IWidgetChevronnable *>(item->widget());
    return widget ? widget->DonneTailleMax() : item->sizeHint();
}

} // namespace

DFrameChevronnable::DFrameChevronnable(QWidget * parent)
    : QFrame(parent)
{
    init();
}

DFrameChevronnable::DFrameChevronnable()
{
    init();
}

DFrameChevronnable::~DFrameChevronnable()
{
    JetteEntrees();
    // A menu that has been open may be the one whose action destroys the frame.
    if (monMenu && monMenu->internalWinId())
        monMenu->deleteLater();
    else
        delete monMenu;
}

void DFrameChevronnable::init()
{
    QString const icone = u":/Images/ExpandRightGroup_16x.svg"_s;
    monBoutonChevron = new DBoutonSansFleche(this);
    monBoutonChevron->setAutoRaise(true);
    monBoutonChevron->setPopupMode(QToolButton::InstantPopup);
    monBoutonChevron->setArrowType(Qt::NoArrow);
    monBoutonChevron->setIcon(
        QFile::exists(icone) ? QIcon(icone)
                             : style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton));
    monLayout = new LayoutHorizontalAvecChevron(this, monBoutonChevron, 0);
    setObjectName(u"DFrameChevronnable"_s);
    MetAJourMenu();
    connect(monLayout, &LayoutHorizontalAvecChevron::SignalMiseEnPlace, this,
            &DFrameChevronnable::PriseMiseEnPlace, Qt::UniqueConnection);
}

void DFrameChevronnable::addSpacer()
{
    monLayout->addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void DFrameChevronnable::addWidget(IWidgetChevronnable * widget, int etirement)
{
    insertWidget(monLayout->count(), widget, etirement);
}

void DFrameChevronnable::insertWidget(int index, IWidgetChevronnable * widget, int etirement)
{
    if (!widget)
        return;
    monLayout->insertWidget(index, widget, etirement);
    // Deliberate: the form is that of the last resize, since the row is not laid out yet.
    Q_EMIT SignalChangeForme(!monDebordement);
}

void DFrameChevronnable::MetAJourMenu()
{
    if (!monBoutonChevron->menu()) {
        monMenu = new QMenu;
        monBoutonChevron->setMenu(monMenu);
        connect(monMenu, &QMenu::aboutToShow, this, &DFrameChevronnable::PriseAfficheMenu,
                Qt::UniqueConnection);
    }
    monBoutonChevron->menu()->clear();
    JetteEntrees();
    for (IWidgetChevronnable * const widget : DonneMasques())
        AjouteEntree(*widget);
}

std::list<QWidget *> DFrameChevronnable::PreteListeWidgets() const
{
    std::list<QWidget *> widgets;
    for (int i = 0; i < monLayout->count(); ++i)
        if (QWidget * const widget = PreteWidgetA(i))
            widgets.push_back(widget);
    return widgets;
}

QWidget * DFrameChevronnable::PreteWidgetA(int index) const
{
    QLayoutItem * const item = monLayout->itemAt(index);
    return item ? item->widget() : nullptr;
}

void DFrameChevronnable::RetireWidget(QWidget * widget)
{
    if (widget)
        delete monLayout->takeAt(monLayout->indexOf(widget));
}

void DFrameChevronnable::Vide()
{
    while (QLayoutItem * const item = monLayout->itemAt(0)) {
        monLayout->removeItem(item);
        delete item->widget();
        delete item;
    }
}

bool DFrameChevronnable::WidgetEstVisible(int index) const
{
    return monLayout->ItemEstVisible(index);
}

void DFrameChevronnable::setSpacing(int espacement)
{
    monLayout->setSpacing(espacement);
}

QSize DFrameChevronnable::sizeHint() const
{
    int largeur = 0;
    for (int i = 0; i < monLayout->count(); ++i) {
        QLayoutItem * const item = monLayout->itemAt(i);
        if (item->widget())
            largeur += (monDebordement ? DonneTailleMax(item) : DonneTailleMin(item)).width();
    }
    return {largeur, 0};
}

DBoutonSansFleche * DFrameChevronnable::PreteBoutonChevron() const
{
    return monBoutonChevron;
}

void DFrameChevronnable::resizeEvent(QResizeEvent * evenement)
{
    monDebordement = monLayout->TestDonneNombreItemMasque(evenement->size(), DonneTailleMin) > 0;
    // Deliberate: hosts hear of the new form before the base handles the event.
    Q_EMIT SignalChangeForme(!monDebordement);
    QFrame::resizeEvent(evenement);
}

void DFrameChevronnable::PriseAfficheMenu()
{
    MetAJourMenu();
}

void DFrameChevronnable::PriseMiseEnPlace()
{
    QStringList titres;
    for (IWidgetChevronnable * const widget : DonneMasques(kTitresNommes + 1))
        titres.append(widget->DonneTitre());
    if (titres.size() > kTitresNommes)
        titres.last() = u"…"_s;
    monBoutonChevron->setAccessibleName(titres.join(", "_L1));
}

QList<IWidgetChevronnable *> DFrameChevronnable::DonneMasques(int combien) const
{
    QList<IWidgetChevronnable *> masques;
    for (int i = 0; i < monLayout->count() && masques.size() < combien; ++i) {
        auto * const widget = qobject_cast<IWidgetChevronnable *>(PreteWidgetA(i));
        if (widget && !monLayout->ItemEstVisible(i))
            masques.append(widget);
    }
    return masques;
}

void DFrameChevronnable::AjouteEntree(IWidgetChevronnable & widget)
{
    QMenu & menu = *monBoutonChevron->menu();
    QObject * entree = nullptr;
    if (widget.EstUneAction()) {
        QAction * const action = widget.DonneQAction();
        if (action)
            menu.addAction(action);
        entree = action;
    } else {
        QMenu * const sousMenu = widget.DonneQMenu();
        if (sousMenu)
            menu.addMenu(sousMenu);
        entree = sousMenu;
    }
    if (entree && !entree->parent())
        mesEntrees.append(entree);
}

void DFrameChevronnable::JetteEntrees()
{
    // Later: one of them may be the action that is under way.
    for (QPointer<QObject> const & entree : std::as_const(mesEntrees))
        if (entree && !entree->parent())
            entree->deleteLater();
    mesEntrees.clear();
}
