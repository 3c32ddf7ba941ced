// tests/noyau/tst_ListeT.cpp
#include "noyau/ListeT.h"

#include "noyau/UniChaine.h"

#include <QtTest>

#include <memory>

using sdd::exceptions::IndexHorsBorne;

class tst_ListeT : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vide();
    void typeDesSignatures();
    void boucleDeUnAuCompte();
    void horsBorne_data();
    void horsBorne();
    void exceptionDitLesBornes();
    void iterateurs();
    void contigue();
    void elementsModifiables();
    void elementsDeplaces();
    void valeur();
};

void tst_ListeT::vide()
{
    sdd::ListeT<int> liste;
    QVERIFY(liste.EstVide());
    QCOMPARE(liste.Taille(), 0ULL);
    QVERIFY(liste.begin() == liste.end());
    liste.AjouteFin(1);
    QVERIFY(!liste.EstVide());
    liste.Vide();
    QVERIFY(liste.EstVide());
    QVERIFY_THROWS_EXCEPTION(IndexHorsBorne, liste[1]);
}

void tst_ListeT::typeDesSignatures()
{
    using Complet = sdd::ListeT<int, 2, 1, unsigned long long, std::allocator<int>>;
    QVERIFY((std::is_same_v<sdd::ListeT<int>, Complet>));
    QCOMPARE(sizeof(Complet), 3 * sizeof(void *));
}

void tst_ListeT::boucleDeUnAuCompte()
{
    sdd::ListeT<int> const liste{10, 20, 30};
    QList<int> vus;
    for (unsigned long long i = 1; i <= liste.Taille(); ++i)
        vus.append(liste[i]);
    QCOMPARE(vus, QList<int>({10, 20, 30}));
}

void tst_ListeT::horsBorne_data()
{
    QTest::addColumn<quint64>("index");
    QTest::addColumn<bool>("lance");
    QTest::newRow("0") << quint64(0) << true;
    QTest::newRow("first") << quint64(1) << false;
    QTest::newRow("count") << quint64(3) << false;
    QTest::newRow("count plus 1") << quint64(4) << true;
    QTest::newRow("-1 as an index") << std::numeric_limits<quint64>::max() << true;
}

void tst_ListeT::horsBorne()
{
    QFETCH(quint64, index);
    QFETCH(bool, lance);
    sdd::ListeT<int> liste{10, 20, 30};
    sdd::ListeT<int> const & constante = liste;
    int lances = 0;
    try {
        QVERIFY(liste[index] > 0);
    } catch (IndexHorsBorne const &) {
        ++lances;
    }
    try {
        QVERIFY(constante[index] > 0);
    } catch (IndexHorsBorne const &) {
        ++lances;
    }
    QCOMPARE(lances, lance ? 2 : 0);
}

void tst_ListeT::exceptionDitLesBornes()
{
    sdd::ListeT<int> const liste{10, 20, 30};
    try {
        Q_UNUSED(liste[7]);
        QFAIL("nothing was thrown");
    } catch (IndexHorsBorne const & erreur) {
        QCOMPARE(erreur.index, quint64(7));
        QCOMPARE(erreur.premier, quint64(1));
        QCOMPARE(erreur.dernier, quint64(3));
    }
}

void tst_ListeT::iterateurs()
{
    sdd::ListeT<int> liste{1, 2, 3};
    for (int & element : liste)
        element *= 2;
    int somme = 0;
    for (int const element : std::as_const(liste))
        somme += element;
    QCOMPARE(somme, 12);
}

void tst_ListeT::contigue()
{
    sdd::ListeT<int> liste;
    for (int i = 1; i <= 100; ++i)
        liste.AjouteFin(i);
    QCOMPARE(&liste[100] - &liste[1], 99);
    QCOMPARE(liste[1], 1);
    QCOMPARE(liste[100], 100);
}

void tst_ListeT::elementsModifiables()
{
    sdd::ListeT<UniChaine> liste{UniChaine("a"), UniChaine("b")};
    liste[2] = UniChaine("c");
    QVERIFY(liste[2] == UniChaine("c"));
    QVERIFY(liste[1] == UniChaine("a"));
}

void tst_ListeT::elementsDeplaces()
{
    sdd::ListeT<std::unique_ptr<int>> liste;
    liste.AjouteFin(std::make_unique<int>(4));
    QCOMPARE(*liste[1], 4);
    sdd::ListeT<std::unique_ptr<int>> const autre = std::move(liste);
    QCOMPARE(*autre[1], 4);
}

void tst_ListeT::valeur()
{
    sdd::ListeT<int> const a{1, 2};
    sdd::ListeT<int> b = a;
    QVERIFY(a == b);
    b.AjouteFin(3);
    QVERIFY(!(a == b));
    QCOMPARE(a.Taille(), 2ULL);
}

QTEST_GUILESS_MAIN(tst_ListeT)
#include "tst_ListeT.moc"
