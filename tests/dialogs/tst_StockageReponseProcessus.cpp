// tests/dialogs/tst_StockageReponseProcessus.cpp
//
// One file of remembered answers and several processes; and files that are none.
#include "EssaisBoites.h"

#include "dialogs/StockageReponse.h"

#include "noyau/ExecutionSilencieuse.h"

#include <QCheckBox>
#include <QProcess>
#include <QtTest>

#include <cstdio>
#include <iostream>
#include <string>

using namespace DDialogue;
using namespace Qt::StringLiterals;

namespace {

constexpr int kDelai = 20'000; // ms, for a loaded machine

DAlerteInfo Question()
{
    return {DAlerteInfo::kQuestion, u"Continuer ?"_s, {}, u"Essai"_s};
}

/// The user ticks the box and answers Yes.
void RepondsOuiEtCoche(QString const & guid)
{
    QuandLaBoiteEstLa([](DMessageBox & boite) {
        boite.findChild<QCheckBox *>()->click();
        boite.button(QMessageBox::Yes)->click();
    });
    DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, guid, kBoutonOui | kBoutonNon,
                  kBoutonNon, kBoutonNon);
}

/// What an alert answers that nobody sees: the remembered answer, or No.
eBoutons DonneReponse(QString const & guid)
{
    ExecutionSilencieuse::Demarre();
    eBoutons const reponse = DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, guid,
                                           kBoutonOui | kBoutonNon, kBoutonNon, kBoutonNon);
    ExecutionSilencieuse::Arrete();
    return reponse;
}

/// The other process: one command a line, "ask <guid>", "known <guid>" or "tick <guid>", and one
/// number as the answer.
int SersEnEnfant(QString const & fichier)
{
    StockageReponse::Initialise(StockeurNePlusMAviser, fichier, QSettings::IniFormat);
    std::string ligne;
    while (std::getline(std::cin, ligne)) {
        QStringList const mots = QString::fromStdString(ligne).split(u' ');
        int reponse = 0;
        if (mots.value(0) == u"ask"_s)
            reponse = static_cast<int>(DonneReponse(mots.value(1)));
        else if (mots.value(0) == u"known"_s)
            reponse = DAlerteRappelDejaCochay(StockeurNePlusMAviser, mots.value(1)) ? 1 : 0;
        else
            RepondsOuiEtCoche(mots.value(1));
        std::printf("%d\n", reponse);
        std::fflush(stdout);
    }
    StockageReponse::LibereSingletons();
    return 0;
}

class Enfant
{
public:
    explicit Enfant(QString const & fichier)
    {
        monProcessus.start(QCoreApplication::applicationFilePath(), {u"--enfant"_s, fichier});
    }
    ~Enfant()
    {
        monProcessus.closeWriteChannel();
        monProcessus.waitForFinished(kDelai);
    }

    void Envoie(QString const & commande) { monProcessus.write(commande.toUtf8() + '\n'); }
    /// -1 when none comes.
    int Attends()
    {
        while (!monProcessus.canReadLine()) {
            if (!monProcessus.waitForReadyRead(kDelai))
                return -1;
        }
        return monProcessus.readLine().trimmed().toInt();
    }
    int Demande(QString const & commande)
    {
        Envoie(commande);
        return Attends();
    }

private:
    QProcess monProcessus;
};

} // namespace

class tst_StockageReponseProcessus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lAutreProcessusTientCompteDeLaReponse();
    void lAutreProcessusTientCompteDeLOubli();
    void aucuneReponsePerdue();
    void fichierInutilisable_data();
    void fichierInutilisable();
    void fichierEnLectureSeule();

private:
    QString Fichier() const { return monDossier->filePath(u"reponses.ini"_s); }

    std::unique_ptr<QTemporaryDir> monDossier;
};

void tst_StockageReponseProcessus::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    StockageReponse::Initialise(StockeurNePlusMAviser, Fichier(), QSettings::IniFormat);
}

void tst_StockageReponseProcessus::cleanup()
{
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    StockageReponse::LibereSingletons();
}

void tst_StockageReponseProcessus::lAutreProcessusTientCompteDeLaReponse()
{
    Enfant enfant(Fichier());
    QCOMPARE(enfant.Demande(u"ask un"_s), int(kBoutonNon)); // it has the file open from here on
    QCOMPARE(enfant.Demande(u"known un"_s), 0);
    RepondsOuiEtCoche(u"un"_s);
    QCOMPARE(enfant.Demande(u"known un"_s), 1);
    QCOMPARE(enfant.Demande(u"ask un"_s), int(kBoutonOui));
    QCOMPARE(enfant.Demande(u"ask deux"_s), int(kBoutonNon));
}

void tst_StockageReponseProcessus::lAutreProcessusTientCompteDeLOubli()
{
    Enfant enfant(Fichier());
    QCOMPARE(enfant.Demande(u"tick un"_s), 0);
    QVERIFY(DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"un"_s));
    DAlerteOublieToutesLesReponses(StockeurNePlusMAviser);
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"un"_s));
    StockageReponse::LibereSingletons(); // written when the singleton goes, at the latest
    QCOMPARE(enfant.Demande(u"known un"_s), 0);
}

void tst_StockageReponseProcessus::aucuneReponsePerdue()
{
    Enfant un(Fichier());
    Enfant deux(Fichier());
    constexpr int kNombre = 25;
    for (int i = 0; i < kNombre; ++i) { // both at the same time
        un.Envoie(u"tick a%1"_s.arg(i));
        deux.Envoie(u"tick b%1"_s.arg(i));
    }
    for (int i = 0; i < kNombre; ++i) {
        QCOMPARE(un.Attends(), 0);
        QCOMPARE(deux.Attends(), 0);
    }
    for (int i = 0; i < kNombre; ++i) {
        QCOMPARE(DonneReponse(u"a%1"_s.arg(i)), kBoutonOui);
        QCOMPARE(DonneReponse(u"b%1"_s.arg(i)), kBoutonOui);
    }
}

void tst_StockageReponseProcessus::fichierInutilisable_data()
{
    QTest::addColumn<bool>("estDossier");
    QTest::addColumn<QByteArray>("contenu");
    QTest::newRow("a directory in its place") << true << QByteArray();
    QTest::newRow("rubbish") << false
                             << QByteArray("\x00\xff\xfe[[[=\n]un\n[messageMemoire\nun=\x80\n=",
                                           32);
    QTest::newRow("a value that is no number")
        << false << QByteArray("[messageMemoire]\nun=beaucoup\n");
    QTest::newRow("empty") << false << QByteArray();
}

void tst_StockageReponseProcessus::fichierInutilisable()
{
    QFETCH(bool, estDossier);
    QFETCH(QByteArray, contenu);
    if (estDossier) {
        QVERIFY(QDir().mkpath(Fichier()));
    } else {
        QFile fichier(Fichier());
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    // The user is asked, and the answer counts at least for this once.
    ClicQuandLaBoiteEstLa(QMessageBox::Yes);
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, u"un"_s,
                           kBoutonOui | kBoutonNon, kBoutonNon, kBoutonNon),
             kBoutonOui);
    RepondsOuiEtCoche(u"un"_s);
    DAlerteOublieToutesLesReponses(StockeurNePlusMAviser);
    QVERIFY(!DAlerteRappelDejaCochay(StockeurNePlusMAviser, u"un"_s));
}

void tst_StockageReponseProcessus::fichierEnLectureSeule()
{
    QFile fichier(Fichier());
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write("[messageMemoire]\ndeux=512\n");
    fichier.close();
    QVERIFY(fichier.setPermissions(QFileDevice::ReadOwner));
    QVERIFY(
        QFile(monDossier->path()).setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    QCOMPARE(DonneReponse(u"deux"_s), kBoutonNon); // remembered, and still read
    ClicQuandLaBoiteEstLa(QMessageBox::Yes);
    QCOMPARE(DAlerteRappel(nullptr, Question(), StockeurNePlusMAviser, u"un"_s,
                           kBoutonOui | kBoutonNon, kBoutonNon, kBoutonNon),
             kBoutonOui);
    RepondsOuiEtCoche(u"un"_s); // may be written by a privileged user, or not
    StockageReponse::LibereSingletons();
    QFile(monDossier->path())
        .setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

int main(int nombre, char ** arguments)
{
    QApplication const application(nombre, arguments);
    if (nombre == 3 && qstrcmp(arguments[1], "--enfant") == 0)
        return SersEnEnfant(QString::fromLocal8Bit(arguments[2]));
    tst_StockageReponseProcessus essai;
    return QTest::qExec(&essai, nombre, arguments);
}

#include "tst_StockageReponseProcessus.moc"
