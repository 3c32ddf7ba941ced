// galerie/PageFenetres.h
#pragma once

#include "FenetresDuBureau.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableWidget;

/// The windows of all programs on the desktop, and which of them the library takes for what.
class PageFenetres : public QWidget
{
    Q_OBJECT

public:
    explicit PageFenetres(QWidget * parent = nullptr);

protected:
    /// Lists anew when the gallery gains or loses the foreground.
    bool event(QEvent * evenement) override;
    void showEvent(QShowEvent * evenement) override;

private:
    QLayout * CreeResume();
    QWidget * CreeListe();
    QWidget * CreeAbsence();
    QLayout * CreeBoutons();
    void Branche();

    void Actualise();
    void RemplisLigne(int ligne, FenetreDuBureau const & fenetre);
    FenetreDuBureau const * PreteCourante() const;
    void PriseSelectionChangay();
    void MetsDevant();

    QLabel * monAvantPlan = nullptr;
    QLabel * monTexteur = nullptr;
    QStackedWidget * mesVues = nullptr;
    QTableWidget * maTable = nullptr;
    QCheckBox * mesCachees = nullptr;
    QPushButton * monActualisation = nullptr;
    QPushButton * monPassageDevant = nullptr;
    QList<FenetreDuBureau> mesFenetres; // the rows
};
