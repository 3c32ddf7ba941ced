// tests/noyau/tst_UniChaineRecherche.cpp
//
// The operations of UniChaine that search, cut and edit.
#include "noyau/UniChaine.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_UniChaineRecherche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void prefixeEtSuffixe_data();
    void prefixeEtSuffixe();
    void contient_data();
    void contient();
    void contientSansPosition();
    void contientPlage();
    void contientMalgrayCasse();
    void trouveDernier_data();
    void trouveDernier();
    void trouveDernierSansPosition();
    void prefixeCommun_data();
    void prefixeCommun();
    void sousChaine_data();
    void sousChaine();
    void ajoute();
    void ajouteUnCaractere();
    void ajouteSoiMeme();
    void enleveFin_data();
    void enleveFin();
    void remplaceTout_data();
    void remplaceTout();
    void remplaceConst();
    void remplaceEtendue_data();
    void remplaceEtendue();
    void remplaceUnite();
    void nettoieBlancs_data();
    void nettoieBlancs();
    void consolideBlancs_data();
    void consolideBlancs();
    void majusculise_data();
    void majusculise();
};

void tst_UniChaineRecherche::prefixeEtSuffixe_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("partie");
    QTest::addColumn<bool>("commence");
    QTest::addColumn<bool>("termine");
    QTest::newRow("the whole text") << u"abc"_s << u"abc"_s << true << true;
    QTest::newRow("start only") << u"abc"_s << u"ab"_s << true << false;
    QTest::newRow("end only") << u"abc"_s << u"bc"_s << false << true;
    QTest::newRow("the case counts") << u"abc"_s << u"A"_s << false << false;
    QTest::newRow("longer than the text") << u"abc"_s << u"abcd"_s << false << false;
    QTest::newRow("the empty text is both") << u"abc"_s << QString() << true << true;
    QTest::newRow("the empty text of the empty text") << QString() << QString() << true << true;
}

void tst_UniChaineRecherche::prefixeEtSuffixe()
{
    QFETCH(QString, texte);
    QFETCH(QString, partie);
    QTEST(UniChaine(texte).CommencePar(UniChaine(partie)), "commence");
    QTEST(UniChaine(texte).TerminePar(UniChaine(partie)), "termine");
}

void tst_UniChaineRecherche::contient_data()
{
    constexpr int kAbsent = -1;
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("cherchay");
    QTest::addColumn<unsigned>("debut");
    QTest::addColumn<int>("attendu");
    QTest::newRow("first match") << u"ananas"_s << u"an"_s << 0U << 0;
    QTest::newRow("match at the start position") << u"ananas"_s << u"an"_s << 2U << 2;
    QTest::newRow("match behind the start position") << u"ananas"_s << u"an"_s << 1U << 2;
    QTest::newRow("no match left") << u"ananas"_s << u"an"_s << 3U << kAbsent;
    QTest::newRow("last unit") << u"ananas"_s << u"s"_s << 5U << 5;
    QTest::newRow("start at the end") << u"ananas"_s << u"s"_s << 6U << kAbsent;
    QTest::newRow("start past the end") << u"ananas"_s << u"s"_s << 99U << kAbsent;
    QTest::newRow("largest start") << u"ananas"_s << u"s"_s << 0xFFFFFFFFU << kAbsent;
    QTest::newRow("exact case") << u"Ananas"_s << u"a"_s << 0U << 2;
    QTest::newRow("longer than the text") << u"an"_s << u"ananas"_s << 0U << kAbsent;
    QTest::newRow("in the empty text") << QString() << u"a"_s << 0U << kAbsent;
    QTest::newRow("empty text at the start") << u"abc"_s << QString() << 0U << 0;
    QTest::newRow("empty text at the position") << u"abc"_s << QString() << 2U << 2;
    QTest::newRow("empty text at the end") << u"abc"_s << QString() << 3U << 3;
    QTest::newRow("empty text past the end") << u"abc"_s << QString() << 4U << kAbsent;
    QTest::newRow("empty text in the empty text") << QString() << QString() << 0U << 0;
}

void tst_UniChaineRecherche::contient()
{
    QFETCH(QString, texte);
    QFETCH(QString, cherchay);
    QFETCH(unsigned, debut);
    QFETCH(int, attendu);
    constexpr unsigned kTemoin = 77;
    unsigned position = kTemoin;
    bool const trouvay =
        UniChaine(texte).Contient(UniChaine(cherchay), &position, debut, UniChaine::kExact);
    QCOMPARE(trouvay, attendu >= 0);
    QCOMPARE(position, trouvay ? static_cast<unsigned>(attendu) : kTemoin);
}

void tst_UniChaineRecherche::contientSansPosition()
{
    UniChaine const chaine("ananas");
    UniChaine const partie("nas");
    QVERIFY(chaine.Contient(partie, nullptr, 0, UniChaine::kExact));
    QVERIFY(!chaine.Contient(partie, nullptr, 4, UniChaine::kExact));
    QVERIFY(chaine.Contient(partie, nullptr, 0));
    QVERIFY(chaine.Contient(partie, nullptr));
    QVERIFY(chaine.Contient(partie));
    QVERIFY(!chaine.Contient(UniChaine("x")));
}

void tst_UniChaineRecherche::contientPlage()
{
    UniChaine const chaine("ananas");
    UniChaine::Plage plage;
    QVERIFY(chaine.Contient(UniChaine("ana"), &plage, 0));
    QCOMPARE(plage.debut, 0U);
    QCOMPARE(plage.fin, 3U);
    QVERIFY(chaine.Contient(UniChaine("ana"), &plage, 1));
    QCOMPARE(plage.debut, 2U);
    QCOMPARE(plage.fin, 5U);
    QVERIFY(!chaine.Contient(UniChaine("ana"), &plage, 3));
    QCOMPARE(plage.debut, 2U);
    QVERIFY(chaine.Contient(UniChaine(), &plage, 6));
    QCOMPARE(plage.debut, 6U);
    QCOMPARE(plage.fin, 6U);
}

void tst_UniChaineRecherche::contientMalgrayCasse()
{
    unsigned position = 0;
    QVERIFY(!UniChaine("ÉTÉ").Contient(UniChaine("té"), &position, 0, UniChaine::kExact));
    QVERIFY(UniChaine("ÉTÉ").Contient(UniChaine("té"), &position, 0, UniChaine::kMalgrayCasse));
    QCOMPARE(position, 1U);
}

void tst_UniChaineRecherche::trouveDernier_data()
{
    constexpr int kAbsent = -1;
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("cherchay");
    QTest::addColumn<int>("limite");
    QTest::addColumn<int>("attendu");
    QTest::newRow("-1 is the end of the text") << u"ananas"_s << u"an"_s << -1 << 2;
    QTest::newRow("match that ends at the limit") << u"ananas"_s << u"an"_s << 4 << 2;
    QTest::newRow("match that crosses the limit is none") << u"ananas"_s << u"an"_s << 3 << 0;
    QTest::newRow("one unit that ends at the limit") << u"abcb"_s << u"b"_s << 2 << 1;
    QTest::newRow("one unit at the limit is behind it") << u"abcb"_s << u"b"_s << 1 << kAbsent;
    QTest::newRow("one unit at the end") << u"abcb"_s << u"b"_s << -1 << 3;
    QTest::newRow("limit 0 leaves nothing") << u"ananas"_s << u"a"_s << 0 << kAbsent;
    QTest::newRow("limit past the end") << u"ananas"_s << u"an"_s << 99 << 2;
    QTest::newRow("absent") << u"ananas"_s << u"x"_s << -1 << kAbsent;
    QTest::newRow("exact case") << u"anAN"_s << u"an"_s << -1 << 0;
    QTest::newRow("longer than the text") << u"an"_s << u"ananas"_s << -1 << kAbsent;
    QTest::newRow("in the empty text") << QString() << u"a"_s << -1 << kAbsent;
    QTest::newRow("empty text at the end") << u"abc"_s << QString() << -1 << 3;
    QTest::newRow("empty text at the limit") << u"abc"_s << QString() << 1 << 1;
    QTest::newRow("empty text in the empty text") << QString() << QString() << -1 << 0;
}

void tst_UniChaineRecherche::trouveDernier()
{
    QFETCH(QString, texte);
    QFETCH(QString, cherchay);
    QFETCH(int, limite);
    QFETCH(int, attendu);
    constexpr int kTemoin = 77;
    int position = kTemoin;
    bool const trouvay = UniChaine(texte).TrouveDernier(UniChaine(cherchay), &position, limite);
    QCOMPARE(trouvay, attendu >= 0);
    QCOMPARE(position, trouvay ? attendu : kTemoin);
}

void tst_UniChaineRecherche::trouveDernierSansPosition()
{
    QVERIFY(UniChaine("abc").TrouveDernier(UniChaine("b"), nullptr, -1));
    QVERIFY(!UniChaine("abc").TrouveDernier(UniChaine("b"), nullptr, 1));
    QVERIFY(UniChaine("abc").TrouveDernier(UniChaine("b")));
}

void tst_UniChaineRecherche::prefixeCommun_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<unsigned>("longueur");
    QTest::newRow("nothing in common") << u"abc"_s << u"xbc"_s << 0U;
    QTest::newRow("some") << u"abcd"_s << u"abx"_s << 2U;
    QTest::newRow("one is the start of the other") << u"ab"_s << u"abcd"_s << 2U;
    QTest::newRow("equal") << u"abc"_s << u"abc"_s << 3U;
    QTest::newRow("the case counts") << u"aBc"_s << u"abc"_s << 1U;
    QTest::newRow("empty") << QString() << u"abc"_s << 0U;
}

void tst_UniChaineRecherche::prefixeCommun()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(UniChaine(a).LongueurPrefixeCommun(UniChaine(b)), "longueur");
    QTEST(UniChaine(b).LongueurPrefixeCommun(UniChaine(a)), "longueur");
}

void tst_UniChaineRecherche::sousChaine_data()
{
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("longueur");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("middle") << 1 << 2 << u"bc"_s;
    QTest::newRow("-1 is up to the end") << 2 << -1 << u"cdef"_s;
    QTest::newRow("nothing") << 2 << 0 << QString();
    QTest::newRow("length past the end") << 4 << 99 << u"ef"_s;
    QTest::newRow("largest length") << 4 << std::numeric_limits<int>::max() << u"ef"_s;
    QTest::newRow("start at the end") << 6 << -1 << QString();
    QTest::newRow("start past the end") << 7 << 1 << QString();
    QTest::newRow("part before the text is cut off") << -2 << 3 << u"a"_s;
    QTest::newRow("wholly before the text") << -3 << 2 << QString();
    QTest::newRow("from before the text to the end") << -3 << -1 << u"abcdef"_s;
}

void tst_UniChaineRecherche::sousChaine()
{
    QFETCH(int, debut);
    QFETCH(int, longueur);
    QFETCH(QString, attendu);
    QCOMPARE(QString(UniChaine("abcdef").SousChaine(debut, longueur)), attendu);
    QVERIFY(UniChaine().SousChaine(debut, longueur).EstVide());
}

void tst_UniChaineRecherche::ajoute()
{
    UniChaine chaine("b");
    QCOMPARE(&chaine.AjouteFin(UniChaine("c")), &chaine);
    QCOMPARE(&(chaine += UniChaine("d")), &chaine);
    QCOMPARE(&chaine.AjouteDebut(UniChaine("a")), &chaine);
    QCOMPARE(QString(chaine), u"abcd"_s);
    chaine += kUniChaineNulle;
    chaine.AjouteDebut(kUniChaineNulle);
    QCOMPARE(QString(chaine), u"abcd"_s);
    QCOMPARE(QString(chaine + UniChaine("e")), u"abcde"_s);
    QCOMPARE(QString(chaine + u"e"_s), u"abcde"_s);
    QCOMPARE(QString(u"-"_s + chaine), u"-abcd"_s);
    QCOMPARE(QString(chaine), u"abcd"_s);
}

void tst_UniChaineRecherche::ajouteUnCaractere()
{
    UniChaine chaine;
    chaine.AjouteFin(L'é');
    chaine += L'\0';
    chaine += L'b';
    QCOMPARE(chaine.Longueur(), 3U);
    QCOMPARE(chaine[0], L'é');
    QCOMPARE(chaine[1], L'\0');
    QCOMPARE(chaine[2], L'b');
    if constexpr (sizeof(wchar_t) > sizeof(char16_t)) {
        chaine.AjouteFin(L'\U0001F600');
        QCOMPARE(chaine.Longueur(), 5U);
        QVERIFY(chaine.TerminePar(UniChaine("\xF0\x9F\x98\x80")));
    }
}

void tst_UniChaineRecherche::ajouteSoiMeme()
{
    UniChaine chaine("ab");
    chaine += chaine;
    QCOMPARE(QString(chaine), u"abab"_s);
    chaine.AjouteDebut(chaine);
    QCOMPARE(QString(chaine), u"abababab"_s);
    chaine.Remplace(1, 6, chaine);
    QCOMPARE(QString(chaine), u"aababababb"_s);
    chaine.Remplace(chaine, chaine);
    QCOMPARE(QString(chaine), u"aababababb"_s);
}

void tst_UniChaineRecherche::enleveFin_data()
{
    QTest::addColumn<unsigned>("nombre");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("none") << 0U << u"abc"_s;
    QTest::newRow("some") << 2U << u"a"_s;
    QTest::newRow("all") << 3U << QString();
    QTest::newRow("more than there are") << 4U << QString();
    QTest::newRow("largest count") << 0xFFFFFFFFU << QString();
}

void tst_UniChaineRecherche::enleveFin()
{
    QFETCH(unsigned, nombre);
    UniChaine chaine("abc");
    QCOMPARE(&chaine.EnleveFin(nombre), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineRecherche::remplaceTout_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("cherchay");
    QTest::addColumn<QString>("remplacement");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("every occurrence") << u"a-b-c"_s << u"-"_s << u"+"_s << u"a+b+c"_s;
    QTest::newRow("shorter") << u"a--b--"_s << u"--"_s << u"."_s << u"a.b."_s;
    QTest::newRow("longer") << u"aa"_s << u"a"_s << u"bcd"_s << u"bcdbcd"_s;
    QTest::newRow("by nothing") << u"a-b-"_s << u"-"_s << QString() << u"ab"_s;
    QTest::newRow("from the left") << u"aaa"_s << u"aa"_s << u"b"_s << u"ba"_s;
    QTest::newRow("what was put in is not searched") << u"a"_s << u"a"_s << u"aa"_s << u"aa"_s;
    QTest::newRow("absent") << u"abc"_s << u"x"_s << u"y"_s << u"abc"_s;
    QTest::newRow("exact case") << u"aA"_s << u"A"_s << u"b"_s << u"ab"_s;
    QTest::newRow("empty search text replaces nothing")
        << u"abc"_s << QString() << u"x"_s << u"abc"_s;
    QTest::newRow("in the empty text") << QString() << u"a"_s << u"x"_s << QString();
}

void tst_UniChaineRecherche::remplaceTout()
{
    QFETCH(QString, texte);
    QFETCH(QString, cherchay);
    QFETCH(QString, remplacement);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.Remplace(UniChaine(cherchay), UniChaine(remplacement)), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineRecherche::remplaceConst()
{
    UniChaine const chaine("a-b");
    UniChaine const resultat = chaine.Remplace(UniChaine("-"), UniChaine("+"));
    QCOMPARE(QString(resultat), u"a+b"_s);
    QCOMPARE(QString(chaine), u"a-b"_s);
}

void tst_UniChaineRecherche::remplaceEtendue_data()
{
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("longueur");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("middle") << 1 << 2 << u"aXYd"_s;
    QTest::newRow("length 0 inserts") << 1 << 0 << u"aXYbcd"_s;
    QTest::newRow("at the end inserts") << 4 << 0 << u"abcdXY"_s;
    QTest::newRow("-1 is up to the end") << 2 << -1 << u"abXY"_s;
    QTest::newRow("length past the end") << 2 << 99 << u"abXY"_s;
    QTest::newRow("start past the end appends") << 99 << 1 << u"abcdXY"_s;
    QTest::newRow("part before the text is cut off") << -1 << 2 << u"XYbcd"_s;
    QTest::newRow("wholly before the text inserts") << -3 << 2 << u"XYabcd"_s;
}

void tst_UniChaineRecherche::remplaceEtendue()
{
    QFETCH(int, debut);
    QFETCH(int, longueur);
    UniChaine chaine("abcd");
    QCOMPARE(&chaine.Remplace(debut, longueur, UniChaine("XY")), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineRecherche::remplaceUnite()
{
    UniChaine chaine("a/b/c");
    QCOMPARE(&chaine.Remplace(L'/', L'\\'), &chaine);
    QCOMPARE(QString(chaine), u"a\\b\\c"_s);
    if constexpr (sizeof(wchar_t) > sizeof(char16_t)) {
        // No unit is U+1F600, not even the one that its low 16 bits would be.
        UniChaine privee(QString(QChar(0xF600)));
        privee.Remplace(static_cast<wchar_t>(0x1F600), L'x');
        QCOMPARE(QString(privee), QString(QChar(0xF600)));
        privee.Remplace(static_cast<wchar_t>(0xF600), static_cast<wchar_t>(0x1F600));
        QCOMPARE(QString(privee), u"\U0001F600"_s);
    }
    chaine.Remplace(L'x', L'y');
    QCOMPARE(QString(chaine), u"a\\b\\c"_s);
}

void tst_UniChaineRecherche::nettoieBlancs_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("both ends") << u"  a b  "_s << u"a b"_s;
    QTest::newRow("tabs and line ends") << u"\t\r\na\n"_s << u"a"_s;
    QTest::newRow("no-break spaces") << u"\u00A0a\u202F"_s << u"a"_s;
    QTest::newRow("inside stays") << u"a \t b"_s << u"a \t b"_s;
    QTest::newRow("blank only") << u" \t "_s << QString();
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChaineRecherche::nettoieBlancs()
{
    QFETCH(QString, texte);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.NettoieBlancs(), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineRecherche::consolideBlancs_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("run becomes one blank") << u"a \t\n b"_s << u"a b"_s;
    QTest::newRow("single white space becomes a blank") << u"a\tb"_s << u"a b"_s;
    QTest::newRow("one blank stays at either end") << u"  a  "_s << u" a "_s;
    QTest::newRow("blank only") << u" \r\n "_s << u" "_s;
    QTest::newRow("nothing to do") << u"a b"_s << u"a b"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChaineRecherche::consolideBlancs()
{
    QFETCH(QString, texte);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.ConsolideBlancs(), &chaine);
    QTEST(QString(chaine), "attendu");
}

void tst_UniChaineRecherche::majusculise_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("letters") << u"abC"_s << u"ABC"_s;
    QTest::newRow("accents and ligature") << u"œuvre d’été"_s << u"ŒUVRE D’ÉTÉ"_s;
    QTest::newRow("one letter may become two") << u"groß"_s << u"GROSS"_s;
    QTest::newRow("the rest stays") << u"1 + 1"_s << u"1 + 1"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_UniChaineRecherche::majusculise()
{
    QFETCH(QString, texte);
    UniChaine chaine(texte);
    QCOMPARE(&chaine.Majusculise(), &chaine);
    QTEST(QString(chaine), "attendu");
}

QTEST_GUILESS_MAIN(tst_UniChaineRecherche)
#include "tst_UniChaineRecherche.moc"
