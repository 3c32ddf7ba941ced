// bench/bench_ThemesQt.cpp
//
// The expansion of style sheets, beside a plain loop of QString::replace over the variables: the
// time for sheets of 10,000, 100,000 and 1,000,000 characters with a variable in every 50; and a
// million colours by name, beside a bare look-up in a QHash of colours. Exits with 1 when the time
// of sheets does not grow linearly, or the million colours take more than a second.
#include "Comparaison.h"
#include "foundation/ThemesQt.h"
#include "foundation/VariablesParDefaut_p.h"

#include <QApplication>
#include <QColor>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kEcart = 50; // characters from one variable to the next, on average

// Ten times the text may take this many times as long: ten, and as much again for what the larger
// one loses to the caches and the allocator. Quadratic time would take a hundred times as long.
constexpr double kCroissanceMax = 20.0;

constexpr int kCouleurs = 1'000'000;
constexpr double kDureeCouleur = 1e9 / kCouleurs; // ns

// A sheet of exactly that many characters with all variables in turn, one in each `kEcart`.
QString FabriqueFeuille(qsizetype taille)
{
    QString feuille;
    feuille.reserve(taille);
    for (qsizetype i = 0; i < taille / kEcart; ++i) {
        auto const indice = static_cast<std::size_t>(i) % std::size(kVariablesParDefaut);
        QString const regle = u"*{color:@%1;}\n"_s.arg(kVariablesParDefaut[indice].nom);
        // Where a name is too long for its share, the next ones have fewer blanks.
        qsizetype const blancs = (i + 1) * kEcart - feuille.size() - regle.size();
        feuille += QString(std::max<qsizetype>(blancs, 0), u' ') + regle;
    }
    return feuille;
}

QString RemplaceParBoucle(QString feuille)
{
    for (VariableParDefaut const & variable : kVariablesParDefaut)
        feuille.replace(u'@' + variable.nom.toString() + u';', variable.valeur.toString() + u';');
    return feuille;
}

// All names of the table in turn, those of fonts and lengths too.
bool MesureCouleurs(ThemesQt const & themes)
{
    QStringList const noms = themes.DonneNoms();
    QHash<QString, QColor> couleurs;
    for (QString const & nom : noms)
        couleurs.insert(nom, themes.DonneCouleur(nom));
    auto const tour = [&noms](int repetitions, auto const & donne) {
        for (int i = 0; i < repetitions; ++i)
            Garde(donne(noms[i % noms.size()]));
    };
    std::puts("");
    Comparaison comparaison(kCouleurs);
    comparaison.Mesure(
        "DonneCouleur beside QHash::value",
        [&](int n) { tour(n, [&](QString const & nom) { return themes.DonneCouleur(nom); }); },
        [&](int n) { tour(n, [&](QString const & nom) { return couleurs.value(nom); }); }, 0.0,
        kDureeCouleur);
    return comparaison.Resultat() == 0;
}

} // namespace

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    ThemesQt const & themes = *ThemesQt::Instance();
    bool reussi = true;

    std::printf("%-10s %10s %16s %16s %10s\n", "characters", "variables", "ThemesQt ns",
                "replace loop ns", "growth");
    double precedente = 0.0;
    for (qsizetype const taille : {10'000, 100'000, 1'000'000}) {
        QString const feuille = FabriqueFeuille(taille);
        qsizetype const variables = feuille.count(u'@');
        if (feuille.size() != taille || variables != taille / kEcart ||
            themes.AppliquerVariable(feuille) != RemplaceParBoucle(feuille)) {
            std::puts("the sheet is not the one that is to be measured, or the two differ on it");
            reussi = false;
        }
        int const repetitions = static_cast<int>(1'000'000 / taille);
        double const duree =
            MeilleureDuree(repetitions, [&] { themes.AppliquerVariable(feuille); });
        double const boucle = MeilleureDuree(repetitions, [&] { RemplaceParBoucle(feuille); });
        double const croissance = precedente > 0.0 ? duree / precedente : 0.0;
        std::printf("%-10lld %10lld %16.0f %16.0f", static_cast<long long>(taille),
                    static_cast<long long>(variables), duree, boucle);
        if (precedente > 0.0)
            std::printf(" %10.1f", croissance);
        std::puts(croissance > kCroissanceMax ? "  above the limit" : "");
        reussi = reussi && croissance <= kCroissanceMax;
        precedente = duree;
    }
    std::printf("growth is for ten times the text; the limit is %.0f\n", kCroissanceMax);

    reussi = MesureCouleurs(themes) && reussi;

    ThemesQt::DetruisToi();
    return reussi ? 0 : 1;
}
