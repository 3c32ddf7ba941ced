// noyau/Catalogue.cpp
#include "noyau/Catalogue_p.h"

#include "noyau/JournalAbs.h"

#include <boost/locale/gnu_gettext.hpp>

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

namespace {

using Messages = boost::locale::message_format<char>;

constexpr int kDomaineUnique = 0; // a facet of ours holds one domain

// Layout of a .mo file, from the gettext manual: seven words of header, then two tables of (length,
// offset) pairs, one for the keys and one for the texts, and a hash table.
constexpr quint32 kMagie = 0x950412de;
constexpr qsizetype kTailleEntete = 28;
constexpr qsizetype kTailleMot = 4;
constexpr qsizetype kTailleEntree = 2 * kTailleMot;

// Bytes. The longest rule of a known language, Cornish, has 488; each level of parentheses costs
// the library that reads them about a kilobyte of stack.
constexpr qsizetype kTailleRegleMax = 600;

// Reads words of the image; any read outside of it makes the whole unsound.
class Lecteur
{
public:
    explicit Lecteur(QByteArray const & image)
        : monImage(image)
    {
        auto const magie = qFromLittleEndian<quint32>(image.constData());
        monOrdreInverse = magie == qbswap(kMagie);
        monImageEstSaine = monOrdreInverse || magie == kMagie;
    }

    bool EstSain() const { return monImageEstSaine; }

    quint32 Mot(quint64 position)
    {
        if (!Couvre(position, kTailleMot))
            return 0;
        auto const mot = qFromLittleEndian<quint32>(monImage.constData() + position);
        return monOrdreInverse ? qbswap(mot) : mot;
    }

    // A text and the NUL behind it.
    void VerifieTexte(quint64 entree)
    {
        quint32 const longueur = Mot(entree);
        quint64 const position = Mot(entree + kTailleMot);
        if (Couvre(position, quint64(longueur) + 1))
            monImageEstSaine = monImage.at(static_cast<qsizetype>(position + longueur)) == '\0';
    }

    // Of an entry that was verified.
    QByteArrayView Texte(quint64 entree)
    {
        return QByteArrayView(monImage).sliced(Mot(entree + kTailleMot), Mot(entree));
    }

    bool Couvre(quint64 position, quint64 longueur)
    {
        monImageEstSaine =
            monImageEstSaine && position <= Taille() && longueur <= Taille() - position;
        return monImageEstSaine;
    }

private:
    quint64 Taille() const { return static_cast<quint64>(monImage.size()); }

    QByteArray const & monImage;
    bool monOrdreInverse = false;
    bool monImageEstSaine = false;
};

// The expression that chooses the form, in the header's line "Plural-Forms: nplurals=2;
// plural=n>1;".
QByteArrayView LisRegle(QByteArrayView entete)
{
    constexpr QByteArrayView kCle = "plural=";
    qsizetype const cle = entete.indexOf(kCle);
    if (cle < 0)
        return {};
    QByteArrayView const regle = entete.sliced(cle + kCle.size());
    auto const fin =
        std::find_first_of(regle.begin(), regle.end(), std::begin(";\r\n"), std::end(";\r\n"));
    return regle.first(fin - regle.begin());
}

// False for a rule whose evaluation could stop the process: one so deep that reading it overflows
// the stack, or one that may divide the smallest integer by -1. No language's rule divides, and
// those that take a remainder take it by a number written out.
bool RegleEstSure(QByteArrayView regle)
{
    if (regle.size() > kTailleRegleMax || regle.contains('/'))
        return false;
    for (qsizetype i = regle.indexOf('%'); i >= 0; i = regle.indexOf('%', i + 1)) {
        QByteArrayView const diviseur = regle.sliced(i + 1).trimmed();
        auto const fin = std::find_if(diviseur.begin(), diviseur.end(),
                                      [](char c) { return c < '0' || c > '9'; });
        constexpr auto kChiffresMax = 9; // what an int holds
        if (fin == diviseur.begin() || fin - diviseur.begin() > kChiffresMax ||
            diviseur.front() == '0')
            return false;
    }
    return true;
}

// The record's views need no terminator; the facet wants one. Short texts stay off the heap.
class TexteTerminay
{
public:
    explicit TexteTerminay(VueTexte vue)
    {
        if (vue.longueur < monTampon.size()) {
            std::copy_n(vue.texte, vue.longueur, monTampon.data());
            monTampon[vue.longueur] = '\0';
        } else {
            monLongTexte.assign(vue.texte, vue.longueur);
        }
    }

    char const * Prete() const
    {
        return monLongTexte.empty() ? monTampon.data() : monLongTexte.c_str();
    }
    // Null when there is no text: the facet's sign for "no context".
    char const * PreteOuNul() const { return *Prete() ? Prete() : nullptr; }

private:
    std::array<char, 512> monTampon;
    std::string monLongTexte;
};

// An entry whose text is empty waits for its translator.
std::optional<std::string_view> Resultat(char const * texte)
{
    return texte && *texte ? std::optional<std::string_view>(texte) : std::nullopt;
}

bool ContientNul(VueTexte vue)
{
    return std::string_view(vue.texte, vue.longueur).find('\0') != std::string_view::npos;
}

// False for what no entry has: the empty key is the catalogue's header, and a NUL would end the key
// early, at another message.
bool PeutEtreCle(VueTexte identifiant, VueTexte contexte)
{
    return identifiant.longueur > 0 && !ContientNul(identifiant) && !ContientNul(contexte);
}

// The facet counts in int. Plural rules look at a number's size when it is small and at its last
// digits, so a larger one keeps its last six and stays large.
int NombrePourRegle(quint64 nombre)
{
    constexpr quint64 kDerniersChiffres = 1'000'000;
    constexpr auto kMax = static_cast<quint64>(std::numeric_limits<int>::max());
    return static_cast<int>(nombre <= kMax ? nombre
                                           : kDerniersChiffres + nombre % kDerniersChiffres);
}

QByteArray LisImage(QString const & fichier)
{
    QFile lecture(fichier);
    return lecture.open(QIODevice::ReadOnly) ? lecture.readAll() : QByteArray();
}

} // namespace

bool ImageDeCatalogueEstSaine(QByteArray const & image)
{
    if (image.size() < kTailleEntete)
        return false;
    Lecteur lecteur(image);
    quint32 const revision = lecteur.Mot(4);
    quint64 const entrees = lecteur.Mot(8);
    quint64 const cles = lecteur.Mot(12);
    quint64 const textes = lecteur.Mot(16);
    quint64 const tailleHachage = lecteur.Mot(20);
    quint64 const hachage = lecteur.Mot(24);
    // Without an entry there is no header, hence no encoding.
    if (revision >> 16 != 0 || entrees == 0 || !lecteur.Couvre(cles, entrees * kTailleEntree) ||
        !lecteur.Couvre(textes, entrees * kTailleEntree) ||
        !lecteur.Couvre(hachage, tailleHachage * kTailleMot))
        return false;
    for (quint64 i = 0; i < entrees && lecteur.EstSain(); ++i) {
        lecteur.VerifieTexte(cles + i * kTailleEntree);
        lecteur.VerifieTexte(textes + i * kTailleEntree);
    }
    // A look-up walks the hash table until it meets a free place: there must be one.
    bool placeLibre = tailleHachage == 0;
    for (quint64 i = 0; i < tailleHachage && lecteur.EstSain(); ++i) {
        quint32 const place = lecteur.Mot(hachage + i * kTailleMot);
        placeLibre = placeLibre || place == 0;
        if (place > entrees)
            return false;
    }
    return lecteur.EstSain() && placeLibre && tailleHachage != 1 && tailleHachage != 2 &&
           RegleEstSure(LisRegle(lecteur.Texte(textes)));
}

Catalogue::Catalogue(QString const & fichier)
{
    QByteArray const image = LisImage(fichier);
    if (!ImageDeCatalogueEstSaine(image)) {
        JournaliseSiActif(UniChaine("Catalogue absent ou illisible : ") + fichier);
        return;
    }
    boost::locale::gnu_gettext::messages_info infos;
    infos.encoding = "UTF-8";
    infos.domains.emplace_back("catalogue");
    infos.paths.emplace_back(); // the callback has the only file there is, whatever its name
    infos.callback = [&image](std::string const &, std::string const &) {
        return std::vector<char>(image.begin(), image.end());
    };
    try {
        maLocale = std::locale(std::locale::classic(),
                               boost::locale::gnu_gettext::create_messages_facet<char>(infos));
    } catch (std::exception const & erreur) {
        JournaliseSiActif(UniChaine("Catalogue refusé : ") + fichier + UniChaine(" (") +
                          UniChaine(erreur.what()) + UniChaine(")"));
    }
}

std::optional<std::string_view> Catalogue::Cherche(VueTexte identifiant, VueTexte contexte) const
{
    if (!maLocale || !PeutEtreCle(identifiant, contexte))
        return std::nullopt;
    auto const & messages = std::use_facet<Messages>(*maLocale);
    return Resultat(messages.get(kDomaineUnique, TexteTerminay(contexte).PreteOuNul(),
                                 TexteTerminay(identifiant).Prete()));
}

std::optional<std::string_view> Catalogue::Cherche(ChaineLocalisablePluriel const & message,
                                                   quint64 nombre) const
{
    if (!maLocale || !PeutEtreCle(message.singulier, message.contexte))
        return std::nullopt;
    auto const & messages = std::use_facet<Messages>(*maLocale);
    return Resultat(messages.get(kDomaineUnique, TexteTerminay(message.contexte).PreteOuNul(),
                                 TexteTerminay(message.singulier).Prete(),
                                 NombrePourRegle(nombre)));
}
