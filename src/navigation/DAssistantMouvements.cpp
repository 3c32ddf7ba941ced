// navigation/DAssistantMouvements.cpp
#include "navigation/DAssistant.h"

#include "controls/DListViewClique.h"
#include "navigation/DAssistantEtape.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>
#include <cstdlib>

void DAssistant::PriseBoutonAnnuler()
{
    for (auto * const bouton : {monBoutonPrecedent, monBoutonSuivant, monBoutonTermine})
        bouton->setEnabled(false);

    QPointer<DAssistant> const garde(this);
    if (monEtapeCourante)
        monEtapeCourante->AnnuleEtape();
    if (garde)
        reject();
}

void DAssistant::PriseBoutonPrecedent()
{
    DAssistantEtape * const etape = monEtapeCourante;
    if (!etape)
        return;
    QPointer<DAssistant> const garde(this);
    if (etape->BloqueRetour() || !garde || etape != monEtapeCourante)
        return;
    if (!etape->PeutRevenir() || !garde || etape != monEtapeCourante)
        return;
    if (!monHistorique.isEmpty() && RevientA(monHistorique.takeLast()))
        EntreDansEtapeCourante();
}

bool DAssistant::PriseBoutonSuivant()
{
    DAssistantEtape * const etape = monEtapeCourante;
    QPointer<DAssistant> const garde(this);
    if (etape && (etape->BloqueAvance() || !garde || etape != monEtapeCourante))
        return false;
    monBoutonSuivant->setEnabled(false);
    monBoutonTermine->setEnabled(false);
    if (etape && (!etape->PeutAvancer() || !garde || etape != monEtapeCourante))
        return false;

    int const cible = RangeeCourante() + 1; // the first one from no step
    if (cible >= mesEtapes.size())
        return false; // behind the last step there is none: it refuses as any other may

    if (etape)
        monHistorique.append(etape);
    DAssistantEtape * const suivante = mesEtapes.at(cible);
    monEtapeCourante = suivante;
    maPile->setCurrentWidget(suivante);
    monBoutonPrecedent->setEnabled(!monHistorique.isEmpty()); // nothing is behind the first one
    ChangeTitre();
    if (!garde || suivante != monEtapeCourante)
        return true; // the step has moved on as it was shown, or whoever listens to the title
    monMaxEtape = std::max(monMaxEtape, cible);
    ActiveRangee(cible);
    SelectionneRangee(cible);
    EntreDansEtapeCourante();
    return true;
}

void DAssistant::PriseBoutonTermine()
{
    QPointer<DAssistant> const garde(this);
    if (!monEtapeCourante || !monEtapeCourante->PeutTerminer() || !garde)
        return;
    monBoutonSuivant->setEnabled(false);
    monBoutonTermine->setEnabled(false);
    accept();
}

void DAssistant::changeEvent(QEvent * evenement)
{
    QDialog::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange)
        AccordeTexte();
}

void DAssistant::closeEvent(QCloseEvent * evenement)
{
    QPointer<DAssistant> const garde(this);
    bool const peut = !monEtapeCourante || monEtapeCourante->PeutFermer(evenement);
    if (!garde)
        return;
    if (peut)
        QDialog::closeEvent(evenement);
    else
        evenement->ignore();
}

bool DAssistant::eventFilter(QObject * objet, QEvent * evenement)
{
    bool const choisit =
        evenement->type() == QEvent::KeyPress || evenement->type() == QEvent::InputMethod;
    if (objet != maVueEtapes || !choisit)
        return QDialog::eventFilter(objet, evenement);

    // The view goes on with its current index once a key has selected a row. The jump waits for
    // that: a refused one puts the current index back, and a step may delete the wizard.
    QPointer<DAssistant> const garde(this);
    maToucheEnCours = true;
    maRangeeChoisie = -1;
    objet->event(evenement);
    if (!garde)
        return true;
    maToucheEnCours = false;
    if (maRangeeChoisie >= 0)
        SauteA(maRangeeChoisie, maRangeeChoisie - RangeeCourante());
    else
        SelectionneRangee(RangeeCourante()); // Ctrl+Space has taken the selection off
    return true;
}

void DAssistant::keyPressEvent(QKeyEvent * evenement)
{
    // Escape closes the window as its own button does, so the step is asked.
    if (evenement->matches(QKeySequence::Cancel))
        close();
    else
        QDialog::keyPressEvent(evenement);
}

void DAssistant::showEvent(QShowEvent * evenement)
{
    QDialog::showEvent(evenement);
    if (!monEtapeCourante) {
        if (mesEtapes.isEmpty())
            return;
        monEtapeCourante = mesEtapes.first();
        maPile->setCurrentWidget(monEtapeCourante);
        ActiveRangee(0);
        SelectionneRangee(0);
    }
    DAssistantEtape const * const etape = monEtapeCourante;
    ChangeTitre();
    if (etape == monEtapeCourante)
        EntreDansEtapeCourante();
}

void DAssistant::ChangeTitre()
{
    if (!monEtapeCourante)
        return;
    QPointer<DAssistant> const garde(this);
    setWindowTitle(monEtapeCourante->DonneTitre()); // may destroy the wizard
    if (!garde)
        return;
    // Qt tells assistive technologies of a window's title only when the window is activated.
    QAccessibleEvent nouvelle(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&nouvelle);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a slot, whose signature others name
void DAssistant::PriseSelectionEtape(QItemSelection selectionnay, QItemSelection deselectionnay)
{
    if (!monEtapeCourante)
        return;
    QModelIndexList const nouvelles = selectionnay.indexes();
    QModelIndexList const anciennes = deselectionnay.indexes();
    if (nouvelles.isEmpty() || anciennes.isEmpty())
        return;

    int const rangee = nouvelles.first().row();
    if (rangee == RangeeCourante())
        return; // by a move already made
    if (maToucheEnCours)
        maRangeeChoisie = rangee;
    else
        SauteA(rangee, rangee - anciennes.first().row());
}

void DAssistant::PriseClicEtape(QModelIndex const & index)
{
    // The list clicks disabled items too and selects nothing by itself.
    if (!index.flags().testFlag(Qt::ItemIsEnabled))
        return;
    ActiveRangee(index.row()); // the host may have enabled the item only, which can't be selected
    maVueEtapes->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
}

void DAssistant::PriseEtapeEnlevay()
{
    // Found by its absence: the host may have put widgets of its own among the steps.
    auto const enlevay = std::find_if(mesEtapes.cbegin(), mesEtapes.cend(),
                                      [this](auto * etape) { return maPile->indexOf(etape) < 0; });
    if (enlevay == mesEtapes.cend())
        return;
    DAssistantEtape * const etape = *enlevay;
    auto const index = int(enlevay - mesEtapes.cbegin());
    bool const etaitCourante = etape == monEtapeCourante;
    if (etaitCourante)
        monEtapeCourante = nullptr; // the row that goes selects a neighbour, which is no jump
    // The row first: its selection model speaks up while the row is still counted.
    delete maVueEtapes->takeItem(index);
    mesEtapes.removeAt(index);
    monHistorique.removeAll(etape);
    NumeroteRangees();
    if (!etaitCourante)
        return;

    if (mesEtapes.isEmpty()) {
        for (auto * const bouton : {monBoutonPrecedent, monBoutonSuivant, monBoutonTermine})
            bouton->setEnabled(false);
        return;
    }
    DAssistantEtape * const suite =
        monHistorique.isEmpty() ? mesEtapes.first() : monHistorique.takeLast();
    ActiveRangee(int(mesEtapes.indexOf(suite)));
    if (RevientA(suite) && isVisible()) // a hidden wizard enters it when it is shown
        EntreDansEtapeCourante();
}

int DAssistant::RangeeCourante() const
{
    return int(mesEtapes.indexOf(monEtapeCourante));
}

void DAssistant::SelectionneRangee(int rangee)
{
    QModelIndex const index = maVueEtapes->model()->index(rangee, 0);
    if (!index.isValid())
        return;
    QItemSelectionModel * const selection = maVueEtapes->selectionModel();
    selection->select(index, QItemSelectionModel::ClearAndSelect);
    // The arrow keys go on from the step.
    selection->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void DAssistant::SauteA(int rangee, int distance)
{
    QPointer<DAssistant> const garde(this);
    DAssistantEtape const * const cible = mesEtapes.value(rangee);
    for (int pas = std::abs(distance);
         pas > 0 && garde && monEtapeCourante && monEtapeCourante != cible; --pas) {
        // Deliberate: a step that refuses to go back is asked again by each of the moves.
        if (distance < 0)
            PriseBoutonPrecedent();
        else if (!PriseBoutonSuivant())
            break;
    }
    // The row of the step that was reached: from any other the next click would measure its
    // distance from a step where the wizard is not.
    if (garde)
        SelectionneRangee(RangeeCourante());
}

bool DAssistant::RevientA(DAssistantEtape * etape)
{
    monEtapeCourante = etape;
    SelectionneRangee(RangeeCourante());
    monBoutonSuivant->setEnabled(false);
    monBoutonTermine->setEnabled(false);

    QPointer<DAssistant> const garde(this);
    bool const reste = !monHistorique.isEmpty() || etape->GardePrecedentActif();
    if (!garde || etape != monEtapeCourante)
        return false;
    if (!reste)
        monBoutonPrecedent->setEnabled(false);
    maPile->setCurrentWidget(etape);
    ChangeTitre();
    return garde && etape == monEtapeCourante;
}

void DAssistant::EntreDansEtapeCourante()
{
    maVueEtapes->setAccessibleName(DonneTitreGenerique(monEtapeCourante));
    QPointer<DAssistant> const garde(this);
    monEtapeCourante->EntreDansEtape();
    if (garde)
        RangeFocus();
}
