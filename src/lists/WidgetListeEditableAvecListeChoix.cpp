// lists/WidgetListeEditableAvecListeChoix.cpp
#include "lists/WidgetListeEditableAvecListeChoix.h"

#include "controls/DTreeView.h"
#include "lists/ListeChoixFlottante.h"
#include "lists/WidgetListeEditable_p.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItem>

#include <algorithm>
#include <utility>

WidgetListeEditableAvecListeChoix::WidgetListeEditableAvecListeChoix(
    QWidget * parent, int nbColonnes, bool editable, bool avecBoutonAjouter,
    QList<QValidator *> validateurs, bool insereApresSelection)
    : WidgetListeEditable(parent, nbColonnes, editable, avecBoutonAjouter, std::move(validateurs),
                          insereApresSelection)
    // The width of the view bounds that of the proposals: a column may be too narrow for them.
    , maListe(std::make_unique<ListeChoixFlottante>(&monInterface, false, nullptr, PreteVue()))
{
    connect(maListe.get(), &ListeChoixFlottante::SignalSelectionListeChoix, this,
            &WidgetListeEditableAvecListeChoix::PrisePropositionChoisie, Qt::UniqueConnection);
}

WidgetListeEditableAvecListeChoix::~WidgetListeEditableAvecListeChoix() = default;

void WidgetListeEditableAvecListeChoix::MetsProposant(Proposant proposant)
{
    monProposant = std::move(proposant);
}

ListeChoixFlottante * WidgetListeEditableAvecListeChoix::PreteListeChoix() const
{
    return maListe.get();
}

bool WidgetListeEditableAvecListeChoix::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const estDeplacement =
        evenement->type() == QEvent::Move || evenement->type() == QEvent::Resize;
    if (estDeplacement && (objet == window() || objet == monEditeurSuivi))
        SuisDeplacement();
    if (objet == monEditeurSuivi && FiltreEditeur(*evenement))
        return true;
    return WidgetListeEditable::eventFilter(objet, evenement);
}

void WidgetListeEditableAvecListeChoix::MetsEditeur(QLineEdit * editeur)
{
    WidgetListeEditable::MetsEditeur(editeur);
    if (editeur && editeur != monEditeurSuivi)
        SuisEditeur(*editeur);
}

void WidgetListeEditableAvecListeChoix::PriseTexteTapay(QString const & texte)
{
    Propose(texte);
}

void WidgetListeEditableAvecListeChoix::PrisePropositionChoisie(
    QList<std::shared_ptr<QStandardItem>> const & items)
{
    QPointer<QLineEdit> const editeur = qobject_cast<QLineEdit *>(monEditeurSuivi);
    QStandardItem const * const item = items.isEmpty() ? nullptr : items.first().get();
    if (!editeur || !item)
        return;
    QString const texte = item->data(Qt::EditRole).toString();
    maListe->CacheToi(); // so that it leaves the key to the editor
    editeur->setText(texte);
    QKeyEvent retour(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    if (editeur)
        QCoreApplication::sendEvent(editeur, &retour);
}

void WidgetListeEditableAvecListeChoix::SuisEditeur(QLineEdit & editeur)
{
    if (auto * const ancien = qobject_cast<QLineEdit *>(monEditeurSuivi)) {
        ancien->removeEventFilter(maListe.get());
        disconnect(ancien, &QLineEdit::textEdited, this,
                   &WidgetListeEditableAvecListeChoix::PriseTexteTapay);
    }
    monEditeurSuivi = &editeur;
    // Not the current column: that is still the one before where the edit has moved on by itself.
    QModelIndex const cellule = PreteVue()->indexAt(editeur.geometry().center());
    maColonne = std::max(0, (cellule.isValid() ? cellule : PreteVue()->currentIndex()).column());
    maListe->MetsWidgetLiay(&editeur);
    editeur.installEventFilter(maListe.get());
    editeur.installEventFilter(this); // in front of the proposals
    window()->installEventFilter(this);
    connect(&editeur, &QLineEdit::textEdited, this,
            &WidgetListeEditableAvecListeChoix::PriseTexteTapay, Qt::UniqueConnection);
    Propose(editeur.text());
}

void WidgetListeEditableAvecListeChoix::Propose(QString const & texte)
{
    QPointer<QWidget> const editeur = monEditeurSuivi;
    Emission const emission(*this);
    Proposant const proposant = monProposant; // which may give the list another one meanwhile
    Propositions const propositions = proposant ? proposant(maColonne, texte) : Propositions();
    if (emission.ListeEstMorte() || !editeur || !editeur->isVisible()) {
        for (auto const & rangee : propositions)
            qDeleteAll(rangee);
        return;
    }
    maListe->MetsLargeurMinimum(editeur->width());
    maListe->ActualiseListeChoix(propositions);
}

// True when the editor shall not see the event.
bool WidgetListeEditableAvecListeChoix::FiltreEditeur(QEvent const & evenement)
{
    if (evenement.type() == QEvent::KeyPress)
        return TraiteToucheDeLEditeur(static_cast<QKeyEvent const &>(evenement));
    // Some systems activate whatever window they show. The proposals hand the focus back at once,
    // but an editor that has lost it closes.
    return evenement.type() == QEvent::FocusOut &&
           maListe->CeQObjectMAppartient(QApplication::activeWindow());
}

bool WidgetListeEditableAvecListeChoix::TraiteToucheDeLEditeur(QKeyEvent const & touche)
{
    if (!maListe->isVisible())
        return false;
    bool const estRetour = touche.key() == Qt::Key_Return || touche.key() == Qt::Key_Enter;
    bool const aucuneCourante = !maListe->PreteListeChoix()->currentIndex().isValid();
    // The proposals would take the first, and with it what was typed.
    if (touche.key() == Qt::Key_Escape || (estRetour && aucuneCourante))
        maListe->CacheToi();
    return touche.key() == Qt::Key_Escape;
}

void WidgetListeEditableAvecListeChoix::SuisDeplacement()
{
    // Scrolled away, or in a column that was closed.
    if (monEditeurSuivi && monEditeurSuivi->visibleRegion().isEmpty())
        maListe->CacheToi();
    Q_EMIT monInterface.SignalParentDeplacay();
}
