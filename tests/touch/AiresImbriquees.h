// tests/touch/AiresImbriquees.h
#pragma once

#include "touch/DDefileurTactile.h"

#include "touch/EssaisTactiles.h"

/// An area with an area in it, and what moves the finger from one to the other.
namespace AiresImbriquees {

using EssaisTactiles::DonneEcranTactile;

inline void Focalise(QWidget * widget, QEvent::Type type)
{
    QFocusEvent evenement(type);
    QCoreApplication::sendEvent(widget, &evenement);
}

inline QScroller * DonneDefileur(QAbstractScrollArea * aire)
{
    return QScroller::scroller(aire->viewport());
}

/// A finger on a place of the area where no other area is: does its scroller hear of it?
inline bool EstAlEcoute(QAbstractScrollArea * aire)
{
    QPoint const coin(5, 5);
    Qt::FocusPolicy const politique = aire->focusPolicy();
    aire->setFocusPolicy(Qt::NoFocus); // the question must not move the focus
    QTest::touchEvent(aire->viewport(), DonneEcranTactile()).press(0, coin, aire->viewport());
    bool const presse = DonneDefileur(aire)->state() == QScroller::Pressed;
    QTest::touchEvent(aire->viewport(), DonneEcranTactile()).release(0, coin, aire->viewport());
    aire->setFocusPolicy(politique);
    return presse;
}

/// A scroll area with contents that it can scroll, and a place in them for an area. No touch gives
/// it the focus.
class AireExterne : public QScrollArea
{
public:
    explicit AireExterne(QWidget * parent = nullptr)
        : QScrollArea(parent)
    {
        setFocusPolicy(Qt::NoFocus);
        setGeometry(20, 20, 300, 300);
        auto * const contenu = new QWidget;
        contenu->resize(290, 2000);
        setWidget(contenu);
        defileur = new DDefileurTactile(this);
    }

    DDefileurTactile * defileur = nullptr;
};

inline QListWidget * CreeInterne(QWidget * parent, int y = 20)
{
    auto * const liste = new QListWidget(parent);
    liste->setGeometry(20, y, 150, 100);
    for (int i = 0; i < 200; ++i)
        liste->addItem(QString::number(i));
    new DDefileurTactile(liste);
    return liste;
}

inline bool Montre(QWidget & fenetre)
{
    fenetre.resize(400, 400);
    fenetre.setFocusPolicy(Qt::StrongFocus); // takes the focus that the system gives
    fenetre.setFocus();
    fenetre.show();
    fenetre.activateWindow();
    return QTest::qWaitForWindowActive(&fenetre);
}

} // namespace AiresImbriquees
