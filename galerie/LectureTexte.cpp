// galerie/LectureTexte.cpp
#include "LectureTexte.h"

#include "TraductionGalerie.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStringDecoder>

#include <zlib.h>

#include <array>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr char kDebutGzip[] = "\x1f\x8b";
// zlib's largest window, and 16 for the header and the checksum of gzip around the data.
constexpr int kFenetreGzip = 15 + 16;
constexpr qsizetype kTampon = 64 * 1024; // bytes

// Stops with one byte more than `limite`.
LectureTexte::eResultat Decompresse(QByteArray & octets, qsizetype limite)
{
    QByteArray compresse = std::exchange(octets, {});
    z_stream etat{};
    if (inflateInit2(&etat, kFenetreGzip) != Z_OK)
        return LectureTexte::kIllisible;
    std::unique_ptr<z_stream, decltype(&inflateEnd)> const flux(&etat, &inflateEnd);
    flux->next_in = reinterpret_cast<Bytef *>(compresse.data());
    flux->avail_in = static_cast<uInt>(compresse.size());
    std::array<char, kTampon> tampon;
    while (flux->avail_in > 0 && octets.size() <= limite) {
        int code = Z_OK;
        do {
            flux->next_out = reinterpret_cast<Bytef *>(tampon.data());
            flux->avail_out = static_cast<uInt>(tampon.size());
            code = inflate(flux.get(), Z_NO_FLUSH);
            octets.append(tampon.data(), kTampon - static_cast<qsizetype>(flux->avail_out));
        } while (code == Z_OK && octets.size() <= limite);
        if (octets.size() > limite)
            return LectureTexte::kTropLong;
        // Files of gzip may be joined end to end; a part that is cut off asks for more than there
        // is.
        if (code != Z_STREAM_END || inflateReset(flux.get()) != Z_OK)
            return LectureTexte::kEndommagay;
    }
    return LectureTexte::kLu;
}

} // namespace

LectureTexte::LectureTexte(QString fichier, qsizetype limite)
    : monFichier(std::move(fichier))
    , maLimite(limite)
    , monResultat(Lis())
{
    if (monResultat != kLu)
        monTexte.clear();
}

QString LectureTexte::DonneFichierParDefaut()
{
    return u"/usr/share/debian-reference/debian-reference.fr.txt.gz"_s;
}

QString LectureTexte::DonneMessage() const
{
    UniChaine const fichier(QDir::toNativeSeparators(monFichier));
    switch (monResultat) {
    case kLu:
        break;
    case kAbsent:
        return TraductionGalerie(TexteGalerie("Il n’y a pas de fichier {1}."), {fichier});
    case kIllisible:
        return TraductionGalerie(TexteGalerie("{1} ne peut pas être lu."), {fichier});
    case kEndommagay:
        return TraductionGalerie(TexteGalerie("{1} est endommagé et ne se décompresse pas."),
                                 {fichier});
    case kTropLong:
        return TraductionGalerie(TexteGalerie("{1} est trop long : au plus {2}."),
                                 {fichier, UniChaine(QLocale().formattedDataSize(maLimite, 0))});
    case kPasUtf8:
        return TraductionGalerie(TexteGalerie("{1} n’est pas un texte en UTF-8."), {fichier});
    }
    return {};
}

LectureTexte::eResultat LectureTexte::Lis()
{
    QFileInfo const infos(monFichier);
    if (!infos.exists())
        return kAbsent;
    QFile fichier(monFichier);
    // A pipe would make everything wait for who writes into it.
    if (!infos.isFile() || !fichier.open(QIODevice::ReadOnly))
        return kIllisible;
    QByteArray octets = fichier.read(maLimite + 1);
    if (fichier.error() != QFileDevice::NoError)
        return kIllisible;
    if (octets.size() > maLimite)
        return kTropLong;
    if (octets.startsWith(kDebutGzip))
        if (eResultat const resultat = Decompresse(octets, maLimite); resultat != kLu)
            return resultat;

    // Stateless: also a character that is cut off at the end is an error. A byte order mark is
    // dropped.
    QStringDecoder decodeur(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    monTexte = decodeur(octets);
    if (decodeur.hasError() || monTexte.contains(QChar::Null))
        return kPasUtf8;
    if (monTexte.contains(u'\r'))
        monTexte.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    return kLu;
}
