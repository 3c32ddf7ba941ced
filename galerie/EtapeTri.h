// galerie/EtapeTri.h
#pragma once

#include "EtapeImport.h"
#include "ImportMots.h"

class DTreeView;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QStandardItemModel;

/// Which of the words are worth keeping, with those that are left out and why.
class EtapeTri : public EtapeImport
{
    Q_OBJECT

public:
    EtapeTri(AssistantImport & assistant, QString const & titre);

protected:
    void Affiche() override;
    QString DonneRefus() const override;
    QWidget * PreteChamp() const override;

private:
    void CreeChoix();
    QLayout * CreeGrille();
    void CreeVue();
    void Branche();
    ImportMots::Tri DonneTri() const;
    void MetsTri(ImportMots::Tri const & tri);
    void Calcule();

    void PriseChangement();

    QComboBox * maCasse = nullptr;
    QSpinBox * maLongueur = nullptr;
    QCheckBox * mesDoublons = nullptr;
    QCheckBox * mesChiffres = nullptr;
    QLabel * mesNombres = nullptr;
    DTreeView * maVue = nullptr;
    QStandardItemModel * mesEcartes = nullptr;
};
