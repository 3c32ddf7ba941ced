// tests/noyau/tst_RoutinesFenetreNatives.cpp
#include "noyau/RoutinesFenetreNatives.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_RoutinesFenetreNatives : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void nomClasse();
    void nomExecutable_data();
    void nomExecutable();
    void hwndRecherchay_data();
    void hwndRecherchay();
    void fenetreEnfant();
    void poigneeMorte();

private:
    FenetresSimulees * mesFenetres = nullptr; // owned by the layer's installation
    HWND maFenetre = nullptr;
};

void tst_RoutinesFenetreNatives::init()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    PlateformeFenetres::Installe(std::move(fenetres));
    maFenetre =
        mesFenetres->Ajoute({.classe = u"Éditeur"_s, .executable = u"/opt/éditeur/bin/editeur"_s});
}

void tst_RoutinesFenetreNatives::cleanup()
{
    PlateformeFenetres::Installe(nullptr);
    mesFenetres = nullptr;
}

void tst_RoutinesFenetreNatives::nomClasse()
{
    QCOMPARE(QString(DonneNomClasse(maFenetre)), u"Éditeur"_s);
}

void tst_RoutinesFenetreNatives::nomExecutable_data()
{
    QTest::addColumn<bool>("sansDossier");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("the whole path") << false << u"/opt/éditeur/bin/editeur"_s;
    QTest::newRow("the file name alone") << true << u"editeur"_s;
}

void tst_RoutinesFenetreNatives::nomExecutable()
{
    QFETCH(bool, sansDossier);
    QFETCH(QString, attendu);
    UniChaine nom;
    QVERIFY(DonneNomEXEAPartirHWND(maFenetre, nom, sansDossier));
    QCOMPARE(QString(nom), attendu);

    mesFenetres->Prete(maFenetre).executable.clear();
    QVERIFY(!DonneNomEXEAPartirHWND(maFenetre, nom, sansDossier));
    QVERIFY(nom.EstVide());
}

void tst_RoutinesFenetreNatives::hwndRecherchay_data()
{
    QTest::addColumn<QString>("classe");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("its class") << u"Éditeur"_s << true;
    QTest::newRow("another case") << u"éditeur"_s << false;
    QTest::newRow("the start of its class") << u"Édit"_s << false;
    QTest::newRow("no class") << QString() << false;
}

void tst_RoutinesFenetreNatives::hwndRecherchay()
{
    QFETCH(QString, classe);
    QFETCH(bool, attendu);
    QCOMPARE(DonneSiHwndRecherchay(maFenetre, classe), attendu);
}

void tst_RoutinesFenetreNatives::fenetreEnfant()
{
    HWND const cadre = mesFenetres->Ajoute({.classe = u"Cadre"_s, .parent = maFenetre});
    HWND const liste = mesFenetres->Ajoute({.classe = u"Liste"_s, .parent = cadre});
    QCOMPARE(DonneHwndFenetreEnfant(maFenetre, u"Cadre"_s), cadre);
    QCOMPARE(DonneHwndFenetreEnfant(maFenetre, u"Liste"_s), liste);
    HWND const listeDirecte = mesFenetres->Ajoute({.classe = u"Liste"_s, .parent = maFenetre});
    QCOMPARE(DonneHwndFenetreEnfant(maFenetre, u"Liste"_s), listeDirecte);
    QCOMPARE(DonneHwndFenetreEnfant(liste, u"Cadre"_s), nullptr);
    QCOMPARE(DonneHwndFenetreEnfant(nullptr, u"Liste"_s), nullptr);
}

void tst_RoutinesFenetreNatives::poigneeMorte()
{
    mesFenetres->Retire(maFenetre);
    for (HWND const fenetre : {HWND(nullptr), maFenetre}) {
        UniChaine nom(u"before"_s);
        QVERIFY(DonneNomClasse(fenetre).EstVide());
        QVERIFY(!DonneNomEXEAPartirHWND(fenetre, nom, false));
        QVERIFY(nom.EstVide());
        QVERIFY(!DonneSiHwndRecherchay(fenetre, {}));
        QVERIFY(!DonneSiHwndRecherchay(fenetre, u"Éditeur"_s));
        QCOMPARE(DonneHwndFenetreEnfant(fenetre, u"Cadre"_s), nullptr);
    }
}

QTEST_MAIN(tst_RoutinesFenetreNatives)
#include "tst_RoutinesFenetreNatives.moc"
