// galerie/BarreFiltreMots.h
#pragma once

#include "FiltreMots.h"

#include "lists/BarreDeFiltre.h"

#include <QVariant>

#include <vector>

class QComboBox;
class QWidget;

/// A filter bar over words: combo boxes for length, initial and accents, a field for a text, and a
/// pill for each criterion.
///
/// A text counts while it is typed; Return makes a pill of it, so that several can hold at once.
class BarreFiltreMots : public BarreDeFiltre
{
    Q_OBJECT

public:
    /// The combo boxes, and the keys of their pills.
    enum eFiltre
    {
        kLongueur = 1,
        kInitiale,
        kAccent
    };

    /// What the user has chosen; another bar may be given it.
    struct Etat
    {
        FiltreMots::Criteres criteres; ///< those that have pills
        FiltreMots::Texte saisie;      ///< in the field
    };

    explicit BarreFiltreMots(QWidget * parent = nullptr);

    Etat DonneEtat() const;
    void MetsEtat(Etat const & etat);
    /// All that a word has to meet, with what is being typed.
    FiltreMots::Criteres DonneCriteres() const;

    /// The window in which the combo boxes open.
    QWidget & PreteFenetre();

Q_SIGNALS:
    void SignalCriteresChanges();

private:
    void CreeCombo(eFiltre filtre, QString const & nom, QString const & libelle,
                   QStringList const & choix);
    void CreeCombos();
    void CreeModes();
    void Branche();
    FiltreMots::Texte DonneSaisie() const;
    void AjouteEpingle(FiltreMots::Texte const & texte);
    void MontrePastilles();

    void PriseValeur(int filtre, int choix);
    void PrisePastille(QVariant const & donnees);
    void PriseRetour();

    std::vector<FiltreMots::Texte> mesEpingles; // texts that have become pills
};
