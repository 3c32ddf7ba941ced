// tests/noyau/tst_RoutinesTexte.cpp
#include "noyau/RoutinesTexte.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

using RoutinesGeneralesQt::ContenuFichier;
using RoutinesGeneralesQt::HTMLiser;

class tst_RoutinesTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contenuFichier_data();
    void contenuFichier();
    void contenuIllisible();
    void contenuDeRessource();
    void htmliser_data();
    void htmliser();
    void htmliserSansBalises();
    void htmliserLongEtOuvert();
};

void tst_RoutinesTexte::contenuFichier_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("accents") << "\xC3\xA9t\xC3\xA9"_ba << u"été"_s;
    QTest::newRow("line ends stay") << "a\r\nb\n"_ba << u"a\r\nb\n"_s;
    QTest::newRow("NUL is a unit") << QByteArray("a\0b", 3) << QString(u"a"_s + QChar(0) + u'b');
    QTest::newRow("malformed is replaced")
        << "a\xFF"_ba << QString(u"a"_s + QChar(QChar::ReplacementCharacter));
    QTest::newRow("larger than a block") << QByteArray(100'000, 'x') << QString(100'000, u'x');
}

void tst_RoutinesTexte::contenuFichier()
{
    QFETCH(QByteArray, octets);
    QTemporaryDir const dossier;
    QString const chemin = dossier.filePath(u"été.txt"_s);
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write(octets);
    fichier.close();
    QTEST(ContenuFichier(chemin), "attendu");
}

void tst_RoutinesTexte::contenuIllisible()
{
    QTemporaryDir const dossier;
    QCOMPARE(ContenuFichier(dossier.filePath(u"absent"_s)), QString());
    QCOMPARE(ContenuFichier(dossier.path()), QString());
    QCOMPARE(ContenuFichier(QString()), QString());
    QCOMPARE(ContenuFichier(u":/absent"_s), QString());
}

void tst_RoutinesTexte::contenuDeRessource()
{
    // The catalogue's texts lie in it as they are.
    QString const catalogue = ContenuFichier(u":/fichiers/NoyauEn.mo"_s);
    QVERIFY(catalogue.contains(u"Cannot Open"));
}

void tst_RoutinesTexte::htmliser_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("balises");
    QTest::addColumn<QString>("attendu");
    QStringList const aucune;
    QStringList const gras{u"b"_s, u"a"_s};
    QTest::newRow("empty") << QString() << aucune << QString();
    QTest::newRow("reserved characters")
        << u"<a & \"b\">"_s << aucune << u"&lt;a &amp; &quot;b&quot;&gt;"_s;
    QTest::newRow("apostrophes stay") << u"l'été"_s << aucune << u"l'été"_s;
    QTest::newRow("line feed") << u"a\nb\n"_s << aucune << u"a<br>b<br>"_s;
    QTest::newRow("entities are text") << u"&lt;"_s << aucune << u"&amp;lt;"_s;
    QTest::newRow("no list, no tag stays") << u"<b>"_s << aucune << u"&lt;b&gt;"_s;
    QTest::newRow("listed tag stays") << u"<b>x</b>"_s << gras << u"<b>x</b>"_s;
    QTest::newRow("unlisted tag is escaped") << u"<i>x</i>"_s << gras << u"&lt;i&gt;x&lt;/i&gt;"_s;
    QTest::newRow("text in a listed tag is escaped")
        << u"<b>1 < 2</b>"_s << gras << u"<b>1 &lt; 2</b>"_s;
    QTest::newRow("attributes stay") << u"<a href=\"x?y&z\">"_s << gras << u"<a href=\"x?y&z\">"_s;
    QTest::newRow("closed at once") << u"<b/><b />"_s << gras << u"<b/><b />"_s;
    QTest::newRow("name must be whole") << u"<br><bb>"_s << gras << u"&lt;br&gt;&lt;bb&gt;"_s;
    QTest::newRow("the case counts") << u"<B>"_s << gras << u"&lt;B&gt;"_s;
    QTest::newRow("blank before the name is no tag") << u"< b>"_s << gras << u"&lt; b&gt;"_s;
    QTest::newRow("listed tag without an end") << u"<b"_s << gras << u"&lt;b"_s;
    QTest::newRow("listed tag without an end behind a tag") << u"<b><b"_s << gras << u"<b>&lt;b"_s;
    QTest::newRow("bracket at the end") << u"a<"_s << gras << u"a&lt;"_s;
    QTest::newRow("empty tag") << u"<></>"_s << gras << u"&lt;&gt;&lt;/&gt;"_s;
}

void tst_RoutinesTexte::htmliser()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, balises);
    HTMLiser(texte, balises);
    QTEST(texte, "attendu");
}

void tst_RoutinesTexte::htmliserSansBalises()
{
    QString texte = u"<b>"_s;
    HTMLiser(texte);
    QCOMPARE(texte, u"&lt;b&gt;"_s);
}

// A text of brackets must not cost the square of its length.
void tst_RoutinesTexte::htmliserLongEtOuvert()
{
    constexpr qsizetype kRepetitions = 1'000'000;
    constexpr qint64 kDureeMax = 10'000; // ms; the square of the length takes many times that
    QElapsedTimer chrono;
    chrono.start();
    QString ouvertes = u"<b "_s.repeated(kRepetitions);
    HTMLiser(ouvertes, {u"b"_s});
    QCOMPARE(ouvertes.size(), kRepetitions * 6);
    QString inconnues = u"<i "_s.repeated(kRepetitions) + u'>';
    HTMLiser(inconnues, {u"b"_s});
    QVERIFY(inconnues.endsWith(u"&gt;"));
    QVERIFY(chrono.elapsed() < kDureeMax);
}

QTEST_GUILESS_MAIN(tst_RoutinesTexte)
#include "tst_RoutinesTexte.moc"
