// navigation/BarreOngletsAccessible.cpp
#include "navigation/BarreOngletsAccessible_p.h"

#include "navigation/DTabBarInterne.h"

#include <QAbstractButton>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

int nombreDeBarres = 0;

class OngletAccessible : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    OngletAccessible(DTabBarInterne * barre, int index)
        : maBarre(barre)
        , monIndex(index)
    {
    }

    int DonneIndex() const { return monIndex; }

    void * interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override { return maBarre && monIndex < maBarre->count(); }
    QObject * object() const override { return nullptr; }
    QAccessibleInterface * parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface * child(int) const override { return nullptr; }
    QAccessibleInterface * childAt(int, int) const override { return nullptr; }
    int indexOfChild(QAccessibleInterface const *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::PageTab; }
    QAccessible::State state() const override;
    QRect rect() const override;
    QString text(QAccessible::Text nature) const override;
    void setText(QAccessible::Text, QString const &) override {}

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(QString const & nom) override;
    QStringList keyBindingsForAction(QString const &) const override { return {}; }

private:
    QPointer<DTabBarInterne> maBarre;
    int monIndex;
};

void * OngletAccessible::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

QAccessibleInterface * OngletAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(maBarre.data());
}

QAccessible::State OngletAccessible::state() const
{
    QAccessible::State etat;
    if (!isValid()) {
        etat.invalid = true;
        return etat;
    }
    bool const courant = maBarre->currentIndex() == monIndex;
    etat.selectable = true;
    etat.selected = courant;
    etat.focusable = true;
    etat.focused = courant && maBarre->hasFocus();
    etat.disabled = !maBarre->isEnabled() || !maBarre->isTabEnabled(monIndex);
    etat.invisible = !maBarre->isVisible() || !maBarre->isTabVisible(monIndex);
    return etat;
}

QRect OngletAccessible::rect() const
{
    if (!isValid())
        return {};
    QRect const onglet = maBarre->tabRect(monIndex);
    return {maBarre->mapToGlobal(onglet.topLeft()), onglet.size()};
}

QString OngletAccessible::text(QAccessible::Text nature) const
{
    if (!isValid())
        return {};
    QString const nom = maBarre->accessibleTabName(monIndex);
    QString infobulle = maBarre->tabToolTip(monIndex);
    if (nature == QAccessible::Name)
        return nom.isEmpty() ? maBarre->tabText(monIndex) : nom;
    // Most tool tips repeat the title, which would be read twice.
    if (nature == QAccessible::Description && infobulle != nom)
        return infobulle;
    return nature == QAccessible::Help ? maBarre->tabWhatsThis(monIndex) : QString();
}

void OngletAccessible::doAction(QString const & nom)
{
    if (isValid() && nom == pressAction() && !state().disabled)
        maBarre->setCurrentIndex(monIndex);
}

// Qt asks for each class of the object in turn, from the most derived one. A host may have a class
// of the same name as ours.
QAccessibleInterface * CreeInterface(QString const & classe, QObject * objet)
{
    if (classe != "DTabBarInterne"_L1)
        return nullptr;
    auto * const barre = qobject_cast<DTabBarInterne *>(objet);
    return barre ? new BarreOngletsAccessible(barre) : nullptr;
}

} // namespace

BarreOngletsAccessible::BarreOngletsAccessible(DTabBarInterne * barre)
    : QAccessibleWidget(barre, QAccessible::PageTabList)
{
}

BarreOngletsAccessible::~BarreOngletsAccessible()
{
    for (QAccessible::Id const onglet : std::as_const(mesOnglets))
        QAccessible::deleteAccessibleInterface(onglet);
}

// Only while there are bars, so that nothing is left behind when the library is unloaded. Qt itself
// forgets the factory when the first application object dies.
void BarreOngletsAccessible::PrendsFabrique()
{
    ++nombreDeBarres;
    QAccessible::installFactory(&CreeInterface);
}

void BarreOngletsAccessible::LibereFabrique()
{
    // Without an application, Qt's list of factories may be gone, as at the end of the process.
    if (--nombreDeBarres == 0 && QCoreApplication::instance())
        QAccessible::removeFactory(&CreeInterface);
}

QAccessibleInterface * BarreOngletsAccessible::focusChild() const
{
    return PreteBarre().hasFocus() ? child(PreteBarre().currentIndex()) : nullptr;
}

int BarreOngletsAccessible::childCount() const
{
    return PreteBarre().count() + int(DonneBoutons().size());
}

QAccessibleInterface * BarreOngletsAccessible::child(int index) const
{
    int const nombre = PreteBarre().count();
    if (index >= nombre)
        return QAccessible::queryAccessibleInterface(DonneBoutons().value(index - nombre));
    if (index < 0)
        return nullptr;
    while (mesOnglets.size() <= index) {
        auto * const onglet = new OngletAccessible(&PreteBarre(), int(mesOnglets.size()));
        mesOnglets.append(QAccessible::registerAccessibleInterface(onglet));
    }
    return QAccessible::accessibleInterface(mesOnglets.at(index));
}

QAccessibleInterface * BarreOngletsAccessible::childAt(int x, int y) const
{
    QPoint const position = PreteBarre().mapFromGlobal(QPoint(x, y));
    QList<QAbstractButton *> const boutons = DonneBoutons();
    for (QAbstractButton * const bouton : boutons)
        if (bouton->isVisible() && bouton->geometry().contains(position))
            return QAccessible::queryAccessibleInterface(bouton);
    return child(PreteBarre().tabAt(position));
}

int BarreOngletsAccessible::indexOfChild(QAccessibleInterface const * enfant) const
{
    if (!enfant)
        return -1;
    if (auto * const bouton = qobject_cast<QAbstractButton *>(enfant->object())) {
        auto const place = DonneBoutons().indexOf(bouton);
        return place < 0 ? -1 : PreteBarre().count() + int(place);
    }
    // Only ours have this interface for a parent.
    bool const onglet = enfant->role() == QAccessible::PageTab && enfant->parent() == this;
    return onglet ? static_cast<OngletAccessible const *>(enfant)->DonneIndex() : -1;
}

QString BarreOngletsAccessible::text(QAccessible::Text nature) const
{
    QString texte = QAccessibleWidget::text(nature);
    if (nature != QAccessible::Name || !texte.isEmpty())
        return texte;
    QAccessibleInterface const * const onglet = child(PreteBarre().currentIndex());
    return onglet ? onglet->text(QAccessible::Name) : texte;
}

DTabBarInterne & BarreOngletsAccessible::PreteBarre() const
{
    return *static_cast<DTabBarInterne *>(widget());
}

// Those that scroll, then those of the tabs in their order.
QList<QAbstractButton *> BarreOngletsAccessible::DonneBoutons() const
{
    QList<QAbstractButton *> desOnglets;
    for (int i = 0; i < PreteBarre().count(); ++i)
        if (auto * const bouton =
                qobject_cast<QAbstractButton *>(PreteBarre().tabButton(i, QTabBar::RightSide)))
            desOnglets.append(bouton);
    QList<QAbstractButton *> boutons;
    for (QObject * const enfant : PreteBarre().children())
        if (enfant->objectName().startsWith("Scroll"_L1)) // as Qt names both
            if (auto * const bouton = qobject_cast<QAbstractButton *>(enfant))
                boutons.append(bouton);
    return boutons + desOnglets;
}
