// galerie/PageStyle.h
#pragma once

#include "DessinsStyle.h"

#include <QList>
#include <QWidget>

#include <map>
#include <memory>
#include <utility>

class DStyleProxy;
class EssaisStyle;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QScrollArea;
struct ProprieteMontree;

/// The style proxy over each base style: every state of what it draws, and each property on and
/// off.
class PageStyle : public QWidget
{
    Q_OBJECT

public:
    /// Begins with the base style of that name, or with Fusion if there is none.
    explicit PageStyle(QString const & styleDeBase, QWidget * parent = nullptr);
    ~PageStyle() override;

protected:
    void changeEvent(QEvent * evenement) override;

private:
    struct Modeles
    {
        QWidget * actif = nullptr;
        QWidget * inactif = nullptr;
    };

    QLayout * CreeChoix(QString const & styleDeBase);
    QWidget * CreeEntete();
    QWidget * CreeDessins();
    void AjouteSection(QGridLayout & grille, QString const & titre, QString const & effet);
    void AjouteEtats(QGridLayout & grille);
    void AjoutePropriete(QGridLayout & grille, ProprieteMontree const & propriete);
    void AjouteMenus(QGridLayout & grille, ProprieteMontree const & propriete);
    void AjouteLigne(QGridLayout & grille, QString const & titre, DessinStyle const & dessin,
                     QList<char const *> const & proprietes, QString const & nom);
    Modeles PreteModeles(DessinStyle const & dessin, QList<char const *> const & proprietes,
                         QWidget * parent);

    void PriseStyleChoisi();
    void PriseSensChangay();

    std::unique_ptr<DStyleProxy> monStyle;
    // One pair for all rows that draw the same.
    std::map<std::pair<eDessin, QList<char const *>>, Modeles> mesModeles;
    QComboBox * monChoixStyle = nullptr;
    QCheckBox * monSens = nullptr;
    EssaisStyle * mesEssais = nullptr;
    QWidget * monEntete = nullptr;
    QScrollArea * monDefilement = nullptr;
};
