// bench/bench_ThemesQt.cpp
//
// The expansion of style sheets, beside a plain loop of QString::replace over the variables: the
// time for sheets of 10 KB, 100 KB and 1 MB with a variable every 50 characters, and for a colour.
// Exits with 1 when the time does not grow linearly.
#include "foundation/ThemesQt.h"
#include "foundation/VariablesParDefaut_p.h"

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr int kEcart = 50; // characters from one variable to the next
constexpr int kEssais = 7; // of which the fastest counts

// A hundred times the text may take this many times as long: room for the caches that the larger
// one no longer fits in. Quadratic time would take 10,000 times as long.
constexpr double kCroissanceMax = 400.0;

QString FabriqueFeuille(qsizetype taille)
{
    QString feuille;
    for (std::size_t i = 0; feuille.size() < taille; ++i) {
        QStringView const nom = kVariablesParDefaut[i % std::size(kVariablesParDefaut)].nom;
        QString const regle = u"QLabel { color: @%1; }\n"_s.arg(nom);
        feuille += regle.rightJustified(std::max<qsizetype>(kEcart, regle.size()), u' ');
    }
    return feuille;
}

QString RemplaceParBoucle(QString feuille)
{
    for (VariableParDefaut const & variable : kVariablesParDefaut)
        feuille.replace(u'@' + variable.nom.toString() + u';', variable.valeur.toString() + u';');
    return feuille;
}

// Nanoseconds per call.
template <typename Fonction>
double Mesure(int repetitions, Fonction const & fonction)
{
    double meilleur = std::numeric_limits<double>::infinity();
    for (int essai = 0; essai < kEssais; ++essai) {
        QElapsedTimer chrono;
        chrono.start();
        for (int i = 0; i < repetitions; ++i)
            fonction();
        meilleur = std::min(meilleur, static_cast<double>(chrono.nsecsElapsed()) / repetitions);
    }
    return meilleur;
}

} // namespace

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    ThemesQt const & themes = *ThemesQt::Instance();
    bool reussi = true;

    std::printf("%-12s %16s %16s\n", "sheet", "ThemesQt ns", "replace loop ns");
    double premier = 0.0;
    double dernier = 0.0;
    for (qsizetype const taille : {10'000, 100'000, 1'000'000}) {
        QString const feuille = FabriqueFeuille(taille);
        int const repetitions = static_cast<int>(1'000'000 / taille);
        if (themes.AppliquerVariable(feuille) != RemplaceParBoucle(feuille)) {
            std::puts("the two give different sheets");
            reussi = false;
        }
        dernier = Mesure(repetitions, [&] { themes.AppliquerVariable(feuille); });
        double const boucle = Mesure(repetitions, [&] { RemplaceParBoucle(feuille); });
        std::printf("%-12lld %16.0f %16.0f\n", static_cast<long long>(taille), dernier, boucle);
        if (premier == 0.0)
            premier = dernier;
    }
    std::printf("1 MB takes %.0f times as long as 10 KB; the limit is %.0f\n", dernier / premier,
                kCroissanceMax);

    QString const nom = u"couleurBordureGui"_s;
    std::printf("DonneCouleur %.0f ns\n", Mesure(10'000, [&] { themes.DonneCouleur(nom); }));

    ThemesQt::DetruisToi();
    return reussi && dernier <= kCroissanceMax * premier ? 0 : 1;
}
