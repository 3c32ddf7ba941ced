// style/InterpreteurChaineSemantiqueT.cpp
#include "style/InterpreteurChaineSemantiqueT.h"

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

// Puts a text in the place of either tag.
struct RemplacementDeBalises
{
    int operator()(UniChaine * texte, Balise & ouverture, Balise & fermeture) const
    {
        // The closing tag first: the position of the opening one stays valid.
        if (fermeture.second != 0)
            texte->Remplace(static_cast<int>(fermeture.first), static_cast<int>(fermeture.second),
                            fermant);
        texte->Remplace(static_cast<int>(ouverture.first), static_cast<int>(ouverture.second),
                        ouvrant);
        unsigned const contenu = fermeture.first - ouverture.first - ouverture.second;
        // Deliberate: counts both texts, also where there is no closing tag to replace.
        return static_cast<int>(contenu + ouvrant.Longueur() + fermant.Longueur());
    }

    UniChaine ouvrant;
    UniChaine fermant;
};

// An element of the source that has a rule.
struct Element
{
    RegleTexteRiche const * regle = nullptr;
    Balise ouverture;
    Balise fermeture; // just behind the opening tag, and of length 0, for an empty element
};

// The tags of the elements that have a rule, as they follow each other in the source. An empty
// element has both at one place.
struct Evenement
{
    std::size_t element;
    bool ouvre;
};

struct Structure
{
    std::vector<Element> elements;
    std::vector<Evenement> evenements;
};

[[noreturn]] void Refuse(QString const & source)
{
    RoutinesGeneralesQt::EcrisSurErreurStandard(source);
    throw InterpreteurChaineSemantiqueErreur();
}

// The rule of that name; null without one. A function that is empty is none.
RegleTexteRiche const * PreteRegle(EnsembleRegles const & regles, QStringView nom)
{
    auto const regle = regles.find(UniChaine(nom.toString()));
    return regle != regles.end() && regle->second ? &regle->second : nullptr;
}

// Puts the elements of a text together from its tags.
class Lecteur
{
public:
    Lecteur(QString const & source, EnsembleRegles const & regles)
        : maSource(source)
        , mesRegles(regles)
    {
    }

    Structure Lis()
    {
        for (Balise const & balise : Interpreteur::TrouveBalises(maSource)) {
            QStringView const nom = DonneNom(maSource, balise);
            if (nom.startsWith(kFermeture)) {
                if (mesOuvertures.empty())
                    return maStructure; // Deliberate: what follows stays as it is
                if (!Ferme(nom, mesOuvertures.back().nom))
                    Refuse(maSource);
                TermineElement(balise);
            } else {
                CommenceElement(balise, nom);
                if (nom.endsWith(kFermeture))
                    TermineElement({balise.first + balise.second, 0});
            }
        }
        if (!mesOuvertures.empty())
            Refuse(maSource);
        return maStructure;
    }

private:
    struct Ouverture
    {
        QStringView nom;
        bool suitRegle;
        std::size_t element; // meant if it follows a rule
    };

    void CommenceElement(Balise const & balise, QStringView nom)
    {
        auto const * const regle = PreteRegle(mesRegles, nom);
        mesOuvertures.push_back({nom, regle != nullptr, maStructure.elements.size()});
        if (!regle)
            return;
        maStructure.evenements.push_back({maStructure.elements.size(), true});
        maStructure.elements.push_back({regle, balise, {}});
    }

    void TermineElement(Balise const & balise)
    {
        Ouverture const ouverture = mesOuvertures.back();
        mesOuvertures.pop_back();
        if (!ouverture.suitRegle)
            return;
        maStructure.elements[ouverture.element].fermeture = balise;
        maStructure.evenements.push_back({ouverture.element, false});
    }

    QString const & maSource;
    EnsembleRegles const & mesRegles;
    Structure maStructure;
    std::vector<Ouverture> mesOuvertures;
};

RemplacementDeBalises const * PreteRemplacement(Element const & element)
{
    return element.regle->target<RemplacementDeBalises>();
}

// Whether no rule does more than put texts in the place of tags.
bool NeFaitQueRemplacer(Structure const & structure)
{
    return std::all_of(structure.elements.begin(), structure.elements.end(), PreteRemplacement);
}

// All replacements in one pass: rule by rule, each would move the rest of the text.
UniChaine RemplaceEnsemble(QString const & source, Structure const & structure)
{
    QString sortie;
    qsizetype position = 0;
    auto const remplace = [&](Balise const & balise, UniChaine const & texte) {
        sortie += QStringView(source).mid(position, balise.first - position);
        if (balise.second > 0)
            sortie += QString(texte);
        position = balise.first + balise.second;
    };
    for (Evenement const & evenement : structure.evenements) {
        Element const & element = structure.elements[evenement.element];
        if (evenement.ouvre)
            remplace(element.ouverture, PreteRemplacement(element)->ouvrant);
        else
            remplace(element.fermeture, PreteRemplacement(element)->fermant);
    }
    sortie += QStringView(source).mid(position);
    return sortie;
}

// A rule that told a wrong length must not lead another one out of the text.
Balise Decale(Balise const & balise, qint64 decalage, UniChaine const & sortie)
{
    qint64 const fin = sortie.Longueur();
    qint64 const position = std::clamp<qint64>(balise.first + decalage, 0, fin);
    return {static_cast<unsigned>(position),
            static_cast<unsigned>(std::min<qint64>(balise.second, fin - position))};
}

// Runs the rules on `sortie`, whose positions differ by `decalage` from those of the source.
void Execute(Structure const & structure, UniChaine & sortie, qint64 decalage)
{
    std::vector<qint64> decalages(structure.elements.size()); // in front of each element
    for (Evenement const & evenement : structure.evenements) {
        if (evenement.ouvre) {
            decalages[evenement.element] = decalage;
            continue;
        }
        Element const & element = structure.elements[evenement.element];
        Balise ouverture = Decale(element.ouverture, decalages[evenement.element], sortie);
        Balise fermeture = Decale(element.fermeture, decalage, sortie);
        qint64 const debut = ouverture.first;
        qint64 longueur = (*element.regle)(&sortie, ouverture, fermeture);
        auto const * const remplacement = PreteRemplacement(element);
        if (remplacement && element.fermeture.second == 0)
            longueur -= remplacement->fermant.Longueur(); // which was counted and is not there
        decalage = debut + longueur - element.fermeture.first - element.fermeture.second;
    }
}

// Runs the rule for the whole text; by how much it moved the tags.
qint64 ExecuteSurLeTexte(RegleTexteRiche const & regle, UniChaine & sortie)
{
    QString const source = sortie;
    Balise ouverture(0, 0);
    Balise fermeture(sortie.Longueur(), 0);
    regle(&sortie, ouverture, fermeture);
    // A rule that wraps the text moves its tags by what it put in front. Its result does not tell
    // that from what it put behind.
    return std::max<qsizetype>(QString(sortie).indexOf(source), 0);
}

} // namespace

RegleTexteRiche InterpreteurChaineSemantiqueT<UniChaine>::CreeFonctionRemplacerBalisesAvecTexte(
    UniChaine const & ouvrant, UniChaine const & fermant)
{
    return RemplacementDeBalises{ouvrant, fermant};
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
        return !nom.startsWith(kFermeture) && PreteRegle(regles, nom);
    });
}

UniChaine InterpreteurChaineSemantiqueT<UniChaine>::AppliqueRegles(UniChaine const & texte,
                                                                   EnsembleRegles const & regles)
{
    QString const source = texte;
    Structure const structure = Lecteur(source, regles).Lis();
    UniChaine sortie = texte;
    if (auto const * const regleDuTexte = PreteRegle(regles, {}))
        Execute(structure, sortie, ExecuteSurLeTexte(*regleDuTexte, sortie));
    else if (NeFaitQueRemplacer(structure))
        sortie = RemplaceEnsemble(source, structure);
    else
        Execute(structure, sortie, 0);
    sortie.DecodeCaracteresReservesHTML();
    return sortie;
}
