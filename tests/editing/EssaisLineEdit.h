// tests/editing/EssaisLineEdit.h
#pragma once

#include <QApplication>
#include <QColor>
#include <QEvent>
#include <QFocusEvent>
#include <QHoverEvent>
#include <QPalette>
#include <QWidget>

// What the tests of the field with an error share.
namespace EssaisLineEdit {

inline const QColor kRouge(238, 0, 0);

inline void Envoie(QWidget & champ, QEvent::Type type)
{
    switch (type) {
    case QEvent::HoverEnter:
    case QEvent::HoverLeave: {
        QHoverEvent evenement(type, QPointF(1, 1), QPointF(1, 1), QPointF());
        QApplication::sendEvent(&champ, &evenement);
        break;
    }
    default: {
        QFocusEvent evenement(type, Qt::OtherFocusReason);
        QApplication::sendEvent(&champ, &evenement);
    }
    }
}

inline bool EstRouge(QWidget const & champ)
{
    return champ.palette().color(QPalette::Text) == kRouge;
}

} // namespace EssaisLineEdit
