#include "ImportMotsVerification.h"

#include "MotsFrancais.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class tst_ImportMotsVerification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void parMorceaux();
    void sansMot();
    void sansListe();
    void abandonnee();

private:
    QTemporaryDir monDossier;
    MotsFrancais maListe{QString()};
};

void tst_ImportMotsVerification::init()
{
    QFile fichier(monDossier.filePath(u"mots"_s));
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.write("chat\nété\n");
    maListe.MetsFichier(fichier.fileName());
}

void tst_ImportMotsVerification::parMorceaux()
{
    QStringList mots;
    for (int i = 0; i < 25'000; ++i)
        mots += {u"chat"_s, u"zzz"_s};
    ImportMotsVerification verification(mots, maListe);
    QSignalSpy termine(&verification, &ImportMotsVerification::SignalTermine);
    QSignalSpy avance(&verification, &ImportMotsVerification::SignalAvance);
    QCOMPARE(verification.DonneAvancement(), 0);

    QVERIFY(termine.wait());

    QVERIFY(avance.count() > 1); // the event loop had its turns
    QCOMPARE(verification.DonneAvancement(), mots.size());
    QCOMPARE(verification.DonneMots(), mots);
    QVERIFY(verification.DonneVerification().faite);
    QCOMPARE(verification.DonneVerification().connus, QStringList(25'000, u"chat"_s));
    QCOMPARE(verification.DonneVerification().inconnus, QStringList(25'000, u"zzz"_s));
    QCoreApplication::processEvents();
    QCOMPARE(termine.count(), 1);
}

void tst_ImportMotsVerification::sansMot()
{
    ImportMotsVerification verification({}, maListe);
    QSignalSpy termine(&verification, &ImportMotsVerification::SignalTermine);
    QVERIFY(termine.wait());
    QVERIFY(verification.DonneVerification().faite);
}

void tst_ImportMotsVerification::sansListe()
{
    maListe.MetsFichier(QString());
    ImportMotsVerification verification(QStringList(30'000, u"chat"_s), maListe);
    QSignalSpy termine(&verification, &ImportMotsVerification::SignalTermine);
    QVERIFY(termine.wait());
    QVERIFY(!verification.DonneVerification().faite);
    QVERIFY(verification.DonneVerification().connus.isEmpty());
}

void tst_ImportMotsVerification::abandonnee()
{
    {
        ImportMotsVerification const verification(QStringList(30'000, u"chat"_s), maListe);
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    QCoreApplication::processEvents(); // nothing of it is left to run
}

QTEST_GUILESS_MAIN(tst_ImportMotsVerification)
#include "tst_ImportMotsVerification.moc"
