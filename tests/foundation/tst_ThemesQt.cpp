// tests/foundation/tst_ThemesQt.cpp
#include "foundation/ThemesQt.h"
#include "foundation/VariablesAttendues.h"
#include "foundation/VariablesParDefaut_p.h"
#include "foundation/VersionsQt_p.h"
#include "outils/FenetresSimulees.h"

#include <QtTest>

#include <QColor>
#include <QElapsedTimer>
#include <QFile>
#include <QPalette>
#include <QProcess>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr char kOptionSansFin[] = "--applique";

// Computing time after which a call on a text of a few characters will never return: the texts that
// end take some microseconds.
constexpr qint64 kDureeSansFin = 400; // ms

constexpr qint64 kBattement =
    10; // ms; Linux counts the time of processes in hundredths of a second

// Sorted by the numbers of the characters.
QStringList DonneNomsAttendus()
{
    QStringList noms;
    for (VariableAttendue const & variable : kVariablesAttendues)
        noms.append(QString::fromUtf16(variable.nom));
    for (char16_t const * const nom : kVariablesDuSysteme)
        noms.append(QString::fromUtf16(nom));
    std::sort(noms.begin(), noms.end());
    return noms;
}

// Tables for calls that may not return, by name.
QString PrepareCas(QString const & cas, ThemesQt & themes)
{
    themes.AjouterVariable(u"bonne"_s, u"1px"_s);
    themes.AjouterVariable(u"fausse"_s, u"x @absente;"_s);
    themes.AjouterVariable(u"a"_s, u"@b"_s);
    themes.AjouterVariable(u"b"_s, u"@a"_s);
    themes.AjouterVariable(u"meme"_s, u"@meme"_s);
    themes.AjouterVariable(u"grossit"_s, u"x@grossit;"_s);
    static QHash<QString, QString> const textes = {
        {u"known name"_s, u"width: @bonne;"_s},
        {u"unknown name"_s, u"width: @absente;"_s},
        {u"unknown name at the end"_s, u"@absente"_s},
        {u"a colon belongs to the name"_s, u"@bonne:"_s},
        {u"prefix alone"_s, u"@"_s},
        {u"doubled prefix"_s, u"@@bonne;"_s},
        {u"unknown name in a value"_s, u"@fausse"_s},
        {u"two that name each other"_s, u"@a;"_s},
        {u"one that names itself"_s, u"@meme"_s},
        {u"a circle that grows"_s, u"@grossit"_s},
    };
    return textes.value(cas);
}

void Dis(char const * ligne)
{
    std::puts(ligne);
    std::fflush(stdout);
}

// The child's side of the test: says that a good text came back, then when the call is over.
int AppliqueEtDis(QString const & cas)
{
    ThemesQt themes;
    QString const texte = PrepareCas(cas, themes);
    if (themes.AppliquerVariable(u"width: @bonne;"_s) != u"width: 1px;"_s)
        return 1;
    Dis("begins");
    themes.AppliquerVariable(texte);
    Dis("ends");
    return 0;
}

// What a process has computed so far, in ms. Where the system does not tell, the time that has
// passed since `depuis`.
qint64 DonneTempsDeCalcul(QProcess const & processus, QElapsedTimer const & depuis)
{
    QFile fichier(u"/proc/%1/stat"_s.arg(processus.processId()));
    if (!fichier.open(QIODevice::ReadOnly))
        return depuis.elapsed();
    QByteArray const contenu = fichier.readAll();
    // The name stands in brackets and may hold blanks. The times of the program and of the system
    // for it come as the 12th and 13th field behind it.
    QList<QByteArray> const champs = contenu.mid(contenu.lastIndexOf(')') + 2).split(' ');
    return (champs.value(11).toLongLong() + champs.value(12).toLongLong()) * kBattement;
}

} // namespace

class tst_ThemesQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void valeurParDefaut_data();
    void valeurParDefaut();
    void tableSansAutreVariable();
    void nomsDansLOrdre();
    void nomSensibleALaCasse();
    void couleurSysteme_data();
    void couleurSysteme();
    void couleurAccentSysteme();
    void couleursDuSystemeLuesUneFois();

    void instance();
    void detruisToiOublieLesAjouts();
    void detruisToiSansInstance();
    void copieEtDeplacement();

    void ajouterVariableRemplace();
    void ajouterCouleur_data();
    void ajouterCouleur();

    void appliquer_data();
    void appliquer();
    void appliquerSansFin_data();
    void appliquerSansFin();

    void donneCouleur_data();
    void donneCouleur();
    void donneCouleurAbsente();

    void variablesInconnues_data();
    void variablesInconnues();
    void variablesInconnuesFinitToujours();
    void variablesInconnuesLongueChaine();
    void feuilleGenerale();
};

void tst_ThemesQt::init()
{
    QCOMPARE(ThemesQt::instanceUnique, nullptr);
}

void tst_ThemesQt::cleanup()
{
    ThemesQt::DetruisToi();
    PlateformeFenetres::Installe(nullptr);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_ThemesQt::valeurParDefaut_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("valeur");
    for (VariableAttendue const & variable : kVariablesAttendues) {
        QString const nom = QString::fromUtf16(variable.nom);
        QTest::newRow(qPrintable(nom)) << nom << QString::fromUtf16(variable.valeur);
    }
}

void tst_ThemesQt::valeurParDefaut()
{
    QFETCH(QString, nom);
    QFETCH(QString, valeur);
    ThemesQt const themes;
    QCOMPARE(themes.VariablesInconnues(u'@' + nom), QStringList());
    QCOMPARE(themes.AppliquerVariable(u'@' + nom), valeur);
    QCOMPARE(themes.DonneCouleur(nom).isValid(), valeur.startsWith(u"rgba("_s));
}

void tst_ThemesQt::tableSansAutreVariable()
{
    QStringList const noms = DonneNomsAttendus();
    QCOMPARE(noms.size(), 71);
    QCOMPARE(ThemesQt().DonneNoms(), noms);
    QCOMPARE(std::size(kVariablesParDefaut), std::size(kVariablesAttendues));
}

void tst_ThemesQt::nomsDansLOrdre()
{
    ThemesQt themes;
    QCOMPARE(themes.DonneNoms().first(), u"CouleurFondBoutonSelectionnay"_s); // capitals first
    QCOMPARE(themes.DonneNoms().last(), u"tailleTitre"_s);

    themes.AjouterVariable(u"tailleTitre"_s, u"1px"_s); // only another value
    QCOMPARE(themes.DonneNoms(), DonneNomsAttendus());

    themes.AjouterVariable(u"zone"_s, u"1px"_s);
    themes.AjouterVariable(QString(), u"1px"_s);
    themes.AjouterVariable(u"Couleur"_s, QColor(1, 2, 3));
    QStringList const attendus =
        QStringList{QString(), u"Couleur"_s} + DonneNomsAttendus() + QStringList{u"zone"_s};
    QCOMPARE(themes.DonneNoms(), attendus);
}

void tst_ThemesQt::nomSensibleALaCasse()
{
    ThemesQt themes;
    QVERIFY(themes.DonneCouleur(u"CouleurFondBoutonSelectionnay"_s).isValid());
    QVERIFY(!themes.DonneCouleur(u"couleurFondBoutonSelectionnay"_s).isValid());
    themes.AjouterVariable(u"CouleurBordure"_s, u"rgba(1,2,3,4)"_s);
    QCOMPARE(themes.DonneCouleur(u"couleurBordure"_s), QColor(220, 220, 220));
    QCOMPARE(themes.DonneCouleur(u"CouleurBordure"_s), QColor(1, 2, 3, 4));
}

void tst_ThemesQt::couleurSysteme_data()
{
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("valeur");
    QTest::newRow("8 is the text") << u"couleurTexteSysteme"_s << u"rgba(1,2,3,255)"_s;
    QTest::newRow("14 is the highlighted text")
        << u"couleurTexteSelectionnerSysteme"_s << u"rgba(255,128,0,255)"_s;
    QTest::newRow("13 is the highlight, its top byte is no alpha")
        << u"couleurSelectionSysteme"_s << u"rgba(17,34,51,255)"_s;
}

void tst_ThemesQt::couleurSysteme()
{
    QFETCH(QString, nom);
    QFETCH(QString, valeur);
    auto fenetres = std::make_unique<FenetresSimulees>();
    // Red is the low byte.
    fenetres->couleurs = {{8, 0x030201}, {14, 0x0080ff}, {13, 0x44332211}};
    PlateformeFenetres::Installe(std::move(fenetres));
    QCOMPARE(ThemesQt().AppliquerVariable(u'@' + nom), valeur);
}

void tst_ThemesQt::couleurAccentSysteme()
{
    QPalette const avant = QApplication::palette();
    QPalette palette = avant;
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    palette.setColor(QPalette::Accent, QColor(9, 8, 7, 6));
#else
    palette.setColor(QPalette::Highlight, QColor(9, 8, 7, 6));
#endif
    QCOMPARE(DonneCouleurAccent(palette), QColor(9, 8, 7, 6));
    QApplication::setPalette(palette);
    ThemesQt const themes;
    QApplication::setPalette(avant);
    QCOMPARE(themes.AppliquerVariable(u"@couleurAccentSysteme"_s), u"rgba(9,8,7,6)"_s);
}

void tst_ThemesQt::couleursDuSystemeLuesUneFois()
{
    auto fenetres = std::make_unique<FenetresSimulees>();
    FenetresSimulees & systeme = *fenetres;
    systeme.couleurs = {{8, 0x010101}};
    PlateformeFenetres::Installe(std::move(fenetres));
    ThemesQt const avant;
    systeme.couleurs = {{8, 0x020202}};
    QCOMPARE(avant.DonneCouleur(u"couleurTexteSysteme"_s), QColor(1, 1, 1));
    QCOMPARE(ThemesQt().DonneCouleur(u"couleurTexteSysteme"_s), QColor(2, 2, 2));
}

void tst_ThemesQt::instance()
{
    ThemesQt * const themes = ThemesQt::Instance();
    QVERIFY(themes);
    QCOMPARE(ThemesQt::instanceUnique, themes);
    QCOMPARE(ThemesQt::Instance(), themes);
}

void tst_ThemesQt::detruisToiOublieLesAjouts()
{
    ThemesQt::Instance()->AjouterVariable(u"ajoutee"_s, u"1px"_s);
    ThemesQt::Instance()->AjouterVariable(u"tailleTitre"_s, u"1px"_s);
    QCOMPARE(ThemesQt::Instance()->AppliquerVariable(u"@ajoutee @tailleTitre"_s), u"1px 1px"_s);

    QVERIFY(ThemesQt::Instance()->DonneNoms().contains(u"ajoutee"_s));

    ThemesQt::DetruisToi();

    QCOMPARE(ThemesQt::instanceUnique, nullptr);
    QCOMPARE(ThemesQt::Instance()->DonneNoms(), DonneNomsAttendus());
    QCOMPARE(ThemesQt::Instance()->VariablesInconnues(u"@ajoutee"_s), QStringList{u"ajoutee"_s});
    QCOMPARE(ThemesQt::Instance()->AppliquerVariable(u"@tailleTitre"_s), u"26px"_s);
}

void tst_ThemesQt::detruisToiSansInstance()
{
    ThemesQt::DetruisToi();
    QCOMPARE(ThemesQt::instanceUnique, nullptr);
}

void tst_ThemesQt::copieEtDeplacement()
{
    ThemesQt source;
    source.AjouterVariable(u"a"_s, u"1px"_s);
    ThemesQt copie(source);
    copie.AjouterVariable(u"a"_s, u"2px"_s);
    QCOMPARE(source.AppliquerVariable(u"@a"_s), u"1px"_s);
    QCOMPARE(copie.AppliquerVariable(u"@a @tailleTitre"_s), u"2px 26px"_s);

    ThemesQt const deplacee(std::move(copie));
    QCOMPARE(deplacee.AppliquerVariable(u"@a @tailleTitre"_s), u"2px 26px"_s);
}

void tst_ThemesQt::ajouterVariableRemplace()
{
    ThemesQt themes;
    themes.AjouterVariable(u"a"_s, u"1px"_s);
    QCOMPARE(themes.AppliquerVariable(u"@a"_s), u"1px"_s);
    themes.AjouterVariable(u"a"_s, QString());
    QCOMPARE(themes.AppliquerVariable(u"[@a]"_s), u"[]"_s);
    themes.AjouterVariable(u"a"_s, QColor(1, 2, 3));
    QCOMPARE(themes.AppliquerVariable(u"@a"_s), u"rgba(1,2,3,255)"_s);
    themes.AjouterVariable(QString(), u"vide"_s);
    QCOMPARE(themes.AppliquerVariable(u"@;"_s), u"vide;"_s);
}

void tst_ThemesQt::ajouterCouleur_data()
{
    QTest::addColumn<QColor>("couleur");
    QTest::addColumn<QString>("valeur");
    QTest::newRow("opaque") << QColor(10, 20, 30) << u"rgba(10,20,30,255)"_s;
    QTest::newRow("the alpha is on 255") << QColor(10, 20, 30, 127) << u"rgba(10,20,30,127)"_s;
    QTest::newRow("from a name") << QColor(u"#E5F1FB"_s) << u"rgba(229,241,251,255)"_s;
    QTest::newRow("of another model") << QColor::fromHsv(0, 255, 255) << u"rgba(255,0,0,255)"_s;
    QTest::newRow("transparent") << QColor(Qt::transparent) << u"rgba(0,0,0,0)"_s;
    QTest::newRow("invalid is black") << QColor() << u"rgba(0,0,0,255)"_s;
}

void tst_ThemesQt::ajouterCouleur()
{
    QFETCH(QColor, couleur);
    QFETCH(QString, valeur);
    ThemesQt themes;
    themes.AjouterVariable(u"a"_s, couleur);
    QCOMPARE(themes.AppliquerVariable(u"@a"_s), valeur);
    QCOMPARE(themes.DonneCouleur(u"a"_s).rgba(), couleur.rgba());
}

void tst_ThemesQt::appliquer_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("resultat");
    QTest::newRow("null") << QString() << QString();
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("no prefix") << u"color: red;"_s << u"color: red;"_s;
    QTest::newRow("one") << u"width: @b;"_s << u"width: 1px;"_s;
    QTest::newRow("chained at the front of a value") << u"@a;"_s << u"1px;"_s;
    QTest::newRow("inside a value") << u"{@bordure}"_s << u"{1px solid 1px}"_s;
    QTest::newRow("inside a value that a value begins with")
        << u"@deux;"_s << u"1px solid 1px, 1px;"_s;
    QTest::newRow("to the end of the text") << u"width:@b"_s << u"width:1px"_s;
    QTest::newRow("side by side") << u"@b @a\n@b"_s << u"1px 1px\n1px"_s;
    QTest::newRow("an empty value") << u"x@vide;y"_s << u"x;y"_s;
    QTest::newRow("an empty value at the end") << u"x@vide"_s << u"x"_s;
    QTest::newRow("empty values side by side") << u"@vide @vide"_s << u" "_s;
    QTest::newRow("a name may hold a prefix") << u"@b@b;"_s << u"double;"_s;
    QTest::newRow("a name may hold other signs") << u"@b.b-b:b;"_s << u"signes;"_s;
    QTest::newRow("a longer name is another") << u"@bb;"_s << u"2px;"_s;
    QTest::newRow("a value with delimiters") << u"(@fonction)"_s << u"(f(1px, 1px))"_s;
    QTest::newRow("a sheet of text")
        << u"color :@couleurTexteDeBase;"_s << u"color :rgba(0,0,0,255);"_s;
    QTest::newRow("a sheet of links")
        << u"color: @couleurTexteLien;"_s << u"color: rgba(24,126,188,255);"_s;
}

void tst_ThemesQt::appliquer()
{
    QFETCH(QString, texte);
    QFETCH(QString, resultat);
    ThemesQt themes;
    themes.AjouterVariable(u"a"_s, u"@b"_s);
    themes.AjouterVariable(u"b"_s, u"1px"_s);
    themes.AjouterVariable(u"bb"_s, u"2px"_s);
    themes.AjouterVariable(u"b@b"_s, u"double"_s);
    themes.AjouterVariable(u"b.b-b:b"_s, u"signes"_s);
    themes.AjouterVariable(u"vide"_s, QString());
    themes.AjouterVariable(u"bordure"_s, u"@b solid @a"_s);
    themes.AjouterVariable(u"deux"_s, u"@bordure, @b"_s);
    themes.AjouterVariable(u"fonction"_s, u"f(@a, @b)"_s);
    QCOMPARE(themes.AppliquerVariable(texte), resultat);
}

void tst_ThemesQt::appliquerSansFin_data()
{
    QTest::addColumn<bool>("finit");
    QTest::newRow("known name") << true;
    // Deliberate: whoever applies a text sees to it that its variables exist.
    QTest::newRow("unknown name") << false;
    QTest::newRow("unknown name at the end") << false;
    QTest::newRow("a colon belongs to the name") << false;
    QTest::newRow("prefix alone") << false;
    QTest::newRow("doubled prefix") << false;
    QTest::newRow("unknown name in a value") << false;
    QTest::newRow("two that name each other") << false;
    QTest::newRow("one that names itself") << false;
    QTest::newRow("a circle that grows") << false;
}

void tst_ThemesQt::appliquerSansFin()
{
    QFETCH(bool, finit);
    QString const cas = QString::fromUtf8(QTest::currentDataTag());
    ThemesQt themes;
    QVERIFY(!PrepareCas(cas, themes).isEmpty());

    QProcess enfant;
    enfant.start(QCoreApplication::applicationFilePath(),
                 {QString::fromLatin1(kOptionSansFin), cas});
    QByteArray sortie;
    QTRY_VERIFY_WITH_TIMEOUT((sortie += enfant.readAllStandardOutput()).contains("begins"), 30000);

    if (finit) {
        QVERIFY(enfant.state() == QProcess::NotRunning || enfant.waitForFinished());
        QCOMPARE(enfant.exitStatus(), QProcess::NormalExit);
        QCOMPARE(enfant.exitCode(), 0);
        sortie += enfant.readAllStandardOutput();
        QVERIFY(sortie.contains("ends"));
        return;
    }
    // A child that is not let run, or that waits for something, computes nothing and fails here.
    QElapsedTimer depuis;
    depuis.start();
    qint64 const avant = DonneTempsDeCalcul(enfant, depuis);
    QTRY_VERIFY_WITH_TIMEOUT(enfant.state() != QProcess::Running ||
                                 DonneTempsDeCalcul(enfant, depuis) - avant >= kDureeSansFin,
                             30000);
    QCOMPARE(enfant.state(), QProcess::Running);
    sortie += enfant.readAllStandardOutput();
    QVERIFY2(!sortie.contains("ends"), sortie.constData());
    enfant.kill();
    QVERIFY(enfant.waitForFinished());
}

void tst_ThemesQt::donneCouleur_data()
{
    QTest::addColumn<QString>("valeur");
    QTest::addColumn<QColor>("couleur");
    QColor const aucune;
    QTest::newRow("plain") << u"rgba(1,2,3,4)"_s << QColor(1, 2, 3, 4);
    QTest::newRow("parts are trimmed") << u"rgba( 1 , 2\t, 3 , 4 )"_s << QColor(1, 2, 3, 4);
    QTest::newRow("the value is trimmed") << u" \n rgba(1,2,3,4)\t"_s << QColor(1, 2, 3, 4);
    QTest::newRow("the name of another") << u"@couleurErreurLineEdit"_s << QColor(238, 0, 0);
    QTest::newRow("the name of another, with blanks")
        << u"  @couleurErreurLineEdit "_s << QColor(238, 0, 0);
    QTest::newRow("the other's own blanks stay") << u"@blancs"_s << aucune;
    QTest::newRow("parts by name") << u"rgba(@un,@un,3,4)"_s << QColor(1, 1, 3, 4);
    QTest::newRow("a length") << u"26px"_s << aucune;
    QTest::newRow("empty") << QString() << aucune;
    QTest::newRow("hexadecimal is not read") << u"#E5F1FB"_s << aucune;
    QTest::newRow("a colour name is not read") << u"red"_s << aucune;
    QTest::newRow("upper case") << u"RGBA(1,2,3,4)"_s << aucune;
    QTest::newRow("rgb") << u"rgb(1,2,3)"_s << aucune;
    QTest::newRow("a blank before the bracket") << u"rgba (1,2,3,4)"_s << aucune;
    QTest::newRow("opening only") << u"rgba("_s << aucune;
    QTest::newRow("no parts") << u"rgba()"_s << aucune;
    QTest::newRow("three parts") << u"rgba(1,2,3)"_s << aucune;
    QTest::newRow("five parts") << u"rgba(1,2,3,4,5)"_s << aucune;
    QTest::newRow("an empty part counts") << u"rgba(1,2,3,4,)"_s << aucune;
    QTest::newRow("an empty part is no number") << u"rgba(1,,3,4)"_s << aucune;
    QTest::newRow("a fraction") << u"rgba(1,2,3,0.5)"_s << aucune;
    QTest::newRow("a percentage") << u"rgba(1,2,3,50%)"_s << aucune;
    QTest::newRow("hexadecimal parts") << u"rgba(0x1,2,3,4)"_s << aucune;
    QTest::newRow("a number of more than 32 bits") << u"rgba(1,2,3,4294967296)"_s << aucune;
    QTest::newRow("whatever character is last") << u"rgba(1,2,3,4;"_s << QColor(1, 2, 3, 4);
    QTest::newRow("the last digit is dropped") << u"rgba(1,2,3,45"_s << QColor(1, 2, 3, 4);
    QTest::newRow("nothing may follow the bracket") << u"rgba(1,2,3,4);"_s << aucune;
    QTest::newRow("255 is kept") << u"rgba(255,255,255,255)"_s << QColor(255, 255, 255, 255);
    QTest::newRow("256 is cut") << u"rgba(256,257,511,256)"_s << QColor(0, 1, 255, 0);
    QTest::newRow("negative is cut") << u"rgba(-1,-2,-256,-1)"_s << QColor(255, 254, 0, 255);
    QTest::newRow("a sign is a number") << u"rgba(+1,2,3,4)"_s << QColor(1, 2, 3, 4);
}

void tst_ThemesQt::donneCouleur()
{
    QFETCH(QString, valeur);
    QFETCH(QColor, couleur);
    ThemesQt themes;
    themes.AjouterVariable(u"un"_s, u"1"_s);
    themes.AjouterVariable(u"blancs"_s, u" rgba(1,2,3,4) "_s);
    themes.AjouterVariable(u"a"_s, valeur);
    QCOMPARE(themes.DonneCouleur(u"a"_s).isValid(), couleur.isValid());
    QCOMPARE(themes.DonneCouleur(u"a"_s), couleur);
}

void tst_ThemesQt::donneCouleurAbsente()
{
    ThemesQt const themes;
    QVERIFY(!themes.DonneCouleur(u"absente"_s).isValid());
    QVERIFY(!themes.DonneCouleur(QString()).isValid());
    QVERIFY(!themes.DonneCouleur(u"@couleurBordure"_s).isValid());
    QVERIFY(!themes.DonneCouleur(u"tailleTitre"_s).isValid());
    QVERIFY(!themes.DonneCouleur(u"couleurBoutonDStyleProxyMouseOver"_s).isValid());
}

void tst_ThemesQt::variablesInconnues_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("inconnues");
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("no variable") << u"color: red"_s << QStringList();
    QTest::newRow("all known") << u"@bonne; @tailleTitre"_s << QStringList();
    QTest::newRow("one") << u"x @absente;"_s << QStringList{u"absente"_s};
    QTest::newRow("each once, in order")
        << u"@z;@y;@z;@bonne;@x"_s << QStringList{u"z"_s, u"y"_s, u"x"_s};
    QTest::newRow("through a value, at its place")
        << u"@debut;@indirecte;@fin"_s << QStringList{u"debut"_s, u"cachee"_s, u"fin"_s};
    QTest::newRow("through a value met twice")
        << u"@indirecte;@indirecte"_s << QStringList{u"cachee"_s};
    QTest::newRow("through two values") << u"@lointaine"_s << QStringList{u"cachee"_s};
    QTest::newRow("the colon belongs to the name") << u"@bonne:"_s << QStringList{u"bonne:"_s};
    QTest::newRow("prefix alone") << u"a@ b"_s << QStringList{QString()};
    QTest::newRow("doubled prefix") << u"@@bonne"_s << QStringList{u"@bonne"_s};
}

void tst_ThemesQt::variablesInconnues()
{
    QFETCH(QString, texte);
    QFETCH(QStringList, inconnues);
    ThemesQt themes;
    themes.AjouterVariable(u"bonne"_s, u"1px"_s);
    themes.AjouterVariable(u"indirecte"_s, u"1px @cachee"_s);
    themes.AjouterVariable(u"lointaine"_s, u"@bonne @indirecte;"_s);
    QCOMPARE(themes.VariablesInconnues(texte), inconnues);
}

void tst_ThemesQt::variablesInconnuesFinitToujours()
{
    ThemesQt themes;
    themes.AjouterVariable(u"a"_s, u"@b;@absente"_s);
    themes.AjouterVariable(u"b"_s, u"x@a;@b"_s);
    QCOMPARE(themes.VariablesInconnues(u"@a @b @a"_s), QStringList{u"absente"_s});
    QCOMPARE(themes.VariablesInconnues(u"@b"_s), QStringList{u"absente"_s});
}

void tst_ThemesQt::variablesInconnuesLongueChaine()
{
    constexpr int kLongueur = 50000;
    ThemesQt themes;
    for (int i = 0; i < kLongueur; ++i)
        themes.AjouterVariable(u"v%1"_s.arg(i), u"@v%1"_s.arg(i + 1));
    QString const derniere = u"v%1"_s.arg(kLongueur);
    QCOMPARE(themes.VariablesInconnues(u"@v0"_s), QStringList{derniere});
    themes.AjouterVariable(derniere, u"1px"_s);
    QCOMPARE(themes.VariablesInconnues(u"@v0"_s), QStringList());
    QCOMPARE(themes.AppliquerVariable(u"@v0;"_s), u"1px;"_s);
}

void tst_ThemesQt::feuilleGenerale()
{
    QFile fichier(u":/Style/StyleGeneralGui.qss"_s);
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QString const feuille = QString::fromUtf8(fichier.readAll());
    ThemesQt themes;
    QCOMPARE(themes.VariablesInconnues(feuille), QStringList{u"widgetListeEditableFontSize"_s});

    themes.AjouterVariable(u"widgetListeEditableFontSize"_s, u"12px"_s);

    QCOMPARE(themes.VariablesInconnues(feuille), QStringList());
    QString const appliquee = themes.AppliquerVariable(feuille);
    QVERIFY(!appliquee.contains(u'@'));
    QVERIFY(appliquee.contains(u"font-size: 12px;"_s));
}

int main(int nombre, char ** arguments)
{
    QApplication application(nombre, arguments);
    QStringList const options = QCoreApplication::arguments();
    if (options.size() == 3 && options[1] == QLatin1String(kOptionSansFin))
        return AppliqueEtDis(options[2]);
    tst_ThemesQt test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "tst_ThemesQt.moc"
