// tests/foundation/ReferenceTexteRiche.h
#pragma once

#include "foundation/TexteRiche.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

// The plain way to draw rich text: a layout for each call, drawn by itself, nothing remembered.

struct RangDemande
{
    QString texte;
    QString source{};
    bool deuxLignes = false;
};

inline double DonneLargeurPointsDeReference(QFont const & font)
{
    QTextLayout layout(QString(QChar(0x2026)), font);
    layout.beginLayout();
    QTextLine ligne = layout.createLine();
    ligne.setLineWidth(100000);
    layout.endLayout();
    return ligne.naturalTextWidth();
}

// Gives the line its width, shortened for "…" where it does not fit, and draws that; the width
// taken.
inline double CoupeParReference(QPainter & peintre, QTextLine ligne, double largeur, QPointF coin,
                                bool colleADroite, QFont const & font)
{
    double const points = DonneLargeurPointsDeReference(font);
    ligne.setLineWidth(100000);
    double const naturelle = ligne.naturalTextWidth();
    ligne.setLineWidth(largeur);
    bool const coupee = ligne.naturalTextWidth() < naturelle;
    if (coupee)
        ligne.setLineWidth(largeur - points);
    double const prise = ligne.naturalTextWidth() + (coupee ? points : 0.0);
    if (colleADroite)
        coin.rx() += largeur - prise;
    if (coupee) {
        peintre.setFont(font);
        peintre.drawText(coin + QPointF(ligne.naturalTextWidth(), ligne.ascent()),
                         QString(QChar(0x2026)));
    }
    return prise;
}

inline void PrepareReference(QTextLayout & layout, QString texte,
                             QList<QTextLayout::FormatRange> formats, QTextOption::WrapMode retour)
{
    std::reverse(formats.begin(), formats.end()); // a layout gives the last word to the last one
    layout.setText(texte.replace(u'\n', QChar(QChar::LineSeparator)));
    layout.setFormats(formats);
    QTextOption option;
    option.setWrapMode(retour);
    layout.setTextOption(option);
    layout.beginLayout();
}

inline double DessineSourceDeReference(QPainter & peintre, QRect const & rectangle,
                                       QFont const & font, QString const & source)
{
    auto const analyse =
        RoutinesGeneralesQt::DonneTexteAvecFormat(QStringLiteral(" —") + source, font);
    auto formats = analyse.formats;
    QTextCharFormat italique;
    italique.setFontItalic(true);
    formats.append({0, int(analyse.texte.Longueur()), italique});
    QTextLayout layout(QString(), font);
    PrepareReference(layout, analyse.texte, formats, QTextOption::WrapAnywhere);
    QTextLine const ligne = layout.createLine();
    double const prise =
        CoupeParReference(peintre, ligne, rectangle.width(), rectangle.topLeft(), true, font);
    layout.endLayout();
    layout.draw(&peintre, rectangle.topLeft() + QPointF(rectangle.width() - prise, 0));
    return prise;
}

inline void DessineReference(QPainter & peintre, QRect const & rectangle, QFont const & font,
                             RangDemande const & rang)
{
    peintre.save();
    double const source = rang.source.isEmpty()
                              ? 0.0
                              : DessineSourceDeReference(peintre, rectangle, font, rang.source);
    QFontMetrics const mesures(font);
    bool const deux =
        rang.deuxLignes && rectangle.width() - 5 * mesures.averageCharWidth() > source;
    auto const analyse = RoutinesGeneralesQt::DonneTexteAvecFormat(rang.texte, font);
    QTextLayout layout(QString(), font);
    PrepareReference(layout, analyse.texte, analyse.formats,
                     deux ? QTextOption::WordWrap : QTextOption::WrapAnywhere);
    QTextLine premiere = layout.createLine();
    if (premiere.isValid() && deux)
        premiere.setLineWidth(rectangle.width() - source);
    else if (premiere.isValid())
        CoupeParReference(peintre, premiere, rectangle.width() - source, rectangle.topLeft(), false,
                          font);
    if (deux && 2 * mesures.lineSpacing() <= rectangle.height()) {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAnywhere);
        layout.setTextOption(option);
        QTextLine seconde = layout.createLine();
        if (seconde.isValid()) {
            QPointF const place(0, mesures.lineSpacing());
            CoupeParReference(peintre, seconde, rectangle.width(), rectangle.topLeft() + place,
                              false, font);
            seconde.setPosition(place);
        }
    }
    layout.endLayout();
    layout.draw(&peintre, rectangle.topLeft());
    peintre.restore();
}
