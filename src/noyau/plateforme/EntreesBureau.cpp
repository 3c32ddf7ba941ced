// noyau/plateforme/EntreesBureau.cpp
#include "noyau/plateforme/EntreesBureau_p.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {
constexpr auto kSuffixe = ".desktop"_L1;

struct Entree
{
    QStringList noms;
    bool estSupprimee = false;
};

QString Deschappe(QString const & valeur)
{
    QString resultat;
    for (qsizetype i = 0; i < valeur.size(); ++i) {
        if (valeur[i] != u'\\' || i + 1 == valeur.size()) {
            resultat += valeur[i];
            continue;
        }
        QChar const code = valeur[++i];
        resultat += code == u's'   ? u' '
                    : code == u'n' ? u'\n'
                    : code == u't' ? u'\t'
                    : code == u'r' ? u'\r'
                                   : code.unicode();
    }
    return resultat;
}

Entree LisEntree(QString const & chemin)
{
    Entree entree;
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        return {{}, true};
    bool dansGroupe = false;
    while (!fichier.atEnd()) {
        QString const ligne = QString::fromUtf8(fichier.readLine()).trimmed();
        if (ligne.startsWith(u'[')) {
            dansGroupe = ligne == "[Desktop Entry]"_L1; // the other groups are its actions
            continue;
        }
        qsizetype const egal = ligne.indexOf(u'=');
        if (!dansGroupe || egal < 0 || ligne.startsWith(u'#'))
            continue;
        QString const cle = ligne.left(egal).trimmed();
        QString const valeur = ligne.mid(egal + 1).trimmed();
        if (cle == "Name"_L1 || cle.startsWith("Name["_L1))
            entree.noms.append(Deschappe(valeur));
        else if (cle == "Hidden"_L1)
            entree.estSupprimee = valeur == "true"_L1;
    }
    return entree;
}
} // namespace

bool EntreeBureauExiste(QStringList const & dossiers, QString const & identifiant,
                        QString const & nom)
{
    QSet<QString> vus;
    for (QString const & dossier : dossiers) {
        QDirIterator fichiers(dossier, {u"*"_s + kSuffixe}, QDir::Files,
                              QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (fichiers.hasNext()) {
            QString const chemin = fichiers.next();
            // The identifier of a file in a folder below: the folders, joined by hyphens.
            QString id = QDir(dossier).relativeFilePath(chemin).replace(u'/', u'-');
            id.chop(kSuffixe.size());
            if (vus.contains(id))
                continue;
            vus.insert(id);
            Entree const entree = LisEntree(chemin);
            if (entree.estSupprimee)
                continue;
            if ((!identifiant.isEmpty() && id == identifiant) ||
                (!nom.isEmpty() && entree.noms.contains(nom)))
                return true;
        }
    }
    return false;
}
