// tests/galerie/tst_LectureTexte.cpp
#include "LectureTexte.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray Compresse(QByteArray octets)
{
    QTemporaryFile fichier;
    if (!fichier.open())
        return {};
    gzFile const gzip = gzopen(QFile::encodeName(fichier.fileName()).constData(), "wb");
    gzwrite(gzip, octets.constData(), static_cast<unsigned>(octets.size()));
    gzclose(gzip);
    return fichier.readAll();
}

// A text that does not shrink to one block.
QByteArray DonneLongTexte()
{
    QByteArray octets;
    for (int ligne = 0; ligne < 20000; ++ligne)
        octets += "ligne " + QByteArray::number(ligne * 7919) + '\n';
    return octets;
}

} // namespace

class tst_LectureTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lu_data();
    void lu();
    void refusay_data();
    void refusay();
    void limite_data();
    void limite();
    void sansFichier();
    void dossier();
    void tube();
    void sansDroit();
    void messagesTraduits();

private:
    QString Ecris(QByteArray const & octets);

    QTemporaryDir monDossier;
};

void tst_LectureTexte::init()
{
    QVERIFY(monDossier.isValid());
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

QString tst_LectureTexte::Ecris(QByteArray const & octets)
{
    QFile fichier(monDossier.filePath(u"texte"_s));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        return {};
    return fichier.fileName();
}

void tst_LectureTexte::lu_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<QString>("texte");
    QByteArray const ete = "L’été\nfinit.\n";
    QString const texte = QString::fromUtf8(ete);
    QTest::newRow("empty file") << QByteArray() << QString();
    QTest::newRow("plain") << ete << texte;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + ete << texte;
    QTest::newRow("ends of lines of Windows") << QByteArray("a\r\n\r\nb\r\n") << u"a\n\nb\n"_s;
    QTest::newRow("ends of lines of old") << QByteArray("a\rb") << u"a\nb"_s;
    QTest::newRow("outside of the basic plane")
        << QByteArray("\xF0\x9F\x98\x80") << u"\U0001F600"_s;
    QTest::newRow("compressed") << Compresse(ete) << texte;
    QTest::newRow("compressed, empty") << Compresse({}) << QString();
    QTest::newRow("compressed, byte order mark and ends of lines") << Compresse("\xEF\xBB\xBF"
                                                                                "a\r\nb")
                                                                   << u"a\nb"_s;
    QTest::newRow("compressed, larger than one buffer")
        << Compresse(DonneLongTexte()) << QString::fromUtf8(DonneLongTexte());
    QTest::newRow("two compressed files end to end")
        << Compresse(ete) + Compresse(ete) << texte + texte;
}

void tst_LectureTexte::lu()
{
    QFETCH(QByteArray, octets);
    QFETCH(QString, texte);

    LectureTexte const lecture(Ecris(octets));

    QCOMPARE(lecture.DonneResultat(), LectureTexte::kLu);
    QCOMPARE(lecture.DonneTexte(), texte);
    QCOMPARE(lecture.DonneMessage(), QString());
}

void tst_LectureTexte::refusay_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<LectureTexte::eResultat>("resultat");
    QByteArray const gzip = Compresse(DonneLongTexte());
    QByteArray change = gzip;
    change[change.size() - 6] = static_cast<char>(~change[change.size() - 6]); // of the checksum
    QTest::newRow("another encoding") << QByteArray("\xE9t\xE9") << LectureTexte::kPasUtf8;
    QTest::newRow("a character cut off at the end") << QByteArray("\xC3") << LectureTexte::kPasUtf8;
    QTest::newRow("a null character") << QByteArray("a\0b", 3) << LectureTexte::kPasUtf8;
    QTest::newRow("compressed, in another encoding")
        << Compresse("\xE9t\xE9") << LectureTexte::kPasUtf8;
    QTest::newRow("compressed, cut off")
        << gzip.first(gzip.size() / 2) << LectureTexte::kEndommagay;
    QTest::newRow("compressed, cut off in the checksum")
        << gzip.chopped(3) << LectureTexte::kEndommagay;
    QTest::newRow("compressed, with another checksum") << change << LectureTexte::kEndommagay;
    QTest::newRow("compressed, header alone") << gzip.first(2) << LectureTexte::kEndommagay;
    QTest::newRow("compressed, something else behind")
        << gzip + "suite" << LectureTexte::kEndommagay;
}

void tst_LectureTexte::refusay()
{
    QFETCH(QByteArray, octets);
    QFETCH(LectureTexte::eResultat, resultat);
    QString const fichier = Ecris(octets);

    LectureTexte const lecture(fichier);

    QCOMPARE(lecture.DonneResultat(), resultat);
    QCOMPARE(lecture.DonneTexte(), QString());
    QVERIFY(lecture.DonneMessage().contains(QDir::toNativeSeparators(fichier)));
}

void tst_LectureTexte::limite_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<qsizetype>("limite");
    QTest::addColumn<bool>("accepte");
    QByteArray const longs(200'000, 'a');
    QTest::newRow("plain, just long enough") << longs << longs.size() << true;
    QTest::newRow("plain, one byte more") << longs << longs.size() - 1 << false;
    QTest::newRow("compressed, just long enough") << Compresse(longs) << longs.size() << true;
    QTest::newRow("compressed, one byte more") << Compresse(longs) << longs.size() - 1 << false;
    QTest::newRow("compressed, much more than one buffer")
        << Compresse(longs) << qsizetype(1000) << false;
}

void tst_LectureTexte::limite()
{
    QFETCH(QByteArray, octets);
    QFETCH(qsizetype, limite);
    QFETCH(bool, accepte);

    LectureTexte const lecture(Ecris(octets), limite);

    QCOMPARE(lecture.DonneResultat(), accepte ? LectureTexte::kLu : LectureTexte::kTropLong);
    QCOMPARE(lecture.DonneTexte().isEmpty(), !accepte);
    QCOMPARE(lecture.DonneMessage().isEmpty(), accepte);
}

void tst_LectureTexte::sansFichier()
{
    QString const absent = monDossier.filePath(u"absent"_s);

    QCOMPARE(LectureTexte(absent).DonneResultat(), LectureTexte::kAbsent);
    QVERIFY(LectureTexte(absent).DonneMessage().contains(QDir::toNativeSeparators(absent)));
    QCOMPARE(LectureTexte(QString()).DonneResultat(), LectureTexte::kAbsent);
}

void tst_LectureTexte::dossier()
{
    QCOMPARE(LectureTexte(monDossier.path()).DonneResultat(), LectureTexte::kIllisible);
}

// It is not opened, so nobody waits.
void tst_LectureTexte::tube()
{
    QString const tube = monDossier.filePath(u"tube"_s);
    if (QProcess::execute(u"mkfifo"_s, {tube}) != 0)
        QSKIP("no mkfifo here");

    QCOMPARE(LectureTexte(tube).DonneResultat(), LectureTexte::kIllisible);
}

void tst_LectureTexte::sansDroit()
{
    QString const nom = Ecris("a");
    QFile fichier(nom);
    QVERIFY(fichier.setPermissions({}));
    bool const lisible = fichier.open(QIODevice::ReadOnly);
    auto const resultat = LectureTexte(nom).DonneResultat();
    fichier.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    if (lisible)
        QSKIP("this user may read everything");

    QCOMPARE(resultat, LectureTexte::kIllisible);
}

void tst_LectureTexte::messagesTraduits()
{
    LectureTexte const lecture(u"/absent"_s);
    QString const francais = lecture.DonneMessage();

    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);

    QVERIFY(!lecture.DonneMessage().isEmpty());
    QVERIFY(lecture.DonneMessage() != francais);
}

QTEST_GUILESS_MAIN(tst_LectureTexte)
#include "tst_LectureTexte.moc"
