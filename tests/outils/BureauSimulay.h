// tests/outils/BureauSimulay.h
#pragma once

#include "noyau/plateforme/PlateformeBureau.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QStringList>

#include <array>

/// A desktop's services in memory: tests fill in what the system answers and read what it was
/// asked.
class BureauSimulay : public PlateformeBureau
{
public:
    /// Major, minor, build; zeros when the system is not Windows.
    std::array<int, 3> versionWindows{0, 0, 0};
    QStringList raccourcis; ///< application identifiers and names of those that exist
    QStringList executablesAvecCompat;
    bool peutExecuterElevay = false;
    bool magasinPresent = true; ///< false: no secret can be read or written
    QHash<QString, QByteArray> secrets;
    bool ouvertureReussit = true;             ///< what the two openings answer
    QStringList dossiersOuverts;              ///< in the order of the calls, failed ones too
    QList<QPair<QUrl, QString>> urlsOuvertes; ///< the address and the browser, likewise

    bool WindowsEstAuMoins(int majeure, int mineure, int numeroBuild) override;
    bool RaccourciExiste(Raccourci const & raccourci) override;
    bool PossedeAppCompatFlags(QString const & executable) override;
    bool UtilisateurPeutExecuterElevay() override;
    std::optional<QByteArray> LisSecret(QString const & cle) override;
    bool EcrisSecret(QString const & cle, QByteArray const & secret) override;
    bool OuvreExplorateur(QString const & chemin) override;
    bool OuvreUrl(QUrl const & url, QString const & fureteur) override;
};
