// tests/foundation/tst_Demarrage.cpp
#include "desktop/DFrameProxy.h"
#include "dialogs/DAlerteNotification.h"
#include "dialogs/StockageReponse.h"
#include "foundation/AccessibiliteQt.h"
#include "foundation/Demarrage.h"
#include "foundation/TraductionGui.h"
#include "style/ReglesDeBase_p.h"

#include <QtTest>

#include <QApplication>
#include <QCryptographicHash>
#include <QIcon>
#include <QProcess>

#include <thread>

using namespace Qt::StringLiterals;

// Runs without an application object until a test makes one.
class tst_Demarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void objetsAuChargement();
    void textesAccessibilite_data();
    void textesAccessibilite();
    void traductionSansApplication();
    void domaineNoyauEnregistray();
    void threadGraphique();
    void bibliothequeChargeeSurUnAutreThread();
    void ressources_data();
    void ressources();
    void arbreCompletSansSurplus();
    void imageParDefautEstLaFiole();
    void initQApplication();
};

void tst_Demarrage::initTestCase()
{
    QVERIFY(!QCoreApplication::instance());
}

void tst_Demarrage::objetsAuChargement()
{
    QVERIFY(DAlerteNotification::iconeGenerale.isNull());
    QVERIFY(DAlerteNotification::nomFichierSurDisque.EstVide());
    Raccourci::InfosPourRaccourci const & raccourci = DAlerteNotification::raccourciGeneral;
    for (UniChaine const & texte : {raccourci.identifiantApplication, raccourci.nom,
                                    raccourci.cible, raccourci.arguments, raccourci.icone})
        QVERIFY(texte.EstVide());
    QVERIFY(StockageReponse::assocTypQSettings.empty());
    QVERIFY(StockageReponse::laListeStockeurDefaut.empty());
    QVERIFY(DFrameProxy::monIdProxy.EstVide());
    QVERIFY(reglesDeBase.empty());
}

void tst_Demarrage::textesAccessibilite_data()
{
    QTest::addColumn<UniChaine>("constante");
    QTest::addColumn<QString>("texte");
    QTest::newRow("content") << AccessibiliteQt::kBaliseContenu << u"<contenu>"_s;
    QTest::newRow("space") << AccessibiliteQt::kEspace << u" "_s;
    QTest::newRow("full stop") << AccessibiliteQt::kPoint << u". "_s;
    QTest::newRow("shortcut") << AccessibiliteQt::kRaccourciClavier << u"raccourci clavier"_s;
    QTest::newRow("comma") << AccessibiliteQt::kVirgule << u", "_s;
}

void tst_Demarrage::textesAccessibilite()
{
    QFETCH(UniChaine, constante);
    QTEST(QString(constante), "texte");
}

void tst_Demarrage::traductionSansApplication()
{
    LocalisateurContextuel const anglais(TexteGui("Retirer"), ContexteLocalisationGui(),
                                         DLocale(kLangueAnglais));
    QCOMPARE(QString(anglais), u"Remove from list"_s);
}

void tst_Demarrage::domaineNoyauEnregistray()
{
    ChaineLocalisable const message = {{"Ouverture impossible", 20}, {}, {"Noyau", 5}};
    LocalisateurContextuel const anglais(message, ContexteLocalisationGui(),
                                         DLocale(kLangueAnglais));
    QCOMPARE(QString(anglais), u"Cannot Open"_s);
}

void tst_Demarrage::threadGraphique()
{
    QVERIFY(RoutinesGeneralesQt::EstThreadGraphique());
    bool reponse = true;
    std::thread([&reponse] { reponse = RoutinesGeneralesQt::EstThreadGraphique(); }).join();
    QVERIFY(!reponse);
}

// The helper program is not linked to the library: it loads it on a second thread, asks on both
// threads, and unloads it.
void tst_Demarrage::bibliothequeChargeeSurUnAutreThread()
{
    QProcess aide;
    aide.start(QStringLiteral(CHARGEMENT_PROGRAMME), {QStringLiteral(CHARGEMENT_BIBLIOTHEQUE)});
    QVERIFY(aide.waitForFinished());
    QCOMPARE(aide.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(aide.readAllStandardOutput()), u"before loading: no resources\n"
                                                              "loading thread: true\n"
                                                              "main thread: false\n"
                                                              "loaded: resources\n"
                                                              "unloaded: no resources\n"_s);
}

void tst_Demarrage::ressources_data()
{
    QTest::addColumn<QString>("chemin");
    QStringList const noms = {
        u"Style/StyleGeneralGui.qss"_s,
        u"Style/StyleGeneralGuiPrive.qss"_s,
        u"fichiers/GUIFr.mo"_s,
        u"fichiers/GUIEn.mo"_s,
        u"fichiers/GUIEn_CA.mo"_s,
        u"Images/IconeBarreTitreDefautLibFabrelGui.png"_s,
        u"Images/Link.svg"_s,
        u"Images/Italic.svg"_s,
        u"Images/Bold.svg"_s,
        u"Images/Zoom.svg"_s,
        u"Images/PolicesMoins.svg"_s,
        u"Images/PolicesPlus.svg"_s,
        u"Images/fermer.svg"_s,
        u"Images/chevronBlanc.svg"_s,
        u"Images/icone-guides.svg"_s,
        u"Images/icone-guides27.svg"_s,
        u"Images/icone-dicos.svg"_s,
        u"Images/icone-dicos27.svg"_s,
        u"Images/boutonAjoutOnglet.png"_s,
        u"Images/boutonFermetureOngletActif@2x.png"_s,
        u"Images/boutonFermetureOngletInactif@2x.png"_s,
        u"Images/Fiole.ico"_s,
        u"Images/Fiole16.png"_s,
        u"Images/Fiole32.png"_s,
        u"Images/Fiole32PixelsDoublay.png"_s,
        u"Images/Fiole128.png"_s,
    };
    for (QString const & nom : noms)
        QTest::newRow(qPrintable(nom)) << u":/"_s + nom;
}

void tst_Demarrage::ressources()
{
    QFETCH(QString, chemin);
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QVERIFY(fichier.size() > 0);
    if (chemin.startsWith(u":/Images/"))
        QVERIFY(!QImage(chemin).isNull());
}

void tst_Demarrage::arbreCompletSansSurplus()
{
    QCOMPARE(QDir(u":/Style"_s).entryList().size(), 2);
    QCOMPARE(QDir(u":/Images"_s).entryList().size(), 21);
    QCOMPARE(QDir(u":/fichiers"_s).entryList({u"GUI*"_s}).size(), 3);
}

void tst_Demarrage::imageParDefautEstLaFiole()
{
    QFile defaut(u":/Images/IconeBarreTitreDefautLibFabrelGui.png"_s);
    QFile fiole(u":/Images/Fiole128.png"_s);
    QVERIFY(defaut.open(QIODevice::ReadOnly) && fiole.open(QIODevice::ReadOnly));
    QByteArray const octets = defaut.readAll();
    QCOMPARE(octets.size(), 19151);
    QCOMPARE(fiole.readAll(), octets);
    QCOMPARE(QImage::fromData(octets).size(), QSize(128, 128));
}

void tst_Demarrage::initQApplication()
{
    QVERIFY(!QCoreApplication::instance());
    InitQApplication();
    QCoreApplication * const application = QCoreApplication::instance();
    QVERIFY(qobject_cast<QApplication *>(application));
    QVERIFY(QCoreApplication::arguments().isEmpty());
    InitQApplication();
    QCOMPARE(QCoreApplication::instance(), application);
}

int main(int argc, char ** argv)
{
    tst_Demarrage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Demarrage.moc"
