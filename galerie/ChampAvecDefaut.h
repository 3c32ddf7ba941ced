// galerie/ChampAvecDefaut.h
#pragma once

#include <QLineEdit>

/// A field that begins with a text in the language of the page. What the user types is kept when
/// the page is built anew in another language; the text that it began with is not.
class ChampAvecDefaut : public QLineEdit
{
    Q_OBJECT
    // Read and written when the page is built anew; nobody waits for its changes.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QString saisie READ DonneSaisie WRITE MetsSaisie USER true)

public:
    using QLineEdit::QLineEdit;

    /// Null while the user has typed nothing.
    QString DonneSaisie() const;
    /// Null changes nothing.
    void MetsSaisie(QString const & saisie);
};
