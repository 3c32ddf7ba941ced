// tests/noyau/tst_UniChaineNombres.cpp
//
// The operations of UniChaine that write numbers.
#include "noyau/ContexteLocalisation.h"
#include "noyau/DLocale.h"
#include "noyau/UniChaine.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

class tst_UniChaineNombres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void depuisNombre_data();
    void depuisNombre();
    void nombreFormatay_data();
    void nombreFormatay();
    void pourcentage_data();
    void pourcentage();
    void pourcentageNonFini();
};

void tst_UniChaineNombres::depuisNombre_data()
{
    constexpr int kMax = std::numeric_limits<int>::max();
    constexpr int kMin = std::numeric_limits<int>::min();
    QTest::addColumn<int>("valeur");
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("largeur");
    QTest::addColumn<bool>("majuscules");
    QTest::addColumn<bool>("signe");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("zero") << 0 << 10 << 0 << true << false << u"0"_s;
    QTest::newRow("no separators") << 1234567 << 10 << 0 << true << false << u"1234567"_s;
    QTest::newRow("negative") << -42 << 10 << 0 << true << false << u"-42"_s;
    QTest::newRow("largest") << kMax << 10 << 0 << true << false << u"2147483647"_s;
    QTest::newRow("smallest") << kMin << 10 << 0 << true << false << u"-2147483648"_s;
    QTest::newRow("hexadecimal in capitals") << 255 << 16 << 0 << true << false << u"FF"_s;
    QTest::newRow("hexadecimal in small letters") << 255 << 16 << 0 << false << false << u"ff"_s;
    QTest::newRow("binary") << 5 << 2 << 0 << true << false << u"101"_s;
    QTest::newRow("largest base") << 35 << 36 << 0 << true << false << u"Z"_s;
    QTest::newRow("base too small is 2") << 2 << 1 << 0 << true << false << u"10"_s;
    QTest::newRow("base too large is 36") << 35 << 37 << 0 << true << false << u"Z"_s;
    QTest::newRow("zeros up to the width") << 7 << 10 << 3 << true << false << u"007"_s;
    QTest::newRow("the sign is not in the width") << -7 << 10 << 3 << true << false << u"-007"_s;
    QTest::newRow("wider than the width") << 1234 << 10 << 3 << true << false << u"1234"_s;
    QTest::newRow("negative width") << 7 << 10 << -3 << true << false << u"7"_s;
    QTest::newRow("forced sign") << 7 << 10 << 0 << true << true << u"+7"_s;
    QTest::newRow("forced sign of zero") << 0 << 10 << 0 << true << true << u"+0"_s;
    QTest::newRow("forced sign of a negative") << -7 << 10 << 0 << true << true << u"-7"_s;
}

void tst_UniChaineNombres::depuisNombre()
{
    QFETCH(int, valeur);
    QFETCH(int, base);
    QFETCH(int, largeur);
    QFETCH(bool, majuscules);
    QFETCH(bool, signe);
    QTEST(QString(UniChaine::DepuisNombre(valeur, base, largeur, majuscules, signe)), "attendu");
}

void tst_UniChaineNombres::nombreFormatay_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<int>("valeur");
    QTest::addColumn<QString>("attendu");
    int const francais = kLangueFrancais;
    int const anglais = kLangueAnglais;
    QString const espace = QLocale(QLocale::French).groupSeparator();
    QTest::newRow("French groups by spaces")
        << francais << 1234567 << u"1"_s + espace + u"234"_s + espace + u"567"_s;
    QTest::newRow("English groups by commas") << anglais << 1234567 << u"1,234,567"_s;
    QTest::newRow("Canadian English as English")
        << int(kLangueAnglaisCanada) << 1234567 << u"1,234,567"_s;
    QTest::newRow("no language, no grouping") << int(kLangueInconnue) << 1234567 << u"1234567"_s;
    QTest::newRow("three digits") << francais << 999 << u"999"_s;
    QTest::newRow("zero") << francais << 0 << u"0"_s;
    QTest::newRow("negative") << anglais << -1234 << u"-1,234"_s;
}

void tst_UniChaineNombres::nombreFormatay()
{
    QFETCH(int, langue);
    QFETCH(int, valeur);
    QFETCH(QString, attendu);
    DLocale const locale(static_cast<eLangue>(langue));
    QString const texte = UniChaine::DonneNombreFormatay(locale, valeur);
    // The C locale of Qt groups by commas like the American one unless it is told not to.
    if (langue == kLangueInconnue)
        QCOMPARE(QString(texte).remove(u','), attendu);
    else
        QCOMPARE(texte, attendu);
}

void tst_UniChaineNombres::pourcentage_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<double>("valeur");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<bool>("sansSymbole");
    QTest::addColumn<QString>("attendu");
    int const francais = kLangueFrancais;
    int const anglais = kLangueAnglais;
    QString const signe = QLocale(QLocale::French).groupSeparator() + u'%';
    QTest::newRow("no more decimals than a double has to tell")
        << anglais << 0.5 << std::numeric_limits<int>::max() << true
        << u"50."_s + QString(64, u'0');
    QTest::newRow("French comma, space, sign")
        << francais << 0.125 << 1 << false << u"12,5"_s + signe;
    QTest::newRow("English point and sign") << anglais << 0.125 << 1 << false << u"12.5%"_s;
    QTest::newRow("Canadian English as English")
        << int(kLangueAnglaisCanada) << 0.125 << 1 << false << u"12.5%"_s;
    QTest::newRow("zero") << francais << 0.0 << 1 << false << u"0,0"_s + signe;
    QTest::newRow("whole") << francais << 1.0 << 1 << false << u"100,0"_s + signe;
    QTest::newRow("rounded to the decimals") << anglais << 0.33333 << 2 << false << u"33.33%"_s;
    QTest::newRow("no decimals") << anglais << 0.5 << 0 << false << u"50%"_s;
    QTest::newRow("negative decimals are none") << anglais << 0.5 << -1 << false << u"50%"_s;
    QTest::newRow("negative") << anglais << -0.25 << 0 << false << u"-25%"_s;
    QTest::newRow("above the whole, grouped") << anglais << 12.5 << 0 << false << u"1,250%"_s;
    QTest::newRow("without the sign") << francais << 0.125 << 1 << true << u"12,5"_s;
}

void tst_UniChaineNombres::pourcentage()
{
    QFETCH(int, langue);
    QFETCH(double, valeur);
    QFETCH(int, decimales);
    QFETCH(bool, sansSymbole);
    ContexteLocalisation const contexte;
    DLocale const locale(static_cast<eLangue>(langue));
    QTEST(QString(UniChaine::DonnePourcentageFormatay(contexte, locale, valeur, decimales,
                                                      sansSymbole)),
          "attendu");
}

void tst_UniChaineNombres::pourcentageNonFini()
{
    ContexteLocalisation const contexte;
    DLocale const locale(kLangueFrancais);
    double const infini = std::numeric_limits<double>::infinity();
    QString const texte = UniChaine::DonnePourcentageFormatay(contexte, locale, infini, 1, true);
    QCOMPARE(texte, QLocale(QLocale::French).toString(infini));
    QString const indefini =
        UniChaine::DonnePourcentageFormatay(contexte, locale, std::nan(""), 1, true);
    QCOMPARE(indefini, QLocale(QLocale::French).toString(qQNaN()));
}

QTEST_GUILESS_MAIN(tst_UniChaineNombres)
#include "tst_UniChaineNombres.moc"
