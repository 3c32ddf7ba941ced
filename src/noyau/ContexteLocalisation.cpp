// noyau/ContexteLocalisation.cpp
#include "noyau/ContexteLocalisation.h"

#include "noyau/Catalogue_p.h"

#include <QScopedValueRollback>

#include <array>
#include <list>
#include <mutex>
#include <utility>

namespace {

struct Suffixe
{
    eLangue langue;
    char const * texte;
};

constexpr std::array kSuffixes = {
    Suffixe{kLangueFrancais, "Fr"},
    Suffixe{kLangueAnglais, "En"},
    Suffixe{kLangueAnglaisCanada, "En_CA"},
};

} // namespace

struct ContexteLocalisation::Domaine
{
    std::string nom;
    std::string chemin;
    std::array<std::once_flag, kSuffixes.size()> chargements;
    std::array<std::unique_ptr<Catalogue>, kSuffixes.size()> catalogues;

    Catalogue const & Prete(std::size_t langue)
    {
        // A journal that is told of a broken catalogue may look up texts itself: it gets
        // identifiers, instead of waiting for the end of the loading that it is part of.
        static Catalogue const aucun;
        thread_local bool chargementEnCours = false;
        if (chargementEnCours)
            return aucun;
        std::call_once(chargements[langue], [this, langue] {
            QScopedValueRollback const enCours(chargementEnCours, true);
            catalogues[langue] = std::make_unique<Catalogue>(
                QString::fromStdString(chemin + kSuffixes[langue].texte + ".mo"));
        });
        return *catalogues[langue];
    }
};

struct ContexteLocalisation::Registre
{
    std::list<Domaine> domaines; // a list: a domain can't be moved
};

ContexteLocalisation::ContexteLocalisation()
    : monRegistre(std::make_unique<Registre>())
{
}

ContexteLocalisation::~ContexteLocalisation() = default;

void ContexteLocalisation::AjouteDomaine(std::string nom, std::string chemin)
{
    monRegistre->domaines.remove_if([&nom](Domaine const & domaine) { return domaine.nom == nom; });
    Domaine & domaine = monRegistre->domaines.emplace_back();
    domaine.nom = std::move(nom);
    domaine.chemin = std::move(chemin);
}

Catalogue const * ContexteLocalisation::PreteCatalogue(VueTexte domaine, DLocale locale) const
{
    std::string_view const nom(domaine.texte, domaine.longueur);
    for (std::size_t langue = 0; langue < kSuffixes.size(); ++langue) {
        if (kSuffixes[langue].langue != locale.DonneLangue())
            continue;
        for (Domaine & candidat : monRegistre->domaines) {
            if (candidat.nom == nom)
                return &candidat.Prete(langue);
        }
    }
    return nullptr;
}

void InitLocaleLibNoyau(ContexteLocalisation & contexte)
{
    contexte.AjouteDomaine("Noyau", ":/fichiers/Noyau");
}
