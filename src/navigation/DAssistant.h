// navigation/DAssistant.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <QDialog>
#include <QList>
#include <QVariant>

#include <map>

class DAssistantEtape;
class DListViewClique;
class QItemSelection;
class QModelIndex;
class QPushButton;
class QStackedWidget;

/// A dialog that leads through steps: their list on the left, the current step, and the buttons
/// Cancel, Previous, Next and Finish below.
///
/// A step is enabled in the list once it was reached; choosing it there jumps to it by ordinary
/// moves of one step, so each step on the way may refuse. Previous goes back along the visited
/// steps. Next and Finish are disabled by each move: the step that is entered enables them.
///
/// Without steps, before the first show and after `Reinitialise` there is no current step: Next
/// then enters the first, and nothing else moves. A step that is deleted or taken out leaves the
/// wizard; if it was the current one, the step visited before it becomes current, or the first.
class FABRELGUI_EXPORT DAssistant : public QDialog
{
    Q_OBJECT

public:
    explicit DAssistant(QWidget * parent = nullptr);
    ~DAssistant() override;

    /// Adds a step at the end and takes ownership of it. The second argument has no effect. Null
    /// and a step that is already there are ignored.
    void AjouteEtape(DAssistantEtape * etape, bool sansEffet);

    /// The next show, or Next, begins at the first step again. The options, the buttons and
    /// `DonneMaxEtapeParcouru` stay.
    void Reinitialise();

    /// Lets every step be chosen in the list.
    void DebarreToutesLesEtapes();

    void ActiveBoutonAnnuler(bool actif);
    void ActiveBoutonPrecedent(bool actif);
    void ActiveBoutonSuivant(bool actif);
    void ActiveBoutonTermine(bool actif);
    void ActiveBarreEtapes();
    void DesactiveBarreEtapes();
    void CacheBarreEtapes();
    void RenommeBoutonSuivant(QString texte);

    /// The highest 0-based index that Next has reached.
    int DonneMaxEtapeParcouru() const;

    /// A value that the steps share; invalid for an unknown key.
    QVariant DonneOption(QString cle);
    void PrendsOption(QString cle, QVariant valeur);
    void EnleveOption(QString cle);

    /// "Étape 2 de 5": the number of visited steps, the current one included, and of all steps.
    /// The argument is not read and may be null.
    UniChaine DonneTitreGenerique(DAssistantEtape * etape) const;

public Q_SLOTS:
    /// Closes the wizard with `Rejected`; no step can refuse. Escape and the window's own close
    /// button ask `PeutFermer` instead.
    void PriseBoutonAnnuler();
    void PriseBoutonPrecedent();
    /// True when the wizard moved. The last step refuses as a step that can't be left does.
    bool PriseBoutonSuivant();
    void PriseBoutonTermine();

protected:
    void changeEvent(QEvent * evenement) override;
    void closeEvent(QCloseEvent * evenement) override;
    bool eventFilter(QObject * objet, QEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;

    /// The window's title becomes that of the current step.
    void ChangeTitre();

private Q_SLOTS:
    void PriseSelectionEtape(QItemSelection selectionnay, QItemSelection deselectionnay);
    void PriseClicEtape(QModelIndex const & index);
    void PriseEtapeEnlevay();

private:
    void CreeListe();
    void CreeBoutons();
    void PoseElements();
    void MetsCouleurs();
    void AccordeTexte();
    void Branche();

    int RangeeCourante() const;
    void SelectionneRangee(int rangee);
    void ActiveRangee(int rangee);
    void NumeroteRangees();
    void SauteA(int rangee, int distance);
    bool RevientA(DAssistantEtape * etape);
    void EntreDansEtapeCourante();
    void RangeFocus();

    QList<DAssistantEtape *> mesEtapes;
    QList<DAssistantEtape *> monHistorique; // the steps left by Next, oldest first
    DAssistantEtape * monEtapeCourante = nullptr;
    std::map<QString, QVariant> mesOptions;
    QStackedWidget * maPile = nullptr;
    QPushButton * monBoutonAnnuler = nullptr;
    QPushButton * monBoutonPrecedent = nullptr;
    QPushButton * monBoutonSuivant = nullptr;
    QPushButton * monBoutonTermine = nullptr;
    DListViewClique * maVueEtapes = nullptr;
    int monMaxEtape = 0;
    bool monTexteNoirci = false;  // by this class, under a dark palette
    bool maToucheEnCours = false; // the list is handling a key
    int maRangeeChoisie = -1;     // by that key
};
