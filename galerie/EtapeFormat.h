// galerie/EtapeFormat.h
#pragma once

#include "EtapeImport.h"
#include "ImportMots.h"

class DTreeView;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QStandardItemModel;

/// How the words stand in the bytes, guessed at first, with the first rows as they are then read.
class EtapeFormat : public EtapeImport
{
    Q_OBJECT

public:
    EtapeFormat(AssistantImport & assistant, QString const & titre);

protected:
    void Affiche() override;
    QString DonneRefus() const override;
    QWidget * PreteChamp() const override;

private:
    void CreeChoix();
    QLayout * CreeGrille();
    void CreeVue();
    void Branche();
    ImportMots::Format DonneFormat() const;
    void MetsFormat(ImportMots::Format const & format);
    std::optional<QString> DonneTexte() const;
    void MontreRangees(QString const & texte);
    void Calcule();

    void PriseChangement();

    QComboBox * monCodage = nullptr;
    QComboBox * monSeparateur = nullptr;
    QSpinBox * maColonne = nullptr;
    QCheckBox * monEnTete = nullptr;
    DTreeView * maVue = nullptr;
    QStandardItemModel * mesRangees = nullptr;
    QLabel * monNombre = nullptr;
};
