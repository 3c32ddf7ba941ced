// galerie/PagePolices.h
#pragma once

#include <QList>
#include <QWidget>

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QSpinBox;

/// The factor between point and pixel sizes, the fonts made with it, and a picture for each ratio.
class PagePolices : public QWidget
{
    Q_OBJECT

public:
    explicit PagePolices(QWidget * parent = nullptr);

private:
    struct Echantillon
    {
        int points;
        QLabel * pixels;
        QLabel * texte;
    };

    QWidget * CreeModulateur();
    QWidget * CreeEchantillons();
    QWidget * CreeWidgetAjustable();
    QWidget * CreeImage();
    void Branche();
    void MontreEchantillons();
    void AjusteTaille(int points);
    void MontreTaille();
    void MontreModulateur();

    void PriseModulateurChangay(double valeur);
    void PriseModulateurCalculay();
    void PriseTailleChoisie(int points);

    QDoubleSpinBox * monModulateur = nullptr;
    QPushButton * monBoutonCalcul = nullptr;
    QList<Echantillon> mesEchantillons;
    QSpinBox * monChoixTaille = nullptr;
    QPushButton * monBoutonMoins = nullptr;
    QPushButton * monBoutonPlus = nullptr;
    QLabel * monWidgetAjustable = nullptr;
    QLabel * maTaille = nullptr;
};
