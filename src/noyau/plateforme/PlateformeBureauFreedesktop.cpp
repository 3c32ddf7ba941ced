// noyau/plateforme/PlateformeBureauFreedesktop.cpp
//
// Each lambda's context object dies with the variables that the lambda refers to.
// clazy:excludeall=lambda-in-connect
#include "noyau/plateforme/PlateformeBureau.h"

#include "noyau/plateforme/EntreesBureau_p.h"
#include "noyau/plateforme/PlateformeBureauSysteme_p.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <qt6keychain/keychain.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include <grp.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
// Long enough for a user to type the password that unlocks the store.
constexpr int kDelaiSecret = 30'000; // ms

// The store files its entries by program; the programs of the family share theirs.
constexpr auto kService = "Fabrel"_L1;

// Groups whose members may run programs as the administrator: by sudo on Debian, by the same on
// Fedora and Arch, and on older systems.
constexpr std::string_view kGroupesAdministrateurs[] = {"sudo", "wheel", "admin"};

// Without this test a store that is not there costs seconds, spent in trying to start a bus.
bool BusDeSessionPresent()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    QString const dossier = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !dossier.isEmpty() && QFileInfo::exists(dossier + "/bus"_L1);
}

/// Runs a job of the store to its end; false when it failed or took too long.
///
/// The job deletes itself. One that takes too long is left to do so, since the store still holds
/// it.
bool Execute(QKeychain::Job * travail)
{
    bool reussite = false;
    QEventLoop boucle;
    QObject::connect(travail, &QKeychain::Job::finished, &boucle, [&](QKeychain::Job * fini) {
        reussite = fini->error() == QKeychain::NoError;
        boucle.quit();
    });
    QTimer::singleShot(kDelaiSecret, &boucle, &QEventLoop::quit);
    travail->start();
    boucle.exec(QEventLoop::ExcludeUserInputEvents);
    return reussite;
}

class PlateformeBureauFreedesktop final : public PlateformeBureau
{
public:
    bool WindowsEstAuMoins(int, int, int) override { return false; }

    bool RaccourciExiste(Raccourci const & raccourci) override
    {
        return EntreeBureauExiste(
            QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation),
            raccourci.identifiantApplication, raccourci.nom);
    }

    // There are no compatibility modes here.
    bool PossedeAppCompatFlags(QString const &) override { return false; }

    bool UtilisateurPeutExecuterElevay() override { return geteuid() == 0 || EstAdministrateur(); }

    std::optional<QByteArray> LisSecret(QString const & cle) override
    {
        if (!BusDeSessionPresent() || !QCoreApplication::instance())
            return std::nullopt;
        auto * const lecture = new QKeychain::ReadPasswordJob(kService);
        std::optional<QByteArray> secret;
        lecture->setKey(cle);
        QObject contexte;
        QObject::connect(lecture, &QKeychain::Job::finished, &contexte, [&](QKeychain::Job *) {
            if (lecture->error() == QKeychain::NoError)
                secret = lecture->binaryData();
            else if (lecture->error() == QKeychain::EntryNotFound)
                secret = QByteArray();
        });
        Execute(lecture);
        return secret;
    }

    bool EcrisSecret(QString const & cle, QByteArray const & secret) override
    {
        if (!BusDeSessionPresent() || !QCoreApplication::instance())
            return false;
        auto * const ecriture = new QKeychain::WritePasswordJob(kService);
        ecriture->setKey(cle);
        ecriture->setBinaryData(secret);
        return Execute(ecriture);
    }

    bool OuvreExplorateur(QString const & chemin) override
    {
        // Opening a file would start the program that edits it; its folder is what is asked for.
        QFileInfo const infos(chemin);
        if (!infos.exists())
            return false;
        QString const dossier = infos.isDir() ? chemin : infos.absolutePath();
        return QDesktopServices::openUrl(QUrl::fromLocalFile(dossier));
    }

    bool OuvreUrl(QUrl const & url, QString const & fureteur) override
    {
        if (url.isEmpty() || !url.isValid())
            return false;
        if (fureteur.isEmpty())
            return QDesktopServices::openUrl(url);
        return QProcess::startDetached(fureteur, {url.toString(QUrl::FullyEncoded)});
    }

private:
    static bool EstAdministrateur()
    {
        std::vector<gid_t> groupes(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
        int const nombre = getgroups(static_cast<int>(groupes.size()), groupes.data());
        groupes.resize(static_cast<std::size_t>(std::max(nombre, 0)));
        return std::any_of(groupes.begin(), groupes.end(), [](gid_t numero) {
            group const * const groupe = getgrgid(numero);
            return groupe && std::ranges::find(kGroupesAdministrateurs, groupe->gr_name) !=
                                 std::end(kGroupesAdministrateurs);
        });
    }
};
} // namespace

std::unique_ptr<PlateformeBureau> CreePlateformeBureauDuSysteme()
{
    return std::make_unique<PlateformeBureauFreedesktop>();
}
