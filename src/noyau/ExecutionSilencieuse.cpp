// noyau/ExecutionSilencieuse.cpp
#include "noyau/ExecutionSilencieuse.h"

#include <QMutex>

#include <atomic>

namespace {

std::atomic<ExecutionSilencieuse *> instance = nullptr;

struct Registre
{
    QMutex verrou;
    QList<UniChaine> dialogues;
};

Registre & PreteRegistre()
{
    static Registre registre;
    return registre;
}

} // namespace

ExecutionSilencieuse * ExecutionSilencieuse::Instance()
{
    return instance;
}

void ExecutionSilencieuse::Demarre(bool silencieux)
{
    auto * const nouvelle = new ExecutionSilencieuse(silencieux);
    ExecutionSilencieuse * existante = nullptr;
    if (instance.compare_exchange_strong(existante, nouvelle))
        return;
    existante->monModeSilencieux = silencieux;
    delete nouvelle;
}

void ExecutionSilencieuse::Arrete()
{
    delete instance.exchange(nullptr);
}

void ExecutionSilencieuse::JournaliseDialogueSilencieux(UniChaine const & dialogue)
{
    Registre & registre = PreteRegistre();
    QMutexLocker const verrou(&registre.verrou);
    registre.dialogues.append(dialogue);
}

QList<UniChaine> ExecutionSilencieuse::DonneDialoguesJournalises()
{
    Registre & registre = PreteRegistre();
    QMutexLocker const verrou(&registre.verrou);
    return registre.dialogues;
}

void ExecutionSilencieuse::OublieDialoguesJournalises()
{
    Registre & registre = PreteRegistre();
    QMutexLocker const verrou(&registre.verrou);
    registre.dialogues.clear();
}
