// tests/controls/Encre.h
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QSize>

#include <algorithm>

// What was painted where, in images of one device pixel per logical one unless told otherwise.
namespace Encre {

inline QImage ImageBlanche(QSize const & taille, double ratio = 1.0)
{
    QImage image(taille * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// The smallest rectangle around the pixels that the question is true for.
template <typename Question>
QRect Bornes(QImage const & image, Question const & question)
{
    QRect bornes;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (question(image.pixelColor(x, y)))
                bornes |= QRect(x, y, 1, 1);
    return bornes;
}

inline QRect BornesDe(QImage const & image, QColor const & couleur)
{
    return Bornes(image, [&](QColor const & pixel) { return pixel == couleur; });
}

/// Around all that is not white.
inline QRect BornesEncre(QImage const & image)
{
    return Bornes(image, [](QColor const & pixel) { return pixel != QColor(Qt::white); });
}

/// The sum of the darkness of all pixels, white being 0 and black 255.
inline int Noirceur(QImage const & image)
{
    int somme = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            somme += 255 - image.pixelColor(x, y).lightness();
    return somme;
}

/// The darkest pixel's lightness.
inline int PlusSombre(QImage const & image)
{
    int minimum = 255;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            minimum = std::min(minimum, image.pixelColor(x, y).lightness());
    return minimum;
}

} // namespace Encre
