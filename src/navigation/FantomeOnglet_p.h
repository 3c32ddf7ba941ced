// navigation/FantomeOnglet_p.h
#pragma once

#include <QPixmap>
#include <QWidget>

/// The translucent picture of a tab that follows the mouse, which does not notice it.
///
/// It has no parent: the style sheets of the tab's window are not meant for it.
class FantomeOnglet : public QWidget
{
    Q_OBJECT

public:
    FantomeOnglet();

    /// Shows the picture with its top left corner at `positionGlobale`. It is taken of `modele` at
    /// the first call since `Cache`; without one, there is no picture.
    void Montre(QWidget * modele, QPoint const & positionGlobale);
    void Cache();

    /// `QApplication::widgetAt`, which may not see through the picture by itself.
    QWidget * TrouveWidgetDessous(QPoint const & positionGlobale) const;

protected:
    void paintEvent(QPaintEvent * evenement) override;

private:
    void Photographie(QWidget & modele);

    QPixmap monPixmap;
};
