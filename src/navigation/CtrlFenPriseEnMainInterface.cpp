// navigation/CtrlFenPriseEnMainInterface.cpp
#include "navigation/CtrlFenPriseEnMainInterface.h"

#include "navigation/ReglageBooleen.h"

#include "noyau/Traductions.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>
#include <utility>

namespace {

using Json = nlohmann::json;

// The value of `cle` in the language of the application. Only what is read has to be there.
UniChaine LisTexteTraduit(Json const & objet, std::string const & cle)
{
    bool const francais = Traductions::DonneLanguePourApplicationCourante() == kLangueFrancais;
    return objet.at(cle + (francais ? "FR" : "EN")).get_ref<std::string const &>();
}

// Deliberate: percent escapes are decoded and nothing is escaped instead. The help pages read the
// query as it is.
UniChaine Desechappe(UniChaine const & valeur)
{
    return valeur.DonneChaineDesechappeePourcent(kUniChaineNulle);
}

RangeePriseEnMain DeserialiseRangee(Json const & objet, CtrlFenPriseEnMainInterface & ctrl,
                                    bool premier, bool second)
{
    RangeePriseEnMain rangee;
    rangee.titre = LisTexteTraduit(objet, "titre");
    rangee.cle = objet.at("cle").get_ref<std::string const &>();
    UniChaine const nomProduit = Desechappe(ctrl.DonneNomProduit());
    UniChaine const modules = Desechappe(ctrl.DonneModulesLangue(premier, second));
    UniChaine const version = Desechappe(ctrl.DonneVersionNumerique());
    // Deliberate: "win" on every system.
    rangee.lien.Format(
        "%s?nom-produit=%s&plateforme=%s&modules-langue=%s&version-numerique-produit=%s",
        LisTexteTraduit(objet, "lien"), nomProduit, "win", modules, version);
    return rangee;
}

} // namespace

CtrlFenPriseEnMainInterface::CtrlFenPriseEnMainInterface() = default;

CtrlFenPriseEnMainInterface::~CtrlFenPriseEnMainInterface() = default;

void CtrlFenPriseEnMainInterface::Initialise(UniChaine const & json, bool premier, bool second)
{
    monPremier = premier;
    monSecond = second;
    if (json.EstVide())
        return;
    QByteArray const texte = QString(json).toUtf8();
    Json const document = Json::parse(texte.begin(), texte.end(), nullptr, true, false);

    UniChaine titre = LisTexteTraduit(document, "titreFenetre");
    UniChaine explication = LisTexteTraduit(document, "explication");
    std::vector<RangeePriseEnMain> rangees;
    // As an array: elements of anything else would be read as if it were one.
    for (Json const & objet : document.at("itemsPriseEnMain").get_ref<Json::array_t const &>())
        rangees.push_back(DeserialiseRangee(objet, *this, monPremier, monSecond));

    monTitreFenetre = std::move(titre);
    monExplication = std::move(explication);
    mesRangees = std::move(rangees);
}

UniChaine CtrlFenPriseEnMainInterface::DonneTitreFenetre() const
{
    return monTitreFenetre;
}

UniChaine CtrlFenPriseEnMainInterface::DonneExplication() const
{
    return monExplication;
}

std::vector<RangeePriseEnMain> & CtrlFenPriseEnMainInterface::PreteVecteurRangeesPriseEnMain()
{
    return mesRangees;
}

std::vector<RangeePriseEnMain> const &
CtrlFenPriseEnMainInterface::PreteVecteurRangeesPriseEnMain() const
{
    return mesRangees;
}

bool CtrlFenPriseEnMainInterface::LisReglage(UniChaine & cle) const
{
    auto const reglage =
        std::find_if(mesReglages.begin(), mesReglages.end(),
                     [&cle](ReglageBooleen const * r) { return r->DonneCle("/") == cle; });
    return reglage != mesReglages.end() && (*reglage)->DonneValeur();
}

void CtrlFenPriseEnMainInterface::AjouteReglage(ReglageBooleen * reglage)
{
    if (reglage)
        mesReglages.push_back(reglage);
}
