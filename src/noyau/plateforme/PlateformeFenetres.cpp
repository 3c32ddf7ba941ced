// noyau/plateforme/PlateformeFenetres.cpp
#include "noyau/plateforme/PlateformeFenetres.h"

#include "noyau/plateforme/PlateformeFenetresSysteme_p.h"

#include <QGuiApplication>
#include <QPalette>

#include <utility>

namespace {
struct Etat
{
    std::unique_ptr<PlateformeFenetres> courante;
    QString plugin; // what `courante` was chosen for
    bool estInstallee = false;
};

Etat & PreteEtat()
{
    static Etat etat;
    return etat;
}

std::unique_ptr<PlateformeFenetres> CreeParDefaut(QString const & plugin)
{
    auto plateforme = CreePlateformeFenetresDuSysteme(plugin);
    return plateforme ? std::move(plateforme) : CreePlateformeFenetresNulle();
}
} // namespace

PlateformeFenetres::~PlateformeFenetres() = default;

PlateformeFenetres & PlateformeFenetres::Courante()
{
    Etat & etat = PreteEtat();
    // The first call may come before the application object, which decides on the window system.
    QString const plugin = QGuiApplication::platformName();
    if (!etat.courante || (!etat.estInstallee && etat.plugin != plugin)) {
        etat.courante = CreeParDefaut(plugin);
        etat.plugin = plugin;
        etat.estInstallee = false;
    }
    return *etat.courante;
}

std::unique_ptr<PlateformeFenetres>
PlateformeFenetres::Installe(std::unique_ptr<PlateformeFenetres> plateforme)
{
    Courante(); // so that there is one to return
    Etat & etat = PreteEtat();
    etat.estInstallee = plateforme != nullptr;
    return std::exchange(etat.courante, std::move(plateforme));
}

DWORD PlateformeFenetres::CouleurDePalette(int indice)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return 0;
    QPalette::ColorRole role = QPalette::Text;
    switch (indice) {
    case COLOR_WINDOWTEXT:
        break;
    case COLOR_HIGHLIGHT:
        role = QPalette::Highlight;
        break;
    case COLOR_HIGHLIGHTTEXT:
        role = QPalette::HighlightedText;
        break;
    default:
        return 0;
    }
    QColor const couleur = QGuiApplication::palette().color(QPalette::Active, role);
    return static_cast<DWORD>(couleur.red()) | static_cast<DWORD>(couleur.green()) << 8 |
           static_cast<DWORD>(couleur.blue()) << 16;
}
