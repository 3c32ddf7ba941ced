// controls/DToggleButton.h
#pragma once

#include "FabrelGuiExport.h"

#include <QAbstractButton>
#include <QBrush>
#include <QHash>

class QPropertyAnimation;

/// A switch: a thumb that stands at one end of a track, or at the other when the button is checked.
///
/// The thumb slides there after a click of the left mouse button, and jumps after every other
/// change of the state. The size is fixed: a host that forces a larger one sees the switch at the
/// left, or at the right where the layout goes from right to left. What the switch is for is the
/// host's to tell with `setAccessibleName`. As with any button of Qt, a receiver that gets rid of
/// the switch does so with `deleteLater`.
class FABRELGUI_EXPORT DToggleButton : public QAbstractButton
{
    Q_OBJECT
    // For the animation alone: nobody waits for the thumb.
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int mOffset READ offset WRITE setOffset)

public:
    /// The radii are in logical pixels; below 0 they count as 0. A thumb larger than the
    /// track is drawn on a translucent track.
    DToggleButton(int trackRadius, int thumbRadius, QWidget * parent = nullptr);

    QSize sizeHint() const override;

    /// The centre of the thumb, in logical pixels from where the drawing begins: the left edge, or
    /// the right one where the layout goes from right to left.
    int offset() const;
    /// Moves the thumb and changes no state.
    void setOffset(int offset);

public Q_SLOTS:
    /// Sets the state; the thumb jumps there, also when it is the same state and the thumb slides.
    void setChecked(bool checked);

protected:
    void checkStateSet() override;
    void nextCheckState() override;
    void mouseReleaseEvent(QMouseEvent * evenement) override;
    void paintEvent(QPaintEvent * evenement) override;
    void resizeEvent(QResizeEvent * evenement) override;
    void enterEvent(QEnterEvent * evenement) override;
    void leaveEvent(QEvent * evenement) override;
    void hideEvent(QHideEvent * evenement) override;
    void changeEvent(QEvent * evenement) override;

private Q_SLOTS:
    void PriseEtatChangay();

private:
    struct Pinceaux
    {
        QBrush piste;
        QBrush pouce;
    };

    bool PouceDeborde() const;
    void PrendsPinceaux();
    int DonneBut() const;
    void Glisse();
    void Saute();
    void DessinePiste(QPainter & peintre) const;
    void DessinePouce(QPainter & peintre) const;
    void DessineFocus(QPainter & peintre) const;
    QRectF DonneRectPiste() const;

    int mOffset = 0;
    int monCentreVertical = 0;
    int maMarge = 0;
    int monRayonPiste = 0;
    int monRayonPouce = 0;
    double monOpacitePiste = 1.0;
    QHash<bool, int> mesFins;
    QHash<bool, Pinceaux> mesPinceaux;
    QPropertyAnimation * monAnimation = nullptr;
    bool monSurvol = false;
    bool monGlissementAttendu = false; // the next change of the state comes from the mouse
};
