// noyau/RoutinesTexte.cpp
#include "noyau/RoutinesTexte.h"

#include <QFile>

namespace {

using namespace Qt::StringLiterals;

// The length of the tag at the start of `reste` when its name is listed, else 0.
qsizetype LongueurBaliseListay(QStringView reste, QList<QString> const & balises)
{
    qsizetype const fin = reste.indexOf(u'>');
    if (fin < 0)
        return 0;
    QStringView nom = reste.mid(1, fin - 1);
    if (nom.startsWith(u'/'))
        nom = nom.mid(1);
    qsizetype longueurNom = 0;
    while (longueurNom < nom.size() && !nom.at(longueurNom).isSpace() &&
           nom.at(longueurNom) != u'/')
        ++longueurNom;
    return balises.contains(nom.first(longueurNom)) ? fin + 1 : 0;
}

} // namespace

QString RoutinesGeneralesQt::ContenuFichier(QString const & chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

void RoutinesGeneralesQt::HTMLiser(QString & texte, QList<QString> const & balises)
{
    QString html;
    html.reserve(texte.size() + texte.size() / 8);
    QStringView const source(texte);
    for (qsizetype i = 0; i < source.size();) {
        QChar const unite = source.at(i);
        qsizetype const balise =
            unite == u'<' && !balises.isEmpty() ? LongueurBaliseListay(source.mid(i), balises) : 0;
        if (balise > 0)
            html += source.mid(i, balise);
        else if (unite == u'\n')
            html += u"<br>"_s;
        else
            html += QString(unite).toHtmlEscaped();
        i += balise > 0 ? balise : 1;
    }
    texte = html;
}
