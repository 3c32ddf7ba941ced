// tests/noyau/tst_ExecutionSilencieuse.cpp
#include "noyau/ExecutionSilencieuse.h"

#include <QtTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QStringList Dialogues()
{
    QStringList textes;
    for (UniChaine const & dialogue : ExecutionSilencieuse::DonneDialoguesJournalises())
        textes.append(dialogue);
    return textes;
}

} // namespace

class tst_ExecutionSilencieuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void absenteAuDepart();
    void demarreEtArrete();
    void demarreDeuxFois();
    void arreteDeuxFois();
    void journalise();
    void journaliseSansObjet();
    void registreSurvit();
    void horsDuFilDeLInterface();
    void filsSimultanes();
};

void tst_ExecutionSilencieuse::cleanup()
{
    ExecutionSilencieuse::Arrete();
    ExecutionSilencieuse::OublieDialoguesJournalises();
}

void tst_ExecutionSilencieuse::absenteAuDepart()
{
    QVERIFY(!ExecutionSilencieuse::Instance());
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
}

void tst_ExecutionSilencieuse::demarreEtArrete()
{
    ExecutionSilencieuse::Demarre();
    QVERIFY(ExecutionSilencieuse::Instance());
    QVERIFY(ExecutionSilencieuse::Instance()->EstSilencieux());
    ExecutionSilencieuse::Arrete();
    QVERIFY(!ExecutionSilencieuse::Instance());
}

void tst_ExecutionSilencieuse::demarreDeuxFois()
{
    ExecutionSilencieuse::Demarre(false);
    ExecutionSilencieuse * const instance = ExecutionSilencieuse::Instance();
    QVERIFY(instance);
    QVERIFY(!instance->EstSilencieux());
    ExecutionSilencieuse::Demarre(true);
    QCOMPARE(ExecutionSilencieuse::Instance(), instance);
    QVERIFY(instance->EstSilencieux());
}

void tst_ExecutionSilencieuse::arreteDeuxFois()
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::Arrete();
    ExecutionSilencieuse::Arrete();
    QVERIFY(!ExecutionSilencieuse::Instance());
}

void tst_ExecutionSilencieuse::journalise()
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine("premier"));
    ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine("été"));
    ExecutionSilencieuse::JournaliseDialogueSilencieux(kUniChaineNulle);
    QCOMPARE(Dialogues(), QStringList({u"premier"_s, u"été"_s, QString()}));
    ExecutionSilencieuse::OublieDialoguesJournalises();
    QCOMPARE(Dialogues(), QStringList());
}

void tst_ExecutionSilencieuse::journaliseSansObjet()
{
    ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine("seul"));
    QCOMPARE(Dialogues(), QStringList(u"seul"_s));
}

void tst_ExecutionSilencieuse::registreSurvit()
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine("ancien"));
    ExecutionSilencieuse::Arrete();
    QCOMPARE(Dialogues(), QStringList(u"ancien"_s));
}

void tst_ExecutionSilencieuse::horsDuFilDeLInterface()
{
    ExecutionSilencieuse::Demarre();
    bool silencieux = false;
    std::thread fil([&silencieux] {
        ExecutionSilencieuse const * const instance = ExecutionSilencieuse::Instance();
        silencieux = instance && instance->EstSilencieux();
        ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine("ailleurs"));
    });
    fil.join();
    QVERIFY(silencieux);
    QCOMPARE(Dialogues(), QStringList(u"ailleurs"_s));
}

void tst_ExecutionSilencieuse::filsSimultanes()
{
    constexpr int kFils = 4;
    constexpr int kDialogues = 500;
    ExecutionSilencieuse::Demarre();
    std::vector<std::thread> fils;
    for (int i = 0; i < kFils; ++i) {
        fils.emplace_back([i] {
            for (int j = 0; j < kDialogues; ++j)
                ExecutionSilencieuse::JournaliseDialogueSilencieux(
                    UniChaine::DepuisNombre(i * kDialogues + j));
        });
    }
    for (std::thread & filFini : fils)
        filFini.join();
    QStringList textes = Dialogues();
    QCOMPARE(textes.size(), kFils * kDialogues);
    QCOMPARE(textes.removeDuplicates(), 0);
}

QTEST_GUILESS_MAIN(tst_ExecutionSilencieuse)
#include "tst_ExecutionSilencieuse.moc"
