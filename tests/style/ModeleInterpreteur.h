// tests/style/ModeleInterpreteur.h
#pragma once

#include "style/InterpreteurChaineSemantiqueT.h"

#include <QString>

#include <algorithm>
#include <stdexcept>
#include <vector>

/// The rewriting of a tagged text as slowly and plainly as can be: a walk that calls itself for
/// each nested element and takes what is done out of the list of tags. Measures the real one.
class ModeleInterpreteur
{
public:
    using Balise = std::pair<unsigned int, unsigned int>;

    struct Desequilibre : std::runtime_error
    {
        using std::runtime_error::runtime_error;
    };

    ModeleInterpreteur(QString const & texte, EnsembleRegles const & regles)
        : monTexte(texte)
        , mesRegles(regles)
        , maSortie(texte)
        , mesBalises(TrouveBalises(texte))
    {
    }

    static std::vector<Balise> TrouveBalises(QString const & texte)
    {
        std::vector<Balise> balises;
        qsizetype ouvrant = -1; // the last bracket that nothing has ended yet
        for (qsizetype i = 0; i < texte.size(); ++i) {
            if (texte.at(i) == u'<')
                ouvrant = i;
            if (texte.at(i) != u'>' || ouvrant < 0)
                continue;
            if (i > ouvrant + 1) // the empty tag is text
                balises.emplace_back(ouvrant, i + 1 - ouvrant);
            ouvrant = -1;
        }
        return balises;
    }

    static bool PossedeReglesAAppliquer(QString const & texte, EnsembleRegles const & regles)
    {
        auto const possede = [&](Balise const & balise) {
            QString const nom = Nom(texte, balise);
            return !nom.startsWith(u'/') && regles.contains(UniChaine(nom));
        };
        std::vector<Balise> const balises = TrouveBalises(texte);
        return std::any_of(balises.begin(), balises.end(), possede);
    }

    /// Throws `Desequilibre` for an unbalanced tag.
    QString Applique()
    {
        if (mesRegles.contains(UniChaine()))
            Lance({}, {0, 0}, {static_cast<unsigned>(maSortie.Longueur()), 0});
        Marche(0);
        return maSortie.DecodeCaracteresReservesHTML();
    }

private:
    static QString Nom(QString const & texte, Balise const & balise)
    {
        return texte.mid(balise.first + 1, balise.second - 2);
    }

    void Marche(std::size_t index)
    {
        while (index < mesBalises.size()) {
            QString const nom = Nom(monTexte, mesBalises[index]);
            if (nom.startsWith(u'/'))
                return;
            if (nom.endsWith(u'/')) {
                Balise const ouvrante = mesBalises[index];
                Lance(nom, Decale(ouvrante, monDecalage),
                      {Decale(ouvrante, monDecalage).first + ouvrante.second, 0});
                mesBalises.erase(Ieme(index));
            } else {
                Element(index, nom);
            }
        }
    }

    void Element(std::size_t index, QString const & nom)
    {
        int const decalage = monDecalage;
        while (index + 1 < mesBalises.size() &&
               !Nom(monTexte, mesBalises[index + 1]).startsWith(u'/'))
            Marche(index + 1);
        if (index + 1 >= mesBalises.size() ||
            !Ferme(Nom(monTexte, mesBalises[index + 1]).sliced(1), nom))
            throw Desequilibre("");
        Lance(nom, Decale(mesBalises[index], decalage), Decale(mesBalises[index + 1], monDecalage));
        mesBalises.erase(Ieme(index), Ieme(index + 2));
    }

    static bool Ferme(QString const & fermant, QString const & ouvrant)
    {
        if (fermant == ouvrant)
            return true;
        QString const blancs = QStringLiteral(" \t\n");
        return ouvrant.startsWith(fermant) && blancs.contains(ouvrant.at(fermant.size()));
    }

    void Lance(QString const & nom, Balise ouvrante, Balise fermante)
    {
        auto const regle = mesRegles.find(UniChaine(nom));
        if (regle == mesRegles.end())
            return;
        int const longueur = static_cast<int>(fermante.first + fermante.second - ouvrante.first);
        monDecalage += regle->second(&maSortie, ouvrante, fermante) - longueur;
    }

    static Balise Decale(Balise const & balise, int decalage)
    {
        return {static_cast<unsigned>(static_cast<int>(balise.first) + decalage), balise.second};
    }

    std::vector<Balise>::iterator Ieme(std::size_t index)
    {
        return mesBalises.begin() + static_cast<std::ptrdiff_t>(index);
    }

    QString monTexte;
    EnsembleRegles const & mesRegles;
    UniChaine maSortie;
    std::vector<Balise> mesBalises;
    int monDecalage = 0;
};
