// tests/galerie/tst_CatalogueAffichay.cpp
#include "CatalogueAffichay.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 kEntete = 28; // bytes: seven words

// A catalogue of these keys; their translations play no part.
QByteArray FaisCatalogue(QByteArrayList const & cles)
{
    auto const mot = [](quint32 valeur) {
        QByteArray octets(4, '\0');
        qToLittleEndian(valeur, octets.data());
        return octets;
    };
    auto const nombre = static_cast<quint32>(cles.size());
    QByteArray table;
    QByteArray textes;
    for (QByteArray const & cle : cles) {
        table += mot(static_cast<quint32>(cle.size()));
        table += mot(kEntete + nombre * 8 + static_cast<quint32>(textes.size()));
        textes += cle + '\0';
    }
    return mot(0x950412de) + mot(0) + mot(nombre) + mot(kEntete) + mot(kEntete) + mot(0) + mot(0) +
           table + textes;
}

QList<CleCatalogue> Lis(QByteArray const & octets)
{
    QTemporaryFile fichier;
    if (!fichier.open() || fichier.write(octets) != octets.size())
        return {};
    fichier.close();
    return LisClesCatalogue(fichier.fileName());
}

} // namespace

class tst_CatalogueAffichay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cles();
    void fichierRefusay_data();
    void fichierRefusay();
    void compteTropGrand();
    void coupay();
    void bibliotheque();
};

void tst_CatalogueAffichay::cles()
{
    QList<CleCatalogue> const cles =
        Lis(FaisCatalogue({"", "Fermer",
                           QByteArray("Menu\x04"
                                      "Fermer"),
                           QByteArray("un\0des", 6), "Menu\x04" + QByteArray("un\0des", 6)}));

    QCOMPARE(cles.size(), 4); // the empty key is the header
    QCOMPARE(cles.at(0).identifiant, "Fermer");
    QVERIFY(cles.at(0).contexte.isNull());
    QVERIFY(cles.at(0).pluriel.isNull());
    QCOMPARE(cles.at(1).identifiant, "Fermer");
    QCOMPARE(cles.at(1).contexte, "Menu");
    QVERIFY(cles.at(1).pluriel.isNull());
    QCOMPARE(cles.at(2).identifiant, "un");
    QCOMPARE(cles.at(2).pluriel, "des");
    QVERIFY(cles.at(2).contexte.isNull());
    QCOMPARE(cles.at(3).identifiant, "un");
    QCOMPARE(cles.at(3).contexte, "Menu");
    QCOMPARE(cles.at(3).pluriel, "des");
}

void tst_CatalogueAffichay::fichierRefusay_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("shorter than a word") << QByteArray("\xde\x12", 2);
    QTest::newRow("another magic word") << QByteArray(64, 'x');
}

void tst_CatalogueAffichay::fichierRefusay()
{
    QFETCH(QByteArray, octets);
    QVERIFY(Lis(octets).isEmpty());
    QVERIFY(LisClesCatalogue(u":/fichiers/aucun.mo"_s).isEmpty());
}

void tst_CatalogueAffichay::compteTropGrand()
{
    QByteArray octets = FaisCatalogue({"Fermer"});
    qToLittleEndian(std::numeric_limits<quint32>::max(), octets.data() + 8);

    QList<CleCatalogue> const cles = Lis(octets);

    QVERIFY(!cles.isEmpty());
    QVERIFY(cles.size() <= octets.size());
    QCOMPARE(cles.first().identifiant, "Fermer");
}

void tst_CatalogueAffichay::coupay()
{
    QByteArray const octets = FaisCatalogue({"Fermer", "Ouvrir"});
    for (qsizetype taille = 0; taille < octets.size(); ++taille)
        QVERIFY(Lis(octets.left(taille)).size() <= 2);
}

void tst_CatalogueAffichay::bibliotheque()
{
    QList<CleCatalogue> const cles = LisClesCatalogue(u":/fichiers/GUIFr.mo"_s);

    auto const compte = [&](auto const & condition) {
        return std::count_if(cles.cbegin(), cles.cend(), condition);
    };
    QVERIFY(compte([](CleCatalogue const & cle) { return !cle.contexte.isEmpty(); }) > 0);
    QVERIFY(compte([](CleCatalogue const & cle) { return !cle.pluriel.isEmpty(); }) > 0);
    QCOMPARE(compte([](CleCatalogue const & cle) { return cle.identifiant.isEmpty(); }), 0);
}

QTEST_GUILESS_MAIN(tst_CatalogueAffichay)
#include "tst_CatalogueAffichay.moc"
