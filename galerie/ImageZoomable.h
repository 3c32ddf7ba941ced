// galerie/ImageZoomable.h
#pragma once

#include <QPixmap>
#include <QWidget>

/// A picture in the middle of its room, in the size that zoom factors give it.
class ImageZoomable : public QWidget
{
    Q_OBJECT

public:
    explicit ImageZoomable(QPixmap const & image, QWidget * parent = nullptr);

    /// 1 at first, and never below 0.25 or above 4.
    double DonneFacteur() const;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Multiplies the present size by `facteur`.
    void Zoome(double facteur);

Q_SIGNALS:
    void SignalFacteurChangay(double facteur);

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    QPixmap monImage;
    double monFacteur = 1.0;
};
