// noyau/RoutinesBureau.cpp
#include "noyau/RoutinesBureau.h"

#include "noyau/DAlerteDeleguay.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/JournalAbs.h"
#include "noyau/LocalisateurContextuel.h"
#include "noyau/plateforme/PlateformeBureau.h"

#include <boost/locale/format.hpp>

#include <QUrl>

#include <array>
#include <chrono>

namespace {

constexpr VueTexte kDomaine = {"Noyau", 5};

template <std::size_t N>
constexpr ChaineLocalisable TexteNoyau(char const (&texte)[N])
{
    return {{texte, N - 1}, {}, kDomaine};
}

bool OuvreUrl(QString const & texte, QString const & fureteur)
{
    QUrl const url(texte);
    return url.isValid() && !url.isEmpty() && PlateformeBureau::Courante().OuvreUrl(url, fureteur);
}

} // namespace

bool RoutinesGeneralesQt::LanceFureteurExterne(ContexteLocalisation const &, DLocale,
                                               QString const & url, QString const & fureteur)
{
    return OuvreUrl(url, fureteur);
}

bool RoutinesGeneralesQt::DonneUtilisateurPeutExecuterElevay()
{
    return PlateformeBureau::Courante().UtilisateurPeutExecuterElevay();
}

void LanceUnURL(ContexteLocalisation const & contexte, DLocale locale, UniChaine const & url)
{
    if (OuvreUrl(url, {}))
        return;
    std::string const modele = LocalisateurContextuel(
        TexteNoyau("L’adresse suivante n’a pas pu être ouverte : {1}"), contexte, locale);
    UniChaine const message((boost::locale::format(modele) % url).str(std::locale()),
                            UniChaine::kUTF8);
    UniChaine const titre =
        LocalisateurContextuel(TexteNoyau("Ouverture impossible"), contexte, locale);
    JournaliseSiActif(message);
    if (DAlerteDeleguay * const deleguay = DAlerteDeleguay::Courant())
        deleguay->TraiteDAlerte(DAlerteInfo(DAlerteInfo::kErreur, message, kUniChaineNulle, titre));
}

bool PossedeAppCompatFlags(UniChaine const & executable)
{
    return PlateformeBureau::Courante().PossedeAppCompatFlags(executable);
}

bool WindowsEstAuMoins(typVersionWindows version)
{
    struct
    {
        int majeure;
        int mineure;
        int numeroBuild;
    } static constexpr kVersions[] = {
        {6, 1, 0}, {6, 2, 0}, {6, 3, 0}, {10, 0, 0}, {10, 0, 17763}, {10, 0, 22000},
    };
    auto const indice = static_cast<std::size_t>(version);
    if (indice >= std::size(kVersions))
        return false;
    auto const & minimum = kVersions[indice];
    return PlateformeBureau::Courante().WindowsEstAuMoins(minimum.majeure, minimum.mineure,
                                                          minimum.numeroBuild);
}

quint64 DonneTempsAbsoluEnMilliSecondes()
{
    using namespace std::chrono;
    return static_cast<quint64>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}
