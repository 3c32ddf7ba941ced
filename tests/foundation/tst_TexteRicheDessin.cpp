// tests/foundation/tst_TexteRicheDessin.cpp
#include "foundation/ImagesTexteRiche.h"
#include "foundation/Polices.h"
#include "foundation/ReferenceTexteRiche.h"

#include <QtTest>

#include <QPicture>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

class UniChaineFormatee // whatever it is
{
};

namespace {

constexpr QRect kLarge(3, 5, 400, 30);
constexpr QRect kEtroit(3, 5, 120, 30);
QString const & TexteLong()
{
    static QString const texte = u"Les chats dorment souvent sur le tapis du grand salon"_s;
    return texte;
}

double Longueur(QString const & texte)
{
    return DonneLongueurTexteRiche(texte, DonneFontDImage());
}

int DonneInterligne()
{
    return QFontMetrics(DonneFontDImage()).lineSpacing();
}

QImage DessinePoints(QPoint const & ou)
{
    return DessineImage([&](QPainter & peintre) {
        peintre.setFont(DonneFontDImage());
        peintre.drawText(ou, u"…"_s);
    });
}

} // namespace

class tst_TexteRicheDessin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void commeUnLayout_data();
    void commeUnLayout();
    void commeUnLayoutTransformay();
    void formesCourtes();
    void pointsQuandCoupe();
    void pasDePointsQuandTientJuste();
    void pointsAGaucheDeDroiteAGauche();
    void uneSeuleLigne();
    void deuxLignes();
    void deuxLignesMaisTexteCourt();
    void deuxLignesSansHauteur_data();
    void deuxLignesSansHauteur();
    void deuxLignesSansLargeur();
    void jamaisTroisLignes();
    void motPlusLongQueLaLigne();
    void sourceADroite();
    void sourceItalique();
    void sourceTropLongue();
    void sourceSansPlacePourLeTexte();
    void sautDeLigne();
    void balisesImbriquees_data();
    void balisesImbriquees();
    void losangeDansEmphase();
    void couleurDuCrayon();
    void couleurDuTexte();
    void peintreIntact();
    void decoupeEtOpacite();
    void autresPeripheriques();
    void rectanglesVides_data();
    void rectanglesVides();
    void chaineFormatee();
    void longueur_data();
    void longueur();
};

void tst_TexteRicheDessin::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheDessin::commeUnLayout_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QString>("source");
    QTest::addColumn<bool>("deuxLignes");
    QString const court = u"Un <i>petit</i> <b>chat</b>"_s;
    QString const rouge = u"<font color =\"#c00000\">"_s;
    QTest::newRow("empty") << u""_s << u""_s << false;
    QTest::newRow("plain") << u"Le chat"_s << u""_s << false;
    QTest::newRow("plain, cut") << TexteLong() << u""_s << false;
    QTest::newRow("two lines") << TexteLong().left(35) << u""_s << true;
    QTest::newRow("two lines, cut") << TexteLong() + TexteLong() << u""_s << true;
    QTest::newRow("tags") << court << u""_s << false;
    QTest::newRow("sizes") << u"<s>ab</s>c<m>de</m><em>fg</em>h"_s << u""_s << false;
    QTest::newRow("indices") << u"H<sub>2</sub>O, m<sup>3</sup>"_s << u""_s << false;
    QTest::newRow("colour") << u"a "_s + rouge + u"rouge</font> b"_s << u""_s << false;
    QTest::newRow("colour, cut") << rouge + TexteLong() + u"</font>"_s << u""_s << false;
    QTest::newRow("highlight") << u"<span class=\"surlignement\">mot</span> clef"_s << u""_s
                               << false;
    QTest::newRow("name") << u"<pn>Victor</pn>, suite"_s << u""_s << false;
    QTest::newRow("source") << u"Le chat"_s << u"Hugo"_s << false;
    QTest::newRow("source with tags") << u"Le chat"_s << u"V. <b>Hugo</b>"_s << false;
    QTest::newRow("source, text cut") << TexteLong() << u"Hugo"_s << false;
    QTest::newRow("source, two lines") << TexteLong() << u"Hugo"_s << true;
    QTest::newRow("source, cut") << u""_s << TexteLong() + TexteLong() << false;
    QTest::newRow("line feed") << u"un<br/>deux"_s << u""_s << true;
    QTest::newRow("letters of many scripts")
        << u"fi é e\u0301 ελ жд \u05e9\u05dc a\u00adb\u200d"_s << u""_s << false;
    QTest::newRow("tab") << u"a\tb"_s << u""_s << false;
}

void tst_TexteRicheDessin::commeUnLayout()
{
    QFETCH(QString, texte);
    QFETCH(QString, source);
    QFETCH(bool, deuxLignes);
    QFont const font = DonneFontDImage();
    QRect const rectangle(7, 3, 260, 70);
    for (double const ratio : {1.0, 1.25, 2.0}) {
        QImage const notre = DessineImage(
            [&](QPainter & peintre) {
                DessineTexteRicheAvecSource(peintre, rectangle, font, texte, source, deuxLignes);
            },
            ratio);
        QImage const reference = DessineImage(
            [&](QPainter & peintre) {
                DessineReference(peintre, rectangle, font, {texte, source, deuxLignes});
            },
            ratio);
        QCOMPARE(notre, reference);
        QCOMPARE(DonneEncre(notre).isNull(), texte.isEmpty() && source.isEmpty());
    }
}

void tst_TexteRicheDessin::commeUnLayoutTransformay()
{
    QTransform rotation;
    rotation.translate(60, 5);
    rotation.rotate(12);
    QTransform agrandissement;
    agrandissement.scale(1.7, 1.3);
    QTransform const perspective(1, 0, 0.001, 0, 1, 0.002, 5, 5, 1);
    for (QTransform const & transformation : {rotation, agrandissement, perspective}) {
        QImage const notre = DessineImage([&](QPainter & peintre) {
            peintre.setTransform(transformation);
            DessineTexteRiche(peintre, kEtroit, DonneFontDImage(), TexteLong());
        });
        QImage const reference = DessineImage([&](QPainter & peintre) {
            peintre.setTransform(transformation);
            DessineReference(peintre, kEtroit, DonneFontDImage(), {TexteLong()});
        });
        QVERIFY(!DonneEncre(notre).isNull());
        QCOMPARE(notre, reference);
    }
}

void tst_TexteRicheDessin::formesCourtes()
{
    QRect const rectangle(0, 0, 120, 70);
    QCOMPARE(DessineImage([&](QPainter & peintre) {
                 DessineTexteRiche(peintre, rectangle, DonneFontDImage(), TexteLong());
             }),
             DessineRang(rectangle, TexteLong()));
    QImage const surDeux = DessineImage([&](QPainter & peintre) {
        DessineTexteRicheSurDeuxLignes(peintre, rectangle, DonneFontDImage(), TexteLong());
    });
    QCOMPARE(surDeux, DessineRang(rectangle, TexteLong(), {}, true));
    QVERIFY(surDeux != DessineRang(rectangle, TexteLong()));
}

void tst_TexteRicheDessin::pointsQuandCoupe()
{
    QImage const coupe = DessineRang(kEtroit, TexteLong());
    QRect const encre = DonneEncre(coupe);
    QVERIFY(encre.right() <= kEtroit.right());

    // Behind the last letter there is what "…" looks like, and nothing else.
    QFontMetrics const mesures(DonneFontDImage());
    QRect const fin(encre.right() + 1 - mesures.tightBoundingRect(u"…"_s).width(), 0,
                    mesures.tightBoundingRect(u"…"_s).width(), kTailleImage.height());
    QImage const points = DessinePoints({0, kEtroit.top() + mesures.ascent()});
    QCOMPARE(DonneEncre(coupe, fin).height(), DonneEncre(points).height());
    QCOMPARE(DonneEncre(coupe, fin).bottom(), DonneEncre(points).bottom());
    // The uncut text has letters there.
    QVERIFY(DonneEncre(DessineRang(kLarge, TexteLong()), fin).height() >
            DonneEncre(points).height());
}

void tst_TexteRicheDessin::pasDePointsQuandTientJuste()
{
    int const largeur = static_cast<int>(std::ceil(Longueur(TexteLong().left(20))));
    QImage const large = DessineRang({0, 0, 400, 30}, TexteLong().left(20));
    QCOMPARE(DessineRang({0, 0, largeur, 30}, TexteLong().left(20)), large);
    QVERIFY(DessineRang({0, 0, largeur - 1, 30}, TexteLong().left(20)) != large);
}

void tst_TexteRicheDessin::pointsAGaucheDeDroiteAGauche()
{
    QString const hebreu = QString(40, QChar(0x05d0));
    QImage const coupe = DessineRang(kEtroit, hebreu);
    QFontMetrics const mesures(DonneFontDImage());
    int const ligneDeBase = kEtroit.top() + mesures.ascent();
    QRect const debut(kEtroit.left(), 0, mesures.horizontalAdvance(u'…'), kTailleImage.height());
    QCOMPARE(DonneEncre(coupe, debut),
             DonneEncre(DessinePoints({kEtroit.left(), ligneDeBase}), debut));
    QVERIFY(DonneEncre(coupe).right() <= kEtroit.right() + 1);
}

void tst_TexteRicheDessin::uneSeuleLigne()
{
    QRect const haut(0, 0, 120, 80);
    QVERIFY(DonneEncre(DessineRang(haut, TexteLong())).bottom() < DonneInterligne());
}

void tst_TexteRicheDessin::deuxLignes()
{
    QRect const haut(0, 0, 120, 80);
    QRect const encre = DonneEncre(DessineRang(haut, TexteLong(), {}, true));
    QVERIFY(encre.bottom() > DonneInterligne());
    QVERIFY(encre.bottom() < 2 * DonneInterligne());
    QVERIFY(encre.right() <= haut.right());
    // The first line breaks at a word and has no "…": it is the text of its words.
    QRect const premiere(0, 0, kTailleImage.width(), DonneInterligne());
    QCOMPARE(DessineRang(haut, TexteLong(), {}, true).copy(premiere),
             DessineRang(haut, u"Les chats"_s).copy(premiere));
}

void tst_TexteRicheDessin::deuxLignesMaisTexteCourt()
{
    QRect const haut(0, 0, 400, 80);
    QImage const image = DessineRang(haut, u"Le chat"_s, {}, true);
    QVERIFY(DonneEncre(image).bottom() < DonneInterligne());
    QCOMPARE(image, DessineRang(haut, u"Le chat"_s));
}

void tst_TexteRicheDessin::deuxLignesSansHauteur_data()
{
    QTest::addColumn<int>("manque");
    QTest::addColumn<bool>("attendues");
    QTest::newRow("two line spacings are enough") << 0 << true;
    QTest::newRow("one pixel less is not") << 1 << false;
}

void tst_TexteRicheDessin::deuxLignesSansHauteur()
{
    QFETCH(int, manque);
    QFETCH(bool, attendues);
    QRect const rectangle(0, 0, 120, 2 * DonneInterligne() - manque);
    QImage const image = DessineRang(rectangle, TexteLong(), {}, true);
    QCOMPARE(DonneEncre(image).bottom() > DonneInterligne(), attendues);
    // One line that ends in "…", then: the text goes on.
    QCOMPARE(image == DessineRang(rectangle, TexteLong()), !attendues);
}

void tst_TexteRicheDessin::deuxLignesSansLargeur()
{
    // Five average characters have to fit beside the source.
    int const reserve = 5 * QFontMetrics(DonneFontDImage()).averageCharWidth();
    QString const source = u"Hugo"_s;
    int const prise = static_cast<int>(std::ceil(Longueur(u"<i> —Hugo</i>"_s)));
    for (int const marge : {-1, 1}) {
        QRect const rectangle(0, 0, prise + reserve + marge, 80);
        QRect const encre = DonneEncre(DessineRang(rectangle, TexteLong(), source, true));
        QCOMPARE(encre.bottom() > DonneInterligne(), marge > 0);
    }
}

void tst_TexteRicheDessin::jamaisTroisLignes()
{
    QFont petite = DonneFontDImage();
    petite.setPixelSize(10);
    QImage const image = DessineImage([&](QPainter & peintre) {
        DessineTexteRicheSurDeuxLignes(peintre, {0, 0, 90, 80}, petite, TexteLong() + TexteLong());
    });
    QVERIFY(DonneEncre(image).bottom() <= 2 * QFontMetrics(petite).lineSpacing());
}

void tst_TexteRicheDessin::motPlusLongQueLaLigne()
{
    QRect const rectangle(0, 0, 120, 80);
    QRect const encre = DonneEncre(DessineRang(rectangle, QString(60, u'm'), u"Hugo"_s, true));
    QVERIFY(encre.right() <= rectangle.right());
    QVERIFY(encre.bottom() > DonneInterligne());
}

void tst_TexteRicheDessin::sourceADroite()
{
    QImage const image = DessineRang(kLarge, u"Le chat"_s, u"Hugo"_s);
    int const prise = static_cast<int>(std::ceil(Longueur(u"<i> —Hugo</i>"_s)));
    QRect const texte(0, 0, kLarge.right() - prise, kTailleImage.height());
    QRect const source(texte.right() + 1, 0, prise + 10, kTailleImage.height());
    QCOMPARE(image.copy(texte), DessineRang(kLarge, u"Le chat"_s).copy(texte));
    QVERIFY(!DonneEncre(image, source).isNull());
    QVERIFY(kLarge.right() - DonneEncre(image).right() <= 3); // the side bearing of the last letter
    // A longer text stops before it.
    QImage const coupe = DessineRang(kLarge, TexteLong() + TexteLong(), u"Hugo"_s);
    QRect const bord(kLarge.right() - prise + 8, 0, prise, kTailleImage.height());
    QCOMPARE(coupe.copy(bord), image.copy(bord));
}

void tst_TexteRicheDessin::sourceItalique()
{
    QCOMPARE(DessineRang(kLarge, {}, u"Hugo"_s), DessineRang(kLarge, {}, u"<i>Hugo</i>"_s));
    QVERIFY(DessineRang(kLarge, {}, u"Hugo"_s) != DessineRang(kLarge, {}, u"<b>Hugo</b>"_s));
    // In a name, where emphasis alone is upright, too.
    QCOMPARE(DessineRang(kLarge, {}, u"<pn>Hugo</pn>"_s),
             DessineRang(kLarge, {}, u"<i><pn>Hugo</pn></i>"_s));
}

void tst_TexteRicheDessin::sourceTropLongue()
{
    QRect const encre = DonneEncre(DessineRang(kEtroit, {}, TexteLong()));
    QVERIFY(encre.left() >= kEtroit.left());
    QVERIFY(encre.right() <= kEtroit.right());
    QVERIFY(encre.width() > kEtroit.width() / 2);
    QImage const coupee = DessineRang(kEtroit, {}, TexteLong());
    QImage const entiere = DessineRang(kLarge, {}, TexteLong().left(15));
    QVERIFY(coupee != entiere);
}

void tst_TexteRicheDessin::sourceSansPlacePourLeTexte()
{
    QCOMPARE(DessineRang(kEtroit, TexteLong(), TexteLong()), DessineRang(kEtroit, {}, TexteLong()));
}

void tst_TexteRicheDessin::sautDeLigne()
{
    QRect const haut(0, 0, 400, 80);
    QImage const image = DessineRang(haut, u"un<br/>deux"_s, {}, true);
    QRect const premiere(0, 0, kTailleImage.width(), DonneInterligne());
    QCOMPARE(image.copy(premiere), DessineRang(haut, u"un"_s).copy(premiere));
    QCOMPARE(image.copy(premiere.translated(0, DonneInterligne())),
             DessineRang(haut, u"deux"_s).copy(premiere));
    // On one line only what stands before it, and it is not cut: it ends there.
    QCOMPARE(DessineRang(haut, u"un<br/>deux"_s), DessineRang(haut, u"un"_s));
}

void tst_TexteRicheDessin::balisesImbriquees_data()
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

void tst_TexteRicheDessin::balisesImbriquees()
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

void tst_TexteRicheDessin::losangeDansEmphase()
{
    // The diamond is as small as anywhere else.
    double const losange = Longueur(u"x</pn>x"_s) - Longueur(u"xx"_s);
    QVERIFY(losange > 0.0);
    double const dansEmphase =
        Longueur(u"<em><pn>x</pn>x</em>"_s) - Longueur(u"<em>x<i></i>x</em>"_s);
    QVERIFY2(std::abs(dansEmphase - losange) < 1.0,
             qPrintable(u"%1 and %2"_s.arg(dansEmphase).arg(losange)));
}

void tst_TexteRicheDessin::couleurDuCrayon()
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

void tst_TexteRicheDessin::couleurDuTexte()
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

void tst_TexteRicheDessin::peintreIntact()
{
    QFont autre = DonneFontDImage();
    autre.setPixelSize(7);
    DessineImage([&](QPainter & peintre) {
        peintre.setPen(QPen(Qt::magenta, 3));
        peintre.setFont(autre);
        peintre.setBrush(Qt::green);
        peintre.translate(2, 3);
        for (QString const & texte :
             {TexteLong(), u"<font color =\"#ff0000\">a</font>"_s, u"a<sup>2</sup>"_s,
              u"<span class=\"surlignement\">a</span>"_s}) {
            DessineTexteRicheAvecSource(peintre, kEtroit, DonneFontDImage(), texte, u"b"_s, true);
            QCOMPARE(peintre.pen(), QPen(Qt::magenta, 3));
            QCOMPARE(peintre.font(), autre);
            QCOMPARE(peintre.brush(), QBrush(Qt::green));
            QCOMPARE(peintre.transform(), QTransform::fromTranslate(2, 3));
            QVERIFY(!peintre.hasClipping());
        }
    });
}

void tst_TexteRicheDessin::decoupeEtOpacite()
{
    QString const blocs(30, QChar(0x2588));
    QRect const decoupe(20, 0, 10, 80);
    QImage const image = DessineImage([&](QPainter & peintre) {
        peintre.setClipRect(decoupe);
        peintre.setOpacity(0.5);
        DessineTexteRiche(peintre, kLarge, DonneFontDImage(), blocs);
    });
    QCOMPARE(DonneEncre(image).left(), decoupe.left());
    QCOMPARE(DonneEncre(image).right(), decoupe.right());
    QVERIFY(!ContientCouleur(image, Qt::black));
}

void tst_TexteRicheDessin::autresPeripheriques()
{
    // A picture keeps the letters; played, it shows the text and its "…".
    QPicture dessin;
    {
        QPainter peintre(&dessin);
        DessineTexteRiche(peintre, kEtroit, DonneFontDImage(), TexteLong());
    }
    QVERIFY(QByteArrayView(dessin.data(), dessin.size()).contains(QByteArray("\0c\0h\0a\0t", 8)));
    QImage const image =
        DessineImage([&](QPainter & peintre) { peintre.drawPicture(0, 0, dessin); });
    QRect const attendue = DonneEncre(DessineRang(kEtroit, TexteLong()));
    QVERIFY(std::abs(DonneEncre(image).width() - attendue.width()) <= attendue.width() / 5);
    QVERIFY(DonneEncre(DessineImage([](QPainter & peintre) {
                peintre.setPen(Qt::NoPen);
                DessineTexteRiche(peintre, kLarge, DonneFontDImage(), TexteLong());
            })).isNull());
}

void tst_TexteRicheDessin::rectanglesVides_data()
{
    QTest::addColumn<QRect>("rectangle");
    QTest::newRow("null") << QRect();
    QTest::newRow("no width") << QRect(5, 5, 0, 30);
    QTest::newRow("negative") << QRect(5, 5, -40, -30);
    QTest::newRow("a pixel") << QRect(5, 5, 1, 1);
    QTest::newRow("far away") << QRect(-100000000, 100000000, 50, 20);
}

void tst_TexteRicheDessin::rectanglesVides()
{
    QFETCH(QRect, rectangle);
    // Nothing to see but that it returns, and what it draws stays near the rectangle.
    for (bool const deux : {false, true}) {
        QRect const encre = DonneEncre(DessineRang(rectangle, TexteLong(), u"Hugo"_s, deux));
        QVERIFY(encre.width() <= 60);
        DessineRang(rectangle, {}, {}, deux);
        DessineRang(rectangle, TexteLong(), {}, deux);
    }
}

void tst_TexteRicheDessin::chaineFormatee()
{
    QImage const image = DessineImage([](QPainter & peintre) {
        peintre.setPen(Qt::magenta);
        DessineUniChaineFormatee(UniChaineFormatee(), peintre, kLarge, Qt::AlignLeft,
                                 Qt::ElideRight);
        QCOMPARE(peintre.pen().color(), QColor(Qt::magenta));
    });
    QVERIFY(DonneEncre(image).isNull());
}

void tst_TexteRicheDessin::longueur_data()
{
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("blanks at the end") << u"abc   "_s;
    QTest::newRow("blanks alone") << u"   "_s;
    QTest::newRow("long") << TexteLong().repeated(50);
    QTest::newRow("tags") << u"a<b>bc</b><em>d</em><s>e</s><sup>2</sup></pn>"_s;
    QTest::newRow("line feed") << u"un<br/>deux"_s;
    QTest::newRow("right to left") << u"\u05e9\u05dc\u05d5\u05dd abc"_s;
}

void tst_TexteRicheDessin::longueur()
{
    QFETCH(QString, texte);
    QFont const font = DonneFontDImage();
    auto const analyse = DonneTexteAvecFormat(texte, font);
    QTextLayout layout(QString(analyse.texte).replace(u'\n', QChar(QChar::LineSeparator)), font);
    layout.setFormats(analyse.formats);
    layout.beginLayout();
    QTextLine ligne = layout.createLine();
    if (ligne.isValid())
        ligne.setLineWidth(2147483647);
    layout.endLayout();
    QCOMPARE(DonneLongueurTexteRiche(texte, font), ligne.naturalTextWidth());
}

QTEST_MAIN(tst_TexteRicheDessin)
#include "tst_TexteRicheDessin.moc"
