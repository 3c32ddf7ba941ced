// style/TexteDeLabel.cpp
#include "style/TexteDeLabel_p.h"

namespace {

using namespace Qt::StringLiterals;

bool OuvreUneBalise(QStringView reste)
{
    if (reste.size() < 2 || !(reste[1].isLetter() || reste[1] == u'/' || reste[1] == u'!'))
        return false;
    qsizetype const suivant = reste.indexOf(u'<', 1);
    return reste.first(suivant < 0 ? reste.size() : suivant).contains(u'>');
}

// The length of the entity that `reste` begins with, else 0.
qsizetype DonneLongueurEntite(QStringView reste)
{
    qsizetype fin = 1;
    while (fin < reste.size() && (reste[fin].isLetterOrNumber() || reste[fin] == u'#'))
        ++fin;
    return fin > 1 && fin < reste.size() && reste[fin] == u';' ? fin + 1 : 0;
}

} // namespace

QString TexteDeLabel::ProtegeChevrons(QString const & texte)
{
    QString protege;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (texte[i] == u'<' && !OuvreUneBalise(QStringView(texte).mid(i)))
            protege += u"&lt;"_s;
        else
            protege += texte[i];
    }
    return protege;
}

QString TexteDeLabel::SansMnemonique(QString const & texte)
{
    QString libelle;
    for (qsizetype i = 0; i < texte.size(); ++i) {
        if (texte[i] == u'&' && DonneLongueurEntite(QStringView(texte).mid(i)) == 0) {
            ++i; // what follows is kept, also another "&"
            if (i == texte.size())
                break;
        }
        libelle += texte[i];
    }
    return libelle;
}
