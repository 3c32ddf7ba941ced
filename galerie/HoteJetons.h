// galerie/HoteJetons.h
#pragma once

#include "noyau/ChaineLocalisable.h"

#include "lists/InterfaceUtilisantListeChoixFlottante.h"

#include <QList>
#include <QObject>

#include <memory>

class DComboJetonable;
class ListeChoixFlottante;
class QStandardItem;

/// What can be chosen as a token.
struct CategorieDeMots
{
    ChaineLocalisable nom;
    ChaineLocalisable description; ///< for the tool tip, with tags
    QStringList mots;              ///< that belong to it
};

/// What a token field needs of its host: it shows grammatical categories in a floating list when
/// the field asks for a pop-up and while one types, and puts the one that is chosen into the field.
///
/// The focus stays in the field: whoever wants none of the categories just types on.
class HoteJetons : public QObject
{
    Q_OBJECT

public:
    /// `combo` is the parent.
    explicit HoteJetons(DComboJetonable & combo);
    ~HoteJetons() override;

    static QList<CategorieDeMots> const & DonneCategories();

    /// As if it had been chosen in the list.
    void Choisis(int categorie);
    /// What is in the field as a token, or -1.
    int DonneCategorie() const;

    ListeChoixFlottante & PreteListe() const { return *maListe; }
    /// Gives the closed list all that it can propose, for a picture of it.
    void PreparePourApercu();

    /// Follows the field and its window.
    bool eventFilter(QObject * objet, QEvent * evenement) override;

private:
    void Branche();
    void Propose(QString const & partie);
    void PriseDemande();
    void PriseTexteEditay(QString const & texte);
    void PriseSelection(QList<std::shared_ptr<QStandardItem>> const & items);

    DComboJetonable & monCombo;
    InterfaceUtilisantListeChoixFlottante monInterface;
    std::unique_ptr<ListeChoixFlottante> maListe; // a window, which belongs to no widget
    int maCategorie = -1;                         // the last one that was chosen
};
