// galerie/ChoixBoutons.h
#pragma once

#include "dialogs/DDialogue.h"

#include "noyau/UniChaine.h"

#include <QGroupBox>
#include <QList>

#include <array>

class ChampAvecDefaut;
class QCheckBox;
class QComboBox;
class QLayout;

/// The name of the enumerator and its value. The answer of a link shows the number of the link.
QString DonneNomReponse(int reponse);

/// The buttons of an alert: which it has, which of them is for Return and which for Escape, and the
/// texts of the caller's own.
class ChoixBoutons : public QGroupBox
{
    Q_OBJECT

public:
    explicit ChoixBoutons(QWidget * parent = nullptr);

    int DonneMasque() const;
    DDialogue::eBoutons DonneDefaut() const;
    DDialogue::eBoutons DonneEchap() const;
    std::array<UniChaine, 5> DonneLabels() const;

private:
    QLayout * CreeCases();
    QLayout * CreeChoix();
    QLayout * CreeLabels();

    QList<QCheckBox *> mesCases; // one for each button, in the order of the table
    QComboBox * monDefaut = nullptr;
    QComboBox * monEchap = nullptr;
    std::array<ChampAvecDefaut *, 5> mesLabels{};
};
