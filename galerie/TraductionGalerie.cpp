// galerie/TraductionGalerie.cpp
#include "TraductionGalerie.h"

#include "noyau/ContexteLocalisation.h"
#include "noyau/LocalisateurContextuel.h"
#include "noyau/Traductions.h"

#include <boost/locale/format.hpp>

#include <memory>

ContexteLocalisation & ContexteLocalisationGalerie()
{
    static std::unique_ptr<ContexteLocalisation> const contexte = [] {
        auto domaines = std::make_unique<ContexteLocalisation>();
        // Stands for :/fichiers/GalerieFr.mo, GalerieEn.mo and GalerieEn_CA.mo.
        domaines->AjouteDomaine("Galerie", ":/fichiers/Galerie");
        return domaines;
    }();
    return *contexte;
}

QString TraductionGalerie(ChaineLocalisable message)
{
    return LocalisateurContextuel(message, ContexteLocalisationGalerie(),
                                  Traductions::DonneLocalePourApplicationCourante());
}

QString TraductionGalerie(ChaineLocalisable message, std::initializer_list<UniChaine> arguments)
{
    return Formate(LocalisateurContextuel(message, ContexteLocalisationGalerie(),
                                          Traductions::DonneLocalePourApplicationCourante()),
                   arguments);
}

QString TraductionPlurielGalerie(ChaineLocalisablePluriel message, int nombre)
{
    DLocale const locale = Traductions::DonneLocalePourApplicationCourante();
    return Formate(LocalisateurContextuel(message, static_cast<quint64>(nombre),
                                          ContexteLocalisationGalerie(), locale),
                   {UniChaine::DonneNombreFormatay(locale, nombre)});
}

UniChaine Formate(std::string const & modele, std::initializer_list<UniChaine> arguments)
{
    boost::locale::format format(modele);
    for (UniChaine const & argument : arguments)
        format % argument;
    // Numbers come as text in the format of the language: no facet may touch them again.
    return UniChaine(format.str(std::locale()), UniChaine::kUTF8);
}
