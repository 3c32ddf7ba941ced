// tests/navigation/tst_CtrlFenPriseEnMainInterfaceRefus.cpp
#include "navigation/CtrlFenPriseEnMainInterface.h"

#include "navigation/CtrlPriseEnMainEspion.h"
#include "noyau/Traductions.h"

#include <QtTest>

#include <nlohmann/json.hpp>

using namespace Qt::StringLiterals;

namespace {

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

class tst_CtrlFenPriseEnMainInterfaceRefus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void autreLangueNonLue();
    void cleManquante_data();
    void cleManquante();
    void ordreDeLecture();
    void mauvaisType_data();
    void mauvaisType();
    void documentRefusay_data();
    void documentRefusay();
    void documentAccepte_data();
    void documentAccepte();
    void exceptionDeBase();
    void rienAMoitie();

private:
    void Initialise(QByteArray const & document);
    std::vector<RangeePriseEnMain> const & Rangees() const
    {
        return monCtrl->PreteVecteurRangeesPriseEnMain();
    }

    std::unique_ptr<CtrlPriseEnMainEspion> monCtrl;
};

void tst_CtrlFenPriseEnMainInterfaceRefus::init()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    monCtrl = std::make_unique<CtrlPriseEnMainEspion>();
}

void tst_CtrlFenPriseEnMainInterfaceRefus::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_CtrlFenPriseEnMainInterfaceRefus::Initialise(QByteArray const & document)
{
    monCtrl->Initialise(UniChaine(QString::fromUtf8(document)), false, false);
}

// Only what is read has to be there.
void tst_CtrlFenPriseEnMainInterfaceRefus::autreLangueNonLue()
{
    QCOMPARE(
        DonneException(*monCtrl, RemplaceDansDocument(u"titreFenetreEN"_s, QJsonValue::Undefined)),
        u"none"_s);
    QCOMPARE(DonneException(*monCtrl, RemplaceDansDocument(u"items/lienEN"_s, 3)), u"none"_s);
    QCOMPARE(Rangees().size(), std::size_t(3));
}

void tst_CtrlFenPriseEnMainInterfaceRefus::cleManquante_data()
{
    AjouteCles();
}

void tst_CtrlFenPriseEnMainInterfaceRefus::cleManquante()
{
    QFETCH(eLangue, langue);
    QFETCH(QString, cle);
    Traductions::MetsLanguePourApplicationCourante(langue);

    QCOMPARE(DonneException(*monCtrl, RemplaceDansDocument(cle, QJsonValue::Undefined)),
             u"out_of_range 403"_s);

    QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
    QVERIFY(monCtrl->DonneExplication().EstVide());
    QVERIFY(Rangees().empty());
}

// Of a row: title and key, then what the application is asked, then the link.
void tst_CtrlFenPriseEnMainInterfaceRefus::ordreDeLecture()
{
    for (auto const & [cle, rangeesDemandees] :
         {std::pair(u"items/titreFR"_s, 1), std::pair(u"items/cle"_s, 1),
          std::pair(u"items/lienFR"_s, 2)}) {
        monCtrl->questions.clear();
        QCOMPARE(DonneException(*monCtrl, RemplaceDansDocument(cle, QJsonValue::Undefined)),
                 u"out_of_range 403"_s);
        QCOMPARE(monCtrl->questions.count(u"version"_s), rangeesDemandees);
    }
}

void tst_CtrlFenPriseEnMainInterfaceRefus::mauvaisType_data()
{
    AjouteCles();
}

void tst_CtrlFenPriseEnMainInterfaceRefus::mauvaisType()
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
        QString const exception = DonneException(*monCtrl, RemplaceDansDocument(cle, valeur));
        QVERIFY2(exception.startsWith(u"type_error "_s), qPrintable(exception));
        QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
        QVERIFY(Rangees().empty());
    }
}

void tst_CtrlFenPriseEnMainInterfaceRefus::documentRefusay_data()
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
        << RemplaceDansDocument(u"itemsPriseEnMain"_s, QJsonArray{1, 2}) << u"type_error 304"_s;
    QTest::newRow("an array as a row")
        << RemplaceDansDocument(u"itemsPriseEnMain"_s, QJsonArray{QJsonArray()})
        << u"type_error 304"_s;
}

void tst_CtrlFenPriseEnMainInterfaceRefus::documentRefusay()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, exception);
    QCOMPARE(DonneException(*monCtrl, document), exception);
    QVERIFY(monCtrl->DonneTitreFenetre().EstVide());
    QVERIFY(Rangees().empty());
}

void tst_CtrlFenPriseEnMainInterfaceRefus::documentAccepte_data()
{
    QTest::addColumn<QString>("document");
    QString const bon = QString::fromUtf8(EcrisDocument(CreeDocument(1)));
    QTest::newRow("behind a byte order mark") << QChar(0xfeff) + bon;
    QTest::newRow("among blanks") << u"\r\n\t "_s + bon + u"\n\n"_s;
    QTest::newRow("keys that nobody reads") << QString(bon).insert(1, u"\"autre\": [null],"_s);
    QTest::newRow("a key twice: the last one counts")
        << QString(bon).insert(1, u"\"titreFenetreFR\": 3,"_s);
}

void tst_CtrlFenPriseEnMainInterfaceRefus::documentAccepte()
{
    QFETCH(QString, document);
    monCtrl->Initialise(UniChaine(document), false, false);
    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Découvrir"_s);
    QCOMPARE(Rangees().size(), std::size_t(1));
}

void tst_CtrlFenPriseEnMainInterfaceRefus::exceptionDeBase()
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
void tst_CtrlFenPriseEnMainInterfaceRefus::rienAMoitie()
{
    Initialise(EcrisDocument(CreeDocument(2)));
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);

    QCOMPARE(DonneException(*monCtrl, RemplaceDansDocument(u"items/cle"_s, QJsonValue::Undefined)),
             u"out_of_range 403"_s);

    QCOMPARE(QString(monCtrl->DonneTitreFenetre()), u"Découvrir"_s);
    QCOMPARE(QString(monCtrl->DonneExplication()), u"Cochez ce que vous avez vu."_s);
    QCOMPARE(Rangees().size(), std::size_t(2));
    QCOMPARE(QString(Rangees().front().titre), u"Titre 1"_s);
}

QTEST_MAIN(tst_CtrlFenPriseEnMainInterfaceRefus)
#include "tst_CtrlFenPriseEnMainInterfaceRefus.moc"
