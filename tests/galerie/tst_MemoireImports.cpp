#include "MemoireImports.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_MemoireImports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { MemoireImports::Oublie(); }

    void ajout();
    void nomsRefuses_data();
    void nomsRefuses();
    void retrait();
};

void tst_MemoireImports::ajout()
{
    QVERIFY(MemoireImports::DonneListes().isEmpty());
    QVERIFY(!MemoireImports::Contient(u"Faune"_s));
    QVERIFY(MemoireImports::Ajoute({u" Faune "_s, {u"chat"_s}}));
    QVERIFY(MemoireImports::Ajoute({u"Flore"_s, {}}));
    QCOMPARE(MemoireImports::DonneListes().size(), 2);
    QCOMPARE(MemoireImports::DonneListes().first().nom, u"Faune"_s);
    QCOMPARE(MemoireImports::DonneListes().first().mots, QStringList{u"chat"_s});
    QVERIFY(MemoireImports::Contient(u"fAUNE "_s));
}

void tst_MemoireImports::nomsRefuses_data()
{
    QTest::addColumn<QString>("nom");
    QTest::newRow("empty") << QString();
    QTest::newRow("blank") << u" \t"_s;
    QTest::newRow("used") << u"Été"_s;
    QTest::newRow("used, in capitals and with blanks") << u" ÉTÉ "_s;
}

void tst_MemoireImports::nomsRefuses()
{
    QFETCH(QString, nom);
    QVERIFY(MemoireImports::Ajoute({u"Été"_s, {u"a"_s}}));
    QVERIFY(!MemoireImports::Ajoute({nom, {u"b"_s}}));
    QCOMPARE(MemoireImports::DonneListes().size(), 1);
    QCOMPARE(MemoireImports::DonneListes().first().mots, QStringList{u"a"_s});
}

void tst_MemoireImports::retrait()
{
    MemoireImports::Ajoute({u"a"_s, {}});
    MemoireImports::Ajoute({u"b"_s, {}});
    for (int const dehors : {-1, 2})
        MemoireImports::Retire(dehors);
    QCOMPARE(MemoireImports::DonneListes().size(), 2);
    MemoireImports::Retire(0);
    QCOMPARE(MemoireImports::DonneListes().size(), 1);
    QCOMPARE(MemoireImports::DonneListes().first().nom, u"b"_s);
    QVERIFY(MemoireImports::Ajoute({u"a"_s, {}})); // free again
    MemoireImports::Oublie();
    QVERIFY(MemoireImports::DonneListes().isEmpty());
}

QTEST_GUILESS_MAIN(tst_MemoireImports)
#include "tst_MemoireImports.moc"
