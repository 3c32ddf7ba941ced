// tests/noyau/tst_UniChaine.cpp
#include "noyau/UniChaine.h"

#include <boost/locale/format.hpp>

#include <QtTest>

#include <map>
#include <sstream>
#include <thread>
#include <unordered_set>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t kHaut = 0xD83D; // the two halves of U+1F600
constexpr char16_t kBas = 0xDE00;

QString Unites(std::initializer_list<char16_t> unites)
{
    QString texte;
    for (char16_t const unite : unites)
        texte.append(QChar(unite));
    return texte;
}

} // namespace

class tst_UniChaine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void vide();
    void construitDepuisUtf8_data();
    void construitDepuisUtf8();
    void utf8Malformay_data();
    void utf8Malformay();
    void construitDepuisStdString();
    void construitDepuisLarge_data();
    void construitDepuisLarge();
    void constructionStatique();
    void caractereLargeHorsUnicode();
    void sansPerte_data();
    void sansPerte();
    void utf8Sortant_data();
    void utf8Sortant();
    void copieEtDeplacement();
    void longueurEnUnites();
    void uniteParIndice();
    void comparaison_data();
    void comparaison();
    void cleDeMap();
    void hachage();
    void pretsStables();
    void pretsRenouveles_data();
    void pretsRenouveles();
    void pretsGardesSansChangement_data();
    void pretsGardesSansChangement();
    void pretsDUneCopie();
    void pretsEntreFils();
    void tamponDeLAppelant_data();
    void tamponDeLAppelant();
    void flux();
};

void tst_UniChaine::vide()
{
    QCOMPARE(UniChaine().Longueur(), 0U);
    QVERIFY(UniChaine().EstVide());
    QVERIFY(UniChaine(QString()).EstVide());
    QVERIFY(UniChaine(u""_s).EstVide());
    QVERIFY(UniChaine(QString()) == UniChaine(u""_s));
    QVERIFY(UniChaine(static_cast<char const *>(nullptr)).EstVide());
    QVERIFY(UniChaine(static_cast<wchar_t const *>(nullptr)).EstVide());
    QVERIFY(kUniChaineNulle.EstVide());
    QVERIFY(kUniChaineNulle == UniChaine());

    UniChaine chaine("texte");
    QCOMPARE(&chaine.Vide(), &chaine);
    QVERIFY(chaine.EstVide());
}

void tst_UniChaine::construitDepuisUtf8_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::addColumn<int>("longueur");
    QTest::addColumn<QString>("texte");
    QTest::newRow("-1 reads up to the NUL") << "abc"_ba << -1 << u"abc"_s;
    QTest::newRow("two-byte character") << "d\xC3\xA9j\xC3\xA0"_ba << -1 << u"déjà"_s;
    QTest::newRow("four-byte character is two units")
        << "\xF0\x9F\x98\x80"_ba << -1 << Unites({kHaut, kBas});
    QTest::newRow("length 0 reads nothing") << "abc"_ba << 0 << QString();
    QTest::newRow("U+FEFF at the start is a unit") << "\xEF\xBB\xBF\xEF\xBB\xBF"
                                                      "a"_ba
                                                   << -1 << Unites({0xFEFF, 0xFEFF, u'a'});
    QTest::newRow("length counts bytes") << "\xC3\xA9t\xC3\xA9"_ba << 3 << u"ét"_s;
    QTest::newRow("NUL within the length is a unit")
        << QByteArray("a\0b", 3) << 3 << Unites({u'a', 0, u'b'});
    QTest::newRow("NUL ends the text without a length") << QByteArray("a\0b", 3) << -1 << u"a"_s;
}

void tst_UniChaine::construitDepuisUtf8()
{
    QFETCH(QByteArray, octets);
    QFETCH(int, longueur);
    QFETCH(QString, texte);
    QCOMPARE(QString(UniChaine(octets.constData(), UniChaine::kUTF8, longueur)), texte);
}

void tst_UniChaine::utf8Malformay_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("first byte of a character alone") << "\xC3"_ba;
    QTest::newRow("continuation byte alone") << "\x80"_ba;
    QTest::newRow("byte that begins nothing") << "\xFF"_ba;
    QTest::newRow("overlong solidus") << "\xC0\xAF"_ba;
    QTest::newRow("half of a surrogate pair") << "\xED\xA0\x80"_ba;
    QTest::newRow("above the last character") << "\xF4\x90\x80\x80"_ba;
    QTest::newRow("three-byte character cut") << "\xE2\x82"_ba;
}

void tst_UniChaine::utf8Malformay()
{
    QFETCH(QByteArray, octets);
    QString const texte = UniChaine(std::string("a") + octets.toStdString() + "z");
    QVERIFY(texte.startsWith(u'a'));
    QVERIFY(texte.endsWith(u'z'));
    QString const milieu = texte.mid(1, texte.size() - 2);
    QVERIFY(!milieu.isEmpty());
    QCOMPARE(milieu, QString(milieu.size(), QChar::ReplacementCharacter));
    QVERIFY(QString(UniChaine(octets.constData())).startsWith(QChar::ReplacementCharacter));
}

void tst_UniChaine::construitDepuisStdString()
{
    QCOMPARE(QString(UniChaine(std::string("d\xC3\xA9j\xC3\xA0"), UniChaine::kUTF8)), u"déjà"_s);
    QCOMPARE(UniChaine(std::string("a\0b", 3)).Longueur(), 3U);
    QVERIFY(UniChaine(std::string()).EstVide());
    UniChaine const marquee(Unites({0xFEFF, u'a'}));
    QCOMPARE(QString(UniChaine(to_string(marquee))), QString(marquee));
}

void tst_UniChaine::construitDepuisLarge_data()
{
    QTest::addColumn<int>("longueur");
    QTest::addColumn<QString>("texte");
    QTest::newRow("-1 reads up to the NUL") << -1 << u"été"_s;
    QTest::newRow("length 0 reads nothing") << 0 << QString();
    QTest::newRow("length cuts the text") << 2 << u"ét"_s;
    QTest::newRow("NUL within the length is a unit") << 5 << Unites({0xE9, u't', 0xE9, 0, u'x'});
}

void tst_UniChaine::construitDepuisLarge()
{
    QFETCH(int, longueur);
    QFETCH(QString, texte);
    wchar_t const large[] = L"été\0x";
    QCOMPARE(QString(UniChaine(large, longueur)), texte);
    QCOMPARE(QString(UniChaine(large, longueur, UniChaine::TagStatique())), texte);
}

void tst_UniChaine::constructionStatique()
{
    static wchar_t const texte[] = L"statique";
    UniChaine chaine(texte, -1, UniChaine::TagStatique());
    UniChaine const copie = chaine;
    chaine += L'!';
    QCOMPARE(QString(chaine), u"statique!"_s);
    QCOMPARE(QString(copie), u"statique"_s);
    QCOMPARE(std::wstring(copie.PreteUniCString()), std::wstring(texte));
    QVERIFY(UniChaine(nullptr, -1, UniChaine::TagStatique()).EstVide());
}

void tst_UniChaine::caractereLargeHorsUnicode()
{
    if constexpr (sizeof(wchar_t) == sizeof(char16_t))
        QSKIP("wide characters are units here");
    wchar_t const large[] = {static_cast<wchar_t>(0x110000), static_cast<wchar_t>(0x1F600), 0};
    QCOMPARE(QString(UniChaine(large)), Unites({QChar::ReplacementCharacter, kHaut, kBas}));
}

void tst_UniChaine::sansPerte_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << QString();
    QTest::newRow("accents") << u"Œuvre d’été"_s;
    QTest::newRow("surrogate pair") << Unites({kHaut, kBas});
    QTest::newRow("first half alone") << Unites({u'a', kHaut, u'b'});
    QTest::newRow("second half alone") << Unites({u'a', kBas, u'b'});
    QTest::newRow("halves in the wrong order") << Unites({kBas, kHaut});
    QTest::newRow("first half at the end") << Unites({u'a', kHaut});
    QTest::newRow("embedded NUL") << Unites({u'a', 0, u'b'});
    QTest::newRow("non-characters") << Unites({0xFFFE, 0xFFFF, 0xFEFF});
}

void tst_UniChaine::sansPerte()
{
    QFETCH(QString, texte);
    UniChaine const chaine(texte);
    QCOMPARE(QString(chaine), texte);
    UniChaine affectee("autre");
    affectee = texte;
    QCOMPARE(QString(affectee), texte);

    unsigned longueur = 0;
    wchar_t const * const large = chaine.PreteUniCString(0, nullptr, &longueur, true);
    QCOMPARE(large[longueur], L'\0');
    QCOMPARE(QString(UniChaine(large, static_cast<int>(longueur))), texte);
}

void tst_UniChaine::utf8Sortant_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("empty") << QString() << ""_ba;
    QTest::newRow("accents") << u"été"_s << "\xC3\xA9t\xC3\xA9"_ba;
    QTest::newRow("surrogate pair") << Unites({kHaut, kBas}) << "\xF0\x9F\x98\x80"_ba;
    QTest::newRow("first half alone becomes U+FFFD") << Unites({u'a', kHaut, u'b'})
                                                     << "a\xEF\xBF\xBD"
                                                        "b"_ba;
    QTest::newRow("second half alone becomes U+FFFD") << Unites({u'a', kBas}) << "a\xEF\xBF\xBD"_ba;
    QTest::newRow("first half before a pair")
        << Unites({kHaut, kHaut, kBas}) << "\xEF\xBF\xBD\xF0\x9F\x98\x80"_ba;
    QTest::newRow("embedded NUL") << Unites({u'a', 0, u'b'}) << QByteArray("a\0b", 3);
}

void tst_UniChaine::utf8Sortant()
{
    QFETCH(QString, texte);
    QFETCH(QByteArray, octets);
    UniChaine const chaine(texte);
    QCOMPARE(QByteArray::fromStdString(to_string(chaine)), octets);
    QCOMPARE(QByteArray(chaine.PreteUTF8(), octets.size()), octets);
    QCOMPARE(chaine.PreteUTF8()[octets.size()], '\0');
}

void tst_UniChaine::copieEtDeplacement()
{
    UniChaine original("original");
    original.PreteUTF8();
    UniChaine copie(original);
    copie += UniChaine(" bis");
    QCOMPARE(QString(original), u"original"_s);
    QCOMPARE(QString(copie), u"original bis"_s);

    UniChaine deplacee(std::move(copie));
    QCOMPARE(QString(deplacee), u"original bis"_s);
    QVERIFY(copie.EstVide()); // NOLINT(bugprone-use-after-move): a moved string is empty
    copie = std::move(deplacee);
    QCOMPARE(QString(copie), u"original bis"_s);
    copie = original;
    original.Vide();
    QCOMPARE(QString(copie), u"original"_s);
    UniChaine const & alias = copie;
    copie = alias;
    QCOMPARE(QString(copie), u"original"_s);
}

void tst_UniChaine::longueurEnUnites()
{
    QCOMPARE(UniChaine("été").Longueur(), 3U);
    QCOMPARE(UniChaine(Unites({kHaut, kBas})).Longueur(), 2U);
    QCOMPARE(UniChaine(L"\U0001F600").Longueur(), 2U);
    QVERIFY(!UniChaine(" ").EstVide());
}

void tst_UniChaine::uniteParIndice()
{
    UniChaine const chaine(Unites({u'a', kHaut, kBas}));
    QCOMPARE(chaine[0], L'a');
    QCOMPARE(static_cast<char16_t>(chaine[1]), kHaut);
    QCOMPARE(static_cast<char16_t>(chaine[2]), kBas);
    QCOMPARE(chaine[3], L'\0');
    QCOMPARE(chaine[0xFFFFFFFFU], L'\0');
    QCOMPARE(UniChaine()[0], L'\0');
}

void tst_UniChaine::comparaison_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("ordre"); // the sign of a - b
    QTest::newRow("equal") << u"abc"_s << u"abc"_s << 0;
    QTest::newRow("both empty") << QString() << u""_s << 0;
    QTest::newRow("prefix comes first") << u"ab"_s << u"abc"_s << -1;
    QTest::newRow("capitals come first") << u"Z"_s << u"a"_s << -1;
    QTest::newRow("accents come behind z") << u"é"_s << u"z"_s << 1;
    QTest::newRow("no normalization") << u"é"_s << u"e\u0301"_s << 1;
    QTest::newRow("units, not characters") << Unites({kHaut, kBas}) << Unites({0xFFFD}) << -1;
    QTest::newRow("text behind a NUL counts") << Unites({0, u'a'}) << Unites({0, u'b'}) << -1;
}

void tst_UniChaine::comparaison()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, ordre);
    UniChaine const gauche(a);
    UniChaine const droite(b);
    QCOMPARE(gauche < droite, ordre < 0);
    QCOMPARE(droite<gauche, ordre> 0);
    QCOMPARE(gauche == droite, ordre == 0);
    QCOMPARE(gauche != droite, ordre != 0);
    QCOMPARE(gauche.Egal(droite), ordre == 0);
    QCOMPARE(gauche == b, ordre == 0);
}

void tst_UniChaine::cleDeMap()
{
    std::map<UniChaine, int> valeurs;
    valeurs[UniChaine("deux")] = 2;
    valeurs[UniChaine("un")] = 1;
    valeurs[UniChaine()] = 0;
    valeurs[UniChaine("un")] = 10;
    QCOMPARE(valeurs.size(), std::size_t(3));
    QCOMPARE(valeurs.at(UniChaine(L"un")), 10);
    QCOMPARE(valeurs.at(kUniChaineNulle), 0);
    QCOMPARE(valeurs.count(UniChaine("UN")), std::size_t(0));
}

void tst_UniChaine::hachage()
{
    UniChaine const a(L"été");
    UniChaine const b("été");
    QCOMPARE(a.hash(), b.hash());
    QCOMPARE(UniChaine().hash(), UniChaine(u""_s).hash());
    QVERIFY(a.hash() != UniChaine("ete").hash());

    std::unordered_set<UniChaine> const ensemble{a, b, UniChaine("ete")};
    QCOMPARE(ensemble.size(), std::size_t(2));
    QSet<UniChaine> const ensembleQt{a, b, UniChaine("ete")};
    QCOMPARE(ensembleQt.size(), 2);
}

void tst_UniChaine::pretsStables()
{
    UniChaine const chaine("été");
    char const * const utf8 = chaine.PreteUTF8();
    wchar_t const * const large = chaine.PreteUniCString(0, nullptr, nullptr, false);
    QCOMPARE(QByteArray(utf8), "\xC3\xA9t\xC3\xA9"_ba);
    QCOMPARE(std::wstring(large), std::wstring(L"été"));

    UniChaine const copie = chaine;
    QVERIFY(chaine.Contient(UniChaine("t")));
    QCOMPARE(chaine.PreteUTF8(), utf8);
    QCOMPARE(chaine.PreteUniCString(), large);
    QCOMPARE(chaine.PreteUniCString(0, nullptr, nullptr, true), large);
}

void tst_UniChaine::pretsRenouveles_data()
{
    using Changement = std::function<void(UniChaine &)>;
    QTest::addColumn<Changement>("changement");
    auto const ligne = [](char const * nom, Changement const & changement) {
        QTest::newRow(nom) << changement;
    };
    ligne("assignment", [](UniChaine & c) { c = UniChaine("autre"); });
    ligne("move assignment", [](UniChaine & c) { c = std::move(UniChaine("bis").AjouteFin(c)); });
    ligne("assignment of a QString", [](UniChaine & c) { c = u"autre"_s; });
    ligne("append", [](UniChaine & c) { c += UniChaine("x"); });
    ligne("append a unit", [](UniChaine & c) { c.AjouteFin(L'x'); });
    ligne("prepend", [](UniChaine & c) { c.AjouteDebut(UniChaine("x")); });
    ligne("chop", [](UniChaine & c) { c.EnleveFin(1); });
    ligne("replace all", [](UniChaine & c) { c.Remplace(UniChaine("a"), UniChaine("b")); });
    ligne("replace a stretch", [](UniChaine & c) { c.Remplace(0, 1, UniChaine("b")); });
    ligne("replace a unit", [](UniChaine & c) { c.Remplace(L'a', L'b'); });
    ligne("trim", [](UniChaine & c) { c.NettoieBlancs(); });
    ligne("collapse", [](UniChaine & c) { c.ConsolideBlancs(); });
    ligne("upper case", [](UniChaine & c) { c.Majusculise(); });
    ligne("remove markup", [](UniChaine & c) { c.NettoieHTML(); });
    ligne("decode entities", [](UniChaine & c) { c.DecodeCaracteresReservesHTML(); });
    ligne("format", [](UniChaine & c) { c.Format(UniChaine("%d"), 3); });
    ligne("clear", [](UniChaine & c) { c.Vide(); });
}

void tst_UniChaine::pretsRenouveles()
{
    using Changement = std::function<void(UniChaine &)>;
    QFETCH(Changement, changement);
    UniChaine chaine(" <b>a  &amp; b</b> ");
    chaine.PreteUTF8();
    chaine.PreteUniCString();
    QString const avant = chaine;

    changement(chaine);

    QVERIFY(QString(chaine) != avant);
    QCOMPARE(QString::fromUtf8(chaine.PreteUTF8()), QString(chaine));
    QCOMPARE(QString::fromWCharArray(chaine.PreteUniCString()), QString(chaine));
}

void tst_UniChaine::pretsGardesSansChangement_data()
{
    using Operation = std::function<void(UniChaine &)>;
    QTest::addColumn<Operation>("operation");
    auto const ligne = [](char const * nom, Operation const & operation) {
        QTest::newRow(nom) << operation;
    };
    ligne("assignment to itself", [](UniChaine & c) { c = *&c; });
    ligne("assignment of the same text", [](UniChaine & c) { c = QString(c); });
    ligne("append nothing", [](UniChaine & c) { c += UniChaine(); });
    ligne("prepend nothing", [](UniChaine & c) { c.AjouteDebut(UniChaine()); });
    ligne("chop nothing", [](UniChaine & c) { c.EnleveFin(0); });
    ligne("replace what is absent", [](UniChaine & c) { c.Remplace("absent", "x"); });
    ligne("replace an absent unit", [](UniChaine & c) { c.Remplace(L'z', L'x'); });
    ligne("replace an empty stretch", [](UniChaine & c) { c.Remplace(1, 0, UniChaine()); });
    ligne("trim what has no blanks", [](UniChaine & c) { c.NettoieBlancs(); });
    ligne("collapse single blanks", [](UniChaine & c) { c.ConsolideBlancs(); });
    ligne("upper case of capitals", [](UniChaine & c) { c.Majusculise(); });
    ligne("remove absent markup", [](UniChaine & c) { c.NettoieHTML(); });
    ligne("decode absent entities", [](UniChaine & c) { c.DecodeCaracteresReservesHTML(); });
}

void tst_UniChaine::pretsGardesSansChangement()
{
    using Operation = std::function<void(UniChaine &)>;
    QFETCH(Operation, operation);
    UniChaine chaine("UN ÉTÉ");
    char const * const utf8 = chaine.PreteUTF8();
    wchar_t const * const large = chaine.PreteUniCString();

    operation(chaine);

    QCOMPARE(chaine.PreteUTF8(), utf8);
    QCOMPARE(chaine.PreteUniCString(), large);
    QCOMPARE(QString::fromUtf8(utf8), u"UN ÉTÉ"_s);
}

void tst_UniChaine::pretsDUneCopie()
{
    UniChaine original("été");
    original.PreteUTF8();
    original.PreteUniCString();
    UniChaine const copie = original;
    char const * const utf8 = copie.PreteUTF8();
    wchar_t const * const large = copie.PreteUniCString();

    original = UniChaine("hiver");

    QCOMPARE(QByteArray(utf8), "\xC3\xA9t\xC3\xA9"_ba);
    QCOMPARE(std::wstring(large), std::wstring(L"été"));
}

void tst_UniChaine::pretsEntreFils()
{
    constexpr std::size_t kFils = 4;
    constexpr int kTours = 500;
    for (int tour = 0; tour < kTours; ++tour) {
        UniChaine const chaine(u"emprunté par plusieurs fils"_s);
        std::array<char const *, kFils> utf8 = {};
        std::array<wchar_t const *, kFils> larges = {};
        std::vector<std::thread> fils;
        for (std::size_t i = 0; i < kFils; ++i) {
            fils.emplace_back([&chaine, &utf8, &larges, i] {
                utf8[i] = chaine.PreteUTF8();
                larges[i] = chaine.PreteUniCString();
            });
        }
        for (std::thread & filFini : fils)
            filFini.join();
        for (std::size_t i = 0; i < kFils; ++i) {
            QCOMPARE(utf8[i], chaine.PreteUTF8());
            QCOMPARE(larges[i], chaine.PreteUniCString());
        }
        QCOMPARE(QString::fromUtf8(utf8[0]), QString(chaine));
    }
}

void tst_UniChaine::tamponDeLAppelant_data()
{
    QTest::addColumn<unsigned>("capacite");
    QTest::addColumn<QString>("texte");
    QTest::newRow("room for the NUL only") << 1U << QString();
    QTest::newRow("cut to fit") << 3U << u"ab"_s;
    QTest::newRow("exactly enough") << 5U << u"abcd"_s;
    QTest::newRow("more than enough") << 8U << u"abcd"_s;
}

void tst_UniChaine::tamponDeLAppelant()
{
    QFETCH(unsigned, capacite);
    QFETCH(QString, texte);
    std::array<wchar_t, 8> tampon;
    tampon.fill(L'#');
    unsigned longueur = 99;
    UniChaine const chaine("abcd");
    QCOMPARE(chaine.PreteUniCString(capacite, tampon.data(), &longueur, true), tampon.data());
    QCOMPARE(longueur, static_cast<unsigned>(texte.size()));
    QCOMPARE(QString::fromWCharArray(tampon.data()), texte);
    for (std::size_t i = capacite; i < tampon.size(); ++i)
        QCOMPARE(tampon[i], L'#');
}

void tst_UniChaine::flux()
{
    std::ostringstream sortie;
    sortie << UniChaine("été") << UniChaine();
    QCOMPARE(sortie.str(), std::string("\xC3\xA9t\xC3\xA9"));

    std::string const modele = "{2} puis {1}";
    std::string const texte = (boost::locale::format(modele) % UniChaine("à") % UniChaine("b"))
                                  .str(std::locale::classic());
    QCOMPARE(texte, std::string("b puis \xC3\xA0"));
}

QTEST_GUILESS_MAIN(tst_UniChaine)
#include "tst_UniChaine.moc"
