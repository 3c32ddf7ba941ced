// noyau/plateforme/EntreesBureau_p.h
#pragma once

#include <QStringList>

/// True when one of the folders of applications, the one that wins first, holds a desktop entry
/// with the file identifier `identifiant`, or one that shows the name `nom` in any language.
///
/// An empty argument matches nothing. An entry that a user has marked as deleted hides those of the
/// same identifier in the later folders.
bool EntreeBureauExiste(QStringList const & dossiers, QString const & identifiant,
                        QString const & nom);
