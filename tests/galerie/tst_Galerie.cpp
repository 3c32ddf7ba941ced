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
    void echelleDesCaptures();
    void texteDonnay();
    void sansEcranLesCapturesSeFont_data();
    void sansEcranLesCapturesSeFont();
    void refus_data();
    void refus();
    void messagesTraduits_data();
    void messagesTraduits();
    void typographie_data();
    void typographie();
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
    for (QString const & page :
         {u"01-theme"_s, u"02-textes"_s, u"03-polices"_s, u"04-ecrans"_s, u"05-alertes"_s,
          u"06-fenetres"_s, u"07-style"_s, u"08-texteriche"_s, u"09-boutons"_s, u"10-combos"_s,
          u"11-vues"_s, u"12-tactile"_s, u"13-recherche"_s, u"14-liste"_s, u"15-chevron"_s,
          u"16-filtres"_s, u"17-jetons"_s, u"18-assistant"_s, u"19-accueil"_s}) {
        QVERIFY(images.contains(page + u"-fr.png"_s));
        QVERIFY(images.contains(page + u"-en.png"_s));
        QVERIFY2(QImage(destination + u'/' + page + u"-fr.png"_s) !=
                     QImage(destination + u'/' + page + u"-en.png"_s),
                 qPrintable(page));
        for (QString const & langue : {u"fr"_s, u"en"_s}) {
            QImage const claire(destination + u"/%1-%2.png"_s.arg(page, langue));
            QImage const sombre(destination + u"/%1-sombre-%2.png"_s.arg(page, langue));
            QVERIFY2(!sombre.isNull(), qPrintable(page));
            // The corner behind the explanation has the colour of the window.
            QPoint const coin(claire.width() - 2, 2);
            QVERIFY2(sombre.pixelColor(coin).lightness() + 100 <
                         claire.pixelColor(coin).lightness(),
                     qPrintable(page));
        }
    }
    QCOMPARE(images.size(), 76);
    for (QString const & nom : images) {
        QImage const image(destination + u'/' + nom);
        QVERIFY2(!image.isNull() && !EstUniforme(image), qPrintable(nom));
        QVERIFY2(index.contains(u"src=\"%1\""_s.arg(nom)), qPrintable(nom));
    }
    QCOMPARE(index.count(u"<img "_s), images.size());
    QCOMPARE(index.count(u"<html lang=\""_s), 1);
    QCOMPARE(index.count(u"<figure lang=\"fr\">"_s), images.size() / 2);
    QCOMPARE(index.count(u"<figure lang=\"en\">"_s), images.size() / 2);
}

void tst_Galerie::echelleDesCaptures()
{
    // The screens of the pictures stand side by side at every scale, so the page looks the same.
    QTemporaryDir const dossier;
    QImage pages[2];
    for (int const echelle : {1, 2}) {
        QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
        environnement.insert(u"QT_SCALE_FACTOR"_s, QString::number(echelle));
        QString const destination = dossier.filePath(QString::number(echelle));
        Execution const execution =
            Execute({u"--captures"_s, destination, u"--page"_s, u"ecrans"_s}, dossier.path(),
                    environnement);
        QVERIFY2(execution.code == 0, qPrintable(execution.erreurs));
        pages[echelle - 1] = QImage(destination + u"/04-ecrans-fr.png"_s);
    }
    QCOMPARE(pages[1].size(), pages[0].size() * 2);
    // The edges of the orange outline: far away from any text, and thicker than rounding.
    auto const cadre = [](QImage const & image) {
        QColor const orange(251, 169, 24);
        QRect trouvay;
        for (int y = 0; y < image.height() * 2 / 3; ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == orange)
                    trouvay |= QRect(x, y, 1, 1);
        return trouvay;
    };
    QRect const simple = cadre(pages[0]);
    QRect const doubley = cadre(pages[1]);
    QVERIFY(!simple.isEmpty());
    QVERIFY((doubley.center() - simple.center() * 2).manhattanLength() <= 8);
    QVERIFY(std::abs(doubley.width() - simple.width() * 2) <= 8);
}

void tst_Galerie::texteDonnay()
{
    QTemporaryDir const dossier;
    QImage pages[2];
    for (int i = 0; i < 2; ++i) {
        QFile texte(dossier.filePath(u"texte.txt"_s));
        QVERIFY(texte.open(QIODevice::WriteOnly));
        texte.write(i == 0 ? "Un chien, deux chiens" : "Tout autre chose");
        texte.close();
        Execution const execution = Execute({u"--captures"_s, dossier.path(), u"--page"_s,
                                             u"recherche"_s, u"--texte"_s, texte.fileName()},
                                            dossier.path(), DonneEnvironnementSansEcran());
        QVERIFY2(execution.code == 0, qPrintable(execution.erreurs));
        QVERIFY(pages[i].load(dossier.filePath(u"13-recherche-fr.png"_s)));
    }

    QVERIFY(pages[0] != pages[1]);
}

void tst_Galerie::sansEcranLesCapturesSeFont_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("variable");
    QTest::addColumn<QString>("valeur");
    QTest::newRow("the offscreen platform")
        << QStringList{} << u"QT_QPA_PLATFORM"_s << u"offscreen"_s;
    QTest::newRow("the minimal platform, with parameters")
        << QStringList{} << u"QT_QPA_PLATFORM"_s << u"minimal:enable_fonts"_s;
    QTest::newRow("the offscreen platform as an argument")
        << QStringList{u"-platform"_s, u"offscreen"_s} << u"LANG"_s << u"C.UTF-8"_s;
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QTest::newRow("no display") << QStringList{} << u"LANG"_s << u"C.UTF-8"_s;
    QTest::newRow("no X server") << QStringList{} << u"DISPLAY"_s << u":59533"_s;
    QTest::newRow("no X server for the argument")
        << QStringList{u"-platform"_s, u"xcb"_s} << u"DISPLAY"_s << u":59533"_s;
    QTest::newRow("no X server of that name")
        << QStringList{u"--platform"_s, u"xcb"_s, u"-display"_s, u":59533"_s} << u"LANG"_s
        << u"C.UTF-8"_s;
    QTest::newRow("no Wayland server")
        << QStringList{} << u"WAYLAND_DISPLAY"_s << u"wayland-absent"_s;
    QTest::newRow("none of two servers")
        << QStringList{u"-platform"_s, u"wayland;xcb"_s} << u"DISPLAY"_s << u":59533"_s;
#endif
}

void tst_Galerie::sansEcranLesCapturesSeFont()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, variable);
    QFETCH(QString, valeur);
    QTemporaryDir const dossier;
    QProcessEnvironment environnement = DonneEnvironnementSansEcran();
    environnement.insert(variable, valeur);

    // One page: what is tested is where it is rendered.
    Execution const execution =
        Execute(arguments + QStringList{u"--page"_s, u"theme"_s}, dossier.path(), environnement);

    QVERIFY2(execution.code == 0, qPrintable(execution.erreurs));
    QDir const captures(dossier.filePath(u"galerie-captures"_s));
    QCOMPARE(captures.entryList({u"*.png"_s}),
             (QStringList{u"01-theme-en.png"_s, u"01-theme-fr.png"_s, u"01-theme-sombre-en.png"_s,
                          u"01-theme-sombre-fr.png"_s}));
    QVERIFY(captures.exists(u"index.html"_s));
}

void tst_Galerie::refus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("a directory below a file") << QStringList{u"--captures"_s, u"fichier/sous"_s};
    QTest::newRow("no name of a directory") << QStringList{u"--captures"_s, u""_s};
    QTest::newRow("an unknown language") << QStringList{u"--langue"_s, u"de"_s};
    QTest::newRow("no name of a text") << QStringList{u"--texte"_s, u""_s};
    QTest::newRow("an unknown page") << QStringList{u"--page"_s, u"inconnue"_s};
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

void tst_Galerie::typographie_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("faute");
    // The identifiers of every catalogue are French.
    for (char const * const nom : {"GalerieFr.po", "GalerieEn.po", "GalerieEn_CA.po"}) {
        QString const catalogue = QString::fromLatin1(nom);
        QTest::addRow("%s: straight apostrophe", nom) << catalogue << u"'"_s;
        QTest::addRow("%s: three dots", nom) << catalogue << u"\\.\\.\\."_s;
        QTest::addRow("%s: no narrow space before ; ! ?", nom) << catalogue << u"[^\u202F][;!?]"_s;
        QTest::addRow("%s: no space before a colon", nom) << catalogue << u"[^\u00A0]:"_s;
    }
}

void tst_Galerie::typographie()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, faute);
    QRegularExpression const expression(faute);
    for (QString const & message :
         DonneMessagesDuCatalogue(QStringLiteral(SOURCES_GALERIE "/fichiers/") + catalogue))
        QVERIFY2(!message.contains(expression), qPrintable(message));
}

QTEST_GUILESS_MAIN(tst_Galerie)
#include "tst_Galerie.moc"
