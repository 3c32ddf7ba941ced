// galerie/PageChevron.h
#pragma once

#include "noyau/ChaineLocalisable.h"

#include <QWidget>

class ApercuFenetre;
class DFrameChevronnable;
class QAction;
class QLabel;
class QSlider;
class QTextEdit;
class TraceSignaux;

/// Two bands that never wrap, a slider that narrows them, and what goes under their chevrons.
class PageChevron : public QWidget
{
    Q_OBJECT

public:
    explicit PageChevron(QWidget * parent = nullptr);

private:
    QWidget * CreeOutils();
    QWidget * CreeJours();
    QWidget * CreeReglage();
    QWidget * CreeTrace();
    void CreeTexte();
    void RemplisOutils();
    void AjouteEffet(QString const & nom, QString const & icone, ChaineLocalisable texte,
                     void (PageChevron::*effet)());
    void AjouteOutil(QAction & action);
    QAction * CreeAction(QString const & nom, QString const & icone, QString const & texte);
    QAction * CreeCasse();
    void Branche();

    void PriseForme(int toutEstVisible);
    void PriseMiseEnPlace();
    void PriseLargeur(int pourCent);
    void PriseAgrandit();
    void PriseReduit();
    void PriseAnnule();
    void PriseRetablit();
    void ChangeTaille(double points);

    DFrameChevronnable * mesOutils = nullptr;
    DFrameChevronnable * mesJours = nullptr;
    ApercuFenetre * monApercu = nullptr;
    QLabel * monCompte = nullptr;
    QSlider * maLargeur = nullptr;
    QTextEdit * monTexte = nullptr;
    TraceSignaux * maTrace = nullptr;
};
