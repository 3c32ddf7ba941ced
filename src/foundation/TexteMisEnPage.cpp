// foundation/TexteMisEnPage.cpp
#include "foundation/TexteMisEnPage_p.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>

namespace {

// More coloured ranges than that are left to the layout, which looks for the range of a letter
// faster.
constexpr qsizetype kNombreMaxDeCouleurs = 32;

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

// Lines and backgrounds are the layout's to draw, and so is what stands above or below the line.
bool EstFaitDeGlyphes(QTextLayout::FormatRange const & plage)
{
    return plage.format.verticalAlignment() == QTextCharFormat::AlignNormal &&
           plage.format.background().style() == Qt::NoBrush;
}

} // namespace

TexteMisEnPage::TexteMisEnPage(QString const & texte, QFont const & font,
                               QList<QTextLayout::FormatRange> const & formats)
    : monLayout(AvecSeparateurs(texte), font)
{
    for (QTextLayout::FormatRange const & plage : formats) {
        if (plage.format.foreground().style() != Qt::NoBrush)
            mesCouleurs.append(plage);
    }
    monDessinParGlyphes = mesCouleurs.size() <= kNombreMaxDeCouleurs && !font.underline() &&
                          !font.overline() && !font.strikeOut() &&
                          std::all_of(formats.begin(), formats.end(), EstFaitDeGlyphes);
    monLayout.setFormats(formats);
    monLayout.setCacheEnabled(true); // else the layout forgets at the end what it draws
    monLayout.beginLayout();
}

QList<QTextLayout::FormatRange>
TexteMisEnPage::DonneFormatsImbriques(QList<QTextLayout::FormatRange> const & formats,
                                      QFont const & font)
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
    if (monDessinParGlyphes)
        PrepareGlyphes();
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

void TexteMisEnPage::PrepareGlyphes()
{
    for (int i = 0; i < monLayout.lineCount(); ++i) {
        QTextLine const ligne = monLayout.lineAt(i);
        int const debut = ligne.textStart();
        int const fin = debut + ligne.textLength();
        QList<int> bornes = {debut, fin};
        for (QTextLayout::FormatRange const & plage : mesCouleurs) {
            bornes.append(std::clamp(plage.start, debut, fin));
            bornes.append(std::clamp(plage.start + plage.length, debut, fin));
        }
        std::sort(bornes.begin(), bornes.end());
        for (qsizetype borne = 1; borne < bornes.size(); ++borne)
            AjouteGlyphes(ligne, bornes.at(borne - 1), bornes.at(borne) - bornes.at(borne - 1));
    }
}

void TexteMisEnPage::AjouteGlyphes(QTextLine const & ligne, int debut, int longueur)
{
    if (longueur == 0)
        return;
    Glyphes morceau;
    for (QTextLayout::FormatRange const & plage : mesCouleurs) {
        if (debut >= plage.start && debut < plage.start + plage.length) {
            morceau.couleur = plage.format.foreground().color();
            morceau.colore = true;
        }
    }
    for (QGlyphRun const & glyphes : ligne.glyphRuns(debut, longueur)) {
        morceau.glyphes = glyphes;
        mesGlyphes.push_back(morceau);
    }
}

// Glyphs are drawn in half the time that the layout takes. Other devices want the letters too, to
// print or to save them as text.
bool TexteMisEnPage::PeutDessinerGlyphes(QPainter const & peintre) const
{
    return monDessinParGlyphes && peintre.paintEngine() &&
           peintre.paintEngine()->type() == QPaintEngine::Raster;
}
