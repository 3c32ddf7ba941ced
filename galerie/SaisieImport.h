// galerie/SaisieImport.h
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QVariantMap>

/// Where the import of a list stands, and all that was entered: enough to open its wizard again.
struct SaisieImport
{
    QVariantMap options; ///< that the steps share, by the names below
    int etape = 0;       ///< the current one
    int etapeMax = 0;    ///< the last one that was reached
    QByteArray geometrie;
};

/// The names of the options. Steps read and write them, and know nothing of each other.
namespace OptionsImport {
inline constexpr QLatin1StringView kEstColle("estColle"); ///< text is pasted; no file is read
inline constexpr QLatin1StringView kChemin("chemin");
inline constexpr QLatin1StringView kTexte("texte"); ///< that was pasted
inline constexpr QLatin1StringView kOctets("octets");
inline constexpr QLatin1StringView kOctetsDe("octetsDe"); ///< the file that they were read from
inline constexpr QLatin1StringView kFormat("format");
inline constexpr QLatin1StringView kFormatPour("formatPour"); ///< the bytes that it was guessed for
inline constexpr QLatin1StringView kMots("mots");             ///< all that the format finds
inline constexpr QLatin1StringView kTri("tri");
inline constexpr QLatin1StringView kMotsTries("motsTries");
inline constexpr QLatin1StringView kVerification("verification");
inline constexpr QLatin1StringView kMotsVerifies("motsVerifies"); ///< those that it was made for
inline constexpr QLatin1StringView kRetireInconnus("retireInconnus");
inline constexpr QLatin1StringView kMotsRetenus("motsRetenus");
inline constexpr QLatin1StringView kNom("nom"); ///< of the list, once it was typed

inline constexpr QLatin1StringView kToutes[] = {
    kEstColle,     kChemin,       kTexte,          kOctets,      kOctetsDe,
    kFormat,       kFormatPour,   kMots,           kTri,         kMotsTries,
    kVerification, kMotsVerifies, kRetireInconnus, kMotsRetenus, kNom};
} // namespace OptionsImport
