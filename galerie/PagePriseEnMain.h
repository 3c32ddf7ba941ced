// galerie/PagePriseEnMain.h
#pragma once

#include <QPoint>
#include <QWidget>

class ApercuFenetre;
class CtrlPriseEnMain;
class FenPriseEnMain;
class QLabel;
class QProgressBar;
class QPushButton;

/// The onboarding window of the gallery, and which of its topics were seen.
///
/// The window belongs to the page. One that is open when the page is built anew, for another
/// language or theme, is there again on the new page.
class PagePriseEnMain : public QWidget
{
    Q_OBJECT

public:
    explicit PagePriseEnMain(QWidget * parent = nullptr);
    ~PagePriseEnMain() override;

private:
    void CreeFenetre();
    QWidget * CreeCommandes();
    QWidget * CreeApercu();
    QWidget * CreeDocument();
    void Branche();

    void PriseOuvrir();
    void PriseOublier();
    void PriseReglage();
    void PriseFermee(QPoint position);

    CtrlPriseEnMain * monCtrl = nullptr;
    QPushButton * monBoutonOuvrir = nullptr;
    QPushButton * monBoutonOublier = nullptr;
    QLabel * monEtat = nullptr;
    QProgressBar * maBarre = nullptr;
    QLabel * maPosition = nullptr;
    ApercuFenetre * monApercu = nullptr;
};
