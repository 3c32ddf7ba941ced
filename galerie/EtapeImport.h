// galerie/EtapeImport.h
#pragma once

#include "navigation/DAssistantEtape.h"

class AssistantImport;
class QLabel;
class QVBoxLayout;

/// A step of the import: its place and title, what it asks, and a line that tells why it cannot be
/// left.
class EtapeImport : public DAssistantEtape
{
    Q_OBJECT

public:
    EtapeImport(AssistantImport & assistant, QString const & titre);

    UniChaine DonneTitreEtape() override;
    void EntreDansEtape() override;
    bool PeutAvancer() override;
    bool BloqueRetour() override;
    bool BloqueAvance() override;
    bool PeutFermer(QCloseEvent * evenement) override;

    /// The move forward that was refused, or waits, was not the user's: as if it had not been
    /// tried.
    virtual void AbandonneAvance();

protected:
    AssistantImport & PreteAssistant() const { return monAssistant; }
    /// Above the line that tells why.
    QVBoxLayout * PreteContenu() const { return monContenu; }

    /// Fills the widgets with what the options say.
    virtual void Affiche() = 0;
    /// Why the step cannot be left; empty when it can.
    virtual QString DonneRefus() const = 0;
    /// Where one begins, and goes on after a refusal.
    virtual QWidget * PreteChamp() const = 0;

    QVariant DonneOption(QLatin1StringView nom) const;
    void PrendsOption(QLatin1StringView nom, QVariant const & valeur);
    /// An empty text takes the line away.
    void MontreRefus(QString const & refus);
    /// The user has entered something: the next attempt may succeed.
    void LeveRefus();

private:
    AssistantImport & monAssistant;
    QString monTitre;
    QLabel * monEntete = nullptr;
    QVBoxLayout * monContenu = nullptr;
    QLabel * monRefus = nullptr;
};
