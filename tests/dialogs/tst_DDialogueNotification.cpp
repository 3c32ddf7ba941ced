// tests/dialogs/tst_DDialogueNotification.cpp
#include "BancToasts.h"

#include <QtTest>

#include <thread>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

class tst_DDialogueNotification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void peutUtiliser_data();
    void peutUtiliser();
    void sansCoucheLAfficheEchoue();
    void sansRaccourci();
    void raccourciJamaisMis();
    void appelsDansLOrdre();
    void documentDansLOrdre();
    void chaqueAppelQuiEchoue();
    void chaqueAppelSansObjet_data();
    void chaqueAppelSansObjet();
    void sansNotification6_data();
    void sansNotification6();
    void ajoutSansObjet();
    void succesPartiel();
    void reglage_data();
    void reglage();
    void references();
    void reponseDepuisUnAutreThread();
    void defautEtEchapSansEffet();

private:
    std::unique_ptr<BancToasts> monBanc;
};

void tst_DDialogueNotification::init()
{
    monBanc = std::make_unique<BancToasts>();
}

void tst_DDialogueNotification::cleanup()
{
    monBanc->toasts->Oublie();
    QCOMPARE(monBanc->toasts->DonneNombreObjets(), 0);
    monBanc.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DDialogueNotification::peutUtiliser_data()
{
    QTest::addColumn<int>("majeure");
    QTest::addColumn<int>("mineure");
    QTest::addColumn<int>("build");
    QTest::addColumn<bool>("attendu");
    QTest::newRow("no Windows") << 0 << 0 << 0 << false;
    QTest::newRow("8.1") << 6 << 3 << 9600 << false;
    QTest::newRow("the first 10") << 10 << 0 << 0 << true;
    QTest::newRow("11") << 10 << 0 << 22000 << true;
}

void tst_DDialogueNotification::peutUtiliser()
{
    QFETCH(int, majeure);
    QFETCH(int, mineure);
    QFETCH(int, build);
    QFETCH(bool, attendu);
    monBanc->bureau->versionWindows = {majeure, mineure, build};
    QCOMPARE(DDialogueNotification::PeutUtiliserAPIToastNotification(), attendu);
    QVERIFY(monBanc->toasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::sansCoucheLAfficheEchoue()
{
#ifdef Q_OS_WIN
    QSKIP("This system has toasts.");
#endif
    auto retires = PlateformeToasts::Installe(nullptr);
    auto const remise = qScopeGuard([&] { PlateformeToasts::Installe(std::move(retires)); });
    // The version alone decides.
    QVERIFY(DDialogueNotification::PeutUtiliserAPIToastNotification());
    QVERIFY(!monBanc->Affiche(kBoutonOk));
}

void tst_DDialogueNotification::sansRaccourci()
{
    monBanc->bureau->raccourcis.clear();
    QVERIFY(!monBanc->Affiche(kBoutonOk));
    QVERIFY(monBanc->toasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::raccourciJamaisMis()
{
    DAlerteNotification::MetsRaccourci({});
    QVERIFY(!monBanc->Affiche(kBoutonOk));
    QVERIFY(monBanc->toasts->DonneAppels().isEmpty());
}

void tst_DDialogueNotification::appelsDansLOrdre()
{
    QVERIFY(monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    QStringList const appels = monBanc->toasts->DonneAppels();
    QCOMPARE(appels.mid(0, 2), QStringList({u"RoGetActivationFactory("
                                            "Windows.UI.Notifications.ToastNotificationManager)"_s,
                                            u"GetTemplateContent(3)"_s}));
    QCOMPARE(
        appels.mid(appels.indexOf("CreateToastNotifierWithId(org.essai)"_L1)),
        QStringList({u"CreateToastNotifierWithId(org.essai)"_s, u"get_Setting()"_s,
                     u"RoGetActivationFactory(Windows.UI.Notifications.ToastNotification)"_s,
                     u"CreateToastNotification()"_s, u"add_Activated()"_s, u"add_Dismissed()"_s,
                     u"add_Failed()"_s, u"QueryInterface(IToastNotification6)"_s,
                     u"put_ExpiresOnReboot(true)"_s, u"Show()"_s}));
    QVERIFY(monBanc->toasts->ExpireAuRedemarrage(0));
}

// What writes to the document, and where: the image, the texts, the actions; each action complete
// before it is put in its place.
void tst_DDialogueNotification::documentDansLOrdre()
{
    QVERIFY(
        monBanc->Affiche(kBoutonMaison1 | kBoutonMaison2, {UniChaine("un"), UniChaine("deux")}));
    QStringList const ecritures = monBanc->toasts->DonneAppels().filter(QRegularExpression(
        u"^(GetElementsByTagName|CreateTextNode|CreateElement|SetAttribute|AppendChild)"_s));
    QCOMPARE(ecritures, QStringList({u"GetElementsByTagName(image)"_s,
                                     u"CreateTextNode(file:///%1)"_s.arg(monBanc->DonneImage()),
                                     u"AppendChild(src)"_s,
                                     u"GetElementsByTagName(text)"_s,
                                     u"CreateTextNode(message)"_s,
                                     u"AppendChild(text)"_s,
                                     u"CreateTextNode()"_s,
                                     u"AppendChild(text)"_s,
                                     u"GetElementsByTagName(toast)"_s,
                                     u"SetAttribute(duration=long)"_s,
                                     u"CreateElement(actions)"_s,
                                     u"AppendChild(toast)"_s,
                                     u"CreateElement(action)"_s,
                                     u"SetAttribute(content=un)"_s,
                                     u"SetAttribute(arguments=kBoutonMaison1)"_s,
                                     u"SetAttribute(activationType=foreground)"_s,
                                     u"AppendChild(actions)"_s,
                                     u"CreateElement(action)"_s,
                                     u"SetAttribute(content=deux)"_s,
                                     u"SetAttribute(arguments=kBoutonMaison2)"_s,
                                     u"SetAttribute(activationType=foreground)"_s,
                                     u"AppendChild(actions)"_s}));
}

// Whichever call fails, none follows, nothing is shown, nothing is kept, and the callback is the
// caller's.
void tst_DDialogueNotification::chaqueAppelQuiEchoue()
{
    QVERIFY(monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    QStringList const appels = monBanc->toasts->DonneAppels();
    QVERIFY(appels.size() > 40);
    auto const temoin = std::make_shared<int>(0);
    std::function<void(eBoutons const &)> const rappel = [temoin](eBoutons const &) { ++*temoin; };
    for (int rang = 0; rang < appels.size(); ++rang) {
        monBanc->InstalleToasts();
        monBanc->toasts->RepondsAppel(rang, E_FAIL);
        bool const montray = DDialogueNotification::Affiche(
            DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")),
            kBoutonOk | kBoutonAnnuler, kBoutonOk, kBoutonAnnuler, {}, rappel);
        QByteArray const appel = appels.at(rang).toUtf8();
        QVERIFY2(!montray, appel);
        QStringList faits = monBanc->toasts->DonneAppels();
        faits.removeAll(u"~IToastNotifier"_s); // no call, but the end of an object
        QCOMPARE(faits, appels.mid(0, rang + 1));
        QCOMPARE(monBanc->toasts->DonneNombreToasts(), 0);
        QVERIFY2(monBanc->toasts->DonneNombreObjets() == 0, appel);
        QVERIFY2(temoin.use_count() == 2, appel); // the test's, and that of its own callback
    }
    QCOMPARE(*temoin, 0);
    rappel(kBoutonOk);
    QCOMPARE(*temoin, 1);
}

void tst_DDialogueNotification::chaqueAppelSansObjet_data()
{
    QTest::addColumn<QString>("appel");
    for (char const * const appel :
         {"RoGetActivationFactory", "GetTemplateContent", "GetElementsByTagName", "Item",
          "get_Attributes", "GetNamedItem", "CreateTextNode", "CreateElement", "QueryInterface",
          "CreateToastNotifierWithId", "CreateToastNotification"})
        QTest::newRow(appel) << QString::fromLatin1(appel);
}

void tst_DDialogueNotification::chaqueAppelSansObjet()
{
    QFETCH(QString, appel);
    monBanc->toasts->RendsRien(appel);
    QVERIFY(!monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 0);
}

void tst_DDialogueNotification::sansNotification6_data()
{
    QTest::addColumn<bool>("echoue");
    QTest::newRow("no such interface") << true;
    QTest::newRow("success without an object") << false;
}

// A toast that would survive a restart is none.
void tst_DDialogueNotification::sansNotification6()
{
    QFETCH(bool, echoue);
    QVERIFY(monBanc->Affiche(kBoutonOk));
    auto const rang = static_cast<int>(
        monBanc->toasts->DonneAppels().indexOf("QueryInterface(IToastNotification6)"_L1));
    QVERIFY(rang > 0);
    monBanc->InstalleToasts();
    if (echoue)
        monBanc->toasts->RepondsAppel(rang, E_NOINTERFACE);
    else
        monBanc->toasts->RendsRienAppel(rang);
    QVERIFY(!monBanc->Affiche(kBoutonOk));
    QVERIFY(!monBanc->toasts->DonneAppels().contains("put_ExpiresOnReboot(true)"_L1));
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 0);
}

// What was added is known without it.
void tst_DDialogueNotification::ajoutSansObjet()
{
    monBanc->toasts->RendsRien(u"AppendChild"_s);
    QVERIFY(monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    QCOMPARE(monBanc->toasts->DonneDocument(0).elementsByTagName(u"action"_s).size(), 2);
}

// A success that says more than S_OK goes on; only the last one has to be exact.
void tst_DDialogueNotification::succesPartiel()
{
    monBanc->toasts->Reponds(u"SetAttribute"_s, S_FALSE);
    monBanc->toasts->Reponds(u"add_Activated"_s, S_FALSE);
    QVERIFY(monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
    monBanc->toasts->Reponds(u"Show"_s, S_FALSE);
    QVERIFY(!monBanc->Affiche(kBoutonOk | kBoutonAnnuler));
}

void tst_DDialogueNotification::reglage_data()
{
    QTest::addColumn<int>("reglage");
    QTest::addColumn<bool>("montray");
    QTest::newRow("enabled") << int(NotificationSetting_Enabled) << true;
    QTest::newRow("application") << int(NotificationSetting_DisabledForApplication) << false;
    QTest::newRow("user") << int(NotificationSetting_DisabledForUser) << false;
    QTest::newRow("group policy") << int(NotificationSetting_DisabledByGroupPolicy) << false;
    QTest::newRow("manifest") << int(NotificationSetting_DisabledByManifest) << false;
}

void tst_DDialogueNotification::reglage()
{
    QFETCH(int, reglage);
    QFETCH(bool, montray);
    monBanc->toasts->MetsReglage(static_cast<NotificationSetting>(reglage));
    QCOMPARE(monBanc->Affiche(kBoutonOk), montray);
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), montray ? 1 : 0);
}

void tst_DDialogueNotification::references()
{
    auto const temoin = std::make_shared<int>(0);
    QVERIFY(DDialogueNotification::Affiche(
        DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")), kBoutonOk, kBoutonOk,
        kBoutonOk, {}, [temoin](eBoutons const &) {}));
    QCOMPARE(temoin.use_count(), 2);
    QCOMPARE(monBanc->toasts->DonneNombreObjets(), 2); // the toast, and the notifier of its handler
    monBanc->toasts->Ecarte(0, ToastDismissalReason_UserCanceled);
    QCOMPARE(monBanc->toasts->DonneNombreObjets(), 1);
    QCOMPARE(monBanc->toasts->DonneAppels().count("~IToastNotifier"_L1), 1);
    QCOMPARE(temoin.use_count(), 2); // a second event could come
    monBanc->toasts->Oublie();
    QCOMPARE(temoin.use_count(), 1);
}

void tst_DDialogueNotification::reponseDepuisUnAutreThread()
{
    std::thread::id identifiant = std::this_thread::get_id();
    QVERIFY(DDialogueNotification::Affiche(
        DAlerteInfo(DAlerteInfo::kNotification, UniChaine("message")), kBoutonOk, kBoutonOk,
        kBoutonOk, {}, [&](eBoutons const &) { identifiant = std::this_thread::get_id(); }));
    monBanc->toasts->Echoue(0);
    QVERIFY(identifiant != std::this_thread::get_id());
}

void tst_DDialogueNotification::defautEtEchapSansEffet()
{
    DAlerteInfo const info(DAlerteInfo::kNotification, UniChaine("message"));
    int const boutons = kBoutonOui | kBoutonNon;
    QVERIFY(DDialogueNotification::Affiche(info, boutons, kBoutonOui, kBoutonNon, {}, {}));
    QStringList const appels = monBanc->toasts->DonneAppels();
    QVERIFY(DDialogueNotification::Affiche(info, boutons, kBoutonAide, kBoutonAucun, {}, {}));
    QCOMPARE(monBanc->toasts->DonneAppels().mid(appels.size()), appels);
}

QTEST_MAIN(tst_DDialogueNotification)
#include "tst_DDialogueNotification.moc"
