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
/// not exist, in the format of its suffix; an existing one is reused as it is, also when it shows
/// something else. A file that cannot be written is none, and nobody hears of it.
class FABRELGUI_EXPORT DAlerteNotification : public DAlerteInfo
{
public:
    /// Completes `info` with the application-wide image, file and shortcut. Implicit: an
    /// application hands over a plain alert where a notification is asked for.
    DAlerteNotification(DAlerteInfo const & info);
    /// An alert of the notification type with the default title. An empty `nomFichier` writes
    /// nothing.
    DAlerteNotification(QPixmap const & icone, UniChemin const & nomFichier,
                        Raccourci::InfosPourRaccourci raccourci, UniChaine const & message,
                        UniChaine const & note);
    DAlerteNotification(DAlerteNotification const &) = default;
    DAlerteNotification & operator=(DAlerteNotification const &) = default;
    ~DAlerteNotification() override;

    // What an application sets once, before its first notification.

    /// The image of the application's notifications; a null one is not written.
    static void MetsIconeGenerale(QPixmap const & icone);
    /// Where that image stands on disk: an absolute path in a folder that exists, with the suffix
    /// of an image format. Without it a toast has no image.
    static void MetsNomFichierSurDisque(UniChemin const & nomFichier);
    /// The shortcut of the application in the Start menu, which its installer made. A toast needs
    /// it: without a shortcut of that identifier, every notification is a message box.
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
