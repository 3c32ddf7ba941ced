// galerie/ImportMots.h
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class MotsFrancais;

/// What the import of a list of words does, step after step, without any widget. Each function
/// takes what the one before it gave, in a time that grows with its length alone.
namespace ImportMots {

enum eCodage
{
    kUtf8,
    kLatin1
};

enum eSeparateur
{
    kLigne, ///< a word in each line
    kVirgule,
    kPointVirgule,
    kTabulation
};

enum eCasse
{
    kCasseGardee,
    kMinuscules,
    kMajuscules
};

/// Why a word is left out.
enum eMotif
{
    kDoublon,
    kCourt,
    kLong, ///< no word, but a text in which the separator does not occur
    kChiffre,
    kFinMotifs
};

constexpr int kToutesLesColonnes = 0;
constexpr int kLongueurMax = 100;    ///< characters of a word
constexpr int kEcartesMontres = 200; ///< words that are left out and named

struct Format
{
    eCodage codage = kUtf8;
    eSeparateur separateur = kLigne;
    int colonne = kToutesLesColonnes; ///< from 1
    bool avecEnTete = false;          ///< the first line holds no words

    /// Whether the cells of a column, from 1, are words. Whole lines have no columns to choose.
    bool PrendsColonne(int autre) const
    {
        return separateur == kLigne || colonne == kToutesLesColonnes || colonne == autre;
    }
};

struct Tri
{
    eCasse casse = kCasseGardee;
    bool sansDoublons = true; ///< that differ in nothing once the case is as wanted
    bool sansChiffres = true;
    int longueurMin = 2; ///< characters
};

struct MotEcarte
{
    QString mot;
    eMotif motif;
};

struct ResultatTri
{
    QStringList gardes;                    ///< in their order
    QList<MotEcarte> ecartes;              ///< the first of them
    std::array<int, kFinMotifs> nombres{}; ///< of all of them, by `eMotif`
};

struct Verification
{
    bool faite = false; ///< there are words to check against
    QStringList connus;
    QStringList inconnus;
};

/// UTF-8 for what may be UTF-8, else Latin-1.
eCodage DevineCodage(QByteArray const & octets);
/// Without a byte order mark, every line ended by a line feed alone, every letter one with its
/// accent; none for bytes that are no text in `codage`.
std::optional<QString> Decode(QByteArray const & octets, eCodage codage);
/// What stands between the cells of most of the first lines.
eSeparateur DevineSeparateur(QString const & texte);
/// The encoding of the bytes, and what the text then looks like.
Format DevineFormat(QByteArray const & octets);

/// The cells of the first `combien` lines that are not blank. A cell in quotation marks may hold
/// the separator; two marks in it stand for one.
QList<QStringList> DonneRangees(QString const & texte, eSeparateur separateur, int combien);
/// The cells of the column, or of all, that are not blank.
QStringList DonneMots(QString const & texte, Format const & format);

ResultatTri Trie(QStringList const & mots, Tri const & tri);

/// Parts the words into those of the list and the others, whatever the case. Reads the list if
/// that was not done yet.
Verification Verifie(QStringList const & mots, MotsFrancais & liste);

} // namespace ImportMots
