// navigation/FenPriseEnMain.h
#pragma once

#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <QDialog>

#include <functional>
#include <vector>

class CtrlFenPriseEnMainInterface;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;
class QSvgWidget;
class QVBoxLayout;
struct RangeePriseEnMain;

/// The window "Prise en main": links to the help's pages for a new user, each with a check box that
/// tells that it was seen.
///
/// The application carries the document ":/fichiers/DonneesPriseEnMain.json", the style sheet
/// ":/Style/FenPriseEnMain.qss" and the picture ":/Images/fenetre-decouvrir-panacel.svg" in its
/// resources; what is missing leaves its part empty. It assigns its controller to `monCtrl` before
/// it calls `AlloueInstance`.
///
/// The texts are those of the language at the time when the window is made. From the ninth row on
/// they scroll. An ampersand in a row's title marks its mnemonic, as in any button; two of them are
/// one that shows. Closing the window hides it; it stays until `LibereSingleton`.
class FABRELGUI_EXPORT FenPriseEnMain : public QDialog
{
    Q_OBJECT

public:
    /// The arguments are for `CtrlFenPriseEnMainInterface::Initialise`, whose exceptions pass
    /// through. Without a controller the window is empty.
    FenPriseEnMain(bool premier, bool second);
    ~FenPriseEnMain() override;

    /// Makes the window, hidden. An earlier one is to be released first: it would be lost. When an
    /// exception of the document passes through, `Instance` answers as before.
    static void AlloueInstance(bool premier, bool second);
    /// Null before `AlloueInstance` and after `LibereSingleton`.
    static FenPriseEnMain * Instance();
    /// Destroys the window, if there is one, without calling the close callback.
    static void LibereSingleton();

    /// `callback` is told where the window was each time it has closed; it may destroy the window.
    void MetsCallbackFermeture(std::function<void(QPoint)> const & callback);
    /// Adds the picture, the texts and a row for each of the controller's to `disposition`, which
    /// is that of a widget of the window, for as long as that lives. Null is ignored.
    void PopuleAffichage(QVBoxLayout * disposition);

    static FenPriseEnMain * monInstance;
    static CtrlFenPriseEnMainInterface * monCtrl; ///< not owned; must outlive the window

protected:
    void resizeEvent(QResizeEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;

private:
    void CreeDefilement();
    void CreeEntete(QVBoxLayout * disposition);
    QHBoxLayout * CreeRangee(RangeePriseEnMain & rangee);
    void BrancheRangee(RangeePriseEnMain const & rangee, QCheckBox * caseVue, QPushButton * bouton);

    void PriseFermeture();
    void PriseLien(QCheckBox * caseVue, QPushButton * bouton, UniChaine const & lien);
    void PriseEtat(UniChaine const & cle, int etat);
    void PriseCase(bool coche, QPushButton * bouton, UniChaine const & lien);

    QLabel * monTitre = nullptr;
    QLabel * monExplication = nullptr;
    QSvgWidget * monImage = nullptr;
    QScrollArea * monDefilement = nullptr;
    std::vector<QHBoxLayout *> mesRangees;
    std::function<void(QPoint)> monCallbackFermeture;
};
