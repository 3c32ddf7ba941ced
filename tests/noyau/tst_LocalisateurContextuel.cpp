// tests/noyau/tst_LocalisateurContextuel.cpp
#include "noyau/LocalisateurContextuel.h"

#include "noyau/ContexteLocalisation.h"
#include "noyau/FabriqueCatalogue.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr VueTexte kDomaine = {"Essai", 5};
constexpr VueTexte kMenu = {"menu", 4};
constexpr ChaineLocalisable kEte = {{"saison", 6}, {}, kDomaine};
constexpr ChaineLocalisablePluriel kFichiers = {
    {"%d fichier", 10}, {"%d fichiers", 11}, {}, kDomaine};

MessagesDeCatalogue Messages(QByteArray const & regle, QByteArray const & langue)
{
    QByteArray const cle("%d fichier\0%d fichiers", 22);
    return {
        {"", EnteteDeCatalogue(regle)},
        {"saison", "\xC3\xA9t\xC3\xA9 " + langue},
        {"menu\004saison", "menu " + langue},
        {cle, "un " + langue + '\0' + "plusieurs " + langue},
        {"menu\004" + cle, "menu un " + langue + '\0' + "menu plusieurs " + langue},
    };
}

} // namespace

class tst_LocalisateurContextuel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void conversions();
    void acoteDUneChaine();
    void contexte_data();
    void contexte();
    void identifiantSansTraduction();
    void vueSansTerminateur();
    void pluriels_data();
    void pluriels();
    void plurielAvecContexte();
    void plurielSansCatalogue_data();
    void plurielSansCatalogue();
    void identifiantMalformay();

private:
    QTemporaryDir monDossier;
    ContexteLocalisation monContexte;
};

void tst_LocalisateurContextuel::initTestCase()
{
    QVERIFY(monDossier.isValid());
    QVERIFY(FabriqueCatalogue(Messages(kRegleFrancaise, "fr"))
                .Ecris(monDossier.filePath(u"EssaiFr.mo"_s)));
    QVERIFY(FabriqueCatalogue(Messages(kRegleAnglaise, "en"))
                .Ecris(monDossier.filePath(u"EssaiEn.mo"_s)));
    monContexte.AjouteDomaine("Essai", monDossier.filePath(u"Essai"_s).toStdString());
}

void tst_LocalisateurContextuel::conversions()
{
    DLocale const anglais(kLangueAnglais);
    QString const texteQt = LocalisateurContextuel(kEte, monContexte, anglais);
    QCOMPARE(texteQt, u"été en"_s);
    UniChaine const chaine = LocalisateurContextuel(kEte, monContexte, anglais);
    QCOMPARE(QString(chaine), u"été en"_s);
    std::string const utf8 = LocalisateurContextuel(kEte, monContexte, anglais);
    QCOMPARE(utf8, std::string("\xC3\xA9t\xC3\xA9 en"));
}

void tst_LocalisateurContextuel::acoteDUneChaine()
{
    LocalisateurContextuel const texte(kEte, monContexte, DLocale(kLangueAnglais));
    QVERIFY(UniChaine("été en") == texte);
    QVERIFY(texte == UniChaine("été en"));
    QVERIFY(texte != UniChaine("été"));
    QVERIFY(UniChaine("été") < texte);
    QVERIFY(texte < UniChaine("été fr"));
    QCOMPARE(QString(UniChaine("un ") + texte), u"un été en"_s);
    QCOMPARE(QString(texte + UniChaine(".")), u"été en."_s);
}

void tst_LocalisateurContextuel::contexte_data()
{
    QTest::addColumn<QByteArray>("contexte");
    QTest::addColumn<QString>("attendu");
    QTest::newRow("none") << QByteArray() << u"été fr"_s;
    QTest::newRow("empty is none") << ""_ba << u"été fr"_s;
    QTest::newRow("known") << "menu"_ba << u"menu fr"_s;
    QTest::newRow("unknown") << "barre"_ba << u"saison"_s;
}

void tst_LocalisateurContextuel::contexte()
{
    QFETCH(QByteArray, contexte);
    ChaineLocalisable message = kEte;
    message.contexte = {contexte.isNull() ? nullptr : contexte.constData(),
                        static_cast<std::size_t>(contexte.size())};
    QTEST(QString(LocalisateurContextuel(message, monContexte, DLocale(kLangueFrancais))),
          "attendu");
}

void tst_LocalisateurContextuel::identifiantSansTraduction()
{
    ChaineLocalisable const absent = {{"Supprimer la clé", 17}, {}, kDomaine};
    for (eLangue const langue : {kLangueFrancais, kLangueAnglais, kLangueAnglaisCanada}) {
        DLocale const locale(langue);
        QCOMPARE(QString(LocalisateurContextuel(absent, monContexte, locale)),
                 u"Supprimer la clé"_s);
        QVERIFY(
            UniChaine(LocalisateurContextuel({{}, {}, kDomaine}, monContexte, locale)).EstVide());
    }
}

void tst_LocalisateurContextuel::vueSansTerminateur()
{
    // The views count; what stands behind them in memory is another text.
    ChaineLocalisable const message = {{"saisons", 6}, {"menus", 4}, {"EssaiAutre", 5}};
    QCOMPARE(QString(LocalisateurContextuel(message, monContexte, DLocale(kLangueAnglais))),
             u"menu en"_s);
}

void tst_LocalisateurContextuel::pluriels_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<quint64>("nombre");
    QTest::addColumn<QString>("attendu");
    int const francais = kLangueFrancais;
    int const anglais = kLangueAnglais;
    constexpr auto kMax = std::numeric_limits<quint64>::max();
    QTest::newRow("0 is singular in French") << francais << quint64(0) << u"un fr"_s;
    QTest::newRow("1 is singular in French") << francais << quint64(1) << u"un fr"_s;
    QTest::newRow("2 is plural in French") << francais << quint64(2) << u"plusieurs fr"_s;
    QTest::newRow("largest in French") << francais << kMax << u"plusieurs fr"_s;
    QTest::newRow("0 is plural in English") << anglais << quint64(0) << u"plusieurs en"_s;
    QTest::newRow("1 is singular in English") << anglais << quint64(1) << u"un en"_s;
    QTest::newRow("2 is plural in English") << anglais << quint64(2) << u"plusieurs en"_s;
    QTest::newRow("largest in English") << anglais << kMax << u"plusieurs en"_s;
}

void tst_LocalisateurContextuel::pluriels()
{
    QFETCH(int, langue);
    QFETCH(quint64, nombre);
    DLocale const locale(static_cast<eLangue>(langue));
    QTEST(QString(LocalisateurContextuel(kFichiers, nombre, monContexte, locale)), "attendu");
}

void tst_LocalisateurContextuel::plurielAvecContexte()
{
    ChaineLocalisablePluriel message = kFichiers;
    message.contexte = kMenu;
    DLocale const anglais(kLangueAnglais);
    QCOMPARE(QString(LocalisateurContextuel(message, 1, monContexte, anglais)), u"menu un en"_s);
    QCOMPARE(QString(LocalisateurContextuel(message, 0, monContexte, anglais)),
             u"menu plusieurs en"_s);
}

void tst_LocalisateurContextuel::plurielSansCatalogue_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("no language") << int(kLangueInconnue);
    QTest::newRow("no catalogue of the language") << int(kLangueAnglaisCanada);
}

// The identifiers are French, and so is the choice between them.
void tst_LocalisateurContextuel::plurielSansCatalogue()
{
    QFETCH(int, langue);
    DLocale const locale(static_cast<eLangue>(langue));
    QString const zero = LocalisateurContextuel(kFichiers, 0, monContexte, locale);
    QString const un = LocalisateurContextuel(kFichiers, 1, monContexte, locale);
    QString const deux = LocalisateurContextuel(kFichiers, 2, monContexte, locale);
    QCOMPARE(zero, u"%d fichier"_s);
    QCOMPARE(un, u"%d fichier"_s);
    QCOMPARE(deux, u"%d fichiers"_s);
}

void tst_LocalisateurContextuel::identifiantMalformay()
{
    ChaineLocalisable const message = {{"a\xFFz", 3}, {}, kDomaine};
    QString const texte = LocalisateurContextuel(message, monContexte, DLocale(kLangueAnglais));
    QCOMPARE(texte, QString(u'a') + QChar(QChar::ReplacementCharacter) + u'z');
}

QTEST_GUILESS_MAIN(tst_LocalisateurContextuel)
#include "tst_LocalisateurContextuel.moc"
