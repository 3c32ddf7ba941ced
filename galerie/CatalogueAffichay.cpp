// galerie/CatalogueAffichay.cpp
#include "CatalogueAffichay.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace {

// Layout of a .mo file, from the gettext manual; the library's files are little-endian.
constexpr quint32 kMagie = 0x950412de;
constexpr qsizetype kPlaceNombre = 8; // count of messages
constexpr qsizetype kPlaceCles = 12;  // offset of the table of keys: pairs of length and offset
constexpr qsizetype kTailleEntree = 8;

class Image
{
public:
    explicit Image(QByteArray const & octets)
        : mesOctets(octets)
    {
    }

    qsizetype DonneTaille() const { return mesOctets.size(); }
    // 0 outside of the file, which ends in an empty text.
    quint32 Mot(qsizetype place) const
    {
        return place + 4 <= mesOctets.size()
                   ? qFromLittleEndian<quint32>(mesOctets.constData() + place)
                   : 0;
    }
    QByteArray Texte(qsizetype entree) const { return mesOctets.mid(Mot(entree + 4), Mot(entree)); }

private:
    QByteArray mesOctets;
};

} // namespace

QList<CleCatalogue> LisClesCatalogue(QString const & fichier)
{
    QFile lecture(fichier);
    if (!lecture.open(QIODevice::ReadOnly))
        return {};
    Image const image(lecture.readAll());
    if (image.Mot(0) != kMagie)
        return {};
    QList<CleCatalogue> cles;
    // A damaged file may promise more than it has room for.
    qsizetype const nombre =
        std::min<qsizetype>(image.Mot(kPlaceNombre), image.DonneTaille() / kTailleEntree);
    for (qsizetype i = 0; i < nombre; ++i) {
        QByteArray texte = image.Texte(image.Mot(kPlaceCles) + i * kTailleEntree);
        if (texte.isEmpty())
            continue;
        CleCatalogue cle;
        if (auto const fin = texte.indexOf('\x04'); fin >= 0) {
            cle.contexte = texte.left(fin);
            texte.remove(0, fin + 1);
        }
        if (auto const fin = texte.indexOf('\0'); fin >= 0) {
            cle.pluriel = texte.mid(fin + 1);
            texte.truncate(fin);
        }
        cle.identifiant = texte;
        cles.append(cle);
    }
    return cles;
}
