// tests/galerie/tst_ChargementMots.cpp
#include "ChargementMots.h"

#include "TableMots.h"

#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_ChargementMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void charge();
    void sansFichier();
    void fichierVide();
    void detruitAussitot();
    void tableSurvit();

private:
    QString Ecris(QByteArray const & texte);

    QTemporaryDir monDossier;
};

void tst_ChargementMots::init()
{
    QVERIFY(monDossier.isValid());
}

QString tst_ChargementMots::Ecris(QByteArray const & texte)
{
    QFile fichier(monDossier.filePath(u"mots"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(texte) < 0)
        return {};
    return fichier.fileName();
}

void tst_ChargementMots::charge()
{
    ChargementMots chargement(Ecris("un\ndeux\n"));
    QSignalSpy espion(&chargement, &ChargementMots::SignalTermine);
    QVERIFY(!chargement.DonneTable()); // however fast it is, the event loop has not told of it
    QVERIFY(!chargement.DonneLecture());

    QVERIFY(espion.wait());

    QCOMPARE(espion.count(), 1);
    QCOMPARE(chargement.DonneTable()->DonneNombre(), 2);
    QCOMPARE(chargement.DonneTable()->DonneMot(1).toString(), u"deux"_s);
    QCOMPARE(chargement.DonneLecture()->DonneResultat(), LectureTexte::kLu);
}

void tst_ChargementMots::sansFichier()
{
    ChargementMots chargement(monDossier.filePath(u"absent"_s));
    QSignalSpy espion(&chargement, &ChargementMots::SignalTermine);

    QVERIFY(espion.wait());

    QVERIFY(chargement.DonneTable());
    QCOMPARE(chargement.DonneTable()->DonneNombre(), 0);
    QCOMPARE(chargement.DonneLecture()->DonneResultat(), LectureTexte::kAbsent);
}

void tst_ChargementMots::fichierVide()
{
    ChargementMots chargement(Ecris({}));
    QSignalSpy espion(&chargement, &ChargementMots::SignalTermine);

    QVERIFY(espion.wait());

    QCOMPARE(chargement.DonneTable()->DonneNombre(), 0);
    QCOMPARE(chargement.DonneLecture()->DonneResultat(), LectureTexte::kLu);
}

void tst_ChargementMots::detruitAussitot()
{
    QString const fichier = Ecris(QByteArray("mot\n").repeated(50'000));
    for (int i = 0; i < 20; ++i)
        ChargementMots const chargement(fichier);
    QCoreApplication::processEvents(); // what the threads have posted is for nobody
}

void tst_ChargementMots::tableSurvit()
{
    std::shared_ptr<TableMots const> table;
    {
        ChargementMots const chargement(Ecris("un"));
        QSignalSpy espion(&chargement, &ChargementMots::SignalTermine);
        QVERIFY(espion.wait());
        table = chargement.DonneTable();
    }

    QCOMPARE(table->DonneMot(0).toString(), u"un"_s);
}

QTEST_GUILESS_MAIN(tst_ChargementMots)
#include "tst_ChargementMots.moc"
