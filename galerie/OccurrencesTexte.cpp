// galerie/OccurrencesTexte.cpp
#include "OccurrencesTexte.h"

#include <algorithm>

namespace {

constexpr QChar kInsecableFine(0x202F); // what French typography puts before high punctuation

} // namespace

OccurrencesTexte::OccurrencesTexte(QString const & texte, QRegularExpression const & expression)
{
    if (!expression.isValid())
        return;
    QRegularExpressionMatchIterator iterateur = expression.globalMatch(texte);
    while (iterateur.hasNext()) {
        QRegularExpressionMatch const occurrence = iterateur.next();
        if (occurrence.capturedLength() > 0)
            mesPlages.append({static_cast<int>(occurrence.capturedStart()),
                              static_cast<int>(occurrence.capturedEnd())});
    }
}

OccurrencesTexte::OccurrencesTexte(QString const & texte, QString const & chaine,
                                   Qt::CaseSensitivity casse)
{
    if (chaine.isEmpty())
        return;
    qsizetype debut = texte.indexOf(chaine, 0, casse);
    while (debut >= 0) {
        qsizetype const fin = debut + chaine.size();
        mesPlages.append({static_cast<int>(debut), static_cast<int>(fin)});
        debut = texte.indexOf(chaine, fin, casse);
    }
}

QString OccurrencesTexte::SansInsecables(QString texte)
{
    // `QString::replace` would allocate what it finds: a text of a megabyte comes here per search.
    for (QChar & caractere : texte) {
        if (caractere == QChar::Nbsp || caractere == kInsecableFine)
            caractere = u' ';
    }
    return texte;
}

OccurrencesTexte::Plage OccurrencesTexte::DonnePlage(int numero) const
{
    return mesPlages.value(numero - 1);
}

int OccurrencesTexte::DonneNumero(Plage const & plage) const
{
    int const numero = DonneSuivante(plage.debut, false);
    return numero > 0 && DonnePlage(numero) == plage ? numero : 0;
}

int OccurrencesTexte::DonneSuivante(int position, bool boucler) const
{
    auto const suivante = std::ranges::lower_bound(mesPlages, position, {}, &Plage::debut);
    if (suivante != mesPlages.end())
        return static_cast<int>(suivante - mesPlages.begin()) + 1;
    return boucler && !mesPlages.isEmpty() ? 1 : 0;
}

int OccurrencesTexte::DonnePrecedente(int position, bool boucler) const
{
    auto const derriere = std::ranges::upper_bound(mesPlages, position, {}, &Plage::fin);
    if (derriere != mesPlages.begin())
        return static_cast<int>(derriere - mesPlages.begin());
    return boucler ? DonneNombre() : 0;
}

std::span<OccurrencesTexte::Plage const> OccurrencesTexte::DonneDans(Plage const & plage) const
{
    auto const premiere = std::ranges::upper_bound(mesPlages, plage.debut, {}, &Plage::fin);
    auto const derriere =
        std::ranges::lower_bound(premiere, mesPlages.end(), plage.fin, {}, &Plage::debut);
    return {premiere, derriere};
}
