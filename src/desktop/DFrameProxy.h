// desktop/DFrameProxy.h
#pragma once

#include "FabrelGuiExport.h"

#include "noyau/UniChaine.h"

#include <QFrame>

class QComboBox;
class QLineEdit;
class QSpinBox;

/// The settings panel of a proxy server: its type, address and port, and the account to use there.
///
/// The account is kept in the platform's credential store under the key given to `MetsIdProxy`; the
/// rest is the application's to keep.
class FABRELGUI_EXPORT DFrameProxy : public QFrame
{
    Q_OBJECT

public:
    enum eTypeProxy
    {
        kAucun = 0,
        kDetectionAutomatique = 1,
        kSysteme = 2,
        kHTTP = 3,
        kSOCKS5 = 4,
    };

    /// What the panel shows.
    struct Configuration
    {
        eTypeProxy type = kAucun;
        UniChaine adresse;
        int port = 0; ///< 0 to 65535
        UniChaine nomUtilisateur;
        UniChaine motDePasse;
    };

    explicit DFrameProxy(QWidget * parent = nullptr);

    /// The key of the account in the credential store, for all panels; empty for none.
    static void MetsIdProxy(UniChaine const & id);

    void MetsConfiguration(Configuration const & configuration);
    Configuration DonneConfiguration() const;

    /// Fills type, user name and password from the credential store; blocks. Without a key or an
    /// entry nothing changes.
    void ChargeIdentifiants();
    /// Writes type, user name and password to the credential store; blocks. False without a key or
    /// when the store refuses.
    bool EnregistreIdentifiants() const;

    static UniChaine monIdProxy;

Q_SIGNALS:
    /// Emitted after each change of a field, by the user or by `MetsConfiguration`.
    void SignalConfigurationChangay();

private Q_SLOTS:
    void PriseTypeChangay();

private:
    void CreeChamps();
    void PoseGrille();
    void Branche();

    QComboBox * monChoixType = nullptr;
    QLineEdit * monChampAdresse = nullptr;
    QSpinBox * monChampPort = nullptr;
    QLineEdit * monChampNom = nullptr;
    QLineEdit * monChampMotDePasse = nullptr;
};
