// bench/bench_UniChaine.cpp
//
// The operations of UniChaine that run in every window, beside the same ones of QString.
#include "Comparaison.h"

#include "noyau/UniChaine.h"

#include <QString>

#include <array>
#include <map>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double kRatioMax = 1.2;

// ns. A static or shared QString is a few words, written in less than a nanosecond; ours has two
// more words to write, which no ratio to so little measures well.
constexpr double kDureeMaxSansTexte = 5.0;

QString const kTexte =
    u"Les corrections sont proposées dans la fenêtre principale de l’application"_s;
QString const kCherchay = u"principale"_s;
QString const kAbsent = u"secondaire"_s;

// The same loop for either type: what differs is the operation alone.
template <typename Operation>
Comparaison::Boucle Boucle(Operation operation)
{
    return [operation](int repetitions) {
        for (int i = 0; i < repetitions; ++i)
            operation();
    };
}

void MesureConstruction(Comparaison & comparaison)
{
    comparaison.Mesure("construct from UTF-8, 12 bytes",
                       Boucle([] { Garde(UniChaine("Enregistrer.")); }),
                       Boucle([] { Garde(QString::fromUtf8("Enregistrer.")); }), kRatioMax);
    static constexpr char kLong[] = "Les corrections sont propos\xC3\xA9"
                                    "es dans la fen\xC3\xAAtre principale";
    comparaison.Mesure("construct from UTF-8, 59 bytes", Boucle([] { Garde(UniChaine(kLong)); }),
                       Boucle([] { Garde(QString::fromUtf8(kLong)); }), kRatioMax);
    comparaison.Mesure(
        "construct from wide text", Boucle([] { Garde(UniChaine(L"Enregistrer sous…")); }),
        Boucle([] { Garde(QString::fromWCharArray(L"Enregistrer sous…")); }), kRatioMax);
    comparaison.Mesure(
        "construct from u\"\"_s", Boucle([] { Garde(UniChaine(u"Enregistrer sous…"_s)); }),
        Boucle([] { Garde(QString(u"Enregistrer sous…"_s)); }), 0.0, kDureeMaxSansTexte);
    UniChaine const chaine(kTexte);
    comparaison.Mesure("copy", Boucle([&chaine] { Garde(UniChaine(chaine)); }),
                       Boucle([] { Garde(QString(kTexte)); }), 0.0, kDureeMaxSansTexte);
}

template <typename Chaine>
void AjouteVingtFois(Chaine const & morceau)
{
    Chaine resultat;
    for (int i = 0; i < 20; ++i)
        resultat += morceau;
    Garde(resultat);
}

void MesureAjout(Comparaison & comparaison)
{
    UniChaine const morceau(u" et "_s);
    QString const morceauQt = u" et "_s;
    comparaison.Mesure("append 20 times", Boucle([&morceau] { AjouteVingtFois(morceau); }),
                       Boucle([&morceauQt] { AjouteVingtFois(morceauQt); }), kRatioMax);
    UniChaine const chaine(kTexte);
    comparaison.Mesure("concatenate two", Boucle([&] { Garde(chaine + morceau); }),
                       Boucle([&] { Garde(QString(kTexte + morceauQt)); }), kRatioMax);
}

void MesureRecherche(Comparaison & comparaison)
{
    UniChaine const chaine(kTexte);
    UniChaine const cherchay(kCherchay);
    UniChaine const absent(kAbsent);
    comparaison.Mesure("search, present", Boucle([&] {
                           unsigned position = 0;
                           Garde(chaine.Contient(cherchay, &position, 0, UniChaine::kExact));
                           Garde(position);
                       }),
                       Boucle([] { Garde(kTexte.indexOf(kCherchay)); }), kRatioMax);
    comparaison.Mesure("search, absent", Boucle([&] { Garde(chaine.Contient(absent)); }),
                       Boucle([] { Garde(kTexte.contains(kAbsent)); }), kRatioMax);
    comparaison.Mesure("last match", Boucle([&] { Garde(chaine.TrouveDernier(cherchay)); }),
                       Boucle([] { Garde(kTexte.lastIndexOf(kCherchay)); }), kRatioMax);
}

void MesureRemplacement(Comparaison & comparaison)
{
    UniChaine const chaine(kTexte);
    UniChaine const avant(u"e"_s);
    UniChaine const apres(u"ée"_s);
    QString const avantQt = u"e"_s;
    QString const apresQt = u"ée"_s;
    comparaison.Mesure("replace every occurrence",
                       Boucle([&] { Garde(UniChaine(chaine).Remplace(avant, apres)); }),
                       Boucle([&] { Garde(QString(kTexte).replace(avantQt, apresQt)); }),
                       kRatioMax);
    comparaison.Mesure("replace a unit",
                       Boucle([&] { Garde(UniChaine(chaine).Remplace(L'e', L'E')); }),
                       Boucle([] { Garde(QString(kTexte).replace(u'e', u'E')); }), kRatioMax);
}

template <typename Chaine>
std::map<Chaine, int> Index()
{
    std::map<Chaine, int> index;
    for (int i = 0; i < 1000; ++i)
        index.emplace(u"Commande numéro "_s + QString::number(i), i);
    return index;
}

void MesureComparaison(Comparaison & comparaison)
{
    std::map<UniChaine, int> const index = Index<UniChaine>();
    std::map<QString, int> const indexQt = Index<QString>();
    QString const cleQt = u"Commande numéro 618"_s;
    UniChaine const cle(cleQt);
    comparaison.Mesure("look up in a std::map of 1000", Boucle([&] { Garde(index.find(cle)); }),
                       Boucle([&] { Garde(indexQt.find(cleQt)); }), kRatioMax);
    UniChaine const autre(QString(cleQt.constData(), cleQt.size()));
    QString const autreQt(cleQt.constData(), cleQt.size());
    comparaison.Mesure("compare two equal ones", Boucle([&] { Garde(cle == autre); }),
                       Boucle([&] { Garde(cleQt == autreQt); }), kRatioMax);
}

} // namespace

int main()
{
    Comparaison comparaison;
    MesureConstruction(comparaison);
    MesureAjout(comparaison);
    MesureRecherche(comparaison);
    MesureRemplacement(comparaison);
    MesureComparaison(comparaison);
    return comparaison.Resultat();
}
