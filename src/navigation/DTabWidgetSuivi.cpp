// What keeps bar, pages and colours in step, and tells hosts of it.
#include "navigation/DTabBarInterne.h"
#include "navigation/DTabWidget.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>

#include <utility>

void DTabWidget::changeEvent(QEvent * evenement)
{
    QFrame::changeEvent(evenement);
    // The theme has no signal of its own; an application that changes it changes one of these.
    if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::StyleChange)
        ActualiseCouleurs();
    // Style sheets take their palettes away from the labels, which hear of it only behind this.
    if (evenement->type() == QEvent::StyleChange)
        QMetaObject::invokeMethod(this, &DTabWidget::ActualiseCouleurs, Qt::QueuedConnection);
    if (evenement->type() == QEvent::LanguageChange)
        NommeBoutonsFermeture();
}

bool DTabWidget::eventFilter(QObject * objet, QEvent * evenement)
{
    // A derived class may filter other objects too.
    if (evenement->type() != QEvent::MouseMove || objet != PreteBarreInterne())
        return QFrame::eventFilter(objet, evenement);
    // While it moves a tab with the mouse, Qt's bar does not stand the removal of another: hosts
    // hear of the move when the event is over.
    ++mesRetenues;
    objet->event(evenement);
    --mesRetenues;
    Diffuse();
    return true;
}

void DTabWidget::PriseOngletChangay(int index)
{
    maPile->setCurrentIndex(index);
    MontreActif(index, true);
    // A tab that has only got another index is no new one.
    if (index != monIndexPrecedent) {
        MontreActif(monIndexPrecedent, false);
        GriseTitresNeufs(index);
    }
    monIndexPrecedent = index;
    Publie({false, index, index});
}

void DTabWidget::PrisePageRetiree(int index)
{
    if (monRetraitEnCours)
        return;
    // Amid the destruction of a page or its change of parent, no receiver may destroy this.
    ++mesRetenues;
    RetireDeLaBarre(index);
    --mesRetenues;
    QMetaObject::invokeMethod(this, &DTabWidget::Diffuse, Qt::QueuedConnection);
}

// The index of the new tab; -1 when there is none, and when this is gone.
int DTabWidget::PoseOnglet(QWidget * page, int position)
{
    if (!page || Contient(page, maPile))
        return -1;
    QPointer<DTabWidget> const vivant(this);
    QPointer<QWidget> const pageVivante(page);
    // Out of the tab that it has, before the pile takes it out of there amid its own change.
    DTabWidget * const ancien = TrouveDepuis(page->parentWidget());
    if (ancien)
        ancien->RetireOnglet(ancien->maPile->indexOf(page));
    if (!vivant || !pageVivante)
        return -1;

    int const index = maPile->insertWidget(position, page);
    ++mesRetenues; // Qt's bar does not stand that receivers change it while it inserts a tab
    PreteBarreInterne()->InsereOngletVide(index);
    --mesRetenues;
    if (index <= monIndexPrecedent && DonneTotalOnglet() > 1)
        ++monIndexPrecedent;
    mesPagesNeuves.append(pageVivante);
    Diffuse();
    return vivant ? maPile->indexOf(pageVivante) : -1;
}

void DTabWidget::RetireDeLaPile(QWidget * page)
{
    QScopedValueRollback const retrait(monRetraitEnCours, true);
    maPile->removeWidget(page);
}

void DTabWidget::RetireDeLaBarre(int index)
{
    if (index == monIndexPrecedent)
        monIndexPrecedent = -1;
    else if (index < monIndexPrecedent)
        --monIndexPrecedent;
    ++mesRetenues; // Qt's bar does not stand that receivers change it while it removes a tab
    PreteBarreInterne()->removeTab(index);
    --mesRetenues;
    Diffuse();
}

void DTabWidget::MontreActif(int index, bool actif)
{
    if (index < 0)
        return;
    DTabBarInterne & barre = *PreteBarreInterne();
    QWidget * const droite = barre.tabButton(index, QTabBar::RightSide);
    // Deliberate: a tab without anything there is not drawn as the active one.
    if (droite || !actif)
        barre.MetsCouleurTitre(index, actif);
    if (!droite)
        return;
    droite->setProperty("selectionnay", actif);
    droite->style()->unpolish(droite);
    droite->style()->polish(droite);
    auto * const bouton = qobject_cast<QToolButton *>(droite);
    if (bouton && actif)
        bouton->setIcon(monIconeFermeture);
}

// Titles begin with the active colour. Of all those that are not the active one, the first change
// of tab takes it.
void DTabWidget::GriseTitresNeufs(int indexActif)
{
    for (QPointer<QWidget> const & page : std::exchange(mesPagesNeuves, {})) {
        int const index = maPile->indexOf(page);
        if (index != indexActif)
            PreteBarreInterne()->MetsCouleurTitre(index, false);
    }
}

void DTabWidget::ActualiseCouleurs()
{
    for (int i = 0; i < DonneTotalOnglet(); ++i) {
        bool const actif = i == monIndexPrecedent || mesPagesNeuves.contains(DonneWidget(i));
        PreteBarreInterne()->MetsCouleurTitre(i, actif);
    }
}

void DTabWidget::Publie(Annonce const & annonce)
{
    mesAnnonces.append(annonce);
    Diffuse();
}

void DTabWidget::Diffuse()
{
    QPointer<DTabWidget> const vivant(this);
    while (vivant && mesRetenues == 0 && !mesAnnonces.isEmpty()) {
        Annonce const annonce = mesAnnonces.takeFirst();
        ++mesEmissions;
        if (annonce.deplacement)
            Q_EMIT SignalOngletDeplacay(annonce.de, annonce.vers);
        else
            Q_EMIT SignalOngletCourantChangay(annonce.vers);
        if (vivant)
            --mesEmissions;
    }
}
