// bench/bench_BarreDeFiltre.cpp
//
// A thousand pills in a filter bar: added one by one, painted, removed one by one, beside as many
// push buttons in a QHBoxLayout. Then the same with half and twice as many, to see how it grows.
//
// Adding and removing compare the data with those of each pill and add up the widths of all: that
// part grows with the square of their number, but a step takes some nanoseconds. The menu of the
// chevron has an action for each hidden pill, and gets one more each time. Exits with 1 when the
// thousand pills take longer than a user would notice.
#include "lists/BarreDeFiltre.h"
#include "lists/ListePastille.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QImage>
#include <QPushButton>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int kNombre = 1'000;
constexpr double kAjoutMax = 100.0;   // ms for all
constexpr double kRetraitMax = 100.0; // ms for all
constexpr QSize kTaille(1'600, 40);

struct Durees
{
    double ajout, peinture, retrait; // ms
};

double Duree(std::function<void()> const & travail)
{
    auto const debut = std::chrono::steady_clock::now();
    travail();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - debut)
        .count();
}

void Traite()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

void Peins(QWidget & widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    widget.render(&image);
}

Durees MesurePastilles(int nombre)
{
    BarreDeFiltre barre(true, true);
    barre.resize(kTaille);
    barre.AfficherListePastille(true);
    barre.show();
    Traite();
    Durees durees{};
    durees.ajout = Duree([&] {
        for (int i = 0; i < nombre; ++i)
            barre.AjouterMotPastille(u"critère %1"_s.arg(i), i);
        Traite();
    });
    durees.peinture = Duree([&] { Peins(barre); });
    durees.retrait = Duree([&] {
        for (int i = 0; i < nombre; ++i)
            barre.SupprimerPastille(i);
        Traite();
    });
    return durees;
}

Durees MesureBoutons(int nombre)
{
    QWidget barre;
    auto * const rangee = new QHBoxLayout(&barre);
    rangee->setSizeConstraint(QLayout::SetNoConstraint);
    barre.resize(kTaille);
    barre.show();
    Traite();
    QList<QPushButton *> boutons;
    Durees durees{};
    durees.ajout = Duree([&] {
        for (int i = 0; i < nombre; ++i) {
            boutons << new QPushButton(u"critère %1"_s.arg(i), &barre);
            rangee->addWidget(boutons.last());
        }
        Traite();
    });
    durees.peinture = Duree([&] { Peins(barre); });
    durees.retrait = Duree([&] {
        qDeleteAll(boutons);
        Traite();
    });
    return durees;
}

// Each the best of some rounds: what is left when nothing else disturbs it.
Durees Meilleures(Durees (*mesure)(int), int nombre)
{
    constexpr int kTours = 5;
    Durees meilleures = mesure(nombre);
    for (int i = 1; i < kTours; ++i) {
        Durees const durees = mesure(nombre);
        meilleures.ajout = std::min(meilleures.ajout, durees.ajout);
        meilleures.peinture = std::min(meilleures.peinture, durees.peinture);
        meilleures.retrait = std::min(meilleures.retrait, durees.retrait);
    }
    return meilleures;
}

} // namespace

int main(int nombreArguments, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombreArguments, arguments);
    std::printf("%-24s %10s %10s %10s\n", "milliseconds for all", "added", "painted", "removed");
    Durees mille{};
    for (int const nombre : {kNombre / 2, kNombre, kNombre * 2}) {
        Durees const pastilles = Meilleures(&MesurePastilles, nombre);
        Durees const boutons = Meilleures(&MesureBoutons, nombre);
        std::printf("%5d %-18s %10.2f %10.2f %10.2f\n", nombre, "pills", pastilles.ajout,
                    pastilles.peinture, pastilles.retrait);
        std::printf("%5d %-18s %10.2f %10.2f %10.2f\n", nombre, "push buttons", boutons.ajout,
                    boutons.peinture, boutons.retrait);
        if (nombre == kNombre)
            mille = pastilles;
    }
    bool const depasse = mille.ajout > kAjoutMax || mille.retrait > kRetraitMax;
    if (depasse)
        std::printf("above the limit of %.0f and %.0f ms\n", kAjoutMax, kRetraitMax);
    return depasse ? 1 : 0;
}
