// desktop/DFrameProxy.cpp
#include "desktop/DFrameProxy.h"

#include "foundation/TraductionGui.h"

#include "noyau/CredentialManager.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <algorithm>

namespace {
constexpr int kPortMax = 65535;
} // namespace

DFrameProxy::DFrameProxy(QWidget * parent)
    : QFrame(parent)
{
    setAccessibleName(TraductionGui(TexteGui("Configuration du serveur proxy")));
    CreeChamps();
    PoseGrille();
    Branche();
    PriseTypeChangay();
}

void DFrameProxy::MetsIdProxy(UniChaine const & id)
{
    monIdProxy = id;
}

void DFrameProxy::MetsConfiguration(Configuration const & configuration)
{
    monChoixType->setCurrentIndex(std::max(0, monChoixType->findData(configuration.type)));
    monChampAdresse->setText(configuration.adresse);
    monChampPort->setValue(configuration.port);
    monChampNom->setText(configuration.nomUtilisateur);
    monChampMotDePasse->setText(configuration.motDePasse);
}

DFrameProxy::Configuration DFrameProxy::DonneConfiguration() const
{
    return {static_cast<eTypeProxy>(monChoixType->currentData().toInt()), monChampAdresse->text(),
            monChampPort->value(), monChampNom->text(), monChampMotDePasse->text()};
}

void DFrameProxy::ChargeIdentifiants()
{
    if (monIdProxy.EstVide())
        return;
    auto const infos = RoutinesGeneralesWin::DonneInfosCredentialManager(monIdProxy);
    if (infos.nomUtilisateur.EstVide() && infos.motDePasse.EstVide() && infos.typeProxy == kAucun)
        return;
    Configuration configuration = DonneConfiguration();
    configuration.type = static_cast<eTypeProxy>(infos.typeProxy);
    configuration.nomUtilisateur = infos.nomUtilisateur;
    configuration.motDePasse = infos.motDePasse;
    MetsConfiguration(configuration);
}

bool DFrameProxy::EnregistreIdentifiants() const
{
    if (monIdProxy.EstVide())
        return false;
    Configuration const configuration = DonneConfiguration();
    return RoutinesGeneralesWin::EnregistreInfosCredentialManager(
        {configuration.nomUtilisateur, configuration.motDePasse, configuration.type}, monIdProxy);
}

void DFrameProxy::PriseTypeChangay()
{
    auto const type = static_cast<eTypeProxy>(monChoixType->currentData().toInt());
    bool const serveurAChoisir = type == kHTTP || type == kSOCKS5;
    monChampAdresse->setEnabled(serveurAChoisir);
    monChampPort->setEnabled(serveurAChoisir);
    monChampNom->setEnabled(type != kAucun);
    monChampMotDePasse->setEnabled(type != kAucun);
    Q_EMIT SignalConfigurationChangay();
}

void DFrameProxy::CreeChamps()
{
    struct
    {
        eTypeProxy type;
        ChaineLocalisable texte;
    } const types[] = {
        {kAucun, TexteGui("Aucun")},     {kDetectionAutomatique, TexteGui("Détection automatique")},
        {kSysteme, TexteGui("Système")}, {kHTTP, TexteGui("HTTP")},
        {kSOCKS5, TexteGui("SOCKS5")},
    };
    monChoixType = new QComboBox(this);
    for (auto const & type : types)
        monChoixType->addItem(TraductionGui(type.texte), type.type);
    monChampAdresse = new QLineEdit(this);
    monChampPort = new QSpinBox(this);
    monChampPort->setRange(0, kPortMax);
    monChampNom = new QLineEdit(this);
    monChampMotDePasse = new QLineEdit(this);
    monChampMotDePasse->setEchoMode(QLineEdit::Password);
}

void DFrameProxy::PoseGrille()
{
    struct
    {
        ChaineLocalisable libelle;
        QWidget * champ;
    } const lignes[] = {
        {TexteGui("Type de serveur proxy :"), monChoixType},
        {TexteGui("Adresse"), monChampAdresse},
        {TexteGui("Port"), monChampPort},
        {TexteGui("Nom d’utilisateur"), monChampNom},
        {TexteGui("Mot de passe"), monChampMotDePasse},
    };
    auto * grille = new QGridLayout(this);
    for (int i = 0; auto const & ligne : lignes) {
        auto * libelle = new QLabel(TraductionGui(ligne.libelle), this);
        libelle->setBuddy(ligne.champ);
        grille->addWidget(libelle, i, 0);
        grille->addWidget(ligne.champ, i, 1);
        ++i;
    }
}

void DFrameProxy::Branche()
{
    connect(monChoixType, &QComboBox::currentIndexChanged, this, &DFrameProxy::PriseTypeChangay,
            Qt::UniqueConnection);
    connect(monChampPort, &QSpinBox::valueChanged, this, &DFrameProxy::SignalConfigurationChangay,
            Qt::UniqueConnection);
    for (QLineEdit * champ : {monChampAdresse, monChampNom, monChampMotDePasse})
        connect(champ, &QLineEdit::textChanged, this, &DFrameProxy::SignalConfigurationChangay,
                Qt::UniqueConnection);
}
