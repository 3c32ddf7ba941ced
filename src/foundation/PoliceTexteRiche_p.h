// foundation/PoliceTexteRiche_p.h
#pragma once

#include <QFont>
#include <QTextCharFormat>

#include <array>
#include <memory>
#include <optional>

class TexteMisEnPage;

/// What rich text needs of one font: the formats of the tags, built on it, and its measures. Each
/// is made when it is first asked for, with the modulator of that moment.
class PoliceTexteRiche
{
public:
    enum eFormat
    {
        kItalique,
        kGras,
        kPetitesCapitales,
        kEmphase,
        kEmphaseRomaine,
        kMention,
        kMentionRomaine,
        kIndice,
        kExposant,
        kSurlignement,
        kLosange,
        kNombreDeFormats
    };

    explicit PoliceTexteRiche(QFont const & font);
    ~PoliceTexteRiche();
    Q_DISABLE_COPY_MOVE(PoliceTexteRiche)

    QFont const & DonneFont() const { return maFont; }
    QTextCharFormat const & DonneFormat(eFormat quel) const;

    int DonneInterligne() const;     ///< pixels
    int DonneLargeurMoyenne() const; ///< of a character, pixels
    /// "…", laid out.
    std::shared_ptr<TexteMisEnPage const> const & PretePoints() const;

private:
    QTextCharFormat FabriqueFormat(eFormat quel) const;
    QFont FabriqueFont(double proportion, double difference) const;

    QFont maFont;
    mutable std::array<std::optional<QTextCharFormat>, kNombreDeFormats> mesFormats;
    mutable std::shared_ptr<TexteMisEnPage const> mesPoints;
};
