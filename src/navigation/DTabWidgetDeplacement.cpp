// navigation/DTabWidgetDeplacement.cpp
#include "navigation/DTabBarInterne.h"
#include "navigation/DTabWidget.h"

#include <QSignalBlocker>
#include <QStackedWidget>

namespace {

// Under which all that a host has attached to a tab arrives in another widget.
constexpr int kCleApresDeplacement = Qt::UserRole + 1;

// Of one place of the pile. The page on show is never taken out, since it would lose the focus and
// be hidden for a moment: its neighbours pass it by instead.
void DeplacePage(QStackedWidget & pile, int de, int vers)
{
    auto const deplace = [&pile](int depart, int arrivee) {
        QWidget * const page = pile.widget(depart);
        pile.removeWidget(page);
        pile.insertWidget(arrivee, page);
    };
    if (de != pile.currentIndex()) {
        deplace(de, vers);
        return;
    }
    int const pas = de < vers ? 1 : -1;
    for (int i = de; i != vers; i += pas)
        deplace(i + pas, i);
}

} // namespace

bool DTabWidget::EnvoieOnglet(int index, DTabWidget * cible, int position)
{
    QWidget const * const page = maPile->widget(index);
    if (!page || !cible || cible == this || Contient(page, cible))
        return false;
    DTabBarInterne & barre = *cible->PreteBarreInterne();
    if (barre.DonneIdentifiantGroupe() != PreteBarreInterne()->DonneIdentifiantGroupe())
        return false;
    PriseDeplaceOngletVersBarreExterne(index, &barre, position);
    return true;
}

void DTabWidget::DetacheOnglet(int index)
{
    QWidget const * const page = maPile->widget(index);
    if (!page)
        return;
    QPointer<DTabWidget> const vivant(this);
    MetsIndexCourant(index);
    if (vivant && DonneWidgetCourant() == page)
        PriseNouvelleFenetreOngletExistant();
}

void DTabWidget::PriseDeplaceOngletVersBarreExterne(int index, QWidget * barre, int position)
{
    QPointer<DTabWidget> const cible(TrouveDepuis(barre));
    QWidget * const page = maPile->widget(index);
    if (!cible || cible == this || !page || Contient(page, cible))
        return;
    auto const infos = PreteBarreInterne()->DonneInfos(index);
    // Hosts hear of it when bar and pages are in step again on both sides.
    ++mesRetenues;
    ++cible->mesRetenues;
    RetireDeLaPile(page);
    cible->InsereOnglet(page, position, infos.titre);
    position = cible->maPile->indexOf(page);
    cible->MetsIconeOnglet(position, infos.icone);
    // Deliberate: one key for all, whatever theirs was, so that only the last value stays.
    for (QVariant const & donnee : infos.donnees)
        cible->MetsDataOnglet(position, donnee, kCleApresDeplacement);
    RetireDeLaBarre(index);
    --cible->mesRetenues;
    --mesRetenues;

    QPointer<DTabWidget> const vivant(this);
    cible->Diffuse();
    if (vivant)
        Diffuse();
    if (cible)
        cible->activateWindow();
    if (vivant && cible)
        Q_EMIT SignalOngletDeplacayVersBarreExterne(index, position, cible);
}

void DTabWidget::PriseNouvelleFenetreOngletExistant()
{
    Q_EMIT SignalOngletNouvelleFenetre(PreteBarreInterne()->currentIndex(),
                                       maPile->currentWidget());
}

void DTabWidget::PriseOngletDeplacay(int de, int vers)
{
    if (!maPile->widget(de) || !maPile->widget(vers))
        return;
    {
        QSignalBlocker const silence(maPile);
        DeplacePage(*maPile, de, vers);
    }
    if (monIndexPrecedent == de)
        monIndexPrecedent = vers;
    else if (de < monIndexPrecedent && monIndexPrecedent <= vers)
        --monIndexPrecedent;
    else if (vers <= monIndexPrecedent && monIndexPrecedent < de)
        ++monIndexPrecedent;
    Publie({true, de, vers});
}
