// tests/galerie/tst_FiltreMots.cpp
#include "FiltreMots.h"

#include <QtTest>

#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

using Criteres = FiltreMots::Criteres;

constexpr int kTours = 400;
constexpr quint32 kGraine = 20261122;

QString const kMots = u"a\nabri\nabrité\ncélèbre\nchâteau\nête\nétés\nnaïf\nreçu\nrefaire\n"
                      "arc-en-ciel\nextraordinaire\nzèbre"_s;

// Everything worked out anew for each word, from its text alone.
QString RepliSimple(QString const & texte)
{
    QString repli;
    for (QChar const c : texte.normalized(QString::NormalizationForm_D))
        if (c.isLetterOrNumber())
            repli += c.toLower();
    return repli;
}

bool TexteConvient(QString const & mot, FiltreMots::Texte const & texte)
{
    QString const repli = RepliSimple(texte.texte);
    switch (texte.mode) {
    case FiltreMots::kCommencePar:
        return mot.startsWith(repli);
    case FiltreMots::kContient:
        return mot.contains(repli);
    case FiltreMots::kFinitPar:
        return mot.endsWith(repli);
    }
    return false;
}

bool LongueurConvient(QString const & mot, int longueur)
{
    auto const lettres =
        std::count_if(mot.cbegin(), mot.cend(), [](QChar c) { return c.isLetter(); });
    switch (longueur) {
    case FiltreMots::kUnACinq:
        return lettres <= 5;
    case FiltreMots::kSixAHuit:
        return lettres >= 6 && lettres <= 8;
    case FiltreMots::kNeufAOnze:
        return lettres >= 9 && lettres <= 11;
    case FiltreMots::kDouzeEtPlus:
        return lettres >= 12;
    default:
        return true;
    }
}

bool AccentConvient(QString const & mot, int accent)
{
    static QRegularExpression const expressions[] = {
        QRegularExpression(u""_s),        QRegularExpression(u"^[a-z-]*$"_s),
        QRegularExpression(u"[^a-z-]"_s), QRegularExpression(u"é"_s),
        QRegularExpression(u"[àèù]"_s),   QRegularExpression(u"[âêîôû]"_s),
        QRegularExpression(u"[ëïü]"_s),   QRegularExpression(u"ç"_s),
    };
    return mot.contains(expressions[accent]);
}

QStringList FiltreSimple(QStringList const & mots, Criteres const & criteres)
{
    QStringList trouves;
    for (QString const & mot : mots) {
        QString const repli = RepliSimple(mot);
        bool const textes =
            std::all_of(criteres.textes.cbegin(), criteres.textes.cend(),
                        [&repli](auto const & texte) { return TexteConvient(repli, texte); });
        if (textes && LongueurConvient(mot, criteres.longueur) &&
            AccentConvient(mot, criteres.accent) &&
            (criteres.initiale == 0 || repli.front().unicode() == u'a' + criteres.initiale - 1))
            trouves.append(mot);
    }
    return trouves;
}

QString TireTexte(QRandomGenerator & hasard, int longueurMax)
{
    static QString const lettres = u"aabbeeézçèsâtëï-"_s;
    QString texte;
    for (int i = hasard.bounded(1, longueurMax + 1); i > 0; --i)
        texte += lettres.at(hasard.bounded(lettres.size()));
    return texte;
}

QStringList TireMots(QRandomGenerator & hasard, int nombre)
{
    QStringList mots;
    while (mots.size() < nombre)
        if (QString const mot = TireTexte(hasard, 15); !RepliSimple(mot).isEmpty())
            mots.append(mot);
    return mots;
}

Criteres TireCriteres(QRandomGenerator & hasard)
{
    auto const tire = [&hasard](int nombre) {
        return hasard.bounded(2) == 0 ? 0 : hasard.bounded(nombre);
    };
    Criteres criteres{tire(5), tire(27), tire(8), {}};
    for (int i = hasard.bounded(3); i > 0; --i)
        criteres.textes.push_back({FiltreMots::eMode(hasard.bounded(3)), TireTexte(hasard, 3)});
    return criteres;
}

// One step of somebody at the keyboard: mostly narrower, at times wider or another.
void Change(QRandomGenerator & hasard, Criteres & criteres)
{
    if (hasard.bounded(6) == 0 || criteres.textes.empty()) {
        criteres = TireCriteres(hasard);
        return;
    }
    auto & texte = criteres.textes.back();
    switch (hasard.bounded(5)) {
    case 0:
        texte.texte.chop(1);
        break;
    case 1:
        texte.mode = FiltreMots::eMode(hasard.bounded(3));
        break;
    case 2:
        texte.texte.prepend(TireTexte(hasard, 1));
        break;
    default:
        texte.texte += TireTexte(hasard, 1);
    }
}

} // namespace

class tst_FiltreMots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filtre_data();
    void filtre();
    void commeUnSimpleParcours();
    void pasAPas();
    void tableVide();
    void tri_data();
    void tri();
    void debut_data();
    void debut();
};

void tst_FiltreMots::filtre_data()
{
    using F = FiltreMots;
    QTest::addColumn<Criteres>("criteres");
    QTest::addColumn<QString>("mots");
    QString const tous = QString(kMots).replace(u'\n', u' ');
    QTest::newRow("no criterion") << Criteres{} << tous;
    QTest::newRow("one to five letters")
        << Criteres{F::kUnACinq, 0, 0, {}} << u"a abri ête étés naïf reçu zèbre"_s;
    QTest::newRow("six to eight") << Criteres{F::kSixAHuit, 0, 0, {}}
                                  << u"abrité célèbre château refaire"_s;
    QTest::newRow("nine to eleven, without hyphens")
        << Criteres{F::kNeufAOnze, 0, 0, {}} << u"arc-en-ciel"_s;
    QTest::newRow("twelve and more") << Criteres{F::kDouzeEtPlus, 0, 0, {}} << u"extraordinaire"_s;
    QTest::newRow("the first letter, whatever its accent")
        << Criteres{0, 5, 0, {}} << u"ête étés extraordinaire"_s;
    QTest::newRow("the last of the alphabet") << Criteres{0, 26, 0, {}} << u"zèbre"_s;
    QTest::newRow("a letter that begins none") << Criteres{0, 24, 0, {}} << QString();
    QTest::newRow("without accents")
        << Criteres{0, 0, F::kSans, {}} << u"a abri refaire arc-en-ciel extraordinaire"_s;
    QTest::newRow("with accents") << Criteres{0, 0, F::kAvec, {}}
                                  << u"abrité célèbre château ête étés naïf reçu zèbre"_s;
    QTest::newRow("acute") << Criteres{0, 0, F::kAigu, {}} << u"abrité célèbre étés"_s;
    QTest::newRow("grave") << Criteres{0, 0, F::kGrave, {}} << u"célèbre zèbre"_s;
    QTest::newRow("circumflex") << Criteres{0, 0, F::kCirconflexe, {}} << u"château ête"_s;
    QTest::newRow("diaeresis") << Criteres{0, 0, F::kTrema, {}} << u"naïf"_s;
    QTest::newRow("cedilla") << Criteres{0, 0, F::kCedille, {}} << u"reçu"_s;
    QTest::newRow("begins as") << Criteres{0, 0, 0, {{F::kCommencePar, u"RÉ"_s}}}
                               << u"reçu refaire"_s;
    QTest::newRow("contains") << Criteres{0, 0, 0, {{F::kContient, u"bre"_s}}}
                              << u"célèbre zèbre"_s;
    QTest::newRow("contains, across hyphens")
        << Criteres{0, 0, 0, {{F::kContient, u"cen"_s}}} << u"arc-en-ciel"_s;
    QTest::newRow("ends as") << Criteres{0, 0, 0, {{F::kFinitPar, u"ire"_s}}}
                             << u"refaire extraordinaire"_s;
    QTest::newRow("longer than any word")
        << Criteres{0, 0, 0, {{F::kContient, QString(40, u'a')}}} << QString();
    QTest::newRow("a whole word") << Criteres{0, 0, 0, {{F::kFinitPar, u"abri"_s}}} << u"abri"_s;
    QTest::newRow("two texts")
        << Criteres{0, 0, 0, {{F::kCommencePar, u"c"_s}, {F::kFinitPar, u"e"_s}}} << u"célèbre"_s;
    QTest::newRow("a text without letters is none")
        << Criteres{0, 0, 0, {{F::kContient, u" -"_s}}} << tous;
    QTest::newRow("a null text is none") << Criteres{0, 0, 0, {{F::kContient, {}}}} << tous;
    QTest::newRow("all of them") << Criteres{F::kSixAHuit, 3, F::kAvec, {{F::kContient, u"b"_s}}}
                                 << u"célèbre"_s;
    QTest::newRow("numbers below all classes") << Criteres{-1, -1, -1, {}} << tous;
    QTest::newRow("numbers above all classes") << Criteres{5, 27, 8, {}} << tous;
}

void tst_FiltreMots::filtre()
{
    QFETCH(Criteres, criteres);
    QFETCH(QString, mots);
    auto const table = std::make_shared<TableMots const>(kMots);
    FiltreMots filtre(table);

    QStringList trouves;
    for (int const indice : filtre.Filtre(criteres))
        trouves.append(table->DonneMot(indice).toString());

    QCOMPARE(trouves.join(u' '), mots);
}

// Each with a filter that has been asked nothing yet.
void tst_FiltreMots::commeUnSimpleParcours()
{
    QRandomGenerator hasard(kGraine);
    QStringList const mots = TireMots(hasard, 300);
    auto const table = std::make_shared<TableMots const>(mots.join(u'\n'));
    int trouves = 0;
    for (int tour = 0; tour < kTours; ++tour) {
        Criteres const criteres = TireCriteres(hasard);
        QStringList resultat;
        FiltreMots filtre(table);
        for (int const indice : filtre.Filtre(criteres))
            resultat.append(table->DonneMot(indice).toString());
        QCOMPARE(resultat, FiltreSimple(mots, criteres));
        trouves += resultat.isEmpty() ? 0 : 1;
    }
    QVERIFY(trouves > kTours / 10); // or it has compared nothing
}

// With one filter that remembers: what it takes from the last result is what it would find anew.
void tst_FiltreMots::pasAPas()
{
    QRandomGenerator hasard(kGraine + 1);
    QStringList const mots = TireMots(hasard, 300);
    auto const table = std::make_shared<TableMots const>(mots.join(u'\n'));
    FiltreMots filtre(table);
    Criteres criteres;
    for (int tour = 0; tour < 10 * kTours; ++tour) {
        Change(hasard, criteres);
        auto const resultat = filtre.Filtre(criteres);
        FiltreMots neuf(table);
        QCOMPARE(resultat, neuf.Filtre(criteres));
        QVERIFY(std::is_sorted(resultat.cbegin(), resultat.cend()));
    }
}

void tst_FiltreMots::tableVide()
{
    FiltreMots filtre(std::make_shared<TableMots const>());

    QVERIFY(filtre.Filtre({}).empty());
    QVERIFY(filtre.Filtre({1, 1, 1, {{FiltreMots::kContient, u"a"_s}}}).empty());
    QVERIFY(filtre.Trie({}, FiltreMots::kCourtsDAbord).empty());
    QCOMPARE(filtre.ChercheDebut({}, u"a"_s), -1);
}

void tst_FiltreMots::tri_data()
{
    QTest::addColumn<FiltreMots::eTri>("tri");
    QTest::addColumn<QString>("mots");
    QTest::newRow("as the list") << FiltreMots::kOrdreDeLaListe << u"ccc a bb aaa b"_s;
    QTest::newRow("short first") << FiltreMots::kCourtsDAbord << u"a b bb ccc aaa"_s;
    QTest::newRow("long first") << FiltreMots::kLongsDAbord << u"ccc aaa bb a b"_s;
}

void tst_FiltreMots::tri()
{
    QFETCH(FiltreMots::eTri, tri);
    QFETCH(QString, mots);
    auto const table = std::make_shared<TableMots const>(u"ccc\na\nbb\naaa\nb"_s);

    QStringList tries;
    for (int const indice : FiltreMots(table).Trie({0, 1, 2, 3, 4}, tri))
        tries.append(table->DonneMot(indice).toString());

    QCOMPARE(tries.join(u' '), mots);
}

void tst_FiltreMots::debut_data()
{
    QTest::addColumn<QString>("debut");
    QTest::addColumn<int>("place");
    QTest::newRow("the first of several") << u"ab"_s << 1;
    QTest::newRow("accents do not count") << u"ETE"_s << 2;
    QTest::newRow("none") << u"x"_s << -1;
    QTest::newRow("not among the indexes") << u"célèbre"_s << -1;
    QTest::newRow("no letter") << u"-"_s << -1;
    QTest::newRow("null") << QString() << -1;
}

void tst_FiltreMots::debut()
{
    QFETCH(QString, debut);
    QFETCH(int, place);
    FiltreMots const filtre(std::make_shared<TableMots const>(kMots));

    QCOMPARE(filtre.ChercheDebut({12, 1, 6, 2}, debut), place);
}

QTEST_GUILESS_MAIN(tst_FiltreMots)
#include "tst_FiltreMots.moc"
