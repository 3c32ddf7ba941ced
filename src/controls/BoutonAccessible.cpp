// controls/BoutonAccessible.cpp
#include "controls/BoutonAccessible_p.h"

#include "controls/DBoutonAbstrait.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QRadioButton>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

int nombreDeControles = 0;

// Qt asks for each class of the object in turn, from the most derived one. A host may have a class
// of the same name as one of ours.
QAccessibleInterface * CreeInterface(QString const & classe, QObject * objet)
{
    bool const connue = classe == "DCheckBox"_L1 || classe == "DRadioButton"_L1 ||
                        classe == "CheckBoxHover"_L1 || classe == "BoutonHover"_L1;
    if (!connue || !objet || !objet->isWidgetType())
        return nullptr;
    bool const notre =
        qobject_cast<DBoutonAbstrait *>(objet) || qobject_cast<DBoutonAbstrait *>(objet->parent());
    return notre ? new BoutonAccessible(static_cast<QWidget *>(objet)) : nullptr;
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
// itself forgets the factory when the first application object dies. A host's own factory is asked
// before this one if it was installed after the first control was made.
void BoutonAccessible::PrendsFabrique()
{
    ++nombreDeControles;
    QAccessible::installFactory(&CreeInterface);
}

void BoutonAccessible::LibereFabrique()
{
    // Without an application, Qt's list of factories may be gone, as at the end of the process.
    if (--nombreDeControles == 0 && QCoreApplication::instance())
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

QList<QPair<QAccessibleInterface *, QAccessible::Relation>>
BoutonAccessible::relations(QAccessible::Relation cherchees) const
{
    if (QAccessibleInterface const * const lu = PreteInterfaceDuControle())
        return lu->relations(cherchees); // it is the control that a label is the buddy of
    return QAccessibleWidget::relations(cherchees);
}

QAccessibleInterface * BoutonAccessible::parent() const
{
    if (QAccessibleInterface const * const lu = PreteInterfaceDuControle())
        return lu->parent();
    return QAccessibleWidget::parent();
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
    if (QAccessibleInterface const * const lu = PreteInterfaceDuControle())
        return lu->text(nature); // names and tool tips are put on the control
    DBoutonAbstrait const * const controle = PreteControle();
    if (controle && nature == QAccessible::Name && controle->accessibleName().isEmpty()) {
        QString texte = QTextDocumentFragment::fromHtml(controle->DonneTexte()).toPlainText();
        texte.remove(QChar::ObjectReplacementCharacter); // where a picture stands
        texte = texte.simplified();
        if (!texte.isEmpty())
            return texte;
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

// Null for the control itself.
QAccessibleInterface * BoutonAccessible::PreteInterfaceDuControle() const
{
    DBoutonAbstrait * const controle = PreteControle();
    return controle && controle != object() ? QAccessible::queryAccessibleInterface(controle)
                                            : nullptr;
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
