// galerie/MemoireImports.h
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The lists that were imported, kept while the program runs.
namespace MemoireImports {

struct Liste
{
    QString nom;
    QStringList mots;
};

/// In the order of their import.
QList<Liste> const & DonneListes();
/// Neither case nor blanks around the name make another name of it.
bool Contient(QString const & nom);
/// False, and nothing changes, for a name that is blank or used.
bool Ajoute(Liste liste);
/// Does nothing without a list of that index.
void Retire(int indice);
void Oublie();

} // namespace MemoireImports
