// tests/galerie/tst_MotsFrancais.cpp
#include "MotsFrancais.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_MotsFrancais : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void propositions_data();
    void propositions();
    void nombre_data();
    void nombre();
    void contient_data();
    void contient();
    void listeSansOrdre();
    void lignesSansMot();
    void sansFichier();
    void luUneFois();
    void autreFichier();
    void longueListe();

private:
    QString Ecris(QString const & nom, QString const & texte);

    QTemporaryDir monDossier;
    QString maListe;
};

void tst_MotsFrancais::init()
{
    QVERIFY(monDossier.isValid());
    maListe = Ecris(u"mots"_s, u"abaisse\nabaissé\nabaisse-langue\nabaissement\naujourd'hui\ncœur\n"
                               "coexiste\nété\nétés\nêtes\nex-mari\nexil\nyac\n"_s);
}

QString tst_MotsFrancais::Ecris(QString const & nom, QString const & texte)
{
    QFile fichier(monDossier.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte.toUtf8()) < 0)
        return {};
    return fichier.fileName();
}

void tst_MotsFrancais::propositions_data()
{
    QTest::addColumn<QString>("debut");
    QTest::addColumn<int>("combien");
    QTest::addColumn<QStringList>("mots");
    QTest::newRow("without accents")
        << u"ete"_s << 10 << QStringList{u"été"_s, u"étés"_s, u"êtes"_s};
    QTest::newRow("with accents") << u"été"_s << 10 << QStringList{u"été"_s, u"étés"_s, u"êtes"_s};
    QTest::newRow("accents that stand apart")
        << u"e\u0301te\u0301"_s << 10 << QStringList{u"été"_s, u"étés"_s, u"êtes"_s};
    QTest::newRow("other accents") << u"ètë"_s << 2 << QStringList{u"été"_s, u"étés"_s};
    QTest::newRow("capital letters") << u"ÉTÉS"_s << 10 << QStringList{u"étés"_s, u"êtes"_s};
    QTest::newRow("whole word and more") << u"exil"_s << 10 << QStringList{u"exil"_s};
    QTest::newRow("longer than every word") << u"exilés"_s << 10 << QStringList{};
    QTest::newRow("a hyphen typed") << u"abaisse-l"_s << 10 << QStringList{u"abaisse-langue"_s};
    QTest::newRow("a hyphen left out") << u"abaissel"_s << 10 << QStringList{u"abaisse-langue"_s};
    QTest::newRow("an apostrophe of books")
        << u"aujourd’h"_s << 10 << QStringList{u"aujourd'hui"_s};
    QTest::newRow("a ligature typed apart") << u"coeu"_s << 10 << QStringList{u"cœur"_s};
    QTest::newRow("a ligature typed") << u"Œ"_s << 10 << QStringList{};
    QTest::newRow("a ligature in front of others")
        << u"cœ"_s << 10 << QStringList{u"cœur"_s, u"coexiste"_s};
    QTest::newRow("at most so many") << u"a"_s << 2 << QStringList{u"abaisse"_s, u"abaissé"_s};
    QTest::newRow("none wanted") << u"a"_s << 0 << QStringList{};
    QTest::newRow("the last word") << u"y"_s << 10 << QStringList{u"yac"_s};
    QTest::newRow("behind the last word") << u"z"_s << 10 << QStringList{};
    QTest::newRow("before the first word") << u"aa"_s << 10 << QStringList{};
    QTest::newRow("nothing typed") << QString() << 10 << QStringList{};
    QTest::newRow("no letter") << u" -'"_s << 10 << QStringList{};
    QTest::newRow("outside of the basic plane") << u"\U0001F600"_s << 10 << QStringList{};
}

void tst_MotsFrancais::propositions()
{
    QFETCH(QString, debut);
    QFETCH(int, combien);
    QFETCH(QStringList, mots);

    QCOMPARE(MotsFrancais(maListe).Propose(debut, combien), mots);
}

void tst_MotsFrancais::nombre_data()
{
    QTest::addColumn<QString>("debut");
    QTest::addColumn<int>("nombre");
    QTest::newRow("several") << u"abaiss"_s << 4;
    QTest::newRow("one") << u"yac"_s << 1;
    QTest::newRow("none") << u"zz"_s << 0;
    QTest::newRow("nothing typed") << QString() << 0;
}

void tst_MotsFrancais::nombre()
{
    QFETCH(QString, debut);
    QFETCH(int, nombre);

    QCOMPARE(MotsFrancais(maListe).Compte(debut), nombre);
}

void tst_MotsFrancais::contient_data()
{
    QTest::addColumn<QString>("mot");
    QTest::addColumn<bool>("contenu");
    QTest::newRow("as it is") << u"étés"_s << true;
    QTest::newRow("capitals") << u"ABAISSÉ"_s << true;
    QTest::newRow("another word of the same letters") << u"abaissè"_s << false;
    QTest::newRow("without accents") << u"ete"_s << false;
    QTest::newRow("the beginning of one") << u"abais"_s << false;
    QTest::newRow("more than one") << u"exils"_s << false;
    QTest::newRow("hyphen") << u"ex-mari"_s << true;
    QTest::newRow("without its hyphen") << u"exmari"_s << false;
    QTest::newRow("apostrophe") << u"aujourd'hui"_s << true;
    QTest::newRow("curly apostrophe") << u"Aujourd’hui"_s << true;
    QTest::newRow("two letters in one") << u"CŒUR"_s << true;
    QTest::newRow("two letters") << u"coeur"_s << true;
    QTest::newRow("two letters that the list has apart") << u"cœxiste"_s << true;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("no letter") << u"-"_s << false;
}

void tst_MotsFrancais::contient()
{
    QFETCH(QString, mot);
    MotsFrancais mots(maListe);
    QTEST(mots.Contient(mot), "contenu");
    QVERIFY(!MotsFrancais(QString()).Contient(mot)); // without a list
}

void tst_MotsFrancais::listeSansOrdre()
{
    MotsFrancais mots(Ecris(u"desordre"_s, u"zoo\nété\nabri\nete\r\nétage"_s));

    // Words that differ by accents alone keep their order.
    QCOMPARE(mots.Propose(u"e"_s, 10), (QStringList{u"étage"_s, u"été"_s, u"ete"_s}));
    QCOMPARE(mots.Propose(u"z"_s, 10), QStringList{u"zoo"_s});
}

void tst_MotsFrancais::lignesSansMot()
{
    MotsFrancais mots(Ecris(u"vides"_s, u"\n\n  abri \n-\n\n"_s));

    QVERIFY(mots.Charge());
    QCOMPARE(mots.Propose(u"a"_s, 10), QStringList{u"abri"_s});
    QCOMPARE(mots.Compte(u"a"_s), 1);
}

void tst_MotsFrancais::sansFichier()
{
    MotsFrancais mots(monDossier.filePath(u"absent"_s));

    QVERIFY(!mots.Charge());
    QCOMPARE(mots.Propose(u"a"_s, 10), QStringList());
    QCOMPARE(mots.Compte(u"a"_s), 0);
}

void tst_MotsFrancais::luUneFois()
{
    QString const fichier = Ecris(u"lu"_s, u"abri"_s);
    MotsFrancais mots(fichier);
    QVERIFY(QFile::exists(fichier));
    QVERIFY(mots.Charge());
    QVERIFY(QFile::remove(fichier));

    QVERIFY(mots.Charge());
    mots.MetsFichier(fichier); // the same one
    QCOMPARE(mots.Propose(u"a"_s, 10), QStringList{u"abri"_s});
}

void tst_MotsFrancais::autreFichier()
{
    MotsFrancais mots(maListe);
    QVERIFY(mots.Charge());

    mots.MetsFichier(Ecris(u"autre"_s, u"abri"_s));

    QCOMPARE(mots.Propose(u"a"_s, 10), QStringList{u"abri"_s});
    QCOMPARE(mots.Compte(u"e"_s), 0);
}

// Whole as it is, and each word found under its own key.
void tst_MotsFrancais::longueListe()
{
    QString texte;
    for (int i = 0; i < 20000; ++i)
        texte += u"mot%1\n"_s.arg(i, 5, 10, QChar(u'0'));
    MotsFrancais mots(Ecris(u"longue"_s, texte));

    QCOMPARE(mots.Compte(u"mot"_s), 20000);
    QCOMPARE(mots.Compte(u"mot12"_s), 1000);
    for (int i = 0; i < 20000; i += 997) {
        QString const mot = u"mot%1"_s.arg(i, 5, 10, QChar(u'0'));
        QCOMPARE(mots.Propose(mot, 2), QStringList{mot});
    }
}

QTEST_GUILESS_MAIN(tst_MotsFrancais)
#include "tst_MotsFrancais.moc"
