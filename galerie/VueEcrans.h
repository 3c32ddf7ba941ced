// galerie/VueEcrans.h
#pragma once

#include <QList>
#include <QWidget>

/// A screen as it is drawn.
struct EcranDessinay
{
    QString nom;
    QRect geometrie;
    QRect disponible; ///< without the task bars
};

/// "1920 × 1080" in the words and digits of the application's language.
QString EnTaille(QSize const & taille);

/// Screens drawn to scale, a rectangle that the mouse and the arrow keys move, and outlines of
/// where it would be placed. All rectangles are in the coordinates of the desktop.
class VueEcrans : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QRect rectangle READ DonneRectangle WRITE MetsRectangle NOTIFY
                   SignalRectangleDeplacay USER true)

public:
    explicit VueEcrans(QWidget * parent = nullptr);

    void MetsEcrans(QList<EcranDessinay> const & ecrans);
    void MetsRectangle(QRect const & rectangle);
    QRect DonneRectangle() const { return monRectangle; }
    void MetsPlacements(QRect const & ajustay, QRect const & centray);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The rectangle has another place or size.
    void SignalRectangleDeplacay();

protected:
    void paintEvent(QPaintEvent * evenement) override;
    void mousePressEvent(QMouseEvent * evenement) override;
    void mouseMoveEvent(QMouseEvent * evenement) override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void keyPressEvent(QKeyEvent * evenement) override;

private:
    QTransform DonneEchelle() const;
    void DessineEcran(QPainter & peintre, QRectF const & cadre, QRectF const & disponible) const;
    void DessineNom(QPainter & peintre, QRectF const & cadre, EcranDessinay const & ecran) const;
    void Deplace(QPoint const & coin);

    QList<EcranDessinay> mesEcrans;
    QRect monRectangle;
    QRect monAjustement;
    QRect monCentrage;
    QPoint maPrise; // from the rectangle's corner to where the mouse holds it
    bool monDeplacement = false;
};
