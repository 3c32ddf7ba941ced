// galerie/DessinsElements.h
#pragma once

#include <QStyle>
#include <QStyleOption>
#include <QWidget>

class QPainter;
class QRect;

// What the style draws of each sort of widget, in DessinsWidgets.cpp and DessinsItems.cpp. `modele`
// is of the class that the function is named after.
namespace DessinsElements {

constexpr int kOngletDessinay = 2;
constexpr int kOnglets = 4; // so many that the drawn one is neither beside the current one nor last

// The option as the model would have it in that state, in the active window.
template <typename Option>
Option CreeOption(QRect const & rect, QStyle::State etat, QWidget const & modele)
{
    modele.ensurePolished(); // the colours of its class
    Option option;
    option.initFrom(&modele);
    option.rect = rect;
    option.state = etat | QStyle::State_Active;
    bool const actif = etat & QStyle::State_Enabled;
    option.palette.setCurrentColorGroup(actif ? QPalette::Active : QPalette::Disabled);
    return option;
}

void DessineBouton(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                   QWidget const & modele);
void DessineCaseACocher(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele);
void DessineBoutonRadio(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele);
void DessineBoutonOutil(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele);
void DessineListeDeroulante(QStyle const & style, QPainter & peintre, QRect const & rect,
                            QStyle::State etat, QWidget const & modele);
void DessineChamp(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                  QWidget const & modele);
void DessineChampSurPlusieursLignes(QStyle const & style, QPainter & peintre, QRect const & rect,
                                    QStyle::State etat, QWidget const & modele);
void DessineOnglet(QStyle const & style, QPainter & peintre, QRect const & rect, QStyle::State etat,
                   QWidget const & modele);
void DessineProgression(QStyle const & style, QPainter & peintre, QRect const & rect,
                        QStyle::State etat, QWidget const & modele);
void DessineReglette(QStyle const & style, QPainter & peintre, QRect const & rect,
                     QStyle::State etat, QWidget const & modele);
void DessineRangDeCellules(QStyle const & style, QPainter & peintre, QRect const & rect,
                           QStyle::State etat, QWidget const & modele);
void DessineRangSeul(QStyle const & style, QPainter & peintre, QRect const & rect,
                     QStyle::State etat, QWidget const & modele);
void DessineRangRiche(QStyle const & style, QPainter & peintre, QRect const & rect,
                      QStyle::State etat, QWidget const & modele);
void DessineSectionEntete(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele);
void DessineItemMenuSimple(QStyle const & style, QPainter & peintre, QRect const & rect,
                           QStyle::State etat, QWidget const & modele);
void DessineItemMenuRiche(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele);
void DessineItemBarreMenu(QStyle const & style, QPainter & peintre, QRect const & rect,
                          QStyle::State etat, QWidget const & modele);

} // namespace DessinsElements
