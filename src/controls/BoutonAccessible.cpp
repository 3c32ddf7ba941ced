// controls/BoutonAccessible.cpp
#include "controls/BoutonAccessible_p.h"

#include "controls/DBoutonAbstrait.h"

#include <QAbstractButton>
#include <QRadioButton>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

int nombreDeControles = 0;

// Qt asks for each class of the object in turn, from the most derived one.
QAccessibleInterface * CreeInterface(QString const & classe, QObject * objet)
{
    bool const connue = classe == "DCheckBox"_L1 || classe == "DRadioButton"_L1 ||
                        classe == "CheckBoxHover"_L1 || classe == "BoutonHover"_L1;
    auto * const widget = connue ? qobject_cast<QWidget *>(objet) : nullptr;
    return widget ? new BoutonAccessible(widget) : nullptr;
}

void Annonce(DBoutonAbstrait & controle, QAccessible::State etats)
{
    QAccessibleStateChangeEvent evenement(&controle, etats);
    QAccessible::updateAccessibility(&evenement);
}

} // namespace

BoutonAccessible::BoutonAccessible(QWidget * widget)
    : QAccessibleWidget(widget)
{
}

// Only while there are controls, so that nothing is left behind when the library is unloaded. Qt
// itself forgets the factory when the application object dies.
void BoutonAccessible::PrendsFabrique()
{
    ++nombreDeControles;
    QAccessible::installFactory(&CreeInterface);
}

void BoutonAccessible::LibereFabrique()
{
    if (--nombreDeControles == 0)
        QAccessible::removeFactory(&CreeInterface);
}

void BoutonAccessible::AnnonceCochage(DBoutonAbstrait & controle)
{
    QAccessible::State etats;
    etats.checked = true;
    Annonce(controle, etats);
}

void BoutonAccessible::AnnonceActivation(DBoutonAbstrait & controle)
{
    QAccessible::State etats;
    etats.disabled = true;
    Annonce(controle, etats);
}

int BoutonAccessible::childCount() const
{
    return 0;
}

QAccessibleInterface * BoutonAccessible::child(int) const
{
    return nullptr;
}

int BoutonAccessible::indexOfChild(QAccessibleInterface const *) const
{
    return -1;
}

QAccessible::Role BoutonAccessible::role() const
{
    bool const radio = qobject_cast<QRadioButton *>(PreteBouton());
    return radio ? QAccessible::RadioButton : QAccessible::CheckBox;
}

QString BoutonAccessible::text(QAccessible::Text nature) const
{
    DBoutonAbstrait * const controle = PreteControle();
    if (controle && controle != object()) // names and tool tips are put on the control
        return QAccessible::queryAccessibleInterface(controle)->text(nature);
    if (controle && nature == QAccessible::Name && controle->accessibleName().isEmpty()) {
        auto const texte = QTextDocumentFragment::fromHtml(controle->DonneTexte()).toPlainText();
        if (!texte.isEmpty())
            return texte.simplified();
    }
    return QAccessibleWidget::text(nature);
}

QAccessible::State BoutonAccessible::state() const
{
    QAccessible::State etat = QAccessibleWidget::state();
    etat.checkable = true;
    if (QAbstractButton const * const bouton = PreteBouton()) {
        etat.checked = bouton->isChecked();
        etat.pressed = bouton->isDown();
        etat.disabled = !bouton->isEnabled();
    }
    return etat;
}

QStringList BoutonAccessible::actionNames() const
{
    QStringList noms;
    QAbstractButton const * const bouton = PreteBouton();
    if (bouton && bouton->isEnabled())
        noms << toggleAction();
    return noms + QAccessibleWidget::actionNames();
}

void BoutonAccessible::doAction(QString const & nom)
{
    DBoutonAbstrait * const controle = PreteControle();
    QAbstractButton * const bouton = PreteBouton();
    if (!controle || !bouton || !bouton->isEnabled())
        return;
    if (nom == toggleAction())
        controle->MetsCochay(!controle->EstCochay());
    else if (nom == pressAction())
        bouton->click();
    else
        QAccessibleWidget::doAction(nom);
}

// Null while the control is being destroyed.
DBoutonAbstrait * BoutonAccessible::PreteControle() const
{
    auto * const controle = qobject_cast<DBoutonAbstrait *>(object());
    return controle || !widget() ? controle
                                 : qobject_cast<DBoutonAbstrait *>(widget()->parentWidget());
}

QAbstractButton * BoutonAccessible::PreteBouton() const
{
    if (auto * const bouton = qobject_cast<QAbstractButton *>(object()))
        return bouton;
    return object() ? object()->findChild<QAbstractButton *>({}, Qt::FindDirectChildrenOnly)
                    : nullptr;
}
