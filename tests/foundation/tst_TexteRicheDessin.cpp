// tests/foundation/tst_TexteRicheDessin.cpp
//
// Drawn as a layout draws it, on whatever painter.
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

class tst_TexteRicheDessin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void commeUnLayout_data();
    void commeUnLayout();
    void commeUnLayoutTransformay();
    void formesCourtes();
    void peintreIntact();
    void decoupeEtOpacite();
    void autresPeripheriques();
    void rectanglesVides_data();
    void rectanglesVides();
    void chaineFormatee();
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
    QTest::newRow("index in bold")
        << u"<b>m<sup>2</sup></b> et <sub><b>n</b></sub>"_s << u""_s << false;
    QTest::newRow("index in an index") << u"a<sup>b<sub>c</sub>d</sup>e"_s << u""_s << false;
    QTest::newRow("index in emphasis")
        << u"<em>a<sup>b</sup></em><m>x<sub>y</sub></m>"_s << u""_s << false;
    QTest::newRow("emphasis in an index")
        << u"a<sup>b<em>c</em><s>de</s></sup>"_s << u""_s << false;
    QTest::newRow("index in colour")
        << u"a<sub>b"_s + rouge + u"c</font>d</sub>"_s << u""_s << false;
    QTest::newRow("index, cut") << u"<sup>Les</sup> chats<sub> dorment souvent sur le tapis</sub>"_s
                                << u""_s << false;
    QTest::newRow("index, two lines")
        << u"<sub>"_s + TexteLong() + u"</sub>, m<sup>2</sup>"_s << u""_s << true;
    QTest::newRow("index of letters of other families")
        << u"a<sup>2\u4e2d\u05d0\U0001f600</sup>b<sub>\u4e2d</sub>"_s << u""_s << false;
    QTest::newRow("index right to left")
        << u"\u05e9\u05dc<sup>\u05d5 2</sup>\u05dd"_s << u""_s << false;
    QTest::newRow("index and highlight")
        << u"<span class=\"surlignement\">m<sup>2</sup></span> <sub>3</sub>"_s << u""_s << false;
    QTest::newRow("index in the source") << u"Le chat"_s << u"p. 3<sup>e</sup>"_s << false;
    QTest::newRow("many indices") << u"a<sup>b</sup>"_s.repeated(40) << u""_s << false;
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

QTEST_MAIN(tst_TexteRicheDessin)
#include "tst_TexteRicheDessin.moc"
