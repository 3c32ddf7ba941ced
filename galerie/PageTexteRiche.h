// galerie/PageTexteRiche.h
#pragma once

#include <QStandardItemModel>
#include <QWidget>

class DessinTexteRiche;
class DLabelElision;
class DLineEdit;
class DLineEditRaccourci;
class QCheckBox;
class QLabel;
class QLineEdit;
class QSlider;
class QTableView;

/// The small mark-up: what a text is read as and how it is drawn, elided labels, line edits, and a
/// long list of tagged rows.
class PageTexteRiche : public QWidget
{
    Q_OBJECT

public:
    explicit PageTexteRiche(QWidget * parent = nullptr);

private:
    QLayout * CreeSaisie();
    QLayout * CreeTables();
    QLayout * CreeLargeur();
    QWidget * CreeDessins();
    QWidget * CreeElisions();
    QWidget * CreeChamps();
    QWidget * CreeListe();
    void Branche();

    void PriseTexteChangay();
    void PriseLargeurChangee();
    void PriseErreurChangee();
    void PriseRaccourci();

    QStandardItemModel mesJetons;
    QStandardItemModel mesFormats;
    QLineEdit * monTexte = nullptr;
    QLineEdit * maSource = nullptr;
    QSlider * maLargeur = nullptr;
    QLabel * maValeurLargeur = nullptr;
    QList<DessinTexteRiche *> mesDessins;
    QList<DLabelElision *> mesElisions;
    DLineEdit * monChampErreur = nullptr;
    QCheckBox * monErreur = nullptr;
    DLineEditRaccourci * monRaccourci = nullptr;
    QLabel * monDernierRaccourci = nullptr;
};
