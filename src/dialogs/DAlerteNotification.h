// dialogs/DAlerteNotification.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/DAlerteInfo.h"
#include "noyau/Raccourci.h"
#include "noyau/UniChemin.h"

#include <QImage>
#include <QPixmap>

/// An alert for the platform's notification centre: what it says, its image, and the shortcut under
/// which the application is known there.
///
/// The notification refers to the image by its file. Both constructors write the file if it does
/// not exist; an existing one is reused as it is, also when it shows something else.
class FABRELGUI_EXPORT DAlerteNotification : public DAlerteInfo
{
public:
    /// Completes `info` with the application-wide image, file and shortcut.
    explicit DAlerteNotification(DAlerteInfo const & info);
    /// An alert of the notification type with the default title. An empty `nomFichier` writes
    /// nothing.
    DAlerteNotification(QPixmap const & icone, UniChemin const & nomFichier,
                        Raccourci::InfosPourRaccourci const & raccourci, UniChaine const & message,
                        UniChaine const & note);
    DAlerteNotification(DAlerteNotification const &) = default;
    DAlerteNotification & operator=(DAlerteNotification const &) = default;
    ~DAlerteNotification() override;

    static void MetsIconeGenerale(QPixmap const & icone);
    static void MetsNomFichierSurDisque(UniChemin const & nomFichier);
    static void MetsRaccourci(Raccourci::InfosPourRaccourci const & raccourci);

    QPixmap DonneIcone() const { return monIcone; }
    UniChemin DonneNomFichierImage() const { return monNomFichierImage; }
    Raccourci::InfosPourRaccourci DonneInfosPourRaccourcis() const { return monRaccourci; }

    // The application-wide defaults, set by the functions above.
    static QImage iconeGenerale;
    static UniChemin nomFichierSurDisque;
    static Raccourci::InfosPourRaccourci raccourciGeneral;

private:
    void EcrisImage() const;

    QPixmap monIcone;
    UniChemin monNomFichierImage;
    Raccourci::InfosPourRaccourci monRaccourci;
};
