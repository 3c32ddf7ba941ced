// search/BarreRecherche.h
#pragma once

#include "FabrelGuiExport.h"

#include "search/WidgetRechercheAbstrait.h"

#include <QActionGroup>
#include <QFrame>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

/// A thin band to search, and on request to replace, in the document above or below it. It offers
/// the controls, and turns clicks and keys into calls on its host, `UtilisateurWidgetRecherche`.
///
/// What the host has to see to:
///
/// - Escape closes the bar when the key is released in one of its fields, whatever its press did:
///   it may have closed a menu, a list or a box. The press travels on, and so does that of Return
///   and Enter. In a `QDialog` these would close the dialog and press its default button: install
///   an event filter on the bar which accepts a `QEvent::KeyPress` of `Qt::Key_Escape`,
///   `Qt::Key_Return` and `Qt::Key_Enter` and returns true. A field keeps none of these presses, so
///   that they arrive at the bar after it.
/// - That filter also takes Escape that comes from the buttons of the bar, where its release does
///   nothing. So that the key closes the bar there too, the host closes it from the filter at the
///   release, while the focus is in neither field.
/// - A key that is held down releases and presses again by itself: the first such release closes
///   the bar, and the next press goes to what has the focus then, be it the dialog. A second filter
///   on the fields, installed after the bar's own, keeps from them every release of Escape that
///   `isAutoRepeat()`.
/// - Escape does not cancel a replacement of everything that is running; the close button does.
/// - Each showing, also by the desktop, activates the window, selects the text of the search field
///   and gives it the focus. When the bar closes, the focus goes wherever Qt leads it: give it to
///   the document on `SignalFermeture`, when the bar still has it.
/// - With the counter both arrows start disabled, and `ActualiseOccurrences` enables them. Without
///   it they are always enabled but while everything is being replaced.
/// - The bar may be deleted from its two signals and from `CallbackAnnulerRemplacerTout`, unless
///   another call on the host is under way. From the other calls, and from what happens inside
///   them, use `deleteLater`: a field whose key caused the call goes on using itself.
///
/// The icons come from the resources of the application: ":/Images/rechercheX.svg",
/// ":/Images/Options_Recherche.svg", ":/Images/recherchePrecedente.svg" and
/// ":/Images/rechercheSuivante.svg". A button without its icon is empty, yet has its tool tip and
/// its name for assistive technology. Style sheets find the bar as "BandeauRecherche", both fields
/// as "ChampTexteRecherche" and the button of the options as "ToolButtonSansFleche".
///
/// The height is fixed: of one row, or of two while the user replaces.
class FABRELGUI_EXPORT BarreRecherche : public QFrame, public WidgetRechercheAbstrait
{
    Q_OBJECT

public:
    /// `remplacer` adds the menu item which opens the row to replace, `commencePar` and `motEntier`
    /// their modes beside "contains", and `occurrences` the counter.
    explicit BarreRecherche(QWidget * parent = nullptr, bool remplacer = false,
                            bool commencePar = true, bool occurrences = false,
                            bool motEntier = false);
    ~BarreRecherche() override;

    using WidgetRechercheAbstrait::AfficheToi;

    /// The bubble belongs to the parent of the bar.
    ///
    /// Deliberate: each refresh sets `kBoucler`, and then no end is named. A host that stops at the
    /// ends takes the bit away with `PrendsOptions` first.
    void AfficheMessageTexteIntrouvable(bool pourListe) const override;
    void AfficheToi() override;
    void ActualiseOccurrences(int const & position, int const & total) override;
    /// Deliberate: `false` enables the arrows also when nothing was found, until the next
    /// `ActualiseOccurrences`.
    void MetEnCoursDeRemplacerTout(bool enCours) override;
    /// Hides the bar. A host that calls this hears `SignalFermeture` alone.
    void CacheToi() override;
    QWidget * DonneMoiEnWidget() override;
    void MetsChaineAChercher(UniChaine chaine) override;
    void ModifieSensRecherche(CstRecherche::eTypeRecherche type) override;
    void PrendsChaineRecherche(QString const & chaine) override;
    /// Deliberate: the field keeps its text, which takes the place of `chaine` at the next refresh.
    void PrendsChaineRemplacement(QString const & chaine) override;
    void PrendsFocus() override;

Q_SIGNALS:
    /// The bar is about to hide, or is asked to while hidden.
    void SignalFermeture();
    /// The user closed the bar: before `SignalFermeture` with the button, once hidden with Escape.
    void SignalBarreRechercheFermay();

public Q_SLOTS:
    void PriseBoutonFermer() override;

protected Q_SLOTS:
    void PriseActualiserEtatPanneau() override;
    void PriseBoutonChercher() override;
    void PriseChercherSuivant() override;
    void PriseChercherPrecedent() override;
    void PriseBoutonRemplacerTout() override;
    void PriseBoutonRemplacer() override;
    void PriseBoutonAnnuler() override;
    void PriseTexteEditer();

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;
    void ActualiserEtatPanneau() override;

private Q_SLOTS:
    // Deliberate: another name of PriseActualiserEtatPanneau. Both can be connected to by name.
    void PriseActualiseEtatPanneau();

private:
    // The steps of the construction, in BarreRechercheConstruction.cpp.
    void CreeBoutons();
    void CreeChamps(bool avecCompteur);
    void CreeBoutonsRemplacement();
    void CreeMenu(bool commencePar, bool motEntier);
    void PoseGrille();
    void OrdonneTabulation();
    void Branche();
    void BrancheRemplacement();

    void MontreRemplacement(bool visible);

    QToolButton * monBoutonFermer = nullptr;
    QToolButton * monBoutonOptions = nullptr;
    QToolButton * monBoutonPrecedent = nullptr;
    QToolButton * monBoutonSuivant = nullptr;
    QLineEdit * monChampRecherche = nullptr;
    QLabel * monEtiquetteOccurrences = nullptr; // null without the counter
    QLineEdit * monChampRemplacement = nullptr;
    QToolButton * monBoutonRemplacer = nullptr;
    QToolButton * monBoutonRemplacerTout = nullptr;
    QToolButton * monBoutonAnnuler = nullptr;
    QFrame * monCadreBoutonsRemplacement = nullptr;
    QMenu * monMenuOptions = nullptr;
    QActionGroup monGroupeModes;
    QAction * monActionContient = nullptr;
    QAction * monActionCommencePar = nullptr; // null where the mode is not offered
    QAction * monActionMotEntier = nullptr;   // likewise
    QAction * monActionRespecterCasse = nullptr;
    QAction * monActionRemplacer = nullptr; // null where nothing can be replaced
    bool monEnCoursDeRemplacerTout = false;
};
