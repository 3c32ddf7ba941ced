// galerie/DessinsStyle.h
#pragma once

#include "style/MapDeRegles.h"

#include "noyau/ChaineLocalisable.h"

#include <QStyle>

class QPainter;
class QRect;
class QWidget;

/// What of which widgets the page of the style draws.
enum class eDessin
{
    kBouton,
    kBoutonDefaut,
    kBoutonAvecMenu,
    kBoutonOutil,
    kBoutonOutilAvecMenu,
    kCaseACocher,
    kBoutonRadio,
    kListeDeroulante,
    kChamp,
    kChampSurPlusieursLignes,
    kOnglet,
    kRangDeCellules,
    kRangSeul,
    kRangRiche,
    kSectionEntete,
    kItemMenu,
    kItemMenuRiche,
    kItemBarreMenu,
    kProgression,
    kReglette
};

/// One of them: drawn from an option, so that its states stand side by side without a mouse.
struct DessinStyle
{
    eDessin sorte;
    ChaineLocalisable titre;
    /// A widget that is never shown: the style reads its class, its colours and its properties.
    QWidget * (*creeModele)(QWidget * parent);
    void (*dessine)(QStyle const & style, QPainter & peintre, QRect const & rect,
                    QStyle::State etat, QWidget const & modele);
};

DessinStyle const & DonneDessin(eDessin sorte);

/// Rules for the tag "ex", other ones when the item is selected or under the mouse.
MapDeRegles DonneReglesExemple();
