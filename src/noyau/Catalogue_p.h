// noyau/Catalogue_p.h
#pragma once

#include "noyau/ChaineLocalisable.h"

#include <QByteArray>
#include <QString>

#include <locale>
#include <optional>
#include <string_view>

/// One gettext catalogue: the messages of one domain in one language. Readable from any thread.
class Catalogue
{
public:
    /// Without a message: every look-up finds none.
    Catalogue() = default;
    /// Reads a `.mo` file of the file system or of the resource tree. One that is missing or
    /// damaged finds no message, and the journal takes a line.
    explicit Catalogue(QString const & fichier);

    /// UTF-8, valid as long as the catalogue; none when there is no entry.
    std::optional<std::string_view> Cherche(VueTexte identifiant, VueTexte contexte) const;
    /// The form that the catalogue's `Plural-Forms` chooses for `nombre`.
    std::optional<std::string_view> Cherche(ChaineLocalisablePluriel const & message,
                                            quint64 nombre) const;

private:
    std::optional<std::locale> maLocale; // carries the message facet
};

/// True when every table and text of the `.mo` image lies inside it, so that it can be read without
/// further tests.
bool ImageDeCatalogueEstSaine(QByteArray const & image);
