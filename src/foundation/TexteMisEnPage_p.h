// foundation/TexteMisEnPage_p.h
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QTextLayout>

#include <vector>

class QPainter;

namespace RoutinesGeneralesQt {
struct TexteAvecFormat;
}

/// Rich text in lines, to be drawn any number of times with any painter.
class TexteMisEnPage
{
public:
    static constexpr int kLargeurIllimitee =
        2147483647; // pixels; the layout takes what it can hold

    /// Highlighted text that has no colour of its own is black with `surlignementEnNoir`, else in
    /// the colour of the pen.
    TexteMisEnPage(RoutinesGeneralesQt::TexteAvecFormat const & texte, QFont const & font,
                   bool surlignementEnNoir = false);
    Q_DISABLE_COPY_MOVE(TexteMisEnPage)

    void MetsRetour(QTextOption::WrapMode retour);
    bool CoupePartout() const;
    /// The next line, invalid behind the last one.
    QTextLine AjouteLigne();
    /// To be called once, when there is no line to come.
    void Termine();

    QTextLine DonneLigne(int indice) const { return monLayout.lineAt(indice); }
    bool EstDeDroiteAGauche() const;

    void Dessine(QPainter & peintre, QPointF const & coin) const;

private:
    struct Glyphes
    {
        QGlyphRun glyphes;
        QColor couleur; // where it is the text's own
        bool colore = false;
    };

    void PrepareGlyphes() const;
    bool AjouteGlyphes(QTextLine const & ligne, int debut, int longueur) const;
    bool PeutDessinerGlyphes(QPainter const & peintre) const;

    QTextLayout monLayout;
    // Those that glyphs do not tell: the colours, and what stands above or below the line. The
    // outer ones first.
    QList<QTextLayout::FormatRange> mesPlages;
    // Made when the text is first drawn on a device that takes them.
    mutable std::vector<Glyphes> mesGlyphes;
    mutable bool mesGlyphesPrets = false;
    mutable bool monDessinParGlyphes = false;
};
