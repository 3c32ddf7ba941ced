// galerie/EtapeResume.h
#pragma once

#include "EtapeImport.h"

class QGridLayout;
class QLabel;
class QLineEdit;

/// What was made of the words, and the name under which they are kept.
class EtapeResume : public EtapeImport
{
    Q_OBJECT

public:
    EtapeResume(AssistantImport & assistant, QString const & titre);

    void EntreDansEtape() override;
    bool PeutTerminer() override;

protected:
    void Affiche() override;
    QString DonneRefus() const override;
    QWidget * PreteChamp() const override;

private:
    QLabel * AjouteLigne(QGridLayout & grille, QString const & titre);
    QString ProposeNom() const;
    void VerifieNom();

    void PriseNom(QString const & nom);

    QLabel * maSource = nullptr;
    QLabel * monNombre = nullptr;
    QLabel * mesPremiers = nullptr;
    QLineEdit * monNom = nullptr;
};
