// tests/foundation/tst_TraductionGui.cpp
#include "foundation/MessagesGui.h"
#include "foundation/TraductionGui.h"

#include "noyau/Traductions.h"

#include <QtTest>

#include <QtEndian>

#include <algorithm>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr ChaineLocalisablePluriel kCaracteresRestants =
    TextePlurielGui("{1} caractère restant", "{1} caractères restants");

// The keys and texts of a catalogue of the resource tree, in the order of the file.
QList<std::pair<QByteArray, QByteArray>> LisCatalogue(QByteArray const & octets)
{
    auto const mot = [&octets](qsizetype position) {
        return static_cast<qsizetype>(qFromLittleEndian<quint32>(octets.constData() + position));
    };
    auto const texte = [&](qsizetype table, qsizetype i) {
        return octets.mid(mot(table + 8 * i + 4), mot(table + 8 * i));
    };
    QList<std::pair<QByteArray, QByteArray>> entrees;
    for (qsizetype i = 0; i < mot(8); ++i)
        entrees.append({texte(mot(12), i), texte(mot(16), i)});
    return entrees;
}

QByteArray Octets(QString const & suffixe)
{
    QFile fichier(u":/fichiers/GUI"_s + suffixe + u".mo"_s);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

QByteArray Cle(MessageGui const & message)
{
    QByteArray const identifiant(message.identifiant);
    return message.contexte ? QByteArray(message.contexte) + '\x04' + identifiant : identifiant;
}

ChaineLocalisable Enregistrement(MessageGui const & message)
{
    VueTexte contexte;
    if (message.contexte)
        contexte = {message.contexte, std::strlen(message.contexte)};
    return {{message.identifiant, std::strlen(message.identifiant)}, contexte, {"GUI", 3}};
}

} // namespace

class tst_TraductionGui : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void formatDuCatalogue_data();
    void formatDuCatalogue();
    void cataloguesAnglaisIdentiques();
    void chaqueMessageEnFrancaisEstLuiMeme();
    void chaqueMessageEnAnglaisEstDansLeCatalogue();
    void lignesAnglaises_data();
    void lignesAnglaises();
    void troisConversions();
    void langueDeLApplication();
    void sansEntreeLIdentifiantRevient_data();
    void sansEntreeLIdentifiantRevient();
    void contexteFaitUneAutreCle();
    void arguments();
    void argumentsNeSontPasRelus();
    void pluriel_data();
    void pluriel();
    void plusieursThreads();
};

void tst_TraductionGui::cleanup()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueFrancais);
}

void tst_TraductionGui::formatDuCatalogue_data()
{
    QTest::addColumn<QString>("suffixe");
    QTest::addColumn<QByteArray>("pluriels");
    QTest::newRow("French") << u"Fr"_s << QByteArray("nplurals=2; plural=(n > 1);");
    QTest::newRow("English") << u"En"_s << QByteArray("nplurals=2; plural=n != 1;");
    QTest::newRow("English, Canada") << u"En_CA"_s << QByteArray("nplurals=2; plural=n != 1;");
}

void tst_TraductionGui::formatDuCatalogue()
{
    QFETCH(QString, suffixe);
    QFETCH(QByteArray, pluriels);
    QByteArray const octets = Octets(suffixe);
    QCOMPARE(octets.first(8).toHex(), QByteArray("de12049500000000"));

    auto const entrees = LisCatalogue(octets);
    QCOMPARE(entrees.size(), 108);
    QByteArrayList cles;
    for (auto const & [cle, texte] : entrees)
        cles.append(cle);
    QVERIFY(std::is_sorted(cles.cbegin(), cles.cend()));
    QByteArrayList attendues = {QByteArray(), QByteArray("{1} caractère restant") + '\0' +
                                                  "{1} caractères restants"};
    for (MessageGui const & message : kMessagesGui)
        attendues.append(Cle(message));
    std::sort(attendues.begin(), attendues.end());
    QCOMPARE(cles, attendues);

    QByteArray const entete = entrees.at(0).second;
    QVERIFY(entete.contains("Plural-Forms: " + pluriels + '\n'));
    QVERIFY(entete.contains("charset=UTF-8\n"));
}

void tst_TraductionGui::cataloguesAnglaisIdentiques()
{
    QVERIFY(!Octets(u"En"_s).isEmpty());
    QCOMPARE(Octets(u"En"_s), Octets(u"En_CA"_s));
}

void tst_TraductionGui::chaqueMessageEnFrancaisEstLuiMeme()
{
    for (auto const & [cle, texte] : LisCatalogue(Octets(u"Fr"_s)).mid(1))
        QCOMPARE(texte, cle.mid(cle.indexOf('\x04') + 1));
}

void tst_TraductionGui::chaqueMessageEnAnglaisEstDansLeCatalogue()
{
    QHash<QByteArray, QByteArray> textes;
    for (auto const & [cle, texte] : LisCatalogue(Octets(u"En"_s)))
        textes.insert(cle, texte);
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    for (MessageGui const & message : kMessagesGui) {
        QByteArray const attendu = textes.value(Cle(message));
        QVERIFY2(!attendu.isEmpty(), message.identifiant);
        QCOMPARE(QString(TraductionGui(Enregistrement(message))), QString::fromUtf8(attendu));
    }
}

void tst_TraductionGui::lignesAnglaises_data()
{
    QTest::addColumn<QByteArray>("identifiant");
    QTest::addColumn<QString>("anglais");
    QTest::newRow("direction of a search") << QByteArray("Sens") << u"Meaning"_s;
    QTest::newRow("out of a list") << QByteArray("Retirer") << u"Remove from list"_s;
    QTest::newRow("search option") << QByteArray("boucler") << u"wraparound"_s;
    QTest::newRow("pill") << QByteArray("Enlever «{1}»") << u"Remove “{1}”"_s;
    QTest::newRow("first steps") << QByteArray("Prise en main") << u"Discover Panacel"_s;
}

void tst_TraductionGui::lignesAnglaises()
{
    QFETCH(QByteArray, identifiant);
    QFETCH(QString, anglais);
    ChaineLocalisable const message = Enregistrement({nullptr, identifiant.constData()});
    for (eLangue const langue : {kLangueAnglais, kLangueAnglaisCanada}) {
        Traductions::MetsLanguePourApplicationCourante(langue);
        QCOMPARE(QString(TraductionGui(message)), anglais);
    }
}

void tst_TraductionGui::troisConversions()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    LocalisateurContextuel const texte = TraductionGui(TexteGui("Enlever «{1}»"));
    QCOMPARE(QString(texte), u"Remove “{1}”"_s);
    QCOMPARE(QString(UniChaine(texte)), u"Remove “{1}”"_s);
    QCOMPARE(std::string(texte), std::string("Remove “{1}”"));
}

void tst_TraductionGui::langueDeLApplication()
{
    QCOMPARE(QString(TraductionGui(TexteGui("Retirer"))), u"Retirer"_s);
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    QCOMPARE(QString(TraductionGui(TexteGui("Retirer"))), u"Remove from list"_s);
}

void tst_TraductionGui::sansEntreeLIdentifiantRevient_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("French") << int(kLangueFrancais);
    QTest::newRow("English") << int(kLangueAnglais);
    QTest::newRow("no language") << int(kLangueInconnue);
    QTest::newRow("a language that does not exist") << 99;
}

void tst_TraductionGui::sansEntreeLIdentifiantRevient()
{
    QFETCH(int, langue);
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    QCOMPARE(QString(TraductionGui(TexteGui("Bientôt à Québec"))), u"Bientôt à Québec"_s);
    QCOMPARE(QString(TraductionGui(TexteGui(""))), QString());
    if (langue != kLangueAnglais)
        QCOMPARE(QString(TraductionGui(TexteGui("Retirer"))), u"Retirer"_s);
    ChaineLocalisable const autreDomaine = {{"Retirer", 7}, {}, {"Autre", 5}};
    QCOMPARE(QString(TraductionGui(autreDomaine)), u"Retirer"_s);
}

void tst_TraductionGui::contexteFaitUneAutreCle()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    QCOMPARE(QString(TraductionGui(TexteGui("Annuler"))), u"Cancel"_s);
    QCOMPARE(QString(TraductionGui(TexteGui("Annuler", "LibFabrel - Bouton de boîte de dialogue"))),
             u"Cancel"_s);
    // "Introuvable" exists only in its context, "Retirer" only without one.
    QCOMPARE(QString(TraductionGui(TexteGui("Introuvable"))), u"Introuvable"_s);
    QVERIFY(QString(TraductionGui(
                TexteGui("Introuvable", "LibFabrel - Alerte dans panneau de recherche"))) !=
            u"Introuvable"_s);
    QCOMPARE(QString(TraductionGui(TexteGui("Retirer", "un contexte"))), u"Retirer"_s);
}

void tst_TraductionGui::arguments()
{
    QCOMPARE(QString(TraductionGuiFormatay(TexteGui("Enlever «{1}»"), {UniChaine("été")})),
             u"Enlever «été»"_s);
    UniChaine const etape = TraductionGuiFormatay(
        TexteGui("Étape {1} de {2}"),
        {UniChaine::DepuisNombre(2, 10, 0, true, false), UniChaine::DepuisNombre(10)});
    QCOMPARE(QString(etape), u"Étape 2 de 10"_s);
}

void tst_TraductionGui::argumentsNeSontPasRelus()
{
    QCOMPARE(QString(TraductionGuiFormatay(TexteGui("Enlever «{1}»"), {UniChaine("{1}{2} 1,5")})),
             u"Enlever «{1}{2} 1,5»"_s);
    QCOMPARE(QString(TraductionGuiFormatay(TexteGui("Enlever «{1}»"), {UniChaine()})),
             u"Enlever «»"_s);
}

void tst_TraductionGui::pluriel_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<quint64>("nombre");
    QTest::addColumn<QString>("texte");
    QTest::newRow("French, none is singular")
        << int(kLangueFrancais) << quint64(0) << u"0 caractère restant"_s;
    QTest::newRow("French, one") << int(kLangueFrancais) << quint64(1) << u"1 caractère restant"_s;
    QTest::newRow("French, two") << int(kLangueFrancais) << quint64(2)
                                 << u"2 caractères restants"_s;
    QTest::newRow("English, none is plural")
        << int(kLangueAnglais) << quint64(0) << u"0 characters remaining"_s;
    QTest::newRow("English, one") << int(kLangueAnglais) << quint64(1)
                                  << u"1 character remaining"_s;
    QTest::newRow("English, beyond 32 bits")
        << int(kLangueAnglais) << quint64(4294967297) << u"4294967297 characters remaining"_s;
    QTest::newRow("Canada, one") << int(kLangueAnglaisCanada) << quint64(1)
                                 << u"1 character remaining"_s;
    QTest::newRow("no catalogue, one")
        << int(kLangueInconnue) << quint64(1) << u"1 caractère restant"_s;
    QTest::newRow("no catalogue, two")
        << int(kLangueInconnue) << quint64(2) << u"2 caractères restants"_s;
}

void tst_TraductionGui::pluriel()
{
    QFETCH(int, langue);
    QFETCH(quint64, nombre);
    Traductions::MetsLanguePourApplicationCourante(static_cast<eLangue>(langue));
    QTEST(QString(TraductionPlurielGuiFormatay(kCaracteresRestants, nombre)), "texte");
}

void tst_TraductionGui::plusieursThreads()
{
    Traductions::MetsLanguePourApplicationCourante(kLangueAnglais);
    std::atomic<int> fautes = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&fautes] {
            for (int tour = 0; tour < 2000; ++tour)
                fautes += QString(TraductionGui(TexteGui("boucler"))) != u"wraparound"_s;
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    QCOMPARE(fautes.load(), 0);
}

QTEST_GUILESS_MAIN(tst_TraductionGui)
#include "tst_TraductionGui.moc"
