// bench/bench_Chargement.cpp
//
// Time of dlopen for libFabrelGui and for an empty library that needs Qt Widgets, each in a fresh
// process, in turn.
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int kTours = 31;
constexpr double kMargeMax = 10.0; // ms that libFabrelGui may take more

// Milliseconds, measured in a child process that has loaded nothing else.
double MesureChargement(char const * bibliotheque)
{
    int tuyau[2];
    if (pipe(tuyau) != 0)
        std::exit(2);
    pid_t const enfant = fork();
    if (enfant == 0) {
        auto const debut = std::chrono::steady_clock::now();
        void * const poignee = dlopen(bibliotheque, RTLD_NOW);
        std::chrono::duration<double, std::milli> const duree =
            std::chrono::steady_clock::now() - debut;
        double const mesure = poignee ? duree.count() : -1.0;
        if (!poignee)
            std::fprintf(stderr, "%s\n", dlerror());
        _exit(write(tuyau[1], &mesure, sizeof mesure) == sizeof mesure ? 0 : 1);
    }
    double mesure = -1.0;
    if (read(tuyau[0], &mesure, sizeof mesure) != sizeof mesure || mesure < 0.0)
        std::exit(2);
    close(tuyau[0]);
    close(tuyau[1]);
    waitpid(enfant, nullptr, 0);
    return mesure;
}

double Mediane(std::vector<double> mesures)
{
    std::nth_element(mesures.begin(), mesures.begin() + kTours / 2, mesures.end());
    return mesures[kTours / 2];
}

} // namespace

int main()
{
    std::vector<double> gui;
    std::vector<double> vide;
    MesureChargement(BIBLIOTHEQUE_GUI); // warms the file cache
    for (int tour = 0; tour < kTours; ++tour) {
        gui.push_back(MesureChargement(BIBLIOTHEQUE_GUI));
        vide.push_back(MesureChargement(BIBLIOTHEQUE_VIDE));
    }
    double const surplus = Mediane(gui) - Mediane(vide);
    std::printf("dlopen, median of %d: libFabrelGui %.2f ms, empty library %.2f ms, %.2f ms more\n",
                kTours, Mediane(gui), Mediane(vide), surplus);
    return surplus <= kMargeMax ? 0 : 1;
}
