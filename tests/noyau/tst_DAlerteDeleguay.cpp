// tests/noyau/tst_DAlerteDeleguay.cpp
#include "noyau/DAlerteDeleguay.h"

#include "noyau/DAlerteInfo.h"

#include <QtTest>

#include <memory>
#include <thread>

namespace {

class Deleguay : public DAlerteDeleguay
{
public:
    explicit Deleguay(int reponse = 1, bool * detruit = nullptr)
        : maReponse(reponse)
        , maDestruction(detruit)
    {
    }
    Deleguay(Deleguay const &) = default;
    Deleguay & operator=(Deleguay const &) = default;
    ~Deleguay() override
    {
        if (maDestruction)
            *maDestruction = true;
    }

    int TraiteDAlerte(DAlerteInfo const &) override { return maReponse; }

private:
    int maReponse;
    bool * maDestruction;
};

DAlerteInfo Alerte()
{
    return DAlerteInfo(DAlerteInfo::kErreur, UniChaine("message"));
}

} // namespace

class tst_DAlerteDeleguay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void neTraiteRien();
    void copieEtAffectation();
    void destructeurVirtuel();
    void installation();
    void luDUnAutreFil();
};

void tst_DAlerteDeleguay::cleanup()
{
    DAlerteDeleguay::Installe(nullptr);
}

void tst_DAlerteDeleguay::neTraiteRien()
{
    DAlerteDeleguay deleguay;
    QCOMPARE(deleguay.TraiteDAlerte(Alerte()), -1);
    QCOMPARE(deleguay.TraiteDAlerteRappel(Alerte(), UniChaine("guid")), -1);
    QCOMPARE(deleguay.TraiteDAlerteRappel(Alerte(), kUniChaineNulle), -1);
}

void tst_DAlerteDeleguay::copieEtAffectation()
{
    Deleguay const original(4);
    Deleguay copie(original);
    QCOMPARE(copie.TraiteDAlerte(Alerte()), 4);
    copie = Deleguay(5);
    QCOMPARE(copie.TraiteDAlerte(Alerte()), 5);
    // What is copied as the base is the base.
    DAlerteDeleguay base(original);
    QCOMPARE(base.TraiteDAlerte(Alerte()), -1);
    base = original;
    QCOMPARE(base.TraiteDAlerte(Alerte()), -1);
}

void tst_DAlerteDeleguay::destructeurVirtuel()
{
    bool detruit = false;
    std::unique_ptr<DAlerteDeleguay> deleguay = std::make_unique<Deleguay>(1, &detruit);
    deleguay.reset();
    QVERIFY(detruit);
}

void tst_DAlerteDeleguay::installation()
{
    QVERIFY(!DAlerteDeleguay::Courant());
    Deleguay premier(1);
    Deleguay second(2);
    DAlerteDeleguay::Installe(&premier);
    DAlerteDeleguay::Installe(&second);
    QCOMPARE(DAlerteDeleguay::Courant(), &second);
    QCOMPARE(DAlerteDeleguay::Courant()->TraiteDAlerte(Alerte()), 2);
    DAlerteDeleguay::Installe(nullptr);
    QVERIFY(!DAlerteDeleguay::Courant());
}

void tst_DAlerteDeleguay::luDUnAutreFil()
{
    Deleguay deleguay(3);
    DAlerteDeleguay::Installe(&deleguay);
    DAlerteDeleguay * lu = nullptr;
    std::thread([&lu] { lu = DAlerteDeleguay::Courant(); }).join();
    QCOMPARE(lu, &deleguay);
}

QTEST_GUILESS_MAIN(tst_DAlerteDeleguay)
#include "tst_DAlerteDeleguay.moc"
