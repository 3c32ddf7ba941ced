// bench/Comparaison.h
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

/// Operations measured beside a peer that does the same work, in turn, as medians of many rounds.
class Comparaison
{
public:
    /// Runs the operation that many times.
    using Boucle = std::function<void(int repetitions)>;

    /// `repetitions` of the operation make one measurement: enough for the clock to see.
    explicit Comparaison(int repetitions = 20'000)
        : mesRepetitions(repetitions)
    {
        std::printf("%-38s %10s %10s %7s\n", "operation", "ours ns", "peer ns", "ratio");
    }

    /// Prints one line. `ratioMax` and `dureeMax` (nanoseconds) are limits; 0 for none.
    void Mesure(char const * nom, Boucle const & notre, Boucle const & pair, double ratioMax,
                double dureeMax = 0.0)
    {
        std::vector<double> notres;
        std::vector<double> pairs;
        std::vector<double> rapports; // of two neighbours in time, which a busy machine slows alike
        Duree(notre);
        Duree(pair);
        for (int tour = 0; tour < kTours; ++tour) {
            notres.push_back(Duree(notre));
            pairs.push_back(Duree(pair));
            rapports.push_back(notres.back() / pairs.back());
        }
        double const duree = Mediane(notres);
        double const ratio = Mediane(rapports);
        bool const depasse =
            (ratioMax > 0.0 && ratio > ratioMax) || (dureeMax > 0.0 && duree > dureeMax);
        std::printf("%-38s %10.1f %10.1f %7.2f%s\n", nom, duree, Mediane(pairs), ratio,
                    depasse ? "  above the limit" : "");
        monDepassement = monDepassement || depasse;
    }

    /// The exit code of the benchmark: 1 when a limit was passed.
    int Resultat() const { return monDepassement ? 1 : 0; }

private:
    static constexpr int kTours = 51;

    // Nanoseconds of one operation.
    double Duree(Boucle const & boucle) const
    {
        auto const debut = std::chrono::steady_clock::now();
        boucle(mesRepetitions);
        std::chrono::duration<double, std::nano> const duree =
            std::chrono::steady_clock::now() - debut;
        return duree.count() / mesRepetitions;
    }

    static double Mediane(std::vector<double> mesures)
    {
        std::nth_element(mesures.begin(), mesures.begin() + kTours / 2, mesures.end());
        return mesures[kTours / 2];
    }

    int mesRepetitions;
    bool monDepassement = false;
};

/// Makes the compiler believe that the value is read.
template <typename T>
void Garde(T const & valeur)
{
    asm volatile("" : : "g"(&valeur) : "memory");
}

/// Nanoseconds of one call of `fonction`, in the fastest of some rounds: what is left when nothing
/// else disturbs it, so that the growth with the size of its work can be read from it.
template <typename Fonction>
double MeilleureDuree(int repetitions, Fonction const & fonction)
{
    constexpr int kTours = 15;

    fonction(); // so that the allocator and the caches know its sizes
    double meilleure = std::numeric_limits<double>::infinity();
    for (int tour = 0; tour < kTours; ++tour) {
        auto const debut = std::chrono::steady_clock::now();
        for (int i = 0; i < repetitions; ++i)
            fonction();
        std::chrono::duration<double, std::nano> const duree =
            std::chrono::steady_clock::now() - debut;
        meilleure = std::min(meilleure, duree.count() / repetitions);
    }
    return meilleure;
}
