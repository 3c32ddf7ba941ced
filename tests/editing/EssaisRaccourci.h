// tests/editing/EssaisRaccourci.h
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QString>
#include <QWidget>

// What the tests of the field for a shortcut share.
namespace EssaisRaccourci {

inline void Presse(QWidget & champ, int touche, Qt::KeyboardModifiers modificateurs,
                   QString const & texte, bool repetition = false)
{
    QKeyEvent evenement(QEvent::KeyPress, touche, modificateurs, texte, repetition);
    QApplication::sendEvent(&champ, &evenement);
}

} // namespace EssaisRaccourci
