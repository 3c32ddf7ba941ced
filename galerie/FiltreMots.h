// galerie/FiltreMots.h
#pragma once

#include "TableMots.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// Finds the words of a table that meet a set of criteria, fast enough for each keystroke.
///
/// Criteria that only add to those asked last look at the last result alone.
class FiltreMots
{
public:
    /// Classes of lengths, in letters. 0 is no criterion, as in the other two.
    enum eLongueur
    {
        kToutesLongueurs = 0,
        kUnACinq,
        kSixAHuit,
        kNeufAOnze,
        kDouzeEtPlus
    };
    enum eAccent
    {
        kAvecOuSans = 0,
        kSans,
        kAvec,
        kAigu,
        kGrave,
        kCirconflexe,
        kTrema,
        kCedille
    };
    enum eMode
    {
        kCommencePar = 0,
        kContient,
        kFinitPar
    };
    enum eTri
    {
        kOrdreDeLaListe = 0,
        kCourtsDAbord,
        kLongsDAbord
    };

    /// Neither case nor accents of `texte` count; without a letter it is no criterion.
    struct Texte
    {
        eMode mode = kCommencePar;
        QString texte;

        bool operator==(Texte const & autre) const = default;
    };

    struct Criteres
    {
        int longueur = kToutesLongueurs; ///< of `eLongueur`; of no class: no criterion
        int initiale = 0;                ///< 1 for A to 26 for Z; 0 for any
        int accent = kAvecOuSans;        ///< of `eAccent`
        std::vector<Texte> textes;       ///< all of them hold

        bool operator==(Criteres const & autre) const = default;
    };

    /// `table` is not null.
    explicit FiltreMots(std::shared_ptr<TableMots const> table);

    /// The indexes of the words, in the order of the table; valid until the next call.
    std::vector<int> const & Filtre(Criteres const & criteres) &;

    /// `indices` in another order; words of the same rank keep theirs.
    std::vector<int> Trie(std::vector<int> const & indices, eTri tri) const;
    /// The place in `indices` of the first word that begins as `debut`; -1 without one, or without
    /// a letter.
    int ChercheDebut(std::vector<int> const & indices, QString const & debut) const;

private:
    struct Cle
    {
        eMode mode;
        std::string cle;
    };
    struct Demande
    {
        int longueur;
        int initiale;
        int accent;
        std::vector<Cle> cles;
    };
    class Epreuve;

    static Demande Prepare(Criteres const & criteres);
    static bool Restreint(Demande const & nouvelle, Demande const & ancienne);
    static bool Entraine(Cle const & cle, Cle const & autre);

    std::shared_ptr<TableMots const> maTable;
    std::optional<Demande> maDemande; // that the result answers
    std::vector<int> monResultat;
};
