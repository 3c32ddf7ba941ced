// galerie/MemoireImports.cpp
#include "MemoireImports.h"

#include <algorithm>

namespace {

QList<MemoireImports::Liste> & PreteListes()
{
    static QList<MemoireImports::Liste> listes;
    return listes;
}

} // namespace

namespace MemoireImports {

QList<Liste> const & DonneListes()
{
    return PreteListes();
}

bool Contient(QString const & nom)
{
    QString const voulu = nom.trimmed();
    return std::any_of(DonneListes().begin(), DonneListes().end(), [&voulu](Liste const & liste) {
        return liste.nom.compare(voulu, Qt::CaseInsensitive) == 0;
    });
}

bool Ajoute(Liste liste)
{
    liste.nom = liste.nom.trimmed();
    if (liste.nom.isEmpty() || Contient(liste.nom))
        return false;
    PreteListes().append(std::move(liste));
    return true;
}

void Retire(int indice)
{
    if (indice >= 0 && indice < PreteListes().size())
        PreteListes().removeAt(indice);
}

void Oublie()
{
    PreteListes().clear();
}

} // namespace MemoireImports
