// tests/noyau/tst_Raccourci.cpp
#include "noyau/Raccourci.h"

#include "outils/BureauSimulay.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_Raccourci : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void agregat();
    void existe_data();
    void existe();
};

void tst_Raccourci::cleanup()
{
    PlateformeBureau::Installe(nullptr);
}

void tst_Raccourci::agregat()
{
    Raccourci::InfosPourRaccourci const infos{UniChaine("id"), UniChaine("nom"), UniChaine("cible"),
                                              UniChaine("arguments"), UniChaine("icone")};
    Raccourci::InfosPourRaccourci const copie = infos;
    QCOMPARE(QString(copie.identifiantApplication), u"id"_s);
    QCOMPARE(QString(copie.nom), u"nom"_s);
    QCOMPARE(QString(copie.cible), u"cible"_s);
    QCOMPARE(QString(copie.arguments), u"arguments"_s);
    QCOMPARE(QString(copie.icone), u"icone"_s);
}

void tst_Raccourci::existe_data()
{
    QTest::addColumn<QStringList>("raccourcis");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("empty menu") << QStringList() << false;
    QTest::newRow("by its identifier") << QStringList{u"org.exemple.été"_s} << true;
    QTest::newRow("by its name") << QStringList{u"Été"_s} << true;
    QTest::newRow("another") << QStringList{u"Hiver"_s} << false;
    QTest::newRow("the target is no key") << QStringList{u"/bin/ete"_s} << false;
}

void tst_Raccourci::existe()
{
    QFETCH(QStringList, raccourcis);
    auto bureau = std::make_unique<BureauSimulay>();
    bureau->raccourcis = raccourcis;
    PlateformeBureau::Installe(std::move(bureau));
    QTEST(Raccourci::RaccourciProgrammesExiste(
              {UniChaine("org.exemple.été"), UniChaine("Été"), UniChaine("/bin/ete"), {}, {}}),
          "attendu");
    QVERIFY(!Raccourci::RaccourciProgrammesExiste({}));
}

QTEST_GUILESS_MAIN(tst_Raccourci)
#include "tst_Raccourci.moc"
