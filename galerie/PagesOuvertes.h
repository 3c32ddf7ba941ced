// galerie/PagesOuvertes.h
#pragma once

#include "SaisiesPage.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>

class CadrePage;
class DTabWidget;
class FenetreOnglets;
class OngletsGalerie;
class QMenu;
class ThemeGalerie;

/// The pages that are open, in the tabs of the main window and of the windows that were torn off
/// it: does what the tabs ask their host for.
///
/// A page is open in one tab at most. What was entered in one that is closed comes back with it.
class PagesOuvertes : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the object, which owns the other windows. `principaux` are the tabs of the
    /// main window.
    PagesOuvertes(ThemeGalerie & theme, OngletsGalerie & principaux);
    ~PagesOuvertes() override;

    /// Makes the page current in whichever window it stands, which comes to the front if it was
    /// torn off; opens the page in the main window where it stands in none.
    void Montre(int page);
    /// Shows the page in the main window and closes all others.
    void MontreSeule(int page);
    /// The windows that were torn off give their pages back to the main one, and go.
    void RameneTout();

    /// Builds the pages again. What was entered stays.
    void Refais();
    /// Gives all windows their texts and icons again.
    void Habille();

Q_SIGNALS:
    /// The page on show in the active window, or in the one that was so last; -1 without one.
    void SignalPageMontray(int page);
    /// A tab of the main window came or went.
    void SignalPrincipauxChangays(bool vides);

private:
    /// A tab, by the window that it stands in.
    struct Place
    {
        OngletsGalerie * onglets = nullptr; // null where there is none
        int index = -1;
    };

    Place Trouve(int page) const;
    QList<OngletsGalerie *> DonneOnglets() const;
    QList<int> DonneFermees() const;

    void Branche(OngletsGalerie & onglets);
    FenetreOnglets & CreeFenetre();
    void Ouvre(int page, OngletsGalerie & onglets);
    void Ferme(int page);
    void Detache(int page);
    void Envoie(int page, OngletsGalerie * cible);
    void Ramene(FenetreOnglets & fenetre);
    void Retire(FenetreOnglets & fenetre);
    void RetireSiVide(OngletsGalerie & onglets);
    FenetreOnglets & DeplaceDansNouvelleFenetre(OngletsGalerie & onglets, int index);
    void AjouteEnvois(QMenu & menu, OngletsGalerie const & onglets, int page);
    void Actualise();

    void PriseAjout(OngletsGalerie & onglets);
    void PriseFermeture(OngletsGalerie & onglets, int index);
    void PriseMenu(OngletsGalerie & onglets, int index, QPoint const & point);
    void PriseOngletMontray(OngletsGalerie & onglets);
    void PriseOngletEnvoyay(OngletsGalerie & source, DTabWidget & cible, int position);
    void PriseDetachement(OngletsGalerie & onglets, int index);
    void PriseActivation(OngletsGalerie & onglets);

    ThemeGalerie & monTheme;
    OngletsGalerie & mesPrincipaux;
    QPointer<OngletsGalerie> mesActifs; // of the window that was active last
    QList<FenetreOnglets *> mesFenetres;
    QList<SaisiesPage> mesSaisies; // of the pages that are closed
    bool jeDetacheAuClavier = false;
};
