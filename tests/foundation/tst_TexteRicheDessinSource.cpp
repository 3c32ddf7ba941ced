// tests/foundation/tst_TexteRicheDessinSource.cpp
//
// The source at the right edge.
#include "foundation/ImagesTexteRiche.h"
#include "foundation/Polices.h"

#include <QtTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace RoutinesGeneralesQt;

class tst_TexteRicheDessinSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void sourceADroite();
    void sourceItalique();
    void sourceTropLongue();
    void sourceSansPlacePourLeTexte();
};

void tst_TexteRicheDessinSource::cleanup()
{
    ModulateurFont::LibereInstance();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_TexteRicheDessinSource::sourceADroite()
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

void tst_TexteRicheDessinSource::sourceItalique()
{
    QCOMPARE(DessineRang(kLarge, {}, u"Hugo"_s), DessineRang(kLarge, {}, u"<i>Hugo</i>"_s));
    QVERIFY(DessineRang(kLarge, {}, u"Hugo"_s) != DessineRang(kLarge, {}, u"<b>Hugo</b>"_s));
    // In a name, where emphasis alone is upright, too.
    QCOMPARE(DessineRang(kLarge, {}, u"<pn>Hugo</pn>"_s),
             DessineRang(kLarge, {}, u"<i><pn>Hugo</pn></i>"_s));
}

void tst_TexteRicheDessinSource::sourceTropLongue()
{
    QRect const encre = DonneEncre(DessineRang(kEtroit, {}, TexteLong()));
    QVERIFY(encre.left() >= kEtroit.left());
    QVERIFY(encre.right() <= kEtroit.right());
    QVERIFY(encre.width() > kEtroit.width() / 2);
    QImage const coupee = DessineRang(kEtroit, {}, TexteLong());
    QImage const entiere = DessineRang(kLarge, {}, TexteLong().left(15));
    QVERIFY(coupee != entiere);
}

void tst_TexteRicheDessinSource::sourceSansPlacePourLeTexte()
{
    QCOMPARE(DessineRang(kEtroit, TexteLong(), TexteLong()), DessineRang(kEtroit, {}, TexteLong()));
}

QTEST_MAIN(tst_TexteRicheDessinSource)
#include "tst_TexteRicheDessinSource.moc"
