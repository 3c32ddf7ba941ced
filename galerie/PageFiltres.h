// galerie/PageFiltres.h
#pragma once

#include "BarreFiltreMots.h"
#include "FiltreMots.h"
#include "ModeleMots.h"
#include "MotsFrancais.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class ApercuFenetre;
class ChargementMots;
class DTableView;
class QAction;
class QLabel;
class QLayout;
class QMenu;
class TraceSignaux;

/// Filter bars over the French words: one with a pop-up and pills, one with a menu.
class PageFiltres : public QWidget
{
    Q_OBJECT

public:
    /// What outlives the page, which is built anew for each language and theme.
    struct Memoire
    {
        QString fichier = MotsFrancais::DonneFichierParDefaut();
        QString paquet = QStringLiteral("wfrench"); ///< of the file; empty for another
        std::shared_ptr<TableMots const> mots;      ///< null until they are read
        /// At first, what shows the page at its work.
        BarreFiltreMots::Etat etat = {{FiltreMots::kNeufAOnze,
                                       0,
                                       FiltreMots::kAigu,
                                       {{FiltreMots::kFinitPar, QStringLiteral("ons")}}},
                                      {FiltreMots::kCommencePar, QStringLiteral("re")}};
        FiltreMots::eTri tri = FiltreMots::kOrdreDeLaListe;
        bool avecLettres = true;
        bool avecAccents = true;
        QStringList visites; ///< words that one has gone to, the last one first
        QString allerA;      ///< in the field for going to one
        int motCourant = -1; ///< in `mots`, also while it is filtered away; -1 for none
    };

    explicit PageFiltres(QWidget * parent = nullptr);

    static Memoire & PreteMemoire();

    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    QWidget * CreeMessage();
    QLayout * CreeGrille();
    QWidget * CreeListe();
    QWidget * CreeOrdre();
    QMenu * CreeMenu();
    QAction * CreeColonne(QMenu & menu, QString const & nom, ModeleMots::eColonne colonne,
                          bool montree);
    QWidget * CreeApercu();
    QWidget * CreeTrace();
    void Branche();
    void BrancheTrace();
    void DemandeMots();
    void MetsMots(std::shared_ptr<TableMots const> mots);
    void Filtre();
    void MontreOrdre();

    void PriseMotsLus();
    void PriseTri(QAction * action);
    void PriseColonnes();
    void PriseAllerA(QString const & debut);
    void PriseMotVisitay();
    void PriseMotCourant(QModelIndex const & courant);

    QLabel * monMessage = nullptr;
    BarreFiltreMots * maBarre = nullptr;
    BarreDeFiltre * maBarreDOrdre = nullptr;
    DTableView * maListe = nullptr;
    ModeleMots * monModele = nullptr;
    ApercuFenetre * monApercu = nullptr;
    TraceSignaux * maTrace = nullptr;
    QAction * maColonneLettres = nullptr;
    QAction * maColonneAccents = nullptr;
    ChargementMots * monChargement = nullptr;
    std::shared_ptr<TableMots const> maTable;
    std::unique_ptr<FiltreMots> monFiltre; // null until the words are there
};
