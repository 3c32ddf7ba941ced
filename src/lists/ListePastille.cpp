// lists/ListePastille.cpp
#include "lists/ListePastille.h"

#include "controls/DBoutonSansFleche.h"

#include "lists/Pastille.h"

#include <QKeyEvent>
#include <QTimerEvent>

#include <algorithm>

namespace {

// Up to here the menu is refreshed at once. Refreshing it for each of many pills would take a time
// that grows with the square of their number.
constexpr int kPastillesSansAttente = 32;

} // namespace

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
    addWidget(pastille, 0);
    // Shown here, while nothing is laid out: Qt would show it later, and lay out the whole row for
    // each pill.
    layout()->setEnabled(false);
    pastille->resize(0, 0);
    pastille->show();
    layout()->setEnabled(true);
    // By way of the landmark: pills under the chevron take no focus, and Qt orders none of these.
    setTabOrder(monRepere, pastille);
    setTabOrder(pastille, monRepere);
}

void ListePastille::RetirePastille(Pastille * pastille, QWidget * suivant)
{
    int const index = layout()->indexOf(pastille);
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

void ListePastille::RafraichisMenu()
{
    if (layout()->count() <= kPastillesSansAttente)
        MetAJourMenu();
    else if (!monRafraichissement.isActive())
        monRafraichissement.start(0, this);
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

void ListePastille::timerEvent(QTimerEvent * evenement)
{
    if (evenement->timerId() != monRafraichissement.timerId()) {
        DFrameChevronnable::timerEvent(evenement);
        return;
    }
    monRafraichissement.stop();
    MetAJourMenu();
}

void ListePastille::Initialise()
{
    DimensionneChevron();
    monRepere = new QWidget(this);
    monRepere->hide();
    monRepere->setFocusPolicy(Qt::TabFocus);
    // The order of Tab is a ring. Of two alone, each is behind the other already, and Qt would
    // leave them as they are.
    QWidget tiers(this);
    tiers.setFocusPolicy(Qt::TabFocus);
    setTabOrder(monRepere, PreteBoutonChevron());
}

void ListePastille::DimensionneChevron()
{
    PreteBoutonChevron()->setMaximumHeight(height());
    PreteBoutonChevron()->setMaximumWidth(height());
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
