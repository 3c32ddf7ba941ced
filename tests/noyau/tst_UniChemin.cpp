// tests/noyau/tst_UniChemin.cpp
#include "noyau/UniChemin.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

QString TexteDeChaine(UniChaine const & chaine)
{
    return chaine;
}

} // namespace

class tst_UniChemin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void construction();
    void copieEtDeplacement();
    void passePourUneChaine();
    void ajouteComposant_data();
    void ajouteComposant();
    void ajouteSoiMeme();
    void parent_data();
    void parent();
    void nomSansExtension_data();
    void nomSansExtension();
    void separateurInverse();
};

void tst_UniChemin::construction()
{
    QVERIFY(UniChemin().EstVide());
    QCOMPARE(QString(UniChemin("/d\xC3\xA9j\xC3\xA0", UniChaine::kUTF8, -1)), u"/déjà"_s);
    QCOMPARE(QString(UniChemin("/abc", UniChaine::kUTF8, 2)), u"/a"_s);
    QCOMPARE(QString(UniChemin(L"/déjà", -1)), u"/déjà"_s);
    QCOMPARE(QString(UniChemin(UniChaine("/a b"))), u"/a b"_s);
    QCOMPARE(QString(UniChemin(u"/a//b/../c"_s)), u"/a//b/../c"_s);
}

void tst_UniChemin::copieEtDeplacement()
{
    UniChemin original("/a");
    UniChemin copie(original);
    copie.AjouteComposantChemin(UniChemin("b"));
    QCOMPARE(QString(original), u"/a"_s);
    QCOMPARE(QString(copie), u"/a/b"_s);
    UniChemin deplace(std::move(copie));
    QCOMPARE(QString(deplace), u"/a/b"_s);
    original = std::move(deplace);
    QCOMPARE(QString(original), u"/a/b"_s);
}

void tst_UniChemin::passePourUneChaine()
{
    QCOMPARE(TexteDeChaine(UniChemin("/a/b")), u"/a/b"_s);
    QVERIFY(UniChemin("/a/b").CommencePar(UniChemin("/a")));
    QVERIFY(UniChemin("/a") == UniChaine("/a"));
}

void tst_UniChemin::ajouteComposant_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("composant");
    QTest::addColumn<QString>("attendu");
    QString const separateur(QDir::separator());
    QTest::newRow("the platform's separator") << u"a"_s << u"b"_s << u"a"_s + separateur + u'b';
    QTest::newRow("separator already there") << u"/a/"_s << u"b"_s << u"/a/b"_s;
    QTest::newRow("separator before the component") << u"a/"_s << u"/b"_s << u"a/b"_s;
    QTest::newRow("separators on neither side twice")
        << u"a"_s << u"//b"_s << u"a"_s + separateur + u'b';
    QTest::newRow("root") << u"/"_s << u"b"_s << u"/b"_s;
    QTest::newRow("empty path") << QString() << u"b"_s << u"b"_s;
    QTest::newRow("empty path, component from the root") << QString() << u"/b"_s << u"/b"_s;
    QTest::newRow("empty component") << u"a"_s << QString() << u"a"_s;
    QTest::newRow("nothing but a separator") << u"a"_s << u"/"_s << u"a"_s;
    QTest::newRow("both empty") << QString() << QString() << QString();
    QTest::newRow("resource") << u":/fichiers/"_s << u"a.mo"_s << u":/fichiers/a.mo"_s;
}

void tst_UniChemin::ajouteComposant()
{
    QFETCH(QString, chemin);
    QFETCH(QString, composant);
    UniChemin resultat(chemin);
    QCOMPARE(&resultat.AjouteComposantChemin(UniChemin(composant)), &resultat);
    QTEST(QString(resultat), "attendu");
}

void tst_UniChemin::ajouteSoiMeme()
{
    UniChemin chemin("a/");
    chemin.AjouteComposantChemin(chemin);
    QCOMPARE(QString(chemin), u"a/a/"_s);
}

void tst_UniChemin::parent_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("absolute") << u"/a/b"_s << u"/a"_s;
    QTest::newRow("separator at the end") << u"/a/b/"_s << u"/a"_s;
    QTest::newRow("separators doubled") << u"/a//b//"_s << u"/a"_s;
    QTest::newRow("below the root") << u"/a"_s << u"/"_s;
    QTest::newRow("the root") << u"/"_s << u"/"_s;
    QTest::newRow("relative") << u"a/b"_s << u"a"_s;
    QTest::newRow("single component") << u"a"_s << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("resource") << u":/a/b"_s << u":/a"_s;
}

void tst_UniChemin::parent()
{
    QFETCH(QString, chemin);
    QTEST(QString(UniChemin(chemin).DonneChaineEnEnlevantDernierComposantChemin()), "attendu");
}

void tst_UniChemin::nomSansExtension_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("extension") << u"/a/b.txt"_s << u"b"_s;
    QTest::newRow("parent folder") << u"/a/.."_s << u".."_s;
    QTest::newRow("folder itself") << u"/a/."_s << u"."_s;
    QTest::newRow("only the last extension") << u"/a/b.tar.gz"_s << u"b.tar"_s;
    QTest::newRow("no extension") << u"/a/b"_s << u"b"_s;
    QTest::newRow("point of a folder is none of the file") << u"/a.d/b"_s << u"b"_s;
    QTest::newRow("hidden file") << u"/a/.profil"_s << u".profil"_s;
    QTest::newRow("point at the end") << u"/a/b."_s << u"b"_s;
    QTest::newRow("separator at the end") << u"/a/b.c/"_s << u"b"_s;
    QTest::newRow("name alone") << u"b.txt"_s << u"b"_s;
    QTest::newRow("the root") << u"/"_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChemin::nomSansExtension()
{
    QFETCH(QString, chemin);
    QTEST(QString(UniChemin(chemin).DonneDernierComposantCheminSaufExtension()), "attendu");
}

void tst_UniChemin::separateurInverse()
{
    bool const estSeparateur = QDir::separator() == u'\\';
    QString const parent = UniChemin("C:\\a\\b").DonneChaineEnEnlevantDernierComposantChemin();
    QCOMPARE(parent, estSeparateur ? u"C:\\a"_s : QString());
}

QTEST_GUILESS_MAIN(tst_UniChemin)
#include "tst_UniChemin.moc"
