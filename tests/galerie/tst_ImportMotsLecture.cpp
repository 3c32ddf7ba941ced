#include "ImportMotsLecture.h"

#include "noyau/Traductions.h"

#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

class tst_ImportMotsLecture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lu_data();
    void lu();
    void binaire();
    void absent();
    void dossier();
    void tube();
    void sansDroit();
    void limite_data();
    void limite();
    void rienAvantLaBoucle();
    void abandonnee();
    void messages();

private:
    QString Ecris(QByteArray const & octets);
    ImportMotsLecture::eResultat Lis(QString const & fichier,
                                     qsizetype limite = ImportMotsLecture::kLimite);

    QTemporaryDir monDossier;
    std::unique_ptr<ImportMotsLecture> maLecture;
};

void tst_ImportMotsLecture::init()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

QString tst_ImportMotsLecture::Ecris(QByteArray const & octets)
{
    QFile fichier(monDossier.filePath(u"mots.txt"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        return {};
    return fichier.fileName();
}

ImportMotsLecture::eResultat tst_ImportMotsLecture::Lis(QString const & fichier, qsizetype limite)
{
    maLecture = std::make_unique<ImportMotsLecture>(fichier, nullptr, limite);
    QSignalSpy espion(maLecture.get(), &ImportMotsLecture::SignalTermine);
    if (!espion.wait())
        return ImportMotsLecture::kEnCours;
    QCoreApplication::processEvents();
    return espion.count() == 1 ? maLecture->DonneResultat() : ImportMotsLecture::kEnCours;
}

void tst_ImportMotsLecture::lu_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("short") << QByteArray("arbre\r\nété\n");
    QTest::newRow("no valid UTF-8") << QByteArray("\xE9t\xE9\xFF");
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFmot");
    QTest::newRow("a line of a megabyte") << QByteArray(1024 * 1024, 'a');
    QTest::newRow("several pieces, the last one short") << QByteArray("mot\n").repeated(700'001);
}

void tst_ImportMotsLecture::lu()
{
    QFETCH(QByteArray, octets);
    QCOMPARE(Lis(Ecris(octets)), ImportMotsLecture::kLu);
    QCOMPARE(maLecture->DonneOctets(), octets);
    QCOMPARE(maLecture->DonneMessage(), QString());
    QCOMPARE(maLecture->DonneFichier(), monDossier.filePath(u"mots.txt"_s));
}

void tst_ImportMotsLecture::binaire()
{
    QByteArray octets = QByteArray("mot\n").repeated(300'000);
    octets[octets.size() - 2] = '\0'; // in the last piece
    QCOMPARE(Lis(Ecris(octets)), ImportMotsLecture::kBinaire);
    QVERIFY(maLecture->DonneOctets().isEmpty());
    QVERIFY(!maLecture->DonneMessage().isEmpty());
}

void tst_ImportMotsLecture::absent()
{
    QCOMPARE(Lis(monDossier.filePath(u"absent"_s)), ImportMotsLecture::kAbsent);
    QCOMPARE(Lis(QString()), ImportMotsLecture::kAbsent);
}

void tst_ImportMotsLecture::dossier()
{
    QCOMPARE(Lis(monDossier.path()), ImportMotsLecture::kIllisible);
}

void tst_ImportMotsLecture::tube()
{
#ifdef Q_OS_UNIX
    QString const tube = monDossier.filePath(u"tube"_s);
    QCOMPARE(mkfifo(QFile::encodeName(tube).constData(), 0600), 0);
    QCOMPARE(Lis(tube), ImportMotsLecture::kIllisible);
#else
    QSKIP("There are no pipes among the files here");
#endif
}

void tst_ImportMotsLecture::sansDroit()
{
#ifdef Q_OS_UNIX
    if (geteuid() == 0)
        QSKIP("root may read everything");
    QString const fichier = Ecris("mot");
    QVERIFY(QFile::setPermissions(fichier, QFileDevice::WriteOwner));
    ImportMotsLecture::eResultat const resultat = Lis(fichier);
    QFile::setPermissions(fichier, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QCOMPARE(resultat, ImportMotsLecture::kIllisible);
#else
    QSKIP("Rights are told otherwise here");
#endif
}

void tst_ImportMotsLecture::limite_data()
{
    QTest::addColumn<int>("taille");
    QTest::addColumn<ImportMotsLecture::eResultat>("resultat");
    QTest::newRow("as long as may be") << 1000 << ImportMotsLecture::kLu;
    QTest::newRow("one byte more") << 1001 << ImportMotsLecture::kTropLong;
}

void tst_ImportMotsLecture::limite()
{
    QFETCH(int, taille);
    QFETCH(ImportMotsLecture::eResultat, resultat);
    QCOMPARE(Lis(Ecris(QByteArray(taille, 'a')), 1000), resultat);
    QCOMPARE(maLecture->DonneMessage().isEmpty(), resultat == ImportMotsLecture::kLu);
}

void tst_ImportMotsLecture::rienAvantLaBoucle()
{
    ImportMotsLecture lecture(Ecris("mot"));
    QSignalSpy espion(&lecture, &ImportMotsLecture::SignalTermine);
    QCOMPARE(lecture.DonneResultat(), ImportMotsLecture::kEnCours);
    QCOMPARE(lecture.DonneMessage(), QString());
    QVERIFY(espion.wait());
}

void tst_ImportMotsLecture::abandonnee()
{
    {
        ImportMotsLecture const lecture(Ecris(QByteArray("mot\n").repeated(1'000'000)));
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    QCoreApplication::processEvents(); // nothing of it is left to run
}

void tst_ImportMotsLecture::messages()
{
    Lis(monDossier.filePath(u"absent"_s));
    QVERIFY(maLecture->DonneMessage().contains(u"absent"_s));
    QString const francais = maLecture->DonneMessage();
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    QVERIFY(maLecture->DonneMessage() != francais);
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

QTEST_GUILESS_MAIN(tst_ImportMotsLecture)
#include "tst_ImportMotsLecture.moc"
