// tests/galerie/tst_Galerie.cpp
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kDelai = 60'000; // ms, for a run of the program on a busy machine

struct Execution
{
    int code = -1;
    QString sortie;
    QString erreurs;
};

Execution Execute(QStringList const & arguments, QString const & dossier,
                  QProcessEnvironment const & environnement)
{
    QProcess programme;
    programme.setWorkingDirectory(dossier);
    programme.setProcessEnvironment(environnement);
    programme.start(QStringLiteral(CHEMIN_GALERIE), arguments);
    if (!programme.waitForFinished(kDelai)) {
        programme.kill();
        programme.waitForFinished();
        return {};
    }
    return {programme.exitStatus() == QProcess::NormalExit ? programme.exitCode() : -1,
            QString::fromLocal8Bit(programme.readAllStandardOutput()),
            QString::fromLocal8Bit(programme.readAllStandardError())};
}

// Neither a display nor a platform that was asked for.
QProcessEnvironment DonneEnvironnementSansEcran()
{
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    for (QString const & nom : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
        environnement.remove(nom);
    return environnement;
}

bool EstUniforme(QImage const & image)
{
    QRgb const premier = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != premier)
                return false;
    return true;
}

QString LisTexte(QString const & fichier)
{
    QFile lecture(fichier);
    return lecture.open(QIODevice::ReadOnly) ? QString::fromUtf8(lecture.readAll()) : QString();
}

// The texts of adjacent C++ or gettext literals, joined.
QString JoinsLitteraux(QString const & litteraux)
{
    static QRegularExpression const expression(uR"re("((?:[^"\\]|\\.)*)")re"_s);
    QString texte;
    for (QRegularExpressionMatch const & trouvay : expression.globalMatch(litteraux))
        texte += trouvay.captured(1);
    return texte;
}

QSet<QString> DonneMessagesDesSources()
{
    static QRegularExpression const expression(
        uR"re(Texte(?:Pluriel)?Galerie\(\s*("(?:[^"\\]|\\.)*"(?:\s*"(?:[^"\\]|\\.)*")*))re"_s);
    QSet<QString> messages;
    QDirIterator fichiers(QStringLiteral(SOURCES_GALERIE), {u"*.cpp"_s});
    while (fichiers.hasNext()) {
        QString const source = LisTexte(fichiers.next());
        for (QRegularExpressionMatch const & trouvay : expression.globalMatch(source))
            messages.insert(JoinsLitteraux(trouvay.captured(1)));
    }
    return messages;
}

QSet<QString> DonneMessagesDuCatalogue(QString const & fichier)
{
    static QRegularExpression const expression(
        uR"re(^msgid ((?:"(?:[^"\\]|\\.)*"\n)+)(?:msgid_plural .*\n)?msgstr(?:\[0\])? "(.+)"$)re"_s,
        QRegularExpression::MultilineOption);
    QSet<QString> messages;
    for (QRegularExpressionMatch const & trouvay : expression.globalMatch(LisTexte(fichier)))
        messages.insert(JoinsLitteraux(trouvay.captured(1)));
    return messages;
}

} // namespace

class tst_Galerie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void captures();
    void sansEcranLesCapturesSeFont();
    void refus_data();
    void refus();
    void messagesTraduits_data();
    void messagesTraduits();
};

void tst_Galerie::captures()
{
    QTemporaryDir const dossier;
    QString const destination = dossier.filePath(u"une/galerie"_s);

    Execution const execution = Execute({u"--captures"_s, destination}, dossier.path(),
                                        QProcessEnvironment::systemEnvironment());

    QVERIFY2(execution.code == 0, qPrintable(execution.erreurs));
    QCOMPARE(QFileInfo(execution.sortie.trimmed()).canonicalFilePath(),
             QFileInfo(destination + u"/index.html"_s).canonicalFilePath());
    QString const index = LisTexte(destination + u"/index.html"_s);
    QStringList const images = QDir(destination).entryList({u"*.png"_s});
    for (QString const & page : {u"01-theme"_s, u"02-textes"_s, u"03-polices"_s, u"04-ecrans"_s}) {
        QVERIFY(images.contains(page + u"-fr.png"_s));
        QVERIFY(images.contains(page + u"-en.png"_s));
        QVERIFY2(QImage(destination + u'/' + page + u"-fr.png"_s) !=
                     QImage(destination + u'/' + page + u"-en.png"_s),
                 qPrintable(page));
    }
    for (QString const & nom : images) {
        QImage const image(destination + u'/' + nom);
        QVERIFY2(!image.isNull() && !EstUniforme(image), qPrintable(nom));
        QVERIFY2(index.contains(u"src=\"%1\""_s.arg(nom)), qPrintable(nom));
    }
    QCOMPARE(index.count(u"<img "_s), images.size());
}

void tst_Galerie::sansEcranLesCapturesSeFont()
{
#if !defined(Q_OS_UNIX) || defined(Q_OS_DARWIN)
    QSKIP("Only X11 and Wayland can lack a display");
#endif
    QTemporaryDir const dossier;

    Execution const execution = Execute({}, dossier.path(), DonneEnvironnementSansEcran());

    QVERIFY2(execution.code == 0, qPrintable(execution.erreurs));
    QVERIFY(QFile::exists(dossier.filePath(u"galerie-captures/index.html"_s)));
}

void tst_Galerie::refus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a directory below a file") << QStringList{u"--captures"_s, u"fichier/sous"_s};
    QTest::newRow("no name of a directory") << QStringList{u"--captures"_s, u""_s};
    QTest::newRow("an unknown language") << QStringList{u"--langue"_s, u"de"_s};
    QTest::newRow("an unknown option") << QStringList{u"--inconnue"_s};
    QTest::newRow("an argument that is no option") << QStringList{u"page"_s};
}

void tst_Galerie::refus()
{
    QFETCH(QStringList, arguments);
    QTemporaryDir const dossier;
    QFile fichier(dossier.filePath(u"fichier"_s));
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    fichier.close();

    Execution const execution = Execute(arguments, dossier.path(), DonneEnvironnementSansEcran());

    QVERIFY(execution.code > 0);
    QVERIFY(!execution.erreurs.isEmpty());
    QVERIFY(execution.sortie.isEmpty());
}

void tst_Galerie::messagesTraduits_data()
{
    QTest::addColumn<QString>("catalogue");
    for (char const * const nom : {"GalerieFr.po", "GalerieEn.po", "GalerieEn_CA.po"})
        QTest::newRow(nom) << QString::fromLatin1(nom);
}

void tst_Galerie::messagesTraduits()
{
    QFETCH(QString, catalogue);
    QSet<QString> const voulus = DonneMessagesDesSources();
    QSet<QString> const traduits =
        DonneMessagesDuCatalogue(QStringLiteral(SOURCES_GALERIE "/fichiers/") + catalogue);

    QVERIFY(!voulus.isEmpty());
    QCOMPARE(QStringList((voulus - traduits).values()), QStringList());
    QCOMPARE(QStringList((traduits - voulus).values()), QStringList());
}

QTEST_GUILESS_MAIN(tst_Galerie)
#include "tst_Galerie.moc"
