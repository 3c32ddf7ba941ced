// tests/noyau/tst_DLocale.cpp
#include "noyau/DLocale.h"

#include <QtTest>

#include <type_traits>

using namespace Qt::StringLiterals;

class tst_DLocale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void estUneValeurSimple();
    void valeursDesLangues();
    void formats_data();
    void formats();
};

void tst_DLocale::estUneValeurSimple()
{
    QVERIFY(std::is_trivially_copyable_v<DLocale>);
    DLocale locale(kLangueFrancais);
    locale = DLocale(kLangueAnglais);
    DLocale const copie = locale;
    QCOMPARE(copie.DonneLangue(), kLangueAnglais);
}

void tst_DLocale::valeursDesLangues()
{
    QCOMPARE(int(kLangueInconnue), 0);
    QCOMPARE(int(kLangueFrancais), 1);
    QCOMPARE(int(kLangueAnglais), 2);
    QCOMPARE(int(kLangueAnglaisCanada), 3);
}

void tst_DLocale::formats_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QLocale>("attendu");
    QTest::newRow("French") << int(kLangueFrancais) << QLocale(QLocale::French);
    QTest::newRow("English") << int(kLangueAnglais) << QLocale(QLocale::English);
    QTest::newRow("Canadian English") << int(kLangueAnglaisCanada) << QLocale(u"en_CA"_s);
    QTest::newRow("none is the C locale") << int(kLangueInconnue) << QLocale::c();
    QTest::newRow("unheard-of is the C locale") << 99 << QLocale::c();
}

void tst_DLocale::formats()
{
    QFETCH(int, langue);
    QTEST(DLocale(static_cast<eLangue>(langue)).DonneQLocale(), "attendu");
}

QTEST_GUILESS_MAIN(tst_DLocale)
#include "tst_DLocale.moc"
