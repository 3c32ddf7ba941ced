// noyau/RoutinesTexte.h
#pragma once

#include "FabrelNoyauExport.h"

#include <QList>
#include <QString>

class UniChaine;

namespace RoutinesGeneralesQt {

/// The whole text of a UTF-8 file, also of a ":/" resource; empty when it can't be read.
FABRELNOYAU_EXPORT QString ContenuFichier(QString const & chemin);

/// Turns plain text into HTML, in place: < > & " are escaped, a line feed becomes "<br>".
///
/// Tags of an element of `balises`, named without brackets ("b" leaves "<b>", "</b>" and "<b/>"
/// alone, with attributes or not), stay as they are. Such a tag ends at its first ">".
FABRELNOYAU_EXPORT void HTMLiser(QString & texte, QList<QString> const & balises = {});

/// Writes the text as UTF-8 and a line end to `std::cerr`.
FABRELNOYAU_EXPORT void EcrisSurErreurStandard(UniChaine const & texte);

} // namespace RoutinesGeneralesQt
