// style/InterpreteurChaineSemantique.cpp
#include "style/InterpreteurChaineSemantique.h"

#include "noyau/RoutinesTexte.h"

#include <algorithm>
#include <string>

namespace {

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
using Balise = Interpreteur::Balise;

constexpr QChar kFermeture = u'/'; // before the name of a closing tag, behind that of an empty one

QStringView DonneNom(QStringView texte, Balise const & balise)
{
    return texte.mid(balise.first + 1, balise.second - 2);
}

bool Ferme(QStringView nomFermant, QStringView nomOuvrant)
{
    QStringView const nom = nomFermant.mid(1);
    if (!nomOuvrant.startsWith(nom))
        return false;
    return nom.size() == nomOuvrant.size() || nomOuvrant[nom.size()].isSpace();
}

// Goes through the tags of a text and runs the rules on a copy of it.
class Lecture
{
public:
    Lecture(UniChaine const & source, EnsembleRegles const & regles)
        : maSource(source)
        , mesRegles(regles)
        , maSortie(source)
    {
    }

    UniChaine Execute()
    {
        AppliqueRegleDuTexte();
        for (Balise const & balise : Interpreteur::TrouveBalises(UniChaine(maSource))) {
            QStringView const nom = DonneNom(maSource, balise);
            if (nom.startsWith(kFermeture)) {
                if (mesOuvertures.empty())
                    return maSortie; // Deliberate: what follows stays as it is
                TermineElement(balise, nom);
            } else if (nom.endsWith(kFermeture)) {
                AppliqueRegleVide(balise, nom);
            } else {
                mesOuvertures.push_back({balise, nom, monDecalage});
            }
        }
        if (!mesOuvertures.empty())
            Refuse();
        return maSortie;
    }

private:
    struct Ouverture
    {
        Balise balise;
        QStringView nom;
        qint64 decalage; // of the text in front of the element
    };

    void AppliqueRegleDuTexte()
    {
        auto const regle = mesRegles.find(UniChaine());
        if (regle == mesRegles.end())
            return;
        Balise ouverture(0, 0);
        Balise fermeture(maSortie.Longueur(), 0);
        regle->second(&maSortie, ouverture, fermeture);
        // A rule that wraps the text moves its tags by what it put in front. Its result does not
        // tell that from what it put behind.
        monDecalage = std::max<qsizetype>(QString(maSortie).indexOf(maSource), 0);
    }

    void AppliqueRegleVide(Balise const & balise, QStringView nom)
    {
        Balise const fermeture(balise.first + balise.second, 0);
        AppliqueRegle(balise, monDecalage, fermeture, nom);
    }

    void TermineElement(Balise const & fermeture, QStringView nomFermant)
    {
        Ouverture const ouverture = mesOuvertures.back();
        mesOuvertures.pop_back();
        if (!Ferme(nomFermant, ouverture.nom))
            Refuse();
        AppliqueRegle(ouverture.balise, ouverture.decalage, fermeture, ouverture.nom);
    }

    void AppliqueRegle(Balise const & ouverture, qint64 decalageOuverture, Balise const & fermeture,
                       QStringView nom)
    {
        auto const regle = mesRegles.find(UniChaine(nom.toString()));
        if (regle == mesRegles.end())
            return;
        Balise ouvertureSortie = Decale(ouverture, decalageOuverture);
        Balise fermetureSortie = Decale(fermeture, monDecalage);
        qint64 const debut = ouvertureSortie.first;
        int const longueur = regle->second(&maSortie, ouvertureSortie, fermetureSortie);
        monDecalage = debut + longueur - fermeture.first - fermeture.second;
    }

    // A rule that told a wrong length must not lead another one out of the text.
    Balise Decale(Balise const & balise, qint64 decalage) const
    {
        qint64 const fin = maSortie.Longueur();
        qint64 const position = std::clamp<qint64>(balise.first + decalage, 0, fin);
        return {static_cast<unsigned>(position),
                static_cast<unsigned>(std::min<qint64>(balise.second, fin - position))};
    }

    [[noreturn]] void Refuse() const
    {
        RoutinesGeneralesQt::EcrisSurErreurStandard(maSource);
        throw InterpreteurChaineSemantiqueErreur();
    }

    QString const maSource;
    EnsembleRegles const & mesRegles;
    UniChaine maSortie;
    qint64 monDecalage = 0; // from positions in the source to positions in the output
    std::vector<Ouverture> mesOuvertures;
};

} // namespace

InterpreteurChaineSemantiqueErreur::InterpreteurChaineSemantiqueErreur()
    : std::runtime_error("unbalanced tag")
{
}

InterpreteurChaineSemantiqueErreur::~InterpreteurChaineSemantiqueErreur() = default;

RegleTexteRiche InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
    UniChaine const & ouvrant, UniChaine const & fermant)
{
    return [ouvrant, fermant](UniChaine * texte, Balise & ouverture, Balise & fermeture) {
        unsigned longueur = fermeture.first - ouverture.first - ouverture.second;
        // The closing tag first: the position of the opening one stays valid.
        if (fermeture.second != 0) {
            texte->Remplace(static_cast<int>(fermeture.first), static_cast<int>(fermeture.second),
                            fermant);
            longueur += fermant.Longueur();
        }
        texte->Remplace(static_cast<int>(ouverture.first), static_cast<int>(ouverture.second),
                        ouvrant);
        return static_cast<int>(longueur + ouvrant.Longueur());
    };
}

std::vector<Balise> InterpreteurChaineSemantiqueT<UniChaine>::TrouveBalises(UniChaine const & texte)
{
    constexpr qsizetype kAucune = -1;
    constexpr qsizetype kLongueurBaliseVide = 2; // "<>", which is text

    std::vector<Balise> balises;
    QString const unites = texte;
    qsizetype debut = kAucune;
    for (qsizetype i = 0; i < unites.size(); ++i) {
        if (unites[i] == u'<') {
            debut = i;
        } else if (unites[i] == u'>' && debut != kAucune) {
            qsizetype const longueur = i + 1 - debut;
            if (longueur > kLongueurBaliseVide)
                balises.emplace_back(debut, longueur);
            debut = kAucune;
        }
    }
    return balises;
}

bool InterpreteurChaineSemantiqueT<UniChaine>::PossedeReglesAAppliquer(
    UniChaine const & texte, EnsembleRegles const & regles)
{
    if (regles.empty())
        return false;
    QString const unites = texte;
    auto const balises = TrouveBalises(texte);
    return std::any_of(balises.begin(), balises.end(), [&](Balise const & balise) {
        QStringView const nom = DonneNom(unites, balise);
        return !nom.startsWith(kFermeture) && regles.count(UniChaine(nom.toString())) > 0;
    });
}

UniChaine InterpreteurChaineSemantiqueT<UniChaine>::AppliqueRegles(UniChaine const & texte,
                                                                   EnsembleRegles const & regles)
{
    UniChaine sortie = Lecture(texte, regles).Execute();
    sortie.DecodeCaracteresReservesHTML();
    return sortie;
}
