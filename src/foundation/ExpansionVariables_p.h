// foundation/ExpansionVariables_p.h
#pragma once

#include "FabrelGuiExport.h"

#include <QString>
#include <QStringList>

#include <map>

// How the variables of a theme are read out of a text. A name follows the prefix and ends before
// white space, one of ; , ) [ ] { } or at the end of the text. The prefix holds none of these.
namespace RoutinesVariables {

using Variables = std::map<QString, QString>;

/// True for the characters that end a name; of white space, only the ASCII characters do.
FABRELGUI_EXPORT bool EstFinDeNom(QChar caractere);

/// The text with each name and its prefix replaced by the value, and the values expanded in turn.
///
/// With a prefix of one character, a name without a value is tried again for ever, and names that
/// lead to themselves are followed for ever: the call does not return. The time is linear in the
/// length of the text and of the values put in.
FABRELGUI_EXPORT QString Applique(QString const & texte, QString const & prefixe,
                                  Variables const & variables);

/// The names without a value that the expansion of the text comes upon, each once, in the order in
/// which it does. Always returns.
FABRELGUI_EXPORT QStringList DonneInconnues(QString const & texte, QString const & prefixe,
                                            Variables const & variables);

} // namespace RoutinesVariables
