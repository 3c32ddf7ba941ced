// tests/noyau/tst_Traductions.cpp
#include "noyau/Traductions.h"

#include <QtTest>

#include <thread>

class tst_Traductions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void francaisAuDepart();
    void langueChoisie_data();
    void langueChoisie();
    void luDUnAutreFil();
};

void tst_Traductions::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

// First in the list of slots: nothing has chosen a language yet.
void tst_Traductions::francaisAuDepart()
{
    QCOMPARE(Traductions::DonneLanguePourApplicationCourante(), kLangueFrancais);
    QCOMPARE(Traductions::DonneLocalePourApplicationCourante().DonneLangue(), kLangueFrancais);
}

void tst_Traductions::langueChoisie_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("French") << int(kLangueFrancais);
    QTest::newRow("English") << int(kLangueAnglais);
    QTest::newRow("Canadian English") << int(kLangueAnglaisCanada);
    QTest::newRow("none") << int(kLangueInconnue);
}

void tst_Traductions::langueChoisie()
{
    QFETCH(int, langue);
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    QCOMPARE(int(Traductions::DonneLanguePourApplicationCourante()), langue);
    QCOMPARE(int(Traductions::DonneLocalePourApplicationCourante().DonneLangue()), langue);
}

void tst_Traductions::luDUnAutreFil()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    eLangue langue = kLangueInconnue;
    std::thread([&langue] { langue = Traductions::DonneLanguePourApplicationCourante(); }).join();
    QCOMPARE(langue, kLangueAnglais);
}

QTEST_GUILESS_MAIN(tst_Traductions)
#include "tst_Traductions.moc"
