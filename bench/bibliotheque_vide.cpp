// bench/bibliotheque_vide.cpp
//
// What loading costs at the least: a library that needs Qt Widgets and does nothing with it.
#include <QApplication>

extern "C" Q_DECL_EXPORT QWidget * FenetreActive()
{
    return QApplication::activeWindow();
}
