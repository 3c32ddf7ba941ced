// style/TexteDeLabel_p.h
#pragma once

#include <QString>

// Texts as a label with rich text takes them.
namespace TexteDeLabel {

/// The text with every "<" that opens no tag written as an entity: HTML would lose what follows it.
QString ProtegeChevrons(QString const & texte);

/// The text of a menu item without the mark of its mnemonic, which a label would show. Entities
/// keep their ampersand.
QString SansMnemonique(QString const & texte);

} // namespace TexteDeLabel
