// tests/navigation/RessourcesEnMemoire.h
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QResource>
#include <QString>
#include <QtEndian>

#include <algorithm>
#include <utility>

/// Files in the application's resources while this object lives, as ":/folder/name": what another
/// application would have compiled in.
class RessourcesEnMemoire
{
public:
    /// By folder, then by name.
    using Dossiers = QMap<QString, QMap<QString, QByteArray>>;

    explicit RessourcesEnMemoire(Dossiers const & dossiers)
    {
        EcrisArbre(dossiers);
        for (quint32 const mot : {quint32(0x71726573), quint32(1), quint32(kEntete),
                                  quint32(kEntete + monArbre.size() + mesNoms.size()),
                                  quint32(kEntete + monArbre.size())})
            Ecris(mesOctets, mot); // "qres", version, places of tree, data, names
        mesOctets += monArbre + mesNoms + mesDonnees;
        QResource::registerResource(Prete());
    }
    ~RessourcesEnMemoire() { QResource::unregisterResource(Prete()); }
    RessourcesEnMemoire(RessourcesEnMemoire const &) = delete;
    RessourcesEnMemoire & operator=(RessourcesEnMemoire const &) = delete;

private:
    static constexpr int kEntete = 20; // bytes

    template <typename Nombre>
    static void Ecris(QByteArray & octets, Nombre nombre)
    {
        Nombre const grosBoutiste = qToBigEndian(nombre);
        octets.append(reinterpret_cast<char const *>(&grosBoutiste), sizeof(Nombre));
    }

    // Names are looked for by this hash, in order.
    static quint32 Hache(QString const & nom)
    {
        quint32 hache = 0;
        for (QChar const caractere : nom) {
            hache = (hache << 4) + caractere.unicode();
            hache ^= (hache & 0xf0000000U) >> 23U;
            hache &= 0x0fffffffU;
        }
        return hache;
    }

    static QStringList Ordonne(QStringList noms)
    {
        std::sort(noms.begin(), noms.end(),
                  [](QString const & a, QString const & b) { return Hache(a) < Hache(b); });
        return noms;
    }

    void EcrisNom(QString const & nom)
    {
        Ecris(monArbre, quint32(mesNoms.size()));
        Ecris(mesNoms, quint16(nom.size()));
        Ecris(mesNoms, Hache(nom));
        for (QChar const caractere : nom)
            Ecris(mesNoms, quint16(caractere.unicode()));
    }

    void EcrisDossier(QString const & nom, qsizetype enfants, qsizetype premier)
    {
        EcrisNom(nom);
        Ecris(monArbre, quint16(2)); // a folder
        Ecris(monArbre, quint32(enfants));
        Ecris(monArbre, quint32(premier));
    }

    // Level by level, as the format wants it.
    void EcrisArbre(Dossiers const & dossiers)
    {
        EcrisDossier(QString(), dossiers.size(), 1);
        qsizetype suivant = 1 + dossiers.size();
        QStringList const noms = Ordonne(dossiers.keys());
        for (QString const & nom : noms)
            EcrisDossier(nom, dossiers[nom].size(),
                         std::exchange(suivant, suivant + dossiers[nom].size()));
        for (QString const & nom : noms)
            for (QString const & fichier : Ordonne(dossiers[nom].keys()))
                EcrisFichier(fichier, dossiers[nom][fichier]);
    }

    void EcrisFichier(QString const & nom, QByteArray const & contenu)
    {
        EcrisNom(nom);
        Ecris(monArbre, quint16(0)); // a file that is not compressed
        Ecris(monArbre, quint16(0)); // of any territory
        Ecris(monArbre, quint16(1)); // and language
        Ecris(monArbre, quint32(mesDonnees.size()));
        Ecris(mesDonnees, quint32(contenu.size()));
        mesDonnees += contenu;
    }

    uchar const * Prete() const { return reinterpret_cast<uchar const *>(mesOctets.constData()); }

    QByteArray monArbre;
    QByteArray mesNoms;
    QByteArray mesDonnees;
    QByteArray mesOctets;
};
