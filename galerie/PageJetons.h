// galerie/PageJetons.h
#pragma once

#include <QWidget>

class ApercuFenetre;
class DComboJetonable;
class HoteJetons;
class QCheckBox;
class QGridLayout;
class QListWidget;
class QSpinBox;
class TraceSignaux;

/// Fields that hold a category of words as a token or a word as free text, with what they find, and
/// the signals that a host hears.
class PageJetons : public QWidget
{
    Q_OBJECT

public:
    explicit PageJetons(QWidget * parent = nullptr);

private:
    QWidget * CreeRecherche();
    QWidget * CreeVariantes();
    QWidget * CreePolice();
    QWidget * CreeTrace();
    void AjouteChamp(QGridLayout & grille, QString const & texte, DComboJetonable & champ,
                     int categorie);
    void Branche();

    void PriseContenuChangay();
    void PrisePoliceChangee();

    DComboJetonable * monChamp = nullptr;
    HoteJetons * monHote = nullptr;
    QListWidget * mesMots = nullptr;
    DComboJetonable * monSansSuppression = nullptr;
    DComboJetonable * monSansIcones = nullptr;
    QSpinBox * maTaille = nullptr;
    QCheckBox * monGras = nullptr;
    QCheckBox * monItalique = nullptr;
    TraceSignaux * maTrace = nullptr;
};
