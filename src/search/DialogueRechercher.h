// search/DialogueRechercher.h
#pragma once

#include "FabrelGuiExport.h"

#include "search/WidgetRechercheAbstrait.h"

#include <QDialog>

class QAbstractButton;
class QButtonGroup;
class QLineEdit;
class QPushButton;
struct ChaineLocalisable;

/// The search dialog: the front end with every option in sight, for searches that are set up first
/// and then asked for. It is not modal; the document is edited while it stands open.
///
/// The mask of the constructor, bits of `CstRecherche::eOption`, says which options it offers;
/// `kTexteEdite` offers nothing. `kHaut` and `kBas` exclude each other, so do `kContient` and
/// `kCommencePar`; one that is offered without the other is switched on and off, but `kContient`
/// stays on. As in the bar, whole words and beginnings exclude each other: "mot entier" is disabled
/// and does not count while "commence par" is on. A new dialog has "boucler", "contient" and
/// "vers le bas" on.
///
/// The option word has, as of the last refresh, the bits of what is checked, also by a program.
/// Where no direction is offered, it has the bit of the direction of the request. What the user or
/// the host asks for in a direction also checks that direction, but not `BoutonChercher`,
/// `TexteDeRechercheChanger` and `EffectuerRecherche`.
/// "Chercher" searches in the direction that is checked, and downward where none is offered.
///
/// Nothing is searched while one types. Return searches, and replaces in the replacement field;
/// neither works without a text to search for, nor while everything is being replaced. Escape and
/// the close button of the window do the same as "Fermer". Tab and, within a choice, the arrows
/// reach every control that is enabled.
///
/// A new one opens where the last search dialog of the process was left, unless the application
/// moved it; one that opens again, where it was itself. Either is brought back to a screen when its
/// title bar is on none. A host may delete it in its callbacks, except
/// `CallbackNettoyerRecherche`; a receiver in the signals of this class.
class FABRELGUI_EXPORT DialogueRechercher : public QDialog, public WidgetRechercheAbstrait
{
    Q_OBJECT

public:
    /// `remplacer` adds the replacement field, "Remplacer", "Tout remplacer" and "Annuler".
    DialogueRechercher(QWidget * parent, bool remplacer, short masque);
    ~DialogueRechercher() override;

    using WidgetRechercheAbstrait::AfficheToi;

    /// In a bubble over the dialog or, while it is hidden or minimised, over its parent.
    void AfficheMessageTexteIntrouvable(bool pourListe) const override;
    /// Shows the dialog in front of its window. One that was open is not activated.
    void AfficheToi() override;
    /// While everything is being replaced only "Annuler" and "Fermer" can be pressed.
    void MetEnCoursDeRemplacerTout(bool enCours) override;
    void CacheToi() override;
    QWidget * DonneMoiEnWidget() override;
    void MetsChaineAChercher(UniChaine chaine) override;
    /// A new search leaves the direction that is checked.
    void ModifieSensRecherche(CstRecherche::eTypeRecherche type) override;
    void PrendsChaineRecherche(QString const & chaine) override;
    /// Also to the replacement field, where there is one.
    void PrendsChaineRemplacement(QString const & chaine) override;
    /// Activates the dialog; the search field takes the focus with all its text selected.
    void PrendsFocus() override;
    void ChercherSuivant() override;
    void ChercherPrecedent() override;
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The dialog is about to be hidden, by the host or by the user; unless it was hidden already,
    /// those of `QDialog` follow, always as for a rejected one.
    void SignalFermeture();
    /// The user closes the dialog; `SignalFermeture` follows.
    void SignalDialogueRechercheFermay();

public Q_SLOTS:
    /// Cancels replacing everything, tells that the user closes the dialog, and hides it.
    void PriseBoutonFermer() override;
    void reject() override;

protected Q_SLOTS:
    void PriseActualiserEtatPanneau() override;
    void PriseBoutonChercher() override;
    void PriseChercherSuivant() override;
    void PriseChercherPrecedent() override;
    void PriseBoutonRemplacerTout() override;
    void PriseBoutonRemplacer() override;
    void PriseBoutonAnnuler() override;

protected:
    void ActualiserEtatPanneau() override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;

private Q_SLOTS:
    void PriseSensChoisi();
    void PriseActualiserBoutons();

private:
    QLineEdit * CreeChamp(QString const & nom);
    void CreeChamps();
    void CreeOptions(short masque);
    QAbstractButton * CreeOption(QString const & nom, ChaineLocalisable const & texte,
                                 QButtonGroup * groupe);
    QPushButton * CreeBouton(QString const & nom, ChaineLocalisable const & texte);
    void CreeBoutons();
    void Dispose();
    void Branche();
    bool OffreSens() const;
    bool EstVersLeHaut() const;
    void CocheSens(bool versLeHaut);
    void RetiensPosition();
    void ReprendsPosition();

    bool monRemplacementEnCours = false;
    QLineEdit * monChampRecherche = nullptr;
    QLineEdit * monChampRemplacement = nullptr; // null without replacing, as are its buttons
    // Each null unless the mask asks for it.
    QAbstractButton * maCaseMotEntier = nullptr;
    QAbstractButton * maCaseCasse = nullptr;
    QAbstractButton * maCaseBoucler = nullptr;
    QAbstractButton * monChoixContient = nullptr;
    QAbstractButton * monChoixCommencePar = nullptr;
    QAbstractButton * monChoixBas = nullptr;
    QAbstractButton * monChoixHaut = nullptr;
    QPushButton * monBoutonChercher = nullptr;
    QPushButton * monBoutonRemplacer = nullptr;
    QPushButton * monBoutonRemplacerTout = nullptr;
    QPushButton * monBoutonAnnuler = nullptr;
    QPushButton * monBoutonFermer = nullptr;
};
