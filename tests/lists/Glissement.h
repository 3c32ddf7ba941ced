// lists/Glissement.h
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QTimer>
#include <QWindow>
#include <QtTest>

#include <functional>

/// A drag with the mouse that the rows of a view begin.
///
/// It takes a platform that leaves drags to Qt, which then runs them inside of the program, from
/// the mouse events that its windows get: "minimal", but not "offscreen", where a drag ends at
/// once.
namespace Glissement {

inline QPoint DansLaFenetre(QAbstractItemView const & vue, QPoint const & point)
{
    return vue.viewport()->mapTo(vue.window(), point);
}

inline void Deplace(QAbstractItemView const & vue, QPoint const & point)
{
    QCursor::setPos(vue.viewport()->mapToGlobal(point)); // where a drag begins
    QTest::mouseMove(vue.window()->windowHandle(), DansLaFenetre(vue, point));
}

inline void Lache(QAbstractItemView const & vue, QPoint const & point)
{
    QTest::mouseRelease(vue.window()->windowHandle(), Qt::LeftButton, {},
                        DansLaFenetre(vue, point));
}

/// Presses on `depart` and pulls; `etapes` run, one after the other, while the drag is under way,
/// and must end it. False if none began.
inline bool Execute(QAbstractItemView const & vue, QPoint const & depart,
                    QList<std::function<void()>> const & etapes)
{
    int faites = 0;
    QTimer minuterie;
    QObject::connect(&minuterie, &QTimer::timeout, &minuterie, [&] {
        if (faites < etapes.size())
            etapes.at(faites++)();
    });
    Deplace(vue, depart);
    QTest::mousePress(vue.window()->windowHandle(), Qt::LeftButton, {}, DansLaFenetre(vue, depart));
    Deplace(vue, depart + QPoint(1, 0)); // begins a gesture
    minuterie.start(0);
    // The drag runs its own event loop in here.
    Deplace(vue, depart + QPoint(QApplication::startDragDistance() + 1, 0));
    minuterie.stop();
    QCoreApplication::processEvents();
    return faites == etapes.size();
}

} // namespace Glissement
