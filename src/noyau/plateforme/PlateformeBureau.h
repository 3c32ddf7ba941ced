// noyau/plateforme/PlateformeBureau.h
#pragma once

#include "FabrelNoyauExport.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>

/// The services of the desktop that the libraries need, one call each, no policy.
///
/// Backends: Windows, and freedesktop for every other system.
class FABRELNOYAU_EXPORT PlateformeBureau
{
public:
    /// What identifies a shortcut of the Start menu or of the applications menu.
    struct Raccourci
    {
        QString identifiantApplication;
        QString nom;
    };

    PlateformeBureau() = default;
    PlateformeBureau(PlateformeBureau const &) = delete;
    PlateformeBureau & operator=(PlateformeBureau const &) = delete;
    virtual ~PlateformeBureau();

    /// The services of the running system, or what `Installe` put in their place.
    static PlateformeBureau & Courante();

    /// Puts other services in place and returns those replaced, never null. A null argument puts
    /// those of the running system back.
    static std::unique_ptr<PlateformeBureau> Installe(std::unique_ptr<PlateformeBureau> plateforme);

    /// True when the system is Windows, at least of that version.
    virtual bool WindowsEstAuMoins(int majeure, int mineure, int numeroBuild) = 0;
    virtual bool RaccourciExiste(Raccourci const & raccourci) = 0;
    /// True when the executable at that path is set to run in a compatibility mode.
    virtual bool PossedeAppCompatFlags(QString const & executable) = 0;
    /// True when the user may run a process with an administrator's rights.
    virtual bool UtilisateurPeutExecuterElevay() = 0;
    /// The secret kept under `cle`: empty when there is no entry, none when there is no store or no
    /// permission. Blocks.
    virtual std::optional<QByteArray> LisSecret(QString const & cle) = 0;
    /// False when the store is absent or refuses. Blocks.
    virtual bool EcrisSecret(QString const & cle, QByteArray const & secret) = 0;
    virtual bool OuvreExplorateur(QString const & chemin) = 0;
    /// Opens `url` in the program `fureteur`, or in the user's browser when that is empty.
    virtual bool OuvreUrl(QUrl const & url, QString const & fureteur) = 0;
};
