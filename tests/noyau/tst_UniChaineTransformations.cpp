// tests/noyau/tst_UniChaineTransformations.cpp
//
// The operations of UniChaine that read a notation: markup, percent escapes, printf models.
#include "noyau/UniChaine.h"
#include "noyau/UniChemin.h"

#include <QElapsedTimer>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;

class tst_UniChaineTransformations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nettoieHtml_data();
    void nettoieHtml();
    void nettoieHtmlLongEtOuvert_data();
    void nettoieHtmlLongEtOuvert();
    void decodeReserves_data();
    void decodeReserves();
    void desechappePourcent_data();
    void desechappePourcent();
    void formatTexte();
    void formatEntier();
    void formatReel();
    void formatModele_data();
    void formatModele();
    void formatArguments();
    void formatLimites();
};

void tst_UniChaineTransformations::nettoieHtml_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("tags go, text stays")
        << u"<b>gras</b> et <i>penché</i>"_s << u"gras et penché"_s;
    QTest::newRow("attributes") << u"<a href=\"x\">lien</a>"_s << u"lien"_s;
    QTest::newRow("bracket in an attribute") << u"<a title=\"a>b\">lien</a>"_s << u"lien"_s;
    QTest::newRow("single quotes") << u"<a title='a>b'>lien</a>"_s << u"lien"_s;
    QTest::newRow("empty element") << u"a<br/>b<hr>c"_s << u"abc"_s;
    QTest::newRow("comment") << u"a<!-- <b> -->c"_s << u"ac"_s;
    QTest::newRow("document type") << u"<!DOCTYPE html>a"_s << u"a"_s;
    QTest::newRow("processing instruction") << u"<?xml version='1.0'?>a"_s << u"a"_s;
    QTest::newRow("style is no text") << u"<style>p { color: red }</style>a"_s << u"a"_s;
    QTest::newRow("script is no text") << u"a<SCRIPT>if (1 < 2) f();</Script>b"_s << u"ab"_s;
    QTest::newRow("head is no text") << u"<head><title>t</title></head>a"_s << u"a"_s;
    QTest::newRow("header is text") << u"<header>a</header>"_s << u"a"_s;
    QTest::newRow("style without an end") << u"a<style>p { }"_s << u"a"_s;
    QTest::newRow("less-than sign is text") << u"1 < 2 > 1"_s << u"1 < 2 > 1"_s;
    QTest::newRow("less-than sign at the end") << u"a <"_s << u"a <"_s;
    QTest::newRow("tag without an end is text") << u"a <b c"_s << u"a <b c"_s;
    QTest::newRow("comment without an end is text") << u"a <!-- b"_s << u"a <!-- b"_s;
    QTest::newRow("entities stay") << u"<p>a &lt; b</p>"_s << u"a &lt; b"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChaineTransformations::nettoieHtml()
{
    QFETCH(QString, texte);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.NettoieHTML(), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineTransformations::nettoieHtmlLongEtOuvert_data()
{
    QTest::addColumn<QString>("motif");
    QTest::newRow("tags without an end") << u"<a "_s;
    QTest::newRow("comments without an end") << u"<!-- "_s;
    QTest::newRow("tags with an open quotation mark") << u"<a \""_s;
}

// A page that is broken from its start must not cost the square of its length.
void tst_UniChaineTransformations::nettoieHtmlLongEtOuvert()
{
    QFETCH(QString, motif);
    constexpr qsizetype kRepetitions = 100'000;
    constexpr qint64 kDureeMax = 10'000; // ms; the square of the length takes many times that
    QString const texte = motif.repeated(kRepetitions);
    UniChaine chaine(texte);
    QElapsedTimer chrono;
    chrono.start();
    chaine.NettoieHTML();
    QVERIFY(chrono.elapsed() < kDureeMax);
    QVERIFY(QString(chaine).size() <= texte.size());
}

void tst_UniChaineTransformations::decodeReserves_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("by name") << u"&lt;b&gt; &amp; &quot;c&quot; &apos;d&apos;"_s
                             << u"<b> & \"c\" 'd'"_s;
    QTest::newRow("decimal") << u"&#60;&#62;&#38;&#34;&#39;"_s << u"<>&\"'"_s;
    QTest::newRow("hexadecimal") << u"&#x3C;&#X3e;&#x26;&#x22;&#x27;"_s << u"<>&\"'"_s;
    QTest::newRow("leading zeros") << u"&#0039;&#x0027;"_s << u"''"_s;
    QTest::newRow("one pass") << u"&amp;lt;"_s << u"&lt;"_s;
    QTest::newRow("other entities stay") << u"&eacute;&#233;&nbsp;"_s << u"&eacute;&#233;&nbsp;"_s;
    QTest::newRow("no semicolon") << u"&lt &amp"_s << u"&lt &amp"_s;
    QTest::newRow("the case of names counts") << u"&LT;"_s << u"&LT;"_s;
    QTest::newRow("number out of range stays") << u"&#65596;"_s << u"&#65596;"_s;
    QTest::newRow("blank, sign, second prefix")
        << u"&# 38;&#+38;&#x0x26;"_s << u"&# 38;&#+38;&#x0x26;"_s;
    QTest::newRow("no number") << u"&#;&#x;&;"_s << u"&#;&#x;&;"_s;
    QTest::newRow("ampersand before an entity") << u"a & b &lt; c"_s << u"a & b < c"_s;
    QTest::newRow("ampersand at the end") << u"a&"_s << u"a&"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChaineTransformations::decodeReserves()
{
    QFETCH(QString, texte);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.DecodeCaracteresReservesHTML(), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineTransformations::desechappePourcent_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("intacts");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("one byte") << u"a%20b"_s << QString() << u"a b"_s;
    QTest::newRow("two bytes, either case") << u"%C3%a9t%c3%A9"_s << QString() << u"été"_s;
    QTest::newRow("four bytes") << u"%F0%9F%98%80"_s << QString() << u"\U0001F600"_s;
    QTest::newRow("NUL") << u"%00"_s << QString() << QString(QChar(0));
    QTest::newRow("byte order mark") << u"%EF%BB%BFa"_s << QString() << u"\uFEFFa"_s;
    QTest::newRow("one pass") << u"%2520"_s << QString() << u"%20"_s;
    QTest::newRow("characters left alone") << u"a%2Fb%20c"_s << u"/"_s << u"a%2Fb c"_s;
    QTest::newRow("accent left alone") << u"%c3%a9%20"_s << u"é"_s << u"%c3%a9 "_s;
    QTest::newRow("plus sign is no blank") << u"a+b"_s << QString() << u"a+b"_s;
    QTest::newRow("percent sign alone") << u"100%"_s << QString() << u"100%"_s;
    QTest::newRow("one digit") << u"%2"_s << QString() << u"%2"_s;
    QTest::newRow("no digits") << u"%zz%2g"_s << QString() << u"%zz%2g"_s;
    QTest::newRow("first byte alone stays") << u"%C3a"_s << QString() << u"%C3a"_s;
    QTest::newRow("continuation byte alone stays") << u"%A9"_s << QString() << u"%A9"_s;
    QTest::newRow("overlong stays") << u"%C0%AF%E0%80%AF"_s << QString() << u"%C0%AF%E0%80%AF"_s;
    QTest::newRow("surrogate stays") << u"%ED%A0%80"_s << QString() << u"%ED%A0%80"_s;
    QTest::newRow("above the last character stays")
        << u"%F4%90%80%80"_s << QString() << u"%F4%90%80%80"_s;
    QTest::newRow("valid behind invalid") << u"%C3%20"_s << QString() << u"%C3 "_s;
    QTest::newRow("empty") << QString() << QString() << QString();
}

void tst_UniChaineTransformations::desechappePourcent()
{
    QFETCH(QString, texte);
    QFETCH(QString, intacts);
    UniChaine const chaine(texte);
    QTEST(QString(chaine.DonneChaineDesechappeePourcent(UniChaine(intacts))), "attendu");
    QCOMPARE(QString(chaine), texte);
}

void tst_UniChaineTransformations::formatTexte()
{
    UniChaine chaine("avant");
    QCOMPARE(&chaine.Format(UniChaine("%s/%s"), UniChaine("été"), u"hiver"_s), &chaine);
    QCOMPARE(QString(chaine), u"été/hiver"_s);
    chaine.Format(UniChaine("%s %s"), "d\xC3\xA9j\xC3\xA0", std::string("vu"));
    QCOMPARE(QString(chaine), u"déjà vu"_s);
    chaine.Format(UniChaine("[%5s|%-5s|%.2s]"), UniChaine("abc"), UniChaine("abc"),
                  UniChaine("abc"));
    QCOMPARE(QString(chaine), u"[  abc|abc  |ab]"_s);
    chaine.Format(UniChaine("%s"), UniChemin("/tmp/a"));
    QCOMPARE(QString(chaine), u"/tmp/a"_s);
    chaine.Format(UniChaine("%s"), UniChaine("%s %d"));
    QCOMPARE(QString(chaine), u"%s %d"_s);
    chaine = UniChaine("%s!");
    chaine.Format(chaine, chaine);
    QCOMPARE(QString(chaine), u"%s!!"_s);
    chaine.Format(UniChaine("<%s>"), nullptr);
    QCOMPARE(QString(chaine), u"<>"_s);
    chaine.Format(UniChaine("%s"), "\xEF\xBB\xBF"
                                   "a"); // the mark is text like any other
    QCOMPARE(chaine.Longueur(), 2U);
}

void tst_UniChaineTransformations::formatEntier()
{
    UniChaine chaine;
    chaine.Format(UniChaine("%d %i %u"), -42, 7, 42U);
    QCOMPARE(QString(chaine), u"-42 7 42"_s);
    chaine.Format(UniChaine("%x %X %o"), 255, 255, 8);
    QCOMPARE(QString(chaine), u"ff FF 10"_s);
    chaine.Format(UniChaine("%x %u %hx %llx"), -1, -2, short(-1), -1LL);
    QCOMPARE(QString(chaine), u"ffffffff 4294967294 ffff ffffffffffffffff"_s);
    chaine.Format(UniChaine("%x %u %hhx %hx"), short(-1), short(-2), -1, 0x12345);
    QCOMPARE(QString(chaine), u"ffffffff 4294967294 ff 2345"_s); // a short is promoted
    chaine.Format(UniChaine("%s"), L"é");
    QCOMPARE(QString(chaine), u"é"_s);
    chaine.Format(UniChaine("%05d|%-5d|%+d|%5d"), 42, 42, 42, 42);
    QCOMPARE(QString(chaine), u"00042|42   |+42|   42"_s);
    chaine.Format(UniChaine("%c%c"), 'A', L'é');
    QCOMPARE(QString(chaine), u"Aé"_s);
    chaine.Format(UniChaine("%ld %lld %zu %hd"), 1L, 2LL, std::size_t(3), short(4));
    QCOMPARE(QString(chaine), u"1 2 3 4"_s);
    chaine.Format(UniChaine("%s %s"), 12, -3);
    QCOMPARE(QString(chaine), u"12 -3"_s);
}

void tst_UniChaineTransformations::formatReel()
{
    UniChaine chaine;
    chaine.Format(UniChaine("%.2f %f"), 3.14159, 0.5F);
    QCOMPARE(QString(chaine), u"3.14 0.500000"_s);
    chaine.Format(UniChaine("%e|%g|%6.1f"), 1500.0, 0.25, 2.5);
    QCOMPARE(QString(chaine), u"1.500000e+03|0.25|   2.5"_s);
    chaine.Format(UniChaine("%d %s %.1f"), 2.9, 0.25, 3);
    QCOMPARE(QString(chaine), u"2 0.25 3.0"_s);
}

void tst_UniChaineTransformations::formatModele_data()
{
    QTest::addColumn<QString>("modele");
    QTest::addColumn<QString>("attendu"); // with the arguments "a" and 1
    QTest::newRow("no conversion") << u"texte"_s << u"texte"_s;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("percent sign") << u"100%%"_s << u"100%"_s;
    QTest::newRow("percent sign takes no argument") << u"%%%s%%%d"_s << u"%a%1"_s;
    QTest::newRow("fewer conversions than arguments") << u"%s"_s << u"a"_s;
    QTest::newRow("conversion without an argument stays") << u"%s %d %s"_s << u"a 1 %s"_s;
    QTest::newRow("unknown conversion stays") << u"%y%s"_s << u"%ya"_s;
    QTest::newRow("writing conversion stays") << u"%n%s"_s << u"%na"_s;
    QTest::newRow("percent sign at the end") << u"%s %"_s << u"a %"_s;
    QTest::newRow("options at the end") << u"%s %-5."_s << u"a %-5."_s;
    QTest::newRow("absurd width stays") << u"%99999999999d"_s << u"%99999999999d"_s;
    QTest::newRow("two points stay") << u"%1.2.3s"_s << u"%1.2.3s"_s;
    QTest::newRow("width from an argument stays") << u"%*d"_s << u"%*d"_s;
    QTest::newRow("text for a number is text") << u"%d"_s << u"a"_s;
    QTest::newRow("accents") << u"é%sé"_s << u"éaé"_s;
}

void tst_UniChaineTransformations::formatModele()
{
    QFETCH(QString, modele);
    UniChaine chaine;
    chaine.Format(UniChaine(modele), UniChaine("a"), 1);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineTransformations::formatArguments()
{
    UniChaine chaine;
    chaine.Format(UniChaine("%s"));
    QCOMPARE(QString(chaine), u"%s"_s);
    chaine.Format(UniChaine("[%s]"), static_cast<char const *>(nullptr));
    QCOMPARE(QString(chaine), u"[]"_s);
    chaine.Format(UniChaine("[%s]"), QString());
    QCOMPARE(QString(chaine), u"[]"_s);
    chaine.Format(UniChaine("%d %d"), true, false);
    QCOMPARE(QString(chaine), u"1 0"_s);
    chaine.Format(UniChaine("[%c]"), -1);
    QCOMPARE(QString(chaine), u"[]"_s);
    QString const seul(QChar(0xD83D));
    chaine.Format(UniChaine("%s"), seul);
    QCOMPARE(QString(chaine), seul);
}

void tst_UniChaineTransformations::formatLimites()
{
    UniChaine chaine;
    chaine.Format(UniChaine("%d"), std::numeric_limits<qint64>::min());
    QCOMPARE(QString(chaine), u"-9223372036854775808"_s);
    chaine.Format(UniChaine("%u %d"), std::numeric_limits<quint64>::max(),
                  std::numeric_limits<quint64>::max());
    QCOMPARE(QString(chaine), u"18446744073709551615 18446744073709551615"_s);
    chaine.Format(UniChaine("%999d"), 1);
    QCOMPARE(chaine.Longueur(), 999U);
    chaine.Format(UniChaine("%d|%d"), 1e300, -1e300);
    QCOMPARE(QString(chaine), u"9223372036854775807|-9223372036854775808"_s);
    chaine.Format(UniChaine("%d"), qQNaN());
    QCOMPARE(QString(chaine), u"0"_s);
}

QTEST_GUILESS_MAIN(tst_UniChaineTransformations)
#include "tst_UniChaineTransformations.moc"
