// tests/outils/ProgrammeEtranger.cpp
#include "outils/ProgrammeEtranger.h"

#include <QCoreApplication>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {
constexpr int kDelai = 30'000; // ms; far more than a busy machine takes
}

ProgrammeEtranger::ProgrammeEtranger(QString const & classe)
{
    monProcessus.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    monProcessus.start(QStringLiteral(FABREL_FENETRE_ETRANGERE), {classe});
    if (!monProcessus.waitForStarted(kDelai))
        qFatal("the program of the foreign windows did not start");
}

ProgrammeEtranger::~ProgrammeEtranger()
{
    Reprend();
    monProcessus.closeWriteChannel();
    if (!monProcessus.waitForFinished(kDelai))
        monProcessus.kill();
}

QString ProgrammeEtranger::Demande(QString const & commande)
{
    monProcessus.write(commande.toUtf8() + '\n');
    while (!monProcessus.canReadLine())
        if (!monProcessus.waitForReadyRead(kDelai))
            return {};
    return QString::fromUtf8(monProcessus.readLine()).trimmed();
}

HWND ProgrammeEtranger::DemandePoignee(QString const & commande)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number that nobody dereferences
    return reinterpret_cast<HWND>(static_cast<quintptr>(Demande(commande).toULongLong()));
}

void ProgrammeEtranger::Arrete()
{
    Signale(SIGSTOP);
}

void ProgrammeEtranger::Reprend()
{
    Signale(SIGCONT);
}

void ProgrammeEtranger::Signale(int signal)
{
    if (monProcessus.processId() > 0)
        kill(static_cast<pid_t>(monProcessus.processId()), signal);
}
