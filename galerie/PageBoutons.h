// galerie/PageBoutons.h
#pragma once

#include <QWidget>

class DControleBoutonsExclusifs;
class QCheckBox;
class QGridLayout;
class QMenu;
class TraceSignaux;

/// The buttons in all their states, and the signals that they give.
class PageBoutons : public QWidget
{
    Q_OBJECT

public:
    explicit PageBoutons(QWidget * parent = nullptr);

private:
    QWidget * CreeCases();
    QWidget * CreeRadios();
    QWidget * CreeBascules();
    void AjouteBascules(QGridLayout & grille, int piste, int pouce);
    QWidget * CreeBoutonsOutil();
    QWidget * CreeBoutonsSansFleche();
    QWidget * CreeGroupesExclusifs();
    QWidget * CreeCliquables();
    QWidget * CreeTrace();
    QMenu * CreeMenu();
    void Branche();
    void SuisCases();
    void SuisBoutons();

    void PriseMenuAffichay(bool affichay);

    TraceSignaux * maTrace = nullptr;
    DControleBoutonsExclusifs * monGroupeAvecMenu = nullptr;
    QCheckBox * monMenuAffichay = nullptr;
};
