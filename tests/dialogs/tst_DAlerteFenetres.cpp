// dialogs/tst_DAlerteFenetres.cpp
//
// The windows of the alerts: modality, flags, owner, native windows as parents.
#include "dialogs/FormesAlertes.h"

#include "desktop/QWinWidget.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>

using namespace DDialogue;
using namespace EssaisAlertes;
using namespace Qt::StringLiterals;

namespace {

// What is seen of a box while it is on screen.
struct Vue
{
    int nombre = 0;
    Qt::WindowModality modalite = Qt::NonModal;
    bool resteDevant = false;
    bool aAide = false;
    bool seDetruit = false;
    bool termineApplication = true;
    QPointer<QWidget> parent;
    HWND fenetreNative = nullptr;
};

Vue Regarde(Forme const & forme, Appel const & appel)
{
    Vue vue;
    Repondant const utilisateur([&vue](DMessageBox & boite) {
        vue.modalite = boite.windowModality();
        vue.resteDevant = boite.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        vue.aAide = boite.windowFlags().testFlag(Qt::WindowContextHelpButtonHint);
        vue.seDetruit = boite.testAttribute(Qt::WA_DeleteOnClose);
        vue.termineApplication = boite.testAttribute(Qt::WA_QuitOnClose);
        vue.parent = boite.parentWidget();
        if (auto const * const natif = qobject_cast<QWinWidget *>(boite.parentWidget()))
            vue.fenetreNative = natif->DonneFenetreNative();
        boite.QDialog::done(0);
    });
    forme.lance(appel);
    if (!AttendsFinDesBoites())
        return {};
    vue.nombre = utilisateur.DonneNombre();
    return vue;
}

Qt::WindowModality DonneModalite(Forme const & forme, int type, bool aParent)
{
    if (forme.destination == eDestination::kReceveur)
        return aParent ? Qt::WindowModal : Qt::NonModal;
    bool const synchrone = forme.Bloque() && type != DAlerteInfo::kNotification;
    return synchrone && forme.estStricte ? Qt::ApplicationModal : Qt::WindowModal;
}

bool PrendFenetreNative(Forme const & forme)
{
    return QString::fromLatin1(forme.nom).startsWith("DAlerteCentrageNatif, window"_L1);
}

} // namespace

class tst_DAlerteFenetres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void fenetre_data();
    void fenetre();
    void fenetreNative_data() { AjouteFormes(PrendFenetreNative); }
    void fenetreNative();
    void fenetreNativeNulle_data() { AjouteFormes(PrendFenetreNative); }
    void fenetreNativeNulle();
    void fenetreNativeMorte();
    void notificationNativePartAvecLAppel();
    void receveurNatifPartAvecLAppel();
    void receveurNatifReponseConnue();
    void alerteNeTerminePasLApplication();

private:
    HWND AjouteFenetreEtrangere() const
    {
        return mesFenetres->Ajoute({.client = {10, 20, 400, 300}});
    }

    std::unique_ptr<Banc> monBanc;
    FenetresSimulees * mesFenetres = nullptr;
};

void tst_DAlerteFenetres::init()
{
    monBanc = std::make_unique<Banc>();
    auto fenetres = std::make_unique<FenetresSimulees>();
    mesFenetres = fenetres.get();
    PlateformeFenetres::Installe(std::move(fenetres));
}

void tst_DAlerteFenetres::cleanup()
{
    RetireRestes();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    PlateformeFenetres::Installe(nullptr);
    monBanc.reset();
}

void tst_DAlerteFenetres::fenetre_data()
{
    QTest::addColumn<QString>("forme");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("aParent");
    for (Forme const & forme : kFormes)
        for (int const type : {DAlerteInfo::kQuestion, DAlerteInfo::kNotification})
            for (bool const aParent : {false, true})
                if (forme.aParent || !aParent)
                    QTest::addRow("%s, type %d, %s", forme.nom, type,
                                  aParent ? "parent" : "no parent")
                        << QString::fromLatin1(forme.nom) << type << aParent;
}

void tst_DAlerteFenetres::fenetre()
{
    QFETCH(QString, forme);
    QFETCH(int, type);
    QFETCH(bool, aParent);
    Forme const & laForme = PreteForme(forme);
    QWidget parent;
    parent.show();
    ReceveurNotant receveur;
    Appel appel{DAlerteInfo(static_cast<DAlerteInfo::eTypeDialogue>(type), UniChaine("Message"))};
    appel.parent = aParent ? &parent : nullptr;
    appel.receveur = &receveur;

    Vue const vue = Regarde(laForme, appel);

    QCOMPARE(vue.nombre, 1);
    QCOMPARE(vue.modalite, DonneModalite(laForme, type, aParent));
    QCOMPARE(vue.resteDevant, type == DAlerteInfo::kNotification && !aParent);
    QCOMPARE(vue.parent.data(), aParent ? &parent : nullptr);
    QVERIFY(!vue.aAide);
    // While `QDialog::exec` runs it has the attribute to itself, and destroys the box afterwards.
    QCOMPARE(vue.seDetruit, !(laForme.Bloque() && type != DAlerteInfo::kNotification));
    QVERIFY(!vue.termineApplication);
}

void tst_DAlerteFenetres::fenetreNative()
{
    QFETCH(QString, forme);
    Forme const & laForme = PreteForme(forme);
    ReceveurNotant receveur;
    Appel appel{DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("Message"))};
    appel.fenetre = AjouteFenetreEtrangere();
    appel.receveur = &receveur;

    Vue const vue = Regarde(laForme, appel);

    if (!laForme.Bloque()) {
        QCOMPARE(vue.nombre, 0); // see receveurNatifPartAvecLAppel
        return;
    }
    QCOMPARE(vue.nombre, 1);
    QCOMPARE(vue.modalite, Qt::ApplicationModal);
    QVERIFY(vue.resteDevant);
    QCOMPARE(vue.fenetreNative, appel.fenetre);
    QVERIFY(!vue.parent); // it went with the call
}

void tst_DAlerteFenetres::fenetreNativeNulle()
{
    QFETCH(QString, forme);
    ReceveurNotant receveur;
    Appel appel{DAlerteInfo(DAlerteInfo::kQuestion, UniChaine("Message"))};
    appel.receveur = &receveur;
    Vue const vue = Regarde(PreteForme(forme), appel);
    QCOMPARE(vue.nombre, 1);
    QVERIFY(!vue.resteDevant);
    QCOMPARE(vue.fenetreNative, nullptr);
}

void tst_DAlerteFenetres::fenetreNativeMorte()
{
    HWND const fenetre = AjouteFenetreEtrangere();
    mesFenetres->Retire(fenetre);
    Repondant const utilisateur([](DMessageBox & boite) { Clique(boite.button(QMessageBox::Ok)); });
    QCOMPARE(DAlerteCentrageNatif(fenetre, DAlerteInfo(DAlerteInfo::kQuestion, u"Message"_s)),
             kBoutonOk);
    QCOMPARE(utilisateur.DonneNombre(), 1);
}

// A notification never blocks, and the widget that stands for the window goes when the call
// returns: the box goes with it.
void tst_DAlerteFenetres::notificationNativePartAvecLAppel()
{
    DAlerteInfo const info(DAlerteInfo::kNotification, u"Message"_s);
    QCOMPARE(DAlerteCentrageNatif(AjouteFenetreEtrangere(), info), kBoutonAucun);
    QVERIFY(Fenetres<DMessageBox>().isEmpty());
    QCOMPARE(monBanc->journal.DonneLignes(),
             QStringList{u"Dialogue asynchrone non réponduRéponse=0\tMessage\tGUID: \t"_s});
}

// Deliberate: the widget that stands for the window lives for the call only.
void tst_DAlerteFenetres::receveurNatifPartAvecLAppel()
{
    ReceveurNotant receveur;
    DAlerteInfo const info(DAlerteInfo::kQuestion, u"Message"_s);
    DAlerteCentrageNatif(AjouteFenetreEtrangere(), &receveur, info);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCOMPARE(monBanc->journal.DonneLignes(),
             QStringList{u"Dialogue asynchrone non réponduRéponse=0\tMessage\tGUID: \t"_s});
    for (int tour = 0; tour < 10; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(DonneReponses(receveur), QList<int>());
}

// The box took the queued answer with it.
void tst_DAlerteFenetres::receveurNatifReponseConnue()
{
    ExecutionSilencieuse::Demarre();
    ReceveurNotant receveur;
    DAlerteInfo const info(DAlerteInfo::kQuestion, u"Message"_s);
    DAlerteCentrageNatif(AjouteFenetreEtrangere(), &receveur, info);
    QCOMPARE(DonneReponses(receveur), QList<int>());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    for (int tour = 0; tour < 10; ++tour)
        QCoreApplication::processEvents();
    QCOMPARE(DonneReponses(receveur), QList<int>());
}

void tst_DAlerteFenetres::alerteNeTerminePasLApplication()
{
    QSignalSpy const fin(qApp, &QGuiApplication::lastWindowClosed);
    ReceveurNotant receveur;
    DAlerte(nullptr, &receveur, DAlerteInfo(DAlerteInfo::kQuestion, u"Message"_s));
    DMessageBox * const boite = BoiteDevant();
    QVERIFY(boite);
    Clique(boite->button(QMessageBox::Ok));
    QTRY_VERIFY(Fenetres<DMessageBox>().isEmpty());
    QCOMPARE(DonneReponses(receveur), QList<int>{kBoutonOk});
    QCOMPARE(fin.count(), 0);
}

QTEST_MAIN(tst_DAlerteFenetres)
#include "tst_DAlerteFenetres.moc"
