// dialogs/DAlerteEphemere_p.h
#pragma once

#include <QPixmap>
#include <QWidget>

class DAlerteInfo;
class QGridLayout;
class QLabel;
class QTimer;

/// The bubble of an alert without buttons; at most one exists.
class DAlerteEphemere : public QWidget
{
    Q_OBJECT

public:
    /// Shows the alert, at once in the place of the one before.
    static void Affiche(QWidget * parent, DAlerteInfo const & info, QPixmap pixmap);
};
