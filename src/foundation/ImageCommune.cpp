// foundation/ImageCommune.cpp
#include "foundation/ImageCommune.h"

#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace {

constexpr double kCoteMax = 32767.0; // pixels; a painter draws on nothing larger

QImage EnPixels(QImage image)
{
    // The logical size of the source plays no part: the whole of it fills the size asked for.
    image.setDevicePixelRatio(1.0);
    return image;
}

} // namespace

ImageCommune::ImageCommune(QPixmap const & image)
    : monImage(EnPixels(image.toImage()))
{
}

ImageCommune::ImageCommune(QImage const & image)
    : monImage(EnPixels(image))
{
}

QPixmap ImageCommune::Prete(int largeur, int hauteur) const
{
    if (EstNulle() || !qGuiApp)
        return {};
    double const ratio = qGuiApp->devicePixelRatio();
    double const largeurEnPixels = std::round(largeur * ratio);
    double const hauteurEnPixels = std::round(hauteur * ratio);
    if (largeurEnPixels < 1.0 || hauteurEnPixels < 1.0 || largeurEnPixels > kCoteMax ||
        hauteurEnPixels > kCoteMax)
        return {};

    QSize const taille(static_cast<int>(largeurEnPixels), static_cast<int>(hauteurEnPixels));
    QImage const reduite = monImage.scaled(taille, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPixmap resultat(taille);
    resultat.fill(Qt::transparent);
    QPainter(&resultat).drawImage((taille.width() - reduite.width()) / 2,
                                  (taille.height() - reduite.height()) / 2, reduite);
    resultat.setDevicePixelRatio(ratio);
    return resultat;
}
