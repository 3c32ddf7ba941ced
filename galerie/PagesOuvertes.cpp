// galerie/PagesOuvertes.cpp
#include "PagesOuvertes.h"

#include "CadrePage.h"
#include "FenetreOnglets.h"
#include "OngletsGalerie.h"
#include "Pages.h"

#include "foundation/GeometrieEcran.h"

#include <QCursor>
#include <QLayout>
#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Logical pixels.
constexpr QPoint kPriseDuTitre(60, 12); // from a window's corner to the mouse that has drawn it out
constexpr QPoint kDecalage(40, 40);     // from the corner of the window that a tab came out of

void AmeneDevant(QWidget & fenetre)
{
    fenetre.setWindowState(fenetre.windowState() & ~Qt::WindowMinimized);
    fenetre.show();
    fenetre.raise();
    fenetre.activateWindow();
}

// `cadre` is what the frame adds to a window: a new one has none of its own before it is shown.
void PlaceDansEcran(QWidget & fenetre, QPoint const & coin, QSize const & cadre)
{
    fenetre.layout()->activate(); // grows to what the page needs, before that has to fit
    QRect place(coin, fenetre.size() + cadre);
    RoutinesGeneralesQt::AjusteDansEcran(place, false, true, true);
    fenetre.move(place.topLeft());
    fenetre.resize(place.size() - cadre);
}

} // namespace

PagesOuvertes::PagesOuvertes(ThemeGalerie & theme, OngletsGalerie & principaux)
    : monTheme(theme)
    , mesPrincipaux(principaux)
    , mesSaisies(DonnePages().size())
{
    Branche(principaux);
}

PagesOuvertes::~PagesOuvertes()
{
    for (FenetreOnglets * const fenetre : std::as_const(mesFenetres)) {
        disconnect(&fenetre->PreteOnglets(), nullptr, this, nullptr);
        delete fenetre;
    }
}

void PagesOuvertes::Montre(int page)
{
    if (page < 0 || page >= DonnePages().size())
        return;
    if (Trouve(page).onglets == nullptr)
        Ouvre(page, mesPrincipaux);
    Place const place = Trouve(page);
    place.onglets->MetsIndexCourant(place.index);
    mesActifs = place.onglets;
    if (place.onglets != &mesPrincipaux) {
        AmeneDevant(*place.onglets->window());
        place.onglets->PreteCadreCourant()->ReprendsFocus();
    }
    Actualise();
}

void PagesOuvertes::MontreSeule(int page)
{
    RameneTout();
    Montre(page);
    for (int i = mesPrincipaux.DonneTotalOnglet() - 1; i >= 0; --i)
        if (mesPrincipaux.PreteCadre(i)->DonnePage() != page)
            Ferme(mesPrincipaux.PreteCadre(i)->DonnePage());
}

void PagesOuvertes::RameneTout()
{
    while (!mesFenetres.isEmpty())
        Ramene(*mesFenetres.constFirst());
}

void PagesOuvertes::Refais()
{
    for (OngletsGalerie * const onglets : DonneOnglets()) {
        for (int i = 0; i < onglets->DonneTotalOnglet(); ++i)
            onglets->PreteCadre(i)->Defais();
        if (CadrePage * const courant = onglets->PreteCadreCourant())
            courant->Construis();
    }
}

void PagesOuvertes::Habille()
{
    for (OngletsGalerie * const onglets : DonneOnglets()) {
        onglets->window()->setLocale(QLocale());
        onglets->Habille();
    }
    Actualise();
}

PagesOuvertes::Place PagesOuvertes::Trouve(int page) const
{
    for (OngletsGalerie * const onglets : DonneOnglets())
        if (int const index = onglets->TrouvePage(page); index >= 0)
            return {onglets, index};
    return {};
}

QList<OngletsGalerie *> PagesOuvertes::DonneOnglets() const
{
    QList<OngletsGalerie *> tous{&mesPrincipaux};
    for (FenetreOnglets const * const fenetre : mesFenetres)
        tous.append(&fenetre->PreteOnglets());
    return tous;
}

QList<int> PagesOuvertes::DonneFermees() const
{
    QList<int> fermees;
    for (int i = 0; i < DonnePages().size(); ++i)
        if (Trouve(i).onglets == nullptr)
            fermees.append(i);
    return fermees;
}

void PagesOuvertes::Branche(OngletsGalerie & onglets)
{
    connect(&onglets, &DTabWidget::SignalAjouteOnglet, this, [&] { PriseAjout(onglets); });
    connect(&onglets, &DTabWidget::SignalDemandeFermetureOnglet, this,
            [&](int index) { PriseFermeture(onglets, index); });
    connect(&onglets, &DTabWidget::SignalOngletCourantChangay, this,
            [&] { PriseOngletMontray(onglets); });
    connect(&onglets, &DTabWidget::SignalOngletDeplacayVersBarreExterne, this,
            [&](int, int position, DTabWidget * cible) {
                PriseOngletEnvoyay(onglets, *cible, position);
            });
    connect(&onglets, &DTabWidget::SignalOngletNouvelleFenetre, this,
            [&](int index) { PriseDetachement(onglets, index); });
    connect(&onglets, &OngletsGalerie::SignalMenuOnglet, this,
            [&](int index, QPoint const & point) { PriseMenu(onglets, index, point); });
    connect(&onglets, &OngletsGalerie::SignalActivay, this, [&] { PriseActivation(onglets); });
}

FenetreOnglets & PagesOuvertes::CreeFenetre()
{
    auto * const fenetre = new FenetreOnglets;
    mesFenetres.append(fenetre);
    Branche(fenetre->PreteOnglets());
    connect(fenetre, &FenetreOnglets::SignalFermay, this, [this, fenetre] { Ramene(*fenetre); });
    return *fenetre;
}

// Most of what a page costs is its building: it is built when its tab is first shown.
void PagesOuvertes::Ouvre(int page, OngletsGalerie & onglets)
{
    auto * const cadre = new CadrePage(page, monTheme, mesSaisies.at(page));
    onglets.AjouteCadre(*cadre);
    onglets.MetsIndexCourant(onglets.TrouvePage(page));
    Actualise();
}

void PagesOuvertes::Ferme(int page)
{
    Place const place = Trouve(page);
    if (place.onglets == nullptr)
        return;
    OngletsGalerie & onglets = *place.onglets;
    CadrePage * const cadre = onglets.PreteCadre(place.index);
    mesSaisies[page] = cadre->DonneSaisies();
    bool const avaitFocus = cadre->isAncestorOf(onglets.window()->focusWidget());
    onglets.RetireOnglet(place.index);
    delete cadre;
    RetireSiVide(onglets);
    CadrePage * const courant = onglets.PreteCadreCourant();
    if (avaitFocus && courant != nullptr)
        courant->ReprendsFocus();
    Actualise();
}

void PagesOuvertes::Detache(int page)
{
    Place const place = Trouve(page);
    if (place.onglets == nullptr)
        return;
    jeDetacheAuClavier = true;
    place.onglets->DetacheOnglet(place.index);
    jeDetacheAuClavier = false;
}

void PagesOuvertes::Envoie(int page, OngletsGalerie * cible)
{
    Place const place = Trouve(page);
    if (place.onglets != nullptr && cible != nullptr)
        place.onglets->EnvoieOnglet(place.index, cible, cible->DonneTotalOnglet());
}

void PagesOuvertes::Ramene(FenetreOnglets & fenetre)
{
    OngletsGalerie & onglets = fenetre.PreteOnglets();
    CadrePage * const courant = onglets.PreteCadreCourant();
    Retire(fenetre); // what is shown in it on the way is not worth building
    while (CadrePage * const cadre = onglets.PreteCadre(0)) {
        onglets.RetireOnglet(0);
        mesPrincipaux.AjouteCadre(*cadre);
    }
    if (courant != nullptr) {
        mesPrincipaux.MetsIndexCourant(mesPrincipaux.TrouvePage(courant->DonnePage()));
        courant->ReprendsFocus();
    }
    Actualise();
}

// Later, as it may be in the middle of a release of the mouse.
void PagesOuvertes::Retire(FenetreOnglets & fenetre)
{
    mesFenetres.removeOne(&fenetre);
    disconnect(&fenetre, nullptr, this, nullptr);
    disconnect(&fenetre.PreteOnglets(), nullptr, this, nullptr);
    if (mesActifs == &fenetre.PreteOnglets())
        mesActifs.clear();
    fenetre.hide();
    fenetre.deleteLater();
}

void PagesOuvertes::RetireSiVide(OngletsGalerie & onglets)
{
    auto * const fenetre = qobject_cast<FenetreOnglets *>(onglets.window());
    if (fenetre != nullptr && onglets.DonneTotalOnglet() == 0)
        Retire(*fenetre);
}

void PagesOuvertes::Actualise()
{
    bool const ajout = !DonneFermees().isEmpty();
    for (OngletsGalerie * const onglets : DonneOnglets())
        onglets->MetsAjout(ajout);
    for (FenetreOnglets * const fenetre : std::as_const(mesFenetres))
        fenetre->MetsTitre();
    Q_EMIT SignalPrincipauxChangays(mesPrincipaux.DonneTotalOnglet() == 0);
    OngletsGalerie & actifs = mesActifs ? *mesActifs : mesPrincipaux;
    CadrePage const * const courant = actifs.PreteCadreCourant();
    Q_EMIT SignalPageMontray(courant != nullptr ? courant->DonnePage() : -1);
}

void PagesOuvertes::PriseFermeture(OngletsGalerie & onglets, int index)
{
    // None for a click beside the tabs.
    if (CadrePage const * const cadre = onglets.PreteCadre(index))
        Ferme(cadre->DonnePage());
}

void PagesOuvertes::PriseOngletMontray(OngletsGalerie & onglets)
{
    if (CadrePage * const courant = onglets.PreteCadreCourant())
        courant->Construis();
    Actualise();
}

void PagesOuvertes::PriseOngletEnvoyay(OngletsGalerie & source, DTabWidget & cible, int position)
{
    auto * const onglets = qobject_cast<OngletsGalerie *>(&cible);
    if (onglets == nullptr)
        return;
    onglets->MetsIndexCourant(position);
    AmeneDevant(*onglets->window()); // it may have been minimized
    onglets->PreteCadreCourant()->ReprendsFocus();
    mesActifs = onglets;
    RetireSiVide(source);
    Actualise();
}

void PagesOuvertes::PriseDetachement(OngletsGalerie & onglets, int index)
{
    QRect const origine = onglets.window()->frameGeometry();
    QSize const cadre = origine.size() - onglets.window()->size();
    QPoint const coin =
        jeDetacheAuClavier ? origine.topLeft() + kDecalage : QCursor::pos() - kPriseDuTitre;
    auto * seule = qobject_cast<FenetreOnglets *>(onglets.window());
    if (seule == nullptr || onglets.DonneTotalOnglet() > 1)
        seule = &DeplaceDansNouvelleFenetre(onglets, index);
    PlaceDansEcran(*seule, coin, cadre);
    AmeneDevant(*seule);
    mesActifs = &seule->PreteOnglets();
    seule->PreteOnglets().PreteCadreCourant()->ReprendsFocus();
    Actualise();
}

// The page is on show, so it is built, and goes over as it is.
FenetreOnglets & PagesOuvertes::DeplaceDansNouvelleFenetre(OngletsGalerie & onglets, int index)
{
    CadrePage * const cadre = onglets.PreteCadre(index);
    QSize const taille = onglets.size();
    onglets.RetireOnglet(index);
    FenetreOnglets & fenetre = CreeFenetre();
    fenetre.resize(taille);
    fenetre.PreteOnglets().AjouteCadre(*cadre);
    return fenetre;
}

void PagesOuvertes::PriseActivation(OngletsGalerie & onglets)
{
    mesActifs = &onglets;
    Actualise();
}
