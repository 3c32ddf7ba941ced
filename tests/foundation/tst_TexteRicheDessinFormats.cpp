// tests/foundation/tst_TexteRicheDessinFormats.cpp
//
// Tags in tags, and colours.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/Polices.h"

#include <QtTest>

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

constexpr QChar kBloc(0x2588);
constexpr QRgb kJaune = qRgb(250, 250, 0);

QString Surligne(QString const & texte)
{
    return u"<span class=\"surlignement\">%1</span>"_s.arg(texte);
}

QImage DessineAuCrayon(QColor const & crayon, QString const & texte, QString const & source = {})
{
    return DessineImage([&](QPainter & peintre) {
        peintre.setPen(crayon);
        DessineTexteRicheAvecSource(peintre, kLarge, DonneFontDImage(), texte, source, false);
    });
}

} // namespace

class tst_TexteRicheDessinFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void balisesImbriquees_data();
    void balisesImbriquees();
    void losangeDansEmphase();
    void couleurDuCrayon();
    void couleurDuTexte();
    void surlignementSousLeCrayon_data();
    void surlignementSousLeCrayon();
    void surlignementAvecSaCouleur();
    void surlignementDeLaSource();
    void formatsSansLeCrayon();
};

void tst_TexteRicheDessinFormats::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheDessinFormats::balisesImbriquees_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("pareil");
    QTest::newRow("italics in small capitals")
        << u"<s>AB<i>CD</i></s>"_s << u"<s>AB</s><i><s>CD</s></i>"_s;
    QTest::newRow("bold in a mention") << u"<m>AB<b>CD</b></m>"_s << u"<m>AB</m><b><m>CD</m></b>"_s;
    QTest::newRow("bold around emphasis")
        << u"<b>ab<em>cd</em></b>"_s << u"<b>ab</b><em><b>cd</b></em>"_s;
    QTest::newRow("a tag without effect between")
        << u"<b><zut><i>ab</i></zut></b>"_s << u"<i><b>ab</b></i>"_s;
    QTest::newRow("the inner size wins")
        << u"<em>ab<sub>2</sub></em>"_s << u"<em>ab</em><i><sub>2</sub></i>"_s;
    QTest::newRow("the inner colour wins")
        << u"<font color =\"#ff0000\">a<font color =\"#0000ff\">b</font></font>"_s
        << u"<font color =\"#ff0000\">a</font><font color =\"#0000ff\">b</font>"_s;
}

void tst_TexteRicheDessinFormats::balisesImbriquees()
{
    QFETCH(QString, texte);
    QFETCH(QString, pareil);
    QFont moyenne = DonneFontDImage();
    moyenne.setWeight(QFont::Medium);
    for (QFont const & font : {DonneFontDImage(), moyenne}) {
        QImage const images[] = {DessineImage([&](QPainter & peintre) {
                                     DessineTexteRiche(peintre, kLarge, font, texte);
                                 }),
                                 DessineImage([&](QPainter & peintre) {
                                     DessineTexteRiche(peintre, kLarge, font, pareil);
                                 })};
        QCOMPARE(images[0], images[1]);
    }
    QVERIFY(DessineRang(kLarge, texte) !=
            DessineRang(kLarge, QString(texte).remove(QRegularExpression(u"<[^>]*>"_s))));
}

void tst_TexteRicheDessinFormats::losangeDansEmphase()
{
    // The diamond is as small as anywhere else.
    double const losange = Longueur(u"x</pn>x"_s) - Longueur(u"xx"_s);
    QVERIFY(losange > 0.0);
    double const dansEmphase =
        Longueur(u"<em><pn>x</pn>x</em>"_s) - Longueur(u"<em>x<i></i>x</em>"_s);
    QVERIFY2(std::abs(dansEmphase - losange) < 1.0,
             qPrintable(u"%1 and %2"_s.arg(dansEmphase).arg(losange)));
}

void tst_TexteRicheDessinFormats::couleurDuCrayon()
{
    for (QColor const & couleur : {QColor(200, 0, 0), QColor(0, 0, 200)}) {
        QImage const image = DessineImage([&](QPainter & peintre) {
            peintre.setPen(couleur);
            DessineTexteRicheAvecSource(peintre, kEtroit, DonneFontDImage(),
                                        QString(50, QChar(0x2588)), u"\u2588"_s, false);
        });
        QVERIFY(ContientCouleur(image, couleur)); // of full blocks
        QVERIFY(!ContientCouleur(image, Qt::black));
    }
}

void tst_TexteRicheDessinFormats::couleurDuTexte()
{
    QString const blocs(2, QChar(0x2588));
    QImage const image = DessineImage([&](QPainter & peintre) {
        peintre.setPen(Qt::blue);
        DessineTexteRiche(peintre, kLarge, DonneFontDImage(),
                          u"<font color =\"#ff0000\">"_s + blocs + u"</font>"_s + blocs +
                              u"<span class=\"surlignement\">i</span>"_s);
    });
    QVERIFY(ContientCouleur(image, Qt::red));
    QVERIFY(ContientCouleur(image, Qt::blue));
    QVERIFY(ContientCouleur(image, QColor(250, 250, 0)));
}

void tst_TexteRicheDessinFormats::surlignementSousLeCrayon_data()
{
    QTest::addColumn<QColor>("crayon");
    QTest::addColumn<bool>("noir");
    QTest::newRow("dark") << QColor(0, 0, 128) << false;
    QTest::newRow("the darkest half ends at 127") << QColor(127, 127, 127) << false;
    QTest::newRow("the lightest half begins at 128") << QColor(128, 128, 128) << true;
    QTest::newRow("light") << QColor(200, 200, 255) << true;
    QTest::newRow("dark again") << QColor(0, 0, 128) << false;
}

void tst_TexteRicheDessinFormats::surlignementSousLeCrayon()
{
    QFETCH(QColor, crayon);
    QFETCH(bool, noir);
    // Highlighted alone, then beside plain text.
    QString const surligne = Surligne(u" %1 "_s.arg(kBloc));
    QImage const seul = DessineAuCrayon(crayon, surligne);
    QVERIFY(ContientCouleur(seul, QColor(kJaune)));
    QCOMPARE(ContientCouleur(seul, Qt::black), noir);
    QCOMPARE(ContientCouleur(seul, crayon), !noir);
    QVERIFY(ContientCouleur(DessineAuCrayon(crayon, surligne + kBloc), crayon));
    if (noir) {
        QString const noirci = u"<font color =\"#000000\">%1</font>"_s.arg(surligne);
        QCOMPARE(DessineAuCrayon(crayon, surligne + u" a"_s),
                 DessineAuCrayon(crayon, noirci + u" a"_s));
    }
}

void tst_TexteRicheDessinFormats::surlignementAvecSaCouleur()
{
    QString const rouge = u"<font color =\"#ff0000\">%1</font>"_s;
    for (QString const & texte : {Surligne(rouge.arg(kBloc)), rouge.arg(Surligne(kBloc))}) {
        QImage const image = DessineAuCrayon(Qt::white, texte);
        QVERIFY(ContientCouleur(image, Qt::red));
        QVERIFY(!ContientCouleur(image, Qt::black));
    }
}

void tst_TexteRicheDessinFormats::surlignementDeLaSource()
{
    QString const source = Surligne(u" %1 "_s.arg(kBloc));
    for (QColor const & crayon : {QColor(Qt::white), QColor(0, 0, 128)}) {
        QImage const image = DessineAuCrayon(crayon, u"a"_s, source);
        QVERIFY(ContientCouleur(image, QColor(kJaune)));
        QCOMPARE(ContientCouleur(image, Qt::black), crayon == QColor(Qt::white));
    }
}

// Black is a matter of drawing: whoever asks for the formats has them without.
void tst_TexteRicheDessinFormats::formatsSansLeCrayon()
{
    DessineAuCrayon(Qt::white, Surligne(u"a"_s));
    auto const formats = DonneTexteAvecFormat(Surligne(u"a"_s), DonneFontDImage()).formats;
    QCOMPARE(formats.size(), 1);
    QCOMPARE(formats.first().format.foreground().style(), Qt::NoBrush);
    QCOMPARE(formats.first().format.background().color(), QColor(kJaune));
}

QTEST_MAIN(tst_TexteRicheDessinFormats)
#include "tst_TexteRicheDessinFormats.moc"
