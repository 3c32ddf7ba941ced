// noyau/RoutinesFenetreNatives.cpp
#include "noyau/RoutinesFenetreNatives.h"

#include "noyau/plateforme/PlateformeFenetres.h"

#include <QFileInfo>

UniChaine DonneNomClasse(HWND fenetre)
{
    return PlateformeFenetres::Courante().DonneNomClasse(fenetre);
}

bool DonneNomEXEAPartirHWND(HWND fenetre, UniChaine & nom, bool sansDossier)
{
    QString const chemin = PlateformeFenetres::Courante().DonneExecutable(fenetre);
    nom = sansDossier ? QFileInfo(chemin).fileName() : chemin;
    return !chemin.isEmpty();
}

bool DonneSiHwndRecherchay(HWND fenetre, UniChaine const & classe)
{
    return !classe.EstVide() && DonneNomClasse(fenetre) == classe;
}

HWND DonneHwndFenetreEnfant(HWND parent, UniChaine const & classe)
{
    return PlateformeFenetres::Courante().DonneEnfantDeClasse(parent, classe);
}
