// dialogs/DAlerteInfoMaison.h
#pragma once

#include "FabrelGuiExport.h"

#include "foundation/ImageCommune.h"

#include "noyau/DAlerteInfo.h"

/// An alert with an image of the caller's instead of one of the usual icons.
class FABRELGUI_EXPORT DAlerteInfoMaison : public DAlerteInfo
{
public:
    DAlerteInfoMaison(ImageCommune const & icone, UniChaine const & message, UniChaine const & note,
                      UniChaine const & titre);
    DAlerteInfoMaison(DAlerteInfoMaison const &) = default;
    DAlerteInfoMaison & operator=(DAlerteInfoMaison const &) = default;
    ~DAlerteInfoMaison() override;

    ImageCommune DonneIcone() const { return monIcone; }

private:
    ImageCommune monIcone;
};
