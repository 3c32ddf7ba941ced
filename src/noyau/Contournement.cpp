// noyau/Contournement.cpp
#include "noyau/Contournement.h"

#include <QHash>
#include <QMutex>
#include <QSettings>

#include <memory>
#include <utility>

namespace {

using namespace Qt::StringLiterals;

struct Magasin
{
    QMutex verrou;
    std::unique_ptr<QSettings> fichier; // null: in memory
    QHash<std::pair<QString, QString>, bool> memoire;
};

Magasin & PreteMagasin()
{
    static Magasin magasin;
    return magasin;
}

// A part of a key as the file has it: a slash would begin another part, and so would a backslash.
QString PartDeCle(QString part)
{
    part.replace(u'%', "%25"_L1).replace(u'/', "%2F"_L1).replace(u'\\', "%5C"_L1);
    return part.isEmpty() ? u"%"_s : part; // an empty part would name the whole section
}

QString CleDeFichier(QString const & cle, QString const & nom)
{
    return PartDeCle(cle) + u'/' + PartDeCle(nom);
}

} // namespace

bool Contournement::LisBool(UniChaine const & cle, UniChaine const & nom, bool & valeur)
{
    Magasin & magasin = PreteMagasin();
    QMutexLocker const verrou(&magasin.verrou);
    if (!magasin.fichier) {
        auto const entree = magasin.memoire.constFind({cle, nom});
        if (entree == magasin.memoire.constEnd())
            return false;
        valeur = *entree;
        return true;
    }
    QString const texte = magasin.fichier->value(CleDeFichier(cle, nom)).toString();
    bool const vrai = texte.compare(u"true", Qt::CaseInsensitive) == 0 || texte == u"1";
    bool const faux = texte.compare(u"false", Qt::CaseInsensitive) == 0 || texte == u"0";
    if (vrai || faux)
        valeur = vrai;
    return vrai || faux;
}

void Contournement::EcrisBool(UniChaine const & cle, UniChaine const & nom, bool valeur)
{
    Magasin & magasin = PreteMagasin();
    QMutexLocker const verrou(&magasin.verrou);
    if (magasin.fichier) {
        magasin.fichier->setValue(CleDeFichier(cle, nom), valeur);
        magasin.fichier->sync();
    } else {
        magasin.memoire.insert({cle, nom}, valeur);
    }
}

void Contournement::Efface(UniChaine const & cle, UniChaine const & nom)
{
    Magasin & magasin = PreteMagasin();
    QMutexLocker const verrou(&magasin.verrou);
    if (magasin.fichier) {
        magasin.fichier->remove(CleDeFichier(cle, nom));
        magasin.fichier->sync();
    } else {
        magasin.memoire.remove({cle, nom});
    }
}

void Contournement::MetsFichier(UniChemin const & fichier)
{
    Magasin & magasin = PreteMagasin();
    QMutexLocker const verrou(&magasin.verrou);
    magasin.memoire.clear();
    magasin.fichier.reset();
    if (!fichier.EstVide())
        magasin.fichier = std::make_unique<QSettings>(fichier, QSettings::IniFormat);
}
