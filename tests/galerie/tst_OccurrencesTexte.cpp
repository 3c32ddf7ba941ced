// tests/galerie/tst_OccurrencesTexte.cpp
#include "OccurrencesTexte.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_OccurrencesTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plages_data();
    void plages();
    void chaine_data();
    void chaine();
    void insecables();
    void suivante_data();
    void suivante();
    void precedente_data();
    void precedente();
    void numero_data();
    void numero();
    void horsBornes();
    void dans_data();
    void dans();
    void beaucoup();
};

namespace {

using Plage = OccurrencesTexte::Plage;

// "ab" at 0, 4 and 8.
OccurrencesTexte Trois()
{
    return OccurrencesTexte(u"ab..ab..ab"_s, QRegularExpression(u"ab"_s));
}

QString Montre(Plage const & plage)
{
    return u"%1-%2"_s.arg(plage.debut).arg(plage.fin);
}

QString MontreTout(OccurrencesTexte const & occurrences)
{
    QStringList plages;
    for (int numero = 1; numero <= occurrences.DonneNombre(); ++numero)
        plages += Montre(occurrences.DonnePlage(numero));
    return plages.join(u' ');
}

} // namespace

void tst_OccurrencesTexte::plages_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QString>("plages");
    QTest::newRow("in their order") << u"ab..ab"_s << u"ab"_s << u"0-2 4-6"_s;
    QTest::newRow("none shares a character with another") << u"aaaaa"_s << u"aa"_s << u"0-2 2-4"_s;
    QTest::newRow("nothing") << u"abc"_s << u"x"_s << QString();
    QTest::newRow("empty text") << QString() << u"x"_s << QString();
    QTest::newRow("a match of no length is none") << u"aba"_s << u"b*"_s << u"1-2"_s;
    QTest::newRow("invalid expression") << u"a(a("_s << u"("_s << QString();
    QTest::newRow("units of UTF-16") << u"😀ab😀ab"_s << u"ab"_s << u"2-4 6-8"_s;
}

void tst_OccurrencesTexte::plages()
{
    QFETCH(QString, texte);
    QFETCH(QString, motif);
    OccurrencesTexte const occurrences(texte, QRegularExpression(motif));
    QTEST(MontreTout(occurrences), "plages");
}

void tst_OccurrencesTexte::chaine_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("chaine");
    QTest::addColumn<bool>("respecter");
    QTest::addColumn<QString>("plages");
    QTest::newRow("any case") << u"ab.Ab.AB"_s << u"aB"_s << false << u"0-2 3-5 6-8"_s;
    QTest::newRow("its case") << u"ab.Ab.AB"_s << u"Ab"_s << true << u"3-5"_s;
    QTest::newRow("accents") << u"É.é.e"_s << u"é"_s << false << u"0-1 2-3"_s;
    QTest::newRow("none shares a character with another")
        << u"aaaaa"_s << u"aa"_s << false << u"0-2 2-4"_s;
    QTest::newRow("not an expression") << u"ab.a."_s << u"a."_s << true << u"3-5"_s;
    QTest::newRow("nothing") << u"abc"_s << u"x"_s << false << QString();
    QTest::newRow("empty text") << QString() << u"x"_s << false << QString();
    QTest::newRow("nothing to search for") << u"abc"_s << QString() << false << QString();
    QTest::newRow("units of UTF-16") << u"😀ab😀"_s << u"😀"_s << false << u"0-2 4-6"_s;
}

void tst_OccurrencesTexte::chaine()
{
    QFETCH(QString, texte);
    QFETCH(QString, chaine);
    QFETCH(bool, respecter);
    OccurrencesTexte const occurrences(texte, chaine,
                                       respecter ? Qt::CaseSensitive : Qt::CaseInsensitive);
    QTEST(MontreTout(occurrences), "plages");
}

void tst_OccurrencesTexte::insecables()
{
    QCOMPARE(OccurrencesTexte::SansInsecables(u"« a\u00A0» b\u202F; c d"_s), u"« a » b ; c d"_s);
    QCOMPARE(OccurrencesTexte::SansInsecables({}), QString());
}

void tst_OccurrencesTexte::suivante_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("boucler");
    QTest::addColumn<int>("numero");
    QTest::newRow("at the position") << 0 << false << 1;
    QTest::newRow("within one: the next") << 1 << false << 2;
    QTest::newRow("before the last") << 8 << false << 3;
    QTest::newRow("behind the last begins") << 9 << false << 0;
    QTest::newRow("wraps around") << 9 << true << 1;
}

void tst_OccurrencesTexte::suivante()
{
    QFETCH(int, position);
    QFETCH(bool, boucler);
    QTEST(Trois().DonneSuivante(position, boucler), "numero");
    QCOMPARE(OccurrencesTexte().DonneSuivante(position, boucler), 0);
}

void tst_OccurrencesTexte::precedente_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("boucler");
    QTest::addColumn<int>("numero");
    QTest::newRow("ends at the position") << 2 << false << 1;
    QTest::newRow("within one: the one before") << 5 << false << 1;
    QTest::newRow("behind the last") << 100 << false << 3;
    QTest::newRow("within the first") << 1 << false << 0;
    QTest::newRow("wraps around") << 1 << true << 3;
}

void tst_OccurrencesTexte::precedente()
{
    QFETCH(int, position);
    QFETCH(bool, boucler);
    QTEST(Trois().DonnePrecedente(position, boucler), "numero");
    QCOMPARE(OccurrencesTexte().DonnePrecedente(position, boucler), 0);
}

void tst_OccurrencesTexte::numero_data()
{
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("fin");
    QTest::addColumn<int>("numero");
    QTest::newRow("the first") << 0 << 2 << 1;
    QTest::newRow("the last") << 8 << 10 << 3;
    QTest::newRow("too short") << 4 << 5 << 0;
    QTest::newRow("too long") << 4 << 7 << 0;
    QTest::newRow("beside") << 5 << 7 << 0;
    QTest::newRow("behind all") << 10 << 12 << 0;
    QTest::newRow("no length") << 4 << 4 << 0;
}

void tst_OccurrencesTexte::numero()
{
    QFETCH(int, debut);
    QFETCH(int, fin);
    QTEST(Trois().DonneNumero({debut, fin}), "numero");
    QCOMPARE(OccurrencesTexte().DonneNumero({debut, fin}), 0);
}

void tst_OccurrencesTexte::horsBornes()
{
    for (int const numero : {-1, 0, 4})
        QCOMPARE(Montre(Trois().DonnePlage(numero)), u"0-0"_s);
    QCOMPARE(Montre(OccurrencesTexte().DonnePlage(1)), u"0-0"_s);
}

void tst_OccurrencesTexte::dans_data()
{
    QTest::addColumn<int>("debut");
    QTest::addColumn<int>("fin");
    QTest::addColumn<QString>("plages");
    QTest::newRow("all") << 0 << 10 << u"0-2 4-6 8-10"_s;
    QTest::newRow("more than all") << -5 << 50 << u"0-2 4-6 8-10"_s;
    QTest::newRow("cut ones count") << 1 << 9 << u"0-2 4-6 8-10"_s;
    QTest::newRow("touching ones do not") << 2 << 8 << u"4-6"_s;
    QTest::newRow("between two") << 2 << 4 << QString();
    QTest::newRow("behind all") << 10 << 20 << QString();
}

void tst_OccurrencesTexte::dans()
{
    QFETCH(int, debut);
    QFETCH(int, fin);
    OccurrencesTexte const occurrences = Trois();
    QStringList plages;
    for (Plage const & plage : occurrences.DonneDans({debut, fin}))
        plages += Montre(plage);
    QTEST(plages.join(u' '), "plages");
    QVERIFY(OccurrencesTexte().DonneDans({debut, fin}).empty());
}

void tst_OccurrencesTexte::beaucoup()
{
    constexpr int kNombre = 10'000;
    OccurrencesTexte const occurrences(u"ab "_s.repeated(kNombre), QRegularExpression(u"ab"_s));
    QCOMPARE(occurrences.DonneNombre(), kNombre);
    QCOMPARE(occurrences.DonneSuivante(3 * 5000, false), 5001);
    QCOMPARE(occurrences.DonnePrecedente(3 * 5000, false), 5000);
    QCOMPARE(occurrences.DonneNumero({3 * 9999, 3 * 9999 + 2}), kNombre);
    QCOMPARE(occurrences.DonneDans({3 * 100, 3 * 110}).size(), std::size_t(10));
}

QTEST_APPLESS_MAIN(tst_OccurrencesTexte)
#include "tst_OccurrencesTexte.moc"
