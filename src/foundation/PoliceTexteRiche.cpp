// foundation/PoliceTexteRiche.cpp
#include "foundation/PoliceTexteRiche_p.h"

#include "foundation/Polices.h"
#include "foundation/TexteMisEnPage_p.h"
#include "foundation/TexteRiche.h"

#include <QColor>
#include <QFontMetrics>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::ModulateurFont;

namespace {

constexpr double kTailleLosange = 7.0; // points
// Qt knows no smaller font.
constexpr double kTailleMinimale = 1.0; // points
constexpr int kPixelsMin = 1;
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

PoliceTexteRiche::PoliceTexteRiche(QFont const & font)
    : maFont(font)
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
        auto points = std::make_shared<TexteMisEnPage>(
            RoutinesGeneralesQt::TexteAvecFormat{{}, u"…"_s}, maFont);
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
        format = FabriqueFormatDeFont(FabriqueFont(0.8, 1.0));
        format.setFontCapitalization(QFont::SmallCaps);
        break;
    case kEmphaseRomaine:
        return FabriqueFormatDeFont(FabriqueFont(1.0, 1.0));
    case kMentionRomaine:
        return FabriqueFormatDeFont(FabriqueFont(0.7, 1.0));
    case kEmphase:
    case kMention:
        format = DonneFormat(quel == kEmphase ? kEmphaseRomaine : kMentionRomaine);
        format.setFontItalic(true);
        break;
    case kIndice:
        format = FabriqueFormatDeFont(FabriqueFont(1.0, -2.0));
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
        return FabriqueFormatDeFont(
            ModulateurFont::Instance()->DonneFontPointVersPixels(kTailleLosange, maFont));
    case kNombreDeFormats:
        break;
    }
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
        font.setPixelSize(std::max(static_cast<int>(pixels * proportion), kPixelsMin));
    }
    double const points = modulateur.DonnePointSizeFDeFont(font, true) + difference;
    return modulateur.DonneFontPointVersPixels(std::max(points, kTailleMinimale), font);
}
