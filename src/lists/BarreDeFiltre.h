// lists/BarreDeFiltre.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include "search/DChampRecherche.h"

#include <QFrame>
#include <QPointer>
#include <QVariant>

class ListePastille;
class QComboBox;
class QHBoxLayout;
class QHideEvent;
class QLabel;
class QMenu;
class QMouseEvent;
class QResizeEvent;
class QToolButton;
class ToolTipComboBox;

/// The band above a list of results: the active criteria as pills, a search combo box, the number
/// of results, and a button that opens the filters, as a pop-up of combo boxes or as a menu.
///
/// The bar keeps no model of the filters, and does not filter: the host listens to
/// `SignalValeurChanger` and `PastilleASupprimer` and writes the number back. A filter is known by
/// the id of its combo box and is off while that is at index 0, a pill is known by its data. The
/// host removes a pill with `SupprimerPastille`, also from the slot of its signal.
///
/// The icons come from the resources of the application: ":/Images/filtreGris.svg" and
/// ":/Images/filtreActiver.svg", and those of `Pastille`.
///
/// The pop-up opens above the button, or below it at the top of the screen, and closes with the
/// bar.
///
/// Without the button, or without the pop-up, what is asked of it does nothing: sizes and positions
/// are null, combo boxes too, indices -1.
class FABRELGUI_EXPORT BarreDeFiltre : public QFrame
{
    Q_OBJECT

public:
    /// With the button but without the pop-up, the button opens a menu, empty at first.
    BarreDeFiltre(bool avecBoutonOptions, bool avecToolTip, QWidget * parent = nullptr);

    /// As `ToolTipComboBox::AjouterComboBox`.
    void AjouterComboBox(int id, QString const & libelle, QComboBox * combo);
    /// Gives the button another menu, which is not owned.
    void AjouterMenu(QMenu * menu);
    /// Adds a pill, unless one has these data: that one stays as it is. The last argument has no
    /// effect. The pills take 60% of the width at most; the others are under their chevron.
    void AjouterMotPastille(QString const & titre, QVariant const & donnees,
                            bool sansEffet = false);
    /// Shows the pills, which are hidden at first, or hides them.
    void AfficherListePastille(bool affiche);
    /// Drops the arrow that tells of the menu of the button.
    void CacheIconeFlecheToolButton();
    int DonneLargeurBoutonOptions() const;
    /// On the screen.
    QPoint DonnePositionBoutonOptions() const;
    QSize DonneTailleBoutonOptions() const;
    /// Changes the icon of the button only.
    void MetsBoutonFiltreActif(bool const & actif);
    void MetsIndexCourantComboBox(int id, int index);
    QComboBox * PreteComboBox(int id);
    int TrouveIndexAvecData(int id, QVariant const & donnees);
    /// Writes the number of results, in the host's words.
    void MetsTexteCardinalitay(UniChaine const & texte);
    /// Deletes all pills.
    void NetoyerPastille();
    DChampRecherche * PreteComboDeRecherche() const;
    /// Gives the button the icon of inactive filters. Deliberate: the combo boxes stay as they are.
    void ReinitialiseFiltresActifs();
    /// Deletes the first pill with these data. The keyboard focus that it had goes to its
    /// neighbour, from the last one to the search combo box.
    void SupprimerPastille(QVariant const & donnees);

Q_SIGNALS:
    /// The filter `id` has another value; `data` are the user data of the item at `index`.
    void SignalValeurChanger(int id, int index, QVariant data);
    /// The user wants the criterion gone.
    void PastilleASupprimer(QVariant data);
    void EtiquetteCardinalitayModifiay();

protected:
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;

private Q_SLOTS:
    void PriseAfficherToolTip();

private:
    void PriseEtiquetteModifiay();
    void PriseOuvreMenu();
    void PlaceToolTip();
    void CreeToolTip();
    void CreePastilles();
    void CreeChampRecherche();
    void CreeEtiquette();
    void CreeBoutonOptions();
    void BrancheToolTip();
    bool MangeClic(QMouseEvent const & evenement);
    void MetAJourTailleListePastille();

    QLabel * monEtiquetteCardinalitay = nullptr;
    DChampRecherche * monComboRecherche = nullptr;
    QToolButton * monBoutonOptions = nullptr; // null without it
    QPointer<ToolTipComboBox> monToolTip;     // null without it
    QHBoxLayout * monLayout = nullptr;
    ListePastille * maListePastille = nullptr;
    bool monAvecToolTip = false;
    QPointer<QMenu> monMenu; // of the button, when there is no pop-up
};
