// tests/outils/BureauSimulay.cpp
#include "outils/BureauSimulay.h"

bool BureauSimulay::WindowsEstAuMoins(int majeure, int mineure, int numeroBuild)
{
    return versionWindows[0] > 0 && versionWindows >= std::array{majeure, mineure, numeroBuild};
}

bool BureauSimulay::RaccourciExiste(Raccourci const & raccourci)
{
    return (!raccourci.identifiantApplication.isEmpty() &&
            raccourcis.contains(raccourci.identifiantApplication)) ||
           (!raccourci.nom.isEmpty() && raccourcis.contains(raccourci.nom));
}

bool BureauSimulay::PossedeAppCompatFlags(QString const & executable)
{
    return executablesAvecCompat.contains(executable);
}

bool BureauSimulay::UtilisateurPeutExecuterElevay()
{
    return peutExecuterElevay;
}

std::optional<QByteArray> BureauSimulay::LisSecret(QString const & cle)
{
    return magasinPresent ? std::optional(secrets.value(cle)) : std::nullopt;
}

bool BureauSimulay::EcrisSecret(QString const & cle, QByteArray const & secret)
{
    if (magasinPresent)
        secrets.insert(cle, secret);
    return magasinPresent;
}

bool BureauSimulay::OuvreExplorateur(QString const & chemin)
{
    dossiersOuverts << chemin;
    return ouvertureReussit;
}

bool BureauSimulay::OuvreUrl(QUrl const & url, QString const & fureteur)
{
    urlsOuvertes.append({url, fureteur});
    return ouvertureReussit;
}
