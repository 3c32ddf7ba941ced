// galerie/PageTheme.h
#pragma once

#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QWidget>

class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableView;
class ThemeGalerie;

/// Every variable of the theme, to be overwritten, and a sheet to try their names in.
class PageTheme : public QWidget
{
    Q_OBJECT

public:
    /// `theme` must outlive the page.
    explicit PageTheme(ThemeGalerie & theme, QWidget * parent = nullptr);

private:
    QLayout * CreeBarre();
    QLayout * CreeEssai();
    void CreeTable();
    void Branche();
    void MontreVariables();
    void MontreLigne(int ligne);
    void MontreCompte();
    void MontreChoixPossible();
    void AppliqueTheme();
    void MontreVerdict(QString const & refus);

    void PriseFiltreChangay(QString const & filtre);
    void PriseValeurSaisie(QStandardItem * element);
    void PriseChoixCouleur();
    void PriseActivation(QModelIndex const & index);
    void PriseThemeSombre();
    void PriseReinitialisation();
    void PriseFeuilleChangay();

    ThemeGalerie & monTheme;
    QStandardItemModel monModele;
    QSortFilterProxyModel monFiltre;
    QLineEdit * monChampFiltre = nullptr;
    QTableView * maTable = nullptr;
    QLabel * monCompte = nullptr;
    QPushButton * monBoutonCouleur = nullptr;
    QPushButton * monBoutonSombre = nullptr;
    QPushButton * monBoutonDepart = nullptr;
    QPlainTextEdit * maFeuille = nullptr;
    QLabel * monVerdict = nullptr; // on the value or the sheet that was refused
    QFrame * monApercu = nullptr;
};
