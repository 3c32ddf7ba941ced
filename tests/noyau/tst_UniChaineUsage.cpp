// tests/noyau/tst_UniChaineUsage.cpp
//
// UniChaine as applications write it, with literals and QString side by side. Built twice: with
// Qt's conversions from 8-bit literals and without them.
#include "noyau/ContexteLocalisation.h"
#include "noyau/DLocale.h"
#include "noyau/LocalisateurContextuel.h"
#include "noyau/UniChemin.h"

#include <QtTest>

#include <algorithm>
#include <functional>
#include <map>
#include <unordered_map>

using namespace Qt::StringLiterals;

class tst_UniChaineUsage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparaisons();
    void concatenations();
    void affectations();
    void traductionAffectee();
    void tri();
    void clesDesConteneurs();
    void dansUnVariant();
    void cheminsCommeChaines();
    void localeDepuisLangue();
};

void tst_UniChaineUsage::comparaisons()
{
    UniChaine const b("b");
    QString const texte = u"b"_s;
    QVERIFY(b == "b" && "b" == b && b == texte && texte == b && b == UniChaine(L"b"));
    QVERIFY(b != "c" && "c" != b && b != u"c"_s && u"c"_s != b);
    QVERIFY(b < UniChaine("c") && b < u"c"_s && u"a"_s < b && b < "c" && "a" < b);
    QVERIFY(b > UniChaine("a") && b > u"a"_s && u"c"_s > b && b > "a" && "c" > b);
    QVERIFY(b <= texte && b >= texte && b <= "b" && b >= UniChaine("b"));
    QVERIFY(b == u"b" && b != u"é" && UniChaine("é") == "é");
}

void tst_UniChaineUsage::concatenations()
{
    UniChaine const a("a");
    QCOMPARE(QString(a + a), u"aa"_s);
    QCOMPARE(QString(a + "é"), u"aé"_s);
    QCOMPARE(QString("é" + a), u"éa"_s);
    QCOMPARE(QString(a + u"b"_s), u"ab"_s);
    QCOMPARE(QString(u"b"_s + a), u"ba"_s);
    QCOMPARE(QString(UniChemin("dossier") + "/fichier"), u"dossier/fichier"_s);
    UniChaine somme;
    somme += "a";
    somme += u"b"_s;
    somme += L"c";
    somme += L'd';
    somme += a;
    QCOMPARE(QString(somme), u"abcda"_s);
}

void tst_UniChaineUsage::affectations()
{
    UniChaine texte = "a";
    QCOMPARE(QString(texte), u"a"_s);
    texte = u"b"_s;
    QCOMPARE(QString(texte), u"b"_s);
    texte = L"c";
    QCOMPARE(QString(texte), u"c"_s);
    texte = u"d";
    QCOMPARE(QString(texte), u"d"_s);
    texte = std::string("é");
    QCOMPARE(QString(texte), u"é"_s);
    QString qt = texte;
    qt = texte + "f";
    QCOMPARE(qt, u"éf"_s);
}

void tst_UniChaineUsage::traductionAffectee()
{
    ContexteLocalisation contexte;
    InitLocaleLibNoyau(contexte);
    ChaineLocalisable const message = {{"Ouverture impossible", 20}, {}, {"Noyau", 5}};
    LocalisateurContextuel const traduction(message, contexte, kLangueAnglais);
    UniChaine texte;
    texte = traduction;
    QCOMPARE(QString(texte), u"Cannot Open"_s);
    QString qt;
    qt = traduction;
    QCOMPARE(qt, u"Cannot Open"_s);
    std::string octets = traduction;
    QCOMPARE(octets, std::string("Cannot Open"));
}

void tst_UniChaineUsage::tri()
{
    QList<UniChaine> textes = {UniChaine("c"), UniChaine("a"), UniChaine("b")};
    std::ranges::sort(textes);
    QCOMPARE(QString(textes.first()), u"a"_s);
    std::sort(textes.begin(), textes.end(), std::greater<>());
    QCOMPARE(QString(textes.first()), u"c"_s);
}

void tst_UniChaineUsage::clesDesConteneurs()
{
    UniChaine const cle("clé");
    QCOMPARE((std::map<UniChaine, int>{{cle, 1}}).at("clé"), 1);
    QCOMPARE((std::unordered_map<UniChaine, int>{{cle, 2}}).at("clé"), 2);
    QCOMPARE((std::unordered_map<UniChemin, int>{{UniChemin(cle), 3}}).at("clé"), 3);
    QCOMPARE((QHash<UniChaine, int>{{cle, 4}}).value("clé"), 4);
    QCOMPARE((QMap<UniChaine, int>{{cle, 5}}).value("clé"), 5);
    QVERIFY((QSet<UniChaine>{cle}).contains("clé"));
}

// Deliberate: a value of its own in a QVariant, not a QString.
void tst_UniChaineUsage::dansUnVariant()
{
    QVariant const variant = QVariant::fromValue(UniChaine("a"));
    QCOMPARE(QString(variant.value<UniChaine>()), u"a"_s);
    QVERIFY(variant.toString().isEmpty());
}

void tst_UniChaineUsage::cheminsCommeChaines()
{
    auto const longueur = [](UniChaine const & chaine) { return chaine.Longueur(); };
    QCOMPARE(longueur(UniChemin("/a/b")), 4U);
    QCOMPARE(QFileInfo(UniChemin("/a/b")).fileName(), u"b"_s);
}

void tst_UniChaineUsage::localeDepuisLangue()
{
    DLocale const locale = kLangueAnglais;
    QCOMPARE(QString(UniChaine::DonneNombreFormatay(kLangueAnglais, 1234)), u"1,234"_s);
    QCOMPARE(locale.DonneLangue(), kLangueAnglais);
}

QTEST_GUILESS_MAIN(tst_UniChaineUsage)
#include "tst_UniChaineUsage.moc"
