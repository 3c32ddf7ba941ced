// tests/controls/tst_DLabelElisionTexte.cpp
#include "controls/DLabelElision.h"

#include "controls/EssaisElision.h"

#include <QtTest>

using namespace EssaisElision;
using namespace Qt::StringLiterals;

namespace {

QString const kLong = u"un chemin/vers un dossier/assez loin/du depart.txt"_s;

} // namespace

class tst_DLabelElisionTexte : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void texteEtBalises_data();
    void texteEtBalises();
    void memeTexteIgnore();
    void texteAvecElision();
    void texteAvecElisionDeLaSource();
    void texteAvecElisionGardeLesPaires();
    void lectureEcran();
    void separateurDeLignes();
    void tresLongTexte();
};

void tst_DLabelElisionTexte::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_DLabelElisionTexte::texteEtBalises_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("texte");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("plain") << u"un texte"_s << u"un texte"_s;
    QTest::newRow("a lone bracket is plain") << u"a < b"_s << u"a < b"_s;
    QTest::newRow("an entity without a tag is plain") << u"a &amp; b"_s << u"a &amp; b"_s;
    QTest::newRow("bold") << u"un <b>mot</b> gras"_s << u"un mot gras"_s;
    QTest::newRow("an entity beside a tag") << u"<i>a</i> &amp; b"_s << u"a & b"_s;
    QTest::newRow("the first paragraph alone") << u"<p>un</p><p>deux</p>"_s << u"un"_s;
    QTest::newRow("an open tag") << u"<b>un"_s << u"un"_s;
}

void tst_DLabelElisionTexte::texteEtBalises()
{
    QFETCH(QString, source);
    QFETCH(QString, texte);
    DLabelElision label(source, nullptr);
    QCOMPARE(label.DonneTexte(), texte);
}

void tst_DLabelElisionTexte::memeTexteIgnore()
{
    DLabelElision label(kLong, nullptr);
    label.AjusteElision(QSize(40, 20));
    QVERIFY(label.EstEliday());

    label.PrendsTexte(kLong, false); // would lay it out anew, at the size of the widget
    QVERIFY(label.EstEliday());

    label.PrendsTexte(kLong, true);
    QVERIFY(!label.EstEliday());
}

void tst_DLabelElisionTexte::texteAvecElision()
{
    DLabelElision label(kLong, nullptr);
    QFontMetrics const mesures(label.font());
    label.AjusteElision(QSize(label.sizeHint().width(), 20));
    QCOMPARE(label.DonneTexteAvecElision(10), kLong); // it fits

    label.AjusteElision(QSize(40, 20));
    int const ellipse = LargeurEllipse(label);
    QCOMPARE(label.DonneTexteAvecElision(0), u"..."_s);
    QCOMPARE(label.DonneTexteAvecElision(ellipse), u"..."_s);
    int largeur = ellipse;
    for (int i = 0; i < 8; ++i) {
        largeur += mesures.horizontalAdvance(kLong.at(i));
        QCOMPARE(label.DonneTexteAvecElision(largeur), kLong.first(i + 1) + u"..."_s);
        QCOMPARE(label.DonneTexteAvecElision(largeur - 1), kLong.first(i) + u"..."_s);
    }
}

void tst_DLabelElisionTexte::texteAvecElisionDeLaSource()
{
    // Deliberate: the mark-up is part of the text that is cut.
    DLabelElision label(u"<b>abcdefghij</b>"_s, nullptr);
    label.AjusteElision(QSize(LargeurEllipse(label), 20));
    QFontMetrics const mesures(label.font());
    int largeur = LargeurEllipse(label);
    for (QChar const c : u"<b>ab"_s)
        largeur += mesures.horizontalAdvance(c);

    QCOMPARE(label.DonneTexteAvecElision(largeur), u"<b>ab..."_s);
}

void tst_DLabelElisionTexte::texteAvecElisionGardeLesPaires()
{
    DLabelElision label(u"😀😀😀😀"_s, nullptr);
    label.AjusteElision(QSize(LargeurEllipse(label), 20));
    QVERIFY(label.EstEliday());
    for (int largeur = 0; largeur < label.sizeHint().width(); ++largeur) {
        QString const texte = label.DonneTexteAvecElision(largeur);
        QVERIFY2(texte.isValidUtf16(), qPrintable(texte));
        QVERIFY(texte.endsWith(u"..."_s));
    }
}

void tst_DLabelElisionTexte::lectureEcran()
{
    DLabelElision label(u"un <b>mot</b>"_s, nullptr);
    QCOMPARE(label.accessibleName(), u"un mot"_s);
    label.PrendsTexte(u"deux"_s, false);
    QCOMPARE(label.accessibleName(), u"deux"_s);

    label.setAccessibleName(u"nom"_s);
    label.PrendsTexte(u"trois"_s, false);
    QCOMPARE(label.accessibleName(), u"nom"_s);
}

void tst_DLabelElisionTexte::separateurDeLignes()
{
    DLabelElision label(u"abcdef<br>ghijkl"_s, nullptr);
    QCOMPARE(label.DonneTexte(), u"abcdef\u2028ghijkl"_s);
    int const premiere = label.sizeHint().width();
    for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        label.PrendsModeElision(mode);
        label.AjusteElision(QSize(premiere, 20));
        QVERIFY(!label.EstEliday());
        QCOMPARE(label.DonneLongueurLigne(), premiere);
        label.AjusteElision(QSize(premiere - 1, 20));
        QVERIFY(label.EstEliday());
        QVERIFY(label.DonneLongueurLigne() > LargeurEllipse(label));
        QVERIFY(label.DonneLongueurLigne() <= premiere);
    }
}

void tst_DLabelElisionTexte::tresLongTexte()
{
    // Wider than the layouts of Qt can count: only the end of the work is asked for.
    DLabelElision label(QString(1'500'000, u'W'), nullptr);
    for (auto const mode : {DLabelElision::kElisionFin, DLabelElision::kElisionDebut}) {
        label.PrendsModeElision(mode);
        label.AjusteElision(QSize(200, 20));
        QVERIFY(label.EstEliday());
        QVERIFY(label.DonneLongueurLigne() <= 201);
    }
}

QTEST_MAIN(tst_DLabelElisionTexte)
#include "tst_DLabelElisionTexte.moc"
