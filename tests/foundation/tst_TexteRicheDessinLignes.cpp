// tests/foundation/tst_TexteRicheDessinLignes.cpp
//
// One line or two, and where they are cut.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/Polices.h"

#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

namespace {

QImage DessinePoints(QPoint const & ou)
{
    return DessineImage([&](QPainter & peintre) {
        peintre.setFont(DonneFontDImage());
        peintre.drawText(ou, u"…"_s);
    });
}

} // namespace

class tst_TexteRicheDessinLignes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

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
    void sautDeLigne();
};

void tst_TexteRicheDessinLignes::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheDessinLignes::pointsQuandCoupe()
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

void tst_TexteRicheDessinLignes::pasDePointsQuandTientJuste()
{
    int const largeur = static_cast<int>(std::ceil(Longueur(TexteLong().left(20))));
    QImage const large = DessineRang({0, 0, 400, 30}, TexteLong().left(20));
    QCOMPARE(DessineRang({0, 0, largeur, 30}, TexteLong().left(20)), large);
    QVERIFY(DessineRang({0, 0, largeur - 1, 30}, TexteLong().left(20)) != large);
}

void tst_TexteRicheDessinLignes::pointsAGaucheDeDroiteAGauche()
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

void tst_TexteRicheDessinLignes::uneSeuleLigne()
{
    QRect const haut(0, 0, 120, 80);
    QVERIFY(DonneEncre(DessineRang(haut, TexteLong())).bottom() < DonneInterligne());
}

void tst_TexteRicheDessinLignes::deuxLignes()
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

void tst_TexteRicheDessinLignes::deuxLignesMaisTexteCourt()
{
    QRect const haut(0, 0, 400, 80);
    QImage const image = DessineRang(haut, u"Le chat"_s, {}, true);
    QVERIFY(DonneEncre(image).bottom() < DonneInterligne());
    QCOMPARE(image, DessineRang(haut, u"Le chat"_s));
}

void tst_TexteRicheDessinLignes::deuxLignesSansHauteur_data()
{
    QTest::addColumn<int>("manque");
    QTest::addColumn<bool>("attendues");
    QTest::newRow("two line spacings are enough") << 0 << true;
    QTest::newRow("one pixel less is not") << 1 << false;
}

void tst_TexteRicheDessinLignes::deuxLignesSansHauteur()
{
    QFETCH(int, manque);
    QFETCH(bool, attendues);
    QRect const rectangle(0, 0, 120, 2 * DonneInterligne() - manque);
    QImage const image = DessineRang(rectangle, TexteLong(), {}, true);
    QCOMPARE(DonneEncre(image).bottom() > DonneInterligne(), attendues);
    // One line that ends in "…", then: the text goes on.
    QCOMPARE(image == DessineRang(rectangle, TexteLong()), !attendues);
}

void tst_TexteRicheDessinLignes::deuxLignesSansLargeur()
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

void tst_TexteRicheDessinLignes::jamaisTroisLignes()
{
    QFont petite = DonneFontDImage();
    petite.setPixelSize(10);
    QImage const image = DessineImage([&](QPainter & peintre) {
        DessineTexteRicheSurDeuxLignes(peintre, {0, 0, 90, 80}, petite, TexteLong() + TexteLong());
    });
    QVERIFY(DonneEncre(image).bottom() <= 2 * QFontMetrics(petite).lineSpacing());
}

void tst_TexteRicheDessinLignes::motPlusLongQueLaLigne()
{
    QRect const rectangle(0, 0, 120, 80);
    QRect const encre = DonneEncre(DessineRang(rectangle, QString(60, u'm'), u"Hugo"_s, true));
    QVERIFY(encre.right() <= rectangle.right());
    QVERIFY(encre.bottom() > DonneInterligne());
}

void tst_TexteRicheDessinLignes::sautDeLigne()
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

QTEST_MAIN(tst_TexteRicheDessinLignes)
#include "tst_TexteRicheDessinLignes.moc"
