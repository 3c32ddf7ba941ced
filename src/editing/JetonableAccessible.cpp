// editing/JetonableAccessible.cpp
#include "editing/JetonableAccessible_p.h"

#include "editing/ChampJetonableAccessible_p.h"
#include "editing/ComboJetonableAccessible_p.h"
#include "editing/DComboJetonable.h"
#include "editing/DLineEditJetonable_p.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

int nombreDeChamps = 0;

void Annonce(QObject & objet, QString const & valeur)
{
    QAccessibleValueChangeEvent evenement(&objet, valeur);
    QAccessible::updateAccessibility(&evenement);
}

// Qt asks for each class of the object in turn, from the most derived one. A host may have a class
// of the same name as one of ours.
QAccessibleInterface * CreeInterface(QString const & classe, QObject * objet)
{
    if (classe == "DLineEditJetonable"_L1)
        if (auto * const champ = qobject_cast<DLineEditJetonable *>(objet))
            return new ChampJetonableAccessible(champ);
    if (classe == "DComboJetonable"_L1)
        if (auto * const combo = qobject_cast<DComboJetonable *>(objet))
            return new ComboJetonableAccessible(combo);
    return nullptr;
}

} // namespace

// Only while there are fields, so that nothing is left behind when the library is unloaded. Qt
// itself forgets the factory when the first application object dies.
void JetonableAccessible::PrendsFabrique()
{
    ++nombreDeChamps;
    QAccessible::installFactory(&CreeInterface);
}

void JetonableAccessible::LibereFabrique()
{
    // Without an application, Qt's list of factories may be gone, as at the end of the process.
    if (--nombreDeChamps == 0 && QCoreApplication::instance())
        QAccessible::removeFactory(&CreeInterface);
}

void JetonableAccessible::AnnonceValeur(DLineEditJetonable & champ)
{
    QString const valeur = champ.UnJetonEstActif() ? champ.DonneTexteJeton() : champ.text();
    Annonce(champ, valeur);
    // The combo box has the focus in the field's place.
    if (auto * const combo = qobject_cast<DComboJetonable *>(champ.parentWidget()))
        Annonce(*combo, valeur);
}
