// lists/ListePastille.cpp
#include "lists/ListePastille.h"

#include "controls/DBoutonSansFleche.h"

#include "lists/LayoutHorizontalAvecChevron.h"
#include "lists/Pastille.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

ListePastille::ListePastille(QWidget * parent)
    : DFrameChevronnable(parent)
{
    Initialise();
}

ListePastille::ListePastille()
{
    Initialise();
}

void ListePastille::AjoutePastille(Pastille * pastille)
{
    if (!pastille)
        return;
    bool const menuAJour = layout()->count() == monNombreAuMenu;
    QWidget * const precedente = TrouvePrecedente();
    addWidget(pastille, 0);
    // Shown here, while nothing is laid out: Qt would show it later, and lay out the whole row for
    // each pill.
    layout()->setEnabled(false);
    pastille->resize(0, 0);
    pastille->show();
    layout()->setEnabled(true);
    // Qt orders only what takes the focus, which neither the row does nor a pill under the chevron.
    Qt::FocusPolicy const politique = precedente->focusPolicy();
    precedente->setFocusPolicy(Qt::TabFocus);
    setTabOrder(precedente, pastille);
    precedente->setFocusPolicy(politique);
    CompleteMenu(*pastille, menuAJour);
}

void ListePastille::RetirePastille(Pastille * pastille, QWidget * suivant)
{
    int const index = pastille ? layout()->indexOf(pastille) : -1;
    if (index < 0)
        return;
    bool const avaitLeFocus = pastille->hasFocus();
    RetireWidget(pastille);
    if (avaitLeFocus) {
        // The row closes up first: the next pill may have been under the chevron until now.
        layout()->activate();
        QWidget * cible = TrouveVisible(index, 1);
        if (!cible)
            cible = TrouveVisible(index - 1, -1);
        if (!cible)
            cible = suivant;
        if (cible)
            cible->setFocus();
    }
    pastille->Supprime();
}

Pastille * ListePastille::TrouvePastille(QVariant const & donnees) const
{
    for (int i = 0; i < layout()->count(); ++i) {
        auto * const pastille = qobject_cast<Pastille *>(PreteWidgetA(i));
        if (pastille && pastille->DonneData() == donnees)
            return pastille;
    }
    return nullptr;
}

void ListePastille::Vide()
{
    // From the end: the row does not move up again and again.
    for (int i = layout()->count() - 1; i >= 0; --i) {
        auto * const pastille = qobject_cast<Pastille *>(PreteWidgetA(i));
        if (!pastille)
            continue;
        RetireWidget(pastille);
        pastille->Supprime();
    }
    DFrameChevronnable::Vide();
}

QSize ListePastille::sizeHint() const
{
    // The row itself asks for no height, and pills would be neither seen nor clicked.
    int hauteur = 0;
    for (int i = 0; i < layout()->count(); ++i) {
        if (QWidget const * const widget = PreteWidgetA(i))
            hauteur = std::max(hauteur, widget->sizeHint().height());
    }
    return {DFrameChevronnable::sizeHint().width(), hauteur};
}

void ListePastille::keyPressEvent(QKeyEvent * evenement)
{
    bool const gauche = evenement->key() == Qt::Key_Left;
    if ((!gauche && evenement->key() != Qt::Key_Right) || evenement->modifiers()) {
        DFrameChevronnable::keyPressEvent(evenement);
        return;
    }
    // Deliberate: not mirrored, as the row is laid out from left to right in every language.
    int const index = layout()->indexOf(focusWidget());
    int const pas = gauche ? -1 : 1;
    QWidget * const voisine = index < 0 ? nullptr : TrouveVisible(index + pas, pas);
    if (voisine)
        voisine->setFocus(gauche ? Qt::BacktabFocusReason : Qt::TabFocusReason);
}

void ListePastille::resizeEvent(QResizeEvent * evenement)
{
    DimensionneChevron();
    DFrameChevronnable::resizeEvent(evenement);
}

void ListePastille::PriseRangeeMiseEnPlace()
{
    monNombreAuMenu = -1;
}

void ListePastille::Initialise()
{
    DimensionneChevron();
    connect(qobject_cast<LayoutHorizontalAvecChevron *>(layout()),
            &LayoutHorizontalAvecChevron::SignalMiseEnPlace, this,
            &ListePastille::PriseRangeeMiseEnPlace, Qt::UniqueConnection);
}

void ListePastille::DimensionneChevron()
{
    PreteBoutonChevron()->setMaximumHeight(height());
    PreteBoutonChevron()->setMaximumWidth(height());
}

void ListePastille::CompleteMenu(Pastille & pastille, bool etaitAJour)
{
    QMenu * const menu = PreteBoutonChevron()->menu();
    // Rebuilding it for each of many pills would take a time that grows with the square of their
    // number. What is not laid out yet has no place in the row, and stands at the end of the menu.
    if (etaitAJour && menu) {
        QAction * const action = pastille.DonneQAction();
        action->setParent(menu);
        menu->addAction(action);
    } else {
        MetAJourMenu();
    }
    monNombreAuMenu = layout()->count();
}

QWidget * ListePastille::TrouvePrecedente()
{
    for (int i = layout()->count() - 1; i >= 0; --i) {
        if (QWidget * const widget = PreteWidgetA(i))
            return widget;
    }
    return this;
}

Pastille * ListePastille::TrouveVisible(int index, int pas) const
{
    for (int i = index; i >= 0 && i < layout()->count(); i += pas) {
        auto * const pastille = qobject_cast<Pastille *>(PreteWidgetA(i));
        if (pastille && WidgetEstVisible(i))
            return pastille;
    }
    return nullptr;
}
