// foundation/TexteMisEnPage.cpp
#include "foundation/TexteMisEnPage_p.h"

#include "foundation/TexteRiche.h"

#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// More ranges than that are left to the layout, which looks for those of a letter faster.
constexpr qsizetype kNombreMaxDePlages = 32;

constexpr int kFractionsDePixel = 64; // that a layout counts in

// The layout breaks its lines at a line separator only.
QString AvecSeparateurs(QString texte)
{
    return texte.replace(u'\n', QChar(QChar::LineSeparator));
}

// What a format only repeats of the font would undo the bold and the italics of a tag around it.
void OublieRepetitions(QTextCharFormat & format, QFont const & font)
{
    if (format.hasProperty(QTextFormat::FontWeight) && format.fontWeight() == font.weight())
        format.clearProperty(QTextFormat::FontWeight);
    if (format.hasProperty(QTextFormat::FontItalic) && format.fontItalic() == font.italic())
        format.clearProperty(QTextFormat::FontItalic);
}

bool EstSurlignay(QTextLayout::FormatRange const & plage)
{
    return plage.format.background().style() != Qt::NoBrush;
}

bool EstColoray(QTextLayout::FormatRange const & plage)
{
    return plage.format.foreground().style() != Qt::NoBrush;
}

bool EstDecalay(QTextLayout::FormatRange const & plage)
{
    return plage.format.verticalAlignment() != QTextCharFormat::AlignNormal;
}

// Ranges as a layout has to have them for the inner ones to add to the outer ones.
QList<QTextLayout::FormatRange>
DonneFormatsImbriques(QList<QTextLayout::FormatRange> const & formats, QFont const & font)
{
    QList<QTextLayout::FormatRange> imbriques;
    imbriques.reserve(formats.size());
    // Inner ranges are closed first, and a layout gives the last word to the last one.
    for (auto plage = formats.crbegin(); plage != formats.crend(); ++plage) {
        if (plage->length == 0 || plage->format.isEmpty())
            continue;
        imbriques.append(*plage);
        OublieRepetitions(imbriques.last().format, font);
    }
    return imbriques;
}

// Below all other ranges, so that a text with a colour of its own keeps it.
void NoircisSurlignement(QList<QTextLayout::FormatRange> & formats)
{
    QList<QTextLayout::FormatRange> noircis;
    for (QTextLayout::FormatRange plage : std::as_const(formats)) {
        if (!EstSurlignay(plage))
            continue;
        plage.format = QTextCharFormat();
        plage.format.setForeground(Qt::black);
        noircis.append(plage);
    }
    formats = noircis + formats;
}

// How far below the line the layout puts the letters of these glyphs, in pixels. Counted as the
// layout does, whose truncation shows at other scales.
double DonneDecalage(QRawFont const & font, QTextCharFormat const & format)
{
    bool const indice = format.verticalAlignment() == QTextCharFormat::AlignSubScript;
    double const pourcents = indice ? format.subScriptBaseline() : format.superScriptBaseline();
    auto const part = static_cast<int>(pourcents / 100.0 * kFractionsDePixel);
    auto const hauteur =
        static_cast<int>(std::lround((font.ascent() + font.descent()) * kFractionsDePixel));
    int const decalage = (hauteur * part + kFractionsDePixel / 2) / kFractionsDePixel;
    return static_cast<double>(indice ? decalage : -decalage) / kFractionsDePixel;
}

void Descends(QGlyphRun & glyphes, double decalage)
{
    QList<QPointF> positions = glyphes.positions();
    for (QPointF & position : positions)
        position.ry() += decalage;
    glyphes.setPositions(positions);
}

} // namespace

TexteMisEnPage::TexteMisEnPage(RoutinesGeneralesQt::TexteAvecFormat const & texte,
                               QFont const & font, bool surlignementEnNoir)
    : monLayout(AvecSeparateurs(texte.texte), font)
{
    QList<QTextLayout::FormatRange> formats = DonneFormatsImbriques(texte.formats, font);
    if (surlignementEnNoir)
        NoircisSurlignement(formats);
    for (QTextLayout::FormatRange const & plage : std::as_const(formats)) {
        if (EstColoray(plage) || EstDecalay(plage))
            mesPlages.append(plage);
    }
    // Lines and backgrounds are the layout's to draw.
    monDessinParGlyphes = mesPlages.size() <= kNombreMaxDePlages && !font.underline() &&
                          !font.overline() && !font.strikeOut() &&
                          std::none_of(formats.cbegin(), formats.cend(), EstSurlignay);
    monLayout.setFormats(formats);
    monLayout.setCacheEnabled(true); // else the layout forgets at the end what it draws
    monLayout.beginLayout();
}

void TexteMisEnPage::MetsRetour(QTextOption::WrapMode retour)
{
    QTextOption option = monLayout.textOption();
    option.setWrapMode(retour);
    monLayout.setTextOption(option);
}

bool TexteMisEnPage::CoupePartout() const
{
    return monLayout.textOption().wrapMode() == QTextOption::WrapAnywhere;
}

QTextLine TexteMisEnPage::AjouteLigne()
{
    return monLayout.createLine();
}

void TexteMisEnPage::Termine()
{
    monLayout.endLayout();
}

bool TexteMisEnPage::EstDeDroiteAGauche() const
{
    return monLayout.text().isRightToLeft();
}

void TexteMisEnPage::Dessine(QPainter & peintre, QPointF const & coin) const
{
    if (!PeutDessinerGlyphes(peintre)) {
        peintre.save();
        monLayout.draw(&peintre, coin);
        peintre.restore();
        return;
    }
    QPen const crayon = peintre.pen();
    for (Glyphes const & glyphes : mesGlyphes) {
        if (glyphes.colore)
            peintre.setPen(glyphes.couleur);
        peintre.drawGlyphRun(coin, glyphes.glyphes);
        if (glyphes.colore)
            peintre.setPen(crayon);
    }
}

void TexteMisEnPage::PrepareGlyphes() const
{
    mesGlyphesPrets = true;
    for (int i = 0; i < monLayout.lineCount() && monDessinParGlyphes; ++i) {
        QTextLine const ligne = monLayout.lineAt(i);
        int const debut = ligne.textStart();
        int const fin = debut + ligne.textLength();
        QList<int> bornes = {debut, fin};
        for (QTextLayout::FormatRange const & plage : mesPlages) {
            bornes.append(std::clamp(plage.start, debut, fin));
            bornes.append(std::clamp(plage.start + plage.length, debut, fin));
        }
        std::sort(bornes.begin(), bornes.end());
        for (qsizetype borne = 1; borne < bornes.size() && monDessinParGlyphes; ++borne)
            monDessinParGlyphes =
                AjouteGlyphes(ligne, bornes.at(borne - 1), bornes.at(borne) - bornes.at(borne - 1));
    }
}

// False when the layout alone knows where the letters stand.
bool TexteMisEnPage::AjouteGlyphes(QTextLine const & ligne, int debut, int longueur) const
{
    if (longueur == 0)
        return true;
    Glyphes morceau;
    QTextCharFormat const * decalay = nullptr;
    for (QTextLayout::FormatRange const & plage : mesPlages) {
        if (debut < plage.start || debut >= plage.start + plage.length)
            continue;
        if (EstColoray(plage)) {
            morceau.couleur = plage.format.foreground().color();
            morceau.colore = true;
        }
        if (EstDecalay(plage))
            decalay = &plage.format;
    }
    for (QGlyphRun const & glyphes : ligne.glyphRuns(debut, longueur)) {
        morceau.glyphes = glyphes;
        if (decalay) {
            QRawFont const font = glyphes.rawFont();
            // Letters that another family lends move with the height of the first one.
            if (font.familyName() != QRawFont::fromFont(monLayout.font()).familyName())
                return false;
            Descends(morceau.glyphes, DonneDecalage(font, *decalay));
        }
        mesGlyphes.push_back(morceau);
    }
    return true;
}

// Glyphs are drawn in half the time that the layout takes. Other devices want the letters too, to
// print or to save them as text.
bool TexteMisEnPage::PeutDessinerGlyphes(QPainter const & peintre) const
{
    if (!monDessinParGlyphes || !peintre.paintEngine() ||
        peintre.paintEngine()->type() != QPaintEngine::Raster)
        return false;
    if (!mesGlyphesPrets)
        PrepareGlyphes();
    return monDessinParGlyphes;
}
