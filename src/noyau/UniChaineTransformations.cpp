// noyau/UniChaineTransformations.cpp
//
// The operations of UniChaine that read a notation: markup, percent escapes, printf models.
#include "noyau/UniChaine.h"

#include <QByteArray>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace {

using namespace Qt::StringLiterals;

bool EstLettreAscii(QChar unite)
{
    return (unite >= u'a' && unite <= u'z') || (unite >= u'A' && unite <= u'Z');
}

// Where the tags of a text end, found in two passes however broken the text is.
class FinsDeBalises
{
public:
    explicit FinsDeBalises(QStringView texte)
        : monTexte(texte)
        , mesFins(static_cast<std::size_t>(texte.size()) + 1, kAbsente)
        , maDerniereFinDeCommentaire(texte.lastIndexOf(kFinDeCommentaire))
    {
        // Backwards, one value for each state of a scan: outside of quotes, and in either kind,
        // where a ">" ends nothing.
        qsizetype finDansGuillemets = kAbsente;
        qsizetype finDansApostrophes = kAbsente;
        for (qsizetype i = texte.size() - 1; i >= 0; --i) {
            qsizetype const suite = Fin(i + 1);
            qsizetype & fin = mesFins[static_cast<std::size_t>(i)];
            fin = suite;
            if (texte.at(i) == u'>')
                fin = i + 1;
            else if (texte.at(i) == u'"')
                fin = std::exchange(finDansGuillemets, suite);
            else if (texte.at(i) == u'\'')
                fin = std::exchange(finDansApostrophes, suite);
        }
    }

    // The position behind the tag that opens at `debut`, or -1 when "<" is text there.
    qsizetype Donne(qsizetype debut) const
    {
        QStringView const reste = monTexte.mid(debut);
        if (reste.startsWith(u"<!--")) {
            qsizetype const contenu = debut + 4;
            return contenu > maDerniereFinDeCommentaire
                       ? kAbsente
                       : monTexte.indexOf(kFinDeCommentaire, contenu) + kFinDeCommentaire.size();
        }
        if (reste.size() < 2)
            return kAbsente;
        QChar const suivant = reste.at(1);
        bool const ouvre =
            EstLettreAscii(suivant) || suivant == u'/' || suivant == u'!' || suivant == u'?';
        return ouvre ? Fin(debut + 1) : kAbsente;
    }

private:
    static constexpr qsizetype kAbsente = -1;
    static constexpr QStringView kFinDeCommentaire = u"-->";

    qsizetype Fin(qsizetype position) const { return mesFins[static_cast<std::size_t>(position)]; }

    QStringView monTexte;
    std::vector<qsizetype> mesFins; // for a scan that begins at the position, outside of quotes
    qsizetype maDerniereFinDeCommentaire;
};

QStringView NomDeBalise(QStringView balise)
{
    qsizetype fin = 1;
    while (fin < balise.size() && (EstLettreAscii(balise.at(fin)) || balise.at(fin).isDigit()))
        ++fin;
    return balise.mid(1, fin - 1);
}

// The position behind the end tag of the element `nom`, or the end of the text without one.
qsizetype FinDElement(QStringView texte, qsizetype debut, QStringView nom)
{
    qsizetype const fermeture = texte.indexOf(u"</"_s + nom.toString(), debut, Qt::CaseInsensitive);
    qsizetype const fin = fermeture < 0 ? -1 : texte.indexOf(u'>', fermeture);
    return fin < 0 ? texte.size() : fin + 1;
}

bool ContenuEstBalisage(QStringView nom)
{
    return nom.compare(u"style", Qt::CaseInsensitive) == 0 ||
           nom.compare(u"script", Qt::CaseInsensitive) == 0 ||
           nom.compare(u"head", Qt::CaseInsensitive) == 0;
}

int ChiffreHexadecimal(QChar unite)
{
    if (unite >= u'0' && unite <= u'9')
        return unite.unicode() - u'0';
    QChar const minuscule(unite.unicode() | 0x20);
    return minuscule >= u'a' && minuscule <= u'f' ? minuscule.unicode() - u'a' + 10 : -1;
}

// The reserved character that the inside of an entity ("amp", "#38", "#x26") stands for.
std::optional<QChar> CaractereReservay(QStringView entite)
{
    struct
    {
        QStringView nom;
        char16_t caractere;
    } static constexpr kReserves[] = {
        {u"lt", u'<'}, {u"gt", u'>'}, {u"amp", u'&'}, {u"quot", u'"'}, {u"apos", u'\''},
    };
    char16_t code = 0;
    if (entite.startsWith(u'#')) {
        bool const hexadecimal = entite.mid(1).startsWith(u'x', Qt::CaseInsensitive);
        QStringView const chiffres = entite.mid(hexadecimal ? 2 : 1);
        // Qt would also take blanks, a sign and a prefix.
        if (std::all_of(chiffres.begin(), chiffres.end(),
                        [](QChar unite) { return ChiffreHexadecimal(unite) >= 0; }))
            code = chiffres.toUShort(nullptr, hexadecimal ? 16 : 10);
    }
    for (auto const & reservay : kReserves) {
        if (entite == reservay.nom || code == reservay.caractere)
            return QChar(reservay.caractere);
    }
    return std::nullopt;
}

// The byte of the escape "%XX" at `position`, or -1.
int OctetEchappay(QStringView texte, qsizetype position)
{
    if (position + 2 >= texte.size() || texte.at(position) != u'%')
        return -1;
    int const haut = ChiffreHexadecimal(texte.at(position + 1));
    int const bas = ChiffreHexadecimal(texte.at(position + 2));
    return haut < 0 || bas < 0 ? -1 : haut * 16 + bas;
}

// The count of bytes that a UTF-8 sequence has by its first byte; 0 when none begins so.
int LongueurSequence(int premierOctet)
{
    if (premierOctet < 0x80)
        return 1;
    if (premierOctet >= 0xC2 && premierOctet <= 0xDF)
        return 2;
    if (premierOctet >= 0xE0 && premierOctet <= 0xEF)
        return 3;
    return premierOctet >= 0xF0 && premierOctet <= 0xF4 ? 4 : 0;
}

// The character that the escapes at `position` stand for, empty when they are no UTF-8.
QString CaractereEchappay(QStringView texte, qsizetype position)
{
    int const longueur = LongueurSequence(OctetEchappay(texte, position));
    QByteArray octets;
    for (int i = 0; i < longueur; ++i) {
        int const octet = OctetEchappay(texte, position + 3 * i);
        if (octet < 0)
            return {};
        octets.append(static_cast<char>(octet));
    }
    // U+FEFF is a character like any other here, not a mark to be dropped.
    QStringDecoder decodeur(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                      QStringDecoder::Flag::ConvertInitialBom);
    QString const caractere = decodeur(octets);
    return decodeur.hasError() ? QString() : caractere;
}

// One conversion of a printf model: "%-5.2ld" has the options "-5.2" and the letter "d".
struct Conversion
{
    QByteArray options;             // flags, width, precision
    int octets = sizeof(qlonglong); // at most, of an integer
    char lettre = 0;
    qsizetype fin = 0; // behind the letter
};

// A field of a thousand columns is wider than any line: such a model is a mistake, not a wish.
bool ChampEstRaisonnable(QByteArray const & options)
{
    constexpr int kChiffresMax = 3;
    int chiffres = 0;
    for (char const option : options) {
        chiffres = option >= '0' && option <= '9' ? chiffres + 1 : 0;
        if (chiffres > kChiffresMax)
            return false;
    }
    return options.count('.') <= 1;
}

std::optional<Conversion> LisConversion(QStringView modele, qsizetype position)
{
    constexpr QStringView kOptions = u"-+ #0123456789.";
    constexpr QStringView kTailles =
        u"hlLqjzt"; // of which only "h" tells what an argument does not
    constexpr QStringView kLettres = u"sdiuxXocfFeEgG";
    Conversion conversion;
    while (position < modele.size() && kOptions.contains(modele.at(position)))
        conversion.options.append(modele.at(position++).toLatin1());
    for (; position < modele.size() && kTailles.contains(modele.at(position)); ++position) {
        if (modele.at(position) == u'h') // "h" names a short, "hh" a char
            conversion.octets =
                conversion.octets == int(sizeof(short)) ? sizeof(char) : sizeof(short);
    }
    if (position >= modele.size() || !kLettres.contains(modele.at(position)) ||
        !ChampEstRaisonnable(conversion.options))
        return std::nullopt;
    conversion.lettre = modele.at(position).toLatin1();
    conversion.fin = position + 1;
    return conversion;
}

QString FormateTexte(QByteArray const & options, QString texte)
{
    bool const aGauche = options.contains('-');
    qsizetype const point = options.indexOf('.');
    QByteArray largeur = point < 0 ? options : options.first(point);
    while (!largeur.isEmpty() && (largeur.front() < '0' || largeur.front() > '9'))
        largeur.remove(0, 1);
    if (point >= 0)
        texte.truncate(options.mid(point + 1).toInt());
    int const colonnes = largeur.toInt();
    return aGauche ? texte.leftJustified(colonnes) : texte.rightJustified(colonnes);
}

QString FormateNombre(Conversion const & conversion, double nombre)
{
    QByteArray const format = '%' + conversion.options + conversion.lettre;
    return QString::asprintf(format.constData(), nombre);
}

QString FormateEntier(Conversion const & conversion, qlonglong entier)
{
    QByteArray const format = '%' + conversion.options + "ll" + conversion.lettre;
    return QString::asprintf(format.constData(), entier);
}

// Truncates; what has no integer becomes the nearest one, and NaN 0.
qlonglong VersEntier(double nombre)
{
    constexpr double kLimite = 0x1p63;
    if (std::isnan(nombre))
        return 0;
    if (nombre >= kLimite)
        return std::numeric_limits<qlonglong>::max();
    return nombre < -kLimite ? std::numeric_limits<qlonglong>::min()
                             : static_cast<qlonglong>(nombre);
}

// What an integer of that many bytes is when it is read without its sign.
qlonglong SansSigne(qlonglong bits, int octets)
{
    constexpr int kBitsParOctet = 8;
    int const manquants = kBitsParOctet * (static_cast<int>(sizeof bits) - octets);
    return static_cast<qlonglong>(static_cast<qulonglong>(bits) << manquants >> manquants);
}

struct Formateur
{
    Conversion const & conversion;
    int octets; // of an integer argument, promoted

    QString operator()(QString const & texte) const
    {
        return FormateTexte(conversion.options, texte);
    }

    QString operator()(double nombre) const
    {
        if (QByteArrayView("fFeEgG").contains(conversion.lettre))
            return FormateNombre(conversion, nombre);
        if (conversion.lettre == 's')
            return (*this)(QString::number(nombre));
        return (*this)(VersEntier(nombre));
    }

    QString operator()(qlonglong entier) const { return Entier(entier, QString::number(entier)); }
    QString operator()(qulonglong entier) const
    {
        return Entier(static_cast<qlonglong>(entier), QString::number(entier));
    }

    QString Entier(qlonglong bits, QString const & texte) const
    {
        switch (conversion.lettre) {
        case 's':
            return (*this)(texte);
        case 'c':
            return bits < 0 || bits > QChar::LastValidCodePoint
                       ? QString()
                       : (*this)(
                             QStringView(QChar::fromUcs4(static_cast<char32_t>(bits))).toString());
        case 'd':
        case 'i':
            // Unsigned values above the signed range keep their value.
            return texte.startsWith(u'-') || bits >= 0 ? FormateEntier(conversion, bits) : texte;
        case 'u':
        case 'x':
        case 'X':
        case 'o':
            return FormateEntier(conversion, SansSigne(bits, std::min(octets, conversion.octets)));
        default:
            return FormateNombre(conversion, texte.toDouble());
        }
    }
};

} // namespace

UniChaine & UniChaine::NettoieHTML()
{
    if (!monTexte.contains(u'<'))
        return *this;
    QString resultat;
    resultat.reserve(monTexte.size());
    QStringView const texte(monTexte);
    FinsDeBalises const fins(texte);
    for (qsizetype i = 0; i < texte.size();) {
        qsizetype const fin = texte.at(i) == u'<' ? fins.Donne(i) : -1;
        if (fin < 0) {
            resultat.append(texte.at(i++));
            continue;
        }
        QStringView const nom = NomDeBalise(texte.mid(i, fin - i));
        i = ContenuEstBalisage(nom) ? FinDElement(texte, fin, nom) : fin;
    }
    return *this = resultat;
}

UniChaine & UniChaine::DecodeCaracteresReservesHTML()
{
    constexpr qsizetype kLongueurMax = 10; // "&#x000026;" and room for one more zero
    QString resultat;
    resultat.reserve(monTexte.size());
    QStringView const texte(monTexte);
    for (qsizetype i = 0; i < texte.size();) {
        qsizetype const fin = texte.at(i) == u'&' ? texte.mid(i, kLongueurMax).indexOf(u';') : -1;
        auto const caractere =
            fin < 0 ? std::nullopt : CaractereReservay(texte.mid(i + 1, fin - 1));
        resultat.append(caractere.value_or(texte.at(i)));
        i += caractere ? fin + 1 : 1;
    }
    return *this = resultat;
}

UniChaine UniChaine::DonneChaineDesechappeePourcent(UniChaine const & intacts) const
{
    QString resultat;
    resultat.reserve(monTexte.size());
    QStringView const texte(monTexte);
    for (qsizetype i = 0; i < texte.size();) {
        QString const caractere = CaractereEchappay(texte, i);
        if (caractere.isEmpty()) {
            resultat.append(texte.at(i++));
            continue;
        }
        qsizetype const longueur = 3 * caractere.toUtf8().size();
        if (intacts.monTexte.contains(caractere))
            resultat.append(texte.mid(i, longueur));
        else
            resultat.append(caractere);
        i += longueur;
    }
    return UniChaine(resultat);
}

UniChaine & UniChaine::FormateListe(UniChaine const & modele,
                                    std::initializer_list<ArgumentFormat> arguments)
{
    QString resultat;
    QString const texte = modele.monTexte;
    auto argument = arguments.begin();
    for (qsizetype i = 0; i < texte.size();) {
        if (texte.at(i) != u'%') {
            resultat.append(texte.at(i++));
            continue;
        }
        if (QStringView(texte).mid(i).startsWith(u"%%")) {
            resultat.append(u'%');
            i += 2;
            continue;
        }
        auto const conversion = LisConversion(texte, i + 1);
        if (!conversion || argument == arguments.end()) {
            resultat.append(texte.at(i++));
            continue;
        }
        resultat.append(std::visit(Formateur{*conversion, argument->octets}, argument->valeur));
        ++argument;
        i = conversion->fin;
    }
    return *this = resultat;
}
