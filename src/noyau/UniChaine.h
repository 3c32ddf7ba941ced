// noyau/UniChaine.h
#pragma once

#include "noyau/Objet.h"

#include "FabrelNoyauExport.h"

#include <QByteArrayView>
#include <QString>

#include <atomic>
#include <compare>
#include <concepts>
#include <functional>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <variant>

class ContexteLocalisation;
class DLocale;
class LocalisateurContextuel;

/// The string value of the family: 16-bit units, value semantics, text kept in a shared `QString`.
///
/// Indexes and lengths count 16-bit units, also where `wchar_t` has 32 bits: wide text is converted
/// at the border, a character above U+FFFF being two units. Lone surrogates survive every
/// conversion but UTF-8, where they become U+FFFD. Positions and lengths out of range are cut to
/// the text; no operation fails. Converts to and from `QString` implicitly and without loss. In a
/// `QVariant` it keeps its own type: a view shows only what is put there as a `QString`.
class FABRELNOYAU_EXPORT UniChaine : public sdd::Objet
{
public:
    /// The encoding of 8-bit text. Malformed text decodes to U+FFFD where it is malformed.
    enum Codage
    {
        kUTF8 = 3
    };

    /// What a search overlooks.
    enum Malgray
    {
        kExact = 0,
        kMalgrayCasse = 1 ///< upper and lower case
    };

    /// Selects the constructor for wide text of static storage.
    struct TagStatique
    {
    };

    /// A match: its first unit, and the unit behind its last one.
    struct Plage
    {
        unsigned debut = 0;
        unsigned fin = 0;
    };

    UniChaine() noexcept = default;
    UniChaine(UniChaine const & autre) noexcept
        : sdd::Objet(autre)
        , monTexte(autre.monTexte)
    {
    }
    UniChaine(UniChaine && autre) noexcept
        : monTexte(std::move(autre.monTexte))
    {
        autre.OublieTampons();
    }
    UniChaine(QString const & texte) noexcept
        : monTexte(texte)
    {
    }
    UniChaine(QString && texte) noexcept
        : monTexte(std::move(texte))
    {
    }
    /// Decodes `longueur` bytes, or up to the NUL for -1. A null pointer gives the empty string.
    UniChaine(char const * texte, Codage = kUTF8, int longueur = -1)
        : monTexte(DepuisUtf8(QByteArrayView(texte, LongueurOctets(texte, longueur))))
    {
    }
    UniChaine(std::string const & texte, Codage = kUTF8)
        : monTexte(DepuisUtf8(texte))
    {
    }
    /// Copies UTF-16 text up to the NUL.
    UniChaine(char16_t const * texte)
        : monTexte(QString::fromUtf16(texte))
    {
    }
    /// Copies `longueur` wide characters, or up to the NUL for -1.
    UniChaine(wchar_t const * texte, int longueur = -1);
    /// The same text kept by its address, without a copy, where `wchar_t` has 16 bits.
    UniChaine(wchar_t const * texte, int longueur, TagStatique);
    ~UniChaine() override { OublieTampons(); }

    UniChaine & operator=(UniChaine const & autre) noexcept { return *this = autre.monTexte; }
    UniChaine & operator=(UniChaine && autre) noexcept
    {
        Modifie([&autre](QString & cible) { cible = std::move(autre.monTexte); });
        if (this != &autre)
            autre.OublieTampons();
        return *this;
    }
    UniChaine & operator=(QString const & texte) noexcept
    {
        return Modifie([&texte](QString & cible) { cible = texte; });
    }
    UniChaine & operator=(char const * texte) { return *this = UniChaine(texte); }
    UniChaine & operator=(LocalisateurContextuel const & message);

    operator QString() const noexcept { return monTexte; }

    unsigned Longueur() const noexcept { return static_cast<unsigned>(monTexte.size()); }
    bool EstVide() const noexcept { return monTexte.isEmpty(); }
    UniChaine & Vide()
    {
        return Modifie([](QString & texte) { texte.clear(); });
    }
    /// The unit at the 0-based `index`; 0 out of range.
    wchar_t operator[](unsigned index) const noexcept
    {
        return index < Longueur() ? static_cast<wchar_t>(monTexte.at(index).unicode()) : L'\0';
    }

    bool Egal(UniChaine const & autre) const noexcept { return monTexte == autre.monTexte; }
    friend bool operator==(UniChaine const & a, UniChaine const & b) noexcept { return a.Egal(b); }
    friend bool operator==(UniChaine const & a, QString const & b) noexcept
    {
        return a.monTexte == b;
    }
    friend bool operator==(UniChaine const & a, char const * b)
    {
        return a.monTexte == DepuisUtf8(b);
    }
    /// The order of 16-bit units, the same in every language.
    friend bool operator<(UniChaine const & a, UniChaine const & b) noexcept
    {
        return a.monTexte < b.monTexte;
    }
    friend bool operator<(UniChaine const & a, QString const & b) noexcept
    {
        return a.monTexte < b;
    }
    friend bool operator<(QString const & a, UniChaine const & b) noexcept
    {
        return a < b.monTexte;
    }
    friend std::strong_ordering operator<=>(UniChaine const & a, UniChaine const & b) noexcept
    {
        return a.monTexte.compare(b.monTexte) <=> 0;
    }
    friend std::strong_ordering operator<=>(UniChaine const & a, QString const & b) noexcept
    {
        return a.monTexte.compare(b) <=> 0;
    }
    friend std::strong_ordering operator<=>(UniChaine const & a, char const * b)
    {
        return a.monTexte.compare(DepuisUtf8(b)) <=> 0;
    }

    bool CommencePar(UniChaine const & debut) const { return monTexte.startsWith(debut.monTexte); }
    bool TerminePar(UniChaine const & fin) const { return monTexte.endsWith(fin.monTexte); }

    /// Searches forward from the unit `debut`; `position`, if not null, receives the match.
    /// An empty text matches at every position of the string, the end included.
    bool Contient(UniChaine const & cherchay, unsigned * position, unsigned debut,
                  Malgray malgray) const;
    bool Contient(UniChaine const & cherchay, Plage * plage = nullptr, unsigned debut = 0) const;
    template <std::same_as<unsigned> Unsigned>
    bool Contient(UniChaine const & cherchay, Unsigned * position, unsigned debut = 0) const
    {
        return Contient(cherchay, position, debut, kExact);
    }
    /// The last match that ends at or before the unit `limite`, -1 standing for the end of the
    /// text.
    bool TrouveDernier(UniChaine const & cherchay, int * position = nullptr, int limite = -1) const;
    unsigned LongueurPrefixeCommun(UniChaine const & autre) const;
    /// `longueur` units from `debut`, or all up to the end for -1.
    UniChaine SousChaine(int debut, int longueur = -1) const
    {
        return UniChaine(monTexte.mid(debut, longueur));
    }

    UniChaine & AjouteFin(UniChaine const & fin)
    {
        return Modifie([&fin](QString & texte) { texte.append(fin.monTexte); });
    }
    UniChaine & AjouteFin(wchar_t caractere);
    UniChaine & operator+=(UniChaine const & fin) { return AjouteFin(fin); }
    UniChaine & operator+=(wchar_t caractere) { return AjouteFin(caractere); }
    friend UniChaine operator+(UniChaine debut, UniChaine const & fin)
    {
        debut.AjouteFin(fin);
        return debut;
    }
    friend UniChaine operator+(UniChaine debut, QString const & fin)
    {
        debut.AjouteFin(fin);
        return debut;
    }
    friend UniChaine operator+(UniChaine debut, char const * fin)
    {
        debut.AjouteFin(UniChaine(fin));
        return debut;
    }
    friend UniChaine operator+(char const * debut, UniChaine const & fin)
    {
        return UniChaine(debut) + fin;
    }
    friend UniChaine operator+(QString const & debut, UniChaine const & fin)
    {
        return UniChaine(debut + fin.monTexte);
    }
    UniChaine & AjouteDebut(UniChaine const & debut);
    UniChaine & EnleveFin(unsigned nombre);

    /// Replaces every occurrence, from the left, without searching what was put in. An empty
    /// `cherchay` replaces nothing.
    UniChaine & Remplace(UniChaine const & cherchay, UniChaine const & remplacement);
    UniChaine Remplace(UniChaine const & cherchay, UniChaine const & remplacement) const;
    UniChaine & Remplace(int debut, int longueur, UniChaine const & remplacement);
    UniChaine & Remplace(wchar_t cherchay, wchar_t remplacement);

    UniChaine & NettoieBlancs();
    /// Collapses every run of white space into one blank; one blank stays at either end.
    UniChaine & ConsolideBlancs();
    UniChaine & Majusculise();
    /// Removes tags, comments, and what `style`, `script` and `head` elements hold. Entities stay
    /// as they are; a "<" that opens no tag is text.
    UniChaine & NettoieHTML();
    /// Turns the entities of < > & " ' (by name, decimal or hexadecimal) back into the characters,
    /// in one pass: "&amp;lt;" becomes "&lt;". Every other entity stays.
    UniChaine & DecodeCaracteresReservesHTML();
    /// The text with percent escapes decoded as UTF-8. Escapes of a character of `intacts`, and
    /// escapes that are malformed or no UTF-8, stay as they are.
    UniChaine DonneChaineDesechappeePourcent(UniChaine const & intacts) const;

    /// Replaces the string by `modele` with its conversions filled in order: %s any argument as
    /// text, %d %i %u %x %X %o integers, %c a character, %f %e %g numbers, %% a percent sign, with
    /// printf's flags, width and precision. Text arguments are `UniChaine`, `QString`, and UTF-8
    /// `char const *` or `std::string`. A conversion without an argument stays as it stands.
    template <typename... Arguments>
    UniChaine & Format(UniChaine const & modele, Arguments const &... arguments)
    {
        return FormateListe(modele, {ArgumentFormat(arguments)...});
    }

    /// UTF-8 text, NUL-terminated, valid until the string is changed or destroyed.
    char const * PreteUTF8() const;
    /// Wide text, NUL-terminated, valid until the string is changed or destroyed. With a `tampon`
    /// of `capacite` characters the text is copied there instead, cut to fit, and `tampon`
    /// returned. `longueur`, if not null, receives the count of wide characters; the last argument
    /// has no effect.
    wchar_t const * PreteUniCString(unsigned capacite = 0, wchar_t * const tampon = nullptr,
                                    unsigned * longueur = nullptr, bool = true) const;

    /// `valeur` in the given base (2 to 36), without separators, padded with zeros to
    /// `largeurMinimale` digits. Digits above 9 are capitals with `majuscules`; `signeForcay`
    /// writes a plus sign before what is not negative.
    static UniChaine DepuisNombre(int valeur, int base = 10, int largeurMinimale = 0,
                                  bool majuscules = true, bool signeForcay = false);

    /// `valeur` with the digit grouping of the locale.
    static UniChaine DonneNombreFormatay(DLocale locale, int valeur);
    /// The ratio `valeur` as a percentage: 0.125 with 1 decimal is "12,5 %" in French, with the
    /// locale's own space, and "12.5%" in English. `sansSymbole` leaves space and sign out.
    /// Infinities and NaN are written as the locale writes them.
    static UniChaine DonnePourcentageFormatay(ContexteLocalisation const & contexte, DLocale locale,
                                              double valeur, int decimales = 1,
                                              bool sansSymbole = false);

    /// A hash for hashed containers; equal strings have equal hashes within one process.
    virtual std::size_t hash() const;

private:
    struct Tampons;

    /// One argument of `Format`.
    struct FABRELNOYAU_EXPORT ArgumentFormat
    {
        template <std::integral Entier>
        explicit ArgumentFormat(Entier entier)
        {
            if constexpr (std::unsigned_integral<Entier>)
                valeur = static_cast<qulonglong>(entier);
            else
                valeur = static_cast<qlonglong>(entier);
            octets = std::max(sizeof(Entier), sizeof(int)); // promoted, as printf does
        }
        explicit ArgumentFormat(double nombre)
            : valeur(nombre)
        {
        }
        explicit ArgumentFormat(QString const & texte)
            : valeur(texte)
        {
        }
        explicit ArgumentFormat(UniChaine const & texte)
            : valeur(QString(texte))
        {
        }
        explicit ArgumentFormat(char const * texte)
            : valeur(QString(UniChaine(texte)))
        {
        }
        explicit ArgumentFormat(std::string const & texte)
            : valeur(QString(UniChaine(texte)))
        {
        }
        explicit ArgumentFormat(std::nullptr_t)
            : valeur(QString())
        {
        }
        explicit ArgumentFormat(wchar_t const * texte)
            : valeur(QString(UniChaine(texte)))
        {
        }

        std::variant<qlonglong, qulonglong, double, QString> valeur;
        int octets = sizeof(qlonglong); // the size of an integer before it was widened
    };

    UniChaine & FormateListe(UniChaine const & modele,
                             std::initializer_list<ArgumentFormat> arguments);
    // Keeps every unit, also the U+FEFF at the start that Qt takes for a mark of the encoding.
    static QString DepuisUtf8(QByteArrayView octets)
    {
        constexpr char kPremierOctet = '\xEF'; // of the mark, and of few other characters
        return octets.isEmpty() || octets.front() != kPremierOctet ? QString::fromUtf8(octets)
                                                                   : DepuisUtf8AvecMarque(octets);
    }
    static QString DepuisUtf8AvecMarque(QByteArrayView octets);
    static qsizetype LongueurOctets(char const * texte, int longueur)
    {
        if (!texte)
            return 0;
        return longueur >= 0 ? longueur
                             : static_cast<qsizetype>(std::char_traits<char>::length(texte));
    }

    // What was lent stays valid through an operation that changes nothing.
    template <typename Modification>
    UniChaine & Modifie(Modification modification)
    {
        if (!mesTampons.load(std::memory_order_relaxed)) [[likely]] {
            modification(monTexte);
            return *this;
        }
        QString texte = monTexte;
        modification(texte);
        if (texte != monTexte) {
            DetruisTampons();
            monTexte = std::move(texte);
        }
        return *this;
    }

    Tampons & PreteTampons() const;
    void OublieTampons() noexcept
    {
        if (mesTampons.load(std::memory_order_relaxed)) [[unlikely]]
            DetruisTampons();
    }
    void DetruisTampons() noexcept;

    QString monTexte;
    // The texts that the Prete functions lend, made at the first loan. Atomic, since two threads
    // may borrow from one constant string.
    mutable std::atomic<Tampons *> mesTampons = nullptr;
};

/// The empty string, for wherever an optional `UniChaine const &` is left out.
extern FABRELNOYAU_EXPORT UniChaine const kUniChaineNulle;

/// UTF-8 text of the whole string, embedded NULs included.
FABRELNOYAU_EXPORT std::string to_string(UniChaine const & chaine);

/// Writes UTF-8 text; what makes a `UniChaine` an argument of `boost::locale::format`.
FABRELNOYAU_EXPORT std::ostream & operator<<(std::ostream & flux, UniChaine const & chaine);

FABRELNOYAU_EXPORT size_t qHash(UniChaine const & chaine, size_t graine = 0) noexcept;

template <>
struct std::hash<UniChaine>
{
    std::size_t operator()(UniChaine const & chaine) const { return chaine.hash(); }
};
