// tests/galerie/tst_TableMots.cpp
#include "TableMots.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_TableMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mot_data();
    void mot();
    void lignes_data();
    void lignes();
    void accents_data();
    void accents();
    void cleDUnTexte();
    void longMot();
    void longueListe();
};

void tst_TableMots::mot_data()
{
    QTest::addColumn<QString>("mot");
    QTest::addColumn<QByteArray>("cle");
    QTest::addColumn<int>("lettres");
    QTest::addColumn<int>("initiale");
    QTest::addColumn<int>("accents");
    QTest::newRow("plain") << u"abri"_s << QByteArray("abri") << 4 << 1 << 0;
    QTest::newRow("the last letter") << u"zut"_s << QByteArray("zut") << 3 << 26 << 0;
    QTest::newRow("capital letters")
        << u"ZOÉ"_s << QByteArray("zoe") << 3 << 26 << int(TableMots::kAigu);
    QTest::newRow("an accent first")
        << u"été"_s << QByteArray("ete") << 3 << 5 << int(TableMots::kAigu);
    QTest::newRow("accents of two kinds") << u"dépêche"_s << QByteArray("depeche") << 7 << 4
                                          << int(TableMots::kAigu | TableMots::kCirconflexe);
    QTest::newRow("a cedilla, a grave accent")
        << u"çà"_s << QByteArray("ca") << 2 << 3 << int(TableMots::kCedille | TableMots::kGrave);
    QTest::newRow("a diaeresis") << u"maïs"_s << QByteArray("mais") << 4 << 13
                                 << int(TableMots::kTrema);
    QTest::newRow("another accent")
        << u"cañon"_s << QByteArray("canon") << 5 << 3 << int(TableMots::kAutreAccent);
    QTest::newRow("accents that stand apart")
        << u"e\u0301te\u0301"_s << QByteArray("ete") << 3 << 5 << int(TableMots::kAigu);
    QTest::newRow("hyphens are no letters")
        << u"arc-en-ciel"_s << QByteArray("arcenciel") << 9 << 1 << 0;
    QTest::newRow("nor apostrophes")
        << u"aujourd'hui"_s << QByteArray("aujourdhui") << 10 << 1 << 0;
    QTest::newRow("a hyphen first") << u"-tion"_s << QByteArray("tion") << 4 << 20 << 0;
    QTest::newRow("a ligature is a letter") << u"œuf"_s << QByteArray("oeuf") << 3 << 15 << 0;
    QTest::newRow("digits") << u"3e"_s << QByteArray("3e") << 1 << 0 << 0;
    QTest::newRow("another alphabet") << u"Ωμέγα"_s << u"ωμεγα"_s.toUtf8() << 5 << 0 << 1;
}

void tst_TableMots::mot()
{
    QFETCH(QString, mot);
    QFETCH(QByteArray, cle);
    QFETCH(int, lettres);
    QFETCH(int, initiale);
    QFETCH(int, accents);
    TableMots const table(mot);

    QCOMPARE(table.DonneNombre(), 1);
    QCOMPARE(table.DonneMot(0).toString(), mot);
    QCOMPARE(QByteArray::fromStdString(std::string(table.DonneCle(0))), cle);
    QCOMPARE(int(table.DonneAttributs(0).lettres), lettres);
    QCOMPARE(int(table.DonneAttributs(0).initiale), initiale);
    QCOMPARE(int(table.DonneAttributs(0).accents), accents);
}

void tst_TableMots::lignes_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("mots");
    QTest::newRow("null") << QString() << QStringList();
    QTest::newRow("nothing but line feeds") << u"\n\n\n"_s << QStringList();
    QTest::newRow("no line feed at the end") << u"un\ndeux"_s << QStringList{u"un"_s, u"deux"_s};
    QTest::newRow("a line feed at the end") << u"un\ndeux\n"_s << QStringList{u"un"_s, u"deux"_s};
    QTest::newRow("empty lines") << u"\nun\n\ndeux"_s << QStringList{u"un"_s, u"deux"_s};
    QTest::newRow("blanks around") << u"  un\t\n deux "_s << QStringList{u"un"_s, u"deux"_s};
    QTest::newRow("carriage returns") << u"un\r\ndeux\r\n"_s << QStringList{u"un"_s, u"deux"_s};
    QTest::newRow("no letter") << u"-\nun\n'\n"_s << QStringList{u"un"_s};
    QTest::newRow("the same twice") << u"un\nun"_s << QStringList{u"un"_s, u"un"_s};
}

void tst_TableMots::lignes()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, mots);
    TableMots const table(texte);

    QStringList lus;
    for (int i = 0; i < table.DonneNombre(); ++i)
        lus.append(table.DonneMot(i).toString());
    QCOMPARE(lus, mots);
}

void tst_TableMots::accents_data()
{
    QTest::addColumn<char16_t>("caractere");
    QTest::addColumn<int>("accents");
    QTest::newRow("none") << u'e' << 0;
    QTest::newRow("acute") << u'é' << int(TableMots::kAigu);
    QTest::newRow("capital") << u'À' << int(TableMots::kGrave);
    QTest::newRow("apart") << u'\u0302' << int(TableMots::kCirconflexe);
    QTest::newRow("two on a letter")
        << u'\u1E17' << int(TableMots::kAigu | TableMots::kAutreAccent);
    QTest::newRow("a stroke is none") << u'ø' << 0;
    QTest::newRow("null") << u'\0' << 0;
}

void tst_TableMots::accents()
{
    QFETCH(char16_t, caractere);
    QFETCH(int, accents);

    QCOMPARE(int(TableMots::DonneAccents(caractere)), accents);
}

void tst_TableMots::cleDUnTexte()
{
    QCOMPARE(TableMots::DonneCle(u"  Çà-ET-là "), std::string("caetla"));
    QCOMPARE(TableMots::DonneCle(u"'-"), std::string());
    QCOMPARE(TableMots::DonneCle(QString()), std::string());
}

void tst_TableMots::longMot()
{
    TableMots const table(QString(254, u'a') + u'\n' + QString(300, u'é') + u"\nb"_s);

    QCOMPARE(table.DonneNombre(), 3);
    QCOMPARE(int(table.DonneAttributs(0).lettres), 254);
    QCOMPARE(int(table.DonneAttributs(1).lettres), 255);
    QCOMPARE(table.DonneMot(1).size(), 300);
    QCOMPARE(table.DonneCle(1).size(), 300u);
    QCOMPARE(table.DonneMot(2).toString(), u"b"_s);
}

void tst_TableMots::longueListe()
{
    QString texte;
    for (int i = 0; i < 50'000; ++i)
        texte += u"é%1-\n"_s.arg(i);
    TableMots const table(texte);

    QCOMPARE(table.DonneNombre(), 50'000);
    for (int i = 0; i < table.DonneNombre(); ++i) {
        QCOMPARE(table.DonneMot(i).toString(), u"é%1-"_s.arg(i));
        QCOMPARE(std::string(table.DonneCle(i)), "e" + std::to_string(i));
    }
}

QTEST_GUILESS_MAIN(tst_TableMots)
#include "tst_TableMots.moc"
