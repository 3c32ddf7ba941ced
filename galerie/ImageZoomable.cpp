// galerie/ImageZoomable.cpp
#include "ImageZoomable.h"

#include <QPainter>

#include <algorithm>

namespace {
constexpr double kFacteurMin = 0.25;
constexpr double kFacteurMax = 4.0;
constexpr int kPlace = 2; // times the size of the picture
} // namespace

ImageZoomable::ImageZoomable(QPixmap const & image, QWidget * parent)
    : QWidget(parent)
    , monImage(image)
{
}

double ImageZoomable::DonneFacteur() const
{
    return monFacteur;
}

QSize ImageZoomable::sizeHint() const
{
    return monImage.deviceIndependentSize().toSize() * kPlace;
}

void ImageZoomable::Zoome(double facteur)
{
    monFacteur = std::clamp(monFacteur * facteur, kFacteurMin, kFacteurMax);
    update();
    Q_EMIT SignalFacteurChangay(monFacteur);
}

void ImageZoomable::paintEvent(QPaintEvent *)
{
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::SmoothPixmapTransform);
    QRectF place(QPointF(), monImage.deviceIndependentSize() * monFacteur);
    place.moveCenter(QRectF(rect()).center());
    peintre.drawPixmap(place, monImage, monImage.rect());
}
