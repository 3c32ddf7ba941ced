// noyau/UniChaine.cpp
#include "noyau/UniChaine.h"

#include <QByteArray>
#include <QHashFunctions>

#include <algorithm>
#include <ostream>

namespace {

constexpr bool kUnitesLarges = sizeof(wchar_t) == sizeof(char16_t);
constexpr char32_t kDernierCaractere = 0x10FFFF;

qsizetype LongueurLarge(wchar_t const * texte, int longueur)
{
    if (!texte)
        return 0;
    return longueur >= 0 ? longueur
                         : static_cast<qsizetype>(std::char_traits<wchar_t>::length(texte));
}

// Qt's own conversion turns lone surrogates into U+FFFD; here they are kept both ways.
QString DepuisLarge(wchar_t const * texte, qsizetype longueur)
{
    if constexpr (kUnitesLarges)
        return QString(reinterpret_cast<QChar const *>(texte), longueur);

    QString resultat;
    resultat.reserve(longueur);
    for (wchar_t const * fin = texte + longueur; texte != fin; ++texte) {
        auto const caractere = static_cast<char32_t>(*texte);
        if (caractere <= 0xFFFF)
            resultat.append(QChar(static_cast<char16_t>(caractere)));
        else if (caractere <= kDernierCaractere)
            resultat.append(QChar::fromUcs4(caractere));
        else
            resultat.append(QChar(QChar::ReplacementCharacter));
    }
    return resultat;
}

std::wstring VersLarge(QString const & texte)
{
    std::wstring resultat;
    resultat.reserve(static_cast<std::size_t>(texte.size()));
    for (qsizetype i = 0; i < texte.size(); ++i) {
        QChar const unite = texte.at(i);
        if (!kUnitesLarges && unite.isHighSurrogate() && i + 1 < texte.size() &&
            texte.at(i + 1).isLowSurrogate()) {
            ++i;
            resultat.push_back(static_cast<wchar_t>(QChar::surrogateToUcs4(unite, texte.at(i))));
        } else {
            resultat.push_back(static_cast<wchar_t>(unite.unicode()));
        }
    }
    return resultat;
}

// Qt writes a question mark for a lone surrogate.
QByteArray VersUtf8(QString const & texte)
{
    if (texte.isValidUtf16())
        return texte.toUtf8();
    QString valide = texte;
    for (qsizetype i = 0; i < valide.size(); ++i) {
        if (valide.at(i).isHighSurrogate() && i + 1 < valide.size() &&
            valide.at(i + 1).isLowSurrogate())
            ++i;
        else if (valide.at(i).isSurrogate())
            valide[i] = QChar::ReplacementCharacter;
    }
    return valide.toUtf8();
}

} // namespace

UniChaine const kUniChaineNulle;

struct UniChaine::Tampons
{
    std::atomic<QByteArray const *> utf8 = nullptr;
    std::atomic<std::wstring const *> large = nullptr;

    ~Tampons()
    {
        delete utf8.load();
        delete large.load();
    }

    // Keeps the value of whichever thread comes first.
    template <typename T, typename Calcul>
    static T const & Donne(std::atomic<T const *> & place, Calcul calcul)
    {
        if (T const * existant = place.load(std::memory_order_acquire))
            return *existant;
        auto const * nouveau = new T(calcul());
        T const * attendu = nullptr;
        if (place.compare_exchange_strong(attendu, nouveau, std::memory_order_acq_rel))
            return *nouveau;
        delete nouveau;
        return *attendu;
    }
};

UniChaine::UniChaine(wchar_t const * texte, int longueur)
    : monTexte(DepuisLarge(texte, LongueurLarge(texte, longueur)))
{
}

UniChaine::UniChaine(wchar_t const * texte, int longueur, TagStatique)
{
    qsizetype const taille = LongueurLarge(texte, longueur);
    if constexpr (kUnitesLarges)
        monTexte = QString::fromRawData(reinterpret_cast<QChar const *>(texte), taille);
    else
        monTexte = DepuisLarge(texte, taille);
}

bool UniChaine::Contient(UniChaine const & cherchay, unsigned * position, unsigned debut,
                         Malgray malgray) const
{
    Qt::CaseSensitivity const casse =
        malgray == kMalgrayCasse ? Qt::CaseInsensitive : Qt::CaseSensitive;
    qsizetype const trouvay = monTexte.indexOf(cherchay.monTexte, debut, casse);
    if (trouvay < 0)
        return false;
    if (position)
        *position = static_cast<unsigned>(trouvay);
    return true;
}

bool UniChaine::Contient(UniChaine const & cherchay, Plage * plage, unsigned debut) const
{
    unsigned position = 0;
    if (!Contient(cherchay, &position, debut, kExact))
        return false;
    if (plage)
        *plage = {position, position + cherchay.Longueur()};
    return true;
}

bool UniChaine::TrouveDernier(UniChaine const & cherchay, int * position, int limite) const
{
    QStringView cherchable(monTexte);
    if (limite >= 0)
        cherchable.truncate(std::min<qsizetype>(limite, cherchable.size()));
    // From the last place where it fits, so that an empty text is found at the end as well; Qt
    // reads a single unit from behind the view when it is told to begin at the view's size.
    qsizetype const depart = cherchable.size() - cherchay.monTexte.size();
    qsizetype const trouvay = depart < 0 ? -1 : cherchable.lastIndexOf(cherchay.monTexte, depart);
    if (trouvay < 0)
        return false;
    if (position)
        *position = static_cast<int>(trouvay);
    return true;
}

unsigned UniChaine::LongueurPrefixeCommun(UniChaine const & autre) const
{
    auto const [fin, ignoray] = std::mismatch(monTexte.cbegin(), monTexte.cend(),
                                              autre.monTexte.cbegin(), autre.monTexte.cend());
    return static_cast<unsigned>(fin - monTexte.cbegin());
}

UniChaine & UniChaine::AjouteFin(wchar_t caractere)
{
    return AjouteFin(UniChaine(&caractere, 1));
}

UniChaine & UniChaine::AjouteDebut(UniChaine const & debut)
{
    return Modifie([&debut](QString & texte) { texte.prepend(debut.monTexte); });
}

UniChaine & UniChaine::EnleveFin(unsigned nombre)
{
    return Modifie([nombre](QString & texte) { texte.chop(nombre); });
}

UniChaine & UniChaine::Remplace(UniChaine const & cherchay, UniChaine const & remplacement)
{
    if (cherchay.EstVide()) // Qt would insert between all units
        return *this;
    return Modifie(
        [&](QString & texte) { texte.replace(cherchay.monTexte, remplacement.monTexte); });
}

UniChaine UniChaine::Remplace(UniChaine const & cherchay, UniChaine const & remplacement) const
{
    UniChaine copie(*this);
    copie.Remplace(cherchay, remplacement);
    return copie;
}

UniChaine & UniChaine::Remplace(int debut, int longueur, UniChaine const & remplacement)
{
    qsizetype const taille = monTexte.size();
    qsizetype const position = std::clamp<qsizetype>(debut, 0, taille);
    qsizetype const fin =
        longueur < 0 ? taille
                     : std::clamp<qsizetype>(qsizetype(debut) + longueur, position, taille);
    return Modifie(
        [&](QString & texte) { texte.replace(position, fin - position, remplacement.monTexte); });
}

UniChaine & UniChaine::Remplace(wchar_t cherchay, wchar_t remplacement)
{
    // Where it has 32 bits, a character above U+FFFF is no unit: as such it is nowhere to be found.
    constexpr char32_t kDerniereUnite = 0xFFFF;
    if (static_cast<char32_t>(cherchay) > kDerniereUnite)
        return *this;
    if (static_cast<char32_t>(remplacement) > kDerniereUnite)
        return Remplace(UniChaine(&cherchay, 1), UniChaine(&remplacement, 1));
    return Modifie([&](QString & texte) {
        texte.replace(QChar(static_cast<char16_t>(cherchay)),
                      QChar(static_cast<char16_t>(remplacement)));
    });
}

UniChaine & UniChaine::NettoieBlancs()
{
    return Modifie([](QString & texte) { texte = std::move(texte).trimmed(); });
}

UniChaine & UniChaine::ConsolideBlancs()
{
    QString resultat;
    resultat.reserve(monTexte.size());
    bool blancPrecedent = false;
    for (QChar const unite : std::as_const(monTexte)) {
        bool const blanc = unite.isSpace();
        if (!blanc)
            resultat.append(unite);
        else if (!blancPrecedent)
            resultat.append(u' ');
        blancPrecedent = blanc;
    }
    return *this = resultat;
}

UniChaine & UniChaine::Majusculise()
{
    return Modifie([](QString & texte) { texte = std::move(texte).toUpper(); });
}

char const * UniChaine::PreteUTF8() const
{
    return Tampons::Donne(PreteTampons().utf8, [this] { return VersUtf8(monTexte); }).constData();
}

wchar_t const * UniChaine::PreteUniCString(unsigned capacite, wchar_t * const tampon,
                                           unsigned * longueur, bool) const
{
    wchar_t const * texte = nullptr;
    std::size_t taille = 0;
    if constexpr (kUnitesLarges) {
        texte = reinterpret_cast<wchar_t const *>(monTexte.utf16());
        taille = static_cast<std::size_t>(monTexte.size());
    } else {
        std::wstring const & large =
            Tampons::Donne(PreteTampons().large, [this] { return VersLarge(monTexte); });
        texte = large.c_str();
        taille = large.size();
    }
    bool const copie = tampon && capacite > 0;
    if (copie) {
        taille = std::min<std::size_t>(taille, capacite - 1);
        std::copy_n(texte, taille, tampon);
        tampon[taille] = L'\0';
    }
    if (longueur)
        *longueur = static_cast<unsigned>(taille);
    return copie ? tampon : texte;
}

std::size_t UniChaine::hash() const
{
    return qHash(*this);
}

QString UniChaine::DepuisUtf8AvecMarque(QByteArrayView octets)
{
    constexpr QByteArrayView kMarque("\xEF\xBB\xBF");
    QString texte;
    while (octets.startsWith(kMarque)) {
        texte.append(QChar(QChar::ByteOrderMark));
        octets = octets.sliced(kMarque.size());
    }
    return texte + QString::fromUtf8(octets);
}

UniChaine::Tampons & UniChaine::PreteTampons() const
{
    if (Tampons * existants = mesTampons.load(std::memory_order_acquire))
        return *existants;
    auto * nouveaux = new Tampons;
    Tampons * attendus = nullptr;
    if (mesTampons.compare_exchange_strong(attendus, nouveaux, std::memory_order_acq_rel))
        return *nouveaux;
    delete nouveaux;
    return *attendus;
}

void UniChaine::DetruisTampons() noexcept
{
    delete mesTampons.exchange(nullptr);
}

std::string to_string(UniChaine const & chaine)
{
    return VersUtf8(chaine).toStdString();
}

std::ostream & operator<<(std::ostream & flux, UniChaine const & chaine)
{
    return flux << to_string(chaine);
}

size_t qHash(UniChaine const & chaine, size_t graine) noexcept
{
    return qHash(QString(chaine), graine);
}
