// galerie/PageTextes.h
#pragma once

#include <QList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QSpinBox;
class QTableWidget;

/// Every message of the library in its three languages, and the forms of its plural.
class PageTextes : public QWidget
{
    Q_OBJECT

public:
    explicit PageTextes(QWidget * parent = nullptr);

private:
    void RemplisTable();
    QWidget * CreePluriel();
    void PriseNombreChangay(int nombre);
    void PriseFiltreChangay(QString const & filtre);

    QLineEdit * monFiltre = nullptr;
    QLabel * monCompte = nullptr;
    QTableWidget * maTable = nullptr;
    QSpinBox * monNombre = nullptr;
    QList<QLabel *> mesPhrases; // one for each language
};
