// noyau/UniChemin.cpp
#include "noyau/UniChemin.h"

#include <QDir>

namespace {

bool EstSeparateur(QChar unite)
{
    return unite == u'/' || unite == QDir::separator();
}

// The text less its separators at the end, but for the one that is the root.
QStringView SansSeparateurFinal(QStringView chemin)
{
    while (chemin.size() > 1 && EstSeparateur(chemin.back()))
        chemin.chop(1);
    return chemin;
}

// Where the last component begins.
qsizetype DebutDernierComposant(QStringView chemin)
{
    qsizetype debut = chemin.size();
    while (debut > 0 && !EstSeparateur(chemin.at(debut - 1)))
        --debut;
    return debut;
}

} // namespace

UniChemin & UniChemin::AjouteComposantChemin(UniChemin const & composant)
{
    if (composant.EstVide())
        return *this;
    QString chemin = *this;
    QString const texteAjout = composant;
    QStringView ajout = texteAjout;
    if (!chemin.isEmpty()) {
        if (!EstSeparateur(chemin.back()))
            chemin.append(QDir::separator());
        while (!ajout.isEmpty() && EstSeparateur(ajout.front()))
            ajout = ajout.mid(1);
        if (ajout.isEmpty())
            return *this;
    }
    UniChaine::operator=(chemin + ajout.toString());
    return *this;
}

UniChaine UniChemin::DonneChaineEnEnlevantDernierComposantChemin() const
{
    QString const texte = *this;
    QStringView const chemin = SansSeparateurFinal(texte);
    return UniChaine(SansSeparateurFinal(chemin.first(DebutDernierComposant(chemin))).toString());
}

UniChaine UniChemin::DonneDernierComposantCheminSaufExtension() const
{
    QString const texte = *this;
    QStringView const chemin = SansSeparateurFinal(texte);
    QStringView const nom = chemin.mid(DebutDernierComposant(chemin));
    qsizetype const point = nom.lastIndexOf(u'.');
    bool const aExtension = point > 0 && nom != u"..";
    return UniChaine((aExtension ? nom.first(point) : nom).toString());
}
