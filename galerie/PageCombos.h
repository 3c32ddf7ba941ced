// galerie/PageCombos.h
#pragma once

#include <QWidget>

class ApercuFenetre;
class DComboBox;
class DComboBoxAvecDLabelElision;
class DComboSansDeco;
class DMenuAction;
class DPopUpMenu;
class DToggleButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// The combo boxes, the pop-up beside its button and the menu of rows, with pictures of what opens
/// where that is not plain to see when it is closed.
class PageCombos : public QWidget
{
    Q_OBJECT

public:
    explicit PageCombos(QWidget * parent = nullptr);

private:
    QWidget * CreeAvecSeparateurs();
    QWidget * CreePremierCachay();
    QWidget * CreeElision();
    QWidget * CreeSansDeco();
    QWidget * CreePopUp();
    QWidget * CreeMenuAction();
    void Branche();

    void PrisePremierRang();
    void PriseRangChangay();
    void PriseMoisChoisi();
    void PriseOuvrePopUp();
    void PrisePopUpEnFermeture();
    void PriseOuvreMenu();
    void PriseRangeeAffichee();

    DComboBox * monPremierCachay = nullptr;
    QPushButton * monBoutonPremier = nullptr;
    QLabel * monRang = nullptr;
    DComboSansDeco * monSansDeco = nullptr;
    QLabel * monMois = nullptr;
    DPopUpMenu * monPopUp = nullptr;
    QPushButton * monBoutonPopUp = nullptr;
    QLabel * mesFermetures = nullptr;
    int monNombreDeFermetures = 0;
    DMenuAction * monMenu = nullptr;
    QPushButton * monBoutonMenu = nullptr;
    QCheckBox * maRangeeAffichee = nullptr;
    QWidget * monWidgetDeRangee = nullptr;
    ApercuFenetre * monApercuMenu = nullptr;
};
