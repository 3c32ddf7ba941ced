// noyau/RoutinesTexte.cpp
#include "noyau/RoutinesTexte.h"

#include "noyau/UniChaine.h"

#include <QFile>

#include <iostream>

namespace {

using namespace Qt::StringLiterals;

// The length of the tag at the start of `reste` when its name is listed, else 0. The name is read
// first: only a listed one is worth the search for its end.
qsizetype LongueurBaliseListay(QStringView reste, QList<QString> const & balises)
{
    qsizetype const debutNom = reste.mid(1).startsWith(u'/') ? 2 : 1;
    qsizetype finNom = debutNom;
    while (finNom < reste.size() && !reste.at(finNom).isSpace() &&
           !QStringView(u"/<>").contains(reste.at(finNom)))
        ++finNom;
    if (!balises.contains(reste.mid(debutNom, finNom - debutNom)))
        return 0;
    return reste.indexOf(u'>', finNom) + 1;
}

} // namespace

QString RoutinesGeneralesQt::ContenuFichier(QString const & chemin)
{
    QFile fichier(chemin);
    // Qt warns about a name that is empty.
    return !chemin.isEmpty() && fichier.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(fichier.readAll())
               : QString();
}

void RoutinesGeneralesQt::HTMLiser(QString & texte, QList<QString> const & balises)
{
    QString html;
    html.reserve(texte.size() + texte.size() / 8);
    QStringView const source(texte);
    qsizetype const derniereFin = balises.isEmpty() ? -1 : source.lastIndexOf(u'>');
    for (qsizetype i = 0; i < source.size();) {
        QChar const unite = source.at(i);
        qsizetype const balise =
            unite == u'<' && i < derniereFin ? LongueurBaliseListay(source.mid(i), balises) : 0;
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

void RoutinesGeneralesQt::EcrisSurErreurStandard(UniChaine const & texte)
{
    std::cerr << texte << std::endl;
}
