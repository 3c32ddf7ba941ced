// noyau/FileOperations.cpp
#include "noyau/FileOperations.h"

#include <QFile>
#include <QSaveFile>

#include <string>

namespace {

bool EcrisTout(QIODevice & sortie, UniChaine const & texte)
{
    std::string const octets = to_string(texte);
    auto const taille = static_cast<qint64>(octets.size());
    return sortie.write(octets.data(), taille) == taille;
}

} // namespace

namespace sdd {

FileOperations & FileOperations::Principale()
{
    static FileOperations principale;
    return principale;
}

bool FileOperations::EcrisTexte(UniChemin const & fichier, UniChaine const & texte)
{
    QSaveFile sortie(fichier);
    return sortie.open(QIODevice::WriteOnly) && EcrisTout(sortie, texte) && sortie.commit();
}

bool FileOperations::AjouteTexte(UniChemin const & fichier, UniChaine const & texte)
{
    QFile sortie(fichier);
    return sortie.open(QIODevice::WriteOnly | QIODevice::Append) && EcrisTout(sortie, texte) &&
           sortie.flush();
}

bool FileOperations::Supprime(UniChemin const & fichier)
{
    return QFile::remove(fichier);
}

} // namespace sdd
