// tests/navigation/tst_CtrlFenPriseEnMainInterface.cpp
#include "navigation/CtrlFenPriseEnMainInterface.h"

#include "navigation/CtrlPriseEnMainEspion.h"
#include "noyau/Traductions.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kSuite =
    "?nom-produit=produit&plateforme=win&modules-langue=fr-en&version-numerique-produit=12"_L1;

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
    void liens_data();
    void liens();
    void questionsParRangee();
    void texteVide();
    void nouveauDocument();

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

    Initialise(RemplaceDansDocument(u"items/lienFR"_s, base));

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
    // A row's key can be given as it is lent.
    monCtrl->PreteVecteurRangeesPriseEnMain().push_back({{}, {}, texte, false});
    QCOMPARE(monCtrl->LisReglage(monCtrl->PreteVecteurRangeesPriseEnMain().back().cle), valeur);
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
