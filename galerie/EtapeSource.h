// galerie/EtapeSource.h
#pragma once

#include "EtapeImport.h"

#include <QPointer>

class ImportMotsLecture;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

/// Where the words come from: a file, or a text that is pasted.
class EtapeSource : public EtapeImport
{
    Q_OBJECT

public:
    EtapeSource(AssistantImport & assistant, QString const & titre);

    /// True while the file is read, which a first attempt to go on begins; the wizard goes on by
    /// itself when it is.
    bool BloqueAvance() override;
    bool PeutAvancer() override;
    void AbandonneAvance() override;

protected:
    void Affiche() override;
    QString DonneRefus() const override;
    QWidget * PreteChamp() const override;

private:
    QLayout * CreeFichier();
    void Branche();
    void ActualiseChamps();
    bool FichierEstLu() const;
    void AbandonneLecture();

    void PriseChoix();
    void PriseSaisie();
    void PriseTexte();
    void PriseParcourir();
    void PriseFichierChoisi(QString const & fichier);
    void PriseLu();

    QRadioButton * monChoixFichier = nullptr;
    QRadioButton * monChoixTexte = nullptr;
    QLineEdit * monChemin = nullptr;
    QPushButton * monBoutonParcourir = nullptr;
    QPlainTextEdit * monTexte = nullptr;
    QLabel * monAvancement = nullptr;
    QPointer<ImportMotsLecture> maLecture; // under way
};
