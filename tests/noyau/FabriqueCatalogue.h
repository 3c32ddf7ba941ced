// tests/noyau/FabriqueCatalogue.h
#pragma once

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QtEndian>

#include <utility>
#include <vector>

/// The entries of a gettext catalogue by key: "id", "context\004id", or "singular\0plural". The
/// texts of a plural stand behind each other, with a NUL between two.
using MessagesDeCatalogue = QMap<QByteArray, QByteArray>;

inline constexpr char kRegleFrancaise[] = "nplurals=2; plural=(n > 1);";
inline constexpr char kRegleAnglaise[] = "nplurals=2; plural=n != 1;";

/// The text of the entry with the empty key.
inline QByteArray EnteteDeCatalogue(QByteArray const & regle, QByteArray const & codage = "UTF-8")
{
    return "Content-Type: text/plain; charset=" + codage + "\nPlural-Forms: " + regle + "\n";
}

/// Writes `.mo` images as msgfmt does, and in the forms that msgfmt does not choose by itself.
class FabriqueCatalogue
{
public:
    enum eHachage
    {
        kSansHachage,
        kAvecHachage
    };

    explicit FabriqueCatalogue(MessagesDeCatalogue messages, eHachage hachage = kAvecHachage,
                               bool grandBoutiste = false)
        : mesMessages(std::move(messages))
        , monGrandBoutiste(grandBoutiste)
        , maTaille(hachage == kAvecHachage ? TaillePremiere(mesMessages.size()) : 0)
    {
    }

    QByteArray Image() const
    {
        auto const entrees = static_cast<quint32>(mesMessages.size());
        quint32 const cles = kEntete;
        quint32 const textes = cles + 8 * entrees;
        quint32 const hachage = textes + 8 * entrees;
        quint32 const donnees = hachage + 4 * maTaille;
        QByteArray image;
        for (quint32 const mot : {kMagie, 0U, entrees, cles, textes, maTaille, hachage})
            AjouteMot(image, mot);
        QByteArray corps;
        AjouteTable(image, corps, mesMessages.keys(), donnees);
        AjouteTable(image, corps, mesMessages.values(), donnees);
        for (quint32 const place : Hachage())
            AjouteMot(image, place);
        return image + corps;
    }

    bool Ecris(QString const & chemin) const
    {
        QFile fichier(chemin);
        QByteArray const image = Image();
        return fichier.open(QIODevice::WriteOnly) && fichier.write(image) == image.size();
    }

private:
    static constexpr quint32 kMagie = 0x950412de;
    static constexpr quint32 kEntete = 28; // bytes

    // A prime above the count by a third, as msgfmt has it: some places always stay free.
    static quint32 TaillePremiere(qsizetype entrees)
    {
        auto taille = static_cast<quint32>(entrees * 4 / 3 + 3);
        auto const premier = [](quint32 nombre) {
            for (quint32 i = 2; i * i <= nombre; ++i) {
                if (nombre % i == 0)
                    return false;
            }
            return true;
        };
        while (!premier(taille))
            ++taille;
        return taille;
    }

    // P. J. Weinberger's hash over the bytes before the first NUL.
    static quint32 Hache(QByteArray const & cle)
    {
        quint32 valeur = 0;
        for (char const octet : QByteArray(cle.constData())) {
            valeur = (valeur << 4) + static_cast<uchar>(octet);
            quint32 const haut = valeur & 0xf0000000U;
            valeur ^= (haut >> 24) ^ haut;
        }
        return valeur;
    }

    std::vector<quint32> Hachage() const
    {
        std::vector<quint32> places(maTaille, 0);
        quint32 numero = 0;
        for (QByteArray const & cle : mesMessages.keys()) {
            ++numero;
            if (places.empty())
                continue;
            quint32 const valeur = Hache(cle);
            quint32 place = valeur % maTaille;
            while (places[place] != 0)
                place = (place + 1 + valeur % (maTaille - 2)) % maTaille;
            places[place] = numero;
        }
        return places;
    }

    void AjouteMot(QByteArray & image, quint32 mot) const
    {
        mot = monGrandBoutiste ? qToBigEndian(mot) : qToLittleEndian(mot);
        image.append(reinterpret_cast<char const *>(&mot), sizeof mot);
    }

    void AjouteTable(QByteArray & image, QByteArray & corps, QList<QByteArray> const & textes,
                     quint32 donnees) const
    {
        for (QByteArray const & texte : textes) {
            AjouteMot(image, static_cast<quint32>(texte.size()));
            AjouteMot(image, donnees + static_cast<quint32>(corps.size()));
            corps += texte + '\0';
        }
    }

    MessagesDeCatalogue mesMessages;
    bool monGrandBoutiste;
    quint32 maTaille; // of the hash table, in words; 0 for none
};
