// noyau/CredentialManager.cpp
#include "noyau/CredentialManager.h"

#include "noyau/JournalAbs.h"
#include "noyau/plateforme/PlateformeBureau.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

using namespace Qt::StringLiterals;

// The entry's text: the stores keep one secret under a key.
constexpr QLatin1StringView kCleNom("nomUtilisateur");
constexpr QLatin1StringView kCleMotDePasse("motDePasse");
constexpr QLatin1StringView kCleTypeProxy("typeProxy");

} // namespace

namespace RoutinesGeneralesWin {

IdentifiantsCredentialManager DonneInfosCredentialManager(UniChaine const & cle)
{
    std::optional<QByteArray> const secret = PlateformeBureau::Courante().LisSecret(cle);
    if (!secret) {
        JournaliseSiActif(UniChaine("Aucun identifiant lu pour ") + cle);
        return {};
    }
    QJsonObject const entree = QJsonDocument::fromJson(*secret).object();
    return {entree[kCleNom].toString(), entree[kCleMotDePasse].toString(),
            entree[kCleTypeProxy].toInt()};
}

bool EnregistreInfosCredentialManager(IdentifiantsCredentialManager const & infos,
                                      UniChaine const & cle)
{
    QJsonObject const entree = {
        {kCleNom, QString(infos.nomUtilisateur)},
        {kCleMotDePasse, QString(infos.motDePasse)},
        {kCleTypeProxy, infos.typeProxy},
    };
    bool const ecrit = PlateformeBureau::Courante().EcrisSecret(
        cle, QJsonDocument(entree).toJson(QJsonDocument::Compact));
    if (!ecrit)
        JournaliseSiActif(UniChaine("Identifiant refusé pour ") + cle);
    return ecrit;
}

} // namespace RoutinesGeneralesWin
