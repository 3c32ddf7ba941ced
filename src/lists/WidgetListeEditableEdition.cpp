// lists/WidgetListeEditableEdition.cpp
//
// The editor of the editable list, and what follows when a cell is finished.
#include "lists/WidgetListeEditable.h"

#include "lists/DorvelStandardItemModelPrive_p.h"
#include "lists/DorvelTreeViewPrive_p.h"
#include "lists/WidgetListeEditable_p.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QValidator>

#include <algorithm>

namespace {

constexpr int kMargeEditeur = 10; // logical pixels beside the placeholder

} // namespace

bool WidgetListeEditable::eventFilter(QObject * objet, QEvent * evenement)
{
    if (objet == maVue && evenement->type() == QEvent::KeyRelease &&
        maVue->selectionModel()->hasSelection())
        return TraiteTouche(static_cast<QKeyEvent const *>(evenement)->key());
    if (evenement->type() == QEvent::FocusOut)
        InitialiseEditeur();
    // The focus goes to the view, and what reads the screen asks it for the name.
    if (objet == maVue && evenement->type() == QEvent::FocusIn && !accessibleName().isEmpty())
        maVue->setAccessibleName(accessibleName());
    if (evenement->type() == QEvent::EnabledChange && !isEnabled())
        VideSelection();
    return false;
}

// True when the view shall not see the key.
bool WidgetListeEditable::TraiteTouche(int touche)
{
    Emission const emission(*this);
    if (touche == Qt::Key_Delete || touche == Qt::Key_Backspace) {
        if (!monBoutonRetirer->isEnabled() || (monEditeur && monEditeur->isVisible()) ||
            UnEditeurALeFocus())
            return false;
        Q_EMIT SignalSuppression();
        return true;
    }
    QModelIndexList const elements = DonneElementsSelectionnays();
    if (touche == Qt::Key_Escape && !elements.isEmpty()) {
        QModelIndex const premier = elements.first();
        QStandardItem const * const item = DonneElement(premier.row(), premier.column());
        Q_EMIT SignalEditionTerminay(premier, item != nullptr ? item->text() : QString());
    }
    return emission.ListeEstMorte();
}

void WidgetListeEditable::InitialiseEditeur()
{
    // That of the window: an editor may well open in one that is not active. A field of the host's
    // is no editor, and keeps its placeholder and its width.
    auto * const editeur = qobject_cast<QLineEdit *>(window()->focusWidget());
    if (editeur == nullptr || !maVue->isAncestorOf(editeur))
        return;
    MetsEditeur(editeur);
    editeur->installEventFilter(this);
    // Deliberate: the column of the current cell, which is the one before when the edit has moved
    // on by itself.
    QString const invite = DonnePlaceHolder(std::max(0, maVue->currentIndex().column()));
    editeur->setPlaceholderText(invite);
    editeur->setMinimumWidth(fontMetrics().boundingRect(invite).width() + kMargeEditeur);
    connect(editeur, &QLineEdit::textChanged, this, &WidgetListeEditable::PriseTexteEditay,
            Qt::UniqueConnection);
}

void WidgetListeEditable::PriseTexteEditay(QString const & texte)
{
    Emission const emission(*this);
    Q_EMIT SignalEdition(texte);
}

bool WidgetListeEditable::UnEditeurALeFocus() const
{
    QWidget const * const focus = window()->focusWidget();
    return focus != nullptr && maVue->viewport()->isAncestorOf(focus);
}

// Qt opens an editor only while no other is open, wherever that is.
void WidgetListeEditable::OuvreEditeur(QModelIndex const & index)
{
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const cellule = index;
    if (!index.flags().testFlag(Qt::ItemIsEditable) || maVue->isColumnHidden(index.column()) ||
        maVue->indexWidget(index) != nullptr)
        return;
    if (maCelluleEditee.isValid())
        maVue->FermeEditeurs(maCelluleEditee.row(), true);
    if (moi && maVue->currentIndex().isValid())
        maVue->FermeEditeurs(maVue->currentIndex().row(), true);
    if (!moi || !cellule.isValid())
        return;
    maCelluleEditee = cellule;
    maVue->edit(cellule);
    if (moi)
        InitialiseEditeur(); // where the focus was, nobody may have been told that it left
}

void WidgetListeEditable::PriseElementModifiay()
{
    Emission const emission(*this);
    Q_EMIT SignalElementsModifiay();
}

void WidgetListeEditable::PriseElementModifiay(QModelIndex debut, QModelIndex fin)
{
    if (debut != fin)
        return;
    Emission const emission(*this);
    Q_EMIT SignalEditionTerminay(debut, QString());
}

void WidgetListeEditable::PriseEditionTerminay(QModelIndex const & element,
                                               QString const & ancienTexte)
{
    mesFinsAttendues.append(std::make_shared<FinAttendue>(FinAttendue{element, ancienTexte}));
    QMetaObject::invokeMethod(this, &WidgetListeEditable::PriseFinAttendue, Qt::QueuedConnection);
}

void WidgetListeEditable::PriseFinAttendue()
{
    auto const fin = mesFinsAttendues.takeFirst();
    if (fin->cellule.isValid())
        PriseElementModifiay(fin->cellule, fin->ancienTexte);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value is the interface
void WidgetListeEditable::PriseElementModifiay(QModelIndex element, QString ancienTexte)
{
    if (element.model() != monModele)
        return;
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const cellule = element;
    QStandardItem * const item = DonneElement(element.row(), element.column());
    if (item != nullptr && CorrigeTexte(*item, element.column()))
        return;
    if (item != nullptr && item->text().isEmpty()) {
        RetireRangee(element.row(), true);
        // Another row stands there now: it is not worth closing an editor for.
        if (moi && !UnEditeurALeFocus())
            PasseALaSuivante(monModele->index(element.row(), element.column()));
        return;
    }
    if (item != nullptr && item->text() != ancienTexte)
        PriseElementModifiay();
    if (moi)
        PasseALaSuivante(cellule);
}

// True when the text was not acceptable: the edit ends again with the text that is set here.
bool WidgetListeEditable::CorrigeTexte(QStandardItem & item, int colonne)
{
    QPointer<QValidator> const validateur = mesValidateurs.value(colonne);
    if (!validateur)
        return false;
    QString texte = item.text();
    int position = 0;
    if (validateur->validate(texte, position) == QValidator::Acceptable)
        return false;
    validateur->fixup(texte);
    // An item says nothing of a text that it has already: the row of an empty cell would stay.
    if (texte.isEmpty() && item.text().isEmpty())
        return false;
    item.setText(texte);
    return true;
}

void WidgetListeEditable::PasseALaSuivante(QModelIndex const & element)
{
    QPointer<WidgetListeEditable> const moi = this;
    QPersistentModelIndex const cellule = element;
    QPersistentModelIndex const suivante = monModele->index(element.row(), element.column() + 1);
    if (!suivante.isValid())
        return;
    maVue->selectionModel()->select(suivante, QItemSelectionModel::ClearAndSelect |
                                                  QItemSelectionModel::Rows);
    if (!moi || !suivante.isValid() || !suivante.data(Qt::DisplayRole).toString().isEmpty())
        return;
    maVue->setCurrentIndex(cellule);
    if (moi && monEditable)
        OuvreEditeur(suivante);
}
