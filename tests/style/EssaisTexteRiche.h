// tests/style/EssaisTexteRiche.h
#pragma once

#include "style/DStyleProxy.h"
#include "style/InterpreteurChaineSemantiqueT.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QRegion>

/// The arguments of one drawing of rich text, with values that draw.
struct DemandeTexteRiche
{
    QString texte = QStringLiteral("<b>x</b>");
    QRect rect = QRect(10, 5, 120, 40);
    bool actif = true;
    QPalette palette = QApplication::palette();
    QPoint decalage;
    eContextePourStyle contexte = kContexteNormal;
    int alignement = Qt::AlignLeft | Qt::AlignVCenter;
    QWidget const * widget = nullptr;
    bool forcay = false;

    bool Dessine(DStyleProxy const & style, QPainter & peintre) const
    {
        return style.DessinerTexteRiche(&peintre, texte, rect, actif, palette, decalage.x(),
                                        decalage.y(), contexte, alignement, widget, forcay);
    }
};

/// A transparent picture to draw on.
inline QImage Toile(double ratio = 1.0)
{
    QImage image(QSize(200, 80) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

/// The part of the picture that is not transparent, in its own pixels.
inline QRect Encre(QImage const & image)
{
    QRect encre;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0)
                encre |= QRect(x, y, 1, 1);
        }
    }
    return encre;
}

/// The labels without a parent that a style keeps for rich text.
inline QList<QLabel *> LabelsRiches()
{
    QList<QLabel *> labels;
    for (QWidget * const widget : QApplication::topLevelWidgets()) {
        auto * const label = qobject_cast<QLabel *>(widget);
        if (label && label->textFormat() == Qt::RichText)
            labels.append(label);
    }
    return labels;
}

/// The one of these that is drawn, null before there is one.
inline QLabel * LabelDeRendu()
{
    for (QLabel * const label : LabelsRiches()) {
        if (label->testAttribute(Qt::WA_TranslucentBackground))
            return label;
    }
    return nullptr;
}

/// Gives the widget one rule for that context: `<cle>` becomes "[" and its end "]".
inline void MetsRegle(QWidget & widget, char const * cle,
                      eContextePourStyle contexte = kContexteNormal)
{
    EnsembleRegles const regles = {
        {UniChaine(cle),
         InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
             UniChaine("["), UniChaine("]"))}};
    widget.setProperty(DStyleProxy::DonneNomProprieteEnsembleReglesTexteRiche(),
                       QVariant::fromValue(MapDeRegles{{contexte, regles}}));
}
