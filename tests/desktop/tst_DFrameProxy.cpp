// tests/desktop/tst_DFrameProxy.cpp
#include "desktop/DFrameProxy.h"

#include "noyau/Traductions.h"
#include "noyau/plateforme/PlateformeBureau.h"
#include "outils/BureauSimulay.h"

#include <QtTest>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

using namespace Qt::StringLiterals;

class tst_DFrameProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void libellesDansLaLangue();
    void champsSelonLeType_data();
    void champsSelonLeType();
    void configurationAllerRetour();
    void saisieAnnonceLeChangement();
    void identifiantsGardesDansLeMagasin();
    void sansCleRienNEstGarde();
    void magasinAbsent();

private:
    std::unique_ptr<PlateformeBureau> monBureau;
};

void tst_DFrameProxy::init()
{
    monBureau = PlateformeBureau::Installe(std::make_unique<BureauSimulay>());
    DFrameProxy::MetsIdProxy(UniChaine("essai/proxy"));
}

void tst_DFrameProxy::cleanup()
{
    DFrameProxy::MetsIdProxy({});
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    PlateformeBureau::Installe(std::move(monBureau));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DFrameProxy::libellesDansLaLangue()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    DFrameProxy const panneau;
    QStringList textes;
    for (QLabel const * libelle : panneau.findChildren<QLabel *>())
        textes.append(libelle->text());
    QVERIFY(textes.contains(u"Password"_s));
    QVERIFY(!panneau.accessibleName().isEmpty());
}

void tst_DFrameProxy::champsSelonLeType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("serveur");
    QTest::addColumn<bool>("compte");
    QTest::newRow("none") << int(DFrameProxy::kAucun) << false << false;
    QTest::newRow("detected") << int(DFrameProxy::kDetectionAutomatique) << false << true;
    QTest::newRow("system") << int(DFrameProxy::kSysteme) << false << true;
    QTest::newRow("HTTP") << int(DFrameProxy::kHTTP) << true << true;
    QTest::newRow("SOCKS5") << int(DFrameProxy::kSOCKS5) << true << true;
}

void tst_DFrameProxy::champsSelonLeType()
{
    QFETCH(int, type);
    QFETCH(bool, serveur);
    QFETCH(bool, compte);
    DFrameProxy panneau;
    DFrameProxy::Configuration configuration;
    configuration.type = static_cast<DFrameProxy::eTypeProxy>(type);
    panneau.MetsConfiguration(configuration);
    QCOMPARE(panneau.findChild<QSpinBox *>()->isEnabled(), serveur);
    for (QLineEdit const * champ :
         panneau.findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly)) {
        bool const estMotDePasse = champ->echoMode() == QLineEdit::Password;
        if (estMotDePasse)
            QCOMPARE(champ->isEnabled(), compte);
    }
}

void tst_DFrameProxy::configurationAllerRetour()
{
    DFrameProxy panneau;
    panneau.MetsConfiguration({DFrameProxy::kSOCKS5, UniChaine("relais.exemple"), 1080,
                               UniChaine("ève"), UniChaine("mot «de» passe")});
    DFrameProxy::Configuration const relue = panneau.DonneConfiguration();
    QCOMPARE(relue.type, DFrameProxy::kSOCKS5);
    QCOMPARE(QString(relue.adresse), u"relais.exemple"_s);
    QCOMPARE(relue.port, 1080);
    QCOMPARE(QString(relue.nomUtilisateur), u"ève"_s);
    QCOMPARE(QString(relue.motDePasse), u"mot «de» passe"_s);
}

void tst_DFrameProxy::saisieAnnonceLeChangement()
{
    DFrameProxy panneau;
    panneau.MetsConfiguration({DFrameProxy::kHTTP, {}, 0, {}, {}});
    QSignalSpy espion(&panneau, &DFrameProxy::SignalConfigurationChangay);
    QTest::keyClicks(
        panneau.findChildren<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly).first(), u"ab"_s);
    QCOMPARE(espion.count(), 2);
    QCOMPARE(QString(panneau.DonneConfiguration().adresse), u"ab"_s);
}

void tst_DFrameProxy::identifiantsGardesDansLeMagasin()
{
    DFrameProxy premier;
    premier.MetsConfiguration(
        {DFrameProxy::kHTTP, UniChaine("a"), 1, UniChaine("nom"), UniChaine("secret")});
    QVERIFY(premier.EnregistreIdentifiants());
    DFrameProxy second;
    second.ChargeIdentifiants();
    DFrameProxy::Configuration const relue = second.DonneConfiguration();
    QCOMPARE(relue.type, DFrameProxy::kHTTP);
    QCOMPARE(QString(relue.nomUtilisateur), u"nom"_s);
    QCOMPARE(QString(relue.motDePasse), u"secret"_s);
    QVERIFY(relue.adresse.EstVide()); // the application's to keep
}

void tst_DFrameProxy::sansCleRienNEstGarde()
{
    DFrameProxy::MetsIdProxy({});
    DFrameProxy panneau;
    panneau.MetsConfiguration({DFrameProxy::kHTTP, {}, 1, UniChaine("nom"), UniChaine("secret")});
    QVERIFY(!panneau.EnregistreIdentifiants());
    panneau.ChargeIdentifiants();
    QCOMPARE(QString(panneau.DonneConfiguration().motDePasse), u"secret"_s);
}

void tst_DFrameProxy::magasinAbsent()
{
    auto bureau = std::make_unique<BureauSimulay>();
    bureau->magasinPresent = false;
    PlateformeBureau::Installe(std::move(bureau));
    DFrameProxy panneau;
    panneau.MetsConfiguration({DFrameProxy::kHTTP, {}, 1, UniChaine("nom"), UniChaine("secret")});
    QVERIFY(!panneau.EnregistreIdentifiants());
    panneau.ChargeIdentifiants();
    QCOMPARE(QString(panneau.DonneConfiguration().nomUtilisateur), u"nom"_s);
}

QTEST_MAIN(tst_DFrameProxy)
#include "tst_DFrameProxy.moc"
