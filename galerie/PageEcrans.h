// galerie/PageEcrans.h
#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QScreen;
class QSpinBox;
class VueEcrans;

/// The screens, and where the placement functions would put a rectangle that the mouse moves.
class PageEcrans : public QWidget
{
    Q_OBJECT

public:
    explicit PageEcrans(QWidget * parent = nullptr);

private:
    QLayout * CreeChoixDisposition();
    QWidget * CreeOptions();
    QWidget * CreeResultats();
    void Branche();
    void BrancheEcran(QScreen * ecran);

    void PriseEcranAjoutay(QScreen * ecran);
    void PriseEcransChangay();
    void PriseDispositionChangay();
    void PriseTailleChangay();
    void PlaceRectangle();

    VueEcrans * maVue = nullptr;
    QComboBox * maDisposition = nullptr;
    QSpinBox * maLargeur = nullptr;
    QSpinBox * maHauteur = nullptr;
    QCheckBox * maMarge = nullptr;
    QCheckBox * monForcage = nullptr;
    QCheckBox * monRedimensionnement = nullptr;
    QCheckBox * maPlaceHaute = nullptr;
    QLabel * monEcran = nullptr;
    QLabel * monAjustement = nullptr;
    QLabel * monCentrage = nullptr;
    QLabel * maHauteurMax = nullptr;
    QLabel * maTailleOptimale = nullptr;
};
