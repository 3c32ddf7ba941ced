// tests/foundation/tst_TexteRiche.cpp
#include "foundation/Polices.h"
#include "foundation/TexteRiche.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr int kTaille = 20; // pixels

QFont DonneFont()
{
    QFont font = QApplication::font();
    font.setPixelSize(kTaille);
    return font;
}

TexteAvecFormat Analyse(QString const & texte)
{
    return DonneTexteAvecFormat(texte, DonneFont());
}

// The format of the only range of "<tag>x</tag>".
QTextCharFormat DonneFormat(QString const & balise)
{
    TexteAvecFormat const analyse = Analyse(balise + u"x</>"_s);
    return analyse.formats.size() == 1 ? analyse.formats.first().format : QTextCharFormat();
}

QString DecrisPlages(TexteAvecFormat const & analyse)
{
    QStringList plages;
    for (auto const & plage : analyse.formats)
        plages.append(u"%1+%2"_s.arg(plage.start).arg(plage.length));
    return plages.join(u' ');
}

QFont DonneFontAttendue(double proportion, double difference)
{
    QFont font = DonneFont();
    font.setPixelSize(static_cast<int>(kTaille * proportion));
    return ModulateurFont::Instance()->DonneFontPointVersPixelsAvecDiff(font, difference);
}

} // namespace

class tst_TexteRiche : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void texteEtPlages_data();
    void texteEtPlages();
    void garde();
    void balisesDePolice_data();
    void balisesDePolice();
    void policeEnPoints();
    void policeMinuscule();
    void policeGrasse();
    void italiqueEtGras();
    void surlignement();
    void couleur_data();
    void couleur();
    void balisesSansEffet_data();
    void balisesSansEffet();
    void italiqueDansNomPropre_data();
    void italiqueDansNomPropre();
    void losange();
    void modulateur();
    void infobulle();
    void infobulleAvecMarques();
    void infobulleReconnue();
    void infobulleDUneAutrePolice();
    void bitsDeStyle_data();
    void bitsDeStyle();

private:
    QFont maFontApplication;
};

void tst_TexteRiche::init()
{
    maFontApplication = QApplication::font();
}

void tst_TexteRiche::cleanup()
{
    QApplication::setFont(maFontApplication);
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRiche::texteEtPlages_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("plages"); // start+length, in the order of the list
    QTest::newRow("empty") << u""_s << u""_s << u""_s;
    QTest::newRow("plain text") << u"abc"_s << u"abc"_s << u""_s;
    QTest::newRow("a closed tag") << u"a<b>bc</b>d"_s << u"abcd"_s << u"1+2"_s;
    QTest::newRow("an unclosed tag formats nothing") << u"<b>x"_s << u"x"_s << u""_s;
    QTest::newRow("an unclosed tag is the outer one") << u"<b>a<i>b</i>"_s << u"ab"_s << u"1+1"_s;
    QTest::newRow("a closing tag alone") << u"</b>x"_s << u"x"_s << u""_s;
    QTest::newRow("inner ranges come first") << u"<b>a<i>b</i>c</b>"_s << u"abc"_s << u"1+1 0+3"_s;
    QTest::newRow("any closing tag closes the last range")
        << u"<b>a<i>b</b>c</i>"_s << u"abc"_s << u"1+1 0+3"_s;
    QTest::newRow("an empty element") << u"a<b></b>"_s << u"a"_s << u"1+0"_s;
    QTest::newRow("tags are case-sensitive, and all go") << u"<B>x</B>"_s << u"x"_s << u"0+1"_s;
    QTest::newRow("an unknown tag") << u"a<zut x=\"1\">b</zut>c"_s << u"abc"_s << u"1+1"_s;
    QTest::newRow("an empty tag") << u"a<>b</>c"_s << u"abc"_s << u"1+1"_s;
    QTest::newRow("a lone angle bracket") << u"a < b"_s << u"a < b"_s << u""_s;
    QTest::newRow("a lone angle bracket before a tag")
        << u"a < b <i>c</i>"_s << u"a < b c"_s << u"6+1"_s;
    QTest::newRow("an angle bracket at the end") << u"a<"_s << u"a<"_s << u""_s;
    QTest::newRow("an unfinished tag at the end") << u"a<b"_s << u"a<b"_s << u""_s;
    QTest::newRow("an unfinished end tag at the end") << u"<b>a</b"_s << u"a</b"_s << u""_s;
    QTest::newRow("two angle brackets") << u"<<b>x</b>"_s << u"<x"_s << u"1+1"_s;
    QTest::newRow("closing brackets are text") << u"a > b >> c"_s << u"a > b >> c"_s << u""_s;
    QTest::newRow("a comparison of nothing") << u"a< >b"_s << u"a< >b"_s << u""_s;
    QTest::newRow("with other white space") << u"<\t \n>b"_s << u"<\t \n>b"_s << u""_s;
    QTest::newRow("capitals") << u"<s>abc def"_s << u"ABC DEF"_s << u""_s;
    QTest::newRow("capitals up to the next tag")
        << u"<s>abc<i>def</i></s>g"_s << u"ABCdefg"_s << u"3+3 0+6"_s;
    QTest::newRow("capitals of the next text, wherever it stands")
        << u"<m></m>ab<i>cd</i>"_s << u"ABcd"_s << u"0+0 2+2"_s;
    QTest::newRow("a letter with two capitals") << u"<s>straße</s>!"_s << u"STRASSE!"_s << u"0+7"_s;
    QTest::newRow("a line feed") << u"a<br/>b"_s << u"a\nb"_s << u""_s;
    QTest::newRow("a line feed is no element") << u"<b>a<br/>b</b>c"_s << u"a\nbc"_s << u"0+3"_s;
    QTest::newRow("another line feed is unknown") << u"a<br>b</br>"_s << u"ab"_s << u"1+1"_s;
    QTest::newRow("a name") << u"<pn>Nom</pn>"_s << u"Nom  ◆"_s << u"0+3 3+3"_s;
    QTest::newRow("a name in an element")
        << u"<b><pn>Nom</pn>!</b>"_s << u"Nom  ◆!"_s << u"0+3 3+3 0+7"_s;
    QTest::newRow("the end of a name alone") << u"a</pn>b"_s << u"a  ◆b"_s << u"1+3"_s;
    QTest::newRow("units, not characters") << u"😀<b>é😀</b>"_s << u"😀é😀"_s << u"2+3"_s;
}

void tst_TexteRiche::texteEtPlages()
{
    QFETCH(QString, source);
    QFETCH(QString, texte);
    QFETCH(QString, plages);
    TexteAvecFormat const analyse = Analyse(source);
    QCOMPARE(QString(analyse.texte), texte);
    QCOMPARE(DecrisPlages(analyse), plages);
}

void tst_TexteRiche::garde()
{
    QCOMPARE(QString(Analyse(u"<b>x</b>"_s).source), u"<b>x</b>"_s);
}

void tst_TexteRiche::balisesDePolice_data()
{
    QTest::addColumn<QString>("balise");
    QTest::addColumn<double>("proportion");
    QTest::addColumn<double>("difference");
    QTest::addColumn<bool>("italique");
    QTest::addColumn<int>("alignement");
    auto const normal = static_cast<int>(QTextCharFormat::AlignNormal);
    QTest::newRow("small capitals") << u"<s>"_s << 0.8 << 1.0 << false << normal;
    QTest::newRow("emphasis") << u"<em>"_s << 1.0 << 1.0 << true << normal;
    QTest::newRow("mention") << u"<m>"_s << 0.7 << 1.0 << true << normal;
    QTest::newRow("subscript") << u"<sub>"_s << 1.0 << -2.0 << false
                               << static_cast<int>(QTextCharFormat::AlignSubScript);
    QTest::newRow("superscript") << u"<sup>"_s << 1.0 << 0.0 << false
                                 << static_cast<int>(QTextCharFormat::AlignSuperScript);
}

void tst_TexteRiche::balisesDePolice()
{
    QFETCH(QString, balise);
    QFETCH(double, proportion);
    QFETCH(double, difference);
    for (double const modulateur : {1.0, 1.5}) {
        ModulateurFont::Instance()->PrendsModulateur(modulateur);
        QTextCharFormat const format = DonneFormat(balise);
        QFont attendue = DonneFontAttendue(proportion, difference);
        QCOMPARE(format.font().pixelSize(), attendue.pixelSize());
        QCOMPARE(format.font().families(), attendue.families());
        QCOMPARE(format.font().weight(), attendue.weight());
        QTEST(format.fontItalic(), "italique");
        QTEST(static_cast<int>(format.verticalAlignment()), "alignement");
        QCOMPARE(format.fontCapitalization(),
                 balise == u"<s>" ? QFont::SmallCaps : QFont::MixedCase);
    }
}

void tst_TexteRiche::policeEnPoints()
{
    QFont font = QApplication::font();
    font.setPointSizeF(15.0);
    TexteAvecFormat const analyse = DonneTexteAvecFormat("<s>x</s><em>x</em>", font);

    QFont reduite(font);
    reduite.setPixelSize(static_cast<int>(QFontInfo(font).pixelSize() * 0.8));
    ModulateurFont const & modulateur = *ModulateurFont::Instance();
    QCOMPARE(analyse.formats.at(0).format.font().pixelSize(),
             modulateur.DonneFontPointVersPixelsAvecDiff(reduite, 1.0).pixelSize());
    QCOMPARE(analyse.formats.at(1).format.font().pixelSize(),
             modulateur.DonneFontPointVersPixels(16.0, font).pixelSize());
}

void tst_TexteRiche::policeMinuscule()
{
    QFont font = QApplication::font();
    font.setPixelSize(1);
    TexteAvecFormat const analyse = DonneTexteAvecFormat("<s>x</s><sub>x</sub>", font);
    for (auto const & plage : analyse.formats)
        QVERIFY(plage.format.font().pixelSize() >= 1);
}

void tst_TexteRiche::policeGrasse()
{
    QFont font = DonneFont();
    font.setBold(true);
    font.setItalic(true);
    TexteAvecFormat const analyse = DonneTexteAvecFormat("<s>x</s>", font);
    QVERIFY(analyse.formats.first().format.font().bold());
    QVERIFY(analyse.formats.first().format.fontItalic());
}

void tst_TexteRiche::italiqueEtGras()
{
    QTextCharFormat const italique = DonneFormat(u"<i>"_s);
    QVERIFY(italique.fontItalic());
    QCOMPARE(italique.fontWeight(), static_cast<int>(QFont::Normal));
    QTextCharFormat const gras = DonneFormat(u"<b>"_s);
    QVERIFY(!gras.fontItalic());
    QCOMPARE(gras.fontWeight(), 700);
    QVERIFY(!gras.hasProperty(QTextFormat::FontPixelSize));
}

void tst_TexteRiche::surlignement()
{
    QColor const attendue(250, 250, 0, 255);
    QCOMPARE(DonneFormat(u"<span class=\"surlignement\">"_s).background().color(), attendue);
    QCOMPARE(DonneFormat(u"<span class=\"surlignement\" id=\"3\">"_s).background().color(),
             attendue);
    QVERIFY(DonneFormat(u"<span class='surlignement'>"_s).isEmpty());
}

void tst_TexteRiche::couleur_data()
{
    QTest::addColumn<QString>("balise");
    QTest::addColumn<QColor>("attendue");
    QTest::newRow("quoted") << u"<font color =\"#1a2B3c\">"_s << QColor(0x1a, 0x2b, 0x3c);
    QTest::newRow("more attributes") << u"<font color =\"#ff0000\" size=1>"_s << QColor(255, 0, 0);
    QTest::newRow("the quotes are not looked at")
        << u"<font color =x#00ff00>"_s << QColor(0, 255, 0);
    // Deliberate: the seven characters from index 14 on, whatever they are.
    QTest::newRow("one blank more") << u"<font color = \"#1a2b3c\">"_s << QColor();
    QTest::newRow("seven letters of a name")
        << u"<font color =\"magenta\">"_s << QColor(Qt::magenta);
    QTest::newRow("a shorter name takes the quote along") << u"<font color =\"red\">"_s << QColor();
    QTest::newRow("nothing there") << u"<font color =>"_s << QColor();
}

void tst_TexteRiche::couleur()
{
    QFETCH(QString, balise);
    QTextCharFormat const format = DonneFormat(balise);
    QTEST(format.foreground().color(), "attendue");
    QVERIFY(format.foreground().style() != Qt::NoBrush);
}

void tst_TexteRiche::balisesSansEffet_data()
{
    QTest::addColumn<QString>("balise");
    for (QString const & balise :
         {u"<au>"_s, u"<tf>"_s, u"<us>"_s, u"<formul_remarque>"_s, u"<html>"_s, u"<span>"_s,
          u"<prep>"_s, u"<a href=\"x\">"_s, u"<a >"_s, u"<zut>"_s, u"<I>"_s, u"<b >"_s, u"<pn>"_s,
          u"<font color=\"#ff0000\">"_s, u"<span class=\"autre\">"_s})
        QTest::newRow(qPrintable(balise)) << balise;
}

void tst_TexteRiche::balisesSansEffet()
{
    QFETCH(QString, balise);
    TexteAvecFormat const analyse = Analyse(u"a"_s + balise + u"bc</x>d"_s);
    QCOMPARE(QString(analyse.texte), u"abcd"_s);
    QCOMPARE(DecrisPlages(analyse), u"1+2"_s);
    QVERIFY(analyse.formats.first().format.isEmpty());
}

void tst_TexteRiche::italiqueDansNomPropre_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("italique"); // of the first range
    QTest::newRow("emphasis in a name") << u"<pn><em>x</em></pn>"_s << false;
    QTest::newRow("mention in a name") << u"<pn><m>x</m></pn>"_s << false;
    QTest::newRow("italics in a name stay") << u"<pn><i>x</i></pn>"_s << true;
    QTest::newRow("another end tag does not leave the name") << u"<pn></i><em>x</em>"_s << false;
    QTest::newRow("emphasis behind a name") << u"</pn><em>x</em>"_s << true;
}

void tst_TexteRiche::italiqueDansNomPropre()
{
    QFETCH(QString, source);
    QFETCH(bool, italique);
    for (auto const & plage : Analyse(source).formats) {
        if (plage.length == 1) {
            QCOMPARE(plage.format.fontItalic(), italique);
            return;
        }
    }
    QFAIL("no range of one letter");
}

void tst_TexteRiche::losange()
{
    QTextCharFormat const format = Analyse(u"</pn>"_s).formats.first().format;
    QFont const attendue = ModulateurFont::Instance()->DonneFontPointVersPixels(7.0, DonneFont());
    QCOMPARE(format.font().pixelSize(), attendue.pixelSize());
    QVERIFY(format.font().pixelSize() < kTaille);
}

void tst_TexteRiche::modulateur()
{
    int const avant = DonneFormat(u"<em>"_s).font().pixelSize();
    ModulateurFont::Instance()->PrendsModulateur(2.0);
    int const apres = DonneFormat(u"<em>"_s).font().pixelSize();
    QCOMPARE(apres, DonneFontAttendue(1.0, 1.0).pixelSize());
    ModulateurFont::LibereInstance();
    QCOMPARE(DonneFormat(u"<em>"_s).font().pixelSize(), avant);
}

void tst_TexteRiche::infobulle()
{
    QFont font(u"Une Police"_s);
    font.setPixelSize(17);
    QApplication::setFont(font);
    QCOMPARE(QString(DonneTexteRichePourInfobulle("<b>x</b>", true)),
             u"<span style=\"font: 17px Une Police;\"><b>x</b></span>"_s);
    QCOMPARE(QString(DonneTexteRichePourInfobulle("", false)),
             u"<span style=\"font: 17px Une Police;\"></span>"_s);
    QVERIFY(DonneTexteRichePourInfobulle("", true).EstVide());

    font.setPointSize(12);
    QApplication::setFont(font);
    QCOMPARE(QString(DonneTexteRichePourInfobulle("x", true)),
             u"<span style=\"font: -1px Une Police;\">x</span>"_s);
}

void tst_TexteRiche::infobulleAvecMarques()
{
    QString const texte = DonneTexteRichePourInfobulle("20 %1 %2 %3 %L4", true);
    QVERIFY(texte.endsWith(u"\">20 %1 %2 %3 %L4</span>"_s));
}

void tst_TexteRiche::infobulleReconnue()
{
    QVERIFY(InfobulleContientTexteRiche(DonneTexteRichePourInfobulle("<i>x</i>", true)));
    QVERIFY(InfobulleContientTexteRiche(DonneTexteRichePourInfobulle("", false)));
    QVERIFY(!InfobulleContientTexteRiche(""));
    QVERIFY(!InfobulleContientTexteRiche("<i>x</i>"));
    QVERIFY(!InfobulleContientTexteRiche("<span style=\"font: "));
    QVERIFY(!InfobulleContientTexteRiche(UniChaine(" ") + DonneTexteRichePourInfobulle("x", true)));
    // Deliberate: only the beginning is compared.
    UniChaine const texte = DonneTexteRichePourInfobulle("x", true);
    QVERIFY(InfobulleContientTexteRiche(texte.SousChaine(0, int(texte.Longueur()) - 8)));
}

void tst_TexteRiche::infobulleDUneAutrePolice()
{
    UniChaine const texte = DonneTexteRichePourInfobulle("x", true);
    QFont font = QApplication::font();
    font.setPixelSize(41);
    QApplication::setFont(font);
    QVERIFY(!InfobulleContientTexteRiche(texte));
}

void tst_TexteRiche::bitsDeStyle_data()
{
    QTest::addColumn<bool>("italique");
    QTest::addColumn<int>("graisse");
    QTest::addColumn<int>("alignement");
    QTest::addColumn<int>("bits");
    QTest::newRow("nothing") << false << 400 << int(QTextCharFormat::AlignNormal) << 0;
    QTest::newRow("italic") << true << 400 << int(QTextCharFormat::AlignNormal) << 1;
    QTest::newRow("bold") << false << 700 << int(QTextCharFormat::AlignNormal) << 2;
    QTest::newRow("less than bold") << false << 699 << int(QTextCharFormat::AlignNormal) << 0;
    QTest::newRow("more than bold") << false << 800 << int(QTextCharFormat::AlignNormal) << 0;
    QTest::newRow("superscript") << false << 400 << int(QTextCharFormat::AlignSuperScript) << 4;
    QTest::newRow("subscript") << false << 400 << int(QTextCharFormat::AlignSubScript) << 8;
    QTest::newRow("other alignments") << false << 400 << int(QTextCharFormat::AlignTop) << 0;
    QTest::newRow("all") << true << 700 << int(QTextCharFormat::AlignSuperScript) << 7;
    QTest::newRow("all below") << true << 700 << int(QTextCharFormat::AlignSubScript) << 11;
}

void tst_TexteRiche::bitsDeStyle()
{
    QFETCH(bool, italique);
    QFETCH(int, graisse);
    QFETCH(int, alignement);
    QTextCharFormat format;
    format.setFontItalic(italique);
    format.setFontWeight(graisse);
    format.setVerticalAlignment(static_cast<QTextCharFormat::VerticalAlignment>(alignement));
    QTEST(ConvertisQTextCharFormatEnTypBitStyle(format), "bits");
    QCOMPARE(ConvertisQTextCharFormatEnTypBitStyle({}), 0);
}

QTEST_MAIN(tst_TexteRiche)
#include "tst_TexteRiche.moc"
