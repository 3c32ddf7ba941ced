// tests/noyau/tst_PlateformeBureau.cpp
#include "noyau/plateforme/PlateformeBureau.h"
#include "outils/BureauSimulay.h"

#include <QDesktopServices>
#include <QtTest>

using namespace Qt::StringLiterals;

// Keeps what would be opened, so that no test starts a program of the user's.
class OuvreurDeTest : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> ouvertes;

public Q_SLOTS:
    void Ouvre(QUrl const & url) { ouvertes << url; }
};

class tst_PlateformeBureau : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void installeEtRemet();
    void rienDeWindows();
    void raccourci_data();
    void raccourci();
    void raccourciSupprimayParUtilisateur();
    void raccourciSansDossier();
    void sansMagasinDeSecrets_data();
    void sansMagasinDeSecrets();
    void droitsEleves();
    void explorateur();
    void fureteurParDefaut();
    void fureteurNommay();
    void bureauSimulay();

private:
    void Ecris(QString const & chemin, QByteArray const & contenu) const;

    std::unique_ptr<QTemporaryDir> monDossier;
    std::map<QByteArray, QByteArray> monEnvironnement; // what the test changes, as it was
    OuvreurDeTest monOuvreur;
};

void tst_PlateformeBureau::init()
{
    for (char const * const nom :
         {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS"})
        monEnvironnement[nom] = qgetenv(nom);
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
    qputenv("XDG_DATA_HOME", QFile::encodeName(monDossier->filePath(u"utilisateur"_s)));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(monDossier->filePath(u"systeme"_s)));
    monOuvreur.ouvertes.clear();
    for (QString const & schema : {u"file"_s, u"https"_s})
        QDesktopServices::setUrlHandler(schema, &monOuvreur, "Ouvre");
}

void tst_PlateformeBureau::cleanup()
{
    for (auto const & [nom, valeur] : monEnvironnement) {
        if (valeur.isNull())
            qunsetenv(nom.constData());
        else
            qputenv(nom.constData(), valeur);
    }
    for (QString const & schema : {u"file"_s, u"https"_s})
        QDesktopServices::unsetUrlHandler(schema);
    PlateformeBureau::Installe(nullptr);
}

void tst_PlateformeBureau::Ecris(QString const & chemin, QByteArray const & contenu) const
{
    QString const complet = monDossier->filePath(chemin);
    QVERIFY(QDir().mkpath(QFileInfo(complet).path()));
    QFile fichier(complet);
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    QCOMPARE(fichier.write(contenu), contenu.size());
}

void tst_PlateformeBureau::installeEtRemet()
{
    PlateformeBureau * const dorigine = &PlateformeBureau::Courante();
    auto simulay = std::make_unique<BureauSimulay>();
    PlateformeBureau * const adresse = simulay.get();

    auto remplacay = PlateformeBureau::Installe(std::move(simulay));
    QCOMPARE(remplacay.get(), dorigine);
    QCOMPARE(&PlateformeBureau::Courante(), adresse);
    QCOMPARE(PlateformeBureau::Installe(nullptr).get(), adresse);
    QVERIFY(PlateformeBureau::Installe(nullptr) != nullptr);
}

void tst_PlateformeBureau::rienDeWindows()
{
    QVERIFY(!PlateformeBureau::Courante().WindowsEstAuMoins(0, 0, 0));
    QVERIFY(!PlateformeBureau::Courante().PossedeAppCompatFlags(
        QCoreApplication::applicationFilePath()));
}

void tst_PlateformeBureau::raccourci_data()
{
    QTest::addColumn<QString>("identifiant");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<bool>("existe");
    QTest::newRow("by identifier") << u"org.exemple.Redacteur"_s << QString() << true;
    QTest::newRow("identifier with its suffix")
        << u"org.exemple.Redacteur.desktop"_s << QString() << false;
    QTest::newRow("identifier in another case") << u"ORG.exemple.redacteur"_s << QString() << false;
    QTest::newRow("by name") << QString() << u"Writer"_s << true;
    QTest::newRow("by the name in a language") << QString() << u"Rédacteur"_s << true;
    QTest::newRow("start of a name") << QString() << u"Writ"_s << false;
    QTest::newRow("one of the two is enough") << u"absent"_s << u"Writer"_s << true;
    QTest::newRow("name of an action of the entry") << QString() << u"New document"_s << false;
    QTest::newRow("name with an escape") << QString() << u"Un\\deux"_s << true;
    QTest::newRow("file in a folder below") << u"suite-correcteur"_s << QString() << true;
    QTest::newRow("marked as deleted") << u"efface"_s << u"Effaced"_s << false;
    QTest::newRow("other file") << u"notes"_s << QString() << false;
    QTest::newRow("nothing asked") << QString() << QString() << false;
}

void tst_PlateformeBureau::raccourci()
{
    QFETCH(QString, identifiant);
    QFETCH(QString, nom);
    QFETCH(bool, existe);
    Ecris(u"systeme/applications/org.exemple.Redacteur.desktop"_s,
          "# Name=Comment\n[Desktop Entry]\nType=Application\nName = Writer\n"
          "Name[fr]=R\xc3\xa9"
          "dacteur\n[Desktop Action new]\nName=New document\n");
    Ecris(u"systeme/applications/suite/correcteur.desktop"_s, "[Desktop Entry]\nName=Un\\\\deux\n");
    Ecris(u"systeme/applications/efface.desktop"_s, "[Desktop Entry]\nName=Effaced\nHidden=true\n");
    Ecris(u"systeme/applications/notes.txt"_s, "[Desktop Entry]\nName=Notes\n");

    QCOMPARE(PlateformeBureau::Courante().RaccourciExiste({identifiant, nom}), existe);
}

void tst_PlateformeBureau::raccourciSupprimayParUtilisateur()
{
    Ecris(u"systeme/applications/redacteur.desktop"_s, "[Desktop Entry]\nName=Writer\n");
    QVERIFY(PlateformeBureau::Courante().RaccourciExiste({u"redacteur"_s, {}}));
    Ecris(u"utilisateur/applications/redacteur.desktop"_s, "[Desktop Entry]\nHidden=true\n");
    QVERIFY(!PlateformeBureau::Courante().RaccourciExiste({u"redacteur"_s, u"Writer"_s}));
}

void tst_PlateformeBureau::raccourciSansDossier()
{
    QVERIFY(!PlateformeBureau::Courante().RaccourciExiste({u"redacteur"_s, u"Writer"_s}));
}

void tst_PlateformeBureau::sansMagasinDeSecrets_data()
{
    QTest::addColumn<bool>("adresse");
    QTest::newRow("no bus") << false;
    QTest::newRow("a bus that nobody serves") << true;
}

void tst_PlateformeBureau::sansMagasinDeSecrets()
{
    QFETCH(bool, adresse);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(monDossier->path()));
    if (adresse)
        qputenv("DBUS_SESSION_BUS_ADDRESS",
                "unix:path=" + QFile::encodeName(monDossier->filePath(u"absent"_s)));
    else
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    QElapsedTimer chronometre;
    chronometre.start();

    QVERIFY(!PlateformeBureau::Courante().EcrisSecret(u"cle"_s, "secret"));
    QVERIFY(!PlateformeBureau::Courante().LisSecret(u"cle"_s).has_value());

    // Far below the time that is left to a store in which a user types a password.
    QVERIFY2(chronometre.elapsed() < 15'000, "waited for a store that is not there");
}

void tst_PlateformeBureau::droitsEleves()
{
    QProcess id;
    id.start(u"id"_s, {u"-u"_s});
    QVERIFY(id.waitForFinished());
    bool const estRoot = id.readAllStandardOutput().trimmed() == "0";
    id.start(u"id"_s, {u"-nG"_s});
    QVERIFY(id.waitForFinished());
    auto const groupes = id.readAllStandardOutput().simplified().split(' ');
    bool const estAdministrateur =
        groupes.contains("sudo") || groupes.contains("wheel") || groupes.contains("admin");
    QCOMPARE(PlateformeBureau::Courante().UtilisateurPeutExecuterElevay(),
             estRoot || estAdministrateur);
}

void tst_PlateformeBureau::explorateur()
{
    Ecris(u"textes/lettre.txt"_s, "Bonjour");
    PlateformeBureau & bureau = PlateformeBureau::Courante();
    QUrl const dossier = QUrl::fromLocalFile(monDossier->filePath(u"textes"_s));

    QVERIFY(bureau.OuvreExplorateur(monDossier->filePath(u"textes"_s)));
    // Deliberate: a file opens its folder, since opening the file would start its editor.
    QVERIFY(bureau.OuvreExplorateur(monDossier->filePath(u"textes/lettre.txt"_s)));
    QVERIFY(!bureau.OuvreExplorateur(monDossier->filePath(u"absent"_s)));
    QVERIFY(!bureau.OuvreExplorateur({}));

    QCOMPARE(monOuvreur.ouvertes, (QList<QUrl>{dossier, dossier}));
}

void tst_PlateformeBureau::fureteurParDefaut()
{
    PlateformeBureau & bureau = PlateformeBureau::Courante();
    QUrl const url(u"https://exemple.invalid/page?q=a%20b"_s);
    QVERIFY(bureau.OuvreUrl(url, {}));
    QVERIFY(!bureau.OuvreUrl({}, {}));
    QVERIFY(!bureau.OuvreUrl(QUrl(u"https://[bad"_s), {}));
    QCOMPARE(monOuvreur.ouvertes, QList<QUrl>{url});
}

void tst_PlateformeBureau::fureteurNommay()
{
    QString const fureteur = monDossier->filePath(u"fureteur de test"_s);
    QString const trace = monDossier->filePath(u"trace"_s);
    // Written elsewhere first: a reader never sees half of it.
    Ecris(u"fureteur de test"_s, "#!/bin/sh\nprintf '%s|' \"$#\" \"$@\" >\"$0.tmp\"\n"
                                 "mv \"$0.tmp\" \"" +
                                     QFile::encodeName(trace) + "\"\n");
    QVERIFY(
        QFile::setPermissions(fureteur, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    PlateformeBureau & bureau = PlateformeBureau::Courante();

    QVERIFY(bureau.OuvreUrl(QUrl(u"https://exemple.invalid/é?q=a b"_s), fureteur));

    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(trace), 30'000);
    QFile fichier(trace);
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QCOMPARE(fichier.readAll(), "1|https://exemple.invalid/%C3%A9?q=a%20b|");
    QVERIFY(monOuvreur.ouvertes.isEmpty());

    QVERIFY(!bureau.OuvreUrl(QUrl(u"https://exemple.invalid"_s), fureteur + u"-absent"_s));
    QVERIFY(!bureau.OuvreUrl({}, fureteur));
}

void tst_PlateformeBureau::bureauSimulay()
{
    BureauSimulay bureau;
    QVERIFY(!bureau.WindowsEstAuMoins(0, 0, 0));
    bureau.versionWindows = {10, 0, 17763};
    QVERIFY(bureau.WindowsEstAuMoins(6, 3, 99999));
    QVERIFY(bureau.WindowsEstAuMoins(10, 0, 17763));
    QVERIFY(!bureau.WindowsEstAuMoins(10, 0, 17764));

    QVERIFY(!bureau.RaccourciExiste({u"redacteur"_s, u"Writer"_s}));
    bureau.raccourcis << u"Writer"_s;
    QVERIFY(bureau.RaccourciExiste({u"redacteur"_s, u"Writer"_s}));

    QVERIFY(bureau.EcrisSecret(u"cle"_s, "secret"));
    QCOMPARE(bureau.LisSecret(u"cle"_s), std::optional<QByteArray>("secret"));
    QCOMPARE(bureau.LisSecret(u"autre"_s), std::optional<QByteArray>(QByteArray()));
    bureau.magasinPresent = false;
    QVERIFY(!bureau.LisSecret(u"cle"_s));
    QVERIFY(!bureau.EcrisSecret(u"cle"_s, "autre"));

    bureau.ouvertureReussit = false;
    QVERIFY(!bureau.OuvreUrl(QUrl(u"https://exemple.invalid"_s), u"fureteur"_s));
    QCOMPARE(bureau.urlsOuvertes.first().second, u"fureteur"_s);
    QVERIFY(!bureau.OuvreExplorateur(u"/tmp"_s));
    QCOMPARE(bureau.dossiersOuverts, QStringList{u"/tmp"_s});
}

QTEST_MAIN(tst_PlateformeBureau)
#include "tst_PlateformeBureau.moc"
