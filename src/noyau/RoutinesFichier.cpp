// noyau/RoutinesFichier.cpp
#include "noyau/RoutinesFichier.h"

#include "noyau/plateforme/PlateformeBureau.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

bool RoutinesFichier::FichierExiste(UniChaine const & chemin)
{
    QFileInfo const infos(chemin);
    return infos.exists() && !infos.isDir();
}

QList<UniChaine> RoutinesRepertoire::ListeTousLesFichiers(UniChaine const & repertoire,
                                                          bool sousRepertoires,
                                                          bool cheminsComplets, bool fichiersCaches,
                                                          UniChaine const & filtre, bool trie)
{
    QList<UniChaine> fichiers;
    QDir const racine(repertoire);
    if (repertoire.EstVide() || !racine.exists()) // the empty path would be the current directory
        return fichiers;
    QDir::Filters const filtres = fichiersCaches ? QDir::Files | QDir::Hidden : QDir::Files;
    QStringList const noms = filtre.EstVide() ? QStringList() : QStringList{filtre};
    QDirIterator parcours(repertoire, noms, filtres,
                          sousRepertoires ? QDirIterator::Subdirectories
                                          : QDirIterator::NoIteratorFlags);
    while (parcours.hasNext()) {
        QString const chemin = parcours.next();
        fichiers.append(cheminsComplets ? chemin : racine.relativeFilePath(chemin));
    }
    if (trie)
        std::sort(fichiers.begin(), fichiers.end());
    return fichiers;
}

bool RoutinesRepertoire::OuvrirExplorateur(UniChemin const & chemin)
{
    return PlateformeBureau::Courante().OuvreExplorateur(chemin);
}
