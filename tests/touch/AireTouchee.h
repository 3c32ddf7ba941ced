// tests/touch/AireTouchee.h
#pragma once

#include "touch/EssaisTactiles.h"

#include <QScroller>

/// One scroll area under a finger.
namespace AireTouchee {

inline constexpr int kLignes = 500; // more than the area shows

inline QListWidget * CreeListe(QWidget * parent, int lignes = kLignes)
{
    auto * const liste = new QListWidget(parent);
    liste->setGeometry(0, 0, 200, 300);
    for (int i = 0; i < lignes; ++i)
        liste->addItem(QString::number(i));
    return liste;
}

inline bool Montre(QWidget & fenetre)
{
    fenetre.resize(200, 300);
    fenetre.show();
    return QTest::qWaitForWindowExposed(&fenetre);
}

inline QScroller::State Etat(QAbstractScrollArea * aire)
{
    return QScroller::scroller(aire->viewport())->state();
}

inline auto Doigt(QAbstractScrollArea * aire)
{
    return QTest::touchEvent(aire->viewport(), EssaisTactiles::DonneEcranTactile());
}

} // namespace AireTouchee
