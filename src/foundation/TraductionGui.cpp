// foundation/TraductionGui.cpp
#include "foundation/TraductionGui.h"

#include "noyau/Traductions.h"

#include <boost/locale/format.hpp>

#include <memory>

namespace {

UniChaine Formate(std::string const & modele, std::initializer_list<UniChaine> arguments)
{
    boost::locale::format format(modele);
    for (UniChaine const & argument : arguments)
        format % argument;
    // Arguments are texts already: no facet of a locale may touch them.
    return UniChaine(format.str(std::locale()), UniChaine::kUTF8);
}

} // namespace

ContexteLocalisation & ContexteLocalisationGui()
{
    static std::shared_ptr<ContexteLocalisation> const contexte =
        std::make_shared<ContexteLocalisation>();
    return *contexte;
}

LocalisateurContextuel TraductionGui(ChaineLocalisable message)
{
    return LocalisateurContextuel(message, ContexteLocalisationGui(),
                                  Traductions::DonneLocalePourApplicationCourante());
}

LocalisateurContextuel TraductionPlurielGui(ChaineLocalisablePluriel message, quint64 nombre)
{
    return LocalisateurContextuel(message, nombre, ContexteLocalisationGui(),
                                  Traductions::DonneLocalePourApplicationCourante());
}

UniChaine TraductionGuiFormatay(ChaineLocalisable message,
                                std::initializer_list<UniChaine> arguments)
{
    return Formate(TraductionGui(message), arguments);
}

UniChaine TraductionPlurielGuiFormatay(ChaineLocalisablePluriel message, quint64 nombre)
{
    return Formate(TraductionPlurielGui(message, nombre), {UniChaine(QString::number(nombre))});
}
