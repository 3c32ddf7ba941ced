// navigation/CtrlFenPriseEnMainInterface.h
#pragma once

#include "navigation/RangeePriseEnMain.h"
#include "noyau/UniChaine.h"

#include "FabrelGuiExport.h"

#include <vector>

class ReglageBooleen;

/// What an application tells the onboarding window of itself, and the contents of that window.
///
/// The application derives from it and lends it to `FenPriseEnMain::monCtrl`.
class FABRELGUI_EXPORT CtrlFenPriseEnMainInterface
{
public:
    CtrlFenPriseEnMainInterface();
    CtrlFenPriseEnMainInterface(CtrlFenPriseEnMainInterface const &) = delete;
    CtrlFenPriseEnMainInterface & operator=(CtrlFenPriseEnMainInterface const &) = delete;
    virtual ~CtrlFenPriseEnMainInterface();

    /// Records the check state of a row. May close the window, but not destroy it.
    virtual void MetsReglage(UniChaine cle, bool coche) = 0;
    virtual UniChaine DonneNomProduit() = 0;
    virtual UniChaine DonneVersionNumerique() = 0;
    /// The language modules that the product has. The arguments are those of `Initialise`.
    virtual UniChaine DonneModulesLangue(bool premier, bool second) = 0;

    /// Reads the texts and the rows from a JSON document, in the language of the application:
    /// French, or English for every other one. They replace those of an earlier call once all are
    /// read: the virtual functions, which are asked for each row, still find the earlier ones.
    ///
    /// An empty text changes nothing but the two booleans, which are kept for
    /// `DonneModulesLangue`. Throws an exception of nlohmann json, and keeps the texts and rows
    /// that it had, for a document that does not parse, a missing key or a value of another type.
    void Initialise(UniChaine const & json, bool premier, bool second);

    UniChaine DonneTitreFenetre() const;
    UniChaine DonneExplication() const;
    /// The rows, in their order, until the next `Initialise`.
    std::vector<RangeePriseEnMain> & PreteVecteurRangeesPriseEnMain();
    std::vector<RangeePriseEnMain> const & PreteVecteurRangeesPriseEnMain() const;

    /// The value of the first setting whose key, with "/" between its names, is `cle`; false
    /// without one.
    bool LisReglage(UniChaine & cle) const;
    /// Adds a setting for `LisReglage`, which remains its owner's and must outlive this object.
    /// Null is ignored.
    void AjouteReglage(ReglageBooleen * reglage);

private:
    bool monPremier = false; // the arguments of Initialise
    bool monSecond = false;
    UniChaine monTitreFenetre;
    UniChaine monExplication;
    std::vector<RangeePriseEnMain> mesRangees;
    std::vector<ReglageBooleen *> mesReglages;
};
