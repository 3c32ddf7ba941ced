// editing/ComboJetonableAccessible.cpp
#include "editing/ComboJetonableAccessible_p.h"

#include "editing/DComboJetonable.h"
#include "editing/DLineEditJetonable_p.h"
#include "foundation/TraductionGui.h"

using namespace Qt::StringLiterals;

namespace {

QString DonneActionVider()
{
    return u"Clear"_s; // for programs, which never see it translated
}

} // namespace

ComboJetonableAccessible::ComboJetonableAccessible(DComboJetonable * combo)
    : QAccessibleWidget(combo, QAccessible::ComboBox)
{
}

int ComboJetonableAccessible::childCount() const
{
    return PreteCombo().lineEdit() ? 1 : 0;
}

QAccessibleInterface * ComboJetonableAccessible::child(int index) const
{
    QLineEdit * const champ = PreteCombo().lineEdit();
    return index == 0 && champ ? QAccessible::queryAccessibleInterface(champ) : nullptr;
}

QAccessibleInterface * ComboJetonableAccessible::childAt(int x, int y) const
{
    QLineEdit const * const champ = PreteCombo().lineEdit();
    return champ && champ->rect().contains(champ->mapFromGlobal(QPoint(x, y))) ? child(0) : nullptr;
}

int ComboJetonableAccessible::indexOfChild(QAccessibleInterface const * enfant) const
{
    bool const champ = enfant && enfant->object() && enfant->object() == PreteCombo().lineEdit();
    return champ ? 0 : -1;
}

// The combo box is the focus proxy of the field.
QAccessibleInterface * ComboJetonableAccessible::focusChild() const
{
    return PreteCombo().hasFocus() ? child(0) : nullptr;
}

QString ComboJetonableAccessible::text(QAccessible::Text nature) const
{
    QString texte = QAccessibleWidget::text(nature);
    bool const duChamp = nature == QAccessible::Value || nature == QAccessible::Description;
    if (!duChamp || !texte.isEmpty())
        return texte;
    QAccessibleInterface const * const champ = child(0);
    if (champ)
        return champ->text(nature);
    return nature == QAccessible::Value ? PreteCombo().currentText() : QString();
}

QAccessible::State ComboJetonableAccessible::state() const
{
    QAccessible::State etat = QAccessibleWidget::state();
    etat.hasPopup = true;
    etat.editable = PreteCombo().isEditable();
    return etat;
}

QStringList ComboJetonableAccessible::actionNames() const
{
    QStringList noms = {showMenuAction(), pressAction()};
    if (PeutVider())
        noms << DonneActionVider();
    return noms + QAccessibleWidget::actionNames();
}

QString ComboJetonableAccessible::localizedActionName(QString const & nom) const
{
    if (nom == DonneActionVider())
        return TraductionGui(TexteGui("Vider"));
    return QAccessibleWidget::localizedActionName(nom);
}

void ComboJetonableAccessible::doAction(QString const & nom)
{
    if (!PreteCombo().isEnabled())
        return;
    if (nom == showMenuAction() || nom == pressAction())
        PreteCombo().showPopup();
    else if (nom != DonneActionVider())
        QAccessibleWidget::doAction(nom);
    else if (PeutVider())
        PreteCombo().ActiveIcone();
}

DComboJetonable & ComboJetonableAccessible::PreteCombo() const
{
    return *static_cast<DComboJetonable *>(widget());
}

bool ComboJetonableAccessible::PeutVider() const
{
    return PreteCombo().maSuppressionPermise && !PreteCombo().EstVide();
}
