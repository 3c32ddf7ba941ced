// tests/dialogs/tst_DAlerteToast.cpp
//
// Alerts of the notification type on a platform with toasts, through the functions that
// applications call.
#include "BancToasts.h"
#include "EssaisBoites.h"
#include "EssaisStockage.h"

#include "noyau/JournalSimulay.h"

#include "noyau/ExecutionSilencieuse.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;
using namespace Toasts;

namespace {

constexpr int kOuiNon = kBoutonOui | kBoutonNon;
constexpr int kMaison = static_cast<int>(kBoutonMaison1 | kBoutonMaison2 | kBoutonMaison3 |
                                         kBoutonMaison4 | kBoutonMaison5);

DAlerteInfo Notification()
{
    return {DAlerteInfo::kNotification, UniChaine("message")};
}

UniChaine Guid()
{
    return UniChaine("{toast}");
}

HWND FenetreEtrangere()
{
    return reinterpret_cast<HWND>(quintptr(0x1234));
}

std::list<UniChaine> CinqLabels()
{
    return {UniChaine("a"), UniChaine("b"), UniChaine("c"), UniChaine("d"), UniChaine("e")};
}

// One of the functions that ask, with everything but the alert and who is told.
using FormeBloquante = std::function<eBoutons(DAlerteInfo const &)>;
using FormeAvecRappel = std::function<void(DAlerteInfo const &, RappelAlerte const &)>;
using FormeAvecReceveur = std::function<void(DAlerteInfo const &, DAlerteReceveur const *)>;
// What keeps the toast from appearing.
using Empechement = std::function<void(BancToasts &)>;

} // namespace
Q_DECLARE_METATYPE(FormeBloquante)
Q_DECLARE_METATYPE(FormeAvecRappel)
Q_DECLARE_METATYPE(FormeAvecReceveur)
Q_DECLARE_METATYPE(Empechement)

class tst_DAlerteToast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void formesBloquantes_data();
    void formesBloquantes();
    void rappelParLeToast_data();
    void rappelParLeToast();
    void receveurJamaisAppelay_data();
    void receveurJamaisAppelay();
    void labels_data();
    void labels();
    void classeDeLAlerteGardee_data();
    void classeDeLAlerteGardee();
    void boiteALaPlaceDuToast_data();
    void boiteALaPlaceDuToast();
    void boiteDUneFormeBloquante();
    void executionSilencieuse();
    void magasinNiLuNiEcrit();
    void peutAfficherNotificationPlateforme();

private:
    RappelAlerte DonneRappel();
    QStringList DonneActions(QString const & attribut) const;

    std::unique_ptr<BancToasts> monBanc;
    QList<eBoutons> mesReponses;
};

void tst_DAlerteToast::init()
{
    monBanc = std::make_unique<BancToasts>();
    mesReponses.clear();
}

void tst_DAlerteToast::cleanup()
{
    ExecutionSilencieuse::Arrete();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
    monBanc->toasts->Oublie();
    QCOMPARE(monBanc->toasts->DonneNombreObjets(), 0);
    monBanc.reset();
}

RappelAlerte tst_DAlerteToast::DonneRappel()
{
    return [this](eBoutons const & reponse) { mesReponses << reponse; };
}

QStringList tst_DAlerteToast::DonneActions(QString const & attribut) const
{
    QStringList valeurs;
    QDomNodeList const actions = monBanc->toasts->DonneDocument(0).elementsByTagName(u"action"_s);
    for (int i = 0; i < actions.size(); ++i)
        valeurs << actions.at(i).toElement().attribute(attribut);
    return valeurs;
}

void tst_DAlerteToast::formesBloquantes_data()
{
    QTest::addColumn<FormeBloquante>("forme");
    auto const ligne = [](char const * nom, FormeBloquante const & forme) {
        QTest::newRow(nom) << forme;
    };
    ligne("OK alone", [](auto const & info) { return DAlerte(nullptr, info); });
    ligne("buttons", [](auto const & info) {
        return DAlerte(nullptr, info, kOuiNon, kBoutonOui, kBoutonNon);
    });
    ligne("other name, OK alone",
          [](auto const & info) { return DAlerteSynchroneEtModalFenetre(nullptr, info); });
    ligne("other name, buttons", [](auto const & info) {
        return DAlerteSynchroneEtModalFenetre(nullptr, info, kOuiNon, kBoutonOui, kBoutonNon);
    });
    ligne("centred, OK alone", [](auto const & info) { return DAlerteCentrageNatif(info); });
    ligne("centred, buttons", [](auto const & info) {
        return DAlerteCentrageNatif(info, kOuiNon, kBoutonOui, kBoutonNon);
    });
    ligne("centred on a window, OK alone",
          [](auto const & info) { return DAlerteCentrageNatif(FenetreEtrangere(), info); });
    ligne("centred on a window, buttons", [](auto const & info) {
        return DAlerteCentrageNatif(FenetreEtrangere(), info, kOuiNon, kBoutonOui, kBoutonNon);
    });
    ligne("remembered", [](auto const & info) {
        return DAlerteRappel(nullptr, info, StockeurParDefaut, Guid(), kOuiNon, kBoutonOui,
                             kBoutonNon);
    });
    ligne("remembered, modal to the window", [](auto const & info) {
        return DAlerteRappelSynchroneEtModalAFenetre(nullptr, info, StockeurParDefaut, Guid(),
                                                     kOuiNon, kBoutonOui, kBoutonNon);
    });
}

// At once, and nothing waits or appears in the application.
void tst_DAlerteToast::formesBloquantes()
{
    QFETCH(FormeBloquante, forme);
    JournalSimulay const journal;
    QCOMPARE(forme(Notification()), kBoutonAucun);
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(journal.DonneLignes().isEmpty());
}

void tst_DAlerteToast::rappelParLeToast_data()
{
    QTest::addColumn<FormeAvecRappel>("forme");
    auto const ligne = [](char const * nom, FormeAvecRappel const & forme) {
        QTest::newRow(nom) << forme;
    };
    ligne("no labels", [](auto const & info, auto const & rappel) {
        DAlerte(nullptr, info, kOuiNon, kBoutonOui, kBoutonNon, rappel);
    });
    ligne("labels", [](auto const & info, auto const & rappel) {
        DAlerte(nullptr, info, kOuiNon, kBoutonOui, kBoutonNon, CinqLabels(), rappel);
    });
    ligne("remembered, no labels", [](auto const & info, auto const & rappel) {
        DAlerteRappel(nullptr, info, StockeurParDefaut, Guid(), kOuiNon, kBoutonOui, kBoutonNon,
                      rappel);
    });
    ligne("remembered, labels", [](auto const & info, auto const & rappel) {
        DAlerteRappel(nullptr, info, StockeurParDefaut, Guid(), kOuiNon, kBoutonOui, kBoutonNon,
                      CinqLabels(), rappel);
    });
}

void tst_DAlerteToast::rappelParLeToast()
{
    QFETCH(FormeAvecRappel, forme);
    forme(Notification(), DonneRappel());
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(mesReponses.isEmpty());
    QCOMPARE(DonneActions(u"arguments"_s), QStringList({u"kBoutonOui"_s, u"kBoutonNon"_s}));
    monBanc->toasts->Active(0, u"kBoutonNon"_s);
    QCOMPARE(mesReponses, QList{kBoutonNon});
}

void tst_DAlerteToast::receveurJamaisAppelay_data()
{
    QTest::addColumn<FormeAvecReceveur>("forme");
    auto const ligne = [](char const * nom, FormeAvecReceveur const & forme) {
        QTest::newRow(nom) << forme;
    };
    ligne("OK alone",
          [](auto const & info, auto const * receveur) { DAlerte(nullptr, receveur, info); });
    ligne("buttons", [](auto const & info, auto const * receveur) {
        DAlerte(nullptr, receveur, info, kOuiNon, kBoutonOui, kBoutonNon);
    });
    ligne("centred",
          [](auto const & info, auto const * receveur) { DAlerteCentrageNatif(receveur, info); });
    ligne("centred on a window", [](auto const & info, auto const * receveur) {
        DAlerteCentrageNatif(FenetreEtrangere(), receveur, info);
    });
    ligne("remembered", [](auto const & info, auto const * receveur) {
        DAlerteRappel(nullptr, receveur, info, StockeurParDefaut, Guid(), kOuiNon, kBoutonOui,
                      kBoutonNon);
    });
}

void tst_DAlerteToast::receveurJamaisAppelay()
{
    QFETCH(FormeAvecReceveur, forme);
    ReceveurNotant receveur;
    forme(Notification(), &receveur);
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    // No callback either: the press is read and nobody told.
    QCOMPARE(monBanc->toasts->Active(0, u"kBoutonOui"_s), S_FALSE);
    monBanc->toasts->Ecarte(0, ToastDismissalReason_TimedOut);
    monBanc->toasts->Echoue(0);
    QCoreApplication::processEvents();
    QVERIFY(receveur.reponses.isEmpty());
}

void tst_DAlerteToast::labels_data()
{
    QTest::addColumn<FormeBloquante>("forme");
    auto const ligne = [](char const * nom, FormeBloquante const & forme) {
        QTest::newRow(nom) << forme;
    };
    ligne("as arguments", [](auto const & info) {
        return DAlerte(nullptr, info, kMaison, kBoutonMaison1, kBoutonMaison2, UniChaine("a"),
                       UniChaine("b"), UniChaine("c"), UniChaine("d"), UniChaine("e"));
    });
    ligne("as a list", [](auto const & info) {
        DAlerte(nullptr, info, kMaison, kBoutonMaison1, kBoutonMaison2, CinqLabels(), {});
        return kBoutonAucun;
    });
    ligne("with a receiver", [](auto const & info) {
        static ReceveurNotant receveur; // no toast calls it
        DAlerte(nullptr, &receveur, info, kMaison, kBoutonMaison1, kBoutonMaison2, UniChaine("a"),
                UniChaine("b"), UniChaine("c"), UniChaine("d"), UniChaine("e"));
        return kBoutonAucun;
    });
}

void tst_DAlerteToast::labels()
{
    QFETCH(FormeBloquante, forme);
    forme(Notification());
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    QCOMPARE(DonneActions(u"content"_s), QStringList({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}));
    QCOMPARE(DonneActions(u"arguments"_s),
             QStringList({u"kBoutonMaison1"_s, u"kBoutonMaison2"_s, u"kBoutonMaison3"_s,
                          u"kBoutonMaison4"_s, u"kBoutonMaison5"_s}));
}

void tst_DAlerteToast::classeDeLAlerteGardee_data()
{
    formesBloquantes_data();
}

// Its own shortcut and image, and not those of the application.
void tst_DAlerteToast::classeDeLAlerteGardee()
{
    QFETCH(FormeBloquante, forme);
    monBanc->bureau->raccourcis << u"org.autre"_s;
    QString const image = monBanc->dossier.filePath(u"autre.png"_s);
    forme(DAlerteNotification({}, UniChemin(image), {UniChaine("org.autre"), {}, {}, {}, {}},
                              UniChaine("message"), UniChaine("note")));
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    QCOMPARE(monBanc->toasts->DonneIdentifiant(0), u"org.autre"_s);
    QDomDocument const document = monBanc->toasts->DonneDocument(0);
    QCOMPARE(document.elementsByTagName(u"image"_s).at(0).toElement().attribute(u"src"_s),
             u"file:///"_s + image);
}

void tst_DAlerteToast::boiteALaPlaceDuToast_data()
{
    QTest::addColumn<Empechement>("empechement");
    auto const ligne = [](char const * nom, Empechement const & empechement) {
        QTest::newRow(nom) << empechement;
    };
    ligne("Windows without toasts", [](BancToasts & banc) {
        banc.bureau->versionWindows = {6, 3, 9600};
    });
    ligne("no Windows", [](BancToasts & banc) { banc.bureau->versionWindows = {0, 0, 0}; });
    ligne("shortcut never set", [](BancToasts &) { DAlerteNotification::MetsRaccourci({}); });
    ligne("shortcut not installed", [](BancToasts & banc) { banc.bureau->raccourcis.clear(); });
    ligne("turned off by the user",
          [](BancToasts & banc) { banc.toasts->MetsReglage(NotificationSetting_DisabledForUser); });
    ligne("toast refused", [](BancToasts & banc) { banc.toasts->Reponds(u"Show"_s, E_FAIL); });
}

// The alert is not lost, and its callback hears of it once.
void tst_DAlerteToast::boiteALaPlaceDuToast()
{
    QFETCH(Empechement, empechement);
    empechement(*monBanc);
    auto const temoin = std::make_shared<int>(0);
    DAlerte(nullptr, Notification(), kOuiNon, kBoutonOui, kBoutonNon, std::list<UniChaine>(),
            [this, temoin](eBoutons const & reponse) { mesReponses << reponse; });
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 0);
    QVERIFY(mesReponses.isEmpty());
    QPointer<DMessageBox> const boite = DonneBoiteVisible();
    QVERIFY(boite);
    QCOMPARE(boite->icon(), QMessageBox::Warning);
    boite->button(QMessageBox::No)->click();
    QTRY_VERIFY(!boite);
    QCOMPARE(mesReponses, QList{kBoutonNon});
    QCOMPARE(temoin.use_count(), 1);
}

void tst_DAlerteToast::boiteDUneFormeBloquante()
{
    monBanc->toasts->Reponds(u"Show"_s, E_FAIL);
    QCOMPARE(DAlerte(nullptr, Notification(), kOuiNon, kBoutonOui, kBoutonNon), kBoutonAucun);
    QVERIFY(DonneBoiteVisible());
    DonneBoiteVisible()->button(QMessageBox::Yes)->click();
}

// Deliberate: a toast asks nobody to wait, so it appears all the same and is not journalled.
void tst_DAlerteToast::executionSilencieuse()
{
    ExecutionSilencieuse::Demarre();
    DAlerte(nullptr, Notification(), kOuiNon, kBoutonOui, kBoutonNon, DonneRappel());
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 1);
    QVERIFY(ExecutionSilencieuse::DonneDialoguesJournalises().isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(mesReponses.isEmpty());
}

void tst_DAlerteToast::magasinNiLuNiEcrit()
{
    EssaisStockage const stockage;
    stockage.Ecris(QString(Guid()), kBoutonOui);
    for (UniChaine const & guid : {Guid(), UniChaine("{autre}")})
        DAlerteRappel(nullptr, Notification(), StockeurNePlusMAviser, guid, kOuiNon, kBoutonOui,
                      kBoutonNon, DonneRappel());
    QCOMPARE(monBanc->toasts->DonneNombreToasts(), 2);
    QVERIFY(StockageReponse::laListeStockeurDefaut.empty());
    QCoreApplication::processEvents();
    QVERIFY(mesReponses.isEmpty());

    monBanc->toasts->Active(0, u"kBoutonNon"_s);
    monBanc->toasts->Active(1, u"kBoutonNon"_s);
    QCOMPARE(mesReponses, QList({kBoutonNon, kBoutonNon}));
    QCOMPARE(stockage.DonneContenu(), (QVariantMap{{QString(Guid()), int(kBoutonOui)}}));
}

void tst_DAlerteToast::peutAfficherNotificationPlateforme()
{
    QVERIFY(PeutAfficherNotificationPlateforme());
    monBanc->bureau->versionWindows = {6, 3, 9600};
    QVERIFY(!PeutAfficherNotificationPlateforme());
}

QTEST_MAIN(tst_DAlerteToast)
#include "tst_DAlerteToast.moc"
