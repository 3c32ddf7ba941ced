// galerie/EtapeVerification.h
#pragma once

#include "EtapeImport.h"

#include <QPointer>

class DListView;
class ImportMotsVerification;
class QCheckBox;
class QLabel;
class QStringListModel;

/// Which of the words are in the French list, with those that are not and may be left out.
class EtapeVerification : public EtapeImport
{
    Q_OBJECT

public:
    EtapeVerification(AssistantImport & assistant, QString const & titre);

    /// True while words are checked; the wizard then goes on by itself when they are.
    bool BloqueAvance() override;
    bool BloqueRetour() override;
    bool PeutAvancer() override;
    void AbandonneAvance() override;

protected:
    void Affiche() override;
    QString DonneRefus() const override;
    QWidget * PreteChamp() const override;

private:
    void Commence(QStringList const & mots);
    void MontreResultat();
    QStringList DonneRetenus() const;

    void PriseAvancement();
    void PriseVerifie();
    void PriseRetrait(bool retire);

    QLabel * monResultat = nullptr;
    DListView * maVue = nullptr;
    QStringListModel * mesInconnus = nullptr;
    QCheckBox * monRetrait = nullptr;
    QPointer<ImportMotsVerification> maVerification; // under way
    bool monAvanceEstDemandee = false;
};
