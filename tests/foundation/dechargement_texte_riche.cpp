// tests/foundation/dechargement_texte_riche.cpp
//
// Loads the library named by its argument, measures rich text with it, and unloads it again while
// the application goes on.
#include "noyau/UniChaine.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QLibrary>

#include <cstdio>

int main(int nombre, char ** arguments)
{
    QApplication application(nombre, arguments);
    if (nombre != 2)
        return 2;
    QLibrary bibliotheque(QString::fromLocal8Bit(arguments[1]));
    // The name of RoutinesGeneralesQt::DonneLongueurTexteRiche in the C++ ABI of ELF systems.
    auto const donneLongueur =
        reinterpret_cast<double (*)(UniChaine const &, QFont const &)>(bibliotheque.resolve(
            "_ZN19RoutinesGeneralesQt23DonneLongueurTexteRicheERK9UniChaineRK5QFont"));
    if (!donneLongueur) {
        std::fprintf(stderr, "%s\n", qPrintable(bibliotheque.errorString()));
        return 1;
    }
    std::puts(donneLongueur("<b>a</b>", QFont()) > 0.0 ? "measured" : "no width");
    bool const decharge =
        bibliotheque.unload() && !QFile::exists(QStringLiteral(":/Style/StyleGeneralGui.qss"));
    std::puts(decharge ? "unloaded" : "still loaded");
    Q_EMIT application.fontDatabaseChanged();
    return 0;
}
