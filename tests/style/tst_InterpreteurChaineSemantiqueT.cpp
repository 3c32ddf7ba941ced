// tests/style/tst_InterpreteurChaineSemantiqueT.cpp
#include "style/InterpreteurChaineSemantiqueT.h"

#include "style/CaptureErreurs.h"
#include "style/DStyleProxy.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Interpreteur = InterpreteurChaineSemantiqueT<UniChaine>;
using Balise = Interpreteur::Balise;

// What a rule was called with.
struct Appel
{
    QString cle;
    QString texte;
    Balise ouvrante;
    Balise fermante;

    bool operator==(Appel const &) const = default;
};
using Appels = std::vector<Appel>;

RegleTexteRiche Remplace(QString const & ouvrant, QString const & fermant)
{
    return Interpreteur::CreeFonctionRemplacerBalisesAvecTexte(ouvrant, fermant);
}

// Notes its calls and changes nothing.
RegleTexteRiche Note(QString const & cle, Appels & appels)
{
    return [cle, &appels](UniChaine * texte, Balise & ouvrante, Balise & fermante) {
        appels.push_back({cle, *texte, ouvrante, fermante});
        return static_cast<int>(fermante.first + fermante.second - ouvrante.first);
    };
}

// Notes its calls and then does what the rule does.
RegleTexteRiche NoteEtFais(QString const & cle, Appels & appels, RegleTexteRiche const & regle)
{
    return [cle, &appels, regle](UniChaine * texte, Balise & ouvrante, Balise & fermante) {
        appels.push_back({cle, *texte, ouvrante, fermante});
        return regle(texte, ouvrante, fermante);
    };
}

// One rule that makes the text longer, one that makes it shorter, and two that keep a tag.
EnsembleRegles Regles()
{
    return {
        {UniChaine("b"), Remplace(u"<strong>"_s, u"</strong>"_s)},
        {UniChaine("i"), Remplace({}, {})},
        {UniChaine("br/"), Remplace(u"<br>"_s, {})},
        {UniChaine("span class=\"x\""), Remplace(u"<span style=\"color:red\">"_s, u"</span>"_s)},
    };
}

QString Ecrit(std::vector<Balise> const & balises)
{
    QStringList textes;
    for (auto const & [position, longueur] : balises)
        textes.append(u"%1+%2"_s.arg(position).arg(longueur));
    return textes.join(u' ');
}

} // namespace

class tst_InterpreteurChaineSemantiqueT : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trouveBalises_data();
    void trouveBalises();
    void possedeRegles_data();
    void possedeRegles();
    void applique_data();
    void applique();
    void desequilibre_data();
    void desequilibre();
    void desequilibreApresUneRegle();
    void interieurAvantExterieur();
    void plagesApresUneRegleQuiAllonge();
    void plagesApresUneRegleQuiRaccourcit();
    void elementVideSansFermante();
    void decalageDApresLeResultat();
    void elementVideDecaleLesSuivants();
    void regleDuDocumentDAbord();
    void regleDuDocumentDecaleLesSuivants();
    void regleDuDocumentEntoure();
    void regleDuDocumentSurTexteVide();
    void entitesEnDernier();
    void remplaceLesDeuxBalises();
    void remplaceSansFermante();
    void fonctionVide();
    void reglesDeBase();
    void imbricationProfonde();
    void grandTexte_data();
    void grandTexte();
};

void tst_InterpreteurChaineSemantiqueT::trouveBalises_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("balises");
    QTest::newRow("empty text") << QString() << QString();
    QTest::newRow("no bracket") << u"texte"_s << QString();
    QTest::newRow("lone opening bracket") << u"a < b"_s << QString();
    QTest::newRow("opening bracket at the end") << u"abc<"_s << QString();
    QTest::newRow("opening bracket only") << u"<"_s << QString();
    QTest::newRow("closing bracket only") << u">"_s << QString();
    QTest::newRow("closing bracket before") << u"a > b <i>"_s << u"6+3"_s;
    QTest::newRow("tag that does not end") << u"<b"_s << QString();
    QTest::newRow("the whole text") << u"<b>"_s << u"0+3"_s;
    QTest::newRow("neighbours") << u"<b></b>"_s << u"0+3 3+4"_s;
    QTest::newRow("lone bracket before a tag") << u"a < b <i>c</i>"_s << u"6+3 10+4"_s;
    QTest::newRow("two opening brackets") << u"<<b>"_s << u"1+3"_s;
    QTest::newRow("the last of three opening brackets") << u"<a<b<c>"_s << u"4+3"_s;
    QTest::newRow("two closing brackets") << u"<b>>"_s << u"0+3"_s;
    QTest::newRow("opening bracket after the last tag") << u"<b><"_s << u"0+3"_s;
    QTest::newRow("open tag after the last tag") << u"<b>x<i"_s << u"0+3"_s;
    QTest::newRow("the first closing bracket ends") << u"<p a=\">\">"_s << u"0+7"_s;
    QTest::newRow("blank tag") << u"x< >"_s << u"1+3"_s;
    QTest::newRow("line feed inside") << u"<b\n>"_s << u"0+4"_s;
    QTest::newRow("empty tag is text") << u"<>"_s << QString();
    QTest::newRow("tag after the empty tag") << u"<><b>"_s << u"2+3"_s;
    QTest::newRow("bare closing tag") << u"</>"_s << u"0+3"_s;
    QTest::newRow("entities") << u"&lt;b&gt;"_s << QString();
    QTest::newRow("units of 16 bits") << u"\U0001F600<b>"_s << u"2+3"_s;
}

void tst_InterpreteurChaineSemantiqueT::trouveBalises()
{
    QFETCH(QString, texte);
    QTEST(Ecrit(Interpreteur::TrouveBalises(texte)), "balises");
}

void tst_InterpreteurChaineSemantiqueT::possedeRegles_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("cle");
    QTest::addColumn<bool>("possede");
    QTest::newRow("empty text") << QString() << u"b"_s << false;
    QTest::newRow("element with a rule") << u"<b>x</b>"_s << u"b"_s << true;
    QTest::newRow("element without a rule") << u"<b>x</b>"_s << u"i"_s << false;
    QTest::newRow("unknown tag alone") << u"<z>"_s << u"b"_s << false;
    QTest::newRow("among unknown tags") << u"<z><b>x</b></z>"_s << u"b"_s << true;
    QTest::newRow("tag that is not closed") << u"x<b>"_s << u"b"_s << true;
    QTest::newRow("closing tag") << u"x</b>"_s << u"b"_s << false;
    QTest::newRow("closing tag as the key") << u"x</b>"_s << u"/b"_s << false;
    QTest::newRow("empty element") << u"<br/>"_s << u"br/"_s << true;
    QTest::newRow("empty element, key without slash") << u"<br/>"_s << u"br"_s << false;
    QTest::newRow("attributes belong to the key") << u"<p a=\"1\">"_s << u"p a=\"1\""_s << true;
    QTest::newRow("name of the key only") << u"<p a=\"1\">"_s << u"p"_s << false;
    QTest::newRow("case counts") << u"<B>x</B>"_s << u"b"_s << false;
    QTest::newRow("rule of the document") << u"<b>x</b>"_s << QString() << false;
    QTest::newRow("rule of the document, empty tag") << u"<>"_s << QString() << false;
}

void tst_InterpreteurChaineSemantiqueT::possedeRegles()
{
    QFETCH(QString, texte);
    QFETCH(QString, cle);
    EnsembleRegles const regles = {{UniChaine(cle), Remplace({}, {})}};
    QTEST(Interpreteur::PossedeReglesAAppliquer(texte, regles), "possede");
    QVERIFY(!Interpreteur::PossedeReglesAAppliquer(texte, {}));
}

void tst_InterpreteurChaineSemantiqueT::applique_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("resultat");
    auto const ligne = [](char const * nom, QString const & texte, QString const & resultat) {
        QTest::newRow(nom) << texte << resultat;
    };
    auto const intact = [&ligne](char const * nom, QString const & texte) {
        ligne(nom, texte, texte);
    };
    intact("empty text", {});
    intact("no tag", u"a > b < c"_s);
    intact("element without a rule", u"<u>x</u>"_s);
    intact("empty element without a rule", u"x<hr/>y"_s);
    intact("attributes without a rule, short closing tag", u"<p a=\"1\">x</p>"_s);
    intact("closing tag at the top", u"</x>a<b>b</b>"_s);
    intact("nothing is unbalanced behind a closing tag at the top", u"</x><b>"_s);
    intact("blank name, bare closing tag", u"< b>x</>"_s);
    intact("prefix that ends in a blank", u"<p  a>x</p >"_s);
    intact("empty tag", u"<>"_s);
    ligne("longer", u"a<b>x</b>c"_s, u"a<strong>x</strong>c"_s);
    ligne("shorter", u"a<i>x</i>c"_s, u"axc"_s);
    ligne("nothing inside", u"<b></b>"_s, u"<strong></strong>"_s);
    ligne("empty element", u"a<br/>b"_s, u"a<br>b"_s);
    ligne("neighbours", u"<i>1</i><b>2</b><br/><i>3</i><b>4</b>"_s,
          u"1<strong>2</strong><br>3<strong>4</strong>"_s);
    ligne("shorter inside longer", u"<b>1<i>2</i>3</b>4"_s, u"<strong>123</strong>4"_s);
    ligne("longer inside shorter", u"<i>1<b>2</b>3</i><b>4</b>"_s,
          u"1<strong>2</strong>3<strong>4</strong>"_s);
    ligne("several inside", u"<b><i>1</i><br/><i>2</i></b><i>3</i>"_s,
          u"<strong>1<br>2</strong>3"_s);
    ligne("inside its like", u"<b>1<b>2</b>3</b>"_s, u"<strong>1<strong>2</strong>3</strong>"_s);
    ligne("unknown around", u"<u>1<b>2</b></u><i>3</i>"_s, u"<u>1<strong>2</strong></u>3"_s);
    ligne("unknown inside", u"<b>1<u>2</u><hr/></b><i>3</i>"_s,
          u"<strong>1<u>2</u><hr/></strong>3"_s);
    ligne("attributes, short closing tag", u"<span class=\"x\">1</span><i>2</i>"_s,
          u"<span style=\"color:red\">1</span>2"_s);
    ligne("attributes, full closing tag", u"<span class=\"x\">1</span class=\"x\"><i>2</i>"_s,
          u"<span style=\"color:red\">1</span>2"_s);
    ligne("attributes behind a tab", u"<span\tclass=\"x\">1</span><i>2</i>"_s,
          u"<span\tclass=\"x\">1</span>2"_s);
    ligne("attributes behind a line feed", u"<span\nclass=\"x\">1</span><i>2</i>"_s,
          u"<span\nclass=\"x\">1</span>2"_s);
    ligne("other attributes have no rule", u"<span class=\"y\">1</span><i>2</i>"_s,
          u"<span class=\"y\">1</span>2"_s);
    ligne("up to a closing tag at the top", u"<i>1</i></x><i>2</i>"_s, u"1</x><i>2</i>"_s);
    ligne("lone bracket before", u"a < b <i>c</i>"_s, u"a < b c"_s);
    ligne("empty tag before", u"<><b>x</b>"_s, u"<><strong>x</strong>"_s);
    ligne("empty tag inside", u"<b><>x<></b><i>y</i>"_s, u"<strong><>x<></strong>y"_s);
    ligne("entities", u"&lt;i&gt;&amp;&quot;&apos;"_s, u"<i>&\"'"_s);
    ligne("entities once", u"<i>&amp;lt;</i>"_s, u"&lt;"_s);
    ligne("entities behind a closing tag at the top", u"</x>&lt;"_s, u"</x><"_s);
    ligne("other characters", u"\U0001F600<i>é</i>\U0001F600<b>ß</b>"_s,
          u"\U0001F600é\U0001F600<strong>ß</strong>"_s);
}

void tst_InterpreteurChaineSemantiqueT::applique()
{
    QFETCH(QString, texte);
    CaptureErreurs const erreurs;
    QTEST(QString(Interpreteur::AppliqueRegles(texte, Regles())), "resultat");
    QCOMPARE(erreurs.Texte(), QString());
}

void tst_InterpreteurChaineSemantiqueT::desequilibre_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("alone") << u"<b>"_s;
    QTest::newRow("unknown tag alone") << u"<z>"_s;
    QTest::newRow("no closing tag") << u"a<b>x"_s;
    QTest::newRow("inside another") << u"<b><i>x</b>"_s;
    QTest::newRow("crossed") << u"<b><i>x</b></i>"_s;
    QTest::newRow("other closing tag") << u"<b>x</i>"_s;
    QTest::newRow("unknown tag, other closing tag") << u"<y>x</z>"_s;
    QTest::newRow("case") << u"<b>x</B>"_s;
    QTest::newRow("prefix without a blank") << u"<bold>x</b>"_s;
    QTest::newRow("closing tag longer") << u"<b>x</b y>"_s;
    QTest::newRow("closing tag with a blank behind") << u"<b>x</b >"_s;
    QTest::newRow("closing tag with a blank before") << u"<b>x</ b>"_s;
    QTest::newRow("bare closing tag") << u"<b>x</>"_s;
    QTest::newRow("closed as an empty element") << u"<br>x</br/>"_s;
    QTest::newRow("only an empty element behind") << u"<b><br/>"_s;
    QTest::newRow("only an empty tag behind") << u"<b><>"_s;
    QTest::newRow("after a balanced one") << u"<b>é</b><b>"_s;
}

void tst_InterpreteurChaineSemantiqueT::desequilibre()
{
    QFETCH(QString, texte);
    for (EnsembleRegles const & regles : {Regles(), EnsembleRegles()}) {
        CaptureErreurs const erreurs;
        QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                                 Interpreteur::AppliqueRegles(texte, regles));
        QCOMPARE(erreurs.Texte(), texte + u'\n');
    }
}

// What is written is the text as it came, whatever the rules have made of it by then.
void tst_InterpreteurChaineSemantiqueT::desequilibreApresUneRegle()
{
    EnsembleRegles regles = Regles();
    regles[UniChaine()] = Remplace(u"<p>"_s, {});
    CaptureErreurs const erreurs;
    QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                             Interpreteur::AppliqueRegles(u"<b>1</b>&lt;<i>2"_s, regles));
    QCOMPARE(erreurs.Texte(), u"<b>1</b>&lt;<i>2\n"_s);
}

void tst_InterpreteurChaineSemantiqueT::interieurAvantExterieur()
{
    QString const texte = u"a<b>x<i>y</i></b><i>z</i>"_s;
    Appels appels;
    EnsembleRegles const regles = {{UniChaine("b"), Note(u"b"_s, appels)},
                                   {UniChaine("i"), Note(u"i"_s, appels)}};

    QCOMPARE(QString(Interpreteur::AppliqueRegles(texte, regles)), texte);

    QCOMPARE(appels, Appels({{u"i"_s, texte, {5U, 3U}, {9U, 4U}},
                             {u"b"_s, texte, {1U, 3U}, {13U, 4U}},
                             {u"i"_s, texte, {17U, 3U}, {21U, 4U}}}));
}

void tst_InterpreteurChaineSemantiqueT::plagesApresUneRegleQuiAllonge()
{
    Appels appels;
    EnsembleRegles const regles = {
        {UniChaine("i"), NoteEtFais(u"i"_s, appels, Remplace(u"(((("_s, u"))"_s))},
        {UniChaine("b"), Note(u"b"_s, appels)},
    };

    QString const resultat = Interpreteur::AppliqueRegles(u"<b><i>1</i></b><b>2</b>"_s, regles);

    QString const apres = u"<b>((((1))</b><b>2</b>"_s;
    QCOMPARE(resultat, apres);
    QCOMPARE(appels, Appels({{u"i"_s, u"<b><i>1</i></b><b>2</b>"_s, {3U, 3U}, {7U, 4U}},
                             {u"b"_s, apres, {0U, 3U}, {10U, 4U}},
                             {u"b"_s, apres, {14U, 3U}, {18U, 4U}}}));
}

void tst_InterpreteurChaineSemantiqueT::plagesApresUneRegleQuiRaccourcit()
{
    Appels appels;
    RegleTexteRiche const efface = [](UniChaine * texte, Balise & ouvrante, Balise & fermante) {
        int const longueur = static_cast<int>(fermante.first + fermante.second - ouvrante.first);
        texte->Remplace(static_cast<int>(ouvrante.first), longueur, UniChaine("*"));
        return 1;
    };
    EnsembleRegles const regles = {
        {UniChaine("i"), NoteEtFais(u"i"_s, appels, efface)},
        {UniChaine("b"), Note(u"b"_s, appels)},
    };

    QString const resultat =
        Interpreteur::AppliqueRegles(u"<b>1<i>22</i>3<i>44</i></b><b>5</b>"_s, regles);

    QCOMPARE(resultat, u"<b>1*3*</b><b>5</b>"_s);
    QCOMPARE(appels, Appels({{u"i"_s, u"<b>1<i>22</i>3<i>44</i></b><b>5</b>"_s, {4U, 3U}, {9U, 4U}},
                             {u"i"_s, u"<b>1*3<i>44</i></b><b>5</b>"_s, {6U, 3U}, {11U, 4U}},
                             {u"b"_s, resultat, {0U, 3U}, {7U, 4U}},
                             {u"b"_s, resultat, {11U, 3U}, {15U, 4U}}}));
}

void tst_InterpreteurChaineSemantiqueT::elementVideSansFermante()
{
    Appels appels;
    EnsembleRegles const regles = {{UniChaine("br/"), Note(u"br/"_s, appels)}};
    QString const texte = u"a<br/>b<br/>"_s;
    Interpreteur::AppliqueRegles(texte, regles);
    QCOMPARE(appels, Appels({{u"br/"_s, texte, {1U, 5U}, {6U, 0U}},
                             {u"br/"_s, texte, {7U, 5U}, {12U, 0U}}}));
}

// The result is believed: it says how far everything behind the element has moved.
void tst_InterpreteurChaineSemantiqueT::decalageDApresLeResultat()
{
    Appels appels;
    RegleTexteRiche const menteuse = [](UniChaine *, Balise & ouvrante, Balise & fermante) {
        return static_cast<int>(fermante.first + fermante.second - ouvrante.first) + 3;
    };
    EnsembleRegles const regles = {{UniChaine("i"), menteuse},
                                   {UniChaine("b"), Note(u"b"_s, appels)}};
    QString const texte = u"<i>1</i><b>2</b>......"_s;
    Interpreteur::AppliqueRegles(texte, regles);
    QCOMPARE(appels, Appels({{u"b"_s, texte, {11U, 3U}, {15U, 4U}}}));
}

void tst_InterpreteurChaineSemantiqueT::elementVideDecaleLesSuivants()
{
    EnsembleRegles regles = Regles();
    // The closing text has no tag whose place it could take.
    regles[UniChaine("img/")] = Remplace(u"[image"_s, u"]"_s);
    regles[UniChaine("vide/")] = Remplace({}, {});
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"<img/><b>1</b>"_s, regles)),
             u"[image<strong>1</strong>"_s);
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"<b><img/><vide/>1<br/></b><i>2</i>"_s, regles)),
             u"<strong>[image1<br></strong>2"_s);
}

void tst_InterpreteurChaineSemantiqueT::regleDuDocumentDAbord()
{
    Appels appels;
    EnsembleRegles const regles = {{UniChaine("b"), Note(u"b"_s, appels)},
                                   {UniChaine(), Note(u"document"_s, appels)}};
    QString const texte = u"1<b>2</b>"_s;
    Interpreteur::AppliqueRegles(texte, regles);
    QCOMPARE(appels, Appels({{u"document"_s, texte, {0U, 0U}, {9U, 0U}},
                             {u"b"_s, texte, {1U, 3U}, {5U, 4U}}}));
}

void tst_InterpreteurChaineSemantiqueT::regleDuDocumentDecaleLesSuivants()
{
    EnsembleRegles regles = Regles();
    // Deliberate: the document has no closing tag that the closing text could take the place of.
    regles[UniChaine()] = Remplace(u"<p>"_s, u"</p>"_s);
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"1<b>2</b><br/><i>3</i>"_s, regles)),
             u"<p>1<strong>2</strong><br>3"_s);
}

void tst_InterpreteurChaineSemantiqueT::regleDuDocumentEntoure()
{
    EnsembleRegles regles = Regles();
    regles[UniChaine()] = [](UniChaine * texte, Balise &, Balise &) {
        *texte = UniChaine(u"<p>"_s + QString(*texte) + u"</p>"_s);
        return static_cast<int>(texte->Longueur());
    };
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"1<b>2</b><br/><i>3</i>"_s, regles)),
             u"<p>1<strong>2</strong><br>3</p>"_s);
}

void tst_InterpreteurChaineSemantiqueT::regleDuDocumentSurTexteVide()
{
    EnsembleRegles const regles = {{UniChaine(), Remplace(u"<p>"_s, {})}};
    QCOMPARE(QString(Interpreteur::AppliqueRegles({}, regles)), u"<p>"_s);
}

// The texts that rules put in are decoded with the rest, and what is decoded is no tag any more.
void tst_InterpreteurChaineSemantiqueT::entitesEnDernier()
{
    EnsembleRegles regles = Regles();
    regles[UniChaine("q")] = Remplace(u"&lt;&quot;"_s, u"&quot;&gt;"_s);
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"<q>&lt;b&gt;</q><i>x</i>&lt;/b&gt;"_s, regles)),
             u"<\"<b>\">x</b>"_s);
}

void tst_InterpreteurChaineSemantiqueT::remplaceLesDeuxBalises()
{
    RegleTexteRiche regle;
    {
        QString ouvrant = u"[["_s;
        regle = Remplace(ouvrant, u"]"_s);
        ouvrant[0] = u'?'; // the rule keeps texts of its own
    }
    UniChaine texte(u"1<b>234</b>5"_s);
    Balise ouvrante(1U, 3U);
    Balise fermante(7U, 4U);
    QCOMPARE(regle(&texte, ouvrante, fermante), 6);
    QCOMPARE(QString(texte), u"1[[234]5"_s);

    UniChaine autre(u"<b></b>"_s);
    ouvrante = {0U, 3U};
    fermante = {3U, 4U};
    QCOMPARE(regle(&autre, ouvrante, fermante), 3);
    QCOMPARE(QString(autre), u"[[]"_s);
}

void tst_InterpreteurChaineSemantiqueT::remplaceSansFermante()
{
    UniChaine texte(u"1<br/>2"_s);
    Balise ouvrante(1U, 5U);
    Balise fermante(6U, 0U);
    QCOMPARE(Remplace(u"<br>"_s, {})(&texte, ouvrante, fermante), 4);
    QCOMPARE(QString(texte), u"1<br>2"_s);
}

// A map makes one for every key that somebody only asks for.
void tst_InterpreteurChaineSemantiqueT::fonctionVide()
{
    EnsembleRegles regles = Regles();
    for (char const * const cle : {"", "b", "br/"})
        regles[UniChaine(cle)] = RegleTexteRiche();
    QVERIFY(!Interpreteur::PossedeReglesAAppliquer(u"<b>1</b><br/>"_s, regles));
    QVERIFY(Interpreteur::PossedeReglesAAppliquer(u"<b><i>1</i></b>"_s, regles));
    QCOMPARE(QString(Interpreteur::AppliqueRegles(u"<b>1<i>2</i><br/></b>&lt;"_s, regles)),
             u"<b>12<br/></b><"_s);
}

void tst_InterpreteurChaineSemantiqueT::reglesDeBase()
{
    EnsembleRegles const regles = DStyleProxy::DonneReglesDeBase();
    QStringList cles;
    for (auto const & [cle, regle] : regles) {
        QVERIFY(regle);
        cles.append(cle);
    }
    QCOMPARE(cles, QStringList({u"b"_s, u"br/"_s, u"i"_s, u"sup"_s}));
    QString const texte = u"<b>1</b><i>2<sup>3</sup></i><br/><u>4</u>&amp;"_s;
    QCOMPARE(QString(Interpreteur::AppliqueRegles(texte, regles)),
             u"<b>1</b><i>2<sup>3</sup></i><br><u>4</u>&"_s);

    // A copy: what is done to it is nobody else's matter.
    DStyleProxy::DonneReglesDeBase().clear();
    QCOMPARE(DStyleProxy::DonneReglesDeBase().size(), std::size_t(4));
}

// Far deeper than a stack of 8 megabytes bears.
void tst_InterpreteurChaineSemantiqueT::imbricationProfonde()
{
    constexpr int kNiveaux = 200'000;
    QString const texte = u"<b>"_s.repeated(kNiveaux) + u"x"_s + u"</b>"_s.repeated(kNiveaux);
    int appels = 0;
    EnsembleRegles const regles = {
        {UniChaine("b"), [&appels](UniChaine *, Balise & ouvrante, Balise & fermante) {
             ++appels;
             return static_cast<int>(fermante.first + fermante.second - ouvrante.first);
         }}};

    QVERIFY(QString(Interpreteur::AppliqueRegles(texte, regles)) == texte);
    QCOMPARE(appels, kNiveaux);

    CaptureErreurs const erreurs;
    QVERIFY_THROWS_EXCEPTION(InterpreteurChaineSemantiqueErreur,
                             Interpreteur::AppliqueRegles(texte.left(3 * kNiveaux), regles));
}

void tst_InterpreteurChaineSemantiqueT::grandTexte_data()
{
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QString>("fin");
    QTest::addColumn<int>("parMotif"); // tags in each
    QTest::addColumn<int>("aLaFin");
    QTest::newRow("elements") << u"<u>x</u>"_s << QString() << 2 << 0;
    QTest::newRow("opening brackets") << u"<"_s << QString() << 0 << 0;
    QTest::newRow("opening brackets before a tag") << u"<"_s << u"<hr/>"_s << 0 << 1;
    QTest::newRow("closing brackets") << u">"_s << u"<hr/>"_s << 0 << 1;
    QTest::newRow("lone brackets before tags") << u"< <hr/>"_s << QString() << 1 << 0;
    QTest::newRow("empty tags") << u"<>"_s << u"<hr/>"_s << 0 << 1;
}

void tst_InterpreteurChaineSemantiqueT::grandTexte()
{
    QFETCH(QString, motif);
    QFETCH(QString, fin);
    QFETCH(int, parMotif);
    QFETCH(int, aLaFin);
    qsizetype const motifs = 1'000'000 / motif.size();
    UniChaine const texte(motif.repeated(motifs) + fin);
    QCOMPARE(Interpreteur::TrouveBalises(texte).size(),
             static_cast<std::size_t>(motifs * parMotif + aLaFin));
    QVERIFY(!Interpreteur::PossedeReglesAAppliquer(texte, Regles()));
    QVERIFY(Interpreteur::AppliqueRegles(texte, Regles()) == texte);
}

QTEST_APPLESS_MAIN(tst_InterpreteurChaineSemantiqueT)
#include "tst_InterpreteurChaineSemantiqueT.moc"
