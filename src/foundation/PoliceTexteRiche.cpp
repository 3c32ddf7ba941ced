// foundation/PoliceTexteRiche.cpp
#include "foundation/PoliceTexteRiche_p.h"

#include "foundation/Polices.h"
#include "foundation/TexteMisEnPage_p.h"

#include <QColor>
#include <QFontMetrics>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

constexpr double kProportionPetitesCapitales = 0.8;
constexpr double kProportionMention = 0.7;
constexpr double kDifferencePetitesCapitales = 1.0; // points
constexpr double kDifferenceEmphase = 1.0;          // points
constexpr double kDifferenceMention = 1.0;          // points
constexpr double kDifferenceIndice = -2.0;          // points
constexpr double kTailleLosange = 7.0;              // points
constexpr double kTailleMinimale = 1.0;             // points, and pixels: Qt knows no smaller font
constexpr QRgb kCouleurSurlignement = qRgba(250, 250, 0, 255);

// A format that says nothing of weight and slant where the font has the usual ones, which would
// take away the bold or the italics of the other tags around the text.
QTextCharFormat FabriqueFormatDeFont(QFont const & font)
{
    QTextCharFormat format;
    format.setFont(font);
    if (font.weight() == QFont::Normal)
        format.clearProperty(QTextFormat::FontWeight);
    if (!font.italic())
        format.clearProperty(QTextFormat::FontItalic);
    return format;
}

} // namespace

PoliceTexteRiche::PoliceTexteRiche(QFont font)
    : maFont(std::move(font))
{
}

PoliceTexteRiche::~PoliceTexteRiche() = default;

QTextCharFormat const & PoliceTexteRiche::DonneFormat(eFormat quel) const
{
    std::optional<QTextCharFormat> & format = mesFormats[quel];
    if (!format)
        format = FabriqueFormat(quel);
    return *format;
}

int PoliceTexteRiche::DonneInterligne() const
{
    return QFontMetrics(maFont).lineSpacing();
}

int PoliceTexteRiche::DonneLargeurMoyenne() const
{
    return QFontMetrics(maFont).averageCharWidth();
}

std::shared_ptr<TexteMisEnPage const> const & PoliceTexteRiche::PretePoints() const
{
    if (!mesPoints) {
        auto points = std::make_shared<TexteMisEnPage>(u"…"_s, maFont);
        points->AjouteLigne().setLineWidth(TexteMisEnPage::kLargeurIllimitee);
        points->Termine();
        mesPoints = std::move(points);
    }
    return mesPoints;
}

QTextCharFormat PoliceTexteRiche::FabriqueFormat(eFormat quel) const
{
    QTextCharFormat format;
    switch (quel) {
    case kItalique:
        format.setFontItalic(true);
        break;
    case kGras:
        format.setFontWeight(QFont::Bold);
        break;
    case kPetitesCapitales:
        format = FabriqueFormatDeFont(
            FabriqueFont(kProportionPetitesCapitales, kDifferencePetitesCapitales));
        format.setFontCapitalization(QFont::SmallCaps);
        break;
    case kEmphase:
    case kEmphaseRomaine:
        format = FabriqueFormatDeFont(FabriqueFont(1.0, kDifferenceEmphase));
        break;
    case kMention:
    case kMentionRomaine:
        format = FabriqueFormatDeFont(FabriqueFont(kProportionMention, kDifferenceMention));
        break;
    case kIndice:
        format = FabriqueFormatDeFont(FabriqueFont(1.0, kDifferenceIndice));
        format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        break;
    case kExposant:
        format = FabriqueFormatDeFont(FabriqueFont(1.0, 0.0));
        format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        break;
    case kSurlignement:
        format.setBackground(QColor::fromRgba(kCouleurSurlignement));
        break;
    case kLosange:
        format = FabriqueFormatDeFont(
            ModulateurFont::Instance()->DonneFontPointVersPixels(kTailleLosange, maFont));
        break;
    case kNombreDeFormats:
        break;
    }
    if (quel == kEmphase || quel == kMention)
        format.setFontItalic(true);
    return format;
}

// The font with its pixels multiplied and truncated, then made larger by some points.
QFont PoliceTexteRiche::FabriqueFont(double proportion, double difference) const
{
    ModulateurFont const & modulateur = *ModulateurFont::Instance();
    QFont font(maFont);
    if (proportion != 1.0) {
        // A font in points has the pixels that it is drawn with.
        int const pixels = modulateur.DonnePixelSizeDeFont(font, false);
        font.setPixelSize(
            std::max(static_cast<int>(pixels * proportion), static_cast<int>(kTailleMinimale)));
    }
    double const points = modulateur.DonnePointSizeFDeFont(font, true) + difference;
    return modulateur.DonneFontPointVersPixels(std::max(points, kTailleMinimale), font);
}
