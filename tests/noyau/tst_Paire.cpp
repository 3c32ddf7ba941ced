// tests/noyau/tst_Paire.cpp
#include "noyau/Paire.h"

#include "noyau/UniChaine.h"

#include <QtTest>

class tst_Paire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void champs();
    void comparaison();
};

void tst_Paire::champs()
{
    sdd::Paire<UniChaine, int> paire{UniChaine("un"), 1};
    QVERIFY(paire.premier == UniChaine("un"));
    QCOMPARE(paire.second, 1);
    paire.premier = UniChaine("deux");
    paire.second = 2;
    sdd::Paire<UniChaine, int> const copie = paire;
    QVERIFY(copie.premier == UniChaine("deux"));
    QCOMPARE(copie.second, 2);
}

void tst_Paire::comparaison()
{
    using Paire = sdd::Paire<int, int>;
    QVERIFY((Paire{1, 2} == Paire{1, 2}));
    QVERIFY((Paire{1, 2} != Paire{1, 3}));
    QVERIFY((Paire{1, 2} != Paire{2, 1}));
}

QTEST_GUILESS_MAIN(tst_Paire)
#include "tst_Paire.moc"
