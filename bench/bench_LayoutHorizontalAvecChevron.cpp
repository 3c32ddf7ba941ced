// bench/bench_LayoutHorizontalAvecChevron.cpp
//
// One layout of a row with a chevron and three spacers, of 10 to 10,000 widgets, beside that of a
// `QHBoxLayout` of the same widgets, once where all have room and once where half of them are under
// the chevron. Each layout moves every visible widget. Exits with 1 when a widget of a longer row
// takes more than 4 times as long as one of the row of 10 each time that it is measured, which
// leaves room for what the caches no longer hold.
#include "lists/LayoutHorizontalAvecChevron.h"

#include "Comparaison.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QSpacerItem>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kTailles[] = {10, 100, 1'000, 10'000};
constexpr int kWidgetsParMesure = 50'000;
constexpr double kCroissanceMax = 4.0;
constexpr int kEssaisMax = 8; // the long rows need the memory that other programs use as well
constexpr int kRessorts = 3;

// Logical pixels.
constexpr int kLargeur = 10; // of a widget
constexpr int kHauteur = 20;

class Pave : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {kLargeur, kHauteur}; }
};

void Remplis(QLayout & layout, int nombre)
{
    for (int i = 0; i < nombre; ++i) {
        if (i % (nombre / kRessorts) == 1)
            layout.addItem(new QSpacerItem(1, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
        layout.addWidget(new Pave);
    }
    layout.setSpacing(0);
}

// Nanoseconds for each widget. The two rectangles in turn, so that each layout has to move them.
double DureeParWidget(QLayout & layout, int nombre, int largeur)
{
    int decalage = 0;
    auto const passe = [&] {
        decalage = 1 - decalage;
        layout.setGeometry({decalage, 0, largeur, kHauteur});
    };
    return MeilleureDuree(kWidgetsParMesure / nombre, passe) / nombre;
}

bool Mesure(char const * nom, double part)
{
    std::printf("%-38s %10s %10s %7s\n", nom, "ours ns", "peer ns", "ratio");
    double premiere = 0.0;
    bool lineaire = true;
    for (int const nombre : kTailles) {
        QWidget notre;
        auto * const chevron = new Pave(&notre);
        LayoutHorizontalAvecChevron layout(&notre, chevron, 0);
        Remplis(layout, nombre);
        QWidget pair;
        QHBoxLayout boite(&pair);
        Remplis(boite, nombre);

        int const largeur = static_cast<int>(part * nombre * kLargeur);
        double duree = DureeParWidget(layout, nombre, largeur);
        double const dureeDuPair = DureeParWidget(boite, nombre, largeur);
        premiere = premiere > 0.0 ? premiere : duree;
        for (int essai = 1; essai < kEssaisMax && duree > kCroissanceMax * premiere; ++essai)
            duree = std::min(duree, DureeParWidget(layout, nombre, largeur));
        bool const depasse = duree > kCroissanceMax * premiere;
        lineaire = lineaire && !depasse;
        std::printf("  %6d widgets, each %27.1f %10.1f %7.2f%s\n", nombre, duree, dureeDuPair,
                    duree / dureeDuPair, depasse ? "  above the limit" : "");
    }
    return lineaire;
}

} // namespace

int main(int nombre, char ** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication const application(nombre, arguments);
    bool const toutVisible = Mesure("all have room", 1.2);
    bool const moitieCachee = Mesure("half under the chevron", 0.5);
    return toutVisible && moitieCachee ? EXIT_SUCCESS : EXIT_FAILURE;
}
