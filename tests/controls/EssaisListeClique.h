// tests/controls/EssaisListeClique.h
#pragma once

#include "controls/DListViewClique.h"

#include <QSignalSpy>
#include <QtTest>

// What the tests of the list that is clicked without a selection share.
namespace EssaisListeClique {

using namespace Qt::StringLiterals;

/// A shown list of four items, with what it tells.
struct Banc
{
    Banc()
        : presses(&liste, &QListWidget::pressed)
        , clics(&liste, &QListWidget::clicked)
        , doubles(&liste, &QListWidget::doubleClicked)
        , activations(&liste, &QListWidget::activated)
        , selections(&liste, &QListWidget::itemSelectionChanged)
        , courants(&liste, &QListWidget::currentRowChanged)
    {
        liste.addItems({u"un"_s, u"deux"_s, u"trois"_s, u"quatre"_s});
        liste.resize(200, 300);
        liste.show();
    }

    QPoint Milieu(int rangee) const { return liste.visualItemRect(liste.item(rangee)).center(); }
    static QPoint Vide() { return {100, 280}; }
    QPoint Position(int rangee) const { return rangee < 0 ? Vide() : Milieu(rangee); }

    void Presse(QPoint const & position, Qt::MouseButton bouton = Qt::LeftButton)
    {
        QTest::mousePress(liste.viewport(), bouton, {}, position);
    }
    void Relache(QPoint const & position, Qt::MouseButton bouton = Qt::LeftButton)
    {
        QTest::mouseRelease(liste.viewport(), bouton, {}, position);
    }

    /// Waits for the window to be active; what the list told until then is forgotten.
    bool Active()
    {
        liste.activateWindow();
        bool const estActive = QTest::qWaitForWindowActive(&liste);
        OublieSignaux();
        return estActive;
    }
    void OublieSignaux()
    {
        for (auto * const espion :
             {&presses, &clics, &doubles, &activations, &selections, &courants})
            espion->clear();
    }

    /// The rows that a signal told.
    static QList<int> Rangees(QSignalSpy const & espion)
    {
        QList<int> rangees;
        for (auto const & arguments : espion)
            rangees.append(arguments.at(0).toModelIndex().row());
        return rangees;
    }

    DListViewClique liste;
    QSignalSpy presses;
    QSignalSpy clics;
    QSignalSpy doubles;
    QSignalSpy activations;
    QSignalSpy selections;
    QSignalSpy courants;
};

using Rangees = QList<int>;

} // namespace EssaisListeClique
