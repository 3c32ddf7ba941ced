// tests/noyau/tst_Catalogue.cpp
#include "noyau/Catalogue_p.h"

#include "noyau/FabriqueCatalogue.h"
#include "noyau/JournalSimulay.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace {

// Of an array that outlives the view.
VueTexte Vue(QByteArray const & texte)
{
    return {texte.constData(), static_cast<std::size_t>(texte.size())};
}

VueTexte Vue(char const * texte)
{
    return {texte, std::char_traits<char>::length(texte)};
}

QByteArray Texte(std::optional<std::string_view> const & texte)
{
    return texte ? QByteArray(texte->data(), static_cast<qsizetype>(texte->size()))
                 : "(identifier)"_ba;
}

MessagesDeCatalogue Messages(QByteArray const & regle = kRegleAnglaise)
{
    return {
        {"", EnteteDeCatalogue(regle)},
        {"Annuler", "Cancel"},
        {"Enregistrer", "Save"},
        {"menu\004Enregistrer", "Save As"},
        {"Fermer l’été", "\xC3\xA9t\xC3\xA9"},
        {QByteArray("%d fichier\0%d fichiers", 22), QByteArray("%d file\0%d files", 16)},
        {QByteArray("menu\004%d page\0%d pages", 21), QByteArray("%d sheet\0%d sheets", 18)},
        {"vide", ""},
    };
}

} // namespace

class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void messages_data();
    void messages();
    void formats_data();
    void formats();
    void pluriels_data();
    void pluriels();
    void regles_data();
    void regles();
    void plurielInconnu();
    void imagesRefusees_data();
    void imagesRefusees();
    void catalogueAbsent();
    void tronquayPartout();
    void bitsRenverses_data();
    void bitsRenverses();
    void octetsAuHasard();
    void regleProfonde_data();
    void regleProfonde();

private:
    Catalogue Charge(QByteArray const & image);
    void InterrogeTout(Catalogue const & catalogue);

    std::unique_ptr<QTemporaryDir> monDossier;
    std::unique_ptr<JournalSimulay> monJournal;
};

void tst_Catalogue::init()
{
    monDossier = std::make_unique<QTemporaryDir>();
    QVERIFY(monDossier->isValid());
    monJournal = std::make_unique<JournalSimulay>();
}

void tst_Catalogue::cleanup()
{
    monJournal.reset();
    monDossier.reset();
}

Catalogue tst_Catalogue::Charge(QByteArray const & image)
{
    QString const chemin = monDossier->filePath(u"essai.mo"_s);
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(image) != image.size())
        qFatal("the catalogue can't be written");
    fichier.close();
    return Catalogue(chemin);
}

// Whatever the catalogue is worth, every look-up ends, and its text can be read to the end.
void tst_Catalogue::InterrogeTout(Catalogue const & catalogue)
{
    QByteArray const absent("absent");
    qsizetype octets = Texte(catalogue.Cherche(Vue(absent), {})).size();
    for (char const * identifiant : {"Annuler", "Enregistrer", "Fermer l’été", "vide"})
        octets += Texte(catalogue.Cherche(Vue(identifiant), {})).size();
    octets += Texte(catalogue.Cherche(Vue("Enregistrer"), Vue("menu"))).size();
    for (quint64 const nombre : {0, 1, 2, 1'000'000})
        octets += Texte(catalogue.Cherche({Vue("%d fichier"), Vue("%d fichiers"), {}, {}}, nombre))
                      .size();
    QVERIFY(octets >= 0);
}

void tst_Catalogue::messages_data()
{
    QTest::addColumn<QByteArray>("identifiant");
    QTest::addColumn<QByteArray>("contexte");
    QTest::addColumn<QByteArray>("attendu");
    QByteArray const identifiant("(identifier)");
    QTest::newRow("message") << "Annuler"_ba << QByteArray() << "Cancel"_ba;
    QTest::newRow("accents") << "Fermer l’été"_ba << QByteArray() << "\xC3\xA9t\xC3\xA9"_ba;
    QTest::newRow("without context") << "Enregistrer"_ba << QByteArray() << "Save"_ba;
    QTest::newRow("with context") << "Enregistrer"_ba
                                  << "menu"_ba
                                  << "Save As"_ba;
    QTest::newRow("unknown context") << "Enregistrer"_ba
                                     << "barre"_ba << identifiant;
    QTest::newRow("context without such a message") << "Annuler"_ba
                                                    << "menu"_ba << identifiant;
    QTest::newRow("absent") << "Absent"_ba << QByteArray() << identifiant;
    QTest::newRow("the case counts") << "annuler"_ba << QByteArray() << identifiant;
    QTest::newRow("start of a message") << "Annul"_ba << QByteArray() << identifiant;
    QTest::newRow("the header is no message") << QByteArray() << QByteArray() << identifiant;
    QTest::newRow("empty translation is none") << "vide"_ba << QByteArray() << identifiant;
    QTest::newRow("longer than the buffer") << QByteArray(5000, 'x') << QByteArray() << identifiant;
    QTest::newRow("NUL in the identifier")
        << QByteArray("Annuler\0suite", 13) << QByteArray() << identifiant;
    QTest::newRow("NUL in the context")
        << "Enregistrer"_ba << QByteArray("menu\0x", 6) << identifiant;
}

void tst_Catalogue::messages()
{
    QFETCH(QByteArray, identifiant);
    QFETCH(QByteArray, contexte);
    Catalogue const catalogue = Charge(FabriqueCatalogue(Messages()).Image());
    QTEST(Texte(catalogue.Cherche(Vue(identifiant), Vue(contexte))), "attendu");
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_Catalogue::formats_data()
{
    QTest::addColumn<QByteArray>("image");
    auto const sans = FabriqueCatalogue::kSansHachage;
    auto const avec = FabriqueCatalogue::kAvecHachage;
    QTest::newRow("little-endian") << FabriqueCatalogue(Messages(), avec, false).Image();
    QTest::newRow("big-endian") << FabriqueCatalogue(Messages(), avec, true).Image();
    QTest::newRow("without a hash table") << FabriqueCatalogue(Messages(), sans, false).Image();
    QTest::newRow("big-endian without") << FabriqueCatalogue(Messages(), sans, true).Image();
}

void tst_Catalogue::formats()
{
    QFETCH(QByteArray, image);
    QVERIFY(ImageDeCatalogueEstSaine(image));
    Catalogue const catalogue = Charge(image);
    QCOMPARE(Texte(catalogue.Cherche(Vue("Annuler"), {})), "Cancel"_ba);
    QCOMPARE(Texte(catalogue.Cherche(Vue("Enregistrer"), Vue("menu"))), "Save As"_ba);
    QCOMPARE(Texte(catalogue.Cherche({Vue("%d fichier"), Vue("%d fichiers"), {}, {}}, 2)),
             "%d files"_ba);
    QCOMPARE(monJournal->DonneLignes(), QStringList());
}

void tst_Catalogue::pluriels_data()
{
    QTest::addColumn<QByteArray>("regle");
    QTest::addColumn<quint64>("nombre");
    QTest::addColumn<QByteArray>("attendu");
    QByteArray const un("%d file");
    QByteArray const plusieurs("%d files");
    struct
    {
        char const * nom;
        QByteArray regle;
        QByteArray zero;
    } const langues[] = {{"French", kRegleFrancaise, un}, {"English", kRegleAnglaise, plusieurs}};
    constexpr quint64 kQuatreGiga = quint64(1) << 32;
    for (auto const & langue : langues) {
        auto const ligne = [&langue](char const * nombre) -> QTestData & {
            return QTest::newRow(qPrintable(
                       u"%1, %2"_s.arg(QLatin1StringView(langue.nom), QLatin1StringView(nombre))))
                   << langue.regle;
        };
        ligne("0") << quint64(0) << langue.zero;
        ligne("1") << quint64(1) << un;
        ligne("2") << quint64(2) << plusieurs;
        ligne("a million") << quint64(1'000'000) << plusieurs;
        ligne("largest int") << quint64(0x7FFFFFFF) << plusieurs;
        ligne("above int") << quint64(0x80000000) << plusieurs;
        ligne("two to the 32nd") << kQuatreGiga << plusieurs;
        ligne("1 modulo 32 bits") << kQuatreGiga + 1 << plusieurs;
        ligne("largest") << std::numeric_limits<quint64>::max() << plusieurs;
    }
}

void tst_Catalogue::pluriels()
{
    QFETCH(QByteArray, regle);
    QFETCH(quint64, nombre);
    Catalogue const catalogue = Charge(FabriqueCatalogue(Messages(regle)).Image());
    QTEST(Texte(catalogue.Cherche({Vue("%d fichier"), Vue("%d fichiers"), {}, {}}, nombre)),
          "attendu");
}

void tst_Catalogue::regles_data()
{
    QTest::addColumn<QByteArray>("regle");
    QTest::addColumn<quint64>("nombre");
    QTest::addColumn<QByteArray>("attendu");
    QByteArray const un("%d file");
    QByteArray const plusieurs("%d files");
    QByteArray const aucune("(identifier)");
    QByteArray const dernierChiffre("nplurals=2; plural=(n % 10 == 1 ? 0 : 1);");
    QTest::newRow("last digit is kept, 11") << dernierChiffre << quint64(11) << un;
    QTest::newRow("last digit is kept, large")
        << dernierChiffre << quint64(10'000'000'000'000'000'001U) << un;
    QTest::newRow("form above those of the entry")
        << "nplurals=3; plural=2;"_ba << quint64(1) << aucune;
    QTest::newRow("negative form is the first") << "nplurals=2; plural=0-1;"_ba << quint64(5) << un;
    QTest::newRow("division by zero") << "nplurals=2; plural=n/0;"_ba << quint64(5) << aucune;
    QTest::newRow("division of the smallest integer by -1")
        << "nplurals=2; plural=(0-2147483647-1)/(0-1);"_ba << quint64(5) << aucune;
    QTest::newRow("remainder of the smallest integer by -1")
        << "nplurals=2; plural=(0-2147483647-1)%(0-1);"_ba << quint64(5) << aucune;
    QTest::newRow("remainder by a number that reads as -1")
        << "nplurals=2; plural=(0-2147483647-1)%4294967295;"_ba << quint64(5) << aucune;
    QTest::newRow("remainder by zero") << "nplurals=2; plural=n%0;"_ba << quint64(5) << aucune;
    QTest::newRow("malformed, 1, as in English")
        << "nplurals=2; plural=n>>;"_ba << quint64(1) << un;
    QTest::newRow("malformed, 2") << "nplurals=2; plural=n>>;"_ba << quint64(2) << plusieurs;
    QTest::newRow("as deep as a rule may be")
        << "plural=" + QByteArray(299, '(') + 'n' + QByteArray(299, ')') + ";" << quint64(1)
        << plusieurs;
    QTest::newRow("no rule, 1") << QByteArray() << quint64(1) << un;
    QTest::newRow("no rule, 0") << QByteArray() << quint64(0) << plusieurs;
}

void tst_Catalogue::regles()
{
    QFETCH(QByteArray, regle);
    QFETCH(quint64, nombre);
    Catalogue const catalogue = Charge(FabriqueCatalogue(Messages(regle)).Image());
    QTEST(Texte(catalogue.Cherche({Vue("%d fichier"), Vue("%d fichiers"), {}, {}}, nombre)),
          "attendu");
}

void tst_Catalogue::plurielInconnu()
{
    Catalogue const catalogue = Charge(FabriqueCatalogue(Messages()).Image());
    ChaineLocalisablePluriel message{Vue("%d page"), Vue("%d pages"), {}, {}};
    QVERIFY(!catalogue.Cherche(message, 2));
    message.contexte = Vue("menu");
    QCOMPARE(Texte(catalogue.Cherche(message, 1)), "%d sheet"_ba);
    QCOMPARE(Texte(catalogue.Cherche(message, 2)), "%d sheets"_ba);
    QVERIFY(!catalogue.Cherche(ChaineLocalisablePluriel{}, 2));
    QVERIFY(!Catalogue().Cherche(message, 2));
    QVERIFY(!Catalogue().Cherche(Vue("Annuler"), {}));
}

void tst_Catalogue::imagesRefusees_data()
{
    QTest::addColumn<QByteArray>("image");
    QByteArray const saine = FabriqueCatalogue(Messages()).Image();
    auto const avecMot = [&saine](qsizetype position, quint32 mot) {
        QByteArray image = saine;
        qToLittleEndian(mot, image.data() + position);
        return image;
    };
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no catalogue at all") << QByteArray(1000, 'x');
    QTest::newRow("all zero") << QByteArray(1000, '\0');
    QTest::newRow("header alone") << saine.first(28);
    QTest::newRow("unknown revision") << avecMot(4, 0x00020000);
    QTest::newRow("no entry") << avecMot(8, 0);
    QTest::newRow("no entry, tables outside") << FabriqueCatalogue({}).Image();
    QTest::newRow("more entries than bytes") << avecMot(8, 0xFFFFFFFF);
    QTest::newRow("key table outside") << avecMot(12, 0xFFFFFFF0);
    QTest::newRow("text table outside") << avecMot(16, 0xFFFFFFF0);
    QTest::newRow("hash table too long") << avecMot(20, 0x7FFFFFFF);
    QTest::newRow("hash table of one place") << avecMot(20, 1);
    QTest::newRow("hash table of two places") << avecMot(20, 2);
    QTest::newRow("key without room") << avecMot(28 + 8, 0xFFFFFFFF);
    QTest::newRow("key outside") << avecMot(28 + 12, 0xFFFFFF00);
    QTest::newRow("text without its NUL") << saine.chopped(1) + 'x';
    QTest::newRow("no header entry") << FabriqueCatalogue({{"Annuler", "Cancel"}}).Image();
    QTest::newRow("unknown encoding")
        << FabriqueCatalogue({{"", EnteteDeCatalogue(kRegleAnglaise, "absent-9")}}).Image();
}

void tst_Catalogue::imagesRefusees()
{
    QFETCH(QByteArray, image);
    Catalogue const catalogue = Charge(image);
    QVERIFY(!catalogue.Cherche(Vue("Annuler"), {}));
    InterrogeTout(catalogue);
    QCOMPARE(monJournal->DonneLignes().size(), 1);
    QVERIFY(monJournal->DonneLignes().first().contains(u"essai.mo"));
    QVERIFY(monJournal->AppelsSontComplets());
}

void tst_Catalogue::catalogueAbsent()
{
    QString const absent = monDossier->filePath(u"absent.mo"_s);
    Catalogue const catalogue(absent);
    QVERIFY(!catalogue.Cherche(Vue("Annuler"), {}));
    Catalogue const dossier(monDossier->path());
    QVERIFY(!dossier.Cherche(Vue("Annuler"), {}));
    Catalogue const ressource(u":/absent.mo"_s);
    QVERIFY(!ressource.Cherche(Vue("Annuler"), {}));
    QCOMPARE(monJournal->DonneLignes().size(), 3);
    QVERIFY(monJournal->DonneLignes().first().contains(absent));
}

void tst_Catalogue::tronquayPartout()
{
    QByteArray const image = FabriqueCatalogue(Messages()).Image();
    for (qsizetype taille = 0; taille < image.size(); ++taille) {
        // A copy of exactly that size: a read behind it is one outside of the block.
        QByteArray const debut(image.constData(), taille);
        QVERIFY2(!ImageDeCatalogueEstSaine(debut), qPrintable(QString::number(taille)));
        Catalogue const catalogue = Charge(debut);
        QVERIFY(!catalogue.Cherche(Vue("Annuler"), {}));
        QCOMPARE(monJournal->DonneLignes().size(), taille + 1);
    }
}

void tst_Catalogue::bitsRenverses_data()
{
    QTest::addColumn<QByteArray>("image");
    QTest::addColumn<int>("bits");
    auto const sans = FabriqueCatalogue::kSansHachage;
    auto const avec = FabriqueCatalogue::kAvecHachage;
    QTest::newRow("one bit") << FabriqueCatalogue(Messages(), avec).Image() << 1;
    QTest::newRow("ten bits") << FabriqueCatalogue(Messages(), avec).Image() << 10;
    QTest::newRow("no hash table") << FabriqueCatalogue(Messages(), sans).Image() << 2;
    QTest::newRow("big-endian") << FabriqueCatalogue(Messages(), avec, true).Image() << 2;
}

void tst_Catalogue::bitsRenverses()
{
    QFETCH(QByteArray, image);
    QFETCH(int, bits);
    constexpr int kVariantes = 2000;
    std::mt19937 hasard(20'240'229);
    std::uniform_int_distribution<qsizetype> place(0, image.size() * 8 - 1);
    for (int variante = 0; variante < kVariantes; ++variante) {
        QByteArray abimee = image;
        for (int i = 0; i < bits; ++i) {
            qsizetype const bit = place(hasard);
            abimee[bit / 8] = static_cast<char>(abimee.at(bit / 8) ^ (1 << bit % 8));
        }
        qsizetype const avant = monJournal->DonneLignes().size();
        Catalogue const catalogue = Charge(abimee);
        InterrogeTout(catalogue);
        qsizetype const lignes = monJournal->DonneLignes().size() - avant;
        QVERIFY(lignes <= 1);
        if (!ImageDeCatalogueEstSaine(abimee))
            QCOMPARE(lignes, 1);
        if (lignes == 1)
            QVERIFY(!catalogue.Cherche(Vue("Annuler"), {}));
    }
}

void tst_Catalogue::octetsAuHasard()
{
    constexpr int kVariantes = 2000;
    QByteArray const image = FabriqueCatalogue(Messages()).Image();
    std::mt19937 hasard(7);
    std::uniform_int_distribution<int> octet(0, 255);
    for (int variante = 0; variante < kVariantes; ++variante) {
        // The magic number stays, so that the tables behind it are read.
        QByteArray abimee = image;
        for (qsizetype i = 4 + variante % 24; i < abimee.size(); i += 1 + variante % 40)
            abimee[i] = static_cast<char>(octet(hasard));
        qsizetype const avant = monJournal->DonneLignes().size();
        InterrogeTout(Charge(abimee));
        QVERIFY(monJournal->DonneLignes().size() - avant <= 1);
    }
}

void tst_Catalogue::regleProfonde_data()
{
    QTest::addColumn<QByteArray>("regle");
    constexpr int kProfondeur = 1'000'000;
    QTest::newRow("parentheses") << "nplurals=2; plural=" + QByteArray(kProfondeur, '(') + 'n' +
                                        QByteArray(kProfondeur, ')') + ';';
    QTest::newRow("negations, no semicolon")
        << "nplurals=2; plural=" + QByteArray(kProfondeur, '!') + 'n';
    QTest::newRow("just too long") << "plural=" + QByteArray(600, ' ') + "n;";
}

void tst_Catalogue::regleProfonde()
{
    QFETCH(QByteArray, regle);
    Catalogue const catalogue = Charge(FabriqueCatalogue(Messages(regle)).Image());
    QVERIFY(!catalogue.Cherche(Vue("Annuler"), {}));
    QCOMPARE(monJournal->DonneLignes().size(), 1);
}

QTEST_GUILESS_MAIN(tst_Catalogue)
#include "tst_Catalogue.moc"
