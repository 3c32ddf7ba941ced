// foundation/ImageCommune.h
#pragma once

#include "FabrelGuiExport.h"

#include <QImage>
#include <QPixmap>

/// An image that is lent at the sizes that the interface needs. A value, cheap to copy.
class FABRELGUI_EXPORT ImageCommune
{
public:
    ImageCommune() = default;
    // Not explicit: an image is wanted wherever one of Qt's is at hand.
    ImageCommune(QPixmap const & image);
    ImageCommune(QImage const & image);

    bool EstNulle() const { return monImage.isNull(); }
    /// The whole image, smoothly scaled to fit into `largeur` by `hauteur` logical pixels with its
    /// proportions kept, in the middle of a transparent pixmap of just that size; null for a null
    /// image or an empty size. The device pixel ratio is that of the application.
    QPixmap Prete(int largeur, int hauteur) const;

private:
    QImage monImage; // an image, not a pixmap: it may be made before there is an application
};
