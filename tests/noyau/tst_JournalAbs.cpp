// tests/noyau/tst_JournalAbs.cpp
#include "noyau/JournalAbs.h"

#include "noyau/JournalSimulay.h"

#include <QtTest>

#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class JournalMuet : public JournalAbs
{
public:
    void EcrisLigne(UniChaine const &, bool, bool) override { ++lignes; }

    int lignes = 0;
};

} // namespace

class tst_JournalAbs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void absentAuDepart();
    void eteintAuDepart();
    void installe();
    void ecritSiActif();
    void autreFil();
    void filsSimultanes();
};

void tst_JournalAbs::cleanup()
{
    MetsBoiteNoire(nullptr);
}

void tst_JournalAbs::absentAuDepart()
{
    QVERIFY(!PreteBoiteNoire());
    JournaliseSiActif(UniChaine("perdu"));
}

void tst_JournalAbs::eteintAuDepart()
{
    JournalMuet journal;
    QVERIFY(!journal.estActif);
    MetsBoiteNoire(&journal);
    JournaliseSiActif(UniChaine("perdu"));
    QCOMPARE(journal.lignes, 0);
    journal.estActif = true;
    JournaliseSiActif(UniChaine("gardé"));
    QCOMPARE(journal.lignes, 1);
    journal.estActif = false;
    JournaliseSiActif(UniChaine("perdu"));
    QCOMPARE(journal.lignes, 1);
}

void tst_JournalAbs::installe()
{
    JournalMuet premier;
    JournalMuet second;
    premier.estActif = true;
    second.estActif = true;
    MetsBoiteNoire(&premier);
    QCOMPARE(PreteBoiteNoire(), &premier);
    MetsBoiteNoire(&second);
    JournaliseSiActif(UniChaine("ligne"));
    QCOMPARE(premier.lignes, 0);
    QCOMPARE(second.lignes, 1);
    MetsBoiteNoire(nullptr);
    JournaliseSiActif(UniChaine("ligne"));
    QCOMPARE(second.lignes, 1);
}

void tst_JournalAbs::ecritSiActif()
{
    JournalSimulay const journal;
    JournaliseSiActif(UniChaine("été"));
    JournaliseSiActif(UniChaine("hiver"));
    QCOMPARE(journal.DonneLignes(), QStringList({u"été"_s, u"hiver"_s}));
    QVERIFY(journal.AppelsSontComplets());
}

void tst_JournalAbs::autreFil()
{
    JournalSimulay const journal;
    JournalAbs * lu = nullptr;
    std::thread([&lu] {
        lu = PreteBoiteNoire();
        JournaliseSiActif(UniChaine("ailleurs"));
    }).join();
    QCOMPARE(lu, static_cast<JournalAbs const *>(&journal));
    QCOMPARE(journal.DonneLignes(), QStringList(u"ailleurs"_s));
}

void tst_JournalAbs::filsSimultanes()
{
    constexpr int kFils = 4;
    constexpr int kLignes = 500;
    JournalSimulay const journal;
    std::vector<std::thread> fils;
    for (int i = 0; i < kFils; ++i) {
        fils.emplace_back([] {
            for (int j = 0; j < kLignes; ++j)
                JournaliseSiActif(UniChaine("ligne"));
        });
    }
    for (std::thread & filFini : fils)
        filFini.join();
    QCOMPARE(journal.DonneLignes().size(), kFils * kLignes);
}

QTEST_GUILESS_MAIN(tst_JournalAbs)
#include "tst_JournalAbs.moc"
