// galerie/OngletsGalerie.h
#pragma once

#include "navigation/DTabWidget.h"

class CadrePage;

/// The tabs of one window of the gallery: each holds a `CadrePage`.
///
/// Ctrl+Tab and Ctrl+Shift+Tab walk through them from anywhere in the window, and Ctrl+W asks to
/// close the current one, as its button does.
class OngletsGalerie : public DTabWidget
{
    Q_OBJECT

public:
    explicit OngletsGalerie(QWidget * parent = nullptr);

    /// Null without a tab of that index, and for one whose page is on its way to another window.
    CadrePage * PreteCadre(int index);
    CadrePage * PreteCadreCourant();
    /// The index of the tab that holds the page; -1 without one.
    int TrouvePage(int page);

    /// Adds a tab at the end.
    void AjouteCadre(CadrePage & cadre);
    /// Gives each tab its title and its icon again, in the language and the theme.
    void Habille();
    /// Shows or hides the add button.
    void MetsAjout(bool possible);

Q_SIGNALS:
    /// A menu of the tab is asked for, at a point of the screen.
    void SignalMenuOnglet(int index, QPoint const & point);
    /// The window became the active one.
    void SignalActivay();

protected:
    bool event(QEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private Q_SLOTS:
    void PriseSuivant();
    void PrisePrecedent();
    void PriseFermer();
    void PriseMenuAuClavier();

private:
    void AccordeLigne();
    void BrancheClavier();
    void HabilleOnglet(int index);
    void Tourne(int pas);
};
