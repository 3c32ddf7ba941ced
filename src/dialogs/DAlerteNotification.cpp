// dialogs/DAlerteNotification.cpp
#include "dialogs/DAlerteNotification.h"

#include "noyau/RoutinesFichier.h"

#include <QFileInfo>
#include <QSaveFile>

#include <utility>

DAlerteNotification::DAlerteNotification(DAlerteInfo const & info)
    : DAlerteInfo(info)
    , monIcone(QPixmap::fromImage(iconeGenerale))
    , monNomFichierImage(nomFichierSurDisque)
    , monRaccourci(raccourciGeneral)
{
    EcrisImage();
}

DAlerteNotification::DAlerteNotification(QPixmap const & icone, UniChemin const & nomFichier,
                                         Raccourci::InfosPourRaccourci raccourci,
                                         UniChaine const & message, UniChaine const & note)
    : DAlerteInfo(kNotification, message, note, kUniChaineNulle)
    , monIcone(icone)
    , monNomFichierImage(nomFichier)
    , monRaccourci(std::move(raccourci))
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
    if (monIcone.isNull() || monNomFichierImage.EstVide() ||
        RoutinesFichier::FichierExiste(monNomFichierImage))
        return;
    QString const nom = monNomFichierImage;
    // All or nothing: half an image would be reused for ever.
    QSaveFile fichier(nom);
    if (fichier.open(QIODevice::WriteOnly) &&
        monIcone.save(&fichier, QFileInfo(nom).suffix().toLatin1().constData()))
        fichier.commit();
}
