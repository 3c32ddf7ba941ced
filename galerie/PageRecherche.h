// galerie/PageRecherche.h
#pragma once

#include "LectureTexte.h"
#include "MotsFrancais.h"

#include <QWidget>

#include <optional>

class ApercuFenetre;
class ChampMots;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;
class TexteCherchable;
class TraceSignaux;

/// The search bar and the search dialog over a real text, and a field that proposes words.
class PageRecherche : public QWidget
{
    Q_OBJECT

public:
    /// What outlives the page, which is built anew for each language and theme.
    struct Memoire
    {
        QString fichier = LectureTexte::DonneFichierParDefaut();
        QString paquet = QStringLiteral("debian-reference-fr"); ///< of the file; empty for another
        std::optional<QString> texte; ///< as it was left; none before the file is read
        bool barreOuverte = true;
        MotsFrancais mots;
    };

    explicit PageRecherche(QWidget * parent = nullptr);
    ~PageRecherche() override;

    static Memoire & PreteMemoire();

protected:
    void showEvent(QShowEvent * evenement) override;

private:
    QWidget * CreeTexte();
    QWidget * CreeMots();
    QWidget * CreeTrace();
    QLayout * CreeBoutons();
    void Branche();
    LectureTexte::eResultat LisFichier(QString const & fichier);
    void MontreNom();
    void Demontre();
    void MontreApercu(bool visible);

    void PriseDansUnDialogue();
    void PriseOuvrir();
    void PriseFichierChoisi(QString const & fichier);
    void PriseTexteRiche(bool riche);
    void PriseMotTapay();
    void PriseMotChoisi(QString const & mot);

    TraceSignaux * maTrace = nullptr;
    QGroupBox * monGroupe = nullptr; // of the text
    QLabel * monMessage = nullptr;
    TexteCherchable * monTexte = nullptr;
    ChampMots * monChampMots = nullptr;
    QLabel * monMessageMots = nullptr;
    QLabel * maLegende = nullptr;
    ApercuFenetre * monApercu = nullptr;
    QPushButton * monBoutonBarre = nullptr;
    QPushButton * monBoutonDialogue = nullptr;
    QPushButton * monBoutonDansUnDialogue = nullptr;
    QPushButton * monBoutonOuvrir = nullptr;
    QCheckBox * maCaseRiche = nullptr;
    bool maDemonstrationFaite = false;
};
