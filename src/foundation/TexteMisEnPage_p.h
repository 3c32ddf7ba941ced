// foundation/TexteMisEnPage_p.h
#pragma once

#include <QColor>
#include <QGlyphRun>
#include <QList>
#include <QTextLayout>

#include <vector>

class QPainter;

/// Rich text in lines, to be drawn any number of times with any painter.
class TexteMisEnPage
{
public:
    static constexpr int kLargeurIllimitee =
        2147483647; // pixels; the layout takes what it can hold

    TexteMisEnPage(QString const & texte, QFont const & font,
                   QList<QTextLayout::FormatRange> const & formats = {});
    Q_DISABLE_COPY_MOVE(TexteMisEnPage)

    /// Ranges as a layout has to have them for the inner ones to add to the outer ones.
    static QList<QTextLayout::FormatRange>
    DonneFormatsImbriques(QList<QTextLayout::FormatRange> const & formats, QFont const & font);

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

    void PrepareGlyphes();
    void AjouteGlyphes(QTextLine const & ligne, int debut, int longueur);
    bool PeutDessinerGlyphes(QPainter const & peintre) const;

    QTextLayout monLayout;
    QList<QTextLayout::FormatRange> mesCouleurs; // the ranges with a colour, the outer ones first
    std::vector<Glyphes> mesGlyphes;
    bool monDessinParGlyphes = false;
};
