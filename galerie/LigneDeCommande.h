// galerie/LigneDeCommande.h
#pragma once

#include "noyau/DLocale.h"

#include <QString>

class QApplication;

/// What the command line asks for.
struct LigneDeCommande
{
    eLangue langue = kLangueFrancais;
    QString dossierCaptures; ///< empty for a window
    QString texte;           ///< the file that the page on searching opens; empty for its own
    int page = -1; ///< the page to begin with, and the only one in pictures; -1 without one
};

/// Reads the command line before there is an application object, since pictures need a platform of
/// their own. Where no window can be shown pictures are what is asked for.
LigneDeCommande LisLigneDeCommande(int argc, char ** argv);

/// Ends the program with a message for an option that is not known, and answers --help.
void VerifieLigneDeCommande(QApplication const & application);

/// Before the application object: where pictures are asked for, chooses the platform without a
/// display, with two screens, and takes any other one out of the arguments.
void PrepareCaptures(LigneDeCommande const & commande, int & argc, char ** argv);

/// Behind the application object: gives pictures a style and a font that most machines have.
void PreparePresentationCaptures(LigneDeCommande const & commande);
