// tests/navigation/tst_CtrlFenPriseEnMainInterface.cpp
#include "navigation/CtrlFenPriseEnMainInterface.h"

#include "navigation/CtrlPriseEnMainEspion.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSuite =
    "?nom-produit=produit&plateforme=win&modules-langue=fr-en&version-numerique-produit=12"_L1;

// By what an application would catch it; none for a document that is read.
QString DonneException(CtrlFenPriseEnMainInterface & ctrl, QByteArray const & document)
{
    try {
        ctrl.Initialise(UniChaine(QString::fromUtf8(document)), false, false);
    } catch (nlohmann::json::parse_error const & erreur) {
        return u"parse_error "_s + QString::number(erreur.id);
    } catch (nlohmann::json::out_of_range const & erreur) {
        return u"out_of_range "_s + QString::number(erreur.id);
    } catch (nlohmann::json::type_error const & erreur) {
        return u"type_error "_s + QString::number(erreur.id);
    }
    return u"none"_s;
}

// The document with `valeur` at `cle`, which is that of its second row for "items/...". An
// undefined value removes the key.
QByteArray Remplace(QString const & cle, QJsonValue const & valeur)
{
    QJsonObject document = CreeDocument(3);
    auto const range = [&valeur](QJsonObject & objet, QString const & nom) {
        Q_ASSERT(objet.contains(nom));
        if (valeur.isUndefined())
            objet.remove(nom);
        else
            objet.insert(nom, valeur);
    };
    if (!cle.startsWith(u"items/"_s)) {
        range(document, cle);
        return EcrisDocument(document);
    }
    QJsonArray items = document[u"itemsPriseEnMain"_s].toArray();
    QJsonObject item = items[1].toObject();
    range(item, cle.section(u'/', 1));
    items[1] = item;
    document[u"itemsPriseEnMain"_s] = items;
    return EcrisDocument(document);
}

void AjouteCles()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QString>("cle");
    QTest::newRow("window title, French") << kLangueFrancais << u"titreFenetreFR"_s;
    QTest::newRow("window title, English") << kLangueAnglais << u"titreFenetreEN"_s;
    QTest::newRow("explanation, French") << kLangueFrancais << u"explicationFR"_s;
    QTest::newRow("explanation, English") << kLangueAnglais << u"explicationEN"_s;
    QTest::newRow("row title, French") << kLangueFrancais << u"items/titreFR"_s;
    QTest::newRow("row title, English") << kLangueAnglais << u"items/titreEN"_s;
    QTest::newRow("row link, French") << kLangueFrancais << u"items/lienFR"_s;
    QTest::newRow("row link, English") << kLangueAnglais << u"items/lienEN"_s;
    QTest::newRow("row key, French") << kLangueFrancais << u"items/cle"_s;
    QTest::newRow("row key, English") << kLangueAnglais << u"items/cle"_s;
    QTest::newRow("rows, French") << kLangueFrancais << u"itemsPriseEnMain"_s;
    QTest::newRow("rows, Canadian English") << kLangueAnglaisCanada << u"itemsPriseEnMain"_s;
}

} // namespace

class tst_CtrlFenPriseEnMainInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void langues_data();
    void langues();
    void ordreDesRangees();
    void sansRangee();
    void autreLangueNonLue();
    void liens_data();
    void liens();
    void questionsParRangee();
    void texteVide();
    void nouveauDocument();
    void cleManquante_data();
    void cleManquante();
    void mauvaisType_data();
    void mauvaisType();
    void documentRefusay_data();
    void documentRefusay();
    void documentAccepte_data();
    void documentAccepte();
    void exceptionDeBase();
    void rienAMoitie();

    void reglages_data();
    void reglages();
    void premierReglage();
    void reglageNul();

private:
    void Initialise(QByteArray const & document, bool premier = false, bool second = false);
    std::vector<RangeePriseEnMain> const & Rangees() const
    {
        return monCtrl->PreteVecteurRangeesPriseEnMain();
    }

    std::unique_ptr<CtrlPriseEnMainEspion> monCtrl;
};

void tst_CtrlFenPriseEnMainInterface::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    monCtrl = std::make_unique<CtrlPriseEnMainEspion>();
}

void tst_CtrlFenPriseEnMainInterface::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_CtrlFenPriseEnMainInterface::Initialise(QByteArray const & document, bool premier,
                                                 bool second)
{
    monCtrl->Initialise(UniChaine(QString::fromUtf8(document)), premier, second);
}

void tst_CtrlFenPriseEnMainInterface::langues_data()
{
    QTest::addColumn<eLangue>("langue");
    QTest::addColumn<QStringList>("textes");
    QStringList const francais = {u"Découvrir"_s, u"Cochez ce que vous avez vu."_s, u"Titre 1"_s,
                                  u"https://example.org/fr/1"_s + kSuite};
    QStringList const anglais = {u"Discover"_s, u"Check what you have seen."_s, u"Title 1"_s,
                                 u"https://example.org/en/1"_s + kSuite};
    QTest::newRow("French") << kLangueFrancais << francais;
    QTest::newRow("English") << kLangueAnglais << anglais;
    QTest::newRow("Canadian English") << kLangueAnglaisCanada << anglais;
    QTest::newRow("unknown language") << kLangueInconnue << anglais;
}

void tst_CtrlFenPriseEnMainInterface::langues()
{
    QFETCH(eLangue, langue);
    QFETCH(QStringList, textes);
    Traductions::MetsLanguePourApplicationCourante(langue);

    Initialise(EcrisDocument(CreeDocument(1)));

    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), textes[0]);
    QCOMPARE(QString(monCtrl->DonneExplication()), textes[1]);
    QCOMPARE(Rangees().size(), std::size_t(1));
    RangeePriseEnMain const & rangee = Rangees().front();
    QCOMPARE(QString(rangee.titre), textes[2]);
    QCOMPARE(QString(rangee.lien), textes[3]);
    QCOMPARE(QString(rangee.cle), u"groupe/cle1"_s);
    QVERIFY(!rangee.coche);
}

void tst_CtrlFenPriseEnMainInterface::ordreDesRangees()
{
    Initialise(EcrisDocument(CreeDocument(40)));

    QCOMPARE(Rangees().size(), std::size_t(40));
    for (int i = 0; i < 40; ++i)
        QCOMPARE(QString(Rangees()[std::size_t(i)].titre), u"Titre %1"_s.arg(i + 1));
}

void tst_CtrlFenPriseEnMainInterface::sansRangee()
{
    Initialise(EcrisDocument(CreeDocument(0)));

    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Découvrir"_s);
    QVERIFY(Rangees().empty());
    QVERIFY(monCtrl->questions.isEmpty());
}

// Only what is read has to be there.
void tst_CtrlFenPriseEnMainInterface::autreLangueNonLue()
{
    QCOMPARE(DonneException(*monCtrl, Remplace(u"titreFenetreEN"_s, QJsonValue::Undefined)),
             u"none"_s);
    QCOMPARE(DonneException(*monCtrl, Remplace(u"items/lienEN"_s, 3)), u"none"_s);
    QCOMPARE(Rangees().size(), std::size_t(3));
}

void tst_CtrlFenPriseEnMainInterface::liens_data()
{
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("modules");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("lien");

    QTest::newRow("all given") << u"https://example.org/a"_s << u"produit"_s << u"fr"_s << u"1"_s
                               << u"https://example.org/a?nom-produit=produit&plateforme=win&"
                                  "modules-langue=fr&version-numerique-produit=1"_s;
    QTest::newRow("all empty") << QString() << QString() << QString() << QString()
                               << u"?nom-produit=&plateforme=win&modules-langue=&"
                                  "version-numerique-produit="_s;
    QTest::newRow("percent escapes of the values are decoded")
        << u"l"_s << u"Mon%20produit%26"_s << u"fr%2Cen"_s << u"%31%32"_s
        << u"l?nom-produit=Mon produit&&plateforme=win&modules-langue=fr,en&"
           "version-numerique-produit=12"_s;
    QTest::newRow("those of the link are not")
        << u"l%20m"_s << u"p"_s << u"m"_s << u"v"_s
        << u"l%20m?nom-produit=p&plateforme=win&modules-langue=m&version-numerique-produit=v"_s;
    QTest::newRow("nothing is taken for a placeholder")
        << u"%s{}%d{1}%1%"_s << u"%s%%{2}"_s << u"%2%s"_s << u"{}%"_s
        << u"%s{}%d{1}%1%?nom-produit=%s%%{2}&plateforme=win&modules-langue=%2%s&"
           "version-numerique-produit={}%"_s;
    QTest::newRow("accents and characters above U+FFFF")
        << u"é"_s << u"Œuvre"_s << u"%C3%A9"_s << u"\U0001F600"_s
        << u"é?nom-produit=Œuvre&plateforme=win&modules-langue=é&"
           "version-numerique-produit=\U0001F600"_s;
    // Deliberate: the base address is taken as it stands.
    QTest::newRow("a link with a query of its own")
        << u"l?a=b"_s << u"p"_s << u"m"_s << u"v"_s
        << u"l?a=b?nom-produit=p&plateforme=win&modules-langue=m&version-numerique-produit=v"_s;
}

void tst_CtrlFenPriseEnMainInterface::liens()
{
    QFETCH(QString, base);
    QFETCH(QString, nom);
    QFETCH(QString, modules);
    QFETCH(QString, version);
    QFETCH(QString, lien);
    monCtrl->nomProduit = nom;
    monCtrl->modules = modules;
    monCtrl->version = version;

    Initialise(Remplace(u"items/lienFR"_s, base));

    QCOMPARE(QString(Rangees().at(1).lien), lien);
}

void tst_CtrlFenPriseEnMainInterface::questionsParRangee()
{
    Initialise(EcrisDocument(CreeDocument(2)), true, false);
    QCOMPARE(monCtrl->questions, (QStringList{u"nom"_s, u"modules 1 0"_s, u"version"_s, u"nom"_s,
                                              u"modules 1 0"_s, u"version"_s}));

    monCtrl->questions.clear();
    Initialise(EcrisDocument(CreeDocument(1)), false, true);
    QCOMPARE(monCtrl->questions, (QStringList{u"nom"_s, u"modules 0 1"_s, u"version"_s}));
}

void tst_CtrlFenPriseEnMainInterface::texteVide()
{
    monCtrl->Initialise(kUniChaineNulle, true, true);
    QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
    QVERIFY(monCtrl->DonneExplication().EstVide());
    QVERIFY(Rangees().empty());
    QVERIFY(monCtrl->questions.isEmpty());

    // It is no document that would replace another.
    Initialise(EcrisDocument(CreeDocument(2)));
    monCtrl->Initialise(kUniChaineNulle, false, false);
    QCOMPARE(Rangees().size(), std::size_t(2));
}

void tst_CtrlFenPriseEnMainInterface::nouveauDocument()
{
    Initialise(EcrisDocument(CreeDocument(3)));
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    Initialise(EcrisDocument(CreeDocument(2)));

    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Discover"_s);
    QCOMPARE(Rangees().size(), std::size_t(2));
    QCOMPARE(QString(Rangees().front().titre), u"Title 1"_s);
}

void tst_CtrlFenPriseEnMainInterface::cleManquante_data()
{
    AjouteCles();
}

void tst_CtrlFenPriseEnMainInterface::cleManquante()
{
    QFETCH(eLangue, langue);
    QFETCH(QString, cle);
    Traductions::MetsLanguePourApplicationCourante(langue);

    QCOMPARE(DonneException(*monCtrl, Remplace(cle, QJsonValue::Undefined)), u"out_of_range 403"_s);

    QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
    QVERIFY(monCtrl->DonneExplication().EstVide());
    QVERIFY(Rangees().empty());
}

void tst_CtrlFenPriseEnMainInterface::mauvaisType_data()
{
    AjouteCles();
}

void tst_CtrlFenPriseEnMainInterface::mauvaisType()
{
    QFETCH(eLangue, langue);
    QFETCH(QString, cle);
    Traductions::MetsLanguePourApplicationCourante(langue);
    QList<QJsonValue> valeurs = {QJsonValue(QJsonValue::Null), true, 3, 1.5,
                                 QJsonObject{{u"a"_s, u"b"_s}}};
    if (cle == u"itemsPriseEnMain"_s)
        valeurs << u"texte"_s << QJsonObject() << CreeItem(1);
    else
        valeurs << QJsonArray({u"a"_s}) << QJsonArray();

    for (QJsonValue const & valeur : std::as_const(valeurs)) {
        QString const exception = DonneException(*monCtrl, Remplace(cle, valeur));
        QVERIFY2(exception.startsWith(u"type_error "_s), qPrintable(exception));
        QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
        QVERIFY(Rangees().empty());
    }
}

void tst_CtrlFenPriseEnMainInterface::documentRefusay_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("exception");
    QByteArray const bon = EcrisDocument(CreeDocument(1));
    QString const syntaxe = u"parse_error 101"_s;
    QTest::newRow("blank") << QByteArray(" \n") << syntaxe;
    QTest::newRow("no JSON") << QByteArray("Prise en main") << syntaxe;
    QTest::newRow("cut short") << bon.chopped(3) << syntaxe;
    QTest::newRow("comment before") << "// texte\n" + bon << syntaxe;
    QTest::newRow("comment after") << bon + "/* texte */" << syntaxe;
    QTest::newRow("two documents") << bon + bon << syntaxe;
    QTest::newRow("comma before the end")
        << QByteArray(bon).insert(bon.lastIndexOf('}'), ',') << syntaxe;
    QTest::newRow("number sign of the beginning only") << QByteArray("{\"a\": -}") << syntaxe;
    QTest::newRow("array") << "[" + bon + "]" << u"type_error 304"_s;
    QTest::newRow("text") << QByteArray("\"texte\"") << u"type_error 304"_s;
    QTest::newRow("null") << QByteArray("null") << u"type_error 304"_s;
    QTest::newRow("empty object") << QByteArray("{}") << u"out_of_range 403"_s;
    QTest::newRow("rows that are no objects")
        << Remplace(u"itemsPriseEnMain"_s, QJsonArray{1, 2}) << u"type_error 304"_s;
    QTest::newRow("an array as a row")
        << Remplace(u"itemsPriseEnMain"_s, QJsonArray{QJsonArray()}) << u"type_error 304"_s;
}

void tst_CtrlFenPriseEnMainInterface::documentRefusay()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, exception);
    QCOMPARE(DonneException(*monCtrl, document), exception);
    QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
    QVERIFY(Rangees().empty());
}

void tst_CtrlFenPriseEnMainInterface::documentAccepte_data()
{
    QTest::addColumn<QString>("document");
    QString const bon = QString::fromUtf8(EcrisDocument(CreeDocument(1)));
    QTest::newRow("behind a byte order mark") << QChar(0xfeff) + bon;
    QTest::newRow("among blanks") << u"\r\n\t "_s + bon + u"\n\n"_s;
    QTest::newRow("keys that nobody reads") << QString(bon).insert(1, u"\"autre\": [null],"_s);
    QTest::newRow("a key twice: the last one counts")
        << QString(bon).insert(1, u"\"titreFenetreFR\": 3,"_s);
}

void tst_CtrlFenPriseEnMainInterface::documentAccepte()
{
    QFETCH(QString, document);
    monCtrl->Initialise(UniChaine(document), false, false);
    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Découvrir"_s);
    QCOMPARE(Rangees().size(), std::size_t(1));
}

void tst_CtrlFenPriseEnMainInterface::exceptionDeBase()
{
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::exception, Initialise("{"));
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::exception, Initialise("{}"));
    QVERIFY_THROWS_EXCEPTION(std::exception, Initialise("[]"));
    try {
        Initialise("{}");
    } catch (std::exception const & erreur) {
        QVERIFY(QByteArray(erreur.what()).contains("titreFenetreFR")); // it tells what is missing
    }
}

// What was read before a fault does not show beside what an earlier document had.
void tst_CtrlFenPriseEnMainInterface::rienAMoitie()
{
    Initialise(EcrisDocument(CreeDocument(2)));
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);

    QCOMPARE(DonneException(*monCtrl, Remplace(u"items/cle"_s, QJsonValue::Undefined)),
             u"out_of_range 403"_s);

    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Découvrir"_s);
    QCOMPARE(QString(monCtrl->DonneExplication()), u"Cochez ce que vous avez vu."_s);
    QCOMPARE(Rangees().size(), std::size_t(2));
    QCOMPARE(QString(Rangees().front().titre), u"Titre 1"_s);
}

void tst_CtrlFenPriseEnMainInterface::reglages_data()
{
    QTest::addColumn<QString>("cle");
    QTest::addColumn<bool>("valeur");
    QTest::newRow("a setting that is on") << u"groupe/oui"_s << true;
    QTest::newRow("a setting that is off") << u"groupe/non"_s << false;
    QTest::newRow("no such setting") << u"groupe/autre"_s << false;
    QTest::newRow("the name without its group") << u"oui"_s << false;
    QTest::newRow("another separator") << u"groupe.oui"_s << false;
    QTest::newRow("another case") << u"Groupe/oui"_s << false;
    QTest::newRow("the beginning of a key") << u"groupe/ou"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_CtrlFenPriseEnMainInterface::reglages()
{
    QFETCH(QString, cle);
    QFETCH(bool, valeur);
    ReglageSimulay oui(u"groupe"_s, u"oui"_s, true);
    ReglageSimulay non(u"groupe"_s, u"non"_s, false);
    monCtrl->AjouteReglage(&non);
    monCtrl->AjouteReglage(&oui);

    UniChaine texte = cle;
    QCOMPARE(monCtrl->LisReglage(texte), valeur);
    QCOMPARE(QString(texte), cle);
}

void tst_CtrlFenPriseEnMainInterface::premierReglage()
{
    ReglageSimulay premier(u"groupe"_s, u"cle"_s, true);
    ReglageSimulay second(u"groupe"_s, u"cle"_s, false);
    UniChaine cle = "groupe/cle";
    QVERIFY(!monCtrl->LisReglage(cle));

    monCtrl->AjouteReglage(&premier);
    monCtrl->AjouteReglage(&second);
    QVERIFY(monCtrl->LisReglage(cle));
}

void tst_CtrlFenPriseEnMainInterface::reglageNul()
{
    ReglageSimulay oui(u"groupe"_s, u"oui"_s, true);
    monCtrl->AjouteReglage(nullptr);
    monCtrl->AjouteReglage(&oui);
    UniChaine cle = "groupe/oui";
    QVERIFY(monCtrl->LisReglage(cle));
}

QTEST_MAIN(tst_CtrlFenPriseEnMainInterface)
#include "tst_CtrlFenPriseEnMainInterface.moc"
