// galerie/PageAlertes.h
#pragma once

#include "SaisieAlerte.h"

#include <QPointer>
#include <QWidget>

class ChampAvecDefaut;
class ChoixBoutons;
class JournalAffichay;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

/// Puts together any alert, raises it in each of the ways that there are, and shows the answer,
/// what the journal says of it and the file of the remembered answers.
class PageAlertes : public QWidget
{
    Q_OBJECT

public:
    explicit PageAlertes(QWidget * parent = nullptr);
    ~PageAlertes() override;

    SaisieAlerte DonneSaisie() const;

protected:
    bool event(QEvent * evenement) override;

private:
    // Shows the answers of the form that takes an object.
    class Receveur : public DDialogue::DAlerteReceveur
    {
    public:
        explicit Receveur(PageAlertes & page)
            : maPage(page)
        {
        }
        void TraiteReponse(int const & idMessage, int reponse) override;

    private:
        PageAlertes & maPage;
    };

    QWidget * CreeContenu();
    QWidget * CreeAppel();
    void AjouteOptions(QFormLayout * formulaire);
    QLayout * CreeLancement();
    QLayout * CreeResultats();
    QPlainTextEdit * CreeTexte(QString const & nom, QString const & titre);
    void Branche();

    void PriseLancer();
    void PriseFermerAttente();
    void PriseOublier();
    void PriseFormeChangee();
    void PriseSilence(bool silencieux);
    void PriseLigne(QString const & ligne);
    void MontreReponse(int reponse);
    void MontreFichier();
    DDialogue::eTypStockeur DonneStockeurMontray() const;

    Receveur monReceveur{*this};
    JournalAffichay * monJournal = nullptr;

    QComboBox * monType = nullptr;
    ChampAvecDefaut * monTitre = nullptr;
    ChampAvecDefaut * monMessage = nullptr;
    ChampAvecDefaut * maNote = nullptr;
    ChampAvecDefaut * monExplication = nullptr;
    QDoubleSpinBox * maDuree = nullptr;
    QCheckBox * monTexteRiche = nullptr;
    ChoixBoutons * mesBoutons = nullptr;
    QComboBox * maForme = nullptr;
    QComboBox * monStockeur = nullptr;
    QLineEdit * monGuid = nullptr;
    ChampAvecDefaut * monLibelleCase = nullptr;
    QCheckBox * monCentrageNatif = nullptr;
    QCheckBox * monSilence = nullptr;

    QPushButton * monBoutonLancer = nullptr;
    QPushButton * monBoutonFermerAttente = nullptr;
    QPushButton * monBoutonOublier = nullptr;
    QLabel * maReponse = nullptr;
    QPlainTextEdit * monTexteJournal = nullptr;
    QPlainTextEdit * monTexteFichier = nullptr;
};
