// tests/foundation/ImagesTexteRiche.h
#pragma once

#include "foundation/TexteRiche.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <functional>

// Rich text on white images, and what can be seen there.

constexpr QSize kTailleImage(420, 80); // logical pixels
constexpr QRect kLarge(3, 5, 400, 30);
constexpr QRect kEtroit(3, 5, 120, 30);

inline QString TexteLong()
{
    return QStringLiteral("Les chats dorment souvent sur le tapis du grand salon");
}

inline QFont DonneFontDImage()
{
    QFont font = QApplication::font();
    font.setPixelSize(18);
    return font;
}

inline double Longueur(QString const & texte)
{
    return RoutinesGeneralesQt::DonneLongueurTexteRiche(texte, DonneFontDImage());
}

inline int DonneInterligne()
{
    return QFontMetrics(DonneFontDImage()).lineSpacing();
}

inline QImage DessineImage(std::function<void(QPainter &)> const & dessin, double ratio = 1.0)
{
    QImage image(kTailleImage * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter peintre(&image);
    dessin(peintre);
    return image;
}

inline QImage DessineRang(QRect const & rectangle, QString const & texte,
                          QString const & source = {}, bool deuxLignes = false)
{
    return DessineImage([&](QPainter & peintre) {
        RoutinesGeneralesQt::DessineTexteRicheAvecSource(peintre, rectangle, DonneFontDImage(),
                                                         texte, source, deuxLignes);
    });
}

// The rectangle of all that is not white.
inline QRect DonneEncre(QImage const & image, QRect const & ou = QRect({}, kTailleImage))
{
    QRect encre;
    for (int y = ou.top(); y <= ou.bottom(); ++y) {
        for (int x = ou.left(); x <= ou.right(); ++x) {
            if (image.pixel(x, y) != 0xffffffffU)
                encre |= QRect(x, y, 1, 1);
        }
    }
    return encre;
}

inline bool ContientCouleur(QImage const & image, QColor const & couleur)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == couleur)
                return true;
        }
    }
    return false;
}
