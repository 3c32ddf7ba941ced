// galerie/FiltreMots.cpp
#include "FiltreMots.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <utility>

namespace {

constexpr int kLettresMax = std::numeric_limits<quint8>::max(); // that a table tells
constexpr int kLettresDeLAlphabet = 26;

// By `eLongueur`: the fewest letters and the most.
constexpr std::pair<int, int> kBornes[] = {
    {0, kLettresMax}, {1, 5}, {6, 8}, {9, 11}, {12, kLettresMax}};

// By `eAccent`, from the first that names one.
constexpr quint8 kBits[] = {TableMots::kAigu, TableMots::kGrave, TableMots::kCirconflexe,
                            TableMots::kTrema, TableMots::kCedille};

bool AccentsConviennent(int accents, int accent)
{
    switch (accent) {
    case FiltreMots::kSans:
        return accents == TableMots::kSansAccent;
    case FiltreMots::kAvec:
        return accents != TableMots::kSansAccent;
    default:
        return accent == FiltreMots::kAvecOuSans ||
               (accents & kBits[accent - FiltreMots::kAigu]) != 0;
    }
}

int DonneBorne(int valeur, int derniere)
{
    return valeur < 0 || valeur > derniere ? 0 : valeur;
}

} // namespace

/// A set of criteria as tables, so that a word costs a few look-ups.
class FiltreMots::Epreuve
{
public:
    Epreuve(TableMots const & table, Demande const & demande)
        : maTable(table)
        , maDemande(demande)
    {
        auto const [moins, plus] = kBornes[demande.longueur];
        for (int lettres = 0; lettres <= kLettresMax; ++lettres)
            mesLettres[static_cast<std::size_t>(lettres)] = lettres >= moins && lettres <= plus;
        for (int accents = 0; accents < TableMots::kFinAccents; ++accents)
            mesAccents[static_cast<std::size_t>(accents)] =
                AccentsConviennent(accents, demande.accent);
    }

    bool operator()(int indice) const
    {
        TableMots::Attributs const & attributs = maTable.DonneAttributs(indice);
        if (!mesLettres[attributs.lettres] || !mesAccents[attributs.accents] ||
            (maDemande.initiale != 0 && attributs.initiale != maDemande.initiale))
            return false;
        std::string_view const mot = maTable.DonneCle(indice);
        return std::all_of(maDemande.cles.cbegin(), maDemande.cles.cend(),
                           [mot](Cle const & cle) { return Convient(mot, cle); });
    }

private:
    static bool Convient(std::string_view mot, Cle const & cle)
    {
        switch (cle.mode) {
        case kCommencePar:
            return mot.starts_with(cle.cle);
        case kFinitPar:
            return mot.ends_with(cle.cle);
        case kContient:
            break;
        }
        return mot.find(cle.cle) != std::string_view::npos;
    }

    TableMots const & maTable;
    Demande const & maDemande;
    std::array<bool, kLettresMax + 1> mesLettres;
    std::array<bool, TableMots::kFinAccents> mesAccents;
};

FiltreMots::FiltreMots(std::shared_ptr<TableMots const> table)
    : maTable(std::move(table))
{
}

std::vector<int> const & FiltreMots::Filtre(Criteres const & criteres) &
{
    Demande demande = Prepare(criteres);
    Epreuve const epreuve(*maTable, demande);
    if (maDemande && Restreint(demande, *maDemande)) {
        std::erase_if(monResultat, [&epreuve](int indice) { return !epreuve(indice); });
    } else {
        monResultat.clear();
        for (int indice = 0; indice < maTable->DonneNombre(); ++indice)
            if (epreuve(indice))
                monResultat.push_back(indice);
    }
    maDemande = std::move(demande);
    return monResultat;
}

std::vector<int> FiltreMots::Trie(std::vector<int> const & indices, eTri tri) const
{
    if (tri == kOrdreDeLaListe)
        return indices;
    // By counting: lengths are few, and words many.
    auto const rang = [this, tri](int indice) -> std::size_t {
        int const lettres = maTable->DonneAttributs(indice).lettres;
        return static_cast<std::size_t>(tri == kCourtsDAbord ? lettres : kLettresMax - lettres);
    };
    std::array<std::size_t, kLettresMax + 2> places{};
    for (int const indice : indices)
        ++places[rang(indice) + 1];
    std::partial_sum(places.cbegin(), places.cend(), places.begin());
    std::vector<int> tries(indices.size());
    for (int const indice : indices)
        tries[places[rang(indice)]++] = indice;
    return tries;
}

int FiltreMots::ChercheDebut(std::vector<int> const & indices, QString const & debut) const
{
    std::string const cle = TableMots::DonneCle(debut);
    if (cle.empty())
        return -1;
    auto const trouvay = std::find_if(indices.cbegin(), indices.cend(), [this, &cle](int indice) {
        return maTable->DonneCle(indice).starts_with(cle);
    });
    return trouvay == indices.cend() ? -1 : static_cast<int>(trouvay - indices.cbegin());
}

FiltreMots::Demande FiltreMots::Prepare(Criteres const & criteres)
{
    Demande demande{DonneBorne(criteres.longueur, kDouzeEtPlus),
                    DonneBorne(criteres.initiale, kLettresDeLAlphabet),
                    DonneBorne(criteres.accent, kCedille),
                    {}};
    for (Texte const & texte : criteres.textes)
        if (std::string cle = TableMots::DonneCle(texte.texte); !cle.empty())
            demande.cles.push_back({texte.mode, std::move(cle)});
    return demande;
}

// True when every word that meets `nouvelle` meets `ancienne` too.
bool FiltreMots::Restreint(Demande const & nouvelle, Demande const & ancienne)
{
    std::pair<int, int> const choix[] = {{nouvelle.longueur, ancienne.longueur},
                                         {nouvelle.initiale, ancienne.initiale},
                                         {nouvelle.accent, ancienne.accent}};
    bool const memesChoix = std::all_of(std::begin(choix), std::end(choix), [](auto const & deux) {
        return deux.second == 0 || deux.first == deux.second;
    });
    return memesChoix &&
           std::all_of(ancienne.cles.cbegin(), ancienne.cles.cend(), [&](Cle const & autre) {
               return std::any_of(nouvelle.cles.cbegin(), nouvelle.cles.cend(),
                                  [&](Cle const & cle) { return Entraine(cle, autre); });
           });
}

bool FiltreMots::Entraine(Cle const & cle, Cle const & autre)
{
    switch (autre.mode) {
    case kCommencePar:
        return cle.mode == kCommencePar && cle.cle.starts_with(autre.cle);
    case kFinitPar:
        return cle.mode == kFinitPar && cle.cle.ends_with(autre.cle);
    case kContient:
        break;
    }
    return cle.cle.find(autre.cle) != std::string::npos;
}
