// foundation/VersionsQt_p.h
#pragma once

#include <QColor>
#include <QPalette>
#include <QtGlobal>

// What differs between the versions of Qt that the library builds with.

/// The accent colour of `palette`; its highlight where palettes have no accent role, before Qt 6.6.
inline QColor DonneCouleurAccent(QPalette const & palette)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    return palette.accent().color();
#else
    return palette.highlight().color();
#endif
}
