// tests/style/tst_InterpreteurChaineSemantiqueTHasard.cpp
#include "style/InterpreteurChaineSemantiqueT.h"

#include "style/CaptureErreurs.h"
#include "style/ModeleInterpreteur.h"

#include <QtTest>

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
using Balise = Interpreteur::Balise;

constexpr quint32 kGraine = 20'240'229;
constexpr int kTextes = 100'000;
constexpr int kMorceauxMax = 24; // pieces of a text

// What the texts are made of: brackets and names by themselves, and whole tags, so that a good part
// of the texts is balanced.
QStringList const & Morceaux()
{
    static QStringList const morceaux = {
        u"<"_s,       u">"_s,        u"/"_s,      u" "_s,          u"b"_s,
        u"i"_s,       u"br/"_s,      u"\""_s,     u"&lt;"_s,       u"&amp;"_s,
        u"&#62;"_s,   u"&"_s,        u"é"_s,      u"\U0001F600"_s, QString(QChar(0xD83D)),
        u"<b>"_s,     u"</b>"_s,     u"<i>"_s,    u"</i>"_s,       u"<br/>"_s,
        u"<b i=\""_s, u"</b i=\""_s, u"<>"_s,     u"</>"_s,        QString(QChar(0xDE00)),
        u"\t"_s,      u"\n"_s,       u"<b\ti>"_s, u"<b\ni=\""_s,
    };
    return morceaux;
}

QString TexteAuHasard(QRandomGenerator & hasard)
{
    QString texte;
    for (int reste = hasard.bounded(kMorceauxMax); reste > 0; --reste)
        texte += Morceaux().at(hasard.bounded(static_cast<int>(Morceaux().size())));
    return texte;
}

// A text whose elements are closed, with pieces of text in between.
QString ElementsAuHasard(QRandomGenerator & hasard, int niveaux)
{
    static QStringList const elements = {
        u"<b>%1</b>"_s,     u"<i>%1</i>"_s,    u"<u>%1</u>"_s,    u"<b i>%1</b>"_s,
        u"<b i>%1</b i>"_s, u"<br/>%1"_s,      u"< i>%1</>"_s,    u"a < %1"_s,
        u"<>%1"_s,          u"<b\ti>%1</b>"_s, u"<b\ni>%1</b>"_s, u"<b\ti>%1</b\ti>"_s};
    QString texte;
    for (int reste = hasard.bounded(4); reste > 0; --reste) {
        QString const dedans = niveaux > 0 ? ElementsAuHasard(hasard, niveaux - 1) : u"&lt;"_s;
        QString element = elements.at(hasard.bounded(static_cast<int>(elements.size())));
        texte += element.replace(u"%1"_s, dedans) + u"x"_s;
    }
    return texte;
}

// What rules were called with, and whether that lay where it had to.
struct Journal
{
    std::vector<std::pair<Balise, Balise>> appels;
    QString faute;
};

QString Extrait(UniChaine const & texte, Balise const & plage)
{
    return QString(texte).mid(plage.first, plage.second);
}

// A rule that sees that its ranges hold the two tags, before it does what the other one does.
RegleTexteRiche Verifie(QString const & cle, Journal & journal, RegleTexteRiche const & regle)
{
    return [cle, &journal, regle](UniChaine * texte, Balise & ouvrante, Balise & fermante) {
        journal.appels.emplace_back(ouvrante, fermante);
        bool const dedans = ouvrante.first + ouvrante.second <= fermante.first &&
                            fermante.first + fermante.second <= texte->Longueur();
        bool const balises = Extrait(*texte, ouvrante) == u'<' + cle + u'>' &&
                             (fermante.second == 0) == cle.endsWith(u'/') &&
                             (fermante.second == 0 || Extrait(*texte, fermante).startsWith(u"</"));
        if (!dedans || (!cle.isEmpty() && !balises))
            journal.faute = cle + u" in "_s + QString(*texte);
        return regle(texte, ouvrante, fermante);
    };
}

RegleTexteRiche Remplace(QString const & ouvrant, QString const & fermant)
{
    return Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(ouvrant, fermant);
}

// Rules that replace tags and do nothing else, which can be run all at once.
EnsembleRegles ReglesSimples()
{
    return {{UniChaine("b"), Remplace(u"<strong>"_s, u"&lt;/strong&gt;"_s)},
            {UniChaine("i"), Remplace({}, {})},
            {UniChaine("b i"), Remplace(u"<i>"_s, u"</i></b>"_s)},
            {UniChaine("b\ti"), Remplace(u"<i>"_s, u"</i>"_s)},
            {UniChaine("br/"), Remplace(u"<br>"_s, {})}};
}

// Rules that make the text longer, shorter, and much shorter, and one for the whole of it.
EnsembleRegles Regles(Journal & journal, bool avecDocument)
{
    RegleTexteRiche const efface = [](UniChaine * texte, Balise & ouvrante, Balise & fermante) {
        int const longueur = static_cast<int>(fermante.first + fermante.second - ouvrante.first);
        texte->Remplace(static_cast<int>(ouvrante.first), longueur, UniChaine("*"));
        return 1;
    };
    EnsembleRegles regles = {
        {UniChaine("b"), Verifie(u"b"_s, journal, Remplace(u"<strong>"_s, u"&lt;/strong&gt;"_s))},
        {UniChaine("i"), Verifie(u"i"_s, journal, Remplace({}, {}))},
        {UniChaine("b i"), Verifie(u"b i"_s, journal, efface)},
        {UniChaine("b\ti"), Verifie(u"b\ti"_s, journal, Remplace(u"<i>"_s, u"</i>"_s))},
        {UniChaine("br/"), Verifie(u"br/"_s, journal, Remplace(u"<br>"_s, {}))},
    };
    if (avecDocument)
        regles[UniChaine()] = Verifie({}, journal, Remplace(u"<p>"_s, {}));
    return regles;
}

} // namespace

class tst_InterpreteurChaineSemantiqueTHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commeLeModele_data();
    void commeLeModele();

private:
    void Compare(QString const & texte, bool avecDocument);

    Journal monAttendu;
    Journal monJournal;
    // Without and with a rule for the whole text.
    EnsembleRegles const mesReglesAttendues[2] = {Regles(monAttendu, false),
                                                  Regles(monAttendu, true)};
    EnsembleRegles const mesRegles[2] = {Regles(monJournal, false), Regles(monJournal, true)};
    EnsembleRegles const mesReglesSimples = ReglesSimples();
    CaptureErreurs * mesErreurs = nullptr;
    int mesReussites = 0; // texts without an exception for which a rule was run
};

void tst_InterpreteurChaineSemantiqueTHasard::commeLeModele_data()
{
    QTest::addColumn<bool>("equilibre");
    QTest::addColumn<int>("textes");
    QTest::newRow("any pieces") << false << kTextes;
    QTest::newRow("balanced elements") << true << kTextes / 5; // longer ones
}

void tst_InterpreteurChaineSemantiqueTHasard::commeLeModele()
{
    QFETCH(bool, equilibre);
    QFETCH(int, textes);
    constexpr int kNiveaux = 2;
    QRandomGenerator hasard(kGraine);
    CaptureErreurs erreurs;
    mesErreurs = &erreurs;
    mesReussites = 0;
    for (int i = 0; i < textes; ++i) {
        QString const texte =
            equilibre ? ElementsAuHasard(hasard, kNiveaux) : TexteAuHasard(hasard);
        Compare(texte, i % 3 == 0);
        if (QTest::currentTestFailed()) {
            qWarning("text %d: %s", i, qUtf8Printable(texte));
            break;
        }
    }
    mesErreurs = nullptr;
    QCOMPARE_GT(mesReussites, textes / 50); // else the texts say little
}

void tst_InterpreteurChaineSemantiqueTHasard::Compare(QString const & texte, bool avecDocument)
{
    monAttendu = {};
    monJournal = {};
    QString resultat;
    QString resultatSimple;
    bool equilibre = true;
    try {
        resultat = ModeleInterpreteur(texte, mesReglesAttendues[avecDocument]).Applique();
        resultatSimple = ModeleInterpreteur(texte, mesReglesSimples).Applique();
    } catch (ModeleInterpreteur::Desequilibre const &) {
        equilibre = false;
    }

    EnsembleRegles const & regles = mesRegles[avecDocument];
    QCOMPARE(Interpreteur::TrouveBalises(texte), ModeleInterpreteur::TrouveBalises(texte));
    QCOMPARE(Interpreteur::PossedeReglesAAppliquer(texte, regles),
             ModeleInterpreteur::PossedeReglesAAppliquer(texte, regles));
    mesErreurs->Oublie();
    if (equilibre) {
        QCOMPARE(QString(Interpreteur::AppliqueRegles(texte, regles)), resultat);
        QCOMPARE(QString(Interpreteur::AppliqueRegles(texte, mesReglesSimples)), resultatSimple);
        QVERIFY(monJournal.appels == monAttendu.appels);
        QCOMPARE(mesErreurs->Texte(), QString());
        mesReussites += monJournal.appels.empty() ? 0 : 1;
    } else {
        QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                                 Interpreteur::AppliqueRegles(texte, regles));
        QCOMPARE(mesErreurs->Texte(), QString::fromStdString(to_string(texte)) + u'\n');
    }
    QCOMPARE(monJournal.faute, QString());
}

QTEST_APPLESS_MAIN(tst_InterpreteurChaineSemantiqueTHasard)
#include "tst_InterpreteurChaineSemantiqueTHasard.moc"
