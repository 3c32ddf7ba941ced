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

constexpr double kTailleLosange = 7.0;  // points
constexpr double kTailleMinimale = 1.0; // points, and pixels: Qt knows no smaller font
constexpr QRgb kCouleurSurlignement = qRgba(250, 250, 0, 255);

// A format in another size.
struct FormatDePolice
{
    PoliceTexteRiche::eFormat quel;
    double proportion; // of the pixels, truncated
    double difference; // points, added then
    bool italique;
    QTextCharFormat::VerticalAlignment alignement;
};

constexpr FormatDePolice kFormatsDePolice[] = {
    {PoliceTexteRiche::kPetitesCapitales, 0.8, 1.0, false, QTextCharFormat::AlignNormal},
    {PoliceTexteRiche::kEmphase, 1.0, 1.0, true, QTextCharFormat::AlignNormal},
    {PoliceTexteRiche::kEmphaseRomaine, 1.0, 1.0, false, QTextCharFormat::AlignNormal},
    {PoliceTexteRiche::kMention, 0.7, 1.0, true, QTextCharFormat::AlignNormal},
    {PoliceTexteRiche::kMentionRomaine, 0.7, 1.0, false, QTextCharFormat::AlignNormal},
    {PoliceTexteRiche::kIndice, 1.0, -2.0, false, QTextCharFormat::AlignSubScript},
    {PoliceTexteRiche::kExposant, 1.0, 0.0, false, QTextCharFormat::AlignSuperScript},
};

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
    for (FormatDePolice const & description : kFormatsDePolice) {
        if (description.quel != quel)
            continue;
        format = FabriqueFormatDeFont(FabriqueFont(description.proportion, description.difference));
        if (description.italique)
            format.setFontItalic(true);
        if (description.alignement != QTextCharFormat::AlignNormal)
            format.setVerticalAlignment(description.alignement);
    }
    if (quel == kItalique)
        format.setFontItalic(true);
    else if (quel == kGras)
        format.setFontWeight(QFont::Bold);
    else if (quel == kPetitesCapitales)
        format.setFontCapitalization(QFont::SmallCaps);
    else if (quel == kSurlignement)
        format.setBackground(QColor::fromRgba(kCouleurSurlignement));
    else if (quel == kLosange)
        format = FabriqueFormatDeFont(
            ModulateurFont::Instance()->DonneFontPointVersPixels(kTailleLosange, maFont));
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
