// dialogs/DAlerteNotification.cpp
#include "dialogs/DAlerteNotification.h"

#include "noyau/RoutinesFichier.h"

DAlerteNotification::DAlerteNotification(DAlerteInfo const & info)
    : DAlerteInfo(info)
    , monIcone(QPixmap::fromImage(iconeGenerale))
    , monNomFichierImage(nomFichierSurDisque)
    , monRaccourci(raccourciGeneral)
{
    EcrisImage();
}

DAlerteNotification::DAlerteNotification(QPixmap const & icone, UniChemin const & nomFichier,
                                         Raccourci::InfosPourRaccourci const & raccourci,
                                         UniChaine const & message, UniChaine const & note)
    : DAlerteInfo(kNotification, message, note, kUniChaineNulle)
    , monIcone(icone)
    , monNomFichierImage(nomFichier)
    , monRaccourci(raccourci)
{
    EcrisImage();
}

DAlerteNotification::~DAlerteNotification() = default;

void DAlerteNotification::MetsIconeGenerale(QPixmap const & icone)
{
    iconeGenerale = icone.toImage();
}

void DAlerteNotification::MetsNomFichierSurDisque(UniChemin const & nomFichier)
{
    nomFichierSurDisque = nomFichier;
}

void DAlerteNotification::MetsRaccourci(Raccourci::InfosPourRaccourci const & raccourci)
{
    raccourciGeneral = raccourci;
}

void DAlerteNotification::EcrisImage() const
{
    if (!monNomFichierImage.EstVide() && !RoutinesFichier::FichierExiste(monNomFichierImage))
        monIcone.save(monNomFichierImage);
}
