// tests/noyau/tst_Exceptions.cpp
#include "noyau/Exceptions.h"

#include <QtTest>

using sdd::exceptions::IndexHorsBorne;
using sdd::exceptions::LanceIndexHorsBorne;

class tst_Exceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lanceToujours_data();
    void lanceToujours();
    void seRattrapeParSaBase();
};

void tst_Exceptions::lanceToujours_data()
{
    QTest::addColumn<quint64>("index");
    QTest::addColumn<quint64>("dernier");
    QTest::newRow("below the range") << quint64(0) << quint64(3);
    QTest::newRow("above the range") << quint64(4) << quint64(3);
    // The caller has decided; the function does not look at the numbers again.
    QTest::newRow("within the range") << quint64(2) << quint64(3);
    QTest::newRow("empty range") << quint64(1) << quint64(0);
    QTest::newRow("largest") << std::numeric_limits<quint64>::max() << quint64(3);
}

void tst_Exceptions::lanceToujours()
{
    QFETCH(quint64, index);
    QFETCH(quint64, dernier);
    bool lance = false;
    try {
        LanceIndexHorsBorne(index, 1, dernier);
    } catch (IndexHorsBorne const & erreur) {
        lance = true;
        QCOMPARE(erreur.index, index);
        QCOMPARE(erreur.premier, quint64(1));
        QCOMPARE(erreur.dernier, dernier);
    }
    QVERIFY(lance);
}

void tst_Exceptions::seRattrapeParSaBase()
{
    try {
        LanceIndexHorsBorne(9, 1, 5);
    } catch (std::out_of_range const & erreur) {
        QByteArray const message(erreur.what());
        QVERIFY(message.contains("9") && message.contains("1..5"));
        return;
    }
    QFAIL("an exception of the standard library's kind was due");
}

QTEST_GUILESS_MAIN(tst_Exceptions)
#include "tst_Exceptions.moc"
