// tests/foundation/tst_ExpansionVariables.cpp
#include "foundation/ExpansionVariables_p.h"

#include <QtTest>

#include <QRandomGenerator>
#include <QRegularExpression>

#include <optional>

using namespace Qt::StringLiterals;
using namespace RoutinesVariables;

namespace {

QRegularExpression const & FinDeNom()
{
    static QRegularExpression const fin(u"[\\s\\n\\r;,)\\[\\]\\{\\}]"_s);
    return fin;
}

// The expansion step by step on one text, as slow as it is plain. Nothing when it has not ended
// after so many steps.
std::optional<QString> AppliquePasAPas(QString texte, QString const & prefixe,
                                       Variables const & variables, int etapes)
{
    qsizetype position = 0;
    for (; etapes > 0; --etapes) {
        position = texte.indexOf(prefixe, position);
        if (position < 0)
            return texte;
        qsizetype fin = texte.indexOf(FinDeNom(), position);
        if (fin < 0)
            fin = texte.size();
        qsizetype const debutNom = position + prefixe.size();
        auto const variable = variables.find(texte.sliced(debutNom, fin - debutNom));
        if (variable != variables.end())
            texte.replace(position, fin - position, variable->second);
        QChar const lu = position < texte.size() ? texte[position] : QChar();
        if (prefixe.size() != 1 || lu != prefixe.front())
            ++position;
    }
    return std::nullopt;
}

template <typename T>
T const & Choisis(QRandomGenerator & hasard, QList<T> const & choix)
{
    return choix[hasard.bounded(choix.size())];
}

QString Assemble(QRandomGenerator & hasard, QStringList const & morceaux, int nombre)
{
    QString texte;
    for (int i = 0; i < nombre; ++i)
        texte += Choisis(hasard, morceaux);
    return texte;
}

} // namespace

class tst_ExpansionVariables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finDeNom();
    void textesEngendres_data();
    void textesEngendres();
    void inconnuesDesTextesEngendres();
    void prefixeLong_data();
    void prefixeLong();
    void prefixeVide();
    void valeursPlusLonguesQueLeTexte();
};

void tst_ExpansionVariables::finDeNom()
{
    for (uint code = 0; code <= 0xffff; ++code) {
        QChar const caractere(static_cast<char16_t>(code));
        if (caractere.isSurrogate())
            QVERIFY(!EstFinDeNom(caractere)); // half a character matches nothing
        else if (EstFinDeNom(caractere) != FinDeNom().match(QString(caractere)).hasMatch())
            QFAIL(qPrintable(u"U+%1"_s.arg(code, 4, 16, QLatin1Char('0'))));
    }
}

void tst_ExpansionVariables::textesEngendres_data()
{
    QTest::addColumn<quint32>("graine");
    QTest::addColumn<QString>("prefixe");
    QTest::newRow("the prefix of themes") << 20240117U << u"@"_s;
    QTest::newRow("another sign") << 99U << u"$"_s;
    QTest::newRow("two characters") << 7U << u"@@"_s;
    QTest::newRow("two different characters") << 12U << u"@$"_s;
}

void tst_ExpansionVariables::textesEngendres()
{
    QFETCH(quint32, graine);
    QFETCH(QString, prefixe);
    QRandomGenerator hasard(graine);
    QStringList const morceaux = {
        prefixe + u"a"_s, prefixe + u"b"_s, prefixe + u"c"_s, prefixe + u"d"_s, prefixe + u"vide"_s,
        u"@"_s,           u"$"_s,           u"a"_s,           u"b"_s,           u" "_s,
        u";"_s,           u","_s,           u")"_s,           u"["_s,           u"\n"_s,
        u"x: "_s,         u"{"_s,           u"\u00a0"_s,      u"\u2003"_s,      u"é😀"_s};
    constexpr int kTextes = 4000;
    // Far more than the longest finite expansion here takes.
    constexpr int kEtapes = 1000;
    int finis = 0;
    for (int essai = 0; essai < kTextes; ++essai) {
        Variables variables = {{u"vide"_s, QString()}};
        for (QString const & nom :
             {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"aa"_s, u"b$"_s, u"@a"_s, u""_s}) {
            if (hasard.bounded(5) > 0)
                variables[nom] = Assemble(hasard, morceaux, hasard.bounded(4));
        }
        QString const texte = Assemble(hasard, morceaux, hasard.bounded(12));
        auto const attendu = AppliquePasAPas(texte, prefixe, variables, kEtapes);
        if (!attendu)
            continue;
        ++finis;
        if (Applique(texte, prefixe, variables) != *attendu)
            QFAIL(qPrintable(u"expansion of \"%1\""_s.arg(texte)));
    }
    QVERIFY2(finis > kTextes / 10, qPrintable(QString::number(finis)));
}

void tst_ExpansionVariables::inconnuesDesTextesEngendres()
{
    QRandomGenerator hasard(4321);
    QStringList const morceaux = {u"@a"_s, u"@b"_s, u"@c"_s, u"x"_s, u" "_s, u";"_s, u"@z"_s};
    int avecInconnues = 0;
    for (int essai = 0; essai < 2000; ++essai) {
        // A value uses only names further on in the alphabet: there are no circles.
        Variables const variables = {
            {u"a"_s, Assemble(hasard, {u"@b"_s, u"@c"_s, u";"_s, u" "_s}, 2)},
            {u"b"_s, Assemble(hasard, {u"@c"_s, u"@z"_s, u";"_s, u" "_s}, 2)},
            {u"c"_s, Assemble(hasard, {u"y"_s, u";"_s}, 2)}};
        QString const texte = Assemble(hasard, morceaux, hasard.bounded(8));
        bool const finit = AppliquePasAPas(texte, u"@"_s, variables, 2000).has_value();
        QStringList const inconnues = DonneInconnues(texte, u"@"_s, variables);
        if (inconnues.isEmpty() != finit)
            QFAIL(qPrintable(u"unknown names of \"%1\""_s.arg(texte)));
        if (finit)
            continue;
        ++avecInconnues;
        // Once they have a value, in whatever order they were met, none is left.
        Variables completes = variables;
        for (QString const & nom : inconnues)
            completes[nom] = u"!"_s;
        QVERIFY(AppliquePasAPas(texte, u"@"_s, completes, 2000).has_value());
        QCOMPARE(QSet<QString>(inconnues.begin(), inconnues.end()).size(), inconnues.size());
    }
    QVERIFY(avecInconnues > 100);
}

void tst_ExpansionVariables::prefixeLong_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("resultat");
    QTest::newRow("known") << u"x $$a;"_s << u"x 1px;"_s;
    QTest::newRow("an unknown name stays") << u"$$absente; $$a"_s << u"$$absente; 1px"_s;
    QTest::newRow("no chaining at the front of a value") << u"$$chaine;"_s << u"$$a;"_s;
    QTest::newRow("but further on") << u"$$plusLoin;"_s << u" 1px;"_s;
    QTest::newRow("half a prefix") << u"$a;"_s << u"$a;"_s;
}

void tst_ExpansionVariables::prefixeLong()
{
    QFETCH(QString, texte);
    QFETCH(QString, resultat);
    Variables const variables = {
        {u"a"_s, u"1px"_s}, {u"chaine"_s, u"$$a"_s}, {u"plusLoin"_s, u" $$a"_s}};
    QCOMPARE(Applique(texte, u"$$"_s, variables), resultat);
}

void tst_ExpansionVariables::prefixeVide()
{
    // What is left of a table that was moved from.
    QCOMPARE(Applique(u"a @b;"_s, QString(), {}), u"a @b;"_s);
    QCOMPARE(Applique(QString(), QString(), {}), QString());
    QCOMPARE(DonneInconnues(u"a @b;"_s, QString(), {}), QStringList());
}

void tst_ExpansionVariables::valeursPlusLonguesQueLeTexte()
{
    QString const longue(10000, u'x');
    Variables const variables = {
        {u"a"_s, longue}, {u"b"_s, u"@a,@a,@a"_s}, {u"c"_s, u"@b;@b;@b;@b"_s}};
    QString const b = longue + u',' + longue + u',' + longue;
    QString const c = b + u';' + b + u';' + b + u';' + b;
    QCOMPARE(Applique(u"@c"_s, u"@"_s, variables), c);
    QCOMPARE(Applique(u"1 @c 2 @a 3"_s, u"@"_s, variables),
             u"1 "_s + c + u" 2 "_s + longue + u" 3"_s);
}

QTEST_APPLESS_MAIN(tst_ExpansionVariables)
#include "tst_ExpansionVariables.moc"
