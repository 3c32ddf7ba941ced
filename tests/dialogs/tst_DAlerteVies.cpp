// tests/dialogs/tst_DAlerteVies.cpp
//
// What alerts survive: answers that destroy what they stand on, alerts inside alerts, parents that
// die.
#include "EssaisBoites.h"

#include "dialogs/StockageReponse.h"

#include "noyau/ExecutionSilencieuse.h"

#include <QtTest>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

DAlerteInfo const & Question()
{
    static DAlerteInfo const info(DAlerteInfo::kQuestion, u"Continuer ?"_s, u"Note"_s, u"Essai"_s);
    return info;
}

constexpr int kOuiNon = kBoutonOui | kBoutonNon;

// Each way in which a person ends a box.
using Sortie = std::function<void(DMessageBox &)>;

} // namespace
Q_DECLARE_METATYPE(Sortie)

class tst_DAlerteVies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void reponseQuiDetruitLeParent_data();
    void reponseQuiDetruitLeParent();
    void receveurQuiDetruitLeParent();
    void receveurQuiSeDetruit();
    void receveurQuiLitSonIdentifiantApres();
    void uneSeuleReponse();
    void receveurAvecFenetreNative();
    void identifiantPrisQuandLAlerteEstLancee();
    void rappelQuiOuvreUneAlerte();
    void alertePendantUneAlerteModale();
    void parentMortPendantUneAlerteBloquante();
    void parentMortPendantUneAlerte();
    void parentMortAvantUneReponseConnue();
    void connexionQuiDetruitLeParent();
    void boiteDetruiteAvecSonDialogue();
    void lApplicationContinue();
};

void tst_DAlerteVies::cleanup()
{
    ExecutionSilencieuse::Arrete();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
}

void tst_DAlerteVies::reponseQuiDetruitLeParent_data()
{
    QTest::addColumn<Sortie>("sortie");
    QTest::newRow("a click") << Sortie([](DMessageBox & boite) {
        QTest::mouseClick(boite.button(QMessageBox::Yes), Qt::LeftButton);
    });
    QTest::newRow("Return") << Sortie(
        [](DMessageBox & boite) { QTest::keyClick(&boite, Qt::Key_Return); });
    QTest::newRow("Space on a button") << Sortie(
        [](DMessageBox & boite) { QTest::keyClick(boite.button(QMessageBox::No), Qt::Key_Space); });
    QTest::newRow("Escape") << Sortie(
        [](DMessageBox & boite) { QTest::keyClick(&boite, Qt::Key_Escape); });
    QTest::newRow("the window's close button")
        << Sortie([](DMessageBox & boite) { boite.close(); });
    QTest::newRow("reject") << Sortie([](DMessageBox & boite) { boite.reject(); });
    QTest::newRow("a link") << Sortie([](DMessageBox & boite) { boite.PriseHyperlien(u"5"_s); });
    QTest::newRow("an answer known beforehand") << Sortie(
        [](DMessageBox & boite) { boite.PriseResultat(QVariant::fromValue(kBoutonOui)); });
}

void tst_DAlerteVies::reponseQuiDetruitLeParent()
{
    QFETCH(Sortie, sortie);
    auto * const parent = new QWidget;
    parent->show();
    int reponses = 0;
    DAlerte(parent, Question(), kOuiNon, kBoutonOui, kBoutonNon, std::list<UniChaine>(),
            [&](eBoutons const &) {
                ++reponses;
                delete parent;
            });
    QPointer<DMessageBox> const boite = DonneBoiteVisible();
    QVERIFY(boite);
    sortie(*boite);
    QCOMPARE(reponses, 1);
    QVERIFY(!boite);
}

void tst_DAlerteVies::receveurQuiDetruitLeParent()
{
    auto * const parent = new QWidget;
    parent->show();
    ReceveurNotant receveur;
    receveur.action = [parent] { delete parent; };
    DAlerte(parent, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    QVERIFY(DonneBoiteVisible());
    DonneBoiteVisible()->button(QMessageBox::Yes)->click();
    QCOMPARE(receveur.reponses, (QList<QPair<int, int>>{{-1, kBoutonOui}}));
}

void tst_DAlerteVies::receveurQuiSeDetruit()
{
    auto * const receveur = new ReceveurNotant;
    bool detruit = false;
    receveur->action = [&detruit, receveur] {
        detruit = true;
        delete receveur;
    };
    DAlerte(nullptr, receveur, Question());
    QVERIFY(DonneBoiteVisible());
    DonneBoiteVisible()->button(QMessageBox::Ok)->click();
    QVERIFY(detruit);
}

void tst_DAlerteVies::receveurQuiLitSonIdentifiantApres()
{
    struct Receveur : DAlerteReceveur
    {
        void TraiteReponse(int const & idMessage, int) override
        {
            delete parent;
            lu = idMessage; // the alert is gone
        }
        QWidget * parent = new QWidget;
        int lu = 0;
    } receveur;
    receveur.MetsIdMessage(4711);
    DAlerte(receveur.parent, &receveur, Question());
    DonneBoiteVisible()->button(QMessageBox::Ok)->click();
    QCOMPARE(receveur.lu, 4711);
}

void tst_DAlerteVies::uneSeuleReponse()
{
    ReceveurNotant receveur;
    receveur.action = [] {
        DMessageBox * const boite = DonneBoiteVisible();
        QVERIFY(boite); // still there, and a second click reaches it
        boite->button(QMessageBox::No)->click();
        QTest::keyClick(boite, Qt::Key_Escape);
        boite->reject();
    };
    DAlerte(nullptr, &receveur, Question(), kOuiNon, kBoutonOui, kBoutonNon);
    QPointer<DMessageBox> const boite = DonneBoiteVisible();
    QSignalSpy fini(boite, &QDialog::finished);
    boite->button(QMessageBox::Yes)->click();
    QCOMPARE(receveur.reponses, (QList<QPair<int, int>>{{-1, kBoutonOui}}));
    QCOMPARE(boite->result(), static_cast<int>(kBoutonOui));
    QCOMPARE(fini.count(), 1);
}

// The widget that stands for the window goes when the call returns, and the box with it.
void tst_DAlerteVies::receveurAvecFenetreNative()
{
    auto const fenetre = reinterpret_cast<HWND>(quintptr(0x1234));
    ReceveurNotant receveur;
    DAlerteCentrageNatif(fenetre, &receveur, Question());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    ExecutionSilencieuse::Demarre();
    DAlerteCentrageNatif(fenetre, &receveur, Question());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCoreApplication::processEvents();
    QVERIFY(receveur.reponses.isEmpty());
    DAlerteCentrageNatif(HWND(nullptr), &receveur, Question());
    QTRY_COMPARE(receveur.reponses, (QList<QPair<int, int>>{{-1, kBoutonOk}}));
}

void tst_DAlerteVies::identifiantPrisQuandLAlerteEstLancee()
{
    ReceveurNotant premier;
    ReceveurNotant second;
    premier.MetsIdMessage(1);
    second.MetsIdMessage(2);
    DAlerte(nullptr, &premier, Question());
    DMessageBox * const boitePremiere = DonneBoiteVisible();
    DAlerte(nullptr, &second, Question());
    premier.MetsIdMessage(9); // too late: the alert has the identifier of its making
    boitePremiere->button(QMessageBox::Ok)->click();
    QTRY_VERIFY(DonneBoiteVisible() && DonneBoiteVisible() != boitePremiere);
    DonneBoiteVisible()->button(QMessageBox::Ok)->click();
    QCOMPARE(premier.reponses, (QList<QPair<int, int>>{{1, kBoutonOk}}));
    QCOMPARE(second.reponses, (QList<QPair<int, int>>{{2, kBoutonOk}}));
}

void tst_DAlerteVies::rappelQuiOuvreUneAlerte()
{
    QList<eBoutons> reponses;
    DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon, [&](eBoutons const & reponse) {
        DMessageBox * const premiere = DonneBoiteVisible();
        reponses.append(reponse);
        QuandLaBoiteEstLa([](DMessageBox &) {
            for (QWidget * const widget : QApplication::topLevelWidgets()) {
                if (widget == QApplication::activeModalWidget())
                    qobject_cast<QMessageBox *>(widget)->button(QMessageBox::No)->click();
            }
        });
        // Blocks inside the answer to the first one, whose box is still there.
        reponses.append(DAlerteRappel(nullptr, Question(), StockeurParDefaut, {}, kOuiNon,
                                      kBoutonOui, kBoutonNon));
        QVERIFY(premiere->isVisible());
    });
    DonneBoiteVisible()->button(QMessageBox::Yes)->click();
    QCOMPARE(reponses, (QList<eBoutons>{kBoutonOui, kBoutonNon}));
}

void tst_DAlerteVies::alertePendantUneAlerteModale()
{
    eBoutons interieure = kBoutonAucun;
    QuandLaBoiteEstLa([&interieure](DMessageBox & exterieure) {
        QTimer::singleShot(0, &exterieure, [&exterieure] {
            auto * const boite = qobject_cast<DMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(boite != &exterieure);
            boite->button(QMessageBox::Retry)->click();
        });
        interieure = DAlerteRappel(&exterieure, Question(), StockeurParDefaut, {},
                                   kBoutonReessayer | kBoutonIgnorer, kBoutonIgnorer, kBoutonAucun);
        exterieure.button(QMessageBox::No)->click();
    });
    QCOMPARE(DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonAucun), kBoutonNon);
    QCOMPARE(interieure, kBoutonReessayer);
}

void tst_DAlerteVies::parentMortPendantUneAlerteBloquante()
{
    auto * const parent = new QWidget;
    parent->show();
    QuandLaBoiteEstLa([parent](DMessageBox &) { delete parent; });
    QCOMPARE(DAlerte(parent, Question(), kOuiNon, kBoutonOui, kBoutonNon), kBoutonAucun);
}

void tst_DAlerteVies::parentMortPendantUneAlerte()
{
    auto * const parent = new QWidget;
    parent->show();
    auto const temoin = std::make_shared<int>(0);
    DAlerte(parent, Question(), kOuiNon, kBoutonOui, kBoutonNon,
            [temoin](eBoutons const &) { ++*temoin; });
    QVERIFY(DonneBoiteVisible());
    QCOMPARE(temoin.use_count(), 2L);
    delete parent;
    QCOMPARE(*temoin, 0);
    QCOMPARE(temoin.use_count(), 1L); // the callback went with the box, uncalled
}

void tst_DAlerteVies::parentMortAvantUneReponseConnue()
{
    ExecutionSilencieuse::Demarre();
    auto * const parent = new QWidget;
    int reponses = 0;
    DAlerte(parent, Question(), kOuiNon, kBoutonOui, kBoutonNon,
            [&reponses](eBoutons const &) { ++reponses; });
    delete parent;
    QCoreApplication::processEvents();
    QCOMPARE(reponses, 0);
}

void tst_DAlerteVies::connexionQuiDetruitLeParent()
{
    auto * const parent = new QWidget;
    DAlerte(parent, Question(), kOuiNon, kBoutonOui, kBoutonNon, [](eBoutons const &) {});
    DMessageBox * const boite = DonneBoiteVisible();
    connect(boite, &DMessageBox::SignalEnFermeture, boite, [parent] { delete parent; });
    boite->button(QMessageBox::Yes)->click();
}

void tst_DAlerteVies::boiteDetruiteAvecSonDialogue()
{
    auto const temoin = std::make_shared<int>(0);
    DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon,
            [temoin](eBoutons const &) { ++*temoin; });
    QPointer<DMessageBox> const boite = DonneBoiteVisible();
    boite->button(QMessageBox::Yes)->click();
    QVERIFY(boite); // it deletes itself once control is back in the event loop
    QVERIFY(!boite->isVisible());
    QTRY_VERIFY(!boite);
    QCOMPARE(*temoin, 1);
    QCOMPARE(temoin.use_count(), 1L);
}

void tst_DAlerteVies::lApplicationContinue()
{
    QSignalSpy espion(qApp, &QApplication::lastWindowClosed);
    DAlerte(nullptr, Question(), kOuiNon, kBoutonOui, kBoutonNon, [](eBoutons const &) {});
    QVERIFY(!DonneBoiteVisible()->testAttribute(Qt::WA_QuitOnClose));
    DonneBoiteVisible()->button(QMessageBox::Yes)->click();
    QCoreApplication::processEvents();
    QCOMPARE(espion.count(), 0);
}

QTEST_MAIN(tst_DAlerteVies)
#include "tst_DAlerteVies.moc"
