// galerie/PageTactile.h
#pragma once

#include <QScroller>
#include <QWidget>

class GestesJoues;
class ImageZoomable;
class QAbstractScrollArea;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QScrollArea;
class TraceSignaux;

/// Scrolling by finger, taps, a pen and pinches, and a trace of what became of them.
class PageTactile : public QWidget
{
    Q_OBJECT

public:
    explicit PageTactile(QWidget * parent = nullptr);

    /// Writes what the managers have let through to the areas.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    QWidget * CreeAires();
    QWidget * CreeListe();
    QWidget * CreeImage();
    QLayout * CreeBoutons();
    void RendsTactile(QAbstractScrollArea & aire, QString const & nom);
    void Branche();

    void Annonce(QPushButton const & bouton);
    void PriseToucher();
    void PriseDoubleToucher();
    void PriseGlisser();
    void PriseStylet();
    void PriseEcarter();
    void PriseRapprocher();
    void PriseZoom(double facteur);
    void MontreFacteur();
    void Demontre();
    QWidget & PreteCible() const;

    QScrollArea * monAireExterieure = nullptr;
    QScrollArea * monAireInterieure = nullptr;
    QListWidget * maListe = nullptr;
    ImageZoomable * monImage = nullptr;
    QLabel * monFacteur = nullptr;
    TraceSignaux * maTrace = nullptr;
    QComboBox * maCible = nullptr;
    QPushButton * monToucher = nullptr;
    QPushButton * monDoubleToucher = nullptr;
    QPushButton * monGlisser = nullptr;
    QPushButton * monStylet = nullptr;
    QPushButton * monEcarter = nullptr;
    QPushButton * monRapprocher = nullptr;
    GestesJoues * mesGestes = nullptr;
};
