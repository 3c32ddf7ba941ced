// tests/noyau/tst_Objet.cpp
#include "noyau/Objet.h"

#include "noyau/UniChaine.h"

#include <QtTest>

#include <memory>

namespace {

class Conteneur : public sdd::Objet
{
public:
    explicit Conteneur(int & detruits)
        : mesDetruits(detruits)
    {
    }
    ~Conteneur() override { ++mesDetruits; }

    void VideEtTueObjets() override { mesObjets = 0; }

    int mesObjets = 3;

private:
    int & mesDetruits;
};

} // namespace

class tst_Objet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chaineEstUnObjet();
    void videEtTueEstVirtuelle();
    void destructeurEstVirtuel();
};

void tst_Objet::chaineEstUnObjet()
{
    UniChaine chaine("texte");
    sdd::Objet & objet = chaine;
    objet.VideEtTueObjets();
    QVERIFY(chaine == UniChaine("texte"));
    std::unique_ptr<sdd::Objet> const possede = std::make_unique<UniChaine>(chaine);
    QVERIFY(*static_cast<UniChaine *>(possede.get()) == chaine);
}

void tst_Objet::videEtTueEstVirtuelle()
{
    int detruits = 0;
    Conteneur conteneur(detruits);
    sdd::Objet & objet = conteneur;
    objet.VideEtTueObjets();
    QCOMPARE(conteneur.mesObjets, 0);
}

void tst_Objet::destructeurEstVirtuel()
{
    int detruits = 0;
    std::unique_ptr<sdd::Objet> objet = std::make_unique<Conteneur>(detruits);
    objet.reset();
    QCOMPARE(detruits, 1);
}

QTEST_GUILESS_MAIN(tst_Objet)
#include "tst_Objet.moc"
