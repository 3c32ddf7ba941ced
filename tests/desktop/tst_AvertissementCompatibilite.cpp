// tests/desktop/tst_AvertissementCompatibilite.cpp
#include "desktop/AvertissementCompatibilite.h"
#include "dialogs/DAlerte.h"
#include "dialogs/StockageReponse.h"
#include "noyau/DAlerteInfo.h"
#include "noyau/ExecutionSilencieuse.h"
#include "outils/BureauSimulay.h"

#include <QtTest>
#include <QtWidgets>

#include <cstdio>

using namespace Qt::StringLiterals;
using RoutinesGeneralesQt::InformerUtilisationAppCompatFlags;

namespace {
constexpr int kCodeSuite = 7; // of the child when the warning let it go on
UniChaine const & Guid()
{
    static UniChaine const guid("{F3A1}");
    return guid;
}

// Says on the standard output what it opens, for the process may end right after.
class BureauBavard final : public BureauSimulay
{
public:
    bool OuvreExplorateur(QString const & chemin) override
    {
        std::printf("%s\n", qPrintable(chemin));
        return true;
    }
};

// Clicks in each alert as it comes up.
class Utilisateur : public QObject
{
public:
    explicit Utilisateur(QString const & bouton, bool coche = false)
        : monBouton(bouton)
        , maCoche(coche)
    {
        connect(&monMinuteur, &QTimer::timeout, this, &Utilisateur::Repond);
        monMinuteur.start(5);
    }

    QStringList titres;
    QStringList messages;
    QStringList boutons; // of the last alert
    bool sansParent = false;

private:
    void Repond()
    {
        auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite || !boite->isVisible())
            return;
        titres << boite->windowTitle();
        messages << boite->text();
        sansParent = !boite->parentWidget();
        boutons.clear();
        QAbstractButton * choisi = nullptr;
        for (QAbstractButton * const bouton : boite->buttons()) {
            // The text of a standard button is Qt's and follows the language of the system.
            bool const estIgnorer = boite->standardButton(bouton) == QMessageBox::Ignore;
            QString const texte = estIgnorer ? u"Ignorer"_s : bouton->text().remove(u'&');
            boutons << texte;
            if (texte == monBouton)
                choisi = bouton;
        }
        if (maCoche)
            boite->findChild<QCheckBox *>()->setChecked(true);
        (choisi ? choisi : boite->buttons().constFirst())->click();
    }

    QString monBouton;
    bool maCoche;
    QTimer monMinuteur;
};

// Leaves the warning with "Ignore" and no tick, from inside another alert that came up over it and
// goes away after it, with a tick.
class UtilisateurInterrompu : public QObject
{
public:
    UtilisateurInterrompu()
    {
        connect(&monMinuteur, &QTimer::timeout, this, &UtilisateurInterrompu::Repond);
        monMinuteur.start(5);
    }

    DDialogue::eBoutons autreReponse = DDialogue::kBoutonAucun;

private:
    void Repond()
    {
        auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!boite || !boite->isVisible())
            return;
        monMinuteur.stop();
        monAvertissement = boite;
        QMetaObject::invokeMethod(this, &UtilisateurInterrompu::Termine, Qt::QueuedConnection);
        autreReponse = DAlerteRappel(
            nullptr, DAlerteInfo(DAlerteInfo::kInformation, "Autre", kUniChaineNulle, "Titre"),
            DDialogue::StockeurNePlusMAviser, UniChaine("{AUTRE}"), DDialogue::kBoutonOk,
            DDialogue::kBoutonOk, DDialogue::kBoutonAucun);
    }

    void Termine()
    {
        auto * const boite = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        monAvertissement->button(QMessageBox::Ignore)->click();
        boite->findChild<QCheckBox *>()->setChecked(true);
        boite->buttons().constFirst()->click();
    }

    QPointer<QMessageBox> monAvertissement;
    QTimer monMinuteur;
};

// The child: warns, answers with a tick, and ends with another code when it comes back.
int Avertis(QString const & bouton, QString const & repertoire, QString const & reponses)
{
    StockageReponse::Initialise(DDialogue::StockeurNePlusMAviser, UniChaine(reponses),
                                QSettings::IniFormat);
    auto bureau = std::make_unique<BureauBavard>();
    bureau->executablesAvecCompat << repertoire + u"/vieux.exe"_s << repertoire + u"/vieux2.exe"_s;
    auto const avant = PlateformeBureau::Installe(std::move(bureau));
    Utilisateur const utilisateur(bouton, true);
    InformerUtilisationAppCompatFlags({UniChaine(repertoire)}, Guid());
    std::printf("%d\n", static_cast<int>(utilisateur.messages.size()));
    return kCodeSuite;
}
} // namespace

class tst_AvertissementCompatibilite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void texteEtBoutons();
    void unParProgramme();
    void seulementLesProgrammes();
    void repertoiresVidesOuAbsents();
    void nomEchappay();
    void memoirePourToujours();
    void guidDejaCochay();
    void guidVide();
    void cocheDUneAutreAlerte();
    void finDuProcessus_data();
    void finDuProcessus();

private:
    /// Makes the file, and says whether it runs in a compatibility mode.
    void Cree(QString const & nom, bool compatible = true);
    UniChaine DonneRepertoire() const { return UniChaine(monDossier->path()); }
    QString DonneFichierReponses() const { return mesReponses->filePath(u"reponses.ini"_s); }
    /// How many alerts came, all answered by their default button.
    static qsizetype CompteSilencieux(std::list<UniChaine> const & repertoires);

    std::unique_ptr<QTemporaryDir> monDossier;
    std::unique_ptr<QTemporaryDir> mesReponses;
    BureauSimulay * monBureau = nullptr; // owned by the library while it is in place
    std::unique_ptr<PlateformeBureau> monBureauAvant;
};

void tst_AvertissementCompatibilite::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    mesReponses = std::make_unique<QTemporaryDir>();
    StockageReponse::Initialise(DDialogue::StockeurNePlusMAviser, UniChaine(DonneFichierReponses()),
                                QSettings::IniFormat);
    auto bureau = std::make_unique<BureauSimulay>();
    monBureau = bureau.get();
    monBureauAvant = PlateformeBureau::Installe(std::move(bureau));
    ExecutionSilencieuse::OublieDialoguesJournalises();
}

void tst_AvertissementCompatibilite::cleanup()
{
    ExecutionSilencieuse::Arrete();
    StockageReponse::LibereSingletons();
    StockageReponse::assocTypQSettings.clear();
    PlateformeBureau::Installe(std::move(monBureauAvant));
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_AvertissementCompatibilite::Cree(QString const & nom, bool compatible)
{
    QString const chemin = monDossier->filePath(nom);
    QVERIFY(QDir().mkpath(QFileInfo(chemin).path()));
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::WriteOnly));
    if (compatible)
        monBureau->executablesAvecCompat << chemin;
}

qsizetype tst_AvertissementCompatibilite::CompteSilencieux(std::list<UniChaine> const & repertoires)
{
    ExecutionSilencieuse::Demarre();
    ExecutionSilencieuse::OublieDialoguesJournalises();
    InformerUtilisationAppCompatFlags(repertoires, Guid());
    ExecutionSilencieuse::Arrete();
    return ExecutionSilencieuse::DonneDialoguesJournalises().size();
}

void tst_AvertissementCompatibilite::texteEtBoutons()
{
    Cree(u"Vieux programme.2.exe"_s);
    Utilisateur const utilisateur(u"Ignorer"_s);

    InformerUtilisationAppCompatFlags({DonneRepertoire()}, Guid());

    QCOMPARE(utilisateur.titres, QStringList{u"Avertissement de compatibilité"_s});
    QCOMPARE(utilisateur.messages,
             QStringList{
                 u"L’application suivante semble être exécutée en mode de compatibilité : Vieux "
                 "programme.2.<br><br>Nous vous suggérons de désactiver ce mode en ouvrant le menu "
                 "du fichier, action propriétés, onglet compatibilité.<br>"_s});
    QStringList boutons = utilisateur.boutons;
    boutons.sort();
    QStringList const attendus{u"Ignorer"_s, u"Parcourir..."_s, u"Quitter"_s};
    QCOMPARE(boutons, attendus);
    QVERIFY(utilisateur.sansParent);
    QVERIFY(monBureau->dossiersOuverts.isEmpty());
    // Without a tick nothing is remembered.
    QVERIFY(!DAlerteRappelDejaCochay(DDialogue::StockeurNePlusMAviser, Guid()));
}

void tst_AvertissementCompatibilite::unParProgramme()
{
    Cree(u"a.exe"_s);
    Cree(u"b.exe"_s);
    Cree(u"c.exe"_s, false);
    Cree(u"autre/d.exe"_s);
    UniChaine const autre(monDossier->filePath(u"autre"_s));

    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 2);
    QCOMPARE(CompteSilencieux({autre}), 1);
    QCOMPARE(CompteSilencieux({DonneRepertoire(), autre}), 3);
    QVERIFY(monBureau->dossiersOuverts.isEmpty());
}

void tst_AvertissementCompatibilite::seulementLesProgrammes()
{
    Cree(u"a.dll"_s);
    Cree(u"exe"_s);
    Cree(u"sous/b.exe"_s);
    Cree(u"c.exe.bak"_s);
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 0);
}

void tst_AvertissementCompatibilite::repertoiresVidesOuAbsents()
{
    Cree(u"a.exe"_s);
    QCOMPARE(CompteSilencieux({}), 0);
    QCOMPARE(CompteSilencieux({UniChaine(), UniChaine(monDossier->filePath(u"absent"_s))}), 0);
    QCOMPARE(CompteSilencieux({UniChaine(), DonneRepertoire()}), 1);
    // The empty string is not the current directory.
    QString const avant = QDir::currentPath();
    QVERIFY(QDir::setCurrent(monDossier->path()));
    qsizetype const nombre = CompteSilencieux({UniChaine()});
    QDir::setCurrent(avant);
    QCOMPARE(nombre, 0);
}

void tst_AvertissementCompatibilite::nomEchappay()
{
    Cree(u"R&D <b>.exe"_s);
    Utilisateur const utilisateur(u"Ignorer"_s);
    InformerUtilisationAppCompatFlags({DonneRepertoire()}, Guid());
    QCOMPARE(utilisateur.messages.size(), 1);
    QVERIFY(utilisateur.messages.constFirst().contains(u"R&amp;D &lt;b&gt;.<br>"_s));
}

void tst_AvertissementCompatibilite::memoirePourToujours()
{
    Cree(u"a.exe"_s);
    Cree(u"b.exe"_s);
    {
        Utilisateur const utilisateur(u"Ignorer"_s, true);
        InformerUtilisationAppCompatFlags({DonneRepertoire()}, Guid());
        QCOMPARE(utilisateur.messages.size(), 1); // not of the second program either
    }
    QVERIFY(DAlerteRappelDejaCochay(DDialogue::StockeurNePlusMAviser, Guid()));
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 0);
    StockageReponse::LibereSingletons(); // as in the next run of the program
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 0);
}

void tst_AvertissementCompatibilite::guidDejaCochay()
{
    Cree(u"a.exe"_s);
    StockageReponse * const stockage =
        StockageReponse::Instance(DDialogue::StockeurNePlusMAviser, Guid());
    stockage->ActualiseReponse(DDialogue::kBoutonMaison1); // Quit, which must not be taken now
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 0);

    stockage->ReinitialiseSelonGuid();
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 1);
}

void tst_AvertissementCompatibilite::guidVide()
{
    Cree(u"a.exe"_s);
    for (int fois = 0; fois < 2; ++fois) {
        Utilisateur const utilisateur(u"Ignorer"_s, true);
        InformerUtilisationAppCompatFlags({DonneRepertoire()}, {});
        QCOMPARE(utilisateur.messages.size(), 1);
    }
}

void tst_AvertissementCompatibilite::cocheDUneAutreAlerte()
{
    Cree(u"a.exe"_s);
    UtilisateurInterrompu const utilisateur;
    InformerUtilisationAppCompatFlags({DonneRepertoire()}, Guid());
    QCOMPARE(utilisateur.autreReponse, DDialogue::kBoutonOk);
    QVERIFY(!DAlerteRappelDejaCochay(DDialogue::StockeurNePlusMAviser, Guid()));
}

void tst_AvertissementCompatibilite::finDuProcessus_data()
{
    QTest::addColumn<QStringList>("programmes");
    QTest::addColumn<QString>("bouton");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("sortie"); // %1 for the directory
    QStringList const un{u"vieux.exe"_s};
    QStringList const deux{u"vieux.exe"_s, u"vieux2.exe"_s};
    QTest::newRow("quit") << deux << u"Quitter"_s << 0 << QString();
    QTest::newRow("browse, and quit") << deux << u"Parcourir..."_s << 0 << u"%1\n"_s;
    QTest::newRow("ignore and go on") << deux << u"Ignorer"_s << kCodeSuite << u"1\n"_s;
    // No second alert runs the event loop after the answer.
    QTest::newRow("ignore the only one") << un << u"Ignorer"_s << kCodeSuite << u"1\n"_s;
}

void tst_AvertissementCompatibilite::finDuProcessus()
{
    QFETCH(QStringList, programmes);
    QFETCH(QString, bouton);
    QFETCH(int, code);
    QFETCH(QString, sortie);
    for (QString const & programme : programmes)
        Cree(programme);
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), programmes.size());
    StockageReponse::LibereSingletons();

    QProcess enfant;
    // It ends in the middle of its work, and a sanitizer would ask for the rest.
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
    enfant.setProcessEnvironment(environnement);
    enfant.start(QCoreApplication::applicationFilePath(),
                 {u"avertis"_s, bouton, monDossier->path(), DonneFichierReponses()});
    QVERIFY(enfant.waitForFinished());

    QCOMPARE(enfant.exitStatus(), QProcess::NormalExit);
    QCOMPARE(enfant.exitCode(), code);
    QString const attendue = sortie.contains(u'%') ? sortie.arg(monDossier->path()) : sortie;
    QCOMPARE(QString::fromLocal8Bit(enfant.readAllStandardOutput()), attendue);
    // The tick reached the file, however the process ended.
    QCOMPARE(CompteSilencieux({DonneRepertoire()}), 0);
}

int main(int nombre, char ** arguments)
{
    QApplication application(nombre, arguments);
    QStringList const options = QCoreApplication::arguments();
    if (options.size() == 5 && options[1] == "avertis"_L1)
        return Avertis(options[2], options[3], options[4]);
    tst_AvertissementCompatibilite test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_AvertissementCompatibilite.moc"
