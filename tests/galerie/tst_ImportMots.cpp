#include "ImportMots.h"

#include "MotsFrancais.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace ImportMots;

class tst_ImportMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codageDevine_data();
    void codageDevine();
    void decode_data();
    void decode();
    void decodeRefuse_data();
    void decodeRefuse();
    void separateurDevine_data();
    void separateurDevine();
    void formatDevine_data();
    void formatDevine();
    void rangees_data();
    void rangees();
    void premieresRangees();
    void mots_data();
    void mots();
    void ligneDUnMegaoctet();
    void tri_data();
    void tri();
    void motifs();
    void ecartesMontres();
    void verification();
    void verificationSansListe();
    void lineaire();

private:
    static Format CreeFormat(eSeparateur separateur, int colonne, bool avecEnTete = false);
};

Format tst_ImportMots::CreeFormat(eSeparateur separateur, int colonne, bool avecEnTete)
{
    Format format;
    format.separateur = separateur;
    format.colonne = colonne;
    format.avecEnTete = avecEnTete;
    return format;
}

void tst_ImportMots::codageDevine_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<eCodage>("codage");
    QTest::newRow("nothing") << QByteArray() << kUtf8;
    QTest::newRow("letters without accents") << QByteArray("mot\n") << kUtf8;
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA9t\xC3\xA9") << kUtf8;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFmot") << kUtf8;
    QTest::newRow("Latin-1") << QByteArray("\xE9t\xE9") << kLatin1;
    QTest::newRow("UTF-8 cut off at the end") << QByteArray("\xC3\xA9t\xC3") << kLatin1;
    QTest::newRow("too long a form of a character") << QByteArray("\xC0\xAF") << kLatin1;
}

void tst_ImportMots::codageDevine()
{
    QFETCH(QByteArray, octets);
    QFETCH(eCodage, codage);
    QCOMPARE(DevineCodage(octets), codage);
    QVERIFY(Decode(octets, codage)); // what is guessed can be read
}

void tst_ImportMots::decode_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<eCodage>("codage");
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << QByteArray() << kUtf8 << QString();
    QTest::newRow("UTF-8") << QByteArray("\xC3\xA9t\xC3\xA9\n") << kUtf8 << u"été\n"_s;
    QTest::newRow("Latin-1") << QByteArray("\xE9t\xE9\n") << kLatin1 << u"été\n"_s;
    QTest::newRow("UTF-8 read as Latin-1") << QByteArray("\xC3\xA9") << kLatin1 << u"Ã©"_s;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFmot") << kUtf8 << u"mot"_s;
    QTest::newRow("ends of lines of Windows")
        << QByteArray("a\r\n\r\nb\r\n") << kUtf8 << u"a\n\nb\n"_s;
    QTest::newRow("ends of lines of old") << QByteArray("a\rb") << kLatin1 << u"a\nb"_s;
    QTest::newRow("accents that stand apart") << QByteArray("e\xCC\x81te") << kUtf8 << u"éte"_s;
}

void tst_ImportMots::decode()
{
    QFETCH(QByteArray, octets);
    QFETCH(eCodage, codage);
    QFETCH(QString, texte);
    QCOMPARE(Decode(octets, codage), std::optional(texte));
}

void tst_ImportMots::decodeRefuse_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<eCodage>("codage");
    QTest::newRow("Latin-1 read as UTF-8") << QByteArray("\xE9t\xE9") << kUtf8;
    QTest::newRow("cut off at the end") << QByteArray("t\xC3") << kUtf8;
    QTest::newRow("null byte") << QByteArray("a\0b", 3) << kUtf8;
    QTest::newRow("null byte in Latin-1") << QByteArray("a\0b", 3) << kLatin1;
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFEm\0o\0t\0", 8) << kLatin1;
}

void tst_ImportMots::decodeRefuse()
{
    QFETCH(QByteArray, octets);
    QFETCH(eCodage, codage);
    QVERIFY(!Decode(octets, codage));
}

void tst_ImportMots::separateurDevine_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<eSeparateur>("separateur");
    QTest::newRow("nothing") << QString() << kLigne;
    QTest::newRow("blank lines only") << u"\n \n\t\n"_s << kLigne;
    QTest::newRow("a word in each line") << u"arbre\nbateau\n"_s << kLigne;
    QTest::newRow("commas across") << u"arbre, bateau, chat"_s << kVirgule;
    QTest::newRow("semicolons") << u"arbre;n. m.\nbateau;n. m.\n"_s << kPointVirgule;
    QTest::newRow("tabs") << u"arbre\tn. m.\nbateau\tn. m.\n"_s << kTabulation;
    QTest::newRow("the one of most lines") << u"a;x, y\nb;x\nc;x, y, z\nd;x\n"_s << kPointVirgule;
    QTest::newRow("half of the lines are too few") << u"a, b\nc\nd, e\nf\n"_s << kLigne;
    QTest::newRow("more than half") << u"a, b\nc\nd, e\n"_s << kVirgule;
    QTest::newRow("told from the first lines")
        << u"a;b\n"_s.repeated(50) + u"c\n"_s.repeated(60) << kPointVirgule;
    QTest::newRow("a tab rather than a comma in as many") << u"a,b\tc\na,b\tc"_s << kTabulation;
}

void tst_ImportMots::separateurDevine()
{
    QFETCH(QString, texte);
    QFETCH(eSeparateur, separateur);
    QCOMPARE(DevineSeparateur(texte), separateur);
}

void tst_ImportMots::formatDevine_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<eCodage>("codage");
    QTest::addColumn<eSeparateur>("separateur");
    QTest::addColumn<int>("colonne");
    QTest::newRow("nothing") << QByteArray() << kUtf8 << kLigne << 0;
    QTest::newRow("binary") << QByteArray("\0\xFF,\xFE", 4) << kLatin1 << kLigne << 0;
    QTest::newRow("lines") << QByteArray("a\nb") << kUtf8 << kLigne << 0;
    QTest::newRow("one line across") << QByteArray("\n\xE9, b, c\n") << kLatin1 << kVirgule << 0;
    QTest::newRow("a table") << QByteArray("a;1\nb;2") << kUtf8 << kPointVirgule << 1;
}

void tst_ImportMots::formatDevine()
{
    QFETCH(QByteArray, octets);
    Format const format = DevineFormat(octets);
    QTEST(format.codage, "codage");
    QTEST(format.separateur, "separateur");
    QTEST(format.colonne, "colonne");
    QVERIFY(!format.avecEnTete);
}

void tst_ImportMots::rangees_data()
{
    QTest::addColumn<QString>("ligne");
    QTest::addColumn<eSeparateur>("separateur");
    QTest::addColumn<QStringList>("cellules");
    QTest::newRow("line") << u" a, \"b\"; c\t"_s << kLigne << QStringList{u"a, \"b\"; c"_s};
    QTest::newRow("blanks around") << u" a , b "_s << kVirgule << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("empty cells") << u",a,,"_s << kVirgule
                                 << QStringList{u""_s, u"a"_s, u""_s, u""_s};
    QTest::newRow("empty cells between tabs")
        << u"\ta\t"_s << kTabulation << QStringList{u""_s, u"a"_s, u""_s};
    QTest::newRow("no separator") << u"a b"_s << kPointVirgule << QStringList{u"a b"_s};
    QTest::newRow("quotation marks")
        << u"\"a, b\", \"c\""_s << kVirgule << QStringList{u"a, b"_s, u"c"_s};
    QTest::newRow("blanks in quotation marks")
        << u"\" a \" ,b"_s << kVirgule << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("doubled quotation marks")
        << u"\"dit \"\"a\"\"\";b"_s << kPointVirgule << QStringList{u"dit \"a\""_s, u"b"_s};
    QTest::newRow("mark that is not closed") << u"\"a,b"_s << kVirgule << QStringList{u"a,b"_s};
    QTest::newRow("text behind a mark")
        << u"\"a,\"b,c"_s << kVirgule << QStringList{u"a,b"_s, u"c"_s};
    QTest::newRow("mark inside") << u"a\"b,c\""_s << kVirgule << QStringList{u"a\"b"_s, u"c\""_s};
    QTest::newRow("nothing in quotation marks")
        << u"\"\",a"_s << kVirgule << QStringList{u""_s, u"a"_s};
}

void tst_ImportMots::rangees()
{
    QFETCH(QString, ligne);
    QFETCH(eSeparateur, separateur);
    QFETCH(QStringList, cellules);
    QCOMPARE(DonneRangees(ligne, separateur, 5), QList<QStringList>{cellules});
}

void tst_ImportMots::premieresRangees()
{
    QString const texte = u"\na\n  \nb\nc"_s;
    QCOMPARE(DonneRangees(texte, kLigne, 2), (QList<QStringList>{{u"a"_s}, {u"b"_s}}));
    QCOMPARE(DonneRangees(texte, kLigne, 9).size(), 3);
    QVERIFY(DonneRangees(texte, kLigne, 0).isEmpty());
    QVERIFY(DonneRangees(texte, kLigne, -1).isEmpty());
    QVERIFY(DonneRangees(QString(), kVirgule, 5).isEmpty());
}

void tst_ImportMots::mots_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<Format>("format");
    QTest::addColumn<QStringList>("mots");
    QString const table = u"mot;genre\n\narbre;n. m.\nchat\n;n. f.\n"_s;
    QTest::newRow("nothing") << QString() << CreeFormat(kLigne, 0) << QStringList();
    QTest::newRow("lines") << u"\narbre \n\n chat"_s << CreeFormat(kLigne, 0)
                           << QStringList{u"arbre"_s, u"chat"_s};
    QTest::newRow("lines have no columns")
        << u"a;b\nc"_s << CreeFormat(kLigne, 2) << QStringList{u"a;b"_s, u"c"_s};
    QTest::newRow("first column") << table << CreeFormat(kPointVirgule, 1)
                                  << QStringList{u"mot"_s, u"arbre"_s, u"chat"_s};
    QTest::newRow("second column, with a short row")
        << table << CreeFormat(kPointVirgule, 2) << QStringList{u"genre"_s, u"n. m."_s, u"n. f."_s};
    QTest::newRow("heading") << table << CreeFormat(kPointVirgule, 1, true)
                             << QStringList{u"arbre"_s, u"chat"_s};
    QTest::newRow("heading behind blank lines")
        << u"\n\nmot\na"_s << CreeFormat(kLigne, 0, true) << QStringList{u"a"_s};
    QTest::newRow("a heading alone") << u"mot"_s << CreeFormat(kLigne, 0, true) << QStringList();
    QTest::newRow("all columns") << u"a, b\nc,,d"_s << CreeFormat(kVirgule, 0)
                                 << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("no such column") << table << CreeFormat(kPointVirgule, 9) << QStringList();
    QTest::newRow("a column below the first")
        << table << CreeFormat(kPointVirgule, -1) << QStringList();
}

void tst_ImportMots::mots()
{
    QFETCH(QString, texte);
    QFETCH(Format, format);
    QTEST(DonneMots(texte, format), "mots");
}

// Bad input: no end of line, no separator.
void tst_ImportMots::ligneDUnMegaoctet()
{
    constexpr int kMegaoctet = 1024 * 1024;
    QByteArray const octets(kMegaoctet, 'a');
    Format const format = DevineFormat(octets);
    QCOMPARE(format.separateur, kLigne);
    QStringList const lus = DonneMots(*Decode(octets, format.codage), format);
    QCOMPARE(lus.size(), 1);
    QCOMPARE(lus.first().size(), kMegaoctet);
    ResultatTri const resultat = Trie(lus, {});
    QVERIFY(resultat.gardes.isEmpty());
    QCOMPARE(resultat.nombres[kLong], 1);
    QCOMPARE(resultat.ecartes.first().mot.size(), kLongueurMax); // what is shown has an end

    QString const virgules(kMegaoctet, u',');
    QVERIFY(DonneMots(virgules, CreeFormat(kVirgule, 0)).isEmpty());
    QString const guillemets(kMegaoctet, u'"');
    QCOMPARE(DonneMots(guillemets, CreeFormat(kVirgule, 0)).size(), 1);
}

void tst_ImportMots::tri_data()
{
    QTest::addColumn<QStringList>("mots");
    QTest::addColumn<Tri>("tri");
    QTest::addColumn<QStringList>("gardes");
    QStringList const mots = {u"Chat"_s, u"a"_s, u"chat"_s, u"R2D2"_s, u"été"_s, u"Chat"_s};
    Tri const rien = {kCasseGardee, false, false, 1};
    QTest::newRow("nothing") << QStringList() << Tri() << QStringList();
    QTest::newRow("all is kept") << mots << rien << mots;
    QTest::newRow("repetitions, by case")
        << mots << Tri{kCasseGardee, true, false, 1}
        << QStringList{u"Chat"_s, u"a"_s, u"chat"_s, u"R2D2"_s, u"été"_s};
    QTest::newRow("repetitions once in lower case")
        << mots << Tri{kMinuscules, true, false, 1}
        << QStringList{u"chat"_s, u"a"_s, u"r2d2"_s, u"été"_s};
    QTest::newRow("upper case") << mots << Tri{kMajuscules, true, false, 1}
                                << QStringList{u"CHAT"_s, u"A"_s, u"R2D2"_s, u"ÉTÉ"_s};
    QTest::newRow("as long as the shortest")
        << mots << Tri{kCasseGardee, false, false, 3}
        << QStringList{u"Chat"_s, u"chat"_s, u"R2D2"_s, u"été"_s, u"Chat"_s};
    QTest::newRow("longer than most")
        << mots << Tri{kCasseGardee, false, false, 5} << QStringList();
    QTest::newRow("digits") << mots << Tri{kCasseGardee, false, true, 1}
                            << QStringList{u"Chat"_s, u"a"_s, u"chat"_s, u"été"_s, u"Chat"_s};
    QTest::newRow("longest word") << QStringList{QString(kLongueurMax, u'a'),
                                                 QString(kLongueurMax + 1, u'a')}
                                  << rien << QStringList{QString(kLongueurMax, u'a')};
}

void tst_ImportMots::tri()
{
    QFETCH(QStringList, mots);
    QFETCH(Tri, tri);
    ResultatTri const resultat = Trie(mots, tri);
    QTEST(resultat.gardes, "gardes");
    QCOMPARE(resultat.gardes.size() + resultat.ecartes.size(), mots.size());
    QCOMPARE(std::accumulate(resultat.nombres.begin(), resultat.nombres.end(), 0),
             resultat.ecartes.size());
}

// Each word has one reason: the first that holds.
void tst_ImportMots::motifs()
{
    ResultatTri const resultat =
        Trie({u"chat"_s, u"7"_s, u"r2d2"_s, u"chat"_s, u"r2d2"_s, QString(101, u'1')}, Tri());
    QCOMPARE(resultat.gardes, QStringList{u"chat"_s});
    QList<eMotif> motifs;
    for (MotEcarte const & ecarte : resultat.ecartes)
        motifs.append(ecarte.motif);
    QCOMPARE(motifs, (QList<eMotif>{kCourt, kChiffre, kDoublon, kChiffre, kLong}));
    QCOMPARE(resultat.nombres[kDoublon], 1);
    QCOMPARE(resultat.nombres[kCourt], 1);
    QCOMPARE(resultat.nombres[kLong], 1);
    QCOMPARE(resultat.nombres[kChiffre], 2);
}

void tst_ImportMots::ecartesMontres()
{
    ResultatTri const resultat = Trie(QStringList(1000, u"chat"_s), Tri());
    QCOMPARE(resultat.ecartes.size(), kEcartesMontres);
    QCOMPARE(resultat.nombres[kDoublon], 999);
}

void tst_ImportMots::verification()
{
    QTemporaryFile fichier;
    QVERIFY(fichier.open());
    fichier.write("abaisse\nabaissé\naujourd'hui\nété\nParis\n");
    fichier.close();
    MotsFrancais liste(fichier.fileName());

    Verification const verification =
        Verifie({u"Été"_s, u"ete"_s, u"aujourd’hui"_s, u"aujourdhui"_s, u"paris"_s, u"abaiss"_s,
                 u"ABAISSÉ"_s, u"-"_s},
                liste);

    QVERIFY(verification.faite);
    QCOMPARE(verification.connus,
             (QStringList{u"Été"_s, u"aujourd’hui"_s, u"paris"_s, u"ABAISSÉ"_s}));
    QCOMPARE(verification.inconnus, (QStringList{u"ete"_s, u"aujourdhui"_s, u"abaiss"_s, u"-"_s}));
}

void tst_ImportMots::verificationSansListe()
{
    MotsFrancais liste{QString()};
    Verification const verification = Verifie({u"chat"_s}, liste);
    QVERIFY(!verification.faite);
    QVERIFY(verification.connus.isEmpty() && verification.inconnus.isEmpty());
}

// Ten times the words may cost ten times as much, not a hundred; with a wide margin, for nothing
// else is to make it fail. As many words as a dictionary has.
void tst_ImportMots::lineaire()
{
    auto const dureeDe = [](int nombre) {
        QByteArray octets;
        for (int i = 0; i < nombre; ++i)
            octets += "mot" + QByteArray::number(i, 26) + ";x\n";
        QElapsedTimer chrono;
        chrono.start();
        Format const format = DevineFormat(octets);
        QStringList const lus = DonneMots(*Decode(octets, format.codage), format);
        ResultatTri const resultat = Trie(lus, {kMinuscules, true, false, 1});
        return resultat.gardes.size() == nombre ? chrono.nsecsElapsed() : -1;
    };
    dureeDe(1000);
    qint64 const petite = dureeDe(35'000);
    // The least of some: a machine that is busy makes any of them long.
    qint64 const grande = std::min({dureeDe(350'000), dureeDe(350'000), dureeDe(350'000)});
    QVERIFY(petite > 0 && grande > 0);
    QVERIFY2(grande < petite * 50, qPrintable(u"%1 ns, %2 ns"_s.arg(petite).arg(grande)));
}

QTEST_GUILESS_MAIN(tst_ImportMots)
#include "tst_ImportMots.moc"
