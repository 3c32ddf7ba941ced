// tests/foundation/dechargement_texte_riche.cpp
//
// Loads the library named by its argument, measures and draws rich text with it, and unloads it
// again while the application goes on.
#include "noyau/UniChaine.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QImage>
#include <QLibrary>
#include <QPainter>

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
    auto const dessine = reinterpret_cast<void (*)(QPainter &, QRect const &, QFont, UniChaine)>(
        bibliotheque.resolve("_ZN19RoutinesGeneralesQt17DessineTexteRicheER8QPainterRK5QRect5"
                             "QFont9UniChaine"));
    if (!donneLongueur || !dessine) {
        std::fprintf(stderr, "%s\n", qPrintable(bibliotheque.errorString()));
        return 1;
    }
    {
        QImage image(100, 20, QImage::Format_ARGB32_Premultiplied);
        QPainter peintre(&image);
        dessine(peintre, image.rect(), QFont(), "<b>a</b>");
    }
    std::puts(donneLongueur("<b>a</b>", QFont()) > 0.0 ? "measured" : "no width");
    bool const decharge =
        bibliotheque.unload() && !QFile::exists(QStringLiteral(":/Style/StyleGeneralGui.qss"));
    std::puts(decharge ? "unloaded" : "still loaded");
    Q_EMIT application.fontDatabaseChanged();
    return 0;
}
